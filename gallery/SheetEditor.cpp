#include "SheetEditor.h"

#include <QEvent>
#include <QFontDatabase>
#include <QPainter>
#include <QTextBlock>

namespace {

constexpr int marginGap = 6;
// A red that both dark and bright text can be read on.
const QColor errorMark(220, 60, 60, 90);

} // namespace

SheetEditor::SheetEditor(QWidget* parent)
    : QPlainTextEdit(parent)
    , m_margin(new QWidget(this))
{
    m_margin->setObjectName(QStringLiteral("lineNumbers"));
    m_margin->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_margin->installEventFilter(this);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabChangesFocus(true);
    // Source code reads from left to right in every language.
    setLayoutDirection(Qt::LeftToRight);
    QTextOption lines = document()->defaultTextOption();
    lines.setTextDirection(Qt::LeftToRight);
    document()->setDefaultTextOption(lines);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &SheetEditor::placeMargin);
    connect(this, &QPlainTextEdit::updateRequest, m_margin, QOverload<>::of(&QWidget::update));
    placeMargin();
}

SheetEditor::~SheetEditor() = default;

void SheetEditor::setErrorLine(int line)
{
    m_errorLine = line;
    QList<QTextEdit::ExtraSelection> marks;
    if (line > 0) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(document()->findBlockByNumber(qMin(line, blockCount()) - 1));
        mark.format.setBackground(errorMark);
        mark.format.setProperty(QTextFormat::FullWidthSelection, true);
        marks.append(mark);
    }
    setExtraSelections(marks);
    m_margin->update();
}

QSize SheetEditor::sizeHint() const
{
    constexpr int lines = 14;
    return {QPlainTextEdit::sizeHint().width(), lines * fontMetrics().lineSpacing()};
}

void SheetEditor::goToLine(int line)
{
    setTextCursor(QTextCursor(document()->findBlockByNumber(line - 1)));
    centerCursor();
}

void SheetEditor::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    placeMargin();
}

void SheetEditor::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        placeMargin();
    }
}

bool SheetEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_margin && event->type() == QEvent::Paint) {
        paintMargin();
        return true;
    }
    return QPlainTextEdit::eventFilter(watched, event);
}

void SheetEditor::placeMargin()
{
    const int digits = QString::number(blockCount()).size();
    const int width = digits * fontMetrics().horizontalAdvance(QLatin1Char('0')) + 2 * marginGap;
    setViewportMargins(width, 0, 0, 0);
    const QRect inside = contentsRect();
    m_margin->setGeometry(inside.left(), inside.top(), width, inside.height());
}

void SheetEditor::paintMargin()
{
    QPainter painter(m_margin);
    painter.setFont(font());
    QColor color = palette().color(QPalette::Text);
    color.setAlphaF(0.6);
    QTextBlock block = firstVisibleBlock();
    QRectF place = blockBoundingGeometry(block).translated(contentOffset());
    // The viewport is below the frame and padding of the editor.
    const int top = viewport()->y() - m_margin->y();
    while (block.isValid() && place.top() + top < m_margin->height()) {
        const int line = block.blockNumber() + 1;
        const QRectF row(0, place.top() + top, m_margin->width() - marginGap, place.height());
        if (line == m_errorLine) {
            painter.fillRect(QRectF(0, row.top(), m_margin->width(), row.height()), errorMark);
        }
        painter.setPen(line == m_errorLine ? palette().color(QPalette::Text) : color);
        painter.drawText(row, Qt::AlignRight | Qt::AlignVCenter | Qt::AlignAbsolute, QString::number(line));
        block = block.next();
        place = blockBoundingGeometry(block).translated(contentOffset());
    }
}
