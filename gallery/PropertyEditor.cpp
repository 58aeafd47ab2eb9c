#include "PropertyEditor.h"

#include "DialogColorPicker.h"

#include <UiComponents/ColorInputWidget.h>
#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvSpinBox.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMetaProperty>

#include <limits>

namespace {

// Room for what is usual, not for the longest number there is.
constexpr int NarrowestControl = 72;
constexpr int FractionDigits = 4;
constexpr double LargestFraction = 1e9;
constexpr double FractionStep = 0.1;

} // namespace

PropertyEditor* PropertyEditor::create(const QObjectList& objects, const QString& name, QWidget* parent)
{
    if (objects.isEmpty() || !objects.first()) {
        return nullptr;
    }
    const QMetaObject* const meta = objects.first()->metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(name.toUtf8().constData()));
    if (!property.isValid() || !property.isWritable()) {
        return nullptr;
    }
    auto* editor = new PropertyEditor(objects, property, parent);
    if (!editor->build(property)) {
        delete editor;
        return nullptr;
    }
    editor->refresh();
    return editor;
}

PropertyEditor::PropertyEditor(const QObjectList& objects, const QMetaProperty& property, QWidget* parent)
    : QWidget(parent)
    , m_name(property.name())
{
    setObjectName(QString::fromUtf8(m_name) + QStringLiteral("Editor"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QObject* object : objects) {
        m_objects.append(object);
    }
    if (property.hasNotifySignal()) {
        const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("refresh()"));
        connect(objects.first(), property.notifySignal(), this, slot);
    }
}

PropertyEditor::~PropertyEditor() = default;

bool PropertyEditor::build(const QMetaProperty& property)
{
    if (property.isEnumType()) {
        if (property.isFlagType()) {
            return false;
        }
        auto* box = new OvComboBox(this);
        const QMetaEnum enumeration = property.enumerator();
        for (int i = 0; i < enumeration.keyCount(); ++i) {
            box->addItem(QString::fromUtf8(enumeration.key(i)), enumeration.value(i));
        }
        m_show = [box](const QVariant& value) { box->setCurrentIndex(box->findData(value.toInt())); };
        connect(box, QOverload<int>::of(&OvComboBox::activated), this,
                [this, box](int index) { write(box->itemData(index)); });
        place(box);
        return true;
    }
    switch (property.userType()) {
    case QMetaType::Bool: {
        auto* box = new QCheckBox(this);
        m_show = [box](const QVariant& value) { box->setChecked(value.toBool()); };
        connect(box, &QCheckBox::toggled, this, &PropertyEditor::write);
        place(box);
        return true;
    }
    case QMetaType::Int: {
        auto* box = new OvSpinBox(this);
        box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        m_show = [box](const QVariant& value) { box->setValue(value.toInt()); };
        connect(box, QOverload<int>::of(&OvSpinBox::valueChanged), this, &PropertyEditor::write);
        place(box);
        return true;
    }
    case QMetaType::Double: {
        auto* box = new OvDoubleSpinBox(this);
        box->setDecimals(FractionDigits);
        box->setRange(-LargestFraction, LargestFraction);
        box->setSingleStep(FractionStep);
        m_show = [box](const QVariant& value) { box->setValue(value.toDouble()); };
        connect(box, QOverload<double>::of(&OvDoubleSpinBox::valueChanged), this, &PropertyEditor::write);
        place(box);
        return true;
    }
    case QMetaType::QString: {
        auto* edit = new QLineEdit(this);
        m_show = [edit](const QVariant& value) {
            // The text under the user's cursor is theirs.
            if (edit->text() != value.toString()) {
                edit->setText(value.toString());
            }
        };
        connect(edit, &QLineEdit::textEdited, this, &PropertyEditor::write);
        place(edit);
        return true;
    }
    case QMetaType::QColor: {
        auto* field = new ColorInputWidget(this, QColor());
        field->setPicker(new DialogColorPicker(field->anchorWidget()));
        m_show = [field](const QVariant& value) { field->setColor(value.value<QColor>()); };
        connect(field, &ColorInputWidget::colorChanged, this, &PropertyEditor::write);
        place(field);
        field->setMinimumWidth(0);
        static_cast<QHBoxLayout*>(layout())->addStretch();
        return true;
    }
    default:
        return false;
    }
}

void PropertyEditor::place(QWidget* control)
{
    control->setObjectName(QString::fromUtf8(m_name));
    control->setAccessibleName(QString::fromUtf8(m_name));
    control->setMinimumWidth(NarrowestControl);
    layout()->addWidget(control);
    setFocusProxy(control);
}

QVariant PropertyEditor::value() const
{
    for (const QPointer<QObject>& object : m_objects) {
        if (object) {
            return object->property(m_name.constData());
        }
    }
    return {};
}

void PropertyEditor::write(const QVariant& value)
{
    if (m_isShowing) {
        return;
    }
    const QPointer<PropertyEditor> self(this);
    const QList<QPointer<QObject>> objects = m_objects;
    for (const QPointer<QObject>& object : objects) {
        if (object) {
            object->setProperty(m_name.constData(), value);
        }
        if (!self) {
            return;
        }
    }
    refresh();
    Q_EMIT edited();
}

void PropertyEditor::refresh()
{
    const QVariant now = value();
    setEnabled(now.isValid());
    if (now.isValid()) {
        const bool wasShowing = m_isShowing;
        m_isShowing = true;
        m_show(now);
        m_isShowing = wasShowing;
    }
}
