#pragma once

#include <UiComponents/BlendingMode.h>
#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvComboBox.h>

/**
 * A combo box of the blending modes, for the inspector of a layer.
 *
 *     auto* box = new ColorBlendingComboBox(this);
 *     box->setCurrentIndex(box->indexOf(layer.blendingMode()));
 *     connect(box, &ColorBlendingComboBox::blendingModeChanged, this, &Inspector::setBlendingMode);
 *
 * **Order.** SourceOver, which is no blending, is the first item; the others are sorted by their names in the
 * current language, as plain text, upper case before lower case. Keep the mode, not the index, and ask
 * indexOf().
 *
 * **Language.** The names are translated in the context "blendingModes": into English too, by
 * Translations::load(), since those of the sources are the enumerators'. A change of language names and sorts
 * the list anew, also while its pop-up is open. The current mode stays, and blendingModeChanged() is not
 * emitted; QComboBox emits currentTextChanged() for the new text, and before that for an empty one while
 * SourceOver is current.
 *
 * **Events.** Change events do not reach QComboBox. Set font and style sheet before the box is laid out,
 * because its size hint stays; a palette of the box's own does not reach its list; a box that is disabled
 * while its pop-up is open keeps it open.
 *
 * **Readers.** They find a combo box with the name of the mode as its value; keys are those of any combo box.
 *
 * **Style sheet.** As an OvComboBox in the look of the design system: `OvComboBox[tessel="true"]`,
 * `[popupVisible="true"]`, the list `#tesselComboBoxView`, or alone as `ColorBlendingComboBox`.
 *
 * **Lifetime.** A slot of blendingModeChanged() deletes the box with deleteLater(): QComboBox still uses it
 * after the signal.
 * @see BlendingMode, OvComboBox, Translations
 */
class UICOMPONENTS_EXPORT ColorBlendingComboBox : public OvComboBox
{
    Q_OBJECT

public:
    /// Starts with SourceOver. @p parent owns the box.
    explicit ColorBlendingComboBox(QWidget* parent = nullptr);
    ~ColorBlendingComboBox() override;

    /// The number of the mode at @p index, or 0 for an index that the list does not have: 0 is also the
    /// number of Overlay.
    int blendingModeAt(int index) const;

    /// The number of the current mode, or 0 when there is no current item.
    int currentBlendingMode() const;

    /// The index of @p mode in the list as it is sorted now; -1 for a value that is no mode.
    int indexOf(BlendingMode mode) const;

Q_SIGNALS:
    /// The user chose @p mode, by mouse, keyboard or wheel, also if it was the current one already. Not
    /// emitted for changes by code, such as setCurrentIndex().
    void blendingModeChanged(BlendingMode mode);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
};
