#include "AccessibleEars.h"

#include <QMetaEnum>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <private/qguiapplication_p.h>
#include <utility>

namespace {

QStringList heard;

void hear(QAccessibleEvent* event)
{
    QAccessibleInterface* const source = event->accessibleInterface();
    if (!source) {
        return;
    }
    const QString name = source->text(QAccessible::Name);
    if (event->type() == QAccessible::ValueChanged) {
        // As the bridges to all desktops do, which ask when they are told.
        const QAccessibleValueInterface* const number = source->valueInterface();
        heard += name + QStringLiteral(": ") +
                 (number ? number->currentValue().toString() : source->text(QAccessible::Value));
    } else if (event->type() == QAccessible::DescriptionChanged) {
        heard += name + QStringLiteral(": ") + source->text(QAccessible::Description);
    } else if (event->type() == QAccessible::Alert) {
        heard += name + QStringLiteral("!");
    }
}

void setActive(bool active)
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
}

void addTree(QAccessibleInterface& root, int depth, QStringList* lines)
{
    QString line = QString(2 * depth, QLatin1Char(' ')) +
                   QLatin1String(QMetaEnum::fromType<QAccessible::Role>().valueToKey(root.role())) +
                   QLatin1Char(' ') + root.text(QAccessible::Name);
    const QString value = root.text(QAccessible::Value);
    lines->append(value.isEmpty() ? line.trimmed().prepend(QString(2 * depth, QLatin1Char(' ')))
                                  : line + QStringLiteral(" = ") + value);
    for (int i = 0; i < root.childCount(); ++i) {
        if (QAccessibleInterface* const child = root.child(i)) {
            addTree(*child, depth + 1, lines);
        }
    }
}

} // namespace

AccessibleEars::AccessibleEars()
{
    heard.clear();
    QAccessible::installUpdateHandler(hear);
    setActive(true);
}

AccessibleEars::~AccessibleEars()
{
    setActive(false);
    QAccessible::installUpdateHandler(nullptr);
}

QStringList AccessibleEars::take()
{
    return std::exchange(heard, {});
}

QAccessibleInterface& reader(QObject* widget)
{
    QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(widget);
    Q_ASSERT(found);
    return *found;
}

QString spokenName(QObject* widget)
{
    return reader(widget).text(QAccessible::Name);
}

QStringList accessibleTree(QAccessibleInterface& root)
{
    QStringList lines;
    addTree(root, 0, &lines);
    return lines;
}
