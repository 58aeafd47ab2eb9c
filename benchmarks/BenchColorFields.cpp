// What a panel pays for the colour fields in it.

#include "ApplicationSheet.h"
#include "Compare.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>

#include <QApplication>
#include <QToolButton>
#include <QWidget>

#include <memory>

using namespace Bench;

namespace {

constexpr int fields = 1000;

/// A window with a thousand fields of one kind, which are there and polished once it is filled.
class Panel
{
public:
    template <typename Make>
    void fill(Make make)
    {
        m_window = std::make_unique<QWidget>();
        for (int i = 0; i < fields; ++i) {
            make(m_window.get());
        }
        m_window->show();
    }

    void clear() { m_window.reset(); }

private:
    std::unique_ptr<QWidget> m_window;
};

void makeInputWidget(QWidget* parent)
{
    new ColorInputWidget(parent, QColor(Qt::red));
}
void makePickerButton(QWidget* parent)
{
    (new ColorPickerButton(parent))->setColor(QColor(Qt::red));
}
void makeToolButton(QWidget* parent)
{
    new QToolButton(parent);
}

using Make = void (*)(QWidget*);

Side construction(Make make)
{
    const auto panel = std::make_shared<Panel>();
    return {[panel, make] { panel->fill(make); }, [] {}, [panel] { panel->clear(); }};
}

Pair constructions(Make make)
{
    qApp->setStyleSheet(applicationSheet());
    return {construction(make), construction(makeToolButton)};
}

qint64 bytesFor(Make make)
{
    const qint64 before = allocatedBytes();
    Panel panel;
    panel.fill(make);
    QCoreApplication::processEvents();
    return allocatedBytes() - before;
}

Amounts memory(Make make)
{
    qApp->setStyleSheet(applicationSheet());
    return {[make] { return bytesFor(make); }, [] { return bytesFor(makeToolButton); }};
}

UIC_COMPARE("ColorPickerButton/construct and show 1,000, against QToolButton", noGoal(),
            [] { return constructions(makePickerButton); });
UIC_COMPARE("ColorInputWidget/construct and show 1,000, against QToolButton", noGoal(),
            [] { return constructions(makeInputWidget); });
UIC_COMPARE("ColorPickerButton/memory of 1,000, against QToolButton", noGoal(),
            [] { return memory(makePickerButton); });
UIC_COMPARE("ColorInputWidget/memory of 1,000, against QToolButton", noGoal(),
            [] { return memory(makeInputWidget); });

} // namespace
