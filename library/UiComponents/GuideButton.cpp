#include "GuideButton.h"

#include "AccessibleFactory.h"
#include "GuideWidget.h"

#include <EditorWidgets/PointingWidget.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/Util.h>

#include <utility>

GuideButton::GuideButton(QWidget* parent)
    : ClickButton(parent)
{
    AccessibleFactory::install();
    connect(this, &QAbstractButton::clicked, this, &GuideButton::showHelp);
}

GuideButton::~GuideButton()
{
    // showHelp(), below on the stack, deletes it.
    if (m_appearing) {
        m_appearing->hide();
        m_appearing->setParent(nullptr);
    }
}

void GuideButton::setGuideInfo(std::unique_ptr<GuideInfo> info)
{
    m_guideInfo = std::move(info);
}

bool GuideButton::hasGuideInfo() const
{
    return m_guideInfo != nullptr;
}

void GuideButton::hideEvent(QHideEvent* event)
{
    ClickButton::hideEvent(event);
    if (m_pointingWidget) {
        m_pointingWidget->hide();
    }
}

void GuideButton::showHelp()
{
    // Shared: deleting the old pop-up moves the focus, and a slot may remove the info.
    const std::shared_ptr<const GuideInfo> info = m_guideInfo;
    if (!info) {
        return;
    }
    const QPointer<GuideButton> self = this;
    if (m_pointingWidget && m_pointingWidget == m_appearing) {
        m_pointingWidget->hide();
    } else {
        delete m_pointingWidget.data();
    }
    if (!self) {
        return;
    }

    m_pointingWidget = new PointingWidget(this);
    m_pointingWidget->setObjectName(Util::Details::removeClassMemberPrefix("m_pointingWidget"));
    m_pointingWidget->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    m_pointingWidget->setAttribute(Qt::WA_TranslucentBackground);
    m_pointingWidget->setWindowTitle(info->title);
    m_pointingWidget->setArrowSide(PointingWidget::ArrowSide::Top, PointingWidget::ArrowPosition::Center);

    // Constructed with its name and parent: setting either later would polish it again, at the cost of all
    // the rest.
    OvFrame* const frame = m_pointingWidget->contentFrame();
    m_guideWidget = new GuideWidget(*info, frame, Util::Details::removeClassMemberPrefix("m_guideWidget"));
    connect(m_guideWidget.data(), &GuideWidget::learnMoreClicked, this, &GuideButton::learnMoreClicked);
    auto* layout = new OvVBoxLayout(frame);
    layout->addWidget(m_guideWidget);

    m_pointingWidget->setArrowOffset(m_popupOffset);
    m_pointingWidget->pointTo(mapToGlobal(QPoint(width() / 2, height())));
    const QPointer<PointingWidget> popup = m_pointingWidget;
    const QPointer<PointingWidget> outer = m_appearing;
    m_appearing = popup;
    // Of its own, or readers would stay with the button.
    popup->setFocus(Qt::PopupFocusReason);
    popup->show();
    if (self) {
        m_appearing = outer;
    }
    if (!self || popup != m_pointingWidget) {
        delete popup;
    }
}
