// Internal: the accessible names of components and their parts.

#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace AccessibleNames {

/// The component that @p widget is a part of; null where there is none in its window.
QWidget* componentOf(const QWidget* widget);

/// The label whose buddy @p widget is, beside it or further up in its window.
QLabel* labelOf(const QWidget* widget);

/// The name that the host gave @p widget: its accessible name, or the text of its label.
QString ownName(const QWidget* widget);

/// The text of @p label without the mark of its mnemonic, the colon at its end and rich text's tags.
QString plainText(const QLabel* label);

/// Its own name, or the one that its component has for it, in the current language.
QString nameOf(const QWidget* widget);

/// The name of @p component followed by that of a part of it; one of them where the other is empty.
QString joined(const QString& component, const QString& part);

/// Both texts, as the current language joins two sentences; one of them where the other is empty.
QString sentences(const QString& first, const QString& second);

/// Whether it has no name of its own and takes its component's.
bool isNamedByComponent(const QWidget* widget);

/// Whether its component has a name for it.
bool hasEntry(const QWidget* widget);

/// A sentence for the accessible description of the part; empty for most.
QString hintOf(const QWidget* widget);

} // namespace AccessibleNames
