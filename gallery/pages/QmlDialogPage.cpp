#include "QmlDialogPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "../ValueText.h"
#include "ResultTable.h"
#include "SceneDialog.h"

#include <QPlainTextEdit>

#include <glog/logging.h>

namespace {

constexpr int SourceLines = 16;
constexpr int BrightHalf = 128;

const char* const Scenes[] = {"Confirmation.qml", "Form.qml", "Broken.qml"};
const char* const Part = "SceneButton.qml";

QByteArray originalOf(const QString& fileName)
{
    QFile file(QStringLiteral(":/gallery/") + fileName);
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

QPlainTextEdit* makeEditor()
{
    auto* editor = new QPlainTextEdit;
    editor->setObjectName(QStringLiteral("qmlSource"));
    editor->setLineWrapMode(QPlainTextEdit::NoWrap);
    editor->setTabChangesFocus(true);
    // Source code reads from left to right in every language.
    editor->setLayoutDirection(Qt::LeftToRight);
    editor->setMinimumHeight(editor->fontMetrics().lineSpacing() * SourceLines);
    return editor;
}

} // namespace

// What the library logs through glog, in the page's log. Other threads log too.
class QmlDialogPage::LogSink : public google::LogSink
{
public:
    explicit LogSink(QmlDialogPage* page)
        : m_page(page)
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
            m_page, [page = m_page, line] { page->signalLog()->addLine(line); }, Qt::QueuedConnection);
    }

private:
    QmlDialogPage* const m_page;
};

PageInfo QmlDialogPage::info()
{
    return {QStringLiteral("qml-dialog"),
            tr("QML dialog"),
            PageGroup::Guides,
            {QStringLiteral("QML"), tr("dialog"), tr("confirmation"), tr("form"), tr("scene")},
            {QStringLiteral("QuickDialog"), QStringLiteral("QuickContent")},
            &createPage<QmlDialogPage>};
}

QmlDialogPage::QmlDialogPage(QWidget* parent)
    : Page(info(),
           tr("A modal dialog whose whole face is a QML scene: a file that is loaded when the dialog first "
              "runs. The scene knows the dialog as \"callback\" and ends it. Change the source and open it."),
           parent)
    , m_source(makeEditor())
    , m_results(new ResultTable)
    , m_log(std::make_unique<LogSink>(this))
{
    for (const char* scene : Scenes) {
        const QString name = QLatin1String(scene);
        write(m_folder.filePath(name), originalOf(name));
    }
    write(m_folder.filePath(QLatin1String(Part)), originalOf(QLatin1String(Part)));

    addDemonstration(tr("The scene's source"), m_source);
    addDemonstration(QString(), m_results);
    const QStringList names{tr("Confirmation"), tr("Form"), tr("One that fails to load")};
    properties()->addChoice(tr("Scene"), names, 0, [this](int index) { showScene(index); });
    properties()->addSwitch(tr("Centred on this page"), true, [this](bool on) { m_hasParent = on; });
    properties()->addAction(tr("Open a new dialog"), [this] { open(); });
    properties()->addAction(tr("Open the last dialog again"), [this] { openAgain(); });
    properties()->addAction(tr("Original source"),
                            [this] { m_source->setPlainText(QString::fromUtf8(originalOf(m_fileName))); });
    m_source->setAccessibleName(tr("The scene's source"));
    showScene(0);
}

QmlDialogPage::~QmlDialogPage()
{
    delete m_dialog;
}

void QmlDialogPage::prepareForPicture()
{
    Page::prepareForPicture();
    // The folder has another name every time.
    m_results->setResult(tr("File"), m_fileName);
}

void QmlDialogPage::showScene(int index)
{
    saveScene();
    m_fileName = QLatin1String(Scenes[index]);
    QFile file(m_folder.filePath(m_fileName));
    m_source->setPlainText(file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString());
    m_results->setResult(tr("File"), file.fileName());
}

bool QmlDialogPage::saveScene()
{
    return m_fileName.isEmpty() || write(m_folder.filePath(m_fileName), m_source->toPlainText().toUtf8());
}

void QmlDialogPage::open()
{
    if (!saveScene()) {
        m_results->setResult(tr("Result of exec()"), tr("%1 cannot be written").arg(m_fileName));
        return;
    }
    m_path = m_folder.filePath(m_fileName);
    delete m_dialog;
    const bool isDark = m_source->palette().color(QPalette::Text).lightness() > BrightHalf;
    m_dialog = new SceneDialog(isDark, m_hasParent ? this : nullptr);
    m_dialog->setQmlPath(m_path);
    signalLog()->watch(m_dialog, QStringLiteral("dialog"));
    run();
}

// With the source that it was first opened with, and whatever was typed into it since.
void QmlDialogPage::openAgain()
{
    if (m_dialog) {
        run();
    } else {
        open();
    }
}

void QmlDialogPage::run()
{
    const QPointer<QmlDialogPage> self = this;
    const int result = m_dialog->exec();
    if (!self || !m_dialog) {
        return;
    }
    m_results->setResult(tr("Result of exec()"), QString::number(result));
    m_results->setResult(tr("Values of the form"), textOf(m_dialog->values()));
    m_results->setResult(tr("Errors in the scene"), m_dialog->errorsOf(m_path).join(QLatin1Char('\n')));
}
