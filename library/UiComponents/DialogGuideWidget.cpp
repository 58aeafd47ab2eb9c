#include "DialogGuideWidget.h"

#include "AccessibleEvents.h"
#include "AccessibleFactory.h"
#include "ClickButton.h"
#include "GuideLabel.h"
#include "GuidePicture.h"
#include "NamedPart.h"
#include "WrappedLabelHeight.h"

#include <ApplicationUtility/Customization.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/Util.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTimer>

namespace {

/// At most a quarter of the screen wide; elides a longer text.
class ElidingButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override { return limited(QPushButton::sizeHint()); }
    QSize minimumSizeHint() const override { return limited(QPushButton::minimumSizeHint()); }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        const int missing = QPushButton::sizeHint().width() - width();
        if (missing > 0) {
            const int room = fontMetrics().size(Qt::TextShowMnemonic, text()).width() - missing;
            option.text = fontMetrics().elidedText(text(), Qt::ElideRight, room, Qt::TextShowMnemonic);
        }
        painter.drawControl(QStyle::CE_PushButton, option);
    }

private:
    QSize limited(const QSize& size) const
    {
        return size.boundedTo(QSize(GuideLabel::maxWidth(this) / 2, QWIDGETSIZE_MAX));
    }
};

int widthInside(const OvFrame* frame)
{
    const QMargins margins = frame->getLayout()->contentsMargins();
    return frame->width() - margins.left() - margins.right();
}

} // namespace

class DialogGuideWidget::Private
{
public:
    explicit Private(DialogGuideWidget* bubble);

    void watchParent();
    void layOut();
    void settle();

    DialogGuideWidget* const q;
    OvFrame* const contentFrame;
    OvFrame* const headerFrame;
    QLabel* const headerLabel;
    QToolButton* const closeButton;
    OvFrame* const descriptionFrame;
    OvFrame* const buttonsFrame;
    GuidePicture* const gifPixmapWidget;
    QLabel* const descriptionLabel;
    QPushButton* const secondaryButton;
    QPushButton* const mainButton;

    WrappedLabelHeight headerHeight;
    WrappedLabelHeight descriptionHeight;
    QPointer<QWidget> watched;
};

DialogGuideWidget::Private::Private(DialogGuideWidget* bubble)
    : q(bubble)
    , contentFrame(bubble->contentFrame())
    , headerFrame(named("headerFrame", new OvFrame(contentFrame)))
    , headerLabel(named("headerLabel", new GuideLabel(headerFrame)))
    , closeButton(named("closeButton", new ClickButton(headerFrame)))
    , descriptionFrame(named("descriptionFrame", new OvFrame(contentFrame)))
    , buttonsFrame(named("buttonsFrame", new OvFrame(contentFrame)))
    , gifPixmapWidget(named("gifPixmapWidget", new GuidePicture(descriptionFrame)))
    , descriptionLabel(named("descriptionLabel", new GuideLabel(descriptionFrame)))
    , secondaryButton(named("secondaryButton", new ElidingButton(buttonsFrame)))
    , mainButton(named("mainButton", new ElidingButton(buttonsFrame)))
    , headerHeight(headerLabel)
    , descriptionHeight(descriptionLabel)
{
    // For use without a sheet; a sheet's qproperty-icon wins.
    closeButton->setIcon(q->style()->standardIcon(QStyle::SP_TitleBarCloseButton));

    (new OvVBoxLayout(descriptionFrame))->autoFill();
    // In the corner, also beside a heading of several lines or none.
    (new OvHBoxLayout(headerFrame))->autoFill()->setAlignment(closeButton, Qt::AlignRight | Qt::AlignTop);
    (new OvVBoxLayout(contentFrame))->autoFill()->addStretch(0);
    (new OvHBoxLayout(buttonsFrame))
        ->addItems({{LayoutHelpers::SpacerPolicy::Stretch, 1}, {secondaryButton, 0}, {mainButton, 0}});

    Util::applyStyleHint(secondaryButton, QString::fromLatin1("guideButton"));
    Util::applyStyleHint(mainButton, QString::fromLatin1("guideMainButton"));
}

void DialogGuideWidget::Private::watchParent()
{
    QWidget* const parent = q->parentWidget();
    if (watched == parent) {
        return;
    }
    if (watched) {
        watched->removeEventFilter(q);
    }
    watched = parent;
    if (parent) {
        parent->installEventFilter(q);
    }
}

/// Activates all layouts at once; a change would go up one frame for each posted layout request.
void DialogGuideWidget::Private::layOut()
{
    for (OvFrame* frame : {headerFrame, descriptionFrame, buttonsFrame, contentFrame}) {
        frame->layout()->activate();
        frame->updateGeometry();
    }
    QEvent request(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(q, &request);
}

void DialogGuideWidget::Private::settle()
{
    layOut();
    q->updateContent();
    layOut();
    q->adjustSize();
    // A bubble has a size of its own, without the limits of other windows.
    layOut();
    q->adjustPositions();
}

DialogGuideWidget::DialogGuideWidget(QWidget* parent)
    : PointingWidget(parent)
    , d(std::make_unique<Private>(this))
{
    AccessibleFactory::install();
    connect(d->closeButton, &QAbstractButton::clicked, this, &DialogGuideWidget::closeClicked);
    connect(d->mainButton, &QAbstractButton::clicked, this, &DialogGuideWidget::mainClicked);
    connect(d->secondaryButton, &QAbstractButton::clicked, this, &DialogGuideWidget::secondaryClicked);
    d->watchParent();
}

DialogGuideWidget::~DialogGuideWidget() = default;

void DialogGuideWidget::setInfo(const DialogGuideInfo& info)
{
    d->mainButton->setText(info.mainButtonText);
    d->secondaryButton->setText(info.secondaryButtonText);
    d->headerLabel->setText(Customization::localeDependedBoldText(info.title));
    d->descriptionLabel->setText(info.description);
    d->gifPixmapWidget->setPicture(info.moviePath);
    // Tab reaches the button that most users need first.
    setTabOrder(d->mainButton, d->gifPixmapWidget);
    d->headerLabel->setVisible(!info.title.isEmpty());
    setWindowTitle(info.title);
    QTimer::singleShot(0, this, [this] { d->settle(); });
}

void DialogGuideWidget::setCloseButtonVisible(bool visible)
{
    d->closeButton->setVisible(visible);
}

void DialogGuideWidget::setSecondaryButtonVisible(bool visible)
{
    d->secondaryButton->setVisible(visible);
}

void DialogGuideWidget::enter()
{
    if (!isVisible()) {
        return;
    }
    activateWindow();
    d->mainButton->setFocus(Qt::OtherFocusReason);
}

void DialogGuideWidget::updateContent()
{
    ensurePolished();
    d->descriptionHeight.fit(widthInside(d->descriptionFrame));

    int width = widthInside(d->headerFrame);
    if (d->closeButton->isVisible()) {
        width -= d->closeButton->width() + d->headerFrame->getLayout()->spacing();
    }
    d->headerHeight.fit(width);
}

void DialogGuideWidget::adjustPositions()
{
    pointTo(targetPoint());
}

bool DialogGuideWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent()) {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
            adjustPositions();
            break;
        default:
            break;
        }
    }
    return PointingWidget::eventFilter(watched, event);
}

void DialogGuideWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ParentChange) {
        d->watchParent();
    }
    PointingWidget::changeEvent(event);
}

void DialogGuideWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel) && d->closeButton->isVisible()) {
        Q_EMIT closeClicked();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (auto* const button = qobject_cast<QAbstractButton*>(focusWidget())) {
            button->click();
        }
    } else {
        PointingWidget::keyPressEvent(event);
    }
}

void DialogGuideWidget::paintEvent(QPaintEvent* event)
{
    adjustPositions();
    PointingWidget::paintEvent(event);
}

void DialogGuideWidget::showEvent(QShowEvent* event)
{
    // While the bubble was hidden, its frames had no width to measure texts for.
    d->layOut();
    updateContent();
    PointingWidget::showEvent(event);
    AccessibleEvents::alert(this);
}

void DialogGuideWidget::resizeEvent(QResizeEvent* event)
{
    PointingWidget::resizeEvent(event);
    adjustPositions();
}
