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
 * The portal may be started by the first message to it. It is asked for its version when this is made: from 2
 * on it can pick colours. Then, and whenever it starts again, unavailableReason() follows what it says; and
 * until its first answer colours count as available, which a request would find out as well. While it has not
 * answered in time, or has refused, each look at unavailableReason() asks anew.
 *
 * Nothing waits for the portal. It has to take a request within the time limit; the user has all the time.
 */
class ColorPortal : public ScreenColorSource
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

    /// @p timeLimit is for each message, in milliseconds; -1 is D-Bus's own of 25 seconds.
    ColorPortal(const QDBusConnection& bus, QObject* parent, int timeLimit = -1);

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
    /// The latest, until everybody has heard what came of it.
    QPointer<QObject> m_question;
};

/// One request to the portal. Its death withdraws it.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    PortalRequest(ColorPortal* portal, const QString& parentHandle, ScreenColorSource::Answer answer);
    ~PortalRequest() override;

private Q_SLOTS:
    void takeResponse(uint code, const QVariantMap& results);

private:
    void fail(ColorPortal::Trouble trouble);
    void finish(const ScreenColorSource::Result& result);
    static void close(const QDBusConnection& bus, const QString& path);

    const QPointer<ColorPortal> m_portal;
    QDBusConnection m_bus;
    /// What stands for the request in the portal, as long as the user picks.
    QString m_path;
    bool m_isTaken = false;
    /// Empty when it has been given.
    ScreenColorSource::Answer m_answer;
};

/// How the portal is told which window its dialog belongs to: "x11:" and the window's number on X11. Empty
/// without a native window and on Wayland, where a program names its windows with the protocol xdg-foreign,
/// which Qt 5.15 does not speak: the desktop then places its picker by itself.
QString portalHandle(const QWindow* window);

/// The colour of a portal's @p value, three numbers from 0 to 1. Others are moved to the nearest end; what is
/// no number, or no such value, makes it invalid.
QColor portalColor(const QVariant& value);
