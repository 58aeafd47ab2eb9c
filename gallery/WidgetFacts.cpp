#include "WidgetFacts.h"

#include "AppliedRules.h"
#include "ValueText.h"

#include <GuiHelper/HighlightFrame.h>

#include <QHeaderView>
#include <QMetaProperty>
#include <QScrollBar>

namespace {

/// The line of a rule in the open sheet.
constexpr int lineRole = Qt::UserRole;
/// The widget of a row, as a QPointer<QObject>.
constexpr int widgetRole = Qt::UserRole + 1;
constexpr int nameWidth = 250;

QTreeWidgetItem* addRow(QTreeWidgetItem* group, const QString& name, const QString& value)
{
    auto* row = new QTreeWidgetItem(group, {name, value});
    row->setToolTip(0, name);
    row->setToolTip(1, value);
    return row;
}

void setFont(QTreeWidgetItem* row, const QFont& font)
{
    for (int column = 0; column < row->columnCount(); ++column) {
        row->setFont(column, font);
    }
}

QString className(const QObject* object)
{
    return selectorName(object->metaObject());
}

/// As a selector has it.
QString selectorOf(const QWidget* widget)
{
    return widget->objectName().isEmpty() ? className(widget)
                                          : className(widget) + QLatin1Char('#') + widget->objectName();
}

QStringList baseClasses(const QObject* object)
{
    QStringList names;
    for (const QMetaObject* meta = object->metaObject()->superClass(); meta; meta = meta->superClass()) {
        names.append(selectorName(meta));
    }
    return names;
}

QWidget* widgetOf(const QTreeWidgetItem* item)
{
    const auto pointer = item ? item->data(0, widgetRole).value<QPointer<QObject>>() : nullptr;
    return qobject_cast<QWidget*>(pointer);
}

/// "1, 0, 2": names of objects, states and attributes, types.
QString weightText(int specificity)
{
    return QStringLiteral("%1, %2, %3")
        .arg(specificity / 256)
        .arg(specificity / 16 % 16)
        .arg(specificity % 16);
}

} // namespace

WidgetFacts::WidgetFacts(QWidget* parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("widgetFacts"));
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    header()->resizeSection(0, nameWidth);
    connect(this, &QTreeWidget::itemActivated, this, &WidgetFacts::choose);
    connect(this, &QTreeWidget::currentItemChanged, this, &WidgetFacts::follow);
}

WidgetFacts::~WidgetFacts() = default;

void WidgetFacts::show(QWidget* widget, const SheetText& sheet, int lines)
{
    // It stays where it was scrolled to when the same widget is shown again.
    const int scrolled = widget == m_shown ? verticalScrollBar()->value() : 0;
    m_shown = widget;
    // Its outline is a child of the widget that it is around.
    m_frame.reset();
    clear();
    if (widget) {
        addNames(widget);
        addRules(widget, sheet, lines);
        addProperties(widget);
        addWidgets(widget);
    }
    for (int i = topLevelItemCount() - 1; i >= 0; --i) {
        if (topLevelItem(i)->childCount() == 0) {
            delete topLevelItem(i);
        }
    }
    verticalScrollBar()->setValue(scrolled);
}

QTreeWidgetItem* WidgetFacts::addGroup(const QString& title)
{
    auto* group = new QTreeWidgetItem(this, {title});
    QFont bold = font();
    bold.setBold(true);
    group->setFont(0, bold);
    group->setFirstColumnSpanned(true);
    group->setExpanded(true);
    return group;
}

void WidgetFacts::addNames(const QWidget* widget)
{
    QTreeWidgetItem* const group = addGroup(selectorOf(widget));
    addRow(group, tr("Class"), className(widget));
    addRow(group, tr("Base classes"), baseClasses(widget).join(QStringLiteral(", ")));
    addRow(group, tr("Object name"), widget->objectName());
    const QList<QByteArray> names = widget->dynamicPropertyNames();
    QTreeWidgetItem* const properties = addGroup(tr("Dynamic properties"));
    for (const QByteArray& name : names) {
        // Qt's own begin so.
        if (!name.startsWith("_q_")) {
            addRow(properties, QString::fromUtf8(name), valueText(widget->property(name.constData())));
        }
    }
}

void WidgetFacts::addRules(const QWidget* widget, const SheetText& sheet, int lines)
{
    const QVector<AppliedRule> rules = appliedRules(widget, sheet);
    QTreeWidgetItem* const group = addGroup(tr("Rules, the strongest first"));
    for (const AppliedRule& rule : rules) {
        const bool isOpen = !rule.owner && rule.line <= lines;
        const QString place = isOpen       ? tr("line %1").arg(rule.line)
                              : rule.owner ? tr("sheet of %1").arg(selectorOf(rule.owner))
                                           : tr("the gallery's own");
        QTreeWidgetItem* const row =
            addRow(group, rule.selector, QStringLiteral("%1  (%2)").arg(place, weightText(rule.specificity)));
        row->setData(0, lineRole, isOpen ? rule.line : 0);
        QFont usual = font();
        usual.setItalic(!rule.holdsNow);
        ::setFont(row, usual);
        for (const AppliedRule::Declaration& declaration : rule.declarations) {
            QTreeWidgetItem* const line = addRow(row, declaration.property, declaration.value);
            line->setData(0, lineRole, isOpen ? declaration.line : 0);
            QFont own = usual;
            own.setStrikeOut(declaration.isOverridden);
            ::setFont(line, own);
        }
        row->setExpanded(true);
    }
}

void WidgetFacts::addProperties(const QWidget* widget)
{
    QTreeWidgetItem* const group = addGroup(tr("Properties that a rule can set"));
    const QMetaObject* const meta = widget->metaObject();
    // The nearest class first, without what each widget has.
    for (int i = meta->propertyCount() - 1; i >= QWidget::staticMetaObject.propertyCount(); --i) {
        const QMetaProperty property = meta->property(i);
        if (property.isWritable() && property.isDesignable(widget)) {
            addRow(group, QStringLiteral("qproperty-") + QString::fromUtf8(property.name()),
                   valueText(property.read(widget)));
        }
    }
}

void WidgetFacts::addWidgets(QWidget* widget)
{
    const auto add = [](QTreeWidgetItem* group, QWidget* other) {
        QTreeWidgetItem* const row = addRow(group, selectorOf(other), QString());
        row->setFirstColumnSpanned(true);
        row->setData(0, widgetRole, QVariant::fromValue(QPointer<QObject>(other)));
    };
    QTreeWidgetItem* const parents = addGroup(tr("Parents"));
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        add(parents, parent);
    }
    QTreeWidgetItem* const children = addGroup(tr("Children"));
    const auto all = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : all) {
        add(children, child);
    }
}

void WidgetFacts::choose(const QTreeWidgetItem* item)
{
    if (item->data(0, lineRole).toInt() > 0) {
        Q_EMIT editRequested();
    } else if (QWidget* const widget = widgetOf(item)) {
        // It is filled anew: there must be no more use of the item.
        Q_EMIT widgetChosen(widget);
    }
}

void WidgetFacts::follow(const QTreeWidgetItem* item)
{
    QWidget* const widget = widgetOf(item);
    m_frame = widget ? std::make_unique<Orvane::Gui::HighlightFrame>(widget) : nullptr;
    const int line = item ? item->data(0, lineRole).toInt() : 0;
    if (line > 0) {
        Q_EMIT lineShown(line);
    }
}
