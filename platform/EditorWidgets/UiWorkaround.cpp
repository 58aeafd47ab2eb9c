#include "UiWorkaround.h"

#include <WidgetToolkit/Util.h>

#include <QDialog>
#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>
#include <QWindow>

UiWorkaround::UiWorkaround(QWidget* widget)
    : QObject(widget)
    , m_widget(widget)
{
    widget->installEventFilter(this);
    applyRoundedEdges();
}

UiWorkaround::~UiWorkaround() = default;

bool UiWorkaround::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_widget) {
        if (event->type() == QEvent::DynamicPropertyChange) {
            applyRoundedEdges();
        } else if (event->type() == QEvent::Paint && m_rounded) {
            paintBackground();
        }
    }
    return QObject::eventFilter(watched, event);
}

void UiWorkaround::applyRoundedEdges()
{
    const bool rounded = m_widget->property("roundedEdges").toBool();
    if (rounded == m_rounded) {
        return;
    }
    m_rounded = rounded;
    if (rounded) {
        m_translucencySet = !m_widget->testAttribute(Qt::WA_TranslucentBackground);
        m_systemBackgroundTaken = !m_widget->testAttribute(Qt::WA_NoSystemBackground);
        m_widget->setAttribute(Qt::WA_TranslucentBackground);
        m_widget->setAttribute(Qt::WA_NoSystemBackground);
    } else {
        if (m_translucencySet) {
            m_widget->setAttribute(Qt::WA_TranslucentBackground, false);
        }
        if (m_systemBackgroundTaken) {
            m_widget->setAttribute(Qt::WA_NoSystemBackground, false);
        }
    }
    setShadowless(rounded);
    // A sheet may select by the property.
    Util::repolishWidget(m_widget);
    m_widget->update();
}

void UiWorkaround::setShadowless(bool shadowless)
{
    const bool has = m_widget->windowFlags().testFlag(Qt::NoDropShadowWindowHint);
    if (shadowless ? (!m_widget->isWindow() || has) : !m_shadowTaken) {
        return;
    }
    m_shadowTaken = shadowless;
    // setWindowFlag() would hide the widget and create a new native window.
    m_widget->overrideWindowFlags(m_widget->windowFlags().setFlag(Qt::NoDropShadowWindowHint, shadowless));
    if (QWindow* const window = m_widget->windowHandle()) {
        window->setFlag(Qt::NoDropShadowWindowHint, shadowless);
    }
}

/// Qt paints neither the sheet's nor the palette's background of a translucent window.
void UiWorkaround::paintBackground()
{
    if (m_widget->testAttribute(Qt::WA_StyledBackground)) {
        QStyleOption option;
        option.initFrom(m_widget);
        QPainter painter(m_widget);
        m_widget->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, m_widget);
        return;
    }
    // A subclass of the host without a background in the sheet paints itself, or is meant to be transparent.
    const bool blank =
        m_widget->metaObject() == &QWidget::staticMetaObject || qobject_cast<QDialog*>(m_widget);
    if (blank) {
        const qreal radius = 6;
        QPainter painter(m_widget);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_widget->palette().brush(m_widget->backgroundRole()));
        painter.drawRoundedRect(m_widget->rect(), radius, radius);
    }
}
