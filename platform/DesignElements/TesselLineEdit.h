#pragma once

#include <DesignElements/DesignElementsExport.h>

#include <QLineEdit>
#include <QPalette>

namespace Orvane::Tessel {

/**
 * A line edit of the design system, with the design system's context menu.
 *
 * A sheet styles it as `QLineEdit` or, alone, as `Orvane--Tessel--TesselLineEdit`. The menu offers Undo,
 * Redo, Cut, Copy, Paste, Delete and Select All, in the application's language and with their shortcuts;
 * entries that can do nothing at the moment are disabled, so the menu always has the same shape. A
 * read-only edit can be copied from only, and one that hides its text gives none of it to the clipboard.
 * The menu is a child with the object name "tesselContextMenu", alive while it is open:
 *
 *     QMenu#tesselContextMenu::item:selected { background: #3a6ea5; }
 *
 * It opens where the mouse is, or at the text cursor when the keyboard asks for it. It runs no event loop
 * of its own: whoever deletes the edit meanwhile closes it. A context menu policy other than the default
 * works as with any widget.
 *
 * A sheet that gives texts a colour gives Qt's placeholder texts the same one, as if they were text. Here
 * they have half of its opacity, as they do without a sheet. A colour that is set for
 * QPalette::PlaceholderText alone, after the sheet, stays until the sheet is applied anew.
 */
class DESIGNELEMENTS_EXPORT TesselLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// @p parent owns the edit as usual; null makes it a window.
    explicit TesselLineEdit(QWidget* parent = nullptr);
    ~TesselLineEdit() override;

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void dimPlaceholder();

    QPalette m_knownPalette;
};

} // namespace Orvane::Tessel
