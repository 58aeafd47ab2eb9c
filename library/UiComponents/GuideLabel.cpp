#include "GuideLabel.h"

#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>

#include <utility>

namespace {

/// The size of a picture in a text, which may give width, height or neither.
QSizeF sizeOf(const QTextImageFormat& format, QTextDocument* document)
{
    const QVariant picture = document->resource(QTextDocument::ImageResource, format.name());
    QSizeF size = picture.value<QImage>().size();
    if (format.width() > 0 && format.height() > 0) {
        return {format.width(), format.height()};
    }
    if (format.width() > 0) {
        size.scale(format.width(), QWIDGETSIZE_MAX, Qt::KeepAspectRatio);
    } else if (format.height() > 0) {
        size.scale(QWIDGETSIZE_MAX, format.height(), Qt::KeepAspectRatio);
    }
    return size;
}

void shrinkPictures(QTextDocument* document, int most)
{
    QVector<std::pair<int, QTextImageFormat>> shrunk; // by position, since a change invalidates the iterators
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QTextImageFormat format = it.fragment().charFormat().toImageFormat();
            const QSizeF size = format.isValid() ? sizeOf(format, document) : QSizeF();
            if (size.width() > most || size.height() > most) {
                const QSizeF smaller = size.scaled(most, most, Qt::KeepAspectRatio).expandedTo(QSizeF(1, 1));
                format.setWidth(smaller.width());
                format.setHeight(smaller.height());
                shrunk.append({it.fragment().position(), format});
            }
        }
    }
    for (const auto& [position, format] : qAsConst(shrunk)) {
        QTextCursor cursor(document);
        cursor.setPosition(position);
        cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
}

} // namespace

GuideLabel::GuideLabel(QWidget* parent)
    : QLabel(parent)
{
    setWordWrap(true);
}

QSize GuideLabel::sizeHint() const
{
    if (!breaksWords()) {
        return QLabel::sizeHint();
    }
    const int width = maxWidth(this);
    return {width, heightForWidth(width)};
}

QSize GuideLabel::minimumSizeHint() const
{
    return breaksWords() ? QSize(0, fontMetrics().height()) : QLabel::minimumSizeHint();
}

int GuideLabel::heightForWidth(int width) const
{
    if (!breaksWords() || document()) {
        return QLabel::heightForWidth(width);
    }
    const QSize around = size() - textRect().size();
    const QRect room(0, 0, width - around.width(), QWIDGETSIZE_MAX);
    return fontMetrics().boundingRect(room, Qt::TextWrapAnywhere, text()).height() + around.height();
}

int GuideLabel::maxWidth(const QWidget* widget)
{
    const QScreen* const screen = widget->screen();
    return screen ? screen->availableSize().width() / 2 : QWIDGETSIZE_MAX;
}

void GuideLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    breaksWords();
}

void GuideLabel::paintEvent(QPaintEvent* event)
{
    if (!breaksWords() || document()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    const auto flags = QStyle::visualAlignment(layoutDirection(), alignment()) | Qt::TextWrapAnywhere;
    style()->drawItemText(&painter, textRect(), int(flags), palette(), isEnabled(), text(), foregroundRole());
}

/// Makes the document that QLabel has for rich text break words too. QLabel resets it at each layout.
bool GuideLabel::breaksWords() const
{
    if (QLabel::minimumSizeHint().width() <= maxWidth(this)) {
        return false;
    }
    if (QTextDocument* const rich = document()) {
        // heightForWidth() makes QLabel lay out the text, and repaint.
        if (!testAttribute(Qt::WA_WState_InPaintEvent)) {
            QLabel::heightForWidth(width());
        }
        QTextOption option = rich->defaultTextOption();
        if (option.wrapMode() != QTextOption::WrapAtWordBoundaryOrAnywhere) {
            option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
            rich->setDefaultTextOption(option);
            shrinkPictures(rich, maxWidth(this));
        }
    }
    return true;
}

/// Null for plain text.
QTextDocument* GuideLabel::document() const
{
    return findChild<QTextDocument*>();
}

QRect GuideLabel::textRect() const
{
    return contentsRect().adjusted(margin(), margin(), -margin(), -margin());
}
