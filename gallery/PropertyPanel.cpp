#include "PropertyPanel.h"

#include "DialogColorPicker.h"
#include "Labels.h"
#include "PropertyEditor.h"

#include <UiComponents/ColorInputWidget.h>
#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvSpinBox.h>

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

bool isQtClass(const QMetaObject* meta)
{
    const char* const name = meta->className();
    return name[0] == 'Q' && name[1] >= 'A' && name[1] <= 'Z';
}

} // namespace

QStringList ownPropertyNames(const QObject* object)
{
    const QMetaObject* const meta = object->metaObject();
    const QMetaObject* qtClass = meta;
    while (!isQtClass(qtClass)) {
        qtClass = qtClass->superClass();
    }
    QStringList names;
    for (int i = qtClass->propertyCount(); i < meta->propertyCount(); ++i) {
        if (meta->property(i).isWritable()) {
            names.append(QString::fromUtf8(meta->property(i).name()));
        }
    }
    return names;
}

PropertyPanel::PropertyPanel(QWidget* parent)
    : QFrame(parent)
    , m_content(new QWidget)
    , m_rows(new QFormLayout(m_content))
{
    setObjectName(QStringLiteral("propertyPanel"));

    auto* title = new QLabel(tr("Properties"), this);
    title->setObjectName(QStringLiteral("panelTitle"));
    alignToLeadingEdge(title);
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
    layout->addWidget(title);
    layout->addWidget(area, 1);
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::addHeading(const QString& text)
{
    auto* label = new QLabel(text, m_content);
    label->setObjectName(QStringLiteral("propertyHeading"));
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    label->setWordWrap(true);
    alignToLeadingEdge(label);
    m_rows->addRow(label);
}

void PropertyPanel::addProperties(const QObjectList& objects, const QStringList& names)
{
    if (objects.isEmpty()) {
        return;
    }
    const QStringList wanted = names.isEmpty() ? ownPropertyNames(objects.first()) : names;
    for (const QString& name : wanted) {
        if (PropertyEditor* const editor = PropertyEditor::create(objects, name, m_content)) {
            connect(editor, &PropertyEditor::edited, this, &PropertyPanel::refresh);
            connect(editor, &PropertyEditor::edited, this, &PropertyPanel::edited);
            m_editors.append(editor);
            addRow(name, editor);
        }
    }
}

void PropertyPanel::addSwitch(const QString& label, bool value, const std::function<void(bool)>& apply)
{
    auto* box = new QCheckBox(m_content);
    box->setChecked(value);
    connect(box, &QCheckBox::toggled, this, apply);
    addRow(label, box);
}

void PropertyPanel::addNumber(const QString& label, int minimum, int maximum, int value,
                              const std::function<void(int)>& apply)
{
    auto* box = new OvSpinBox(m_content);
    box->setRange(minimum, maximum);
    box->setValue(value);
    connect(box, QOverload<int>::of(&OvSpinBox::valueChanged), this, apply);
    addRow(label, box);
}

void PropertyPanel::addFraction(const QString& label, double minimum, double maximum, double value,
                                const std::function<void(double)>& apply)
{
    auto* box = new OvDoubleSpinBox(m_content);
    box->setRange(minimum, maximum);
    box->setValue(value);
    connect(box, QOverload<double>::of(&OvDoubleSpinBox::valueChanged), this, apply);
    addRow(label, box);
}

void PropertyPanel::addText(const QString& label, const QString& value,
                            const std::function<void(const QString&)>& apply)
{
    auto* edit = new QLineEdit(value, m_content);
    connect(edit, &QLineEdit::textChanged, this, apply);
    addRow(label, edit);
}

void PropertyPanel::addChoice(const QString& label, const QStringList& choices, int current,
                              const std::function<void(int)>& apply)
{
    auto* box = new OvComboBox(m_content);
    box->addItems(choices);
    box->setCurrentIndex(current);
    connect(box, QOverload<int>::of(&OvComboBox::currentIndexChanged), this, apply);
    addRow(label, box);
}

void PropertyPanel::addColor(const QString& label, const QColor& value,
                             const std::function<void(const QColor&)>& apply)
{
    auto* field = new ColorInputWidget(m_content, value);
    // The form would stretch it, and without a sheet the button stands in the middle of the field.
    field->setSizePolicy(QSizePolicy::Fixed, field->sizePolicy().verticalPolicy());
    field->setPicker(new DialogColorPicker(field->anchorWidget()));
    connect(field, &ColorInputWidget::colorChanged, this, apply);
    addRow(label, field);
}

void PropertyPanel::addAction(const QString& label, const std::function<void()>& run)
{
    auto* button = new QPushButton(label, m_content);
    if (QApplication::isRightToLeft() && label.endsWith(QLatin1String("()"))) {
        // Code reads from left to right: without the mark its brackets change sides.
        const QChar leftToRightMark(0x200E);
        button->setText(label + leftToRightMark);
    }
    connect(button, &QPushButton::clicked, this, run);
    m_rows->addRow(button);
}

void PropertyPanel::addRow(const QString& label, QWidget* control)
{
    if (control->accessibleName().isEmpty()) {
        control->setAccessibleName(label);
    }
    m_rows->addRow(label, control);
}

bool PropertyPanel::isEmpty() const
{
    return m_rows->rowCount() == 0;
}

void PropertyPanel::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    // When all widgets beside it have met the sheet as well.
    QMetaObject::invokeMethod(this, &PropertyPanel::refresh, Qt::QueuedConnection);
}

void PropertyPanel::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        QMetaObject::invokeMethod(this, &PropertyPanel::refresh, Qt::QueuedConnection);
    }
}

void PropertyPanel::refresh()
{
    for (PropertyEditor* editor : qAsConst(m_editors)) {
        editor->refresh();
    }
}
