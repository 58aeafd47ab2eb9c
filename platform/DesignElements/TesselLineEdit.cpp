#include "TesselLineEdit.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMimeData>
#include <QPalette>
#include <QStyle>

namespace {

constexpr auto groups = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

bool differInPlaceholderOnly(QPalette one, const QPalette& other)
{
    for (const auto group : groups) {
        one.setBrush(group, QPalette::PlaceholderText, other.brush(group, QPalette::PlaceholderText));
    }
    return one == other;
}

} // namespace

namespace Orvane::Tessel {

class TesselLineEdit::Private
{
public:
    QPalette knownPalette;
};

TesselLineEdit::TesselLineEdit(QWidget* parent)
    : QLineEdit(parent)
    , d(new Private{palette()})
{
}

TesselLineEdit::~TesselLineEdit() = default;

void TesselLineEdit::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        dimPlaceholder();
    }
    QLineEdit::changeEvent(event);
}

void TesselLineEdit::dimPlaceholder()
{
    QPalette dimmed = palette();
    // A sheet sets all roles of a text. A palette that differs in this one alone was set on purpose, among
    // others by this function.
    const bool isWanted = differInPlaceholderOnly(d->knownPalette, dimmed);
    d->knownPalette = dimmed;
    if (isWanted || !style()->inherits("QStyleSheetStyle")) {
        return;
    }
    for (const auto group : groups) {
        QBrush brush = dimmed.brush(group, QPalette::Text);
        if (dimmed.brush(group, QPalette::PlaceholderText) == brush) {
            QColor color = brush.color();
            color.setAlpha(color.alpha() * 3 / 4);
            brush.setColor(color);
            dimmed.setBrush(group, QPalette::PlaceholderText, brush);
        }
    }
    if (dimmed != d->knownPalette) {
        setPalette(dimmed);
    }
}

void TesselLineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    const QString menuName = QString::fromLatin1("tesselContextMenu");
    // Code may open a menu while one is open, which would stay behind it.
    const auto openMenus = findChildren<QMenu*>(menuName, Qt::FindDirectChildrenOnly);
    for (QMenu* open : openMenus) {
        open->close();
    }
    auto* const menu = new QMenu(this);
    menu->setObjectName(menuName);
    menu->setAttribute(Qt::WA_DeleteOnClose);

    const auto add = [this, menu](const QString& text, QKeySequence::StandardKey key, auto slot,
                                  bool enabled) {
        QAction* const action = menu->addAction(text);
        action->setShortcut(key);
        // Shown only: the edit handles the keys itself.
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setShortcutVisibleInContextMenu(true);
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, slot);
    };
    const bool writable = !isReadOnly();
    const bool selected = hasSelectedText();
    const bool readable = echoMode() == QLineEdit::Normal;
    const QMimeData* const clipboard = QGuiApplication::clipboard()->mimeData();

    add(tr("&Undo"), QKeySequence::Undo, &QLineEdit::undo, writable && isUndoAvailable());
    add(tr("&Redo"), QKeySequence::Redo, &QLineEdit::redo, writable && isRedoAvailable());
    menu->addSeparator();
    add(tr("Cu&t"), QKeySequence::Cut, &QLineEdit::cut, writable && selected && readable);
    add(tr("&Copy"), QKeySequence::Copy, &QLineEdit::copy, selected && readable);
    add(tr("&Paste"), QKeySequence::Paste, &QLineEdit::paste,
        writable && clipboard && clipboard->hasText() && !clipboard->text().isEmpty());
    add(tr("&Delete"), QKeySequence::Delete, &QLineEdit::del, writable && selected);
    menu->addSeparator();
    add(tr("Select &All"), QKeySequence::SelectAll, &QLineEdit::selectAll,
        !text().isEmpty() && selectedText() != text());

    const bool byKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    menu->popup(byKeyboard ? mapToGlobal(cursorRect().intersected(rect()).bottomLeft()) : event->globalPos());
    event->accept();
}

} // namespace Orvane::Tessel
