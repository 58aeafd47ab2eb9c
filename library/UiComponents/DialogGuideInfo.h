#pragma once

#include <QString>

/**
 * The texts of one step of a walk through an application.
 *
 *     const DialogGuideInfo info{tr("The timeline"), tr("Clips lie here, one after the other."),
 *                                tr("Next"), tr("Back"), QStringLiteral(":/tour/timeline.gif")};
 *
 * A plain value. Every field may be empty, which is the default.
 * @see DialogGuideWidget, GuideInfo
 */
struct DialogGuideInfo
{
    /// The heading, as plain text. Hidden when empty.
    QString title;
    /// The description, as plain or rich text as in QLabel.
    QString description;
    /// The texts of the two buttons; "&" marks a mnemonic. An empty one leaves an empty button.
    QString mainButtonText;
    QString secondaryButtonText;
    /// The path of an animated picture: a file, or a resource (":/..."). Hidden when it does not exist.
    QString moviePath;
};
