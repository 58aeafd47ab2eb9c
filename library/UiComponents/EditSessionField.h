// Internal: uniform access to the value of the fields that EditSession supports.

#pragma once

#include <QVariant>

#include <functional>

class QEvent;
class QObject;
class QWidget;

/**
 * The value of one field, whatever its class. The functions are empty for a widget that is no value field.
 */
struct EditSessionField
{
    /// The value that the field shows.
    std::function<QVariant()> read;
    std::function<void(const QVariant&)> write;
    /// Calls a function when the value changes, until the context is destroyed. Some fields emit before they
    /// show the value, or twice.
    std::function<void(QObject* context, const std::function<void()>& changed)> watch;
    /// The same for signals that a user's choice alone emits, also a choice of the present value.
    std::function<void(QObject* context, const std::function<void()>& chosen)> watchChoice;

    static EditSessionField of(QWidget* field);

    /// Whether a key or wheel event asks @p part to step beyond its range, or to delete from an empty text,
    /// which it does not report. Sliders do.
    static bool isAtEnd(QObject* part, const QEvent* event);

    /// Exact, also where QVariant compares with a tolerance or not at all.
    static bool isSame(const QVariant& one, const QVariant& other);
};
