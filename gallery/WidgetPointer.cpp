#include "WidgetPointer.h"

#include <GuiHelper/HighlightFrame.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>

namespace {

/// The window of widgets that @p object is the native side of; null for any other object.
QWidget* windowOf(const QObject* object)
{
    if (object->isWindowType()) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (window->windowHandle() == object) {
                return window;
            }
        }
    }
    return nullptr;
}

/// The innermost visible widget at @p position in @p widget, but no outline. QWidget::childAt() passes over
/// all that are transparent for the mouse.
QWidget* innermostAt(QWidget* widget, const QPoint& position)
{
    const QObjectList& children = widget->children();
    for (auto it = children.crbegin(); it != children.crend(); ++it) {
        auto* const child = qobject_cast<QWidget*>(*it);
        if (child && child->isVisible() && !child->isWindow() && child->geometry().contains(position) &&
            child->objectName() != QLatin1String("highlightFrame")) {
            return innermostAt(child, position - child->pos());
        }
    }
    return widget;
}

} // namespace

WidgetPointer::WidgetPointer(QAbstractButton* button, QObject* parent)
    : QObject(parent)
    , m_button(button)
{
    connect(button, &QAbstractButton::toggled, this, &WidgetPointer::setPointing);
}

WidgetPointer::~WidgetPointer()
{
    if (m_button->isChecked()) {
        setPointing(false);
    }
}

bool WidgetPointer::eventFilter(QObject* watched, QEvent* event)
{
    // Before a window hands an event to its widgets.
    switch (event->type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (QWidget* const window = windowOf(watched)) {
            return mouseEvent(window, event);
        }
        break;
    case QEvent::Wheel:
        return watched->isWindowType();
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (watched->isWindowType()) {
            return keyEvent(event);
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void WidgetPointer::setPointing(bool on)
{
    if (on) {
        QApplication::setOverrideCursor(Qt::CrossCursor);
        qApp->installEventFilter(this);
    } else {
        qApp->removeEventFilter(this);
        QApplication::restoreOverrideCursor();
        m_frame.reset();
        m_widget.clear();
    }
}

void WidgetPointer::pointAt(QWidget* widget)
{
    if (widget != m_widget) {
        // Removed before the signal: the outline is a child of the widget.
        m_frame.reset();
        m_widget = widget;
        Q_EMIT pointedAt(widget);
        m_frame = std::make_unique<Orvane::Gui::HighlightFrame>(m_widget);
    }
}

/// Returns whether the event is kept from the window.
bool WidgetPointer::mouseEvent(QWidget* window, QEvent* event)
{
    const QPoint position = static_cast<QMouseEvent*>(event)->pos();
    if (!window->rect().contains(position)) {
        return true;
    }
    QWidget* const widget = innermostAt(window, position);
    if (widget == m_button) {
        return false;
    }
    pointAt(widget);
    if (event->type() == QEvent::MouseButtonRelease) {
        take();
    }
    return true;
}

/// Returns whether the event is kept from the window.
bool WidgetPointer::keyEvent(QEvent* event)
{
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (event->type() == QEvent::KeyPress) {
        if (key == Qt::Key_Escape) {
            m_button->setChecked(false);
        } else if (m_widget && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            take();
        }
    }
    return true;
}

void WidgetPointer::take()
{
    m_button->setChecked(false);
    Q_EMIT taken();
}
