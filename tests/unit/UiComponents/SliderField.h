#pragma once

#include "DecimalNumber.h"

#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvSpinBox.h>

#include <QLineEdit>
#include <QPointer>

#include <cmath>
#include <functional>
#include <utility>

/**
 * A slider field for whole numbers or for fractions, in steps: values times ten to the decimals. It records
 * what the field reports.
 */
class SliderField : public QObject
{
public:
    using Values = QVector<int>;

    /// In place of decimals: the field for whole numbers.
    static constexpr int whole = -1;

    /// The field is @p parent's, or this object's.
    SliderField(int decimals, int minimum, int maximum, QWidget* parent = nullptr)
        : widget(make(decimals, minimum, maximum, parent))
        , slider(widget->findChild<QAbstractSlider*>(QStringLiteral("slider"), Qt::FindDirectChildrenOnly))
        , spinBox(widget->findChild<QAbstractSpinBox*>(QStringLiteral("spinbox"), Qt::FindDirectChildrenOnly))
        , edit(spinBox->findChild<QLineEdit*>())
        , m_decimals(decimals)
    {
        if (auto* field = qobject_cast<SliderInputWidget*>(widget)) {
            connect(field, &SliderInputWidget::valueChanged, this, [this](int value) { record(value); });
        } else if (auto* fractions = qobject_cast<DoubleSliderInputWidget*>(widget)) {
            connect(fractions, &DoubleSliderInputWidget::valueChanged, this, [this](double value) {
                const int steps = static_cast<int>(std::round(value * std::pow(10.0, m_decimals)));
                inStep = inStep && value == number(steps);
                record(steps);
            });
        }
    }
    ~SliderField() override
    {
        if (widget && !widget->parent()) {
            delete widget;
        }
    }
    Q_DISABLE_COPY(SliderField)

    void setRange(int minimum, int maximum)
    {
        if (auto* field = qobject_cast<SliderInputWidget*>(widget)) {
            field->setRange({minimum, maximum});
        } else if (auto* fractions = qobject_cast<DoubleSliderInputWidget*>(widget)) {
            fractions->setRange({number(minimum), number(maximum), m_decimals});
        }
    }

    void setValue(int steps)
    {
        if (auto* field = qobject_cast<SliderInputWidget*>(widget)) {
            field->setValue(steps);
        } else if (auto* fractions = qobject_cast<DoubleSliderInputWidget*>(widget)) {
            fractions->setValue(number(steps));
        }
    }

    /// As the host of the spin box does it.
    void setSpinBox(int steps)
    {
        if (auto* box = qobject_cast<OvSpinBox*>(spinBox)) {
            box->setValue(steps);
        } else if (auto* fractions = qobject_cast<OvDoubleSpinBox*>(spinBox)) {
            fractions->setValue(number(steps));
        }
    }

    /// Whether the field and both parts have exactly this value.
    bool shows(int steps) const
    {
        if (const auto* field = qobject_cast<SliderInputWidget*>(widget)) {
            return field->value() == steps && slider->value() == steps &&
                   qobject_cast<OvSpinBox*>(spinBox)->value() == steps;
        }
        return slider->value() == steps &&
               qobject_cast<DoubleSliderInputWidget*>(widget)->value() == number(steps) &&
               qobject_cast<OvDoubleSlider*>(slider)->doubleValue() == number(steps) &&
               qobject_cast<OvDoubleSpinBox*>(spinBox)->value() == number(steps);
    }

    /// What was reported since the last call.
    Values reports() { return std::exchange(m_reports, {}); }

    /// As the spin box writes it.
    QString text(int steps) const
    {
        return m_decimals == whole ? QString::number(steps) : QString::number(number(steps), 'f', m_decimals);
    }

    double number(int steps) const { return m_decimals == whole ? steps : decimalNumber(steps, m_decimals); }

    const QPointer<OvFrame> widget;
    QAbstractSlider* const slider;
    QAbstractSpinBox* const spinBox;
    QLineEdit* const edit;
    /// Whether both parts showed the value whenever it was reported.
    bool inStep = true;
    /// Called with each report, after it is recorded.
    std::function<void(int)> onReport;

private:
    static OvFrame* make(int decimals, int minimum, int maximum, QWidget* parent)
    {
        if (decimals == whole) {
            return new SliderInputWidget(parent, {minimum, maximum});
        }
        return new DoubleSliderInputWidget(
            parent, {decimalNumber(minimum, decimals), decimalNumber(maximum, decimals), decimals});
    }

    void record(int steps)
    {
        m_reports += steps;
        inStep = inStep && shows(steps);
        if (onReport) {
            onReport(steps);
        }
    }

    const int m_decimals;
    Values m_reports;
};
