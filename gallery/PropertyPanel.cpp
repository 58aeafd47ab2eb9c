#include "PropertyPanel.h"

#include "DialogColorPicker.h"
#include "Labels.h"

#include <UiComponents/ColorInputWidget.h>
#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvSpinBox.h>

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace {

// Room for usual values: a spin box asks for the room of its maximum.
constexpr int minEditorWidth = 72;
constexpr int fractionDigits = 4;
constexpr double maxFraction = 1e9;
constexpr double fractionStep = 0.1;

/// Sets the number at the leading edge. QSpinBox leaves it at the left in either direction of the layout: its
/// line edit takes AlignLeft by the direction of the text, and a number has none.
void alignNumber(QAbstractSpinBox* box)
{
    const Qt::Alignment edge = box->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    box->setAlignment(edge | Qt::AlignAbsolute);
}

bool isQtClass(const QMetaObject* meta)
{
    const char* const name = meta->className();
    return name[0] == 'Q' && name[1] >= 'A' && name[1] <= 'Z';
}

} // namespace

QVector<QMetaProperty> ownProperties(const QObject* object)
{
    const QMetaObject* const meta = object->metaObject();
    const QMetaObject* qtClass = meta;
    while (!isQtClass(qtClass)) {
        qtClass = qtClass->superClass();
    }
    QVector<QMetaProperty> properties;
    for (int i = qtClass->propertyCount(); i < meta->propertyCount(); ++i) {
        if (meta->property(i).isWritable()) {
            properties.append(meta->property(i));
        }
    }
    return properties;
}

PropertyPanel::PropertyPanel(QWidget* parent)
    : QFrame(parent)
    , m_content(new QWidget)
    , m_rows(new QFormLayout(m_content))
{
    setObjectName(QStringLiteral("propertyPanel"));

    m_content->setObjectName(QStringLiteral("propertyRows"));
    m_rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto* area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("propertyArea"));
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(m_content);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeLabel("panelTitle", tr("Properties"), this));
    layout->addWidget(area, 1);
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::addHeading(const QString& text)
{
    QLabel* const label = makeLabel("propertyHeading", text, m_content);
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    label->setWordWrap(true);
    m_rows->addRow(label);
}

void PropertyPanel::addProperties(const ObjectFinder& find, const QByteArrayList& names)
{
    const QObject* const object = find().value(0);
    if (!object) {
        return;
    }
    const QMetaObject* const meta = object->metaObject();
    QVector<QMetaProperty> properties;
    for (const QByteArray& name : names) {
        properties.append(meta->property(meta->indexOfProperty(name.constData())));
    }
    if (names.isEmpty()) {
        properties = ownProperties(object);
    }
    const QMetaMethod refreshSlot = staticMetaObject.method(staticMetaObject.indexOfSlot("refresh()"));
    for (const QMetaProperty& property : qAsConst(properties)) {
        const Editor editor = makeEditor(find, property);
        if (!editor.control) {
            continue;
        }
        editor.control->setObjectName(QLatin1String(property.name()));
        m_editors.append(editor);
        if (property.hasNotifySignal()) {
            connect(object, property.notifySignal(), this, refreshSlot);
        }
    }
    refresh();
}

QCheckBox* PropertyPanel::addSwitch(const QString& label, bool value, const std::function<void(bool)>& apply)
{
    auto* box = addRow(label, new QCheckBox(m_content));
    box->setChecked(value);
    connect(box, &QCheckBox::toggled, this, apply);
    return box;
}

OvSpinBox* PropertyPanel::addNumber(const QString& label, int minimum, int maximum, int value,
                                    const std::function<void(int)>& apply)
{
    auto* box = addRow(label, new OvSpinBox(m_content));
    alignNumber(box);
    box->setRange(minimum, maximum);
    box->setValue(value);
    connect(box, QOverload<int>::of(&OvSpinBox::valueChanged), this, apply);
    return box;
}

OvDoubleSpinBox* PropertyPanel::addFraction(const QString& label, double minimum, double maximum,
                                            double value, const std::function<void(double)>& apply)
{
    auto* box = addRow(label, new OvDoubleSpinBox(m_content));
    alignNumber(box);
    box->setRange(minimum, maximum);
    box->setValue(value);
    connect(box, QOverload<double>::of(&OvDoubleSpinBox::valueChanged), this, apply);
    return box;
}

QLineEdit* PropertyPanel::addText(const QString& label, const QString& value,
                                  const std::function<void(const QString&)>& apply)
{
    auto* edit = addRow(label, new QLineEdit(value, m_content));
    connect(edit, &QLineEdit::textChanged, this, apply);
    return edit;
}

OvComboBox* PropertyPanel::addChoice(const QString& label, const QStringList& choices, int current,
                                     const std::function<void(int)>& apply)
{
    auto* box = addRow(label, new OvComboBox(m_content));
    box->addItems(choices);
    box->setCurrentIndex(current);
    connect(box, QOverload<int>::of(&OvComboBox::currentIndexChanged), this, apply);
    return box;
}

ColorInputWidget* PropertyPanel::addColor(const QString& label, const QColor& value,
                                          const std::function<void(const QColor&)>& apply)
{
    auto* field = addRow(label, new ColorInputWidget(m_content, value));
    // The form would stretch it, and without a sheet the button stands in the middle of the field.
    field->setSizePolicy(QSizePolicy::Fixed, field->sizePolicy().verticalPolicy());
    field->setPicker(new DialogColorPicker(field->anchorWidget()));
    connect(field, &ColorInputWidget::colorChanged, this, apply);
    return field;
}

void PropertyPanel::addAction(const QString& label, const std::function<void()>& run)
{
    addAction(label, this, run);
}

void PropertyPanel::refresh()
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    for (const Editor& editor : qAsConst(m_editors)) {
        const QObject* const object = editor.find().value(0);
        editor.control->setEnabled(object);
        if (object) {
            editor.show(object->property(editor.property.constData()));
        }
    }
}

void PropertyPanel::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    // After the components beside the panel have been polished too.
    QMetaObject::invokeMethod(this, &PropertyPanel::refresh, Qt::QueuedConnection);
}

void PropertyPanel::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        QMetaObject::invokeMethod(this, &PropertyPanel::refresh, Qt::QueuedConnection);
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        // Not those of a pop-up panel below a colour field.
        const auto boxes = m_content->findChildren<QAbstractSpinBox*>(QString(), Qt::FindDirectChildrenOnly);
        std::for_each(boxes.cbegin(), boxes.cend(), &alignNumber);
    }
}

/// Adds the row for @p property. The result has no control where no control fits.
PropertyPanel::Editor PropertyPanel::makeEditor(const ObjectFinder& find, const QMetaProperty& property)
{
    const QByteArray name(property.name());
    const QString label = QString::fromUtf8(name);
    const auto apply = [this, find, name](const QVariant& value) { write(find, name, value); };
    if (!property.isWritable() || property.isFlagType()) {
        return {};
    }
    if (property.isEnumType()) {
        const QMetaEnum enumeration = property.enumerator();
        QStringList keys;
        for (int i = 0; i < enumeration.keyCount(); ++i) {
            keys.append(QString::fromUtf8(enumeration.key(i)));
        }
        auto* box =
            addChoice(label, keys, 0, [apply, enumeration](int index) { apply(enumeration.value(index)); });
        return {name, find, box, [box, enumeration](const QVariant& value) {
                    box->setCurrentText(QString::fromUtf8(enumeration.valueToKey(value.toInt())));
                }};
    }
    switch (property.userType()) {
    case QMetaType::Bool: {
        auto* box = addSwitch(label, false, apply);
        return {name, find, box, [box](const QVariant& value) { box->setChecked(value.toBool()); }};
    }
    case QMetaType::Int: {
        using Limits = std::numeric_limits<int>;
        auto* box = addNumber(label, Limits::min(), Limits::max(), 0, apply);
        box->setMinimumWidth(minEditorWidth);
        return {name, find, box, [box](const QVariant& value) { box->setValue(value.toInt()); }};
    }
    case QMetaType::Double: {
        auto* box = addFraction(label, -maxFraction, maxFraction, 0, apply);
        box->setMinimumWidth(minEditorWidth);
        box->setDecimals(fractionDigits);
        box->setSingleStep(fractionStep);
        return {name, find, box, [box](const QVariant& value) { box->setValue(value.toDouble()); }};
    }
    case QMetaType::QString: {
        auto* edit = addText(label, QString(), apply);
        return {name, find, edit, [edit](const QVariant& value) {
                    // setText() would move the user's cursor.
                    if (edit->text() != value.toString()) {
                        edit->setText(value.toString());
                    }
                }};
    }
    case QMetaType::QColor: {
        auto* field = addColor(label, QColor(), apply);
        return {name, find, field,
                [field](const QVariant& value) { field->setColor(value.value<QColor>()); }};
    }
    default:
        return {};
    }
}

void PropertyPanel::write(const ObjectFinder& find, const QByteArray& property, const QVariant& value)
{
    if (m_isShowing) {
        return;
    }
    // A slot of the first object may delete the others and the panel.
    const QPointer<PropertyPanel> self(this);
    QVector<QPointer<QObject>> objects;
    const QObjectList found = find();
    std::copy(found.cbegin(), found.cend(), std::back_inserter(objects));
    for (const QPointer<QObject>& object : qAsConst(objects)) {
        if (object) {
            object->setProperty(property.constData(), value);
        }
        if (!self) {
            return;
        }
    }
    refresh();
    Q_EMIT edited();
}

QPushButton* PropertyPanel::addButton(const QString& label)
{
    auto* button = new QPushButton(label, m_content);
    if (QApplication::isRightToLeft() && label.endsWith(QLatin1String("()"))) {
        // Code reads from left to right: without the mark its brackets change sides.
        const QChar leftToRightMark(0x200E);
        button->setText(label + leftToRightMark);
    }
    m_rows->addRow(button);
    return button;
}

template <typename Control>
Control* PropertyPanel::addRow(const QString& label, Control* control)
{
    control->setAccessibleName(label);
    m_rows->addRow(label, control);
    return control;
}
