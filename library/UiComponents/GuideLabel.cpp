#include "GuideLabel.h"

#include "RichText.h"

#include <QApplication>
#include <QFileInfo>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>

namespace {

/// The parent of a document, which asks it before it opens a file: Qt would wait for ever for what a pipe or
/// a device has to say. These count as missing.
class TextFiles : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Called by name. A null answer leaves the file to Qt.
    Q_INVOKABLE QVariant loadResource(int type, const QUrl& url) const
    {
        QUrl local = url;
        if (local.scheme().isEmpty()) {
            local.setScheme(QString::fromLatin1("file"));
        }
        // Qt tries both, for a name may have characters that mean something in a URL.
        const auto paths = {local.toLocalFile(), url.toString()};
        const bool isSpecial = std::any_of(paths.begin(), paths.end(), [](const QString& path) {
            const QFileInfo file(path);
            return file.exists() && !file.isFile() && !file.isDir();
        });
        if (isSpecial && type == QTextDocument::ImageResource) {
            return QPixmap(QString::fromLatin1(":/qt-project.org/styles/commonstyle/images/file-16.png"));
        }
        return isSpecial ? QVariant(QLatin1String("")) : QVariant();
    }
};

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

void shrinkPictures(QTextDocument* document, int maxSide)
{
    reformat(document, [document, maxSide](QTextCharFormat* format) {
        QTextImageFormat picture = format->toImageFormat();
        const QSizeF size = picture.isValid() ? sizeOf(picture, document) : QSizeF();
        if (size.width() <= maxSide && size.height() <= maxSide) {
            return false;
        }
        const QSizeF smaller = size.scaled(maxSide, maxSide, Qt::KeepAspectRatio).expandedTo(QSizeF(1, 1));
        picture.setWidth(smaller.width());
        picture.setHeight(smaller.height());
        *format = picture;
        return true;
    });
}

} // namespace

GuideLabel::GuideLabel(QWidget* parent)
    : QLabel(parent)
    , m_linkColor(QGuiApplication::palette().color(QPalette::Link))
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
        colorLinks();
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
    QTextDocument* const rich = document(); // before Qt fills it
    const QSize minSize = QLabel::minimumSizeHint();
    const QScreen* const shownOn = screen();
    const bool isTooHigh = rich && shownOn && minSize.height() > shownOn->availableSize().height();
    if (minSize.width() <= maxWidth(this) && !isTooHigh) {
        return false;
    }
    if (rich) {
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

/// Gives links the colour of the label where a sheet or the host has given it one: that of the application's
/// palette, which Qt takes for them, may not be legible there. Markup of their own stays.
void GuideLabel::colorLinks()
{
    QTextDocument* const rich = document();
    if (!rich) {
        return;
    }
    QPalette plain = QApplication::palette(this);
    plain.setCurrentColorGroup(palette().currentColorGroup());
    const QColor qtsColor = QGuiApplication::palette().color(QPalette::Link);
    const QColor ownColor = palette().color(foregroundRole());
    const QColor wanted = ownColor == plain.color(foregroundRole()) ? qtsColor : ownColor;
    reformat(rich, [&](QTextCharFormat* format) {
        const QColor present = format->foreground().color();
        if (!format->isAnchor() || present == wanted || (present != qtsColor && present != m_linkColor)) {
            return false;
        }
        format->setForeground(wanted);
        return true;
    });
    m_linkColor = wanted;
}

/// Null for plain text. Qt makes it anew now and then; it asks its parent before it loads anything.
QTextDocument* GuideLabel::document() const
{
    auto* const rich = findChild<QTextDocument*>();
    if (rich && !qobject_cast<TextFiles*>(rich->parent())) {
        rich->setParent(new TextFiles(rich->parent()));
    }
    return rich;
}

QRect GuideLabel::textRect() const
{
    return contentsRect().adjusted(margin(), margin(), -margin(), -margin());
}

#include "GuideLabel.moc"
