#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QWidget>

/**
 * A hidden child through which a style sheet sets values of the widget that it serves.
 *
 * Derive from it, declare the values as Qt properties and read them when the owner paints or lays out.
 * The sheet selects the provider by its class name and writes the properties with `qproperty-`:
 *
 *     PointSelectionPlanePropertyHelper { qproperty-MarkerRadius: 5; }
 *
 * The owner is the parent and deletes the provider. A provider is never visible, whatever is called on
 * it, takes no space in a layout, is left out by OvBoxLayout::autoFill(), and never takes mouse or
 * focus. It is polished before its owner is told of its own first polish, of a resize or of a paint, also
 * when it is made after the owner was polished, and again whenever the sheet changes, so that the first
 * picture already shows the sheet's values. Setting another parent gives it another owner.
 */
class WIDGETTOOLKIT_EXPORT PropertyProviderBase : public QWidget
{
    Q_OBJECT

public:
    /// @p owner is the widget that is served; it becomes the parent. Null gives a provider of nothing.
    explicit PropertyProviderBase(QWidget* owner);
    ~PropertyProviderBase() override;

    /// Does nothing: a provider stays hidden.
    void setVisible(bool visible) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
};
