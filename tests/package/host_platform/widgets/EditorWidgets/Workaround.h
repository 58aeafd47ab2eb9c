#pragma once

class QWidget;

/// The studio's desktop needs no workarounds.
namespace Workaround::Ui {

void apply(QWidget* widget);

} // namespace Workaround::Ui
