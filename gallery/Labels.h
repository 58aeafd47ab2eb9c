#pragma once

class QLabel;

/// Puts the text of @p label at the leading edge of the application's direction. By itself a label goes by
/// the direction of its text, which leaves a text that is not translated at the wrong edge.
void alignToLeadingEdge(QLabel* label);
