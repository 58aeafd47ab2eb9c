#pragma once

#include "CommandLine.h"

#include <QImage>
#include <QStringList>

class MainWindow;

/**
 * Renders every page, or one, to pictures in every style.
 */
class Tour
{
public:
    /// @p request has the folder, the page or none, and the language and direction of the pictures.
    explicit Tour(CommandLine request);

    /// Writes all pictures. Returns false when a picture failed or a warning was logged.
    bool run();

    /// The failures of run(), one line each.
    QStringList failures() const { return m_failures; }

    /// The window with the bubbles that its page has opened.
    static QImage picture(MainWindow* window);

private:
    void render(const QString& page, const QString& style);

    const CommandLine m_request;
    QStringList m_failures;
};
