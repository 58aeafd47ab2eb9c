#include "GuideButton.h"

#include "AccessibleFactory.h"
#include "GuideWidget.h"

#include <EditorWidgets/PointingWidget.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/Util.h>

#include <QPointer>

#include <utility>

class GuideButton::Private
{
public:
    std::shared_ptr<GuideInfo> guideInfo;
    QPointer<PointingWidget> pointingWidget;
    QPointer<PointingWidget> appearing; // while its show() runs
};

GuideButton::GuideButton(QWidget* parent)
    : ClickButton(parent)
    , d(std::make_unique<Private>())
{
    AccessibleFactory::install();
    connect(this, &QAbstractButton::clicked, this, &GuideButton::showHelp);
}

GuideButton::~GuideButton()
{
    // Deleting the pop-up moves the focus; slots may still call the button.
    if (d->pointingWidget != d->appearing) {
        delete d->pointingWidget.data();
    }
    // showHelp(), below on the stack, deletes it.
    if (d->appearing) {
        d->appearing->hide();
        d->appearing->setParent(nullptr);
    }
}

void GuideButton::setGuideInfo(std::unique_ptr<GuideInfo> info)
{
    d->guideInfo = std::move(info);
}

bool GuideButton::hasGuideInfo() const
{
    return d->guideInfo != nullptr;
}

void GuideButton::hideEvent(QHideEvent* event)
{
    ClickButton::hideEvent(event);
    if (d->pointingWidget) {
        d->pointingWidget->hide();
    }
}

void GuideButton::showHelp()
{
    // Shared: deleting the old pop-up moves the focus, and a slot may remove the info.
    const std::shared_ptr<const GuideInfo> info = d->guideInfo;
    if (!info) {
        return;
    }
    if (d->pointingWidget && d->pointingWidget == d->appearing) {
        d->pointingWidget->hide();
        // Deleted by the outer showHelp(), not by the button.
        d->pointingWidget->setParent(nullptr);
    } else {
        delete d->pointingWidget.data();
    }

    d->pointingWidget = new PointingWidget(this);
    d->pointingWidget->setObjectName(Util::Details::removeClassMemberPrefix("m_pointingWidget"));
    d->pointingWidget->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    d->pointingWidget->setAttribute(Qt::WA_TranslucentBackground);
    d->pointingWidget->setWindowTitle(info->title);
    d->pointingWidget->setArrowSide(PointingWidget::ArrowSide::Top, PointingWidget::ArrowPosition::Center);

    // Constructed with its name and parent: setting either later would polish it again, at the cost of all
    // the rest.
    OvFrame* const frame = d->pointingWidget->contentFrame();
    auto* guideWidget =
        new GuideWidget(*info, frame, Util::Details::removeClassMemberPrefix("m_guideWidget"));
    connect(guideWidget, &GuideWidget::learnMoreClicked, this, &GuideButton::learnMoreClicked);
    auto* layout = new OvVBoxLayout(frame);
    layout->addWidget(guideWidget);

    d->pointingWidget->setArrowOffset(m_popupOffset);
    d->pointingWidget->pointTo(mapToGlobal(QPoint(width() / 2, height())));
    const QPointer<GuideButton> self = this;
    const QPointer<PointingWidget> popup = d->pointingWidget;
    const QPointer<PointingWidget> outer = d->appearing;
    d->appearing = popup;
    // The pop-up takes the focus, so that readers announce it.
    popup->setFocus(Qt::PopupFocusReason);
    popup->show();
    if (self) {
        d->appearing = outer;
    }
    if (!self || popup != d->pointingWidget) {
        delete popup;
    }
}
