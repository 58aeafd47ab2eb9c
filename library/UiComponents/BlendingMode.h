#pragma once

#include <QMetaType>

/**
 * How the colour of a layer is combined with what lies under it.
 *
 * Projects store the numbers, so they never change, and the number of a removed mode is never reused. The
 * library only names the modes; blending is the renderer's work. `BlendingMode` is registered as a meta type.
 * @see ColorBlendingComboBox, which offers all fourteen
 * @ingroup colour
 */
enum class BlendingMode {
    Overlay = 0,     ///< multiplies what is dark below and screens what is light
    Lighten = 1,     ///< the lighter of the two, channel by channel
    Color = 2,       ///< hue and saturation of the layer, lightness of what lies below
    ColorDodge = 3,  ///< brightens what lies below, with more contrast
    LinearDodge = 4, ///< the sum of both
    SourceOver = 5,  ///< the layer covers what lies below: no blending
    Screen = 6,      ///< multiplies the inverse of both, and inverts the product
    Difference = 7,  ///< the distance between the two
    Multiply = 8,    ///< the product of both
    Darken = 9,      ///< the darker of the two, channel by channel
    ColorBurn = 10,  ///< darkens what lies below, with more contrast
    HardLight = 11,  ///< Overlay with the two exchanged
    SoftLight = 12,  ///< a gentler HardLight
    Exclusion = 13,  ///< Difference with less contrast
};

Q_DECLARE_METATYPE(BlendingMode)
