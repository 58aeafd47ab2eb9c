// Internal: the accessible names of components and their parts.

#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace AccessibleNames {

/// The component that @p widget is a part of; null where there is none in its window.
QWidget* componentOf(const QWidget* widget);

/// What the host has called @p widget: its accessible name, or the text of the label whose buddy it is.
QString ownName(const QWidget* widget);

/// The text of @p label without the mark of its mnemonic, the colon at its end and rich text's tags.
QString plainText(const QLabel* label);

/// Its own name, or the one that its component has for it, in the language of now.
QString nameOf(const QWidget* widget);

/// The name of @p component followed by that of a part of it; one of them where the other is empty.
QString joined(const QString& component, const QString& part);

/// Both texts, as the language of now puts one sentence after the other; one of them where the other is
/// empty.
QString sentences(const QString& first, const QString& second);

/// Whether it is called what its component is called, and by nothing of its own.
bool isNamedByComponent(const QWidget* widget);

/// Whether its component has a name for it.
bool hasEntry(const QWidget* widget);

/// What is to be said about the part besides its name; empty for most.
QString hintOf(const QWidget* widget);

} // namespace AccessibleNames
