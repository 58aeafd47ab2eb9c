#include "Document.h"

#include <UiComponents/AbstractColorPicker.h>

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <optional>

namespace TitleCard {

namespace {

QVariant colorValue(const QColor& color)
{
    return QVariant::fromValue(std::optional<QColor>(color));
}

QColor colorOf(const Card& card, Property property)
{
    return card.values.value(property).value<std::optional<QColor>>().value_or(QColor());
}

QPainterPath textPath(const Card& card)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(card.values.value(Size).toInt());
    QPainterPath path;
    path.addText(0, 0, font, card.values.value(Text).toString());
    // By whole pixels: how a letter begins within one depends on what Qt has drawn before.
    return path.translated(-path.boundingRect().center().toPoint());
}

QRectF box(const QPainterPath& text)
{
    return text.boundingRect().toAlignedRect().adjusted(-12, -12, 12, 12);
}

/// From the card's own coordinates, with its middle at (0, 0), to the picture's.
QTransform placeOf(const Card& card, const QSize& size)
{
    const QPointF position = card.values.value(Position).toPointF();
    QTransform place;
    place.translate((position.x() + 1) / 2 * size.width(), (position.y() + 1) / 2 * size.height());
    place.rotate(card.values.value(Rotation).toInt());
    return place;
}

/// By BlendingMode. QPainter has none for hue and saturation alone.
constexpr QPainter::CompositionMode modes[] = {
    QPainter::CompositionMode_Overlay,    QPainter::CompositionMode_Lighten,
    QPainter::CompositionMode_SourceOver, QPainter::CompositionMode_ColorDodge,
    QPainter::CompositionMode_Plus,       QPainter::CompositionMode_SourceOver,
    QPainter::CompositionMode_Screen,     QPainter::CompositionMode_Difference,
    QPainter::CompositionMode_Multiply,   QPainter::CompositionMode_Darken,
    QPainter::CompositionMode_ColorBurn,  QPainter::CompositionMode_HardLight,
    QPainter::CompositionMode_SoftLight,  QPainter::CompositionMode_Exclusion,
};

void paint(QPainter& painter, const Card& card, const QSize& size)
{
    const QPainterPath text = textPath(card);
    painter.setTransform(placeOf(card, size));
    painter.setOpacity(card.values.value(Opacity).toDouble());
    painter.setCompositionMode(modes[card.values.value(Blending).toInt()]);
    if (colorOf(card, Background).isValid()) {
        painter.fillRect(box(text), colorOf(card, Background));
    }
    if (colorOf(card, Outline).isValid()) {
        painter.strokePath(text, QPen(colorOf(card, Outline), 3));
    }
    painter.fillPath(text, colorOf(card, Color));
}

} // namespace

void Document::setCards(const QVector<Card>& cards)
{
    m_cards = cards;
    Q_EMIT changed();
}

Card Document::newCard(const QString& text)
{
    return {++m_lastId,
            {{Text, text},
             {Color, colorValue(Qt::white)},
             {Outline, colorValue(QColor())},
             {Background, colorValue(QColor(47, 111, 222))},
             {Size, 48},
             {Rotation, 0},
             {Opacity, 1.0},
             {Position, QPointF(0, 0)},
             {Blending, int(BlendingMode::SourceOver)}}};
}

const Card* Document::find(int id) const
{
    const auto card =
        std::find_if(m_cards.cbegin(), m_cards.cend(), [id](const Card& one) { return one.id == id; });
    return card == m_cards.cend() ? nullptr : &*card;
}

QVariant Document::value(int id, Property property) const
{
    const Card* const card = find(id);
    return card ? card->values.value(property) : QVariant();
}

void Document::setValue(int id, Property property, const QVariant& value)
{
    for (Card& card : m_cards) {
        if (card.id == id) {
            card.values[property] = value;
        }
    }
    Q_EMIT changed();
}

EditCommand::Target Document::target(int id, Property property)
{
    return {[this, id, property] { return value(id, property); },
            [this, id, property](const QVariant& value) { setValue(id, property, value); }};
}

QImage Document::render(const QSize& size) const
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(24, 24, 24));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Card& card : m_cards) {
        paint(painter, card, size);
    }
    return image;
}

QPolygonF Document::frame(int id, const QSize& size) const
{
    const Card* const card = find(id);
    return card ? placeOf(*card, size).map(QPolygonF(box(textPath(*card)))) : QPolygonF();
}

int Document::cardAt(const QPointF& point, const QSize& size) const
{
    for (auto card = m_cards.crbegin(); card != m_cards.crend(); ++card) {
        if (frame(card->id, size).containsPoint(point, Qt::OddEvenFill)) {
            return card->id;
        }
    }
    return 0;
}

} // namespace TitleCard
