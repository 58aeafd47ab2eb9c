#include "FieldAccess.h"

#include "AbstractColorPicker.h"
#include "ColorBlendingComboBox.h"
#include "ColorInputWidget.h"
#include "ColorPickerButton.h"
#include "DoubleSliderInputWidget.h"
#include "PathSelectionWidget.h"
#include "PointMapping.h"
#include "PointSelectionPlane.h"
#include "PointSelectorWidget.h"
#include "SearchWidget.h"
#include "SliderInputWidget.h"
#include "WidgetColorPickerButton.h"

#include <WidgetToolkit/OvDoubleSlider.h>

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

namespace {

using OptionalColor = std::optional<QColor>;

template <typename Field, typename Signal>
auto watcher(Field* field, Signal signal)
{
    return [field, signal](QObject* context, const std::function<void()>& called) {
        QObject::connect(field, signal, context, called);
    };
}

/// For a field that has a getter, a setter and a signal of one type.
template <typename Value, typename Field, typename Getter, typename Setter, typename Signal>
FieldAccess access(Field* field, Getter getter, Setter setter, Signal changed)
{
    FieldAccess access;
    access.read = [field, getter] { return QVariant::fromValue<Value>((field->*getter)()); };
    access.write = [field, setter](const QVariant& value) { (field->*setter)(value.value<Value>()); };
    access.watch = watcher(field, changed);
    return access;
}

FieldAccess colorAccess(ColorPickerButton* button)
{
    return access<OptionalColor>(button, &ColorPickerButton::color, &ColorPickerButton::setColor,
                                 &ColorPickerButton::colorChanged);
}

FieldAccess planeAccess(PointSelectionPlane* plane)
{
    FieldAccess point = access<QPointF>(plane, &PointSelectionPlane::point, &PointSelectionPlane::setPoint,
                                        &PointSelectionPlane::pointChanged);
    point.watchChoice = point.watch;
    return point;
}

FieldAccess selectorAccess(PointSelectorWidget* selector)
{
    FieldAccess point = access<QPointF>(selector, &PointSelectorWidget::value, &PointSelectorWidget::setValue,
                                        &PointSelectorWidget::valueChanged);
    if (auto* plane = selector->findChild<PointSelectionPlane*>()) {
        // It tells when the spin boxes have followed it; they tell of one coordinate after the other.
        const auto watchField = point.watch;
        const auto watchPlane = planeAccess(plane).watch;
        point.watch = [plane, watchField, watchPlane](QObject* context,
                                                      const std::function<void()>& changed) {
            watchField(context, [plane, changed] {
                if (!plane->hasFocus() && QWidget::mouseGrabber() != plane) {
                    changed();
                }
            });
            watchPlane(context, changed);
        };
        point.watchChoice = watchPlane;
    }
    return point;
}

FieldAccess pathAccess(PathSelectionWidget* field)
{
    FieldAccess path = access<QString>(field, &PathSelectionWidget::path, &PathSelectionWidget::setPath,
                                       &PathSelectionWidget::pathChanged);
    if (const auto* edit = field->findChild<QLineEdit*>()) {
        // The field's own signal waits for the end of a burst.
        const auto watchField = path.watch;
        const auto watchEdit = watcher(edit, &QLineEdit::textChanged);
        path.watch = [watchField, watchEdit](QObject* context, const std::function<void()>& changed) {
            watchEdit(context, changed);
            watchField(context, changed);
        };
    }
    return path;
}

FieldAccess searchAccess(SearchWidget* field)
{
    auto* const edit = field->findChild<QLineEdit*>();
    FieldAccess text;
    text.read = [field] { return field->text(); };
    text.write = [edit](const QVariant& value) { edit->setText(value.toString()); };
    text.watch = watcher(field, &SearchWidget::textChanged);
    return text;
}

FieldAccess comboBoxAccess(QComboBox* box)
{
    FieldAccess item;
    if (auto* blending = qobject_cast<ColorBlendingComboBox*>(box)) {
        item.read = [blending] { return blending->currentBlendingMode(); };
        item.write = [blending](const QVariant& mode) {
            blending->setCurrentIndex(blending->indexOf(static_cast<BlendingMode>(mode.toInt())));
        };
    } else {
        item.read = [box] { return box->isEditable() ? QVariant(box->currentText()) : box->currentIndex(); };
        item.write = [box](const QVariant& value) {
            if (box->isEditable()) {
                box->setCurrentText(value.toString());
            } else {
                box->setCurrentIndex(value.toInt());
            }
        };
    }
    item.watch = watcher(box, &QComboBox::currentTextChanged);
    item.watchChoice = watcher(box, qOverload<int>(&QComboBox::activated));
    return item;
}

} // namespace

FieldAccess FieldAccess::of(QWidget* field)
{
    if (auto* slider = qobject_cast<SliderInputWidget*>(field)) {
        return access<int>(slider, &SliderInputWidget::value, &SliderInputWidget::setValue,
                           &SliderInputWidget::valueChanged);
    }
    if (auto* slider = qobject_cast<DoubleSliderInputWidget*>(field)) {
        return access<double>(slider, &DoubleSliderInputWidget::value, &DoubleSliderInputWidget::setValue,
                              &DoubleSliderInputWidget::valueChanged);
    }
    if (auto* selector = qobject_cast<PointSelectorWidget*>(field)) {
        return selectorAccess(selector);
    }
    if (auto* plane = qobject_cast<PointSelectionPlane*>(field)) {
        return planeAccess(plane);
    }
    if (auto* path = qobject_cast<PathSelectionWidget*>(field)) {
        return pathAccess(path);
    }
    if (auto* search = qobject_cast<SearchWidget*>(field)) {
        return searchAccess(search);
    }
    if (const auto* color = qobject_cast<ColorInputWidget*>(field)) {
        return colorAccess(qobject_cast<ColorPickerButton*>(color->anchorWidget()));
    }
    if (auto* button = qobject_cast<ColorPickerButton*>(field)) {
        return colorAccess(button);
    }
    if (auto* button = qobject_cast<WidgetColorPickerButton*>(field)) {
        return access<QColor>(button, &WidgetColorPickerButton::color, &WidgetColorPickerButton::setColor,
                              &WidgetColorPickerButton::colorChanged);
    }
    if (auto* box = qobject_cast<QComboBox*>(field)) {
        return comboBoxAccess(box);
    }
    if (auto* box = qobject_cast<QSpinBox*>(field)) {
        return access<int>(box, &QSpinBox::value, &QSpinBox::setValue,
                           qOverload<int>(&QSpinBox::valueChanged));
    }
    if (auto* box = qobject_cast<QDoubleSpinBox*>(field)) {
        return access<double>(box, &QDoubleSpinBox::value, &QDoubleSpinBox::setValue,
                              qOverload<double>(&QDoubleSpinBox::valueChanged));
    }
    if (auto* slider = qobject_cast<OvDoubleSlider*>(field)) {
        return access<double>(slider, &OvDoubleSlider::doubleValue, &OvDoubleSlider::setDoubleValue,
                              &OvDoubleSlider::doubleValueChanged);
    }
    if (auto* slider = qobject_cast<QAbstractSlider*>(field)) {
        return access<int>(slider, &QAbstractSlider::value, &QAbstractSlider::setValue,
                           &QAbstractSlider::valueChanged);
    }
    if (auto* edit = qobject_cast<QLineEdit*>(field)) {
        return access<QString>(edit, &QLineEdit::text, &QLineEdit::setText, &QLineEdit::textChanged);
    }
    return {};
}

bool FieldAccess::isSame(const QVariant& one, const QVariant& other)
{
    if (one.userType() != other.userType()) {
        return false;
    }
    if (one.userType() == qMetaTypeId<OptionalColor>()) {
        return one.value<OptionalColor>() == other.value<OptionalColor>();
    }
    if (one.userType() == QMetaType::Double) {
        return one.toDouble() == other.toDouble();
    }
    if (one.userType() == QMetaType::QPointF) {
        return PointMapping::isSame(one.toPointF(), other.toPointF());
    }
    return one == other;
}
