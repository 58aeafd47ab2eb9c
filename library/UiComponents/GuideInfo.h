#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QString>

/**
 * What a guide says: the texts of a short piece of help that stands next to a control.
 *
 *     const GuideInfo info(tr("Ripple delete"), tr("Closes the gap that a deleted clip leaves."),
 *                          tr("<a href=\"https://example.org/ripple\">Learn more</a>"),
 *                          QStringLiteral(":/guides/ripple.gif"));
 *
 * A plain value. Every field may be empty, and is at first: GuideWidget leaves out what is empty.
 */
struct UICOMPONENTS_EXPORT GuideInfo
{
    GuideInfo();
    /// Mind the order: it is not that of the fields.
    GuideInfo(const QString& title, const QString& description, const QString& learnMore,
              const QString& moviePath);
    GuideInfo(const GuideInfo& other);
    GuideInfo(GuideInfo&& other) noexcept;
    GuideInfo& operator=(const GuideInfo& other);
    GuideInfo& operator=(GuideInfo&& other) noexcept;
    ~GuideInfo();

    /// Whether all four strings are equal. Paths are compared as they are written.
    bool operator==(const GuideInfo& other) const;

    /// The heading: text, not markup.
    QString title;
    /// The path of an animated image: a file, or a resource (":/...").
    QString moviePath;
    /// The body. Plain or rich text, as QLabel tells them apart.
    QString description;
    /// A line of rich text with a link to further reading.
    QString learnMore;
};
