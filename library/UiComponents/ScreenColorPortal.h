// Internal: the desktop's portal, from which ScreenColorSource has colours where the program may not read the
// screen.

#pragma once

#include "ScreenColorSource.h"

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QPointer>
#include <QVariantMap>

class QDBusMessage;

/**
 * Picks colours through org.freedesktop.portal.Screenshot.
 *
 * The first message to the portal may start it. Its version is queried at construction: from 2 on it can pick
 * colours. Then, and whenever it starts again, unavailableReason() follows its answer; until the first one
 * colours count as available, and a request finds out otherwise. While it has not answered in time, or has
 * refused, each call of unavailableReason() queries it anew.
 *
 * Nothing blocks. The time limit applies to the portal's replies, not to the user.
 */
class ScreenColorPortal : public ScreenColorSource
{
    Q_OBJECT

public:
    /// Why there is no colour.
    enum class Trouble {
        None,
        NoService,
        NoColors, ///< it is too old, or its desktop's part is
        NoAnswer,
        Refused,
    };

    /// In a sentence for the user; empty for none.
    static QString text(Trouble trouble);

    /// @p timeLimit is for each message, in milliseconds; -1, D-Bus's own of 25 seconds, for all but tests.
    ScreenColorPortal(QDBusConnection bus, QObject* parent, int timeLimit = -1);

    QString unavailableReason() const override;
    std::unique_ptr<QObject> pick(QWindow* parent, Answer answer) override;

private:
    friend class PortalRequest;

    void askForVersion();
    QDBusPendingCall send(const QDBusMessage& call) const;
    void setTrouble(Trouble trouble);

    const QDBusConnection m_bus;
    const int m_timeLimit;
    Trouble m_trouble = Trouble::None;
    /// The pending question, deleted after its answer is handled.
    QPointer<QObject> m_question;
};

/// One request to the portal. Deleting it withdraws it.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    PortalRequest(ScreenColorPortal* portal, const QString& parentHandle, ScreenColorSource::Answer answer);
    ~PortalRequest() override;

private Q_SLOTS:
    void takeResponse(uint code, const QVariantMap& results);

private:
    void fail(ScreenColorPortal::Trouble trouble);
    void finish(const ScreenColorSource::Result& result);
    static void close(const QDBusConnection& bus, const QString& path);

    const QPointer<ScreenColorPortal> m_portal;
    QDBusConnection m_bus;
    /// The D-Bus path of the request in the portal, valid while the user picks.
    QString m_path;
    bool m_isTaken = false;
    /// Empty after it has been called.
    ScreenColorSource::Answer m_answer;
};

/// The identifier of @p window for the portal: "x11:" and the window's number on X11. Empty without a native
/// window and on Wayland, where the protocol xdg-foreign names windows, which Qt 5.15 does not support: the
/// desktop then places its dialog by itself.
QString portalHandle(const QWindow* window);

/// The colour of a portal's @p value, three numbers from 0 to 1. Others are moved to the nearest end; what is
/// no number, or no such value, makes it invalid.
QColor portalColor(const QVariant& value);
