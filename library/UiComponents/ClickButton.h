#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QToolButton>

#include <memory>

class AbstractColorPicker;

/**
 * A tool button whose click may delete it or pick a colour: the base of the library's buttons.
 *
 * A QToolButton writes into itself after a click, and a key that ends an event loop of the click would click
 * it again. This one does neither.
 *
 * It has no meta-object of its own: style sheets take it for a QToolButton.
 * @see ColorPickerButton, GuideButton, WidgetColorPickerButton
 */
class UICOMPONENTS_EXPORT ClickButton : public QToolButton // clazy:exclude=missing-qobject-macro
{
public:
    /// @p parent owns the button.
    explicit ClickButton(QWidget* parent = nullptr);
    ~ClickButton() override;

protected:
    /// Calls pick() of @p picker, in which the button may be deleted. A Space that ends its event loop does
    /// not click the button if the picker is no longer in progress when the key reaches it.
    void pick(AbstractColorPicker* picker);

    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
