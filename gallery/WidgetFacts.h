#pragma once

#include <QPointer>
#include <QTreeWidget>

#include <memory>

class SheetText;

namespace Orvane::Gui {
class HighlightFrame;
}

/**
 * What a style sheet can know of a widget: class, name and properties, the rules that select it, the
 * strongest first, and the widgets around it. Rules that need other states than the present ones are in
 * italics, what a stronger rule overrides is struck out.
 *
 * While the row of another widget is the current one, that is outlined.
 */
class WidgetFacts : public QTreeWidget
{
    Q_OBJECT

public:
    explicit WidgetFacts(QWidget* parent = nullptr);
    ~WidgetFacts() override;

    /// Shows @p widget, or nothing. @p sheet is the application's; its rules beyond the line @p lines are
    /// those of the gallery's own window.
    void show(QWidget* widget, const SheetText& sheet, int lines);

Q_SIGNALS:
    /// The user came to a rule or a declaration at @p line of the open sheet.
    void lineShown(int line);

    /// The user wants to edit it.
    void editRequested();

    /// The user chose a widget around the one that is shown.
    void widgetChosen(QWidget* widget);

private:
    QTreeWidgetItem* addGroup(const QString& title);
    void addNames(const QWidget* widget);
    void addProperties(const QWidget* widget);
    void addRules(const QWidget* widget, const SheetText& sheet, int lines);
    void addWidgets(QWidget* widget);
    void choose(const QTreeWidgetItem* item);
    void follow(const QTreeWidgetItem* item);

    QPointer<QWidget> m_shown;
    std::unique_ptr<Orvane::Gui::HighlightFrame> m_frame;
};
