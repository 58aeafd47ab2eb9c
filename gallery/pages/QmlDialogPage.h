#pragma once

#include "../Page.h"

#include <QTemporaryDir>

#include <memory>

class QPlainTextEdit;
class ResultTable;
class SceneDialog;

/// Shows QuickDialog with scenes whose sources the reader can change.
class QmlDialogPage : public Page
{
    Q_OBJECT

public:
    explicit QmlDialogPage(QWidget* parent = nullptr);
    ~QmlDialogPage() override;

    static PageInfo info();

    void prepareForPicture() override;

private:
    class LogSink;

    void showScene(int index);
    bool saveScene();
    void open();
    void openAgain();
    void run();

    QTemporaryDir m_folder;
    QPlainTextEdit* const m_source;
    ResultTable* const m_results;
    const std::unique_ptr<LogSink> m_log;
    QPointer<SceneDialog> m_dialog;
    QString m_fileName;
    // What the dialog was opened with.
    QString m_path;
    bool m_hasParent = true;
};
