#pragma once

#include <UiComponents/BlendingMode.h>

#include <QImage>

/// What is seen when @p layer lies on @p below in @p mode, with the layer's alpha multiplied by @p opacity,
/// 0 to 1. @p below must be opaque, and both of one size.
QImage blended(const QImage& below, const QImage& layer, BlendingMode mode, double opacity = 1);
