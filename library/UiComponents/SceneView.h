// Internal: the view of QuickContent, which AccessibleFactory tells from a host's own.

#pragma once

#include <QQuickWidget>

/// It calls itself a QQuickWidget.
class SceneView : public QQuickWidget // clazy:exclude=missing-qobject-macro
{
public:
    using QQuickWidget::QQuickWidget;
};
