// Internal: notifies readers of changed values.

#pragma once

class QWidget;

namespace AccessibleEvents {

/// Sends an event for the new value of @p widget, or of the child @p index of its accessible interface, if it
/// is not negative. Does nothing while accessibility is inactive. While a mouse button is down, as in a drag,
/// the event is held back and sent once, on release.
void valueChanged(QWidget* widget, int index = -1);

/// Sends DescriptionChanged and Alert for @p widget, so that its new state is read now.
void alert(QWidget* widget);

} // namespace AccessibleEvents
