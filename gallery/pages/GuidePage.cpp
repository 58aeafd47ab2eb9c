#include "GuidePage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "GuideTexts.h"

#include <UiComponents/GuideWidget.h>
#include <WidgetToolkit/OvPixmapWidget.h>

#include <QEvent>
#include <QMovie>
#include <QVBoxLayout>

namespace {

constexpr int Width = 280;

/// A column with a guide, as wide as with the reference sheets also without one: the guide's texts are
/// measured for the width that it has.
QWidget* makeColumn(QWidget* parent)
{
    auto* column = new QWidget(parent);
    auto* guide = new GuideWidget(GuideInfo(), column);
    guide->setFixedWidth(Width);
    guide->setInfo(GuideTexts::rippleDelete(parent));
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(guide);
    layout->addStretch();
    return column;
}

} // namespace

void rest(const QWidget* widget)
{
    const auto pictures = widget->findChildren<OvPixmapWidget*>();
    for (const OvPixmapWidget* picture : pictures) {
        if (QMovie* const movie = picture->movie()) {
            movie->setPaused(true);
            movie->jumpToFrame(0);
        }
    }
}

PageInfo GuidePage::info()
{
    return {QStringLiteral("guide"),
            tr("Guide"),
            PageGroup::Guides,
            {tr("help"), tr("hint"), tr("animation"), tr("link")},
            {QStringLiteral("GuideWidget"), QStringLiteral("GuideInfo")},
            &createPage<GuidePage>};
}

GuidePage::GuidePage(QWidget* parent)
    : Page(info(),
           tr("A short piece of help: a heading, an animated picture that plays while it is seen, a "
              "description and a link to further reading. What is empty is left out."),
           parent)
    , m_info(GuideTexts::rippleDelete(this))
    , m_linkText(tr("More about editing"))
{
    const auto columns = addTwins<QWidget>(QString(), &makeColumn);
    m_twins.enabled = columns.enabled->findChild<GuideWidget*>();
    m_twins.disabled = columns.disabled->findChild<GuideWidget*>();

    properties()->addHeading(QStringLiteral("setInfo()"));
    properties()->addText(QStringLiteral("title"), m_info.title, [this](const QString& text) {
        m_info.title = text;
        apply();
    });
    properties()->addText(QStringLiteral("description"), m_info.description, [this](const QString& text) {
        m_info.description = text;
        apply();
    });
    properties()->addText(QStringLiteral("learnMore"), m_linkText, [this](const QString& text) {
        m_linkText = text;
        apply();
    });
    properties()->addChoice(QStringLiteral("moviePath"), GuideTexts::movieNames(), 1, [this](int movie) {
        m_info.moviePath = GuideTexts::moviePath(movie);
        apply();
    });
    properties()->addSwitch(tr("Visible"), true, [this](bool on) {
        m_twins.each([on](GuideWidget* guide) { guide->setVisible(on); });
    });
    signalLog()->watch(m_twins.enabled, QStringLiteral("guide"));
    describeStyling(m_twins.enabled,
                    tr("Texts are measured for the width that the sheet gives the guide. Links have the "
                       "colour of the application's palette, unless their markup says another."));
}

void GuidePage::prepareForPicture()
{
    rest(this);
    signalLog()->clear();
}

void GuidePage::changeEvent(QEvent* event)
{
    Page::changeEvent(event);
    // The link is coloured for the surface. Before the end of the constructor there is nothing to colour.
    if (event->type() == QEvent::StyleChange && !properties()->isEmpty()) {
        apply();
    }
}

void GuidePage::apply()
{
    m_info.learnMore = m_linkText.isEmpty()
                           ? QString()
                           : GuideTexts::link(m_linkText, QStringLiteral("https://doc.qt.io/qt-5/"), this);
    m_twins.each([this](GuideWidget* guide) { guide->setInfo(m_info); });
}
