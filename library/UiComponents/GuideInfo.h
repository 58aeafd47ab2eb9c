#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QString>

/**
 * The texts of a guide, a short piece of help next to a control.
 *
 *     const GuideInfo info(tr("Ripple delete"), tr("Closes the gap that a deleted clip leaves."),
 *                          tr("<a href=\"https://example.org/ripple\">Learn more</a>"),
 *                          QStringLiteral(":/guides/ripple.gif"));
 *
 * A plain value. Every field may be empty, which is the default: GuideWidget leaves it out.
 * @see GuideButton, GuideWidget, DialogGuideInfo
 */
struct UICOMPONENTS_EXPORT GuideInfo
{
    GuideInfo();
    /// The order is not that of the fields.
    GuideInfo(const QString& title, const QString& description, const QString& learnMore,
              const QString& moviePath);
    GuideInfo(const GuideInfo& other);
    GuideInfo(GuideInfo&& other) noexcept;
    GuideInfo& operator=(const GuideInfo& other);
    GuideInfo& operator=(GuideInfo&& other) noexcept;
    ~GuideInfo();

    /// Whether all four strings are equal. Paths are compared as written.
    bool operator==(const GuideInfo& other) const;

    /// The heading, as plain text.
    QString title;
    /// The path of an animated picture: a file, or a resource (":/...").
    QString moviePath;
    /// The description, as plain or rich text as in QLabel.
    QString description;
    /// A line of rich text with a link to further reading.
    QString learnMore;
};
