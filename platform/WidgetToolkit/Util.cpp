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

/// Style sheets compare values as text, which differs for true and 1, though QVariant calls them equal.
bool isSame(const QVariant& one, const QVariant& other)
{
    return one.userType() == other.userType() && one == other;
}

/// The room that the sheet's padding, border and margin take around the contents of a widget.
struct Box
{
    explicit Box(const QWidget* widget)
    {
        QStyleOption option;
        option.initFrom(widget);
        option.rect = QRect(0, 0, 1000, 1000);
        const QStyle* const style = widget->style();
        // The style sheet style answers for any widget, from its rule. Without a border in the sheet only the
        // second of the two includes the padding.
        contents = style->subElementRect(QStyle::SE_FrameContents, &option, widget);
        size = style->sizeFromContents(QStyle::CT_PushButton, &option, option.rect.size(), widget);
    }

    bool operator!=(const Box& other) const { return contents != other.contents || size != other.size; }

    QRect contents;
    QSize size;
};

enum class Unpolish {
    Always,
    WithoutSheet, // the style sheet style unpolishes by itself when it polishes again
};

void repolish(QWidget* widget, Unpolish unpolish)
{
    if (!widget->testAttribute(Qt::WA_WState_Polished)) {
        return;
    }
    QStyle* const style = widget->style();
    const bool hasSheet = widget->testAttribute(Qt::WA_StyleSheet);
    const QPointer<QWidget> self(widget);
    std::optional<Box> before;
    if (hasSheet) {
        before.emplace(widget);
    }
    if (!hasSheet || unpolish == Unpolish::Always) {
        style->unpolish(widget);
    }
    style->polish(widget);
    if (before && *before != Box(widget)) {
        // Widgets cache frame width and size hint until a StyleChange. It is sent only where the box differs,
        // because it lays out the whole window.
        QEvent changed(QEvent::StyleChange);
        QCoreApplication::sendEvent(widget, &changed);
    }
    if (self) {
        widget->update();
    }
}

} // namespace

void Util::applyStyleHint(QWidget* widget, const QString& hint)
{
    if (!hint.isEmpty()) {
        applyProperty(widget, "styleHint", hint);
    } else if (widget && widget->property("styleHint").isValid()) {
        // A null string, which the selector [styleHint] without a value does not match.
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
    const QPointer<QWidget> self(widget);
    widget->setProperty(name, value);
    // A declared property may refuse the value or convert it.
    if (self && !isSame(before, widget->property(name))) {
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
        // The widget's Polish event, with which it would be polished, is over.
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
