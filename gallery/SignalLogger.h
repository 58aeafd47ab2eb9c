#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QVector>

#include <functional>

/**
 * Reports every signal of the objects it watches as a line "object.signal(arguments)".
 *
 * It connects through the meta-object, for any class, and keeps no pointer to the objects: they may be
 * deleted in any order.
 */
// It implements qt_metacall() itself, in place of the code that Q_OBJECT generates.
class SignalLogger : public QObject // clazy:exclude=missing-qobject-macro
{
public:
    using Sink = std::function<void(const QString& line)>;

    /// @p sink is called for each signal, while the sender emits it.
    explicit SignalLogger(Sink sink, QObject* parent = nullptr);
    ~SignalLogger() override;

    /// Watches all signals of @p object that it has by now; lines call it @p name. Null does nothing.
    void watch(const QObject* object, const char* name);

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    struct Source
    {
        QByteArray object;
        QMetaMethod signal;
    };

    QVector<Source> m_sources;
    Sink m_sink;
};
