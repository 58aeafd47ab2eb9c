#pragma once

#include <UiComponents/GuideInfo.h>

#include <QCoreApplication>
#include <QStringList>

class QWidget;

/**
 * What the pages about guides say and show.
 */
class GuideTexts
{
    Q_DECLARE_TR_FUNCTIONS(GuideTexts)

public:
    /// The animated pictures, as a chooser names them; the first is none, the last is not there.
    static QStringList movieNames();
    static QString moviePath(int movie);

    /// A link to further reading, as markup. Qt takes the colour of links from the application's palette,
    /// which no style sheet reaches, so this one is coloured for the surface of @p surface.
    static QString link(const QString& text, const QString& target, const QWidget* surface);

    static GuideInfo rippleDelete(const QWidget* surface);
    static GuideInfo trim(const QWidget* surface);
};
