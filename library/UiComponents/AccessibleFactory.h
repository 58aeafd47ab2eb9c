// Internal: gives the components their accessible interfaces, until the library is unloaded.

#pragma once

class QAccessibleInterface;
class QObject;
class QString;

namespace AccessibleFactory {

/// Called by the constructors of components, the first of which installs the factory: Qt asks the one that
/// came last first, and QApplication installs Qt's own, which knows parts by the names of Qt's classes.
void install();

/// For QAccessible::installFactory(). Null for what is neither a component nor a part of one.
QAccessibleInterface* interfaceFor(const QString& className, QObject* object);

} // namespace AccessibleFactory
