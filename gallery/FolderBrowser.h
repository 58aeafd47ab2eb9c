#pragma once

class PathSelectionWidget;

/// Does for @p field what a host does: opens Qt's folder dialog when the user wants to browse, and shows the
/// free space at each path that the field reports.
void connectToDisk(PathSelectionWidget* field);
