#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <QPointF>

#include <memory>

/**
 * A field for a position: a PointSelectionPlane and, on its trailing side, a spin box each for x and y.
 *
 *     auto* position = new PointSelectorWidget(form, {{-1.0, -1.0}, {1.0, 1.0}, 2, 2});
 *     position->setValue({0.25, 0.0});
 *     connect(position, &PointSelectorWidget::valueChanged, this, &Layer::moveTo);
 *
 * A point picked on the plane goes to the spin boxes, which round it to their decimals and clamp it to their
 * range; the plane keeps it as picked. A spin box that changes takes its value and the other's to the plane.
 * Text is never rewritten while it is typed, and both "." and "," are decimal marks. The wheel steps a spin
 * box only while it has focus.
 *
 * A new field is at the values of the ranges that are nearest to 0.
 *
 * Tab stops at the plane, at x and at y; a label whose buddy is the field gives the focus to the plane. From
 * right to left the plane stands on the right, and is not mirrored itself.
 *
 * **Readers.** They find a group of two spin boxes, "name, x" and "name, y", and of the plane, whose two
 * sliders are called the same, with the keys of PointSelectionPlane.
 *
 * **Style sheet.** The object names are "pointSelectorFrame" with "pointSelector", and "spinBoxFrame" with
 * "xSpinboxFrame" ("xLabel", "xSpinbox") and "ySpinboxFrame" ("yLabel", "ySpinbox"). The labels have no text:
 * a sheet may give them an image. The frames' metrics are OvFrame's properties: `PointSelectorWidget {
 * qproperty-layoutSpacing: 8; }`.
 * @see PointSelectionPlane for the plane's size and colours
 */
class UICOMPONENTS_EXPORT PointSelectorWidget : public OvFrame
{
    Q_OBJECT

public:
    /// The range of a field and its decimals.
    ///
    /// A maximum below its minimum inverts the plane's axis, and leaves the spin box its minimum as the only
    /// value. Infinite ends are taken as they are: the plane has no scale then, and its marker's place means
    /// nothing. NaN is no end to the spin box and leaves the plane without a scale.
    struct Initializer
    {
        /// The minimum of x and of y.
        QPointF minimum;
        /// The maximum of x and of y.
        QPointF maximum;
        /// Between 0 and 323; others are clamped. A step is one unit of the last decimal, unless they are
        /// clamped.
        int xDecimals;
        int yDecimals;
    };

    /// @p parent owns the field. Emits nothing.
    PointSelectorWidget(QWidget* parent, const Initializer& init);
    /// Of 0 to 1 in both directions, with 2 decimals, for forms.
    explicit PointSelectorWidget(QWidget* parent);
    ~PointSelectorWidget() override;

    /// The position that the spin boxes show, to which they have rounded a point picked on the plane.
    QPointF value() const;

    /// Sets other ranges and decimals. Emits valueChanged() once if the position has to move into them or to
    /// be rounded, and nothing else.
    void setRange(const Initializer& range);

    /// Sets x, then y, each rounded and clamped by its spin box. Reports a change as the user's, once for
    /// each coordinate that differs. Clamps infinite coordinates and ignores one that is NaN.
    void setValue(const QPointF& value);

Q_SIGNALS:
    /// The position became @p value, by the user or through setValue().
    ///
    /// Each part reports: a spin box its change with the other's value, the plane every pointChanged(). So a
    /// picked point arrives up to three times: as picked, then with x as the spin box rounded it and the old
    /// y, then in full.
    ///
    /// A slot may set another value: the three parts then agree, and pending reports of the earlier one come
    /// last. The earlier y is still set after a slot of the report of x. While the user types or steps in a
    /// spin box, or leaves it, a slot must delete the field with deleteLater(), since QAbstractSpinBox still
    /// uses it after the signal.
    void valueChanged(QPointF value);

protected:
    void changeEvent(QEvent* e) override;

private:
    class UICOMPONENTS_NO_EXPORT Private;
    // True while the parts are synchronised: what they report meanwhile goes to the host only.
    bool updating = false;
    const std::unique_ptr<Private> d;
};
