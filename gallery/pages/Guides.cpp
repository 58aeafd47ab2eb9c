#include "../BubbleStage.h"
#include "../CodeText.h"
#include "../Page.h"
#include "../PageRegistry.h"
#include "../Walk.h"

#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideInfo.h>
#include <UiComponents/GuideWidget.h>
#include <WidgetToolkit/OvComboBox.h>

#include <QVBoxLayout>

#include <memory>

namespace {

/// The animated pictures by name; the first is none, the last is not there.
QStringList movieNames()
{
    return {PageRegistry::tr("none"), PageRegistry::tr("Ripple delete"), PageRegistry::tr("Trim"),
            PageRegistry::tr("Search"), PageRegistry::tr("A file that is not there")};
}

QString moviePath(int movie)
{
    const char* const paths[] = {"", ":/gallery/guides/ripple-delete.gif", ":/gallery/guides/trim.gif",
                                 ":/gallery/guides/search.gif", "/no/such.gif"};
    return QLatin1String(paths[movie]);
}

/// A link to further reading, as markup.
QString link(const QString& text)
{
    return QStringLiteral("<a href=\"https://doc.qt.io/qt-5/\">%1</a>").arg(text.toHtmlEscaped());
}

GuideInfo rippleDelete()
{
    return {PageRegistry::tr("Ripple delete"),
            PageRegistry::tr("Deletes the selected clip and closes the gap: everything behind it moves up, "
                             "on <b>all</b> tracks, so that sound and picture stay together."),
            link(PageRegistry::tr("More about editing")), moviePath(1)};
}

GuideInfo trim()
{
    return {PageRegistry::tr("Trim"),
            PageRegistry::tr("Drag the end of a clip to show less or more of it. Nothing is lost."),
            link(PageRegistry::tr("More about trimming")), moviePath(2)};
}

/// The info of a choice of the control; null for none.
std::unique_ptr<GuideInfo> guideInfo(int choice)
{
    const auto info = choice == 0 ? &trim : &rippleDelete;
    return choice == 2 ? nullptr : std::make_unique<GuideInfo>(info());
}

QStringList guideCode(const std::unique_ptr<GuideInfo>& info)
{
    if (!info) {
        return {};
    }
    return {QStringLiteral("#include <UiComponents/GuideInfo.h>"), QStringLiteral("#include <memory>"),
            QStringLiteral("$->setGuideInfo(std::make_unique<GuideInfo>(%1, %2, %3, %4));")
                .arg(codeString(info->title), codeString(info->description), codeString(info->learnMore),
                     codeString(info->moviePath))};
}

/// Adds a text control for each of @p fields of @p info, which calls @p apply.
template <typename Info, typename Apply>
void addTexts(PropertyPanel* panel, const std::shared_ptr<Info>& info, Apply apply,
              std::initializer_list<std::pair<const char*, QString Info::*>> fields)
{
    for (const auto& field : fields) {
        panel->addText(QLatin1String(field.first), info.get()->*field.second,
                       [info, apply, text = field.second](const QString& value) {
                           info.get()->*text = value;
                           apply();
                       });
    }
}

/// Adds a control of the picture of @p info, which calls @p apply.
template <typename Info, typename Apply>
void addMovie(PropertyPanel* panel, const std::shared_ptr<Info>& info, Apply apply, int current)
{
    panel->addChoice(QStringLiteral("moviePath"), movieNames(), current, [info, apply](int movie) {
        info->moviePath = moviePath(movie);
        apply();
    });
}

} // namespace

void PageRegistry::guide(Page* page)
{
    constexpr int width = 280;
    // The texts are measured for the width that the guide has: without a sheet it gets that of the
    // reference sheets.
    const auto columns = page->addTwins<QWidget>(QString(), [](QWidget* column) {
        auto* guide = new GuideWidget(GuideInfo(), column);
        guide->setFixedWidth(width);
        guide->setInfo(rippleDelete());
        auto* layout = new QVBoxLayout(column);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(guide);
        layout->addStretch();
    });
    const auto guides = columns.children<GuideWidget>();

    PropertyPanel* const panel = page->properties();
    const auto info = std::make_shared<GuideInfo>(rippleDelete());
    info->learnMore = tr("More about editing");
    const auto apply = [guides, info] {
        GuideInfo shown = *info;
        shown.learnMore = info->learnMore.isEmpty() ? QString() : link(info->learnMore);
        guides.setter (&GuideWidget::setInfo)(shown);
    };
    panel->addHeading(QStringLiteral("setInfo()"));
    addTexts<GuideInfo>(panel, info, apply,
                        {{"title", &GuideInfo::title},
                         {"description", &GuideInfo::description},
                         {"learnMore", &GuideInfo::learnMore}});
    addMovie(panel, info, apply, 1);
    panel->addSwitch(tr("Visible"), true, guides.setter(&QWidget::setVisible));
    page->signalLog()->watch(guides.enabled, "guide");
    page->describeStyling(guides.enabled,
                          tr("Texts are measured for the width that the sheet gives the guide. Links have "
                             "the colour of their label, unless their markup says another."));
}

void PageRegistry::guideButton(Page* page)
{
    const auto addButtons = [page](const QString& caption, const std::function<void(GuideButton*)>& setUp) {
        return page->addTwins<GuideButton>(caption, [setUp](GuideButton* button) {
            button->setText(QStringLiteral("?"));
            setUp(button);
        });
    };
    const auto buttons = addButtons(tr("With an animated picture"), [](GuideButton* button) {
        button->setToolTip(tr("Trim"));
        button->setGuideInfo(guideInfo(0));
    });
    const auto titled = addButtons(tr("A title alone"), [](GuideButton* button) {
        const GuideInfo info(tr("Nothing more to say"), QString(), QString(), QString());
        button->setToolTip(info.title);
        button->setGuideInfo(std::make_unique<GuideInfo>(info));
    });
    addButtons(tr("Without an info"), [](GuideButton*) {});

    PropertyPanel* const panel = page->properties();
    panel->addProperties(buttons);
    panel->addHeading(QStringLiteral("setGuideInfo()"));
    const auto* choice = panel->addChoice(
        tr("Info"), {tr("Trim"), tr("Ripple delete"), tr("none")}, 0,
        buttons.setter([](GuideButton* button, int chosen) { button->setGuideInfo(guideInfo(chosen)); }));
    page->describeCode(buttons.enabled, [choice] { return guideCode(guideInfo(choice->currentIndex())); });
    page->describeCode(titled.enabled, [] {
        return guideCode(
            std::make_unique<GuideInfo>(tr("Nothing more to say"), QString(), QString(), QString()));
    });
    panel->addSwitch(tr("Visible"), true, buttons.setter(&QWidget::setVisible));
    panel->addAction(QStringLiteral("click()"), buttons.enabled.data(), &GuideButton::click);
    QObject::connect(page, &Page::pictureRequested, buttons.enabled.data(), &GuideButton::click);
    page->signalLog()->watch(buttons.enabled, "button");
    page->describeStyling(buttons.enabled,
                          tr("A tool button. Its pop-up is a PointingWidget named pointingWidget, with a "
                             "GuideWidget named guideWidget in it; both are below the button for a sheet."));
}

void PageRegistry::dialogGuide(Page* page)
{
    constexpr QSize stageSize(360, 314);
    const auto info = std::make_shared<DialogGuideInfo>(
        DialogGuideInfo{tr("Trim a clip"), tr("Drag its end. The picture shows how; nothing is lost."),
                        tr("Next"), tr("Back"), moviePath(2)});
    const auto stages = page->addTwins(QString(), [info, stageSize](QWidget* parent) {
        auto* bubble = new DialogGuideWidget(nullptr);
        bubble->setInfo(*info);
        return new BubbleStage(bubble, QPointF(0.5, 0.03), stageSize, parent);
    });
    const auto bubbles = stages.children<DialogGuideWidget>();

    PropertyPanel* const panel = page->properties();
    panel->addAction(tr("Start the tour"), [page] {
        Walk::start(page->window(),
                    {{QStringLiteral("pageSearch"), tr("Find a component"),
                      tr("Type a few letters of a class, a title or a keyword."), moviePath(3)},
                     {QStringLiteral("styleSwitch"), tr("Try another style"),
                      tr("Dark, light, high contrast, none at all, or a sheet of your own that reloads when "
                         "you save it."),
                      QString()},
                     {QStringLiteral("propertyPanel"), tr("Change it while it runs"),
                      tr("The controls act on the enabled twin and the disabled one at once."), QString()},
                     {QStringLiteral("signalLog"), tr("See what it says"),
                      tr("Every signal of the component, newest last."), QString()}});
    });
    const auto apply = [bubbles, info] { bubbles.setter (&DialogGuideWidget::setInfo)(*info); };
    panel->addHeading(QStringLiteral("setInfo()"));
    addTexts<DialogGuideInfo>(panel, info, apply,
                              {{"title", &DialogGuideInfo::title},
                               {"description", &DialogGuideInfo::description},
                               {"mainButtonText", &DialogGuideInfo::mainButtonText},
                               {"secondaryButtonText", &DialogGuideInfo::secondaryButtonText}});
    addMovie(panel, info, apply, 2);
    panel->addHeading(tr("Buttons"));
    panel->addSwitch(tr("Close button"), true, bubbles.setter(&DialogGuideWidget::setCloseButtonVisible));
    panel->addSwitch(tr("Secondary button"), true,
                     bubbles.setter(&DialogGuideWidget::setSecondaryButtonVisible));
    page->signalLog()->watch(bubbles.enabled, "bubble");
    page->describeStyling(bubbles.enabled,
                          tr("A PointingWidget; its bubble is painted from that one's properties."));
}
