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
 * The three are kept in step. A point that is picked on the plane goes to the spin boxes, which round it to
 * their decimals and clamp it to their range; the plane keeps the point as it was picked. A spin box that
 * changes takes both its and the other's value to the plane. Text is never rewritten while it is being
 * typed, and both "." and "," are decimal marks. The wheel steps a spin box only while it has focus.
 *
 * The field has no getter: the host keeps what it was told last. A new field is at the values of the ranges
 * that are nearest to 0.
 *
 * Tab stops at the plane, at x and at y; a label whose buddy is the field gives its focus to the plane. From
 * right to left the plane stands on the right, and is not mirrored itself.
 *
 * **Style sheet.** The object names are "pointSelectorFrame" with "pointSelector" in it, and "spinBoxFrame"
 * with "xSpinboxFrame" ("xLabel", "xSpinbox") and "ySpinboxFrame" ("yLabel", "ySpinbox"). The labels have no
 * text: a sheet may give them a picture. The frames' metrics are OvFrame's properties:
 * `PointSelectorWidget { qproperty-layoutSpacing: 8; }`. The plane's size and colours are described there.
 */
class UICOMPONENTS_EXPORT PointSelectorWidget : public OvFrame
{
    Q_OBJECT

public:
    /// The range of a field and its decimals.
    ///
    /// A maximum below its minimum turns the plane's axis round, while the spin box then has its minimum
    /// as the only value. Infinite ends are taken as they are: the plane has no scale then, and its
    /// marker's place means nothing. NaN is no end to the spin box and leaves the plane without a scale.
    struct Initializer
    {
        /// The least x and the least y.
        QPointF minimum;
        /// The largest x and the largest y.
        QPointF maximum;
        /// Between 0 and 323; others are clamped. A step is one unit of the last decimal, as long as
        /// they are not clamped.
        int xDecimals;
        int yDecimals;
    };

    /// @p parent owns the field as usual. Emits nothing.
    PointSelectorWidget(QWidget* parent, const Initializer& init);
    ~PointSelectorWidget() override;

    /// Sets x, then y, each rounded and clamped by its spin box. A change is reported as the user's: once
    /// for each coordinate that differs. Infinite coordinates are clamped; one that is NaN is ignored.
    void setValue(const QPointF& value);

Q_SIGNALS:
    /// The position became @p value, by the user or through setValue().
    ///
    /// Each part reports: a spin box its change with the other's value, the plane every pointChanged(). So
    /// a point that is picked arrives up to three times: as it was picked, then with x as the spin box
    /// rounded it and the old y, then in full.
    ///
    /// A slot may set another value: the three are in step afterwards, and reports of the earlier one that
    /// were on their way come last. It may delete the field too, except while the user types or steps in a
    /// spin box, behind whose signal QAbstractSpinBox goes on: use deleteLater() there.
    void valueChanged(QPointF value);

protected:
    void changeEvent(QEvent* e) override;

private:
    class Private;
    // While the parts are brought into step, so that what they report meanwhile goes no further than to
    // the host.
    bool updating = false;
    const std::unique_ptr<Private> d;
};
