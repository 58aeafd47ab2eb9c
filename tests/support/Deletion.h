#pragma once

#include <QEventLoop>
#include <QObject>
#include <QTimer>

/// How a slot deletes an object.
enum class Deletion {
    AtOnce,
    /// Something else does while the slot runs an event loop, as for a message box.
    InANestedLoop,
    LaterInANestedLoop,
};

inline constexpr auto allDeletions = {Deletion::AtOnce, Deletion::InANestedLoop,
                                      Deletion::LaterInANestedLoop};

/// Returns when @p object is gone, with all that it leaves to the event loop.
inline void destroy(QObject* object, Deletion how)
{
    if (how == Deletion::AtOnce) {
        delete object;
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [object, how] {
        if (how == Deletion::InANestedLoop) {
            delete object;
        } else {
            object->deleteLater();
        }
    });
    // A turn later: deletions that the object has deferred in its destructor come first.
    QObject::connect(object, &QObject::destroyed, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    loop.exec();
}
