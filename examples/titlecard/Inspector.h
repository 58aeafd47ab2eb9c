#pragma once

#include "Document.h"

#include <QWidget>

class EditSession;
class QFormLayout;
class QUndoStack;

namespace TitleCard {

class Canvas;

/// A field for each property of the selected cards. Each edit is one step of undo.
class Inspector : public QWidget
{
    Q_OBJECT

public:
    Inspector(Document* document, Canvas* canvas, QUndoStack* stack, QWidget* parent = nullptr);

    /// Shows what the selected cards have, or that they differ.
    void refresh();
    EditSession* session(Property property) const { return m_sessions.value(property); }

private:
    void addField(Property property, const QString& caption, QWidget* field, const QString& help);

    Document* const m_document;
    Canvas* const m_canvas;
    QUndoStack* const m_stack;
    QFormLayout* const m_form;
    QMap<Property, EditSession*> m_sessions;
};

} // namespace TitleCard
