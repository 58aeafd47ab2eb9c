#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QVector>

#include <memory>

class QWidget;

/**
 * Tells what the user does to the value of a field as one story, from which a host makes one step of undo.
 *
 *     auto* session = new EditSession(opacityField);
 *     connect(session, &EditSession::previewed, card, [card](const QVariant& v) {
 * card->setOpacity(v.toInt()); }); connect(session, &EditSession::committed, this, &Editor::addUndoStep);
 *     connect(session, &EditSession::cancelled, this, &Editor::bringOldValuesBack);
 *
 * EditCommand does all three for a QUndoStack.
 *
 * **Fields and their values.** `int`: SliderInputWidget, QSpinBox, QAbstractSlider, QComboBox (the current
 * index), ColorBlendingComboBox (the number of the mode). `double`: DoubleSliderInputWidget, QDoubleSpinBox,
 * OvDoubleSlider. `QPointF`: PointSelectorWidget (as its spin boxes show it), PointSelectionPlane. `QString`:
 * PathSelectionWidget, SearchWidget, QLineEdit, an editable QComboBox. `std::optional<QColor>`:
 * ColorInputWidget, ColorPickerButton. `QColor`: WidgetColorPickerButton. Any other widget has no value and
 * no sessions.
 *
 * **One session** lasts from the first change to the end of what makes it:
 * - a drag and a held button, until it is let go;
 * - a held key that steps, until it is let go;
 * - typing, until Enter, or until the field loses the focus for anything but a pop-up;
 * - turns of the wheel, until the cursor leaves the part, it loses the focus, or gets another input;
 * - a colour pick with all its previews.
 *
 * A change that none of these makes is a session of its own: an item of a combo box, a click on a field's
 * button, a screen reader, and a host that sets the field without Refresh or setValue(). Hiding or disabling
 * the field commits what it shows, but leaves a pick to its picker. A field that is deleted ends its session
 * without a signal, and what was previewed stays.
 *
 * Escape in a drag, a held key, a turn of the wheel or a text cancels: the field shows the old value again,
 * and the key goes no further. A session that ends where it began is cancelled too, with two exceptions: a
 * field that showed several values, and a WidgetColorPickerButton, whose new pick may be for another
 * selection.
 *
 * Nothing waits, and values are reported in the call that changes the field. previewed() comes with each
 * change, once, with what the field then shows, and committed() repeats the last.
 *
 * **Several values.** setMultiValue() is the one way to show that a selection holds several, whatever the
 * field. It keeps the look until the user enters a value, also when he tabs through; that value is reported
 * even if the field still held it. Texts are covered by a dash, a colour field shows several colours, and
 * screen readers say it. The field has the property "multiValue" (bool) for style sheets, the dash is a
 * QLabel "multiValueCover" in the line edit: `[multiValue="true"] QSlider::handle { background: gray; }`.
 *
 * **Refreshing.** A host that loads another selection says so, and none of its calls is taken for the user's:
 *
 *     const EditSession::Refresh refresh(inspector);
 *     size->setValue(card->size());
 *     color->setColor(card->color());
 *
 * A field that stood for several values goes on to, until setValue() of its session or setMultiValue(false).
 * @see EditCommand
 */
class UICOMPONENTS_EXPORT EditSession : public QObject
{
    Q_OBJECT

public:
    /// While it lives, changes of the fields in a widget are the host's. Nests.
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
        QVector<QPointer<EditSession>> m_sessions;
    };

    /// @p field, which must not be null, is the parent. It has its parts already, and one session.
    explicit EditSession(QWidget* field);
    ~EditSession() override;

    QWidget* field() const;

    /// What the field shows.
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

    /// Ends a session and brings the old value back.
    void cancel();

Q_SIGNALS:
    /// The first change is about to be reported.
    void started();

    /// The field shows @p value, which the user may not keep.
    void previewed(const QVariant& value);

    /// The session has ended with @p value, the last that was previewed.
    void committed(const QVariant& value);

    /// The session has ended as if it had not been; the field shows startValue() again.
    void cancelled();

private:
    class Private;
    const std::unique_ptr<Private> d;
};
