#include "EditSessionField.h"

#include "AbstractColorPicker.h"
#include "ColorBlendingComboBox.h"
#include "ColorInputWidget.h"
#include "ColorPickerButton.h"
#include "DoubleSliderInputWidget.h"
#include "PathSelectionWidget.h"
#include "PlaneDrag.h"
#include "PointMapping.h"
#include "PointSelectionPlane.h"
#include "PointSelectorWidget.h"
#include "SearchWidget.h"
#include "SliderInputWidget.h"
#include "WidgetColorPickerButton.h"

#include <WidgetToolkit/OvDoubleSlider.h>

#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>
#include <QWheelEvent>

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
EditSessionField access(Field* field, Getter getter, Setter setter, Signal changed)
{
    EditSessionField access;
    access.read = [field, getter] { return QVariant::fromValue<Value>((field->*getter)()); };
    access.write = [field, setter](const QVariant& value) { (field->*setter)(value.value<Value>()); };
    access.watch = watcher(field, changed);
    return access;
}

/// For a field with a slider, which emits for each step, even one without effect.
template <typename Value, typename Field, typename Getter, typename Setter, typename Signal>
EditSessionField sliderAccess(Field* field, QAbstractSlider* slider, Getter getter, Setter setter,
                              Signal changed)
{
    EditSessionField number = access<Value>(field, getter, setter, changed);
    number.watchChoice = [slider](QObject* context, const std::function<void()>& chosen) {
        QObject::connect(slider, &QAbstractSlider::actionTriggered, context, [slider, chosen](int action) {
            // Otherwise the value changes next.
            const bool isThere = slider->sliderPosition() == slider->value();
            if (isThere && action != QAbstractSlider::SliderNoAction) {
                chosen();
            }
        });
    };
    return number;
}

EditSessionField colorAccess(ColorPickerButton* button)
{
    return access<OptionalColor>(button, &ColorPickerButton::color, &ColorPickerButton::setColor,
                                 &ColorPickerButton::colorChanged);
}

EditSessionField planeAccess(PointSelectionPlane* plane)
{
    EditSessionField point =
        access<QPointF>(plane, &PointSelectionPlane::point, &PointSelectionPlane::setPoint,
                        &PointSelectionPlane::pointChanged);
    point.watchChoice = point.watch;
    return point;
}

EditSessionField selectorAccess(PointSelectorWidget* selector)
{
    EditSessionField point =
        access<QPointF>(selector, &PointSelectorWidget::value, &PointSelectorWidget::setValue,
                        &PointSelectorWidget::valueChanged);
    const auto boxes = selector->findChildren<QDoubleSpinBox*>();
    auto* const plane = selector->findChild<PointSelectionPlane*>();
    const auto watchField = point.watch;
    point.watchChoice = planeAccess(plane).watch;
    point.watch = [selector, plane, boxes, watchField,
                   watchPlane = point.watchChoice](QObject* context, const std::function<void()>& changed) {
        // The parts follow one another and report mixed points until they agree. Connected after the field,
        // which synchronises them.
        const auto report = [selector, plane, changed] {
            if (PointMapping::isSame(plane->point(), selector->value()) && !selector->signalsBlocked()) {
                changed();
            }
        };
        watchField(context, report);
        for (QDoubleSpinBox* box : boxes) {
            watcher(box, qOverload<double>(&QDoubleSpinBox::valueChanged))(context, report);
        }
        // The plane is finer than the boxes, and may differ.
        watchPlane(context, changed);
    };
    return point;
}

EditSessionField pathAccess(PathSelectionWidget* field)
{
    EditSessionField path = access<QString>(field, &PathSelectionWidget::path, &PathSelectionWidget::setPath,
                                            &PathSelectionWidget::pathChanged);
    if (const auto* edit = field->findChild<QLineEdit*>()) {
        // The field's own signal is delayed.
        const auto watchField = path.watch;
        const auto watchEdit = watcher(edit, &QLineEdit::textChanged);
        path.watch = [watchField, watchEdit](QObject* context, const std::function<void()>& changed) {
            watchEdit(context, changed);
            watchField(context, changed);
        };
    }
    return path;
}

EditSessionField searchAccess(SearchWidget* field)
{
    auto* const edit = field->findChild<QLineEdit*>();
    EditSessionField text;
    text.read = [field] { return field->text(); };
    text.write = [edit](const QVariant& value) { edit->setText(value.toString()); };
    text.watch = watcher(field, &SearchWidget::textChanged);
    return text;
}

EditSessionField comboBoxAccess(QComboBox* box)
{
    EditSessionField item;
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

/// 1 for a step up, -1 for one down and 0 for none.
int directionOf(const QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        const int turn = static_cast<const QWheelEvent*>(event)->angleDelta().y();
        return int(turn > 0) - int(turn < 0);
    }
    switch (static_cast<const QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        return 1;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        return -1;
    default:
        return 0;
    }
}

bool isBoxAtEnd(const QAbstractSpinBox* box, const QEvent* event)
{
    const int direction = directionOf(event);
    return direction != 0 && box->hasFocus() && !box->isReadOnly() && !box->wrapping() &&
           box->property("value") == box->property(direction > 0 ? "maximum" : "minimum");
}

bool isListAtEnd(const QComboBox* box, const QEvent* event)
{
    int direction = directionOf(event);
    if (event->type() == QEvent::KeyPress && !box->isEditable()) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        direction += int(key == Qt::Key_Home) - int(key == Qt::Key_End);
    }
    const int end = direction > 0 ? 0 : box->count() - 1;
    return direction != 0 && box->hasFocus() && box->count() > 0 && box->currentIndex() == end &&
           box->currentText() == box->itemText(end);
}

/// There is nothing to delete.
bool isTextAtEnd(const QLineEdit* edit, const QEvent* event)
{
    return event->type() == QEvent::KeyPress && edit->text().isEmpty() && !edit->isReadOnly() &&
           (static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Delete ||
            static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Backspace);
}

} // namespace

EditSessionField EditSessionField::of(QWidget* field)
{
    if (auto* slider = qobject_cast<SliderInputWidget*>(field)) {
        return sliderAccess<int>(slider, slider->findChild<QAbstractSlider*>(), &SliderInputWidget::value,
                                 &SliderInputWidget::setValue, &SliderInputWidget::valueChanged);
    }
    if (auto* slider = qobject_cast<DoubleSliderInputWidget*>(field)) {
        return sliderAccess<double>(slider, slider->findChild<QAbstractSlider*>(),
                                    &DoubleSliderInputWidget::value, &DoubleSliderInputWidget::setValue,
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
        return sliderAccess<double>(slider, slider, &OvDoubleSlider::doubleValue,
                                    &OvDoubleSlider::setDoubleValue, &OvDoubleSlider::doubleValueChanged);
    }
    if (auto* slider = qobject_cast<QAbstractSlider*>(field)) {
        return sliderAccess<int>(slider, slider, &QAbstractSlider::value, &QAbstractSlider::setValue,
                                 &QAbstractSlider::valueChanged);
    }
    if (auto* edit = qobject_cast<QLineEdit*>(field)) {
        return access<QString>(edit, &QLineEdit::text, &QLineEdit::setText, &QLineEdit::textChanged);
    }
    return {};
}

bool EditSessionField::isAtEnd(QObject* part, const QEvent* event)
{
    if (const auto* box = qobject_cast<const QAbstractSpinBox*>(part)) {
        return isBoxAtEnd(box, event);
    }
    if (const auto* box = qobject_cast<const QComboBox*>(part)) {
        return isListAtEnd(box, event) || (box->isEditable() && isTextAtEnd(box->lineEdit(), event));
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(part)) {
        return isTextAtEnd(edit, event);
    }
    auto* const plane = qobject_cast<PointSelectionPlane*>(part);
    return plane && event->type() == QEvent::KeyPress &&
           PlaneDrag::of(plane)->isAtEdge(*static_cast<const QKeyEvent*>(event));
}

bool EditSessionField::isSame(const QVariant& one, const QVariant& other)
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
