// Internal: the styleable values of PointSelectionPlane.

#pragma once

#include <WidgetToolkit/PropertyProviderBase.h>

#include <QColor>

/**
 * Through this hidden child a style sheet gives a PointSelectionPlane its colours and sizes:
 *
 *     PointSelectionPlanePropertyHelper { qproperty-MarkerRadius: 5; qproperty-MarkerColor: white; }
 *
 * A write repaints nothing and tells nobody. A sheet that is set repaints the plane anyhow, and "FillColor"
 * waits for the plane's next resize.
 */
class PointSelectionPlanePropertyHelper : public PropertyProviderBase
{
    Q_OBJECT
    /// Of the marker's circle, in pixels; 0 at first.
    Q_PROPERTY(double MarkerRadius READ markerRadius WRITE setMarkerRadius)
    /// Of the marker's inside. An invalid colour, as at first, hides the marker.
    Q_PROPERTY(QColor MarkerColor READ markerColor WRITE setMarkerColor)
    /// Of the plane; invalid at first, which is painted black.
    Q_PROPERTY(QColor FillColor READ fillColor WRITE setFillColor)
    /// Of the axes and the marker's outline, in pixels; 0 at first, the thinnest line there is.
    Q_PROPERTY(int CoordLinesWidth READ coordLinesWidth WRITE setCoordLinesWidth)
    /// Of the axes and the marker's outline; invalid at first, which is painted black.
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
