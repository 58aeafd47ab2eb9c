// Internal: changes formats in the texts of GuideLabel, and of what SheetColors finds.

#pragma once

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>

/// Calls @p change with the format of each part of the text, which gets it where that returns true.
template <typename Change>
void reformat(QTextDocument* document, Change change)
{
    struct Part
    {
        int from;
        int length;
        QTextCharFormat format;
    };
    QVector<Part> changed; // by position, since a change invalidates the iterators
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QTextCharFormat format = it.fragment().charFormat();
            if (change(&format)) {
                changed.append({it.fragment().position(), it.fragment().length(), format});
            }
        }
    }
    for (const Part& part : qAsConst(changed)) {
        QTextCursor cursor(document);
        cursor.setPosition(part.from);
        cursor.setPosition(part.from + part.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(part.format);
    }
}
