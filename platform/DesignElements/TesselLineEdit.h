#pragma once

#include <DesignElements/DesignElementsExport.h>

#include <QLineEdit>

#include <memory>

namespace Orvane::Tessel {

/**
 * A line edit of the design system, with the design system's context menu.
 *
 * The menu offers Undo, Redo, Cut, Copy, Paste, Delete and Select All, in the application's language and with
 * their shortcuts; entries without effect are disabled, so the menu always has the same shape. A read-only
 * edit offers copying only, and one that hides its text gives none of it to the clipboard. The menu opens at
 * the mouse, or at the text cursor for the keyboard. It runs no event loop of its own; deleting the edit
 * closes it. A context menu policy other than the default works as in QWidget.
 *
 * **Style sheet.** Select the edit as `QLineEdit` or, alone, as `Orvane--Tessel--TesselLineEdit`. The menu is
 * a child with the object name "tesselContextMenu" while it is open:
 *
 *     QMenu#tesselContextMenu::item:selected { background: #3a6ea5; }
 *
 * Where a sheet colours the text, Qt gives the placeholder text the same colour; here it has three quarters
 * of its opacity: less than a text, and still legible. A colour set for QPalette::PlaceholderText alone,
 * after the sheet, stays until the sheet is applied again.
 * @see TesselElegantSlider, convertComboBoxToTessel()
 */
class DESIGNELEMENTS_EXPORT TesselLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// @p parent owns the edit; null makes it a window.
    explicit TesselLineEdit(QWidget* parent = nullptr);
    ~TesselLineEdit() override;

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void dimPlaceholder();

    class DESIGNELEMENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};

} // namespace Orvane::Tessel
