// Internal: what Util::installLayoutController() attaches.

#pragma once

#include "LayoutController.h"
#include "PropertyProviderBase.h"

/// Controls the layout of its parent, which is not a LayoutController. Style sheets select it by its class
/// name.
class InstalledLayoutController : public PropertyProviderBase, public LayoutController
{
    Q_OBJECT
    LAYOUT_CONTROLLER_PROPERTIES

public:
    explicit InstalledLayoutController(QWidget* widget);
    ~InstalledLayoutController() override;

    QLayout* getLayout() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;
};
