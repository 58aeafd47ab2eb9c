#pragma once

#include <QApplication>

class World;

/// Notes what is delivered.
class Application : public QApplication
{
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override;

    /// The present one, or null.
    World* world = nullptr;
};

/**
 * What holds whenever a window has come to its end. Each is a failure of the program otherwise.
 */
namespace Invariants {

/// The file of the library or program that the class of @p object is in.
QByteArray libraryOf(const QObject* object);

/// Whether @p object is a button or a slider that is held down.
bool isPressed(const QObject* object);

/// To be called before the application is made.
void begin();
/// Remembers what there is before the first window.
void rememberObjects();

/// From here on nobody may write to what is deleted.
void beginWindow();

/// Nothing goes on any more while time stands still: no painting that leads to the next one.
void checkAtRest();
/// Nobody picks, grabs, is pressed or waits any more.
void checkSettled();
/// Nothing of the windows is left: objects, timers, event filters, cursors.
void checkEmpty();

/// Is called between any two steps: fails when the former took a second of the processor's, or waited.
void noteStep();
/// Whether the present step waits for longer than anything may.
bool isWaiting();

} // namespace Invariants
