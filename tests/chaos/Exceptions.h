#pragma once

#include "World.h"

/**
 * What hosts must not do, as the headers say, and what Qt does not survive by itself.
 */
namespace Exceptions {

/// The row that forbids to delete @p victim at once, as @p world stands: its number in the table, or -1.
int forbidding(const World& world, const QObject* victim);

/// Whether a slot must not run an event loop, as @p world stands.
bool forbidsLoop(const World& world);

/// Whether Qt survives that a property of that name gets @p value.
bool maySet(const QByteArray& property, const QVariant& value);

/// Whether Qt survives that @p widget is painted into a picture.
bool mayGrab(const QWidget* widget);

/// Whether a warning of this text is the answer to what the program did, and no defect.
bool isExpected(const QString& message);

/// Whether these events may be delivered for ever, each turn anew.
bool mayGoOn(const QString& delivered);

/// Whether @p object may stay pressed when nobody presses it.
bool mayStayPressed(const QObject* object);

/// Prints what is cited that the headers below @p root do not say. The number of such rows.
int checkCitations(const QString& root);

} // namespace Exceptions
