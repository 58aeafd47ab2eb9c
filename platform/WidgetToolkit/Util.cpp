#include "Util.h"

#include "InstalledLayoutController.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QStyle>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>

#include <optional>

namespace {

// A sheet compares the text of a value, and true and 1 read differently though QVariant calls them equal.
bool isSame(const QVariant& one, const QVariant& other)
{
    return one.userType() == other.userType() && one == other;
}

/// How much room the sheet's padding, border and margin take around the contents of a widget.
struct Box
{
    explicit Box(const QWidget* widget)
    {
        QStyleOption option;
        option.initFrom(widget);
        option.rect = QRect(0, 0, 1000, 1000);
        const QStyle* const style = widget->style();
        // Any widget is answered: the sheet takes its box from the widget's rule. Without a border of the
        // sheet only the second of the two speaks of the padding.
        contents = style->subElementRect(QStyle::SE_FrameContents, &option, widget);
        size = style->sizeFromContents(QStyle::CT_PushButton, &option, option.rect.size(), widget);
    }

    bool operator!=(const Box& other) const { return contents != other.contents || size != other.size; }

    QRect contents;
    QSize size;
};

enum class Unpolish {
    Always,
    WithoutSheet, // the style of a sheet drops what it knows of a widget whenever it polishes it
};

void repolish(QWidget* widget, Unpolish unpolish)
{
    if (!widget->testAttribute(Qt::WA_WState_Polished)) {
        return;
    }
    QStyle* const style = widget->style();
    const bool hasSheet = widget->testAttribute(Qt::WA_StyleSheet);
    const QPointer<QWidget> alive(widget);
    std::optional<Box> before;
    if (hasSheet) {
        before.emplace(widget);
    }
    if (!hasSheet || unpolish == Unpolish::Always) {
        style->unpolish(widget);
    }
    style->polish(widget);
    if (!alive) {
        return;
    }
    if (before && *before != Box(widget)) {
        // Widgets keep their frame's width and their size hint until they hear of the change. All others
        // are spared it, because it lays out the whole window anew.
        QEvent changed(QEvent::StyleChange);
        QCoreApplication::sendEvent(widget, &changed);
    }
    if (alive) {
        widget->update();
    }
}

} // namespace

void Util::applyStyleHint(QWidget* widget, const QString& hint)
{
    if (!hint.isEmpty()) {
        applyProperty(widget, "styleHint", hint);
    } else if (widget && widget->property("styleHint").isValid()) {
        // A null string, which not even [styleHint] without a value selects.
        applyProperty(widget, "styleHint", QString());
    }
}

void Util::applyProperty(QWidget* widget, const char* name, const QVariant& value)
{
    if (!widget || !name) {
        return;
    }
    const QVariant before = widget->property(name);
    if (isSame(before, value)) {
        return;
    }
    const QPointer<QWidget> alive(widget);
    widget->setProperty(name, value);
    // A declared property may have refused the value, or have held it in another type.
    if (alive && !isSame(before, widget->property(name))) {
        repolish(widget, Unpolish::WithoutSheet);
    }
}

void Util::repolishWidget(QWidget* widget)
{
    if (widget) {
        repolish(widget, Unpolish::Always);
    }
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
    if (!installed) {
        installed = new InstalledLayoutController(widget);
        // Too late for the event that would have had it polished before the widget is laid out.
        if (widget->testAttribute(Qt::WA_WState_Polished)) {
            installed->ensurePolished();
        }
    }
    return installed;
}

QString Util::Details::removeClassMemberPrefix(const char* memberName)
{
    static const char prefix[] = "m_";
    const bool prefixed = qstrncmp(memberName, prefix, 2) == 0 && memberName && memberName[2] != '\0';
    return QString::fromUtf8(prefixed ? memberName + 2 : memberName);
}
