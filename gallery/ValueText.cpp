#include "ValueText.h"

#include <UiComponents/AbstractColorPicker.h>

#include <QLocale>
#include <QMetaEnum>
#include <QRect>
#include <QVariant>

namespace {

QString colorText(const QColor& color)
{
    if (!color.isValid()) {
        return QStringLiteral("no colour");
    }
    return color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
}

QString numbersText(std::initializer_list<double> numbers)
{
    QStringList texts;
    for (const double number : numbers) {
        texts.append(QString::number(number));
    }
    return QStringLiteral("(%1)").arg(texts.join(QStringLiteral(", ")));
}

QString objectText(const QObject* object)
{
    if (!object) {
        return QStringLiteral("null");
    }
    const QString className = QString::fromUtf8(object->metaObject()->className());
    return object->objectName().isEmpty() ? className
                                          : QStringLiteral("%1 \"%2\"").arg(className, object->objectName());
}

/// Empty for a value that is no enumerator. An enumerator that no class declares has only a number.
QString enumeratorText(const QVariant& value)
{
    if (!QMetaType::typeFlags(value.userType()).testFlag(QMetaType::IsEnumeration)) {
        return {};
    }
    const QMetaObject* const owner = QMetaType::metaObjectForType(value.userType());
    if (!owner) {
        return QStringLiteral("%1(%2)").arg(QString::fromUtf8(value.typeName())).arg(value.toInt());
    }
    const QByteArray typeName(value.typeName());
    const QByteArray name = typeName.mid(typeName.lastIndexOf(':') + 1);
    const QMetaEnum enumeration = owner->enumerator(owner->indexOfEnumerator(name.constData()));
    return QString::fromUtf8(enumeration.valueToKey(value.toInt()));
}

} // namespace

QString valueText(const QVariant& value)
{
    const int type = value.userType();
    if (type == qMetaTypeId<std::optional<QColor>>()) {
        const auto color = value.value<std::optional<QColor>>();
        return color ? colorText(*color) : QStringLiteral("several colours");
    }
    if (QMetaType::typeFlags(type).testFlag(QMetaType::PointerToQObject)) {
        return objectText(value.value<QObject*>());
    }
    switch (type) {
    case QMetaType::UnknownType:
        return QStringLiteral("nothing");
    case QMetaType::QString:
        return QStringLiteral("\"%1\"").arg(value.toString());
    case QMetaType::QStringList:
        return QStringLiteral("[%1]").arg(value.toStringList().join(QStringLiteral(", ")));
    case QMetaType::QColor:
        return colorText(value.value<QColor>());
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::QPoint:
    case QMetaType::QPointF:
        return numbersText({value.toPointF().x(), value.toPointF().y()});
    case QMetaType::QSize:
    case QMetaType::QSizeF:
        return numbersText({value.toSizeF().width(), value.toSizeF().height()});
    case QMetaType::QRect:
    case QMetaType::QRectF: {
        const QRectF rect = value.toRectF();
        return numbersText({rect.x(), rect.y(), rect.width(), rect.height()});
    }
    default:
        break;
    }
    QString enumerator = enumeratorText(value);
    if (!enumerator.isEmpty()) {
        return enumerator;
    }
    if (value.canConvert<QString>()) {
        return value.toString();
    }
    return QStringLiteral("<%1>").arg(QString::fromUtf8(value.typeName()));
}
