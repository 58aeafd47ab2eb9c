#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/ColorPickerWidget.h>

#include <gallery/CommandLine.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>

/**
 * The gallery as another process, with settings of its own, on the same desktop. Nothing of it can be asked:
 * it is used by the mouse and the keyboard, and the screen shows what it does.
 */
class Gallery
{
public:
    explicit Gallery(const QString& settingsFolder)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), settingsFolder);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/ui-components-gallery"),
                        {QStringLiteral("--page"), QStringLiteral("color-panel")});
    }
    Gallery(const Gallery&) = delete;
    Gallery& operator=(const Gallery&) = delete;
    ~Gallery() { kill(); }

    /// Waits until its window is the active one.
    bool isUsable()
    {
        if (!m_process.waitForStarted()) {
            return false;
        }
        return QTest::qWaitFor(
            [this] {
                m_window = answer({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                   QStringLiteral("--pid"), QString::number(m_process.processId())})
                               .split(QLatin1Char('\n'))
                               .constFirst();
                return !m_window.isEmpty() && answer({QStringLiteral("getactivewindow")}) == m_window;
            },
            15000);
    }

    /// Points are in the coordinates of its window. Returns the point on the screen.
    QPoint moveTo(const QPoint& point) const
    {
        answer({QStringLiteral("mousemove"), QStringLiteral("--window"), m_window, QString::number(point.x()),
                QString::number(point.y())});
        return QCursor::pos();
    }

    void click(const QPoint& point) const
    {
        moveTo(point);
        answer({QStringLiteral("click"), QStringLiteral("1")});
    }

    QColor pixel(const QPoint& point) const
    {
        const QPoint global = moveTo(point);
        return QGuiApplication::primaryScreen()
            ->grabWindow(0, global.x(), global.y(), 1, 1)
            .toImage()
            .pixelColor(0, 0);
    }

    /// Gives it no chance to write anything.
    void kill()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

private:
    static QString answer(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral("xdotool"), arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

    QProcess m_process;
    QString m_window;
};

/// A user's own colours are there again after the program was killed.
class tst_ColorsSurvive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A window of the same contents, never on the screen, says where to click.
    void initTestCase()
    {
        GalleryApplication::prepare();
        CommandLine start;
        start.page = QStringLiteral("color-panel");
        m_model = std::make_unique<MainWindow>(start);
        m_model->setAttribute(Qt::WA_DontShowOnScreen);
        m_model->show();
        m_panel = m_model->page()->findChild<ColorPickerWidget*>();
        QVERIFY(m_panel && m_panel->isEnabled());
        QTRY_VERIFY(placeOf("opacitySlider").y() > placeOf("addCustomColorButton").y());
        QCoreApplication::processEvents();
    }

    void killedAndStartedAgain()
    {
        const QStringList names = {QStringLiteral("#12ab34"), QStringLiteral("#abcdef")};
        const QTemporaryDir settings;
        const QPoint edit = placeOf("currentColorValueEdit");
        const QPoint preview = placeOf("currentColorDisplayLabel");
        const QPoint palette = placeOf("colorMatrixPanel");
        const QPoint add = placeOf("addCustomColorButton");
        const auto* queue = m_panel->findChild<QWidget*>(QStringLiteral("otherColorsQueuePanel"));
        const int step = queue->width() / 8;
        const QPoint newest = queue->mapTo(m_model.get(), QPoint(step / 2, queue->height() / 2));
        {
            Gallery gallery(settings.path());
            QVERIFY(gallery.isUsable());
            for (const QString& name : names) {
                gallery.click(edit);
                QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
                QVERIFY(RealInput::type(name));
                QTRY_COMPARE(gallery.pixel(preview).name(), name);
                const QColor uncovered = gallery.pixel(palette);
                gallery.click(add);
                // The selector covers it.
                QTRY_VERIFY(gallery.pixel(palette) != uncovered);
                QVERIFY(RealInput::key(QStringLiteral("Escape")));
                QTRY_COMPARE(gallery.pixel(newest).name(), name);
            }
            QVERIFY(RealInput::saveScreenshot(QStringLiteral("gallery-own-colours")));
            gallery.kill();
        }
        {
            Gallery gallery(settings.path());
            QVERIFY(gallery.isUsable());
            QTRY_COMPARE(gallery.pixel(newest).name(), names.last());
            QCOMPARE(gallery.pixel(newest + QPoint(step, 0)).name(), names.first());
            QVERIFY(RealInput::saveScreenshot(QStringLiteral("gallery-own-colours-again")));
        }
    }

private:
    QPoint placeOf(const char* name) const
    {
        const auto* part = m_panel->findChild<QWidget*>(QLatin1String(name));
        return part->mapTo(m_model.get(), part->rect().center());
    }

    std::unique_ptr<MainWindow> m_model;
    ColorPickerWidget* m_panel = nullptr;
};

UIC_TEST_MAIN(tst_ColorsSurvive)
#include "tst_ColorsSurvive.moc"
