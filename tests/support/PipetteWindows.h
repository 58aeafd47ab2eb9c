#pragma once

#include <QApplication>
#include <QWidget>

/// The windows with which a pipette covers the screens at the moment, for tests that know its public class
/// only.
inline QWidgetList pipetteWindows()
{
    QWidgetList found;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->inherits("PipetteScreenView") && window->isVisible()) {
            found.append(window);
        }
    }
    return found;
}
