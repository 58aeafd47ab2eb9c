#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/WidgetColorPickerButton.h>

#include <functional>
#include <gallery/CommandLine.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>
#include <gallery/PreviewScreen.h>

namespace {

const QColor yellow(192, 192, 0);

template <typename Button>
Button* enabledOne(const Page* page)
{
    const auto buttons = page->findChildren<Button*>();
    for (Button* button : buttons) {
        if (button->isEnabled() && button->accessibleName().contains(QLatin1String("film"))) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

/**
 * What a user does on the gallery's page: clicks a button, then into the film, and sees the button in that
 * colour.
 */
class tst_GalleryWidgetPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void init()
    {
        CommandLine start;
        start.page = QStringLiteral("widget-color-picker");
        m_window = std::make_unique<MainWindow>(start);
        m_window->setGeometry(40, 40, 1100, 700);
        QVERIFY(RealInput::showAndActivate(m_window.get()));
        m_film = m_window->page()->findChild<PreviewScreen*>();
        m_button = enabledOne<WidgetColorPickerButton>(m_window->page());
        m_field = enabledOne<ColorPickerButton>(m_window->page());
        QVERIFY(m_film && m_button && m_field);
        QVERIFY(m_film->isRunning());
        QTRY_COMPARE(RealInput::pixel(m_film, inYellowBar()), yellow);
    }

    void cleanup() { m_window.reset(); }

    void pickFromTheFilm_data()
    {
        QTest::addColumn<QString>("style");
        QTest::newRow("dark") << QStringLiteral("dark");
        QTest::newRow("light") << QStringLiteral("light");
    }

    void pickFromTheFilm()
    {
        QFETCH(QString, style);
        QVERIFY(m_window->setStyleName(style));
        QVERIFY(pickWith(m_button, [this, style] {
            QVERIFY(RealInput::moveTo(m_film, inYellowBar()));
            QVERIFY(RealInput::saveScreenshot(QStringLiteral("gallery-widget-picking-") + style));
            QVERIFY(RealInput::click(m_film, inYellowBar()));
        }));
        QCOMPARE(m_button->color(), yellow);
        QTRY_COMPARE(RealInput::pixel(m_button, m_button->rect().center()), yellow);
        const auto* log = m_window->findChild<QPlainTextEdit*>(QStringLiteral("signalLogText"));
        QCOMPARE(log->toPlainText().count(QStringLiteral("button.colorChanged")), 1);

        QVERIFY(pickWith(m_field, [this] { QVERIFY(RealInput::click(m_film, inYellowBar())); }));
        QCOMPARE(m_field->color(), std::optional<QColor>(yellow));
        QVERIFY(RealInput::moveTo(m_window.get(), QPoint(5, 5)));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("gallery-widget-picked-") + style));
    }

    void pageChangedWhilePicking()
    {
        QVERIFY(pickWith(m_button, [this] { m_window->showPage(QStringLiteral("color-input")); }));
        QTRY_VERIFY(!m_film);
        QVERIFY(RealInput::click(m_window->page(), QPoint(5, 5)));
    }

private:
    /// Clicks @p start and calls @p inside as soon as the film is outlined. True when the pick is over.
    bool pickWith(const QWidget* start, const std::function<void()>& inside) const
    {
        bool hasBegun = false;
        QTimer begin;
        connect(&begin, &QTimer::timeout, this, [&] {
            if (m_film->findChild<QWidget*>(QStringLiteral("highlightFrame"))) {
                begin.stop();
                hasBegun = true;
                inside();
            }
        });
        begin.start(1);
        return RealInput::click(start) && QTest::qWaitFor([&hasBegun] { return hasBegun; });
    }

    QPoint inYellowBar() const { return {m_film->width() * 3 / 16, m_film->height() - 10}; }

    std::unique_ptr<MainWindow> m_window;
    QPointer<PreviewScreen> m_film;
    WidgetColorPickerButton* m_button = nullptr;
    ColorPickerButton* m_field = nullptr;
};

UIC_TEST_MAIN(tst_GalleryWidgetPicker)
#include "tst_GalleryWidgetPicker.moc"
