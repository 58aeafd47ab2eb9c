#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QVector>

#include <functional>

/**
 * Reports every signal of the objects it watches as a line "object.signal(arguments)".
 *
 * It connects through the meta-object, so it needs to know nothing about the classes it watches; it keeps
 * no pointer to them, and they may die in any order.
 */
// It answers qt_metacall() itself, in the place of the code that Q_OBJECT would generate.
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
