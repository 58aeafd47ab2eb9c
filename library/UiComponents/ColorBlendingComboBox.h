#pragma once

#include <UiComponents/BlendingMode.h>
#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvComboBox.h>

/**
 * A drop-down list of the blending modes, for the inspector of a layer.
 *
 *     auto* box = new ColorBlendingComboBox(this);
 *     box->setCurrentIndex(box->indexOf(layer.blendingMode()));
 *     connect(box, &ColorBlendingComboBox::blendingModeChanged, this, &Inspector::setBlendingMode);
 *
 * **Order.** SourceOver, which is no blending at all, is always the first item; the others follow in the
 * order of their names in the present language, as plain text compares, upper case before lower case. An
 * index is therefore worth nothing beyond the moment: keep the mode, and ask indexOf().
 *
 * **Language.** The names are translated in the context "blendingModes". When the language changes, the
 * list is named and sorted anew, also while its pop-up is open. The current item stays the current mode,
 * and blendingModeChanged() is not emitted. QComboBox reports the new text by its currentTextChanged(), and
 * before that an empty one while SourceOver is current.
 *
 * **Change events.** They end here: QComboBox sees none of them. So set font and style sheet before the box
 * is laid out, because its preferred size stays what it was; and a box that is disabled while its pop-up is
 * open keeps it open.
 *
 * **Style sheet.** As an OvComboBox in the look of the design system: `OvComboBox[tessel="true"]`,
 * `[popupVisible="true"]`, the list `#tesselComboBoxView`, or alone as `ColorBlendingComboBox`.
 *
 * **Lifetime.** In a slot of blendingModeChanged(), delete the box with deleteLater(): QComboBox, which
 * reported the choice, goes on using itself.
 */
class UICOMPONENTS_EXPORT ColorBlendingComboBox : public OvComboBox
{
    Q_OBJECT

public:
    /// Starts with SourceOver. @p parent owns the box as usual.
    explicit ColorBlendingComboBox(QWidget* parent = nullptr);
    ~ColorBlendingComboBox() override;

    /// The number of the mode at @p index, or 0 for an index that the list does not have: 0 is also the
    /// number of Overlay.
    int blendingModeAt(int index) const;

    /// The number of the current mode, or 0 when there is no current item.
    int currentBlendingMode() const;

    /// The place of @p mode in the list as it is sorted now; -1 for a value that is no mode.
    int indexOf(BlendingMode mode) const;

Q_SIGNALS:
    /// The user chose @p mode, by mouse, keyboard or wheel, also when it was the current one already.
    /// Changes by code, such as setCurrentIndex(), are not reported.
    void blendingModeChanged(BlendingMode mode);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
};
