#include "SignalLogger.h"

#include "ValueText.h"

#include <QStringList>
#include <QVariant>

#include <utility>

namespace {

QString argumentText(const QByteArray& typeName, const void* argument)
{
    const int type = QMetaType::type(typeName.constData());
    if (type == QMetaType::UnknownType) {
        return QStringLiteral("<%1>").arg(QString::fromUtf8(typeName));
    }
    if (type == QMetaType::QVariant) {
        return valueText(*static_cast<const QVariant*>(argument));
    }
    return valueText(QVariant(type, argument));
}

} // namespace

SignalLogger::SignalLogger(Sink sink, QObject* parent)
    : QObject(parent)
    , m_sink(std::move(sink))
{
}

SignalLogger::~SignalLogger() = default;

void SignalLogger::watch(const QObject* object, const char* name)
{
    if (!object) {
        return;
    }
    const QMetaObject* const meta = object->metaObject();
    for (int index = 0; index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        // A signal with a default argument is listed a second time without it.
        const bool isClone = method.attributes() & QMetaMethod::Cloned;
        if (method.methodType() != QMetaMethod::Signal || isClone) {
            continue;
        }
        const int slot = QObject::staticMetaObject.methodCount() + m_sources.size();
        m_sources.append({name, method});
        QMetaObject::connect(object, index, this, slot, Qt::DirectConnection);
    }
}

int SignalLogger::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod) {
        return id;
    }
    if (id < m_sources.size()) {
        const Source source = m_sources.at(id);
        QStringList texts;
        const QList<QByteArray> types = source.signal.parameterTypes();
        for (int i = 0; i < types.size(); ++i) {
            texts.append(argumentText(types.at(i), arguments[i + 1]));
        }
        m_sink(QStringLiteral("%1.%2(%3)")
                   .arg(QString::fromUtf8(source.object), QString::fromUtf8(source.signal.name()),
                        texts.join(QStringLiteral(", "))));
    }
    return id - m_sources.size();
}
