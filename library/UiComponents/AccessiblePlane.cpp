#include "AccessiblePlane.h"

#include "AccessibleNames.h"
#include "PlaneDrag.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

class AccessibleAxis : public QAccessibleInterface, public QAccessibleValueInterface
{
public:
    AccessibleAxis(const AccessiblePlane* plane, int axis)
        : m_plane(plane)
        , m_axis(axis)
    {
    }
    ~AccessibleAxis() override = default;

    bool isValid() const override { return m_plane->isValid(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_plane->object());
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QRect rect() const override { return m_plane->rect(); }
    QAccessible::Role role() const override { return QAccessible::Slider; }
    void setText(QAccessible::Text, const QString&) override {}

    QAccessible::State state() const override
    {
        QAccessible::State state = m_plane->state();
        // The plane has the focus, and the keys for both axes.
        state.focusable = false;
        state.focused = false;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
            return m_plane->axisName(m_axis);
        case QAccessible::Value:
            return QLocale().toString(currentValue().toDouble(), 'g', 6);
        default:
            return {};
        }
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
    }

    QVariant currentValue() const override
    {
        const QPointF values = m_plane->drag()->values();
        return m_axis == 0 ? values.x() : values.y();
    }

    void setCurrentValue(const QVariant& value) override
    {
        m_plane->drag()->setValue(m_axis, value.toDouble());
    }

    QVariant minimumValue() const override
    {
        const QRectF range = m_plane->drag()->range().normalized();
        return m_axis == 0 ? range.left() : range.top();
    }

    QVariant maximumValue() const override
    {
        const QRectF range = m_plane->drag()->range().normalized();
        return m_axis == 0 ? range.right() : range.bottom();
    }

    QVariant minimumStepSize() const override
    {
        const QSizeF step = m_plane->drag()->step();
        return m_axis == 0 ? step.width() : step.height();
    }

private:
    const AccessiblePlane* const m_plane;
    const int m_axis;
};

} // namespace

AccessiblePlane::AccessiblePlane(QWidget* plane, PlaneDrag* drag, const char* context,
                                 const std::array<const char*, 2>& names)
    : AccessiblePart(plane, QAccessible::Grouping)
    , m_drag(drag)
    , m_context(context)
    , m_names(names)
{
}

AccessiblePlane::~AccessiblePlane()
{
    for (const QAccessible::Id id : m_children) {
        if (id != 0) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }
}

int AccessiblePlane::childCount() const
{
    return static_cast<int>(m_children.size());
}

QAccessibleInterface* AccessiblePlane::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    QAccessible::Id& id = m_children[static_cast<std::size_t>(index)];
    if (id == 0) {
        id = QAccessible::registerAccessibleInterface(new AccessibleAxis(this, index));
    }
    return QAccessible::accessibleInterface(id);
}

/// Null: both children cover the whole plane.
QAccessibleInterface* AccessiblePlane::childAt(int x, int y) const
{
    Q_UNUSED(x)
    Q_UNUSED(y)
    return nullptr;
}

int AccessiblePlane::indexOfChild(const QAccessibleInterface* child) const
{
    for (int i = 0; i < childCount(); ++i) {
        if (this->child(i) == child) {
            return i;
        }
    }
    return -1;
}

QString AccessiblePlane::axisName(int axis) const
{
    const QString name = QCoreApplication::translate(m_context, m_names[static_cast<std::size_t>(axis)]);
    // The plane of colours is named by its axes already.
    const bool isPartOfPanel = widget()->inherits("ColorPlaneWidget");
    return isPartOfPanel ? name : AccessibleNames::joined(text(QAccessible::Name), name);
}

PlaneDrag* AccessiblePlane::drag() const
{
    return m_drag;
}
