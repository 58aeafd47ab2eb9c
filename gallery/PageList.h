#pragma once

#include <QFrame>

class QLineEdit;
class QListWidget;

/**
 * The gallery's side bar: all pages by group, and a field that narrows them down by title, class name or
 * keyword. Arrow keys in the field move through the list.
 */
class PageList : public QFrame
{
    Q_OBJECT

public:
    explicit PageList(QWidget* parent = nullptr);
    ~PageList() override;

    /// The id of the selected page; empty when the search has hidden it.
    QString currentPage() const;

    /// Selects the page and emits nothing. An unknown id does nothing.
    void setCurrentPage(const QString& id);

    /// Selects the next (1) or the previous (-1) listed page.
    void step(int offset);

    /// The ids of the listed pages, in order.
    QStringList listedPages() const;

    /// Reads all texts again.
    void retranslate();

    /// Makes the list wide enough for all titles in the style of the moment.
    void fitTitles();

    QLineEdit* searchField() const { return m_search; }

Q_SIGNALS:
    /// The user chose a page.
    void pageChosen(const QString& id);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void select(const QString& id);
    void fill();

    QLineEdit* const m_search;
    QListWidget* const m_list;
    QString m_wanted;
};
