#pragma once

#include <QLabel>

/// A label with the object name @p name and its text at the leading edge of the application's direction.
/// By default a label goes by the direction of its text, which leaves an untranslated text at the wrong edge.
QLabel* makeLabel(const char* name, const QString& text, QWidget* parent);
