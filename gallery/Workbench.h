#pragma once

#include "SheetText.h"

#include <QDockWidget>
#include <QPointer>

class Page;
class QLabel;
class QToolButton;
class SheetEditor;
class StyleController;
class WidgetFacts;
class WidgetPointer;

/**
 * The workbench for style sheets: what a sheet can know of the widget that the user points at, the rules that
 * select it, and the sheet itself, which is applied while it is typed, as long as it has no error.
 */
class Workbench : public QDockWidget
{
    Q_OBJECT

public:
    /// Shows and edits the sheet of @p style, which lives longer.
    explicit Workbench(StyleController* style, QWidget* parent = nullptr);
    ~Workbench() override;

    /// Shows @p widget, or nothing.
    void inspect(QWidget* widget);

    /// Becomes visible with the widget that has the keyboard, unless that is one of its own, and has the user
    /// point at another. While the user does, it ends that.
    void point();

    /// The page whose code the user may copy.
    void setPage(Page* page);

    /// Reads all texts again.
    void retranslate();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void forget();
    void showSheet();
    void applyEdits();
    void showFacts();
    void showMessage(const QString& text, bool isError);
    void copyCode();
    void save();

    StyleController* const m_style;
    QToolButton* const m_point;
    QToolButton* const m_copy;
    QToolButton* const m_save;
    WidgetFacts* const m_facts;
    SheetEditor* const m_editor;
    QLabel* const m_message;
    WidgetPointer* const m_pointer;
    QPointer<QWidget> m_widget;
    QMetaObject::Connection m_destroyed;
    QPointer<Page> m_page;
    /// The open sheet as the editor last agreed with it.
    QString m_known;
    /// The application's sheet as it is applied.
    SheetText m_applied;
};
