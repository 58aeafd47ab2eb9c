#include "ScreenColorPortal.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QWindow>
#include <QtMath>

#include <utility>

namespace {

QString serviceName()
{
    return QString::fromLatin1("org.freedesktop.portal.Desktop");
}

QString screenshotInterface()
{
    return QString::fromLatin1("org.freedesktop.portal.Screenshot");
}

QString requestInterface()
{
    return QString::fromLatin1("org.freedesktop.portal.Request");
}

/// A call of the object that has all of the portal's methods.
QDBusMessage portalCall(const QString& interface, const QString& method, const QVariantList& arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        serviceName(), QString::fromLatin1("/org/freedesktop/portal/desktop"), interface, method);
    call.setArguments(arguments);
    return call;
}

QString nextToken()
{
    static uint count = 0;
    return QString::fromLatin1("uicomponents%1").arg(++count);
}

/// The path of the request with @p token, by the portal's convention. So its signal can be connected before
/// the portal replies.
QString requestPath(const QDBusConnection& bus, const QString& token)
{
    const QString sender = bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    return QString::fromLatin1("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

ScreenColorPortal::Trouble troubleOf(const QDBusError& error)
{
    switch (error.type()) {
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return ScreenColorPortal::Trouble::NoAnswer;
    case QDBusError::UnknownMethod:
    case QDBusError::UnknownInterface:
    case QDBusError::UnknownObject:
    case QDBusError::UnknownProperty:
    case QDBusError::InvalidArgs:
    case QDBusError::NotSupported:
        return ScreenColorPortal::Trouble::NoColors;
    case QDBusError::ServiceUnknown:
    case QDBusError::Disconnected:
        return ScreenColorPortal::Trouble::NoService;
    default:
        return ScreenColorPortal::Trouble::Refused;
    }
}

/// Whether later requests will fail as well.
bool isLasting(ScreenColorPortal::Trouble trouble)
{
    return trouble == ScreenColorPortal::Trouble::NoColors ||
           trouble == ScreenColorPortal::Trouble::NoService;
}

} // namespace

ScreenColorPortal::ScreenColorPortal(QDBusConnection bus, QObject* parent, int timeLimit)
    : ScreenColorSource(parent)
    , m_bus(std::move(bus))
    , m_timeLimit(timeLimit)
{
    if (!m_bus.isConnected()) {
        m_trouble = Trouble::NoService;
        return;
    }
    auto* const watcher =
        new QDBusServiceWatcher(serviceName(), m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &ScreenColorPortal::askForVersion);
    askForVersion();
}

QString ScreenColorPortal::unavailableReason() const
{
    if (m_trouble != Trouble::None && !isLasting(m_trouble) && !m_question) {
        // The answer comes from the event loop: nothing changes in this call.
        const_cast<ScreenColorPortal*>(this)->askForVersion();
    }
    return text(m_trouble);
}

QString ScreenColorPortal::text(Trouble trouble)
{
    switch (trouble) {
    case Trouble::None:
        break;
    case Trouble::NoService:
        return tr("This desktop has no service for colours of the screen.");
    case Trouble::NoColors:
        return tr("This desktop cannot pick colours from the screen for programs.");
    case Trouble::NoAnswer:
        return tr("The desktop's service for colours of the screen does not answer.");
    case Trouble::Refused:
        return tr("The desktop's service for colours of the screen has refused.");
    }
    return {};
}

std::unique_ptr<QObject> ScreenColorPortal::pick(QWindow* parent, Answer answer)
{
    return std::make_unique<PortalRequest>(this, portalHandle(parent), std::move(answer));
}

void ScreenColorPortal::askForVersion()
{
    const QDBusMessage question =
        portalCall(QString::fromLatin1("org.freedesktop.DBus.Properties"), QString::fromLatin1("Get"),
                   {screenshotInterface(), QString::fromLatin1("version")});
    auto* const watcher = new QDBusPendingCallWatcher(send(question), this);
    m_question = watcher;
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        constexpr uint firstWithColors = 2;
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isError()) {
            setTrouble(troubleOf(reply.error()));
        } else {
            const bool hasColors = reply.value().variant().toUInt() >= firstWithColors;
            setTrouble(hasColors ? Trouble::None : Trouble::NoColors);
        }
    });
}

QDBusPendingCall ScreenColorPortal::send(const QDBusMessage& call) const
{
    // Qt would never report that there is no connection.
    return m_bus.isConnected() ? m_bus.asyncCall(call, m_timeLimit)
                               : QDBusPendingCall::fromError(QDBusError(QDBusError::Disconnected, {}));
}

void ScreenColorPortal::setTrouble(Trouble trouble)
{
    if (m_trouble != trouble) {
        m_trouble = trouble;
        Q_EMIT unavailableReasonChanged();
    }
}

PortalRequest::PortalRequest(ScreenColorPortal* portal, const QString& parentHandle,
                             ScreenColorSource::Answer answer)
    : m_portal(portal)
    , m_bus(portal->m_bus)
    , m_answer(std::move(answer))
{
    const QString token = nextToken();
    m_path = requestPath(m_bus, token);
    m_bus.connect(serviceName(), m_path, requestInterface(), QString::fromLatin1("Response"), this,
                  SLOT(takeResponse(uint, QVariantMap)));
    auto* const life =
        new QDBusServiceWatcher(serviceName(), m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    // Queued: the answer may delete the watcher, which is still emitting.
    connect(
        life, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString& /*service*/, const QString& before) {
            // Not when the message has just started it.
            if (!before.isEmpty()) {
                fail(ScreenColorPortal::Trouble::NoAnswer);
            }
        },
        Qt::QueuedConnection);

    const QVariantMap options = {{QString::fromLatin1("handle_token"), token}};
    auto* const call = new QDBusPendingCallWatcher(
        portal->send(
            portalCall(screenshotInterface(), QString::fromLatin1("PickColor"), {parentHandle, options})),
        portal);
    const QPointer<PortalRequest> self = this;
    connect(call, &QDBusPendingCallWatcher::finished, call, [self, call, bus = m_bus, path = m_path] {
        call->deleteLater();
        if (!self) {
            close(bus, path);
        } else if (call->isError()) {
            self->fail(troubleOf(call->error()));
        } else {
            self->m_isTaken = true;
        }
    });
}

PortalRequest::~PortalRequest()
{
    // The portal may not know the path before it has replied: the handler of the reply closes it then.
    if (m_isTaken) {
        close(m_bus, m_path);
    }
}

void PortalRequest::takeResponse(uint code, const QVariantMap& results)
{
    enum Code : uint { Done, GivenUp };
    m_isTaken = false;
    const QColor color = portalColor(results.value(QString::fromLatin1("color")));
    if (code == GivenUp) {
        finish({});
    } else if (code == Done && color.isValid()) {
        finish({color, {}});
    } else {
        finish({{}, ScreenColorPortal::text(ScreenColorPortal::Trouble::Refused)});
    }
}

void PortalRequest::fail(ScreenColorPortal::Trouble trouble)
{
    // A portal that has not answered in time may still show its dialog.
    close(m_bus, m_path);
    // A slot may delete this.
    const QPointer<PortalRequest> self = this;
    if (isLasting(trouble) && m_portal) {
        m_portal->setTrouble(trouble);
    }
    if (self) {
        finish({{}, ScreenColorPortal::text(trouble)});
    }
}

/// The answer may delete this.
void PortalRequest::finish(const ScreenColorSource::Result& result)
{
    if (const auto answer = std::exchange(m_answer, nullptr)) {
        answer(result);
    }
}

/// Closes the portal's dialog.
void PortalRequest::close(const QDBusConnection& bus, const QString& path)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(serviceName(), path, requestInterface(), QString::fromLatin1("Close"));
    call.setAutoStartService(false);
    bus.send(call);
}

QString portalHandle(const QWindow* window)
{
    constexpr int hexadecimal = 16;
    if (!window || !window->handle() || QGuiApplication::platformName() != QLatin1String("xcb")) {
        return {};
    }
    return QString::fromLatin1("x11:") + QString::number(window->winId(), hexadecimal);
}

QColor portalColor(const QVariant& value)
{
    const auto structure = value.value<QDBusArgument>();
    if (structure.currentSignature() != QLatin1String("(ddd)")) {
        return {};
    }
    double red = 0;
    double green = 0;
    double blue = 0;
    structure.beginStructure();
    structure >> red >> green >> blue;
    structure.endStructure();
    if (!qIsFinite(red) || !qIsFinite(green) || !qIsFinite(blue)) {
        return {};
    }
    return QColor::fromRgbF(qBound(0.0, red, 1.0), qBound(0.0, green, 1.0), qBound(0.0, blue, 1.0));
}
