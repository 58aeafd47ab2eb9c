#pragma once

#include <DesignElements/DesignElementsExport.h>
#include <WidgetToolkit/OvCustomSlider.h>

namespace Orvane::Tessel {

/**
 * A slider with the design system's look: a slim groove and a round handle.
 *
 * A click on the groove goes to that place, the wheel moves it only with focus, and it is vertical by default
 * (see OvCustomSlider).
 *
 * **Style sheet.** QSlider's sub-controls set the look:
 *
 *     Orvane--Tessel--TesselElegantSlider::groove:horizontal { height: 4px; background: #444444; }
 *     Orvane--Tessel--TesselElegantSlider::handle:horizontal { width: 14px; margin: -5px 0; }
 *
 * Where no sheet has a rule for its groove, it draws itself, on the sheet's background if there is one, in
 * the colours of its palette: `Mid` for the groove, `Highlight` for the part below the value and the focus
 * ring, `Light` for the handle, and for its edge the middle of `Window` and `WindowText`.
 * @see OvCustomSlider
 */
class DESIGNELEMENTS_EXPORT TesselElegantSlider : public OvCustomSlider
{
    Q_OBJECT

public:
    /// @p parent owns the slider; null makes it a window.
    explicit TesselElegantSlider(QWidget* parent = nullptr);
    ~TesselElegantSlider() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Orvane::Tessel
