#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QSpinBox>

/**
 * A QSpinBox that is safe to scroll past and quick to type into.
 *
 * - The wheel changes the value only while the spin box has focus. Without focus the event is ignored,
 *   so that a scroll area around it scrolls, and the wheel does not give it focus: its focus policy is
 *   Qt::StrongFocus.
 * - Enter and Return commit the text, emit editingFinished() and leave the value selected, so that the
 *   next number can be typed over it. valueChanged() is emitted only if that changed the value, which
 *   QSpinBox does not heed. The key event is left unaccepted, as QSpinBox does: a dialog's default
 *   button gets it. Escape is left to the dialog altogether.
 *
 * Everything else, including what a style sheet can select, is as in QSpinBox. A listener of any signal
 * that Enter causes may delete the spin box, and so may one of valueChanged() that setValue() causes. Behind
 * all others, above all while the user types or steps, QAbstractSpinBox goes on: use deleteLater() there.
 */
class WIDGETTOOLKIT_EXPORT OvSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    /// @p parent owns the spin box as usual.
    explicit OvSpinBox(QWidget* parent = nullptr);
    ~OvSpinBox() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};
