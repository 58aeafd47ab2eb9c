#include "../CodeText.h"
#include "../Page.h"
#include "../PageRegistry.h"
#include "../ResultTable.h"
#include "../SceneDialog.h"
#include "../ValueText.h"

#include <QPlainTextEdit>
#include <QTemporaryDir>

#include <glog/logging.h>

namespace {

const char* const sceneFiles[] = {"Confirmation.qml", "Form.qml", "Broken.qml", "SceneButton.qml"};

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QString textOf(const QVariantMap& values)
{
    QStringList parts;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        parts += value.key() + QStringLiteral(": ") + valueText(value.value());
    }
    return parts.join(QStringLiteral(", "));
}

/// Sends what the library logs through glog to a log of the gallery. Other threads log too.
class LogSink : public google::LogSink
{
public:
    explicit LogSink(SignalLogView* log)
        : m_log(log)
    {
        google::AddLogSink(this);
    }
    ~LogSink() override { google::RemoveLogSink(this); }
    LogSink(const LogSink&) = delete;
    LogSink& operator=(const LogSink&) = delete;

    void send(google::LogSeverity severity, const char*, const char* baseFileName, int, const tm*,
              const char* message, size_t length) override
    {
        const QString line =
            QStringLiteral("%1 %2: %3")
                .arg(QLatin1String(google::GetLogSeverityName(severity)), QLatin1String(baseFileName),
                     QString::fromUtf8(message, static_cast<int>(length)));
        QMetaObject::invokeMethod(
            m_log, [log = m_log, line] { log->addLine(line); }, Qt::QueuedConnection);
    }

private:
    SignalLogView* const m_log;
};

/// The source of a scene, and the dialog that shows it.
class SceneEditor : public QPlainTextEdit
{
    Q_DECLARE_TR_FUNCTIONS(PageRegistry)

public:
    SceneEditor(Page* page, ResultTable* results);
    ~SceneEditor() override { delete m_dialog; }

    void showScene(int index);
    void showOriginal()
    {
        setPlainText(QString::fromUtf8(contentsOf(QStringLiteral(":/gallery/") + m_fileName)));
    }
    void setCentred(bool on) { m_isCentred = on; }
    void open();
    void openAgain();
    /// Without the folder, whose name differs from run to run.
    QString fileName() const { return m_fileName; }
    void showFileName() { m_results->setResult(tr("File"), m_fileName); }

private:
    bool saveScene();
    void run();

    Page* const m_page;
    ResultTable* const m_results;
    const LogSink m_log;
    QTemporaryDir m_folder;
    QPointer<SceneDialog> m_dialog;
    QString m_fileName;
    /// The source of the dialog.
    QString m_path;
    bool m_isCentred = true;
};

SceneEditor::SceneEditor(Page* page, ResultTable* results)
    : m_page(page)
    , m_results(results)
    , m_log(page->signalLog())
{
    constexpr int lines = 16;
    setObjectName(QStringLiteral("qmlSource"));
    setAccessibleName(tr("The scene's source"));
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabChangesFocus(true);
    // Source code reads from left to right in every language.
    setLayoutDirection(Qt::LeftToRight);
    setMinimumHeight(fontMetrics().lineSpacing() * lines);
    for (const char* file : sceneFiles) {
        write(m_folder.filePath(QLatin1String(file)),
              contentsOf(QStringLiteral(":/gallery/") + QLatin1String(file)));
    }
    showScene(0);
}

void SceneEditor::showScene(int index)
{
    saveScene();
    m_fileName = QLatin1String(sceneFiles[index]);
    const QString path = m_folder.filePath(m_fileName);
    setPlainText(QString::fromUtf8(contentsOf(path)));
    m_results->setResult(tr("File"), path);
}

bool SceneEditor::saveScene()
{
    return m_fileName.isEmpty() || write(m_folder.filePath(m_fileName), toPlainText().toUtf8());
}

void SceneEditor::open()
{
    if (!saveScene()) {
        m_results->setResult(tr("Result of exec()"), tr("%1 cannot be written").arg(m_fileName));
        return;
    }
    m_path = m_folder.filePath(m_fileName);
    delete m_dialog;
    m_dialog = new SceneDialog(m_isCentred ? m_page : nullptr);
    m_dialog->setQmlPath(m_path);
    m_page->signalLog()->watch(m_dialog, "dialog");
    run();
}

/// Opens the dialog with the source that it was first opened with, and what was typed into it since.
void SceneEditor::openAgain()
{
    if (m_dialog) {
        run();
    } else {
        open();
    }
}

void SceneEditor::run()
{
    const QPointer<SceneEditor> self = this;
    const int result = m_dialog->exec();
    if (!self || !m_dialog) {
        return;
    }
    m_results->setResult(tr("Result of exec()"), QString::number(result));
    m_results->setResult(tr("Values of the form"), textOf(m_dialog->values()));
    m_results->setResult(tr("Errors in the scene"), m_dialog->errorsOf(m_path).join(QLatin1Char('\n')));
}

} // namespace

void PageRegistry::qmlDialog(Page* page)
{
    auto* results = new ResultTable;
    auto* editor = new SceneEditor(page, results);
    page->addDemonstration(tr("The scene's source"), editor);
    page->addDemonstration(QString(), results);

    PropertyPanel* const panel = page->properties();
    panel->addChoice(tr("Scene"), {tr("Confirmation"), tr("Form"), tr("One that fails to load")}, 0,
                     [editor](int index) { editor->showScene(index); });
    panel->addSwitch(tr("Centred on this page"), true, [editor](bool on) { editor->setCentred(on); });
    panel->addAction(tr("Open a new dialog"), editor, &SceneEditor::open);
    panel->addAction(tr("Open the last dialog again"), editor, &SceneEditor::openAgain);
    panel->addAction(tr("Original source"), editor, &SceneEditor::showOriginal);
    page->describeCode(editor, [editor] {
        return QStringList{QStringLiteral("#include <UiComponents/QuickDialog.h>"),
                           QStringLiteral("auto* dialog = new Qml::QuickDialog(parent);"),
                           QStringLiteral("dialog->setQmlPath(%1);").arg(codeString(editor->fileName())),
                           QStringLiteral("// dialog->exec() shows it and returns how it was ended.")};
    });
    QObject::connect(page, &Page::pictureRequested, editor, &SceneEditor::showFileName);
}
