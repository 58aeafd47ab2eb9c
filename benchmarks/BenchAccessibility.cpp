// What components cost those whom no program reads them to.

#include "ApplicationSheet.h"
#include "Compare.h"

#include <UiComponents/AccessibleFactory.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerWidget.h>

#include <QAccessible>
#include <QApplication>
#include <QWidget>

#include <memory>
#include <stdexcept>

using namespace Bench;

namespace {

using Make = void (*)(QWidget*);

/// Makes and shows a window with what @p make puts into it, with or without the interfaces for readers.
Side construction(Make make, bool hasFactory)
{
    const auto window = std::make_shared<std::unique_ptr<QWidget>>();
    return {[=] {
                *window = std::make_unique<QWidget>();
                make(window->get());
                (*window)->show();
                QCoreApplication::processEvents();
            },
            [=] {
                // The first component has installed it, and none does so again.
                if (hasFactory) {
                    QAccessible::installFactory(AccessibleFactory::interfaceFor);
                } else {
                    QAccessible::removeFactory(AccessibleFactory::interfaceFor);
                }
            },
            [=] {
                window->reset();
                QAccessible::removeFactory(AccessibleFactory::interfaceFor);
            }};
}

Pair constructions(Make make)
{
    qApp->setStyleSheet(applicationSheet());
    if (QAccessible::isActive()) {
        throw std::runtime_error("a program reads this one");
    }
    const std::unique_ptr<QWidget> first = std::make_unique<ColorInputWidget>(nullptr, QColor());
    return {construction(make, true), construction(make, false)};
}

void makeFields(QWidget* window)
{
    constexpr int fields = 1000;
    for (int i = 0; i < fields; ++i) {
        new ColorInputWidget(window, QColor(Qt::red));
    }
}

void makePanel(QWidget* window)
{
    new ColorPickerWidget(window, false);
}

UIC_COMPARE("ColorInputWidget/construct and show 1,000, against without interfaces for readers", atMost(1.02),
            [] { return constructions(makeFields); });
UIC_COMPARE("ColorPickerWidget/make and show, against without interfaces for readers", atMost(1.02),
            [] { return constructions(makePanel); });

} // namespace
