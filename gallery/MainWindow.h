#pragma once

#include "CommandLine.h"

#include <QMainWindow>
#include <QPointer>

class LanguageController;
class Page;
class PageList;
class QFrame;
class StyleController;
class SwitchBar;
class Workbench;

/**
 * The gallery's window: the list of pages, the page that is shown and the switches.
 *
 * Style, language and direction are those of the whole application: there is one gallery at a time.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Shows the page, style, language and direction of @p start.
    explicit MainWindow(const CommandLine& start, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// The present page, style, language and direction; their arguments() lead back here.
    CommandLine state() const;

    /// The present page. A change of page, language or direction deletes it and builds a new one.
    Page* page() const;

    /// An unknown id does nothing.
    void showPage(const QString& id);

    /// Returns false and changes nothing when the file cannot be read.
    bool setStyleName(const QString& style);
    void setLanguage(const QString& code);
    void setDirection(Qt::LayoutDirection direction);

Q_SIGNALS:
    /// The user wants the gallery at another scale factor, which Qt reads only when it starts.
    void restartRequested(double scale);

private:
    void addWorkbench();
    void connectSwitches();
    void addShortcuts();
    void askForStyleFile();
    void rebuildPage();

    StyleController* const m_style;
    LanguageController* const m_language;
    SwitchBar* const m_switches;
    PageList* const m_list;
    QFrame* const m_pageHolder;
    Workbench* const m_workbench;
    QPointer<Page> m_page;
    QString m_pageId;
};
