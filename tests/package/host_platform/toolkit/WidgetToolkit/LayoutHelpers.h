#pragma once

class QWidget;

namespace LayoutHelpers {

/// An item of the studio's own rows and columns.
struct BoxItem
{
    QWidget* widget;
    int stretch;
};

} // namespace LayoutHelpers
