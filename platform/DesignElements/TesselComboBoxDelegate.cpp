#include "TesselComboBoxDelegate.h"

#include <QPainter>

namespace {

/// How QComboBox::insertSeparator() marks its items.
bool isSeparator(const QModelIndex& index)
{
    return index.data(Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
}

constexpr int separatorHeight = 5;

} // namespace

namespace Orvane::Tessel {

TesselComboBoxDelegate::TesselComboBoxDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

TesselComboBoxDelegate::~TesselComboBoxDelegate() = default;

void TesselComboBoxDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const
{
    if (!isSeparator(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QColor line = option.palette.color(QPalette::Disabled, QPalette::Text);
    line.setAlphaF(line.alphaF() / 2);
    painter->fillRect(QRect(option.rect.left(), option.rect.center().y(), option.rect.width(), 1), line);
}

QSize TesselComboBoxDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return isSeparator(index) ? QSize(separatorHeight, separatorHeight)
                              : QStyledItemDelegate::sizeHint(option, index);
}

} // namespace Orvane::Tessel
