#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QColor>
#include <QMetaType>
#include <QObject>

#include <optional>

class QObjectPrivate;

/**
 * The picker of a colour field: a palette pop-up, a widget picker, a dialog. Hosts implement it and give it
 * to ColorPickerButton::setPicker() or ColorInputWidget::setPicker(), which take ownership.
 *
 * A colour is a `std::optional<QColor>` with three meanings:
 * - it holds a valid QColor: that colour;
 * - it holds an invalid QColor: no colour;
 * - it is empty: several different colours at once, a mixed selection.
 *
 * An implementation
 * - starts in pick(), which is called after the button emitted its `pickingStarted()` and shows itself
 *   pressed. It may return at once, run a nested event loop, or answer before it returns;
 * - emits colorChanged() for each new colour while picking; the button takes it at once as a preview;
 * - has its final colour in color() before it emits pickingStopped(), by the user or through stop(): the
 *   button reads it in that slot. Without that signal the button stays pressed;
 * - accepts stop() at any time, and does nothing if it is not picking;
 * - accepts setColor() with each colour that the button takes, the null colour included, to open on the
 *   field's colour. It may answer with colorChanged(): an equal colour ends the exchange;
 * - touches no member after emitting a signal unless it knows that it is alive: a slot may delete the button,
 *   and the picker with it.
 *
 * All calls and signals stay on the GUI thread. `std::optional<QColor>` is registered as a meta type.
 * @see ColorPickerButton, ColorInputWidget, PopupColorPicker, WidgetColorPicker
 */
class UICOMPONENTS_EXPORT AbstractColorPicker : public QObject
{
    Q_OBJECT

public:
    AbstractColorPicker();
    /// @p parent, which may be null, owns the picker until a button takes it over.
    explicit AbstractColorPicker(QObject* parent);
    ~AbstractColorPicker() override;

    /// Returns true from pick() until pickingStopped().
    virtual bool isInProgress() const = 0;

    /// Starts the user's interaction.
    virtual void pick() = 0;

    /// Ends the interaction, with the signals of its end if it was in progress.
    virtual void stop() = 0;

    /// The picker's current colour; final when pickingStopped() is emitted.
    virtual std::optional<QColor> color() = 0;

Q_SIGNALS:
    /// The current colour changed while picking.
    void colorChanged(std::optional<QColor> color);

    /// Picking has ended and color() is final.
    void pickingStopped();

public Q_SLOTS:
    /// Sets the colour to show as current.
    virtual void setColor(const std::optional<QColor>& color) = 0;

protected:
    /// For pickers with a private class derived from QObjectPrivate.
    AbstractColorPicker(QObjectPrivate& dd, QObject* parent);
};

Q_DECLARE_METATYPE(std::optional<QColor>)
