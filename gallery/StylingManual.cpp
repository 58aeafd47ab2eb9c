#include "StylingManual.h"

#include "Page.h"
#include "PageRegistry.h"
#include "PropertyPanel.h"

#include <QFile>
#include <QMetaProperty>

#include <algorithm>

namespace {

QString code(const QString& text)
{
    return QStringLiteral("`%1`").arg(text);
}

QString className(const QObject* object)
{
    return QString::fromUtf8(object->metaObject()->className());
}

QString list(QStringList items)
{
    items.removeDuplicates();
    std::transform(items.cbegin(), items.cend(), items.begin(), code);
    return items.join(QStringLiteral(", "));
}

/// "`a`, `b` (int); `c` (QColor)", of the properties that a sheet may set.
QString properties(const QWidget* widget)
{
    QString text;
    QString lastType;
    const QVector<QMetaProperty> own = ownProperties(widget);
    for (const QMetaProperty& property : own) {
        if (!property.isDesignable(widget)) {
            continue;
        }
        const QString type = QString::fromUtf8(property.typeName());
        if (!lastType.isEmpty()) {
            text += type == lastType ? QStringLiteral(", ") : QStringLiteral(" (%1); ").arg(lastType);
        }
        text += code(QString::fromUtf8(property.name()));
        lastType = type;
    }
    return text.isEmpty() ? text : text + QStringLiteral(" (%1)").arg(lastType);
}

/// The class names that a sheet selects @p widget by, the nearest first, down to Qt's own.
QStringList selectors(const QWidget* widget)
{
    QStringList names;
    for (const QMetaObject* meta = widget->metaObject(); meta; meta = meta->superClass()) {
        const QString name = QString::fromUtf8(meta->className());
        names.append(QString(name).replace(QStringLiteral("::"), QStringLiteral("--")));
        if (name.startsWith(QLatin1Char('Q'))) {
            break;
        }
    }
    return names;
}

QStringList dynamicProperties(const QWidget* widget)
{
    QStringList names;
    const QList<QByteArray> all = widget->dynamicPropertyNames();
    for (const QByteArray& name : all) {
        // Qt's own begin with _q_, and the hint has a line to itself.
        if (!name.startsWith("_q_") && name != "styleHint") {
            names.append(QString::fromUtf8(name));
        }
    }
    names.sort();
    return names;
}

QStringList hints(const StyleSubject& subject)
{
    QStringList all = subject.hints;
    const QString hint = subject.widget->property("styleHint").toString();
    if (!hint.isEmpty()) {
        all.append(hint);
    }
    return all;
}

/// The children that a sheet can select: those that the component names, and those of the library's
/// classes.
QList<const QWidget*> reachableChildren(const QWidget* widget)
{
    QList<const QWidget*> found;
    const auto children = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* child : children) {
        // Content of a page.
        if (child->objectName() == QLatin1String("sampleTile")) {
            continue;
        }
        const bool isNamed =
            !child->objectName().isEmpty() && !child->objectName().startsWith(QLatin1String("qt_"));
        if (isNamed || !className(child).startsWith(QLatin1Char('Q'))) {
            found.append(child);
        }
        found.append(reachableChildren(child));
    }
    return found;
}

void appendLine(QString& text, const QString& label, const QString& value)
{
    if (!value.isEmpty()) {
        text += QStringLiteral("- %1: %2\n").arg(label, value);
    }
}

QString section(const StyleSubject& subject)
{
    const QWidget* const widget = subject.widget;
    const QString title = subject.title.isEmpty() ? className(widget) : subject.title;
    QString text = QStringLiteral("### %1\n\n%2\n\n").arg(title, subject.sentence);
    appendLine(text, QStringLiteral("Selectors"), list(selectors(widget)));
    appendLine(text, QStringLiteral("Properties"), properties(widget));
    appendLine(text, QStringLiteral("Dynamic properties"), list(dynamicProperties(widget)));
    appendLine(text, QStringLiteral("Style hints"), list(hints(subject)));
    const QList<const QWidget*> children = reachableChildren(widget);
    for (const QWidget* child : children) {
        QStringList facts;
        if (!properties(child).isEmpty()) {
            facts.append(QStringLiteral("properties %1").arg(properties(child)));
        }
        if (!dynamicProperties(child).isEmpty()) {
            facts.append(QStringLiteral("dynamic properties %1").arg(list(dynamicProperties(child))));
        }
        const QString hint = child->property("styleHint").toString();
        if (!hint.isEmpty()) {
            facts.append(QStringLiteral("style hint %1").arg(code(hint)));
        }
        const QString name =
            child->objectName().isEmpty() ? QString() : QStringLiteral("#") + child->objectName();
        appendLine(text, QStringLiteral("Child %1").arg(code(className(child) + name)),
                   facts.isEmpty() ? QStringLiteral("no properties of its own")
                                   : facts.join(QStringLiteral("; ")));
    }
    return text + QLatin1Char('\n');
}

} // namespace

QString stylingManual()
{
    QFile introduction(QStringLiteral(":/gallery/styling-introduction.md"));
    QString text =
        introduction.open(QIODevice::ReadOnly) ? QString::fromUtf8(introduction.readAll()) : QString();
    const QVector<PageInfo> pages = PageRegistry::pages();
    std::optional<PageGroup> group;
    for (const PageInfo& info : pages) {
        const Page page(info);
        const QVector<StyleSubject> subjects = page.styleSubjects();
        for (const StyleSubject& subject : subjects) {
            if (group != info.group) {
                group = info.group;
                text += QStringLiteral("## %1\n\n").arg(PageRegistry::groupTitle(info.group));
            }
            text += section(subject);
        }
    }
    return text.trimmed() + QLatin1Char('\n');
}
