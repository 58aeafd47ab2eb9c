#pragma once

#include <UiComponents/AbstractColorPicker.h>

#include <QPointer>
#include <QWidget>

class QColorDialog;

/**
 * Qt's colour dialog as the picker of a colour field.
 *
 *     auto* button = new ColorPickerButton(this);
 *     button->setPicker(new DialogColorPicker(button));
 *
 * The dialog opens beside the field and blocks nothing. Each colour that the user tries is reported at
 * once; OK keeps the last one, Cancel, Escape, closing the dialog and stop() bring back the colour that
 * the field had before. Picker, field and dialog may be deleted at any time.
 */
class DialogColorPicker : public AbstractColorPicker
{
    Q_OBJECT

public:
    /// @p field is the ColorPickerButton that the dialog opens beside, and not owned.
    explicit DialogColorPicker(QWidget* field);
    ~DialogColorPicker() override;

    bool isInProgress() const override { return m_isPicking; }
    void pick() override;
    void stop() override;
    std::optional<QColor> color() override { return m_color; }
    void setColor(const std::optional<QColor>& color) override;

private:
    QColorDialog* makeDialog();
    void preview(const QColor& color);
    void finish(const std::optional<QColor>& color);
    void closeDialog();

    const QPointer<QWidget> m_field;
    QPointer<QColorDialog> m_dialog;
    std::optional<QColor> m_color;
    std::optional<QColor> m_original;
    bool m_isPicking = false;
    bool m_isFinishing = false;
};
