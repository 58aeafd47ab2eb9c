#include "FakePlatform.h"
#include "FakePrivacy.h"
#include "FakeScreenColors.h"
#include "TestMain.h"

#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/ScreenColorPortal.h>
#include <UiComponents/ScreenColorSource.h>

#include <memory>

using Orvane::Util::AccessStatus;

Q_DECLARE_METATYPE(AccessStatus)

namespace {

/// A pipette over a source of the test's own, and what it reports.
struct Stage
{
    Stage()
    {
        ScreenColorSource::install(&source);
        QObject::connect(pipette, &Pipette::pickingStarted, [this] { log += QStringLiteral("started"); });
        QObject::connect(pipette, &Pipette::pickingStopped, [this] { log += QStringLiteral("stopped"); });
        QObject::connect(pipette, &Pipette::colorSelected,
                         [this](const QColor& color) { log += color.name(); });
    }
    ~Stage() { delete pipette; }

    void answer(int index, const ScreenColorSource::Result& result)
    {
        source.requests.at(index).answer(result);
    }

    FakeScreenColors source;
    QPointer<Pipette> pipette = new Pipette;
    QStringList log;
};

/// As the manual of ScreenColorSource shows it.
class RedScreen : public ScreenColorSource // clazy:exclude=missing-qobject-macro
{
    QString unavailableReason() const override { return {}; }
    std::unique_ptr<QObject> pick(QWindow* /*parent*/, Answer answer) override
    {
        auto request = std::make_unique<QObject>();
        QTimer::singleShot(0, request.get(), [answer] { answer({Qt::red, {}}); });
        return request;
    }
};

} // namespace

class tst_ScreenColorSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        ScreenColorSource::install(nullptr);
        FakePrivacy::reset();
    }

    void portal_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<AccessStatus>("status");
        QTest::addColumn<bool>("isUsed");

        const QString wayland = QStringLiteral("wayland");
        QTest::newRow("Wayland") << wayland << AccessStatus::Unavailable << true;
        QTest::newRow("another Wayland")
            << QStringLiteral("wayland-egl") << AccessStatus::Unavailable << true;
        QTest::newRow("Wayland, denied by the host") << wayland << AccessStatus::Denied << true;
        QTest::newRow("Wayland, granted by the host") << wayland << AccessStatus::Granted << false;
        // The user may be asked for what is missing.
        for (const auto status : {AccessStatus::Granted, AccessStatus::Denied, AccessStatus::Unavailable}) {
            QTest::addRow("elsewhere, status %d", int(status)) << QStringLiteral("xcb") << status << false;
        }
    }

    void portal()
    {
        QFETCH(const QString, platform);
        QFETCH(const AccessStatus, status);
        QFETCH(const bool, isUsed);
        const PlatformName name(platform);
        FakePrivacy::screenAccess = status;
        ScreenColorSource* const source = ScreenColorSource::current();
        QCOMPARE(qobject_cast<ScreenColorPortal*>(source) != nullptr, isUsed);
        QCOMPARE(source != nullptr, isUsed);
        // One for all.
        QCOMPARE(ScreenColorSource::current(), source);
        // Off screen there is no bus, so that nothing is to be waited for.
        QCOMPARE(Pipette::unavailableReason().isEmpty(), !isUsed);
        QCOMPARE(FakePrivacy::requests.size(), 0);
    }

    void installed()
    {
        auto fake = std::make_unique<FakeScreenColors>();
        ScreenColorSource::install(fake.get());
        QCOMPARE(ScreenColorSource::current(), static_cast<ScreenColorSource*>(fake.get()));
        FakePrivacy::screenAccess = AccessStatus::Unavailable;
        QCOMPARE(ScreenColorSource::current(), static_cast<ScreenColorSource*>(fake.get()));

        fake.reset();
        QVERIFY(!ScreenColorSource::current());
    }

    void hostsOwn()
    {
        RedScreen screen;
        ScreenColorSource::install(&screen);
        Pipette pipette;
        QSignalSpy selected(&pipette, &Pipette::colorSelected);
        pipette.startPicking();
        QCOMPARE(selected.count(), 0);
        QTRY_COMPARE(selected.count(), 1);
        QCOMPARE(pipette.currentColor(), QColor(Qt::red));
        // A request that is withdrawn is not answered.
        pipette.startPicking();
        pipette.stopPicking();
        QCoreApplication::processEvents();
        QCOMPARE(selected.count(), 1);
    }

    void uninstalled()
    {
        FakeScreenColors fake;
        ScreenColorSource::install(&fake);
        ScreenColorSource::install(nullptr);
        QVERIFY(!ScreenColorSource::current());
    }

    void pipetteReports_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QStringList>("reports");

        const QString started = QStringLiteral("started");
        const QString stopped = QStringLiteral("stopped");
        QTest::newRow("a colour") << QColor(18, 52, 86) << QString()
                                  << QStringList{started, QStringLiteral("#123456"), stopped};
        QTest::newRow("the user gave up") << QColor() << QString() << QStringList{started, stopped};
        QTest::newRow("the source failed")
            << QColor() << QStringLiteral("gone") << QStringList{started, stopped};
    }

    void pipetteReports()
    {
        QFETCH(const QColor, color);
        QFETCH(const QString, reason);
        QFETCH(const QStringList, reports);
        // The permission to read the screen, with which the pipette would cover it, is of no interest.
        Stage stage;
        stage.pipette->startPicking();
        QCOMPARE(stage.log, QStringList{QStringLiteral("started")});
        QVERIFY(stage.source.requests.constFirst().handle);
        stage.answer(0, {color, reason});
        QCOMPARE(stage.log, reports);
        QCOMPARE(stage.pipette->currentColor(), color);
        QCOMPARE(stage.pipette->failureReason(), reason);
        QVERIFY(!stage.source.requests.constFirst().handle);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
        // Nothing has failed any more.
        stage.pipette->startPicking();
        QCOMPARE(stage.pipette->failureReason(), QString());
        stage.pipette->stopPicking();
        QCOMPARE(stage.pipette->failureReason(), QString());
    }

    void requestBelongsToTheActiveWindow()
    {
        Stage stage;
        stage.pipette->startPicking();
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        stage.pipette->startPicking();
        QVERIFY(!stage.source.requests.at(0).parent);
        QCOMPARE(stage.source.requests.at(1).parent.data(), window.windowHandle());
    }

    void unavailableSourceIsNotAsked_data()
    {
        QTest::addColumn<AccessStatus>("status");
        QTest::addColumn<int>("requests");
        QTest::newRow("permission given") << AccessStatus::Granted << 0;
        QTest::newRow("permission missing") << AccessStatus::Denied << 1;
    }

    void unavailableSourceIsNotAsked()
    {
        QFETCH(const AccessStatus, status);
        QFETCH(const int, requests);
        FakePrivacy::screenAccess = status;
        Stage stage;
        const QString reason = QStringLiteral("broken");
        stage.source.setReason(reason);
        QCOMPARE(Pipette::unavailableReason(), reason);
        stage.pipette->startPicking();
        QCOMPARE(stage.log, QStringList());
        QCOMPARE(stage.pipette->failureReason(), reason);
        QVERIFY(stage.source.requests.isEmpty());
        QCOMPARE(FakePrivacy::requests.size(), requests);

        stage.source.setReason({});
        stage.pipette->startPicking();
        QCOMPARE(stage.pipette->failureReason(), QString());
        QCOMPARE(stage.source.requests.size(), 1);
        QCOMPARE(FakePrivacy::requests.size(), requests);
    }

    void stoppedPickIsWithdrawn()
    {
        Stage stage;
        stage.pipette->startPicking();
        stage.pipette->stopPicking();
        QCOMPARE(stage.log, (QStringList{QStringLiteral("started"), QStringLiteral("stopped")}));
        QVERIFY(!stage.source.requests.constFirst().handle);
    }

    void deathWithdraws()
    {
        Stage stage;
        stage.pipette->startPicking();
        delete stage.pipette;
        QCOMPARE(stage.log, QStringList{QStringLiteral("started")});
        QVERIFY(!stage.source.requests.constFirst().handle);
    }

    void nextEndEndsBothPicks()
    {
        Stage stage;
        stage.pipette->startPicking();
        stage.pipette->startPicking();
        QCOMPARE(stage.source.requests.size(), 2);
        stage.answer(0, {Qt::red, {}});
        QCOMPARE(stage.log, (QStringList{QStringLiteral("started"), QStringLiteral("started"),
                                         QStringLiteral("#ff0000"), QStringLiteral("stopped")}));
        QVERIFY(!stage.source.requests.at(1).handle);
    }

    void slotsOfSelected_data()
    {
        QTest::addColumn<bool>("isDeleted");

        QTest::newRow("delete the pipette") << true;
        QTest::newRow("stop and start it") << false;
    }

    void slotsOfSelected()
    {
        QFETCH(const bool, isDeleted);
        Stage stage;
        connect(stage.pipette, &Pipette::colorSelected, this, [&stage, isDeleted] {
            if (isDeleted) {
                delete stage.pipette;
            } else {
                stage.pipette->stopPicking();
                stage.pipette->startPicking();
            }
        });
        stage.pipette->startPicking();
        stage.answer(0, {Qt::red, {}});
        QStringList reports = {QStringLiteral("started"), QStringLiteral("#ff0000")};
        if (!isDeleted) {
            reports += {QStringLiteral("stopped"), QStringLiteral("started")};
            QVERIFY(stage.source.requests.constLast().handle);
        }
        QCOMPARE(stage.log, reports);
    }

    void panelsButtonFollows()
    {
        Stage stage;
        const QString reason = QStringLiteral("broken");
        stage.source.setReason(reason);
        ColorPickerWidget panel(nullptr, false);
        const auto* button = panel.findChild<QToolButton*>(QStringLiteral("pipetteButton"));
        QVERIFY(!button->isEnabled());
        QCOMPARE(button->toolTip(), reason);
        stage.source.setReason({});
        QVERIFY(button->isEnabled());
        QCOMPARE(button->toolTip(), QString());
        stage.source.setReason(reason);
        QVERIFY(!button->isEnabled());
    }

    void hostsButtonStays_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("disabled where it could pick") << QString() << false;
        QTest::newRow("enabled where the host picks") << QStringLiteral("broken") << true;
    }

    void hostsButtonStays()
    {
        QFETCH(const QString, reason);
        QFETCH(const bool, enabled);
        Stage stage;
        stage.source.setReason(reason);
        ColorPickerWidget panel(nullptr, false);
        auto* button = panel.findChild<QToolButton*>(QStringLiteral("pipetteButton"));
        const QString toolTip = QStringLiteral("From the viewer");
        button->setEnabled(enabled);
        button->setToolTip(toolTip);
        QEvent languageChange(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&panel, &languageChange);
        stage.source.setReason(QStringLiteral("gone"));
        stage.source.setReason({});
        QCOMPARE(button->isEnabled(), enabled);
        QCOMPARE(button->toolTip(), toolTip);
    }
};

UIC_TEST_MAIN(tst_ScreenColorSource)

#include "tst_ScreenColorSource.moc"
