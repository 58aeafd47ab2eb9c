// Internal: what Util::installLayoutController() attaches.

#pragma once

#include "LayoutController.h"
#include "PropertyProviderBase.h"

/// Controls the layout of a widget that is no LayoutController itself. As a child widget it can be
/// selected in a style sheet, by this class name.
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
