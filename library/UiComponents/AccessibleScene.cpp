#include "AccessibleScene.h"

#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>

AccessibleScene::AccessibleScene(QQuickWidget* view)
    : AccessiblePart(view, QAccessible::Client)
{
}

int AccessibleScene::childCount() const
{
    return scene() ? scene()->childCount() : 0;
}

QAccessibleInterface* AccessibleScene::child(int index) const
{
    return scene() ? scene()->child(index) : nullptr;
}

int AccessibleScene::indexOfChild(const QAccessibleInterface* child) const
{
    return scene() ? scene()->indexOfChild(child) : -1;
}

QAccessibleInterface* AccessibleScene::scene() const
{
    return QAccessible::queryAccessibleInterface(qobject_cast<QQuickWidget*>(object())->quickWindow());
}

AccessibleQuickDialog::AccessibleQuickDialog(QWidget* dialog)
    : AccessiblePart(dialog, QAccessible::Dialog)
{
}

QString AccessibleQuickDialog::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name) {
        return AccessiblePart::text(kind);
    }
    const auto* const view = widget()->findChild<QQuickWidget*>();
    QAccessibleInterface* const scene =
        view && view->rootObject() ? QAccessible::queryAccessibleInterface(view->rootObject()) : nullptr;
    for (const QString& name : {widget()->accessibleName(), widget()->windowTitle()}) {
        if (!name.isEmpty()) {
            return name;
        }
    }
    return scene ? scene->text(QAccessible::Name) : QString();
}
