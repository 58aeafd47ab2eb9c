#pragma once

#include <UiComponents/BlendingMode.h>
#include <UiComponents/EditCommand.h>

#include <QImage>
#include <QMap>
#include <QObject>
#include <QVariant>
#include <QVector>

namespace TitleCard {

/// What a card has. The type of each is that of its field in the inspector.
enum Property { Text, Color, Outline, Background, Size, Rotation, Opacity, Position, Blending };

struct Card
{
    int id = 0;
    QMap<Property, QVariant> values;
};

/// The cards, from the lowest to the highest, and how they look.
class Document : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const QVector<Card>& cards() const { return m_cards; }
    void setCards(const QVector<Card>& cards);
    /// Makes a card, without adding it.
    Card newCard(const QString& text);

    /// Null for a card that is not there.
    const Card* find(int id) const;
    QVariant value(int id, Property property) const;
    void setValue(int id, Property property, const QVariant& value);
    EditCommand::Target target(int id, Property property);

    QImage render(const QSize& size) const;
    /// The outline of a card in a picture of that size.
    QPolygonF frame(int id, const QSize& size) const;
    /// The highest card at a point, or 0.
    int cardAt(const QPointF& point, const QSize& size) const;

Q_SIGNALS:
    void changed();

private:
    QVector<Card> m_cards;
    int m_lastId = 0;
};

} // namespace TitleCard

Q_DECLARE_METATYPE(TitleCard::Card)
