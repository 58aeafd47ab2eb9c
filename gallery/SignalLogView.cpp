#include "SignalLogView.h"

#include "Labels.h"
#include "SignalLogger.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int maxLines = 500;

} // namespace

SignalLogView::SignalLogView(QWidget* parent)
    : QFrame(parent)
    , m_text(new QPlainTextEdit(this))
    , m_logger(new SignalLogger([this](const QString& line) { addLine(line); }, this))
{
    setObjectName(QStringLiteral("signalLog"));

    auto* clearButton = new QToolButton(this);
    clearButton->setObjectName(QStringLiteral("clearSignals"));
    clearButton->setText(tr("Clear"));
    connect(clearButton, &QToolButton::clicked, this, &SignalLogView::clear);

    m_text->setObjectName(QStringLiteral("signalLogText"));
    m_text->setReadOnly(true);
    m_text->setMaximumBlockCount(maxLines);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setLayoutDirection(Qt::LeftToRight);
    QTextOption lines = m_text->document()->defaultTextOption();
    lines.setTextDirection(Qt::LeftToRight);
    m_text->document()->setDefaultTextOption(lines);
    m_text->setAccessibleName(tr("Signals"));
    m_text->setPlaceholderText(tr("Use the component: its signals appear here."));

    auto* header = new QHBoxLayout;
    header->addWidget(makeLabel("panelTitle", tr("Signals"), this), 1);
    header->addWidget(clearButton);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(m_text, 1);
}

SignalLogView::~SignalLogView()
{
    // Children are deleted after the members: what they emit then must not reach addLine().
    delete m_logger;
}

void SignalLogView::watch(const QObject* object, const char* name)
{
    m_logger->watch(object, name);
}

void SignalLogView::addLine(const QString& line)
{
    m_text->appendPlainText(line);
}

void SignalLogView::clear()
{
    m_text->clear();
}
