#pragma once

#include "PanelColorPicker.h"

#include <QObject>
#include <QPointer>
#include <QVector>

class ColorPickerButton;
class Pipette;
class Page;

/**
 * The controls of a page with colour fields: which picker they have, the colour panel or Qt's dialog, and
 * the options of the panel. The panel's pipette is a real one, whose colour becomes the field's.
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
    /// signals of the first field's picker and of the pipette.
    PickerChoice(const QVector<ColorPickerButton*>& fields, Page* page);
    ~PickerChoice() override;

    Kind kind() const { return m_kind; }
    /// Ends a pick in progress, also that of the pipette.
    void setKind(Kind kind);

private:
    void addControls();
    void pickFromScreen(ColorPickerButton* field);
    void applyScreenColor(const QColor& color);
    void installPickers();
    void applyOptions();

    QVector<QPointer<ColorPickerButton>> m_fields;
    QVector<QPointer<PanelColorPicker>> m_panelPickers;
    Page* const m_page;
    Pipette* const m_pipette;
    QPointer<ColorPickerButton> m_pipetteField; // has asked for the pipette
    Kind m_kind = Kind::Panel;
    bool m_isNullColorAllowed = true;
    bool m_isOpacityAvailable = true;
};
