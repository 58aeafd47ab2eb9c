// Internal: accessibility of sliders.

#pragma once

#include <QAccessible>

class OvDoubleSlider;
class QAbstractSlider;

namespace SliderAccess {

/// Installs the factory that reports an OvDoubleSlider's value in units. Called by each constructor, since Qt
/// drops factories with the application.
void install();

/// Sends a ValueChanged event for @p slider.
void announce(QAbstractSlider* slider);

/**
 * Suppresses the value events of one slider while it exists. QAbstractSlider sends one for each step of a
 * drag, and only a handler in the place of the desktop's bridge can suppress it. All other events are passed
 * on.
 */
class Silence
{
public:
    explicit Silence(QAbstractSlider* slider);
    ~Silence();
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

    /// Whether an event was suppressed.
    bool hasHeld() const { return m_hasHeld; }

private:
    static void filter(QAccessibleEvent* event);

    QAbstractSlider* const m_slider;
    Silence* const m_outer;
    const QAccessible::UpdateHandler m_handler;
    bool m_hasHeld = false;
};

} // namespace SliderAccess
