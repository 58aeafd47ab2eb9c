#pragma once

#include <UiComponents/BlendingMode.h>

#include <QImage>

/// Returns @p layer on @p below, blended in @p mode with the layer's alpha multiplied by @p opacity, 0 to 1.
/// @p below must be opaque, and both must have one size.
QImage blended(const QImage& below, const QImage& layer, BlendingMode mode, double opacity = 1);
