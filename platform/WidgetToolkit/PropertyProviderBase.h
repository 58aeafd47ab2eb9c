#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QWidget>

/**
 * A hidden child through which a style sheet sets values of its parent.
 *
 * Derive from it, declare the values as Qt properties and read them when the owner paints or lays out. The
 * sheet selects the provider by its class name and sets the properties with `qproperty-`:
 *
 *     PointSelectionPlanePropertyHelper { qproperty-MarkerRadius: 5; }
 *
 * The parent is the owner; setting another parent gives it another owner. A provider is never visible, takes
 * no space in a layout, is left out by OvBoxLayout::autoFill(), and takes neither mouse nor focus. It is
 * polished before its owner sees its first polish, a resize or a paint, also if it is created after the
 * owner's polish, and again whenever the sheet changes: the first paint already shows the sheet's values.
 * @see LayoutController
 */
class WIDGETTOOLKIT_EXPORT PropertyProviderBase : public QWidget
{
    Q_OBJECT

public:
    /// @p owner becomes the parent. Null gives a provider of nothing.
    explicit PropertyProviderBase(QWidget* owner);
    ~PropertyProviderBase() override;

    /// Does nothing: a provider stays hidden.
    void setVisible(bool visible) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
};
