#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QColor>
#include <QMetaType>
#include <QObject>

#include <optional>

class QObjectPrivate;

/**
 * What a colour field needs of the thing that picks its colour: a palette pop-up, a widget picker, a
 * dialog. Hosts implement it and hand it to ColorPickerButton::setPicker() or
 * ColorInputWidget::setPicker(), which take ownership.
 *
 * A colour is a `std::optional<QColor>` with three meanings:
 * - it holds a valid QColor: that colour;
 * - it holds an invalid QColor: no colour;
 * - it is empty: several different colours at once, a mixed selection.
 *
 * The contract for implementers, in the order in which it matters:
 * - pick() is called after the button has emitted its `pickingStarted()` and shows itself pressed. It
 *   may return at once, run a nested event loop, or answer before it returns.
 * - While picking, emit colorChanged() for each new colour; the button takes it at once as a preview.
 * - When picking ends, by the user or through stop(), color() must return the final colour before
 *   pickingStopped() is emitted: the button reads it in that moment and adopts it.
 * - A picker may end without a colour and without a signal. The button then stays pressed, because it
 *   waits for pickingStopped().
 * - stop() may come at any time, also while nothing is picked, and then does nothing.
 * - setColor() is called with each colour that the button takes over, a null colour included, so that
 *   the picker opens on the field's colour. Answering it with colorChanged() is allowed: an equal colour
 *   ends the exchange.
 * - A slot may delete the button, and the picker with it, during any of the picker's signals. Touch no
 *   member after emitting one unless you know that you are still alive.
 *
 * All calls and signals stay on the GUI thread. `std::optional<QColor>` is registered as a meta type, so
 * the signal can be spied on and connected by name.
 */
class UICOMPONENTS_EXPORT AbstractColorPicker : public QObject
{
    Q_OBJECT

public:
    AbstractColorPicker();
    /// @p parent owns the picker until a button takes it over; null is allowed.
    explicit AbstractColorPicker(QObject* parent);
    ~AbstractColorPicker() override;

    /// True from pick() until pickingStopped().
    virtual bool isInProgress() const = 0;

    /// Starts the user's interaction.
    virtual void pick() = 0;

    /// Ends the interaction, with the signals of an end if it was under way.
    virtual void stop() = 0;

    /// The picker's current colour; final when pickingStopped() is emitted.
    virtual std::optional<QColor> color() = 0;

Q_SIGNALS:
    /// The current colour changed while picking.
    void colorChanged(std::optional<QColor> color);

    /// Picking has ended and color() is final.
    void pickingStopped();

public Q_SLOTS:
    /// The colour to show as current.
    virtual void setColor(const std::optional<QColor>& color) = 0;

protected:
    /// For pickers that bring a private part of QObject's own kind.
    AbstractColorPicker(QObjectPrivate& dd, QObject* parent);
};

Q_DECLARE_METATYPE(std::optional<QColor>)
