#pragma once

class PathSelectionWidget;

/// Gives @p field what a host has to: a folder dialog of Qt's, open beside the field when its button is
/// clicked, and the space that is free where its path is, whenever that is reported.
void connectToDisk(PathSelectionWidget* field);
