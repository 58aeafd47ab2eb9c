#include "InstalledLayoutController.h"

#include <QEvent>

InstalledLayoutController::InstalledLayoutController(QWidget* widget)
    : PropertyProviderBase(widget)
{
}

InstalledLayoutController::~InstalledLayoutController() = default;

QLayout* InstalledLayoutController::getLayout() const
{
    const QWidget* const widget = parentWidget();
    return widget ? widget->layout() : nullptr;
}

bool InstalledLayoutController::eventFilter(QObject* watched, QEvent* event)
{
    const bool consumed = PropertyProviderBase::eventFilter(watched, event);
    if (watched == parent() && (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Polish)) {
        applyLayoutMetrics();
    }
    return consumed;
}
