// Internal: what sliders tell those who do not see them.

#pragma once

#include <QAccessible>

class OvDoubleSlider;
class QAbstractSlider;

namespace SliderAccess {

/// Makes readers hear units of an OvDoubleSlider, where Qt would tell them its steps. Called by constructors:
/// Qt forgets factories with each application.
void install();

/// Says that @p slider has another value.
void announce(QAbstractSlider* slider);

/**
 * Keeps back what Qt says about the value of one slider, as long as it lives. QAbstractSlider says each step
 * of a drag, and only a handler in the place of the desktop's bridge can keep it from that. Everything else
 * is passed on.
 */
class Silence
{
public:
    explicit Silence(QAbstractSlider* slider);
    ~Silence();
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

    /// Whether there was something to say.
    bool hasHeld() const { return m_hasHeld; }

private:
    static void filter(QAccessibleEvent* event);

    QAbstractSlider* const m_slider;
    Silence* const m_outer;
    const QAccessible::UpdateHandler m_handler;
    bool m_hasHeld = false;
};

} // namespace SliderAccess
