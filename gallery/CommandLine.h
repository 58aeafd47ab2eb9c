#pragma once

#include <QString>
#include <QStringList>

/**
 * The arguments of the gallery.
 */
struct CommandLine
{
    enum class Action {
        Show,
        Tour,
        List,
        StylingManual,
        Code,
        Help,
    };

    /// Reads the program's arguments, the first of which is its name.
    static CommandLine parse(const QStringList& arguments);

    static QString helpText();

    /// The arguments, without the program's name, that start the gallery with the same page and switches.
    QStringList arguments() const;

    Action action = Action::Show;
    /// Empty: the first page, or every page of a tour.
    QString page;
    /// "dark", "light", "none", or the path of an existing style sheet.
    QString style = QStringLiteral("dark");
    QString language = QStringLiteral("en");
    Qt::LayoutDirection direction = Qt::LeftToRight;
    QString tourFolder;
    /// Describes the first wrong argument; empty when all are right.
    QString error;
};
