// Internal: what the application owns for the library, until that is unloaded.

#pragma once

class QObject;

/// The parent, or the context, of what belongs to no component: a child of the application that is deleted
/// when the library is unloaded, before its code is gone.
///
/// Not the context of QTimer::singleShot(), whose timer keeps a function after its context is deleted.
QObject* libraryObject();
