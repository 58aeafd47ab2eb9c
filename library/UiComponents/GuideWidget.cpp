#include "GuideWidget.h"

#include "AccessibleFactory.h"
#include "GuideLabel.h"
#include "GuidePicture.h"
#include "NamedPart.h"
#include "WrappedLabelHeight.h"

#include <ApplicationUtility/Customization.h>
#include <WidgetToolkit/OvBoxLayout.h>

#include <QDesktopServices>
#include <QFocusEvent>
#include <QLabel>
#include <QMovie>
#include <QPointer>
#include <QRegularExpression>
#include <QTextDocument>
#include <QUrl>

#include <utility>

namespace {

const Qt::TextInteractionFlags linkByMouse = Qt::LinksAccessibleByMouse;
const Qt::TextInteractionFlags linkByMouseAndKeyboard = linkByMouse | Qt::LinksAccessibleByKeyboard;

/// Tab goes to the link. In a QLabel it stops at the text first, where Enter does nothing.
class LinkLabel : public GuideLabel
{
public:
    using GuideLabel::GuideLabel;

protected:
    void focusInEvent(QFocusEvent* event) override
    {
        GuideLabel::focusInEvent(event);
        if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
            focusNextPrevChild(true);
        }
    }

    bool focusNextPrevChild(bool next) override
    {
        // Backwards, QLabel would find the first link again, and the focus would never leave it.
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        return next ? GuideLabel::focusNextPrevChild(next) : QFrame::focusNextPrevChild(next);
    }
};

/// Whether the text has a link for Tab to stop at.
bool hasLink(const QString& text)
{
    static const QRegularExpression anchor(QString::fromLatin1("<a\\s[^>]*href\\s*="),
                                           QRegularExpression::CaseInsensitiveOption);
    return Qt::mightBeRichText(text) && text.contains(anchor);
}

} // namespace

class GuideWidget::Private
{
public:
    Private(GuideWidget* guide, GuideInfo guideInfo);

    void putLinkFirst() const;
    void update();
    void followLink(const QString& link);

    GuideWidget* const q;
    QLabel* const headerLabel;
    GuidePicture* const gifPixmapWidget;
    QLabel* const descriptionLabel;
    QLabel* const learnMoreLabel;

    GuideInfo info;
    WrappedLabelHeight headerHeight;
    WrappedLabelHeight descriptionHeight;
};

GuideWidget::Private::Private(GuideWidget* guide, GuideInfo guideInfo)
    : q(guide)
    , headerLabel(named("headerLabel", new GuideLabel(guide)))
    , gifPixmapWidget(named("gifPixmapWidget", new GuidePicture(guide)))
    , descriptionLabel(named("descriptionLabel", new GuideLabel(guide)))
    , learnMoreLabel(named("learnMoreLabel", new LinkLabel(guide)))
    , info(std::move(guideInfo))
    , headerHeight(headerLabel)
    , descriptionHeight(descriptionLabel)
{
    learnMoreLabel->setOpenExternalLinks(false);
    putLinkFirst();

    (new OvVBoxLayout(q))->autoFill();
}

/// Tab reaches the link, which most users need, before the picture. setTabOrder() ignores widgets that take
/// no focus, and two that already follow each other in the circle, whichever is first.
void GuideWidget::Private::putLinkFirst() const
{
    for (const Qt::FocusPolicy policy : {Qt::TabFocus, Qt::NoFocus}) {
        for (QWidget* part : {static_cast<QWidget*>(headerLabel), static_cast<QWidget*>(gifPixmapWidget),
                              static_cast<QWidget*>(learnMoreLabel)}) {
            part->setFocusPolicy(policy);
        }
        QWidget::setTabOrder(learnMoreLabel, gifPixmapWidget);
    }
}

void GuideWidget::Private::update()
{
    headerLabel->setVisible(!info.title.isEmpty());
    headerLabel->setText(Customization::localeDependedBoldText(info.title));
    gifPixmapWidget->setPicture(info.moviePath);
    descriptionLabel->setVisible(!info.description.isEmpty());
    descriptionLabel->setText(info.description);
    learnMoreLabel->setVisible(!info.learnMore.isEmpty());
    learnMoreLabel->setText(info.learnMore);
    learnMoreLabel->setTextInteractionFlags(hasLink(info.learnMore) ? linkByMouseAndKeyboard : linkByMouse);

    q->ensurePolished();
    const int width = q->width();
    descriptionHeight.fit(width);
    headerHeight.fit(width);
}

void GuideWidget::Private::followLink(const QString& link)
{
    // An application's URL handler may delete the guide.
    const QPointer<GuideWidget> self = q;
    QDesktopServices::openUrl(QUrl(link));
    if (self) {
        Q_EMIT self->learnMoreClicked();
    }
}

GuideWidget::GuideWidget(QWidget* parent)
    : GuideWidget(GuideInfo(), parent)
{
}

GuideWidget::GuideWidget(const GuideInfo& info, QWidget* parent)
    : GuideWidget(info, parent, QString())
{
}

GuideWidget::GuideWidget(const GuideInfo& info, QWidget* parent, const QString& name)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this, info))
{
    AccessibleFactory::install();
    setObjectName(name);
    d->update();
    connect(d->learnMoreLabel, &QLabel::linkActivated, this,
            [this](const QString& link) { d->followLink(link); });
}

GuideWidget::~GuideWidget() = default;

void GuideWidget::setInfo(const GuideInfo& info)
{
    if (d->info == info) {
        return;
    }
    d->info = info;
    d->update();
    adjustSize();
}

void GuideWidget::showEvent(QShowEvent* event)
{
    OvFrame::showEvent(event);
    d->gifPixmapWidget->restart();
}

void GuideWidget::hideEvent(QHideEvent* event)
{
    OvFrame::hideEvent(event);
    if (QMovie* const movie = d->gifPixmapWidget->movie()) {
        movie->stop();
    }
}
