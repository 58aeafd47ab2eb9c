#include "PanelColorPicker.h"

#include "PopupPosition.h"

#include <EditorWidgets/Workaround.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>

#include <QApplication>
#include <QFrame>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QVariant>

#include <utility>

namespace {

// Around the panel, which has no margins of its own.
constexpr int Margin = 12;

bool isChildOf(const QWidget* window, const QWidget* ancestor)
{
    const QWidget* widget = window;
    while (widget && widget != ancestor) {
        widget = widget->parentWidget();
    }
    return widget;
}

} // namespace

PanelColorPicker::PanelColorPicker(QWidget* field)
    : m_field(field)
{
}

PanelColorPicker::~PanelColorPicker()
{
    discardPopup();
}

void PanelColorPicker::setNullColorAllowed(bool allowed)
{
    m_isNullColorAllowed = allowed;
}

void PanelColorPicker::setOpacityAvailable(bool available)
{
    m_isOpacityAvailable = available;
    if (m_panel) {
        m_panel->setOpacityAdjustmentAvailable(available);
    }
}

ColorPickerWidget* PanelColorPicker::panel() const
{
    return m_panel;
}

void PanelColorPicker::pick()
{
    if (isInProgress() || !m_field) {
        return;
    }
    // The field tells its picker of definite colours only: a mixed one has to be asked for.
    if (const auto* button = qobject_cast<ColorPickerButton*>(m_field.data())) {
        m_color = button->color();
    }
    const bool fits = m_popup && m_panel && m_popup->parentWidget() == m_field->window() &&
                      m_doesPanelAllowNull == m_isNullColorAllowed;
    if (!fits) {
        discardPopup();
        makePopup();
    }
    m_state = State::Picking;
    showColor();
    m_popup->setLayoutDirection(m_field->layoutDirection());
    m_popup->ensurePolished();
    m_popup->adjustSize();
    m_popup->move(popupPosition(m_field, m_popup->size()));
    m_popup->show();
}

void PanelColorPicker::stop()
{
    finish();
}

void PanelColorPicker::setColor(const std::optional<QColor>& color)
{
    if (m_color == color) {
        return;
    }
    m_color = color;
    if (isInProgress()) {
        showColor();
    }
}

bool PanelColorPicker::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_popup && event->type() == QEvent::Hide && !event->spontaneous()) {
        finishSoon();
    } else if (watched == m_popup && event->type() == QEvent::MouseButtonPress && m_field) {
        // A press outside closes the pop-up and then reaches what lies there. The field would open it again.
        const QPoint point = static_cast<QMouseEvent*>(event)->globalPos();
        const bool isOnField = m_field->rect().contains(m_field->mapFromGlobal(point));
        m_popup->setAttribute(Qt::WA_NoMouseReplay, isOnField);
    }
    return AbstractColorPicker::eventFilter(watched, event);
}

void PanelColorPicker::makePopup()
{
    auto* popup = new QFrame(m_field->window(), Qt::Popup);
    m_popup = popup;
    popup->setObjectName(QStringLiteral("colorPanelPopup"));
    popup->setFrameShape(QFrame::StyledPanel);
    popup->setProperty("roundedEdges", true);
    Workaround::Ui::apply(popup);
    popup->installEventFilter(this);
    connect(popup, &QObject::destroyed, this, &PanelColorPicker::finishSoon);

    m_doesPanelAllowNull = m_isNullColorAllowed;
    m_panel = new ColorPickerWidget(popup, m_isNullColorAllowed);
    connect(m_panel, &QObject::destroyed, this, &PanelColorPicker::finishSoon);
    m_panel->setOpacityAdjustmentAvailable(m_isOpacityAvailable);
    auto* layout = new QVBoxLayout(popup);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_panel);
    connect(m_panel, &ColorPickerWidget::colorChanged, this, &PanelColorPicker::preview);
    connect(m_panel, &ColorPickerWidget::pipetteRequested, this, [this] { m_isPipetteRequested = true; });
    connect(m_panel, &ColorPickerWidget::closeRequested, this, [this] { closePopup(); });
}

void PanelColorPicker::discardPopup()
{
    if (m_panel) {
        m_panel->disconnect(this);
        m_panel = nullptr;
    }
    if (m_popup) {
        m_popup->disconnect(this);
        m_popup->removeEventFilter(this);
        closePopup();
    }
    if (m_popup) {
        // Not deleted at once: this may run in one of the panel's own signals.
        m_popup->deleteLater();
        m_popup = nullptr;
    }
}

/// Gives the panel the present colour, without taking back what the panel makes of it.
void PanelColorPicker::showColor()
{
    if (m_panel) {
        m_isShowingColor = true;
        m_panel->setCurrentColor(m_color);
        m_isShowingColor = false;
    }
}

void PanelColorPicker::preview(const QColor& color)
{
    if (isInProgress() && !m_isShowingColor && m_color != color) {
        m_color = color;
        Q_EMIT colorChanged(color);
    }
}

/// The pop-up has closed, or dies: what makes it do so, perhaps a button of the panel, goes on after this.
void PanelColorPicker::finishSoon()
{
    if (m_state == State::Picking) {
        m_state = State::Closing;
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_state == State::Closing) {
                    finish();
                }
            },
            Qt::QueuedConnection);
    }
}

void PanelColorPicker::finish()
{
    if (m_state == State::Idle || m_state == State::Finishing) {
        return;
    }
    m_state = State::Finishing;
    const QPointer<PanelColorPicker> self(this);
    // What the panel has open adds its colour when it is closed, and reports it.
    closePopup();
    if (!self) {
        return;
    }
    m_state = State::Idle;
    const bool isPipetteRequested = std::exchange(m_isPipetteRequested, false);
    Q_EMIT pickingStopped();
    if (self && isPipetteRequested) {
        Q_EMIT pipetteRequested();
    }
}

void PanelColorPicker::closePopup()
{
    // Hiding the panel closes what it has open, amid its own hiding, when nobody may delete it: do it before.
    const QPointer<QWidget> popup = m_popup;
    QWidget* top = QApplication::activePopupWidget();
    while (popup && top && top != popup && isChildOf(top, popup) && top->close()) {
        top = QApplication::activePopupWidget();
    }
    if (popup) {
        popup->hide();
    }
}
