#include "PointSelectionPlanePropertyHelper.h"

PointSelectionPlanePropertyHelper::PointSelectionPlanePropertyHelper(QWidget* plane)
    : PropertyProviderBase(plane)
{
}

PointSelectionPlanePropertyHelper::~PointSelectionPlanePropertyHelper() = default;

void PointSelectionPlanePropertyHelper::setMarkerRadius(double radius)
{
    m_markerRadius = radius;
}

void PointSelectionPlanePropertyHelper::setMarkerColor(const QColor& color)
{
    m_markerColor = color;
}

void PointSelectionPlanePropertyHelper::setFillColor(const QColor& color)
{
    m_fillColor = color;
}

void PointSelectionPlanePropertyHelper::setCoordLinesWidth(int width)
{
    m_coordLinesWidth = width;
}

void PointSelectionPlanePropertyHelper::setCoordLinesColor(const QColor& color)
{
    m_coordLinesColor = color;
}
