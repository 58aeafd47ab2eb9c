#pragma once

#include <QString>
#include <QStringList>

/**
 * What the gallery was asked for.
 */
struct CommandLine
{
    enum class Action {
        Show,
        Tour,
        List,
        StylingManual,
        Help,
    };

    /// Reads the program's arguments, the first of which is its name.
    static CommandLine parse(const QStringList& arguments);

    static QString helpText();

    /// The arguments, without the program's name, that bring another run of the gallery to the same place.
    QStringList arguments() const;

    Action action = Action::Show;
    /// Empty: the first page, or every page of a tour.
    QString page;
    /// "dark", "light", "none", or the path of a style sheet that is there.
    QString style = QStringLiteral("dark");
    QString language = QStringLiteral("en");
    Qt::LayoutDirection direction = Qt::LeftToRight;
    QString tourFolder;
    /// What is wrong with the arguments; empty when nothing is.
    QString error;
};
