#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QObject>
#include <QVariant>

#include <memory>

class QWidget;

/**
 * Tells what the user does to the value of a field as one story, from which a host makes one step of undo;
 * EditCommand does that for a QUndoStack. It knows the fields of the library, and QSpinBox, QDoubleSpinBox,
 * QAbstractSlider, QLineEdit and QComboBox; value() says what the values are.
 *
 *     auto* session = new EditSession(sizeField);
 *     connect(session, &EditSession::previewed, card, &Card::setSizeForNow);
 *     connect(session, &EditSession::committed, this, &Editor::addUndoStep);
 *     connect(session, &EditSession::cancelled, this, &Editor::bringOldValuesBack);
 *
 * **One session.** It lasts from the first change to the end of what makes it: a drag, a held button or a
 * held key is let go; a text gets Enter, or loses the focus for anything but a pop-up; after turns of the
 * wheel the cursor leaves the part, or it loses the focus or gets another input; a pick stops. A change that
 * none of these makes is a session of its own: an item of a combo box, a click on a field's button, a reader,
 * and a host that sets the field without Refresh or setValue(). Signals are emitted synchronously, in the
 * call that changes the field.
 *
 * Escape cancels a session and is filtered out then, except in a pick, which is its picker's. One that ends
 * where it began is cancelled too, unless the field showed several values, or is a WidgetColorPickerButton,
 * whose new pick may be for another selection. Hiding or disabling the field commits what it shows, but
 * leaves a pick to its picker. A field that is deleted ends its session without a signal, and what was
 * previewed stays. Where a slot of started() or previewed() ends the session, it ends after all slots have
 * been called. The keys of Undo and Redo belong to a text while it is typed, else to the host's shortcuts.
 * Slots may delete the session, and the field where slots of its own signals may; use deleteLater() for one
 * with a text or a list, and where hiding or disabling it, a right click, touchpad or Leave event reports.
 *
 * **Several values.** A field with setMultiValue() keeps that look until the user enters a value, also when
 * he tabs through; that value is reported even if the field still held it, as by a step beyond its end. Its
 * texts are covered by a dash, the QLabel "multiValueCover", a colour field shows several colours, and
 * readers announce it. The field has the property "multiValue" (bool).
 * @see EditCommand, ColorInputWidget, SliderInputWidget, PointSelectorWidget, PathSelectionWidget
 */
class UICOMPONENTS_EXPORT EditSession : public QObject
{
    Q_OBJECT

public:
    /// While it exists, changes of the fields in a widget are the host's, and no edit is reported. Nests.
    ///
    ///     const EditSession::Refresh refresh(inspector);
    ///     size->setValue(card->size());
    ///     color->setColor(card->color());
    ///
    /// A field that stood for several values still does, until setValue() of its session or
    /// setMultiValue(false).
    class UICOMPONENTS_EXPORT Refresh
    {
    public:
        /// For @p panel and all fields inside it. Commits their sessions first, except one that is just
        /// reporting: a host may refresh in its slots.
        explicit Refresh(QWidget* panel);
        ~Refresh();
        Refresh(const Refresh&) = delete;
        Refresh& operator=(const Refresh&) = delete;

    private:
        class UICOMPONENTS_NO_EXPORT Private;
        const std::unique_ptr<Private> d;
    };

    /// @p field, which must not be null, is the parent. It has its parts already, and one session.
    explicit EditSession(QWidget* field);
    ~EditSession() override;

    QWidget* field() const;

    /// What the field shows; invalid for a widget that is no value field.
    /// - `int`: SliderInputWidget, QSpinBox, QAbstractSlider, QComboBox (the current index) and
    ///   ColorBlendingComboBox (the number of the mode);
    /// - `double`: DoubleSliderInputWidget, QDoubleSpinBox, OvDoubleSlider;
    /// - `QPointF`: PointSelectorWidget (as its spin boxes show it), PointSelectionPlane;
    /// - `QString`: PathSelectionWidget, SearchWidget, QLineEdit, an editable QComboBox;
    /// - `std::optional<QColor>`: ColorInputWidget, ColorPickerButton; `QColor`: WidgetColorPickerButton.
    QVariant value() const;

    /// Sets the field without an edit, for one value. Commits a session first.
    void setValue(const QVariant& value);

    /// Whether two values of a field are the same: exactly, also colours and points, which QVariant compares
    /// not at all or with a tolerance.
    static bool isSame(const QVariant& one, const QVariant& other);

    /// The value from before the present or the last session.
    QVariant startValue() const;

    /// True from started() until committed() or cancelled().
    bool isActive() const;

    /// Whether the field stands for several values; false by default. Commits a session first.
    bool isMultiValue() const;
    void setMultiValue(bool isMulti);

    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Ends a session, with a text that is being typed as the field would take it.
    void commit();

    /// Ends a session, with the drag or the pick that makes it, and brings the old value back.
    void cancel();

Q_SIGNALS:
    /// The first change is about to be reported.
    void started();

    /// The field shows @p value, which the user may not keep.
    void previewed(const QVariant& value);

    /// The session has ended with @p value, the last that was previewed, or what a slot of previewed() has
    /// made of it.
    void committed(const QVariant& value);

    /// The session has ended as if it had not been; the field shows startValue() again.
    void cancelled();

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
