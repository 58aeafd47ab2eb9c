// Internal: paints the rows of a combo box for convertComboBoxToTessel().

#pragma once

#include <QStyledItemDelegate>

namespace Orvane::Tessel {

/// A styled delegate that also paints the separators of QComboBox::insertSeparator().
class TesselItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TesselItemDelegate(QObject* parent);
    ~TesselItemDelegate() override;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace Orvane::Tessel
