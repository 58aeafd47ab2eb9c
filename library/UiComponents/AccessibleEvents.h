// Internal: notifies assistive technologies of changed values.

#pragma once

class QWidget;

namespace AccessibleEvents {

/// Says that @p widget shows another value, or the child @p index of its accessible interface, if it is not
/// negative. Nothing is done while nobody listens. While a mouse button is down, as in a drag, it is said
/// once when the button is up again, however often the value changed.
void valueChanged(QWidget* widget, int index = -1);

/// Says that the description of @p widget, or its state, is another one, and that it should be read now.
void alert(QWidget* widget);

} // namespace AccessibleEvents
