#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QSpinBox>

/**
 * A QSpinBox that is safe to scroll past and quick to type into.
 *
 * - The wheel changes the value only while the spin box has focus. Without focus it ignores the event, so
 *   that a scroll area around it scrolls; the wheel does not give focus: the focus policy is Qt::StrongFocus.
 * - Enter and Return commit the text, emit editingFinished() and select the value, so that the next number
 *   can be typed over it. Unlike in QSpinBox, valueChanged() is emitted only if that changes the value. The
 *   key event is ignored, as in QSpinBox: a dialog's default button gets it. Escape is left to the dialog.
 *
 * Typing can still be undone after Enter. All else is as in QSpinBox.
 *
 * **Lifetime.** Slots of signals that Enter causes may delete the spin box, and so may those of a
 * valueChanged() that setValue() causes. After all others, above all while the user types or steps,
 * QAbstractSpinBox still uses the spin box: use deleteLater() there.
 * @see OvDoubleSpinBox, Util::bindWidgets()
 */
class WIDGETTOOLKIT_EXPORT OvSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    /// @p parent owns the spin box.
    explicit OvSpinBox(QWidget* parent = nullptr);
    ~OvSpinBox() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};
