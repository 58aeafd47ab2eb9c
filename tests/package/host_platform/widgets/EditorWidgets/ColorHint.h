#pragma once

class QString;
class QWidget;

/// The studio's own hints: the name of one is the widget's whatsThis text.
namespace ColorHint {

void applyColorHint(QWidget* widget, const QString& hint);

} // namespace ColorHint
