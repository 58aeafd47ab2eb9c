// What it costs that a slider and a spin box follow each other.

#include "Compare.h"

#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/Util.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QWidget>

#include <memory>

using namespace Bench;

namespace {

constexpr int steps = 10000;

void setValue(QAbstractSlider* slider, int step)
{
    slider->setValue(step);
}
void setValue(QSpinBox* spinBox, int step)
{
    spinBox->setValue(step);
}
void setValue(OvDoubleSlider* slider, int step)
{
    slider->setDoubleValue(step / 100.0);
}
void setValue(QDoubleSpinBox* spinBox, int step)
{
    spinBox->setValue(step / 100.0);
}

void setUp(QAbstractSlider* slider, QSpinBox* spinBox)
{
    slider->setRange(0, steps);
    spinBox->setRange(0, steps);
}

void setUp(OvDoubleSlider* slider, QDoubleSpinBox* spinBox)
{
    slider->setMultiplier(0.01);
    slider->setRange(0, steps);
    spinBox->setDecimals(2);
    spinBox->setRange(0.0, steps / 100.0);
}

bool agree(QAbstractSlider* slider, QSpinBox* spinBox)
{
    return slider->value() == spinBox->value();
}
bool agree(OvDoubleSlider* slider, QDoubleSpinBox* spinBox)
{
    return qFuzzyCompare(1.0 + slider->doubleValue(), 1.0 + spinBox->value());
}

/// A slider beside a spin box in a shown window.
template <typename Slider, typename SpinBox>
class Controls
{
public:
    Controls()
    {
        auto* const layout = new QHBoxLayout(&m_window);
        layout->addWidget(m_slider);
        layout->addWidget(m_spinBox);
        setUp(m_slider, m_spinBox);
        m_window.show();
        QCoreApplication::processEvents();
    }

    void bind() { Util::bindWidgets(m_slider, m_spinBox); }

    /// A new value for the one or the other, by turns.
    void setOne()
    {
        const int step = next();
        if (step % 2 == 0) {
            setValue(m_slider, step);
        } else {
            setValue(m_spinBox, step);
        }
    }

    void setBoth()
    {
        const int step = next();
        setValue(m_slider, step);
        setValue(m_spinBox, step);
    }

    bool areEqual() const { return agree(m_slider, m_spinBox); }

private:
    int next()
    {
        m_step = (m_step + 1) % steps;
        return m_step;
    }

    QWidget m_window;
    Slider* const m_slider = new Slider;
    SpinBox* const m_spinBox = new SpinBox;
    int m_step = 0;
};

template <typename Slider, typename SpinBox>
Pair roundTrips()
{
    const auto bound = std::make_shared<Controls<Slider, SpinBox>>();
    const auto unbound = std::make_shared<Controls<Slider, SpinBox>>();
    bound->bind();
    for (int i = 0; i < 4; ++i) {
        bound->setOne();
        if (!bound->areEqual()) {
            qFatal("a bound value does not arrive: the row would time nothing");
        }
    }
    return {{[bound] { bound->setOne(); }}, {[unbound] { unbound->setBoth(); }}};
}

UIC_COMPARE("bindWidgets/round trip of whole numbers, against two unbound setValue", atMost(1.10),
            roundTrips<OvCustomSlider, OvSpinBox>);
UIC_COMPARE("bindWidgets/round trip of fractions, against two unbound setValue", atMost(1.10),
            roundTrips<OvDoubleSlider, OvDoubleSpinBox>);

} // namespace
