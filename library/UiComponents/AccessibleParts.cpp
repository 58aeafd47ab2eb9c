#include "AccessibleParts.h"

#include "AccessibleNames.h"
#include "ColorNames.h"
#include "ColorPickerButton.h"
#include "ColorPickerWidget.h"
#include "ColorPickerWidgetButton.h"
#include "ColorPlaneWidget.h"
#include "GuidePicture.h"
#include "PopupColorPicker.h"
#include "WidgetColorPickerButton.h"

#include <WidgetToolkit/OvDoubleSlider.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QCoreApplication>
#include <QLabel>
#include <QLocale>
#include <QTextDocument>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <iterator>

using AccessibleNames::sentences;

namespace {

QAccessibleInterface* interfaceOf(QWidget* widget)
{
    return widget ? QAccessible::queryAccessibleInterface(widget) : nullptr;
}

/// What has opened @p popup. That of a colour field belongs to the window, where others use it too.
QWidget* openerOf(const QWidget* popup)
{
    QWidget* const owner = popup->parentWidget();
    const auto pickers = owner->findChildren<PopupColorPicker*>();
    for (const PopupColorPicker* picker : pickers) {
        if (picker->panel() && picker->panel()->parentWidget() == popup) {
            return qobject_cast<QWidget*>(picker->parent());
        }
    }
    return owner;
}

/// The folder field that @p edit belongs to, while it is marked; null for others.
const QWidget* markedField(const QWidget* edit)
{
    const QWidget* const field = AccessibleNames::componentOf(edit);
    const bool isMarked = field && field->inherits("PathSelectionWidget") &&
                          edit->parentWidget()->property("styleHint").toString() == QLatin1String("error");
    return isMarked ? field : nullptr;
}

/// The message below @p field, while it shows one.
QLabel* messageOf(const QWidget* field)
{
    auto* const label = field ? field->findChild<QLabel*>(QString::fromLatin1("errorLabel")) : nullptr;
    return label && !label->isHidden() ? label : nullptr;
}

/// The error message of @p field, below it or in the tool tip of @p edit.
QString errorOf(const QWidget* field, const QWidget* edit)
{
    if (const QLabel* const label = messageOf(field)) {
        return label->text();
    }
    QTextDocument tip;
    tip.setHtml(field ? edit->toolTip() : QString());
    return tip.toPlainText();
}

} // namespace

QString AccessiblePart::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name) {
        return AccessibleNames::nameOf(widget());
    }
    const QString said = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description ? sentences(said, AccessibleNames::hintOf(widget())) : said;
}

QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
AccessiblePart::relations(QAccessible::Relation match) const
{
    auto found = QAccessibleWidget::relations(match);
    if (match.testFlag(QAccessible::Label) && AccessibleNames::isNamedByComponent(widget())) {
        // The label's buddy is the component, which passes its focus on.
        const QWidget* const component = AccessibleNames::componentOf(widget());
        if (QAccessibleInterface* const label = interfaceOf(AccessibleNames::labelOf(component))) {
            found.append({label, QAccessible::Label});
        }
    }
    return found;
}

int AccessiblePart::childCount() const
{
    return QAccessibleWidget::childCount() + popups().size();
}

QAccessibleInterface* AccessiblePart::child(int index) const
{
    const int beyond = index - QAccessibleWidget::childCount();
    const QVector<QWidget*> open = beyond < 0 ? QVector<QWidget*>() : popups();
    return beyond >= 0 && beyond < open.size() ? interfaceOf(open.at(beyond))
                                               : QAccessibleWidget::child(index);
}

int AccessiblePart::indexOfChild(const QAccessibleInterface* child) const
{
    const int place = child ? popups().indexOf(qobject_cast<QWidget*>(child->object())) : -1;
    return place < 0 ? QAccessibleWidget::indexOfChild(child) : QAccessibleWidget::childCount() + place;
}

QVector<QWidget*> AccessiblePart::popups() const
{
    QVector<QWidget*> open;
    const auto children = widget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    std::copy_if(children.cbegin(), children.cend(), std::back_inserter(open),
                 [](const QWidget* child) { return child->windowType() == Qt::Popup && child->isVisible(); });
    const auto* const picker = widget()->findChild<PopupColorPicker*>(QString(), Qt::FindDirectChildrenOnly);
    if (picker && picker->panel() && picker->panel()->isVisible()) {
        open.append(picker->panel()->window());
    }
    return open;
}

QString AccessibleColor::text(QAccessible::Text kind) const
{
    QString color = spokenColor();
    if (kind == QAccessible::Value) {
        return color;
    }
    const QString said = AccessiblePart::text(kind);
    return kind == QAccessible::Description ? sentences(color, said) : said;
}

QString AccessibleColor::spokenColor() const
{
    const auto* const panel = qobject_cast<ColorPickerWidget*>(AccessibleNames::componentOf(widget()));
    return panel ? ColorNames::valueText(panel->currentColor()) : QString();
}

AccessibleMessage::AccessibleMessage(QLabel* label)
    : AccessiblePart(label, QAccessible::AlertMessage)
{
}

QString AccessibleMessage::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? qobject_cast<QLabel*>(object())->text() : AccessiblePart::text(kind);
}

QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
AccessibleMessage::relations(QAccessible::Relation match) const
{
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>> found;
    const QWidget* const field = AccessibleNames::componentOf(widget());
    if (match.testFlag(QAccessible::Controller) && messageOf(field)) {
        auto* const edit = field->findChild<QLineEdit*>(QString::fromLatin1("pathLineEdit"));
        found.append({interfaceOf(edit), QAccessible::Controller});
    }
    return found;
}

AccessibleButton::AccessibleButton(QAbstractButton* button, QAccessible::Role role)
    : AccessibleColor(button, role)
{
}

QString AccessibleButton::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name) {
        const auto* const choice = dynamic_cast<const ColorPickerWidgetButton*>(widget());
        // The tool tip of a host says more than a part's general name, and less than a label.
        const QString general = AccessibleNames::nameOf(widget());
        const bool isLabelled = !spokenColor().isEmpty() || !AccessibleNames::hintOf(widget()).isEmpty();
        for (const QString& name :
             {widget()->accessibleName(), choice ? choice->spokenColor() : button()->text(),
              isLabelled ? general : widget()->toolTip(), isLabelled ? widget()->toolTip() : general}) {
            if (!name.isEmpty()) {
                return name;
            }
        }
        return {};
    }
    if (kind == QAccessible::Description && text(QAccessible::Name) == widget()->toolTip() &&
        widget()->accessibleDescription().isEmpty()) {
        // Qt takes the tool tip for it too.
        return sentences(spokenColor(), AccessibleNames::hintOf(widget()));
    }
    return AccessibleColor::text(kind);
}

QString AccessibleButton::spokenColor() const
{
    if (const auto* const field = qobject_cast<ColorPickerButton*>(widget())) {
        return ColorNames::valueText(field->color());
    }
    if (const auto* const picking = qobject_cast<WidgetColorPickerButton*>(widget())) {
        return ColorNames::valueText(picking->color());
    }
    return {};
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = AccessibleColor::state();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    return state;
}

QStringList AccessibleButton::actionNames() const
{
    QStringList names;
    if (widget()->isEnabled()) {
        names.append(button()->isCheckable() ? toggleAction() : pressAction());
    }
    return names + AccessibleColor::actionNames();
}

void AccessibleButton::doAction(const QString& actionName)
{
    if (actionName != pressAction() && actionName != toggleAction()) {
        AccessibleColor::doAction(actionName);
    } else if (button()->isCheckable()) {
        button()->click();
    } else {
        // Clicks later: a pick may run an event loop, which would block the caller.
        button()->animateClick();
    }
}

QAbstractButton* AccessibleButton::button() const
{
    return qobject_cast<QAbstractButton*>(object());
}

AccessiblePopup::AccessiblePopup(QWidget* popup)
    : AccessiblePart(popup, QAccessible::Dialog)
{
}

QAccessibleInterface* AccessiblePopup::parent() const
{
    return widget()->windowType() == Qt::Popup && widget()->parentWidget() ? interfaceOf(openerOf(widget()))
                                                                           : AccessiblePart::parent();
}

QString AccessiblePopup::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name) {
        if (!widget()->accessibleName().isEmpty()) {
            return widget()->accessibleName();
        }
        if (colorPanel()) {
            return parent()->text(kind);
        }
        const bool isSelector = widget()->findChild<ColorPlaneWidget*>() != nullptr;
        return isSelector ? QCoreApplication::translate("ColorPickerWidget", "Choose another colour")
                          : widget()->windowTitle();
    }
    if (kind != QAccessible::Description || !widget()->accessibleDescription().isEmpty()) {
        return AccessiblePart::text(kind);
    }
    QString said = colorPanel() ? ColorNames::valueText(colorPanel()->currentColor()) : QString();
    for (const char* name : {"descriptionLabel", "learnMoreLabel"}) {
        const auto* const label = widget()->findChild<QLabel*>(QLatin1String(name));
        if (label && !label->isHidden()) {
            said = sentences(said, AccessibleNames::plainText(label));
        }
    }
    return said;
}

ColorPickerWidget* AccessiblePopup::colorPanel() const
{
    return widget()->findChild<ColorPickerWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

AccessiblePicture::AccessiblePicture(GuidePicture* picture)
    : AccessiblePart(picture, QAccessible::Animation)
{
}

QString AccessiblePicture::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Description && kind != QAccessible::Value) {
        return AccessiblePart::text(kind);
    }
    return picture()->isPlaying() ? QCoreApplication::translate("GuideWidget", "Playing; Space pauses it")
                                  : QCoreApplication::translate("GuideWidget", "Paused; Space plays it");
}

QAccessible::State AccessiblePicture::state() const
{
    QAccessible::State state = AccessiblePart::state();
    state.animated = picture()->isPlaying();
    return state;
}

QStringList AccessiblePicture::actionNames() const
{
    return QStringList{pressAction()} + AccessiblePart::actionNames();
}

void AccessiblePicture::doAction(const QString& actionName)
{
    if (actionName == pressAction()) {
        picture()->toggle();
    } else {
        AccessiblePart::doAction(actionName);
    }
}

GuidePicture* AccessiblePicture::picture() const
{
    return static_cast<GuidePicture*>(object());
}

AccessibleSlider::AccessibleSlider(QAbstractSlider* slider)
    : AccessiblePart(slider, QAccessible::Slider)
{
}

void* AccessibleSlider::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                               : AccessiblePart::interface_cast(type);
}

QString AccessibleSlider::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Value) {
        return AccessiblePart::text(kind);
    }
    const double value = currentValue().toDouble();
    // Six digits, those of whole numbers all, and never an exponent.
    const double said = qAbs(value) < 1e6 ? QString::number(value).toDouble() : std::round(value);
    return QLocale().toString(said, 'f', QLocale::FloatingPointShortest);
}

QVariant AccessibleSlider::currentValue() const
{
    const auto* const fractional = qobject_cast<OvDoubleSlider*>(object());
    return fractional ? QVariant(fractional->doubleValue()) : QVariant(slider()->value());
}

void AccessibleSlider::setCurrentValue(const QVariant& value)
{
    if (!slider()->isEnabled()) {
        return;
    }
    if (auto* const fractional = qobject_cast<OvDoubleSlider*>(object())) {
        fractional->setDoubleValue(value.toDouble());
    } else {
        slider()->setValue(qRound(value.toDouble()));
    }
}

QVariant AccessibleSlider::minimumValue() const
{
    return inUnits(slider()->minimum());
}

QVariant AccessibleSlider::maximumValue() const
{
    return inUnits(slider()->maximum());
}

QVariant AccessibleSlider::minimumStepSize() const
{
    return inUnits(slider()->singleStep());
}

QAbstractSlider* AccessibleSlider::slider() const
{
    return qobject_cast<QAbstractSlider*>(object());
}

QVariant AccessibleSlider::inUnits(int step) const
{
    const auto* const fractional = qobject_cast<OvDoubleSlider*>(object());
    return fractional ? QVariant(step * fractional->multiplier()) : QVariant(step);
}

AccessibleSpinBox::AccessibleSpinBox(QAbstractSpinBox* box)
    : AccessiblePart(box, QAccessible::SpinBox)
    , m_edit(new AccessibleLineEdit(box->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly)))
{
}

AccessibleSpinBox::~AccessibleSpinBox() = default;

void* AccessibleSpinBox::interface_cast(QAccessible::InterfaceType type)
{
    switch (type) {
    case QAccessible::ValueInterface:
        return static_cast<QAccessibleValueInterface*>(this);
    case QAccessible::TextInterface:
    case QAccessible::EditableTextInterface:
        return m_edit->interface_cast(type);
    default:
        return AccessiblePart::interface_cast(type);
    }
}

QString AccessibleSpinBox::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? qobject_cast<QAbstractSpinBox*>(object())->text()
                                      : AccessiblePart::text(kind);
}

QAccessible::State AccessibleSpinBox::state() const
{
    QAccessible::State state = AccessiblePart::state();
    const auto* const box = qobject_cast<QAbstractSpinBox*>(object());
    state.readOnly = box->isReadOnly();
    state.editable = box->isEnabled() && !box->isReadOnly();
    return state;
}

QVariant AccessibleSpinBox::currentValue() const
{
    return property("value");
}

void AccessibleSpinBox::setCurrentValue(const QVariant& value)
{
    if (state().editable) {
        object()->setProperty("value", value);
    }
}

QVariant AccessibleSpinBox::minimumValue() const
{
    return property("minimum");
}

QVariant AccessibleSpinBox::maximumValue() const
{
    return property("maximum");
}

QVariant AccessibleSpinBox::minimumStepSize() const
{
    return property("singleStep");
}

QVariant AccessibleSpinBox::property(const char* name) const
{
    return object()->property(name);
}

AccessibleLineEdit::AccessibleLineEdit(QLineEdit* edit)
    : AccessiblePart(edit, QAccessible::EditableText)
{
}

void* AccessibleLineEdit::interface_cast(QAccessible::InterfaceType type)
{
    switch (type) {
    case QAccessible::TextInterface:
        return static_cast<QAccessibleTextInterface*>(this);
    case QAccessible::EditableTextInterface:
        return isEditable() ? static_cast<QAccessibleEditableTextInterface*>(this) : nullptr;
    default:
        return AccessiblePart::interface_cast(type);
    }
}

QString AccessibleLineEdit::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Value:
        return edit()->text();
    case QAccessible::Name: {
        const QString name = AccessiblePart::text(kind);
        return name.isEmpty() ? edit()->placeholderText() : name;
    }
    case QAccessible::Description: {
        const QString error = errorOf(markedField(edit()), edit());
        return error.isEmpty() ? AccessiblePart::text(kind) : error;
    }
    default:
        return AccessiblePart::text(kind);
    }
}

/// A message is what the edit controls: Qt 5 has no relation for errors.
QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
AccessibleLineEdit::relations(QAccessible::Relation match) const
{
    auto found = AccessiblePart::relations(match);
    QLabel* const message = messageOf(markedField(edit()));
    if (match.testFlag(QAccessible::Controlled) && message) {
        found.append({interfaceOf(message), QAccessible::Controlled});
    }
    return found;
}

void AccessibleLineEdit::setText(QAccessible::Text kind, const QString& text)
{
    if (kind == QAccessible::Value && isEditable()) {
        enter(text);
    }
}

QAccessible::State AccessibleLineEdit::state() const
{
    QAccessible::State state = AccessiblePart::state();
    state.readOnly = edit()->isReadOnly();
    state.editable = isEditable();
    state.selectableText = true;
    state.searchEdit = edit()->objectName() == QLatin1String("searchLineEdit");
    state.invalid = markedField(edit()) != nullptr;
    return state;
}

void AccessibleLineEdit::selection(int selectionIndex, int* startOffset, int* endOffset) const
{
    const bool isThere = selectionIndex == 0 && edit()->hasSelectedText();
    *startOffset = isThere ? edit()->selectionStart() : 0;
    *endOffset = isThere ? edit()->selectionEnd() : 0;
}

int AccessibleLineEdit::selectionCount() const
{
    return edit()->hasSelectedText() ? 1 : 0;
}

void AccessibleLineEdit::addSelection(int startOffset, int endOffset)
{
    setSelection(0, startOffset, endOffset);
}

void AccessibleLineEdit::removeSelection(int selectionIndex)
{
    if (selectionIndex == 0) {
        edit()->deselect();
    }
}

void AccessibleLineEdit::setSelection(int selectionIndex, int startOffset, int endOffset)
{
    if (selectionIndex == 0) {
        edit()->setSelection(startOffset, endOffset - startOffset);
    }
}

int AccessibleLineEdit::cursorPosition() const
{
    return edit()->cursorPosition();
}

void AccessibleLineEdit::setCursorPosition(int position)
{
    edit()->setCursorPosition(position);
}

QString AccessibleLineEdit::text(int startOffset, int endOffset) const
{
    return startOffset > endOffset ? QString() : edit()->text().mid(startOffset, endOffset - startOffset);
}

int AccessibleLineEdit::characterCount() const
{
    return edit()->text().size();
}

/// From the cursor's rectangle, the only position that QLineEdit provides.
QRect AccessibleLineEdit::characterRect(int offset) const
{
    if (offset < 0 || offset >= characterCount()) {
        return {};
    }
    const QFontMetrics metrics = edit()->fontMetrics();
    const QRect box = edit()->rect();
    const QRect caret = edit()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const int fromCaret = metrics.horizontalAdvance(edit()->text().left(offset)) -
                          metrics.horizontalAdvance(edit()->text().left(edit()->cursorPosition()));
    const QRect local(caret.x() + fromCaret, box.center().y() - metrics.height() / 2,
                      metrics.horizontalAdvance(edit()->text().at(offset)), metrics.height());
    return {edit()->mapToGlobal(local.topLeft()), local.size()};
}

int AccessibleLineEdit::offsetAtPoint(const QPoint& point) const
{
    const QPoint local = edit()->mapFromGlobal(point);
    return edit()->rect().contains(local) ? edit()->cursorPositionAt(local) : -1;
}

/// By the caret: a line edit scrolls no further than to show that.
void AccessibleLineEdit::scrollToSubstring(int startIndex, int endIndex)
{
    edit()->setCursorPosition(startIndex > cursorPosition() ? endIndex : startIndex);
}

QString AccessibleLineEdit::attributes(int offset, int* startOffset, int* endOffset) const
{
    const bool isThere = offset >= 0 && offset <= characterCount();
    *startOffset = isThere ? 0 : -1;
    *endOffset = isThere ? characterCount() : -1;
    return {};
}

void AccessibleLineEdit::deleteText(int startOffset, int endOffset)
{
    replaceText(startOffset, endOffset, QString());
}

void AccessibleLineEdit::insertText(int offset, const QString& text)
{
    replaceText(offset, offset, text);
}

void AccessibleLineEdit::replaceText(int startOffset, int endOffset, const QString& text)
{
    if (!isEditable()) {
        return;
    }
    // Without a selection, insert() goes by the caret.
    edit()->setCursorPosition(startOffset);
    edit()->setSelection(startOffset, endOffset - startOffset);
    edit()->insert(text);
}

QLineEdit* AccessibleLineEdit::edit() const
{
    return qobject_cast<QLineEdit*>(object());
}

bool AccessibleLineEdit::isEditable() const
{
    return edit()->isEnabled() && !edit()->isReadOnly();
}

/// As if it were typed: it is validated, and reported as an edit.
void AccessibleLineEdit::enter(const QString& text)
{
    edit()->selectAll();
    edit()->insert(text);
}
