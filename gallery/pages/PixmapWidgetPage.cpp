#include "PixmapWidgetPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <WidgetToolkit/OvPixmapWidget.h>

#include <QMovie>

namespace {

constexpr int StartWidth = 240;
constexpr int LargestWidth = 380;

QString animation()
{
    return QStringLiteral(":/gallery/playhead.gif");
}

void setWidth(OvPixmapWidget* widget, int width)
{
    widget->setFixedSize(width, widget->movie() ? widget->heightForWidth(width) : widget->height());
}

OvPixmapWidget* makeWidget(QWidget* parent)
{
    auto* widget = new OvPixmapWidget(parent);
    widget->setMoviePath(animation());
    setWidth(widget, StartWidth);
    return widget;
}

template <typename Function>
void onMovie(OvPixmapWidget* widget, Function function)
{
    if (QMovie* const movie = widget->movie()) {
        function(movie);
    }
}

} // namespace

PageInfo PixmapWidgetPage::info()
{
    return {QStringLiteral("pixmap-widget"),
            tr("Animated image"),
            PageGroup::Bubbles,
            {tr("movie"), QStringLiteral("GIF"), tr("animation")},
            {QStringLiteral("OvPixmapWidget")},
            &createPage<PixmapWidgetPage>};
}

PixmapWidgetPage::PixmapWidgetPage(QWidget* parent)
    : Page(info(),
           tr("Plays an animated image in the size of the widget, keeps its proportions, stays sharp on "
              "scaled screens and rests while it is hidden."),
           parent)
    , m_twins(addTwins<OvPixmapWidget>(QString(), &makeWidget))
{
    properties()->addProperties(m_twins.objects());
    properties()->addNumber(tr("Width"), 1, LargestWidth, StartWidth, [this](int width) {
        m_twins.each([width](OvPixmapWidget* widget) { setWidth(widget, width); });
    });
    properties()->addSwitch(tr("Paused"), false, [this](bool on) {
        m_twins.each(
            [on](OvPixmapWidget* widget) { onMovie(widget, [on](QMovie* movie) { movie->setPaused(on); }); });
    });
    properties()->addSwitch(tr("Visible"), true, [this](bool on) {
        m_twins.each([on](OvPixmapWidget* widget) { widget->setVisible(on); });
    });
    const auto load = [this](const QString& path) {
        m_twins.each([&path](OvPixmapWidget* widget) { widget->setMoviePath(path); });
        properties()->refresh();
        watchMovie();
    };
    properties()->addAction(tr("The animation"), [load] { load(animation()); });
    properties()->addAction(tr("A file that is not there"), [load] { load(QStringLiteral("/no/such.gif")); });
    signalLog()->watch(m_twins.enabled, QStringLiteral("widget"));
    watchMovie();
    describeStyling(m_twins.enabled, tr("Border and padding of a sheet surround the picture."));
}

void PixmapWidgetPage::prepareForPicture()
{
    m_twins.each([](OvPixmapWidget* widget) {
        onMovie(widget, [](QMovie* movie) {
            movie->setPaused(true);
            movie->jumpToFrame(0);
        });
    });
    signalLog()->clear();
}

void PixmapWidgetPage::watchMovie()
{
    onMovie(m_twins.enabled, [this](QMovie* movie) {
        connect(movie, &QMovie::stateChanged, this, [this](QMovie::MovieState state) {
            signalLog()->addLine(QStringLiteral("movie.stateChanged(%1)").arg(state));
        });
        connect(movie, &QMovie::finished, this,
                [this] { signalLog()->addLine(QStringLiteral("movie.finished()")); });
    });
}
