#include "Util.h"

#include "InstalledLayoutController.h"

#include <QByteArray>
#include <QStyle>
#include <QVariant>
#include <QWidget>

#include <cstring>

void Util::applyStyleHint(QWidget* widget, const QString& hint)
{
    applyProperty(widget, "styleHint", hint);
}

void Util::applyProperty(QWidget* widget, const char* name, const QVariant& value)
{
    if (!widget || !name || widget->property(name) == value) {
        return;
    }
    widget->setProperty(name, value);
    repolishWidget(widget);
}

void Util::repolishWidget(QWidget* widget)
{
    if (!widget || !widget->testAttribute(Qt::WA_WState_Polished)) {
        return;
    }
    QStyle* const style = widget->style();
    style->unpolish(widget);
    style->polish(widget);
    widget->update();
}

LayoutController* Util::installLayoutController(QWidget* widget)
{
    if (!widget) {
        return nullptr;
    }
    if (auto* self = dynamic_cast<LayoutController*>(widget)) {
        return self;
    }
    auto* installed = widget->findChild<InstalledLayoutController*>(QString(), Qt::FindDirectChildrenOnly);
    return installed ? installed : new InstalledLayoutController(widget);
}

QString Util::Details::removeClassMemberPrefix(const char* memberName)
{
    static const char prefix[] = "m_";
    const bool prefixed = qstrncmp(memberName, prefix, 2) == 0 && memberName && memberName[2] != '\0';
    return QString::fromUtf8(prefixed ? memberName + 2 : memberName);
}
