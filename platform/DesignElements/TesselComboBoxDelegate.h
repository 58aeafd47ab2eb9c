// Internal: paints the rows of a combo box for convertComboBoxToTessel().

#pragma once

#include <QStyledItemDelegate>

namespace Orvane::Tessel {

/// A styled delegate that also paints the separators of QComboBox::insertSeparator().
class TesselComboBoxDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TesselComboBoxDelegate(QObject* parent);
    ~TesselComboBoxDelegate() override;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace Orvane::Tessel
