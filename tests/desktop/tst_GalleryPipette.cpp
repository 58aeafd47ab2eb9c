#include "PipetteWindows.h"
#include "RealInput.h"
#include "TestMain.h"

#include <gallery/CommandLine.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>

namespace {

const QColor firstColor(47, 190, 93);
const QColor secondColor(200, 40, 120);

} // namespace

/**
 * What a user does on the gallery's page of the pipette: starts it, picks, and reads there what was picked
 * and what the pipette said.
 */
class tst_GalleryPipette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void init()
    {
        CommandLine start;
        start.page = QStringLiteral("pipette");
        m_window = std::make_unique<MainWindow>(start);
        m_window->setGeometry(40, 40, 1100, 700);
        QVERIFY(RealInput::showAndActivate(m_window.get()));
        m_patch = std::make_unique<QWidget>(m_window.get());
        m_patch->setObjectName(QStringLiteral("patch"));
        m_patch->setStyleSheet(QStringLiteral("#patch { background: qlineargradient(x1: 0, x2: 1, stop: 0 %1,"
                                              " stop: 0.499 %1, stop: 0.501 %2, stop: 1 %2); }")
                                   .arg(firstColor.name(), secondColor.name()));
        m_patch->setAttribute(Qt::WA_StyledBackground);
        m_patch->setGeometry(m_window->width() - 180, m_window->height() - 180, 120, 120);
        m_patch->show();
        QTRY_COMPARE(RealInput::pixel(m_patch.get(), QPoint(20, 60)), firstColor);
        QTRY_COMPARE(RealInput::pixel(m_patch.get(), QPoint(100, 60)), secondColor);
    }

    void cleanup()
    {
        m_patch.reset();
        m_window.reset();
        QTRY_VERIFY(PipetteWindows::views().isEmpty());
    }

    void picksAreListed_data()
    {
        QTest::addColumn<QString>("style");
        QTest::newRow("dark") << QStringLiteral("dark");
        QTest::newRow("light") << QStringLiteral("light");
    }

    void picksAreListed()
    {
        QFETCH(QString, style);
        QVERIFY(m_window->setStyleName(style));
        const auto* history = m_window->page()->findChild<QListWidget*>(QStringLiteral("pickedColors"));
        QVERIFY(history);
        const int before = history->count();
        for (const int x : {20, 100}) {
            startPipette();
            if (QTest::currentTestFailed()) {
                return;
            }
            QVERIFY(RealInput::moveTo(m_patch.get(), QPoint(x, 60)));
            QVERIFY(RealInput::saveScreenshot(QStringLiteral("gallery-pipette-%1-%2").arg(style).arg(x)));
            QVERIFY(RealInput::click(m_patch.get(), QPoint(x, 60)));
            QTRY_VERIFY(PipetteWindows::views().isEmpty());
            QTRY_VERIFY(m_window->isActiveWindow());
        }
        QCOMPARE(history->count(), before + 2);
        QCOMPARE(history->item(0)->text(), secondColor.name());
        QCOMPARE(history->item(1)->text(), firstColor.name());

        const QStringList lines = said();
        QCOMPARE(lines.size(), 6);
        QCOMPARE(lines.filter(QStringLiteral("pipette.pickingStarted")).size(), 2);
        QCOMPARE(lines.filter(QStringLiteral("pipette.colorSelected")).size(), 2);
        QCOMPARE(lines.filter(QStringLiteral("pipette.pickingStopped")).size(), 2);
    }

    void pickWithoutColourIsLoggedOnly()
    {
        const auto* history = m_window->page()->findChild<QListWidget*>(QStringLiteral("pickedColors"));
        startPipette();
        if (QTest::currentTestFailed()) {
            return;
        }
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(PipetteWindows::views().isEmpty());
        QCOMPARE(history->count(), 0);
        QCOMPARE(said().size(), 2);
        QCOMPARE(said().filter(QStringLiteral("pipette.colorSelected")).size(), 0);
    }

    // The page owns the pipette.
    void pageChangedWhilePicking()
    {
        startPipette();
        if (QTest::currentTestFailed()) {
            return;
        }
        m_window->showPage(QStringLiteral("color-input"));
        QTRY_VERIFY(PipetteWindows::views().isEmpty());
    }

private:
    void startPipette()
    {
        const auto* start = m_window->page()->findChild<QPushButton*>(QStringLiteral("startPipette"));
        QVERIFY(start);
        QVERIFY(RealInput::click(start));
        QTRY_COMPARE(PipetteWindows::views().size(), QGuiApplication::screens().size());
        QTRY_VERIFY(!PipetteWindows::views().isEmpty() &&
                    PipetteWindows::views().constFirst()->isActiveWindow());
    }

    /// What the log says of the pipette, without the times.
    QStringList said() const
    {
        QStringList found;
        const auto* log = m_window->findChild<QPlainTextEdit*>(QStringLiteral("signalLogText"));
        const QStringList lines =
            log->toPlainText().split(QLatin1Char('\n')).filter(QStringLiteral("pipette."));
        for (const QString& line : lines) {
            found.append(line.mid(line.indexOf(QStringLiteral("pipette."))));
        }
        return found;
    }

    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<QWidget> m_patch;
};

UIC_TEST_MAIN(tst_GalleryPipette)
#include "tst_GalleryPipette.moc"
