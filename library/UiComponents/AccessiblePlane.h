// Internal: the accessible interface of ColorPlaneWidget and PointSelectionPlane.

#pragma once

#include "AccessibleParts.h"

#include <array>

class PlaneDrag;

/// A group of two sliders, which are there for readers only.
class AccessiblePlane : public AccessiblePart
{
public:
    /// With the names of the axes, to be translated in @p context.
    AccessiblePlane(QWidget* plane, PlaneDrag* drag, const char* context,
                    const std::array<const char*, 2>& names);
    ~AccessiblePlane() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

    QString axisName(int axis) const;
    PlaneDrag* drag() const;

private:
    PlaneDrag* const m_drag;
    const char* const m_context;
    const std::array<const char*, 2> m_names;
    mutable std::array<QAccessible::Id, 2> m_children{};
};
