// Internal: where PopupColorPicker opens its pop-up.

#pragma once

#include <QPoint>
#include <QRect>

class QWidget;

/// The top-left corner of a pop-up of @p size beside @p field: below it, or above where there is no room
/// below, level with its leading edge, and inside @p screen. All in global coordinates.
QPoint popupPosition(const QRect& field, const QSize& size, const QRect& screen,
                     Qt::LayoutDirection direction);

/// The same for the widget @p field, where SelectorPlacement::areaFor() has a pop-up of it.
QPoint popupPosition(const QWidget* field, const QSize& size);
