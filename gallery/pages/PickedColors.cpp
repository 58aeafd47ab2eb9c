#include "PickedColors.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QListWidget>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr QSize SwatchSize(32, 16);
constexpr int Rows = 4;
constexpr int RowHeight = 24;

QIcon swatch(const QColor& color, qreal ratio)
{
    QPixmap pixmap((QSizeF(SwatchSize) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(color.rgb());
    QPainter painter(&pixmap);
    painter.setPen(Qt::gray);
    painter.drawRect(QRectF(QPointF(0.5, 0.5), QSizeF(SwatchSize) - QSizeF(1, 1)));
    return {pixmap};
}

} // namespace

PickedColors::PickedColors(QWidget* parent)
    : QFrame(parent)
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("pickedColors"));
    m_list->setAccessibleName(tr("Picked colours"));
    m_list->setIconSize(SwatchSize);
    m_list->setFixedHeight(Rows * RowHeight);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

PickedColors::~PickedColors() = default;

void PickedColors::add(const QColor& color)
{
    auto* item = new QListWidgetItem(swatch(color, devicePixelRatioF()), color.name());
    m_list->insertItem(0, item);
    m_list->setCurrentItem(item);
}

QStringList PickedColors::names() const
{
    QStringList texts;
    for (int row = 0; row < m_list->count(); ++row) {
        texts.append(m_list->item(row)->text());
    }
    return texts;
}
