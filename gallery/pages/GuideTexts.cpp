#include "GuideTexts.h"

#include <QPalette>
#include <QWidget>

QStringList GuideTexts::movieNames()
{
    return {tr("none"), tr("Ripple delete"), tr("Trim"), tr("Search"), tr("A file that is not there")};
}

QString GuideTexts::moviePath(int movie)
{
    const QString paths[] = {QString(), QStringLiteral(":/gallery/guides/ripple-delete.gif"),
                             QStringLiteral(":/gallery/guides/trim.gif"),
                             QStringLiteral(":/gallery/guides/search.gif"), QStringLiteral("/no/such.gif")};
    return paths[movie];
}

QString GuideTexts::link(const QString& text, const QString& target, const QWidget* surface)
{
    constexpr int MiddleLightness = 128;
    const bool isDark = surface->palette().color(QPalette::Window).lightness() < MiddleLightness;
    const QString color = isDark ? QStringLiteral("#6ea8f7") : QStringLiteral("#1f66c7");
    return QStringLiteral("<a href=\"%1\" style=\"color: %2\">%3</a>")
        .arg(target, color, text.toHtmlEscaped());
}

GuideInfo GuideTexts::rippleDelete(const QWidget* surface)
{
    return {tr("Ripple delete"),
            tr("Deletes the selected clip and closes the gap: everything behind it moves up, on <b>all</b> "
               "tracks, so that sound and picture stay together."),
            link(tr("More about editing"), QStringLiteral("https://doc.qt.io/qt-5/"), surface), moviePath(1)};
}

GuideInfo GuideTexts::trim(const QWidget* surface)
{
    return {tr("Trim"), tr("Drag the end of a clip to show less or more of it. Nothing is lost."),
            link(tr("More about trimming"), QStringLiteral("https://doc.qt.io/qt-5/"), surface),
            moviePath(2)};
}
