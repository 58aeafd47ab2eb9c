#pragma once

#include <QString>

/**
 * What one step of a walk through an application says; see DialogGuideWidget.
 *
 *     const DialogGuideInfo info{tr("The timeline"), tr("Clips lie here, one after the other."),
 *                                tr("Next"), tr("Back"), QStringLiteral(":/tour/timeline.gif")};
 *
 * A plain value. Every field may be empty, and is at first.
 */
struct DialogGuideInfo
{
    /// The heading: text, not markup. Hidden when empty.
    QString title;
    /// The body. Plain or rich text, as QLabel tells them apart.
    QString description;
    /// The texts of the two buttons; "&" marks a mnemonic. An empty one leaves an empty button.
    QString mainButtonText;
    QString secondaryButtonText;
    /// The path of an animated image: a file, or a resource (":/..."). Hidden when it does not exist.
    QString moviePath;
};
