#pragma once

#include <QColor>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QProcess>
#include <QTemporaryFile>
#include <QVariantMap>
#include <QVector>

/// A message bus of the test's own, on which no service is started by a message.
class PrivateBus
{
public:
    PrivateBus()
    {
        if (!m_configuration.open()) {
            return;
        }
        m_configuration.write("<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
                              "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                              "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
        m_configuration.close();
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--config-file=") + m_configuration.fileName(),
                        QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        if (m_daemon.waitForStarted() && m_daemon.waitForReadyRead()) {
            m_address = QString::fromLocal8Bit(m_daemon.readLine()).trimmed();
        }
    }

    ~PrivateBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    bool isRunning() const { return !m_address.isEmpty(); }

    QString address() const { return m_address; }

    /// The connection of @p name, which the caller closes with QDBusConnection::disconnectFromBus().
    QDBusConnection connectAs(const QString& name) const
    {
        return QDBusConnection::connectToBus(m_address, name);
    }

private:
    QTemporaryFile m_configuration;
    QProcess m_daemon;
    QString m_address;
};

/// Three numbers, as a portal sends a colour.
struct PortalNumbers
{
    double red = 0;
    double green = 0;
    double blue = 0;
};
Q_DECLARE_METATYPE(PortalNumbers)

inline QDBusArgument& operator<<(QDBusArgument& argument, const PortalNumbers& numbers)
{
    argument.beginStructure();
    argument << numbers.red << numbers.green << numbers.blue;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, PortalNumbers& numbers)
{
    argument.beginStructure();
    argument >> numbers.red >> numbers.green >> numbers.blue;
    argument.endStructure();
    return argument;
}

/// What stands for a request while it runs.
class TestRequest : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

public:
    using QObject::QObject;

    bool isClosed = false;

public Q_SLOTS:
    void Close() { isClosed = true; }
};

/// A portal of the same interface as the desktop's, which answers as the test says.
class TestPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")
    Q_PROPERTY(uint version READ version)

public:
    /// What comes of the message with the request.
    enum class Reply { Path, Refusal, NoMethod, Never };

    explicit TestPortal(const QDBusConnection& connection)
        : bus(connection)
    {
        qDBusRegisterMetaType<PortalNumbers>();
    }

    /// Registers it with everything, or without its interface.
    bool start(bool hasScreenshots = true)
    {
        return (!hasScreenshots ||
                bus.registerObject(path(), this,
                                   QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties)) &&
               bus.registerService(name());
    }

    void stop()
    {
        bus.unregisterService(name());
        bus.unregisterObject(path());
    }

    static QString name() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
    static QString path() { return QStringLiteral("/org/freedesktop/portal/desktop"); }

    uint version() const { return versionNumber; }

    /// Ends the request of that index.
    void respond(int index, uint code, const QVariantMap& results)
    {
        QDBusMessage signal = QDBusMessage::createSignal(requestPaths.at(index),
                                                         QStringLiteral("org.freedesktop.portal.Request"),
                                                         QStringLiteral("Response"));
        signal << code << results;
        bus.send(signal);
        bus.unregisterObject(requestPaths.at(index));
    }

    void respond(int index, const QColor& color)
    {
        respond(index, 0, colorResult({color.redF(), color.greenF(), color.blueF()}));
    }

    static QVariantMap colorResult(const PortalNumbers& numbers)
    {
        return {{QStringLiteral("color"), QVariant::fromValue(numbers)}};
    }

    QDBusConnection bus;
    uint versionNumber = 2;
    Reply reply = Reply::Path;
    QStringList parents;
    QStringList requestPaths;
    QVector<TestRequest*> requests;

public Q_SLOTS:
    QDBusObjectPath PickColor(const QString& parent, const QVariantMap& options)
    {
        const QString sender = message().service().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
        const QString request =
            QStringLiteral("%1/request/%2/%3")
                .arg(path(), sender, options.value(QStringLiteral("handle_token")).toString());
        parents.append(parent);
        requestPaths.append(request);
        requests.append(new TestRequest(this));
        bus.registerObject(request, requests.constLast(), QDBusConnection::ExportAllSlots);
        if (reply == Reply::Refusal) {
            sendErrorReply(QDBusError::AccessDenied, QStringLiteral("not you"));
        } else if (reply == Reply::NoMethod) {
            sendErrorReply(QDBusError::UnknownMethod, QStringLiteral("PickColor"));
        } else if (reply == Reply::Never) {
            setDelayedReply(true);
        }
        return QDBusObjectPath(request);
    }
};
Q_DECLARE_METATYPE(TestPortal::Reply)
