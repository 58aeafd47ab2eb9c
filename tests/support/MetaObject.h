#pragma once

#include <QMetaMethod>
#include <QMetaObject>
#include <QMetaProperty>
#include <QStringList>

/// The methods that a class adds to its base class, in order, as "signal colorChanged(QColor color)" or
/// "protected method QPoint place()". Those that only repeat another with fewer arguments are listed too.
inline QStringList ownMethods(const QMetaObject& meta)
{
    static const char* const access[] = {"private ", "protected ", ""};
    static const char* const kinds[] = {"method ", "signal ", "slot ", "constructor "};
    QStringList result;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QByteArrayList parameters = method.parameterTypes();
        for (int j = 0; j < parameters.size(); ++j) {
            parameters[j] += ' ' + method.parameterNames().at(j);
        }
        const QByteArray type =
            method.returnType() == QMetaType::Void ? "" : method.typeName() + QByteArray(" ");
        result += QString::fromLatin1(access[method.access()] + (kinds[method.methodType()] + type) +
                                      method.name() + '(' + parameters.join(',') + ')');
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
