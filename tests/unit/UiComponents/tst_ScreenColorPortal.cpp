#include "FakePlatform.h"
#include "PortalStage.h"
#include "TestMain.h"

#include <UiComponents/ScreenColorPortal.h>

#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVirtualObject>

#include <array>
#include <limits>
#include <memory>

namespace {

/// Answers, in the order in which they came.
struct Answers
{
    ScreenColorSource::Answer taker()
    {
        return [this](const ScreenColorSource::Result& result) { results.append(result); };
    }

    QVector<ScreenColorSource::Result> results;
};

} // namespace

class tst_ScreenColorPortal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_bus = std::make_unique<PrivateBus>();
        QVERIFY2(m_bus->isRunning(), "dbus-daemon does not start");
    }

    void cleanupTestCase() { m_bus.reset(); }

    void init()
    {
        m_service = std::make_unique<TestPortal>(m_bus->connectAs(QStringLiteral("service")));
        QVERIFY(m_service->bus.isConnected());
    }

    void cleanup()
    {
        m_portal.reset();
        m_service->stop();
        m_service.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("service"));
        QDBusConnection::disconnectFromBus(QStringLiteral("client"));
    }

    void availability_data()
    {
        QTest::addColumn<bool>("isRunning");
        QTest::addColumn<bool>("hasScreenshots");
        QTest::addColumn<uint>("version");
        QTest::addColumn<bool>("isAvailable");

        QTest::newRow("no portal") << false << false << 0U << false;
        QTest::newRow("a portal without screenshots") << true << false << 0U << false;
        QTest::newRow("from before colours") << true << true << 1U << false;
        QTest::newRow("as it is") << true << true << 2U << true;
        QTest::newRow("newer") << true << true << 3U << true;
    }

    void availability()
    {
        QFETCH(const bool, isRunning);
        QFETCH(const bool, hasScreenshots);
        QFETCH(const bool, isAvailable);
        QFETCH(const uint, version);
        m_service->versionNumber = version;
        QVERIFY(!isRunning || m_service->start(hasScreenshots));
        makePortal();
        QSignalSpy changes(m_portal.get(), &ScreenColorSource::unavailableReasonChanged);

        // Not known yet: nothing has waited for it.
        QCOMPARE(m_portal->unavailableReason(), QString());
        QTRY_COMPARE(m_portal->unavailableReason().isEmpty(), isAvailable);
        flush();
        QCOMPARE(m_portal->unavailableReason().isEmpty(), isAvailable);
        QCOMPARE(changes.count(), isAvailable ? 0 : 1);
    }

    void noBus()
    {
        const QString name = QStringLiteral("none");
        m_portal = std::make_unique<ScreenColorPortal>(
            QDBusConnection::connectToBus(QStringLiteral("unix:path=/nowhere"), name), nullptr);
        QVERIFY(!m_portal->unavailableReason().isEmpty());
        Answers answers;
        const auto request = m_portal->pick(nullptr, answers.taker());
        QVERIFY(answers.results.isEmpty());
        QTRY_COMPARE(answers.results.size(), 1);
        QVERIFY(!answers.results.constFirst().color.isValid());
        QVERIFY(!answers.results.constFirst().reason.isEmpty());
        QDBusConnection::disconnectFromBus(name);
    }

    void startsLater()
    {
        makePortal();
        QTRY_VERIFY(!m_portal->unavailableReason().isEmpty());
        QVERIFY(m_service->start());
        QTRY_VERIFY(m_portal->unavailableReason().isEmpty());
    }

    // As an older one here, so that it is seen to be asked again. Nothing is logged.
    void startsAgain()
    {
        QVERIFY(m_service->start());
        makePortal();
        Answers answers;
        auto request = m_portal->pick(nullptr, answers.taker());
        QTRY_COMPARE(m_service->requests.size(), 1);
        m_service->respond(0, QColor(Qt::white));
        QTRY_COMPARE(answers.results.size(), 1);
        request.reset();
        m_service->stop();
        flush();
        m_service->versionNumber = 1;
        QVERIFY(m_service->start());
        QTRY_VERIFY(!m_portal->unavailableReason().isEmpty());
    }

    void doesNotAnswerAboutItself()
    {
        // Nobody reads what comes to this connection, as in a service that hangs.
        m_service->bus.registerVirtualObject(TestPortal::path(), &m_silence, QDBusConnection::SubPath);
        QVERIFY(m_service->bus.registerService(TestPortal::name()));
        const int before = m_silence.questions;
        makePortal(shortTime);
        QSignalSpy changes(m_portal.get(), &ScreenColorSource::unavailableReasonChanged);
        // Who hears of it may look, and that asks nothing.
        connect(m_portal.get(), &ScreenColorSource::unavailableReasonChanged, this,
                [this] { m_portal->unavailableReason(); });
        QVERIFY(changes.wait());
        QVERIFY(!m_portal->unavailableReason().isEmpty());
        QCOMPARE(m_silence.questions, before + 1);

        // It answers now, without having been started again.
        m_service->bus.unregisterObject(TestPortal::path(), QDBusConnection::UnregisterTree);
        QVERIFY(m_service->start());
        QTRY_VERIFY(m_portal->unavailableReason().isEmpty());
        QCOMPARE(changes.count(), 2);
    }

    void looksAskOnceAtATime()
    {
        m_service->bus.registerVirtualObject(TestPortal::path(), &m_silence, QDBusConnection::SubPath);
        QVERIFY(m_service->bus.registerService(TestPortal::name()));
        makePortal(shortTime);
        QSignalSpy changes(m_portal.get(), &ScreenColorSource::unavailableReasonChanged);
        QVERIFY(changes.wait());
        QTRY_COMPARE(m_portal->findChildren<QDBusPendingCallWatcher*>().size(), 0);
        const int before = m_silence.questions;
        for (int i = 0; i < 3; ++i) {
            QVERIFY(!m_portal->unavailableReason().isEmpty());
        }
        flush();
        QCOMPARE(m_silence.questions, before + 1);
        // The same answer is no news.
        QTRY_COMPARE(m_portal->findChildren<QDBusPendingCallWatcher*>().size(), 0);
        QCOMPARE(changes.count(), 1);
    }

    void answers_data()
    {
        QTest::addColumn<uint>("code");
        QTest::addColumn<QVariantMap>("results");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<bool>("hasReason");

        constexpr double infinite = std::numeric_limits<double>::infinity();
        constexpr double none = std::numeric_limits<double>::quiet_NaN();
        const auto numbers = [](double red, double green, double blue) {
            return TestPortal::colorResult({red, green, blue});
        };
        const QString name = QStringLiteral("color");
        QTest::newRow("a colour") << 0U << numbers(1, 0.5, 0) << QColor::fromRgbF(1, 0.5, 0) << false;
        QTest::newRow("black") << 0U << numbers(0, 0, 0) << QColor(Qt::black) << false;
        QTest::newRow("outside of 0 to 1")
            << 0U << numbers(1.25, 0.25, -3) << QColor::fromRgbF(1, 0.25, 0) << false;
        QTest::newRow("infinite") << 0U << numbers(infinite, 0, 0) << QColor() << true;
        QTest::newRow("no number") << 0U << numbers(0, none, 0) << QColor() << true;
        QTest::newRow("without a colour") << 0U << QVariantMap() << QColor() << true;
        QTest::newRow("a text for a colour")
            << 0U << QVariantMap{{name, QStringLiteral("#ff0000")}} << QColor() << true;
        QTest::newRow("one number for a colour") << 0U << QVariantMap{{name, 0.5}} << QColor() << true;
        QTest::newRow("the user gave up") << 1U << QVariantMap() << QColor() << false;
        QTest::newRow("gave up, with a colour") << 1U << numbers(1, 1, 1) << QColor() << false;
        QTest::newRow("ended otherwise") << 2U << QVariantMap() << QColor() << true;
        QTest::newRow("an unknown end") << 77U << numbers(1, 1, 1) << QColor() << true;
    }

    void answers()
    {
        QFETCH(const uint, code);
        QFETCH(const QVariantMap, results);
        QFETCH(const QColor, color);
        QFETCH(const bool, hasReason);
        QVERIFY(m_service->start());
        makePortal();
        Answers answers;
        const auto request = m_portal->pick(nullptr, answers.taker());
        QTRY_COMPARE(m_service->requests.size(), 1);
        QCOMPARE(m_service->parents, QStringList{QString()});
        m_service->respond(0, code, results);
        QTRY_COMPARE(answers.results.size(), 1);
        QCOMPARE(answers.results.constFirst().color, color);
        QCOMPARE(answers.results.constFirst().reason.isEmpty(), !hasReason);

        // Once only; and what went wrong with one pick says nothing of the next.
        m_service->respond(0, QColor(Qt::white));
        flush();
        QCOMPARE(answers.results.size(), 1);
        QVERIFY(m_portal->unavailableReason().isEmpty());
        QVERIFY(!m_service->requests.constFirst()->isClosed);
    }

    void failedRequests_data()
    {
        QTest::addColumn<TestPortal::Reply>("reply");
        QTest::addColumn<bool>("staysAvailable");

        QTest::newRow("refused") << TestPortal::Reply::Refusal << true;
        QTest::newRow("without the method") << TestPortal::Reply::NoMethod << false;
        QTest::newRow("not answered in time") << TestPortal::Reply::Never << true;
    }

    void failedRequests()
    {
        QFETCH(const TestPortal::Reply, reply);
        QFETCH(const bool, staysAvailable);
        m_service->reply = reply;
        QVERIFY(m_service->start());
        makePortal(shortTime);
        Answers answers;
        const auto request = m_portal->pick(nullptr, answers.taker());
        QTRY_COMPARE(answers.results.size(), 1);
        QVERIFY(!answers.results.constFirst().color.isValid());
        QVERIFY(!answers.results.constFirst().reason.isEmpty());
        QCOMPARE(m_portal->unavailableReason().isEmpty(), staysAvailable);

        // A dialog that comes up after all is taken away.
        QTRY_VERIFY(m_service->requests.constFirst()->isClosed);
        m_service->respond(0, QColor(Qt::white));
        flush();
        QCOMPARE(answers.results.size(), 1);
    }

    void userHasAllTheTime()
    {
        QVERIFY(m_service->start());
        makePortal(shortTime);
        Answers answers;
        const auto request = m_portal->pick(nullptr, answers.taker());
        QTRY_COMPARE(m_service->requests.size(), 1);
        QElapsedTimer clock;
        clock.start();
        QTRY_VERIFY(clock.hasExpired(3 * shortTime));
        QVERIFY(answers.results.isEmpty());
        m_service->respond(0, QColor(Qt::white));
        QTRY_COMPARE(answers.results.size(), 1);
        QVERIFY(answers.results.constFirst().color.isValid());
    }

    void withdrawn_data()
    {
        QTest::addColumn<bool>("atOnce");

        QTest::newRow("in the turn that sent it") << true;
        QTest::newRow("while the user picks") << false;
    }

    void withdrawn()
    {
        QFETCH(const bool, atOnce);
        QVERIFY(m_service->start());
        makePortal();
        Answers answers;
        auto request = m_portal->pick(nullptr, answers.taker());
        if (!atOnce) {
            QTRY_COMPARE(m_service->requests.size(), 1);
        }
        request.reset();
        QTRY_COMPARE(m_service->requests.size(), 1);
        QTRY_VERIFY(m_service->requests.constFirst()->isClosed);
        m_service->respond(0, QColor(Qt::white));
        flush();
        QVERIFY(answers.results.isEmpty());
    }

    void twoRequests()
    {
        QVERIFY(m_service->start());
        makePortal();
        Answers first;
        Answers second;
        const auto one = m_portal->pick(nullptr, first.taker());
        const auto other = m_portal->pick(nullptr, second.taker());
        QTRY_COMPARE(m_service->requests.size(), 2);
        QVERIFY(m_service->requestPaths.at(0) != m_service->requestPaths.at(1));
        m_service->respond(1, QColor(Qt::blue));
        QTRY_COMPARE(second.results.size(), 1);
        QVERIFY(first.results.isEmpty());
        m_service->respond(0, QColor(Qt::red));
        QTRY_COMPARE(first.results.size(), 1);
        QCOMPARE(first.results.constFirst().color, QColor(Qt::red));
        QCOMPARE(second.results.constFirst().color, QColor(Qt::blue));
    }

    void diesInBetween_data()
    {
        QTest::addColumn<bool>("isTaken");

        QTest::newRow("with the user's request") << true;
        QTest::newRow("with the message unread") << false;
    }

    void diesInBetween()
    {
        QFETCH(const bool, isTaken);
        m_service->reply = isTaken ? TestPortal::Reply::Path : TestPortal::Reply::Never;
        QVERIFY(m_service->start());
        makePortal();
        QVector<ScreenColorSource::Result> results;
        std::unique_ptr<QObject> request;
        request = m_portal->pick(nullptr, [&](const ScreenColorSource::Result& result) {
            results.append(result);
            // As a pipette does.
            request.reset();
        });
        // Its watcher says this last, and is not to be deleted before.
        const auto* const watcher = request->findChild<QDBusServiceWatcher*>();
        bool hasEnded = false;
        bool hasEndedFirst = false;
        connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [&] { hasEnded = true; });
        connect(watcher, &QObject::destroyed, this, [&] { hasEndedFirst = hasEnded; });
        QTRY_COMPARE(m_service->requests.size(), 1);
        m_service->stop();
        QTRY_COMPARE(results.size(), 1);
        QVERIFY(hasEndedFirst);
        QVERIFY(!results.constFirst().color.isValid());
        QVERIFY(!results.constFirst().reason.isEmpty());
        // The next message may start it again.
        QVERIFY(m_portal->unavailableReason().isEmpty());
    }

    void answerMayDeleteTheRequest()
    {
        QVERIFY(m_service->start());
        makePortal();
        std::unique_ptr<QObject> request;
        bool isDeleted = false;
        request = m_portal->pick(nullptr, [&](const ScreenColorSource::Result& /*result*/) {
            request.reset();
            m_portal.reset();
            isDeleted = true;
        });
        QTRY_COMPARE(m_service->requests.size(), 1);
        m_service->respond(0, QColor(Qt::white));
        QTRY_VERIFY(isDeleted);
    }

    void requestOutlivesThePortalsObject()
    {
        QVERIFY(m_service->start());
        makePortal();
        Answers answers;
        const auto request = m_portal->pick(nullptr, answers.taker());
        m_portal.reset();
        QTRY_COMPARE(m_service->requests.size(), 1);
        m_service->respond(0, QColor(Qt::white));
        QTRY_COMPARE(answers.results.size(), 1);
    }

    void parent_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<bool>("hasHandle"); // the window
        QTest::addColumn<bool>("isNamed");
        QTest::newRow("X11") << QStringLiteral("xcb") << true << true;
        QTest::newRow("X11, before there is a native window") << QStringLiteral("xcb") << false << false;
        QTest::newRow("off screen") << QStringLiteral("offscreen") << true << false;
        QTest::newRow("Wayland") << QStringLiteral("wayland") << true << false;
    }

    void parent()
    {
        QFETCH(const QString, platform);
        QFETCH(const bool, hasHandle);
        QFETCH(const bool, isNamed);
        const PlatformName name(platform);
        // Off screen they have small numbers, and a sixteenth is the first that tells.
        std::array<QWindow, 16> windows;
        if (hasHandle) {
            for (QWindow& each : windows) {
                each.create();
            }
        }
        QWindow& window = windows.back();
        const QString named = QStringLiteral("x11:%1").arg(hasHandle ? window.winId() : 0, 0, 16);
        QCOMPARE(portalHandle(&window), isNamed ? named : QString());
        QCOMPARE(portalHandle(nullptr), QString());
    }

private:
    static constexpr int shortTime = 100;

    /// Takes every message and answers none.
    class Silence : public QDBusVirtualObject
    {
    public:
        QString introspect(const QString& /*path*/) const override { return {}; }
        bool handleMessage(const QDBusMessage& message, const QDBusConnection& /*connection*/) override
        {
            message.setDelayedReply(true);
            ++questions;
            return true;
        }

        int questions = 0;
    };

    void makePortal(int timeLimit = -1)
    {
        const QDBusConnection client = m_bus->connectAs(QStringLiteral("client"));
        QVERIFY(client.isConnected());
        m_portal = std::make_unique<ScreenColorPortal>(client, nullptr, timeLimit);
    }

    /// Until what is on its way between the two has arrived.
    void flush()
    {
        QDBusConnection client(QStringLiteral("client"));
        const auto ask = [](const QDBusConnection& from, const QString& to) {
            QDBusPendingCallWatcher call(from.asyncCall(QDBusMessage::createMethodCall(
                to, QStringLiteral("/"), QStringLiteral("org.freedesktop.DBus.Peer"),
                QStringLiteral("Ping"))));
            return QSignalSpy(&call, &QDBusPendingCallWatcher::finished).wait();
        };
        QVERIFY(ask(client, m_service->bus.baseService()));
        QVERIFY(ask(m_service->bus, client.baseService()));
        QVERIFY(ask(client, m_service->bus.baseService()));
    }

    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<TestPortal> m_service;
    std::unique_ptr<ScreenColorPortal> m_portal;
    Silence m_silence;
};

UIC_TEST_MAIN(tst_ScreenColorPortal)

#include "tst_ScreenColorPortal.moc"
