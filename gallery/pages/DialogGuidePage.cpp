#include "DialogGuidePage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "GuidePage.h"
#include "GuideTexts.h"
#include "Walk.h"

#include <UiComponents/DialogGuideWidget.h>

namespace {

constexpr QSize StageSize(360, 314);

/// A frame with a bubble inside it, which points at the middle of its upper edge.
class GuideStage : public QFrame
{
public:
    GuideStage(const DialogGuideInfo& info, QWidget* parent)
        : QFrame(parent)
        , m_bubble(new DialogGuideWidget(this))
    {
        setObjectName(QStringLiteral("bubbleStage"));
        setFrameShape(QFrame::StyledPanel);
        setMinimumSize(StageSize);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        m_bubble->setWindowFlags(Qt::Widget);
        m_bubble->setInfo(info);
        m_bubble->show();
    }

    DialogGuideWidget* bubble() const { return m_bubble; }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QFrame::resizeEvent(event);
        constexpr int Inset = 8;
        m_bubble->pointTo(mapToGlobal(QPoint(width() / 2, Inset)));
    }

private:
    DialogGuideWidget* const m_bubble;
};

} // namespace

PageInfo DialogGuidePage::info()
{
    return {QStringLiteral("dialog-guide"),
            tr("Dialog guide"),
            PageGroup::Guides,
            {tr("help"), tr("bubble"), tr("tour"), tr("animation")},
            {QStringLiteral("DialogGuideWidget"), QStringLiteral("DialogGuideInfo")},
            &createPage<DialogGuidePage>};
}

DialogGuidePage::DialogGuidePage(QWidget* parent)
    : Page(info(),
           tr("A bubble that walks the user through a step and follows the widget that it annotates. "
              "Start the tour to see it at work."),
           parent)
    , m_info{tr("Trim a clip"), tr("Drag its end. The picture shows how; nothing is lost."), tr("Next"),
             tr("Back"), GuideTexts::moviePath(2)}
{
    const auto make = [this](QWidget* twinParent) -> QWidget* { return new GuideStage(m_info, twinParent); };
    const auto stages = addTwins<QWidget>(QString(), make);
    m_bubbles.enabled = static_cast<GuideStage*>(stages.enabled.data())->bubble();
    m_bubbles.disabled = static_cast<GuideStage*>(stages.disabled.data())->bubble();

    properties()->addAction(tr("Start the tour"), [this] { startWalk(); });
    properties()->addHeading(QStringLiteral("setInfo()"));
    const auto addText = [this](const QString& name, QString DialogGuideInfo::*field) {
        properties()->addText(name, m_info.*field, [this, field](const QString& text) {
            m_info.*field = text;
            apply();
        });
    };
    addText(QStringLiteral("title"), &DialogGuideInfo::title);
    addText(QStringLiteral("description"), &DialogGuideInfo::description);
    addText(QStringLiteral("mainButtonText"), &DialogGuideInfo::mainButtonText);
    addText(QStringLiteral("secondaryButtonText"), &DialogGuideInfo::secondaryButtonText);
    properties()->addChoice(QStringLiteral("moviePath"), GuideTexts::movieNames(), 2, [this](int movie) {
        m_info.moviePath = GuideTexts::moviePath(movie);
        apply();
    });
    properties()->addHeading(tr("Buttons"));
    properties()->addSwitch(tr("Close button"), true, [this](bool on) {
        m_bubbles.each([on](DialogGuideWidget* bubble) { bubble->setCloseButtonVisible(on); });
    });
    properties()->addSwitch(tr("Secondary button"), true, [this](bool on) {
        m_bubbles.each([on](DialogGuideWidget* bubble) { bubble->setSecondaryButtonVisible(on); });
    });
    signalLog()->watch(m_bubbles.enabled, QStringLiteral("bubble"));
    describeStyling(m_bubbles.enabled,
                    tr("A PointingWidget; its bubble is painted from that one's properties."));
}

void DialogGuidePage::prepareForPicture()
{
    rest(this);
    signalLog()->clear();
}

void DialogGuidePage::apply()
{
    m_bubbles.each([this](DialogGuideWidget* bubble) { bubble->setInfo(m_info); });
}

void DialogGuidePage::startWalk()
{
    Walk::start(
        window(),
        {{QStringLiteral("pageSearch"), tr("Find a component"),
          tr("Type a few letters of a class, a title or a keyword."), GuideTexts::moviePath(3)},
         {QStringLiteral("styleSwitch"), tr("Try another style"),
          tr("Dark, light, none at all, or a sheet of your own that reloads when you save it."), QString()},
         {QStringLiteral("propertyPanel"), tr("Change it while it runs"),
          tr("The controls act on the enabled twin and the disabled one at once."), QString()},
         {QStringLiteral("signalLog"), tr("See what it says"),
          tr("Every signal of the component, newest last."), QString()}});
}
