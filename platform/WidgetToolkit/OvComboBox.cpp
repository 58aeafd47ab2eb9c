#include "OvComboBox.h"

#include "OvComboBoxPopup.h"
#include "Util.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

namespace {

constexpr int usualContentsLength = 4; // characters, in a narrow panel
constexpr int iconGap = 4;             // between icon and text, as QStyle draws the label

int roomForIcon(const QComboBox* box)
{
    for (int i = 0; i < box->count(); ++i) {
        if (!box->itemIcon(i).isNull()) {
            return box->iconSize().width() + iconGap;
        }
    }
    return 0;
}

/// Stops at a text of width @p enough, since a list may be long. Measures bounding rectangles, as sizeHint()
/// does.
int widestText(const QComboBox* box, const QFontMetrics& metrics, int enough)
{
    int widest = metrics.boundingRect(box->placeholderText()).width();
    for (int i = 0; i < box->count() && widest < enough; ++i) {
        widest = qMax(widest, metrics.boundingRect(box->itemText(i)).width());
    }
    return qMin(widest, enough);
}

} // namespace

OvComboBox::OvComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    publishPopupVisible(false);
}

OvComboBox::~OvComboBox() = default;

void OvComboBox::showPopup()
{
    // Qt creates the pop-up's container on demand and keeps it when the view is replaced. An empty box shows
    // no pop-up, and must not create one for a model that is gone.
    if (count() > 0) {
        popup()->installEventFilter(this);
    }
    QComboBox::showPopup();
}

void OvComboBox::hidePopup()
{
    QComboBox::hidePopup();
    if (property("popupVisible").toBool()) {
        publishPopupVisible(popup()->isVisible());
    }
}

QSize OvComboBox::minimumSizeHint() const
{
    // QComboBox caches its own, which is stale when a subclass swallows a FontChange or StyleChange.
    const QFontMetrics metrics(fontMetrics());
    const int length = minimumContentsLength() > 0 ? minimumContentsLength() : usualContentsLength;
    const qint64 wanted = qint64(length) * metrics.horizontalAdvance(QLatin1Char('X'));
    const int room = int(qMin<qint64>(wanted, QWIDGETSIZE_MAX));
    const int icon = roomForIcon(this);
    const int iconHeight = icon > 0 ? iconSize().height() : 0;
    const QSize contents(widestText(this, metrics, room) + icon,
                         qMax(qMax(metrics.height(), 14), iconHeight) + 2);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
}

bool OvComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == popup()) {
        if (event->type() == QEvent::Show && !event->spontaneous()) {
            placePopup();
            publishPopupVisible(true);
        } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
            publishPopupVisible(false);
        } else if (event->type() == QEvent::LanguageChange && popup()->isVisible()) {
            // The box has translated its items already, which may be wider now.
            placePopup();
        }
    }
    return QComboBox::eventFilter(watched, event);
}

void OvComboBox::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (currentIndex() < 0 && !placeholderText().isEmpty()) {
        option.palette.setBrush(QPalette::ButtonText, option.palette.brush(QPalette::PlaceholderText));
        option.currentText = placeholderText();
    }
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const int icon = option.currentIcon.isNull() ? 0 : option.iconSize.width() + iconGap;
    const int margins = 2; // styles leave a pixel on both sides of the text
    const int room = field.width() - icon - margins;
    // The bounding rectangle, as in sizeHint(): the advance may be wider, and would elide the text in a box
    // of exactly that size.
    if (option.fontMetrics.boundingRect(option.currentText).width() > room) {
        option.currentText = option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, room);
    }
    // From the right to the left a text ends where its advance does, and the style clips it at the field's
    // end.
    if (isRightToLeft()) {
        const int overhang = option.fontMetrics.horizontalAdvance(option.currentText) - room;
        option.rect.setLeft(option.rect.left() - qMax(0, overhang));
    }
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void OvComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

QWidget* OvComboBox::popup() const
{
    return view()->parentWidget();
}

void OvComboBox::placePopup()
{
    QWidget* const window = popup();
    const QRect box(mapToGlobal(QPoint(0, 0)), size());
    const QScreen* screen = QGuiApplication::screenAt(box.center());
    if (!screen) {
        screen = window->screen();
    }
    QAbstractItemView* const list = view();
    const int around = window->width() - list->viewport()->width();
    const int scrollBar =
        list->verticalScrollBar()->isVisibleTo(list) ? 0 : list->verticalScrollBar()->sizeHint().width();
    const int items = list->sizeHintForColumn(modelColumn());
    const bool scrolls = count() > maxVisibleItems();
    const int wanted = items + around + (scrolls ? scrollBar : 0);
    window->setGeometry(OvComboBoxPopup::widened(window->geometry(), wanted, box, layoutDirection(),
                                                 screen->availableGeometry()));
}

void OvComboBox::publishPopupVisible(bool visible)
{
    Util::applyProperty(this, "popupVisible", visible);
}
