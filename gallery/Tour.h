#pragma once

#include "CommandLine.h"

#include <QImage>
#include <QStringList>

class MainWindow;

/**
 * Renders pages to pictures without a user: every page, or the one that is asked for, in every style.
 */
class Tour
{
public:
    /// @p request names the folder, and the language and direction of the pictures.
    explicit Tour(CommandLine request);

    /// Writes all pictures. False when one of them could not be made or a warning was logged.
    bool run();

    /// What went wrong, one line each.
    QStringList failures() const { return m_failures; }

    /// The window as a user sees it, with the bubbles that its page has opened.
    static QImage picture(MainWindow* window);

private:
    void render(const QString& page, const QString& style);

    const CommandLine m_request;
    QStringList m_failures;
};
