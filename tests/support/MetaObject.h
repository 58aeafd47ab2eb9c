#pragma once

#include <QMetaMethod>
#include <QMetaObject>
#include <QMetaProperty>
#include <QStringList>

/// The methods that a class adds to its base class, in order, as "signal colorChanged(QColor)". Those
/// that only repeat another with fewer arguments are listed too.
inline QStringList ownMethods(const QMetaObject& meta)
{
    static const char* const kinds[] = {"method", "signal", "slot", "constructor"};
    QStringList result;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        result += QLatin1String(kinds[method.methodType()]) + QLatin1Char(' ') +
                  QString::fromLatin1(method.methodSignature());
    }
    return result;
}

/// The properties that a class adds to its base class, in order, as "int popupOffset rw".
inline QStringList ownProperties(const QMetaObject& meta)
{
    QStringList result;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        result += QLatin1String(property.typeName()) + QLatin1Char(' ') + QLatin1String(property.name()) +
                  QLatin1Char(' ') + QLatin1String(property.isReadable() ? "r" : "") +
                  QLatin1String(property.isWritable() ? "w" : "") +
                  QLatin1String(property.hasNotifySignal() ? "n" : "");
    }
    return result;
}
