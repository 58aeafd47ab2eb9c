#pragma once

#include "../Page.h"

#include <UiComponents/WidgetColorPickerStylingObject.h>

class ColorPickerButton;
class PreviewScreen;
class WidgetColorPicker;
class WidgetColorPickerButton;

/// The picking cursor that the page's control chooses.
class GalleryPickingLook : public WidgetColorPickerStylingObject
{
public:
    QCursor pickingCursor() const override { return cursor; }

    QCursor cursor = Qt::CrossCursor;
};

/// Shows WidgetColorPickerButton, and WidgetColorPicker on a colour button, with a film as the target.
class WidgetColorPickerPage : public Page
{
    Q_OBJECT

public:
    explicit WidgetColorPickerPage(QWidget* parent = nullptr);
    ~WidgetColorPickerPage() override;

    static PageInfo info();

    void prepareForPicture() override;

private:
    WidgetColorPickerButton* makeButton(QWidget* parent);
    ColorPickerButton* makeField(QWidget* parent);
    void addPickingControls();
    void addLookControls();
    void setTarget(QWidget* target);

    GalleryPickingLook m_look;
    PreviewScreen* const m_preview;
    Twins<WidgetColorPickerButton> m_buttons;
    Twins<ColorPickerButton> m_fields;
};
