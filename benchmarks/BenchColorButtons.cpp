// Colour buttons against KDE's.

#include "ApplicationSheet.h"
#include "Compare.h"

#include <UiComponents/ColorPickerButton.h>

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QWidget>

#include <KColorButton>
#include <memory>

using namespace Bench;

namespace {

constexpr int buttons = 300;
constexpr int columns = 20;

/// Each in a place of its own, and painted.
template <typename Button>
Side construction()
{
    const auto window = std::make_shared<std::unique_ptr<QWidget>>();
    return {[window] {
                *window = std::make_unique<QWidget>();
                auto* layout = new QGridLayout(window->get());
                for (int i = 0; i < buttons; ++i) {
                    auto* button = new Button(window->get());
                    button->setColor(QColor(i % 256, 0, 0));
                    layout->addWidget(button, i / columns, i % columns);
                }
                (*window)->show();
                QCoreApplication::processEvents();
            },
            [] {}, [window] { window->reset(); }};
}

/// In a window, whose layout is invalidated too.
template <typename Button>
Side change()
{
    const auto window = std::make_shared<QWidget>();
    auto* button = new Button(window.get());
    (new QHBoxLayout(window.get()))->addWidget(button);
    window->show();
    QCoreApplication::processEvents();
    return {[window, button, red = 0]() mutable {
        button->setColor(QColor(++red % 256, 0, 0));
        QCoreApplication::processEvents();
    }};
}

Pair constructions(const QString& sheet)
{
    qApp->setStyleSheet(sheet);
    return {construction<ColorPickerButton>(), construction<KColorButton>()};
}

Pair changes(const QString& sheet)
{
    qApp->setStyleSheet(sheet);
    return {change<ColorPickerButton>(), change<KColorButton>()};
}

UIC_COMPARE("ColorPickerButton/construct and show 300, against KColorButton", atMost(2.0),
            [] { return constructions({}); });
UIC_COMPARE("ColorPickerButton/construct and show 300 under a sheet, against KColorButton", atMost(1.5),
            [] { return constructions(applicationSheet()); });
UIC_COMPARE("ColorPickerButton/set a colour and paint it, against KColorButton", atMost(2.0),
            [] { return changes({}); });
UIC_COMPARE("ColorPickerButton/set a colour and paint it under a sheet, against KColorButton", atMost(2.0),
            [] { return changes(applicationSheet()); });

} // namespace
