#pragma once

#include "../Page.h"

class ResultTable;
class QDialog;

/// Shows QmlWindowFocusWorkaround in a small dialog.
class QmlFocusPage : public Page
{
    Q_OBJECT

public:
    explicit QmlFocusPage(QWidget* parent = nullptr);

    static PageInfo info();

private:
    void openDialog();
    void showFocus(const QWidget* focused);

    ResultTable* const m_results;
    QPointer<QDialog> m_dialog;
    bool m_isApplied = true;
};
