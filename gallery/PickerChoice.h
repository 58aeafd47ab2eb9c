#pragma once

#include <UiComponents/PopupColorPicker.h>

#include <QObject>
#include <QPointer>
#include <QVector>

class ColorPickerButton;
class Page;

/**
 * The controls of a page with colour fields: which picker they have, the colour panel or Qt's dialog, and
 * the options of the panel.
 */
class PickerChoice : public QObject
{
    Q_OBJECT

public:
    enum class Kind {
        Panel,
        Dialog,
    };

    /// Gives each of @p fields a picker, a panel at first. The log of @p page, which is the parent, shows the
    /// signals of the first field's picker.
    PickerChoice(const QVector<ColorPickerButton*>& fields, Page* page);
    ~PickerChoice() override;

    /// Ends a pick in progress.
    void setKind(Kind kind);

private:
    void addControls();
    void installPickers();
    void applyOptions();

    QVector<QPointer<ColorPickerButton>> m_fields;
    QVector<QPointer<PopupColorPicker>> m_panelPickers;
    Page* const m_page;
    PopupColorPicker::Options m_options;
    Kind m_kind = Kind::Panel;
};
