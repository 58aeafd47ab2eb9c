// Internal: the view of QuickContent, which AccessibleFactory distinguishes from a host's own.

#pragma once

#include <QQuickWidget>

/// Its class name is QQuickWidget's.
class SceneView : public QQuickWidget // clazy:exclude=missing-qobject-macro
{
public:
    using QQuickWidget::QQuickWidget;
};
