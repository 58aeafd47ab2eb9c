// Internal: the styleable values of PointSelectionPlane.

#pragma once

#include <WidgetToolkit/PropertyProviderBase.h>

#include <QColor>

/**
 * The hidden child through which a style sheet sets the colours and sizes of a PointSelectionPlane:
 *
 *     PointSelectionPlanePropertyHelper { qproperty-MarkerRadius: 5; qproperty-MarkerColor: white; }
 *
 * Setters neither repaint nor notify; "FillColor" takes effect on the plane's next resize. A new sheet
 * repaints the plane, with all that it sets.
 */
class PointSelectionPlanePropertyHelper : public PropertyProviderBase
{
    Q_OBJECT
    /// The radius of the marker, in pixels; 0 by default.
    Q_PROPERTY(double MarkerRadius READ markerRadius WRITE setMarkerRadius)
    /// The fill of the marker. Invalid, the default, hides the marker.
    Q_PROPERTY(QColor MarkerColor READ markerColor WRITE setMarkerColor)
    /// The background; invalid by default, which is the Base of the plane's palette.
    Q_PROPERTY(QColor FillColor READ fillColor WRITE setFillColor)
    /// The width of axes and marker outline, in pixels; 0 by default, a cosmetic pen.
    Q_PROPERTY(int CoordLinesWidth READ coordLinesWidth WRITE setCoordLinesWidth)
    /// The colour of axes and marker outline; invalid by default, which is the Text of the plane's palette.
    Q_PROPERTY(QColor CoordLinesColor READ coordLinesColor WRITE setCoordLinesColor)

public:
    /// @p plane owns the helper.
    explicit PointSelectionPlanePropertyHelper(QWidget* plane);
    ~PointSelectionPlanePropertyHelper() override;

    double markerRadius() const { return m_markerRadius; }
    void setMarkerRadius(double radius);

    QColor markerColor() const { return m_markerColor; }
    void setMarkerColor(const QColor& color);

    QColor fillColor() const { return m_fillColor; }
    void setFillColor(const QColor& color);

    int coordLinesWidth() const { return m_coordLinesWidth; }
    void setCoordLinesWidth(int width);

    QColor coordLinesColor() const { return m_coordLinesColor; }
    void setCoordLinesColor(const QColor& color);

private:
    double m_markerRadius = 0.0;
    QColor m_markerColor;
    QColor m_fillColor;
    int m_coordLinesWidth = 0;
    QColor m_coordLinesColor;
};
