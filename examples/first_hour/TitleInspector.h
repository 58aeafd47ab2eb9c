#pragma once

#include <QColor>
#include <QVariant>
#include <QVector>
#include <QWidget>

#include <functional>
#include <optional>

class EditSession;
class QFormLayout;
class QUndoStack;

//! [title]
struct Title
{
    QString text;
    std::optional<QColor> color = QColor(Qt::darkCyan);
    int size = 48; // in pixels
    double opacity = 1.0;
};

class Titles : public QObject
{
    Q_OBJECT

public:
    QVector<Title> list;

Q_SIGNALS:
    void changed();
};
//! [title]

/// Edits the titles that are selected, all at once.
class TitleInspector : public QWidget
{
    Q_OBJECT

public:
    /// Both live longer than the inspector, and @p titles longer than @p stack.
    TitleInspector(Titles* titles, QUndoStack* stack, QWidget* parent = nullptr);

    /// Shows the titles with these numbers.
    void select(const QVector<int>& numbers);

private:
    struct Row
    {
        EditSession* session;
        std::function<QVariant(int)> read; // of the title with this number
    };

    template <typename T>
    void addRow(const QString& label, QWidget* field, T Title::*member);
    void showValues();

    Titles* const m_titles;
    QUndoStack* const m_stack;
    QFormLayout* const m_form;
    QVector<Row> m_rows;
    QVector<int> m_selection;
};
