#include "MarkingTranslator.h"
#include "MouseEvents.h"
#include "Part.h"
#include "TestMain.h"

#include <DesignElements/TesselElegantSlider.h>
#include <UiComponents/ColorPlaneWidget.h>
#include <UiComponents/CustomColorSelectWidget.h>

#include <utility>

using Colors = QVector<QColor>;

namespace {

/// A selector that records what it reports, with a plane of at least 101 × 51 pixels.
class Selector : public CustomColorSelectWidget
{
public:
    explicit Selector(QWidget* parent = nullptr)
        : CustomColorSelectWidget(parent)
        , plane(partOf<ColorPlaneWidget>(*this, "colorPlane"))
        , slider(partOf<QSlider>(*this, "hueSlider"))
    {
        plane->setFixedSize(101, 51);
        adjustSize();
        layout()->activate();
        plane->resize(101, 51);
        connect(this, &CustomColorSelectWidget::colorChanged, this,
                [this](const QColor& color) { m_reports += color; });
    }

    Colors reports() { return std::exchange(m_reports, {}); }

    /// Sets a colour and waits for it to appear.
    void show(const QColor& color)
    {
        setColor(color);
        QCoreApplication::processEvents();
    }

    QColor at(int degrees, int x, int y) const
    {
        return QColor::fromHsvF(degrees / 360.0, x / 100.0, 1.0 - y / 50.0, 1.0).rgb();
    }

    QColor planeColorAt(int x, int y) const { return plane->grab().toImage().pixelColor(x, y); }

    void press(const QPoint& point) { ::press(*plane, point); }
    void drag(const QPoint& point) { ::drag(*plane, point); }
    void release(const QPoint& point) { ::release(*plane, point); }

    ColorPlaneWidget* const plane;
    QSlider* const slider;

private:
    Colors m_reports;
};

} // namespace

class tst_CustomColorSelectWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(!QWidget::mouseGrabber()); }

    void construction()
    {
        const CustomColorSelectWidget selector;
        const auto* slider = partOf<Orvane::Tessel::TesselElegantSlider>(selector, "hueSlider");
        QCOMPARE(slider->orientation(), Qt::Horizontal);
        QCOMPARE(slider->minimum(), 0);
        QCOMPARE(slider->maximum(), 359);
        QCOMPARE(slider->value(), 0);
        QCOMPARE(partOf<QLabel>(selector, "hueLabel")->text(), QStringLiteral("Hue"));
    }

    void languageChanges()
    {
        const CustomColorSelectWidget selector;
        const auto* label = partOf<QLabel>(selector, "hueLabel");
        {
            const MarkingTranslator translator("CustomColorSelectWidget");
            QCOMPARE(label->text(), QStringLiteral("<Hue>"));
            QCOMPARE(partOf<QLabel>(CustomColorSelectWidget(), "hueLabel")->text(), QStringLiteral("<Hue>"));
        }
        QCOMPARE(label->text(), QStringLiteral("Hue"));
    }

    void labelBelongsToTheSlider()
    {
        const Selector selector;
        QCOMPARE(partOf<QLabel>(selector, "hueLabel")->buddy(), selector.slider);
    }

    void startsWithoutAPlane()
    {
        Selector selector;
        QCoreApplication::processEvents();
        QVERIFY(!selector.plane->hsvColor().isValid());
        selector.grab();
        QCOMPARE(selector.reports(), Colors());
    }

    void colorAppearsOnTheNextTurn()
    {
        Selector selector;
        selector.setColor(QColor::fromHsv(200, 255, 255));
        QCOMPARE(selector.slider->value(), 0);
        QVERIFY(!selector.plane->hsvColor().isValid());
        QCoreApplication::processEvents();
        QCOMPARE(selector.slider->value(), 200);
        QCOMPARE(selector.plane->hsvColor(), selector.at(200, 100, 0));
    }

    // The marker is outside of the plane until then, so the slider's step has nothing to report.
    void firstColorIsSilent()
    {
        Selector selector;
        selector.show(QColor::fromHsv(200, 100, 100));
        QCOMPARE(selector.reports(), Colors());
        QCOMPARE(selector.slider->value(), 200);
    }

    void colorOfTheSameHueIsSilent()
    {
        Selector selector;
        selector.show(QColor::fromHsv(200, 255, 255));
        selector.show(QColor::fromHsv(200, 51, 51));
        QCOMPARE(selector.reports(), Colors());
        QCOMPARE(selector.plane->hsvColor(), selector.at(200, 20, 40));
        selector.show(QColor::fromHsv(200, 51, 51));
        QCOMPARE(selector.reports(), Colors());
    }

    // The slider goes first, and its report replaces the colour that was set.
    void colorOfAnotherHueIsReported()
    {
        Selector selector;
        selector.show(QColor::fromHsv(200, 255, 255));
        selector.show(QColor::fromHsv(80, 51, 51));
        QCOMPARE(selector.reports(), Colors{selector.at(80, 100, 0)});
        QCOMPARE(selector.slider->value(), 80);
        QCOMPARE(selector.plane->hsvColor(), selector.at(80, 100, 0));
        selector.show(QColor::fromHsv(80, 51, 51));
        QCOMPARE(selector.reports(), Colors());
        QCOMPARE(selector.plane->hsvColor(), selector.at(80, 20, 40));
    }

    void startsFromAColorInSilence()
    {
        Selector selector;
        selector.show(QColor::fromHsv(200, 255, 255));
        selector.startFrom(QColor::fromHsv(80, 51, 51));
        QCOMPARE(selector.slider->value(), 200);
        QCoreApplication::processEvents();
        QCOMPARE(selector.reports(), Colors());
        QCOMPARE(selector.slider->value(), 80);
        QCOMPARE(selector.plane->hsvColor(), selector.at(80, 20, 40));
        // From then on it is as after setColor().
        selector.slider->setValue(120);
        QCOMPARE(selector.reports(), Colors{selector.at(120, 20, 40)});
    }

    void setColorTwiceInOneTurn()
    {
        Selector selector;
        selector.setColor(QColor::fromHsv(200, 255, 255));
        selector.setColor(QColor::fromHsv(80, 255, 255));
        QCoreApplication::processEvents();
        QCOMPARE(selector.reports(), Colors());
        QCOMPARE(selector.slider->value(), 80);
        // A set marker reports the first of the two turns, and its colour is what the second one finds.
        selector.setColor(QColor::fromHsv(200, 51, 51));
        selector.setColor(QColor::fromHsv(120, 51, 51));
        QCoreApplication::processEvents();
        QCOMPARE(selector.reports(), Colors{QColor(Qt::green)});
        QCOMPARE(selector.plane->hsvColor(), QColor(Qt::green));
    }

    void greyShowsTheRedPlane_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QPoint>("marker");
        QTest::newRow("grey") << QColor(102, 102, 102) << QPoint(0, 30);
        QTest::newRow("white") << QColor(Qt::white) << QPoint(0, 0);
        QTest::newRow("black") << QColor(Qt::black) << QPoint(0, 50);
    }

    void greyShowsTheRedPlane()
    {
        QFETCH(QColor, color);
        QFETCH(QPoint, marker);
        Selector selector;
        selector.show(color);
        QCOMPARE(selector.reports(), Colors());
        QCOMPARE(selector.slider->value(), 0);
        QCOMPARE(selector.plane->hsvColor(), selector.at(0, marker.x(), marker.y()));
        QCOMPARE(selector.planeColorAt(100, 0), QColor(Qt::red));
        // From another hue, the slider's step is reported.
        selector.show(QColor::fromHsv(0, 255, 255));
        selector.slider->setValue(300);
        QCOMPARE(selector.reports(), Colors{selector.at(300, 100, 0)});
        selector.show(color);
        QCOMPARE(selector.reports(), Colors{QColor(Qt::red)});
        QCOMPARE(selector.slider->value(), 0);
        QCOMPARE(selector.plane->hsvColor(), QColor(Qt::red));
    }

    void noColorIsBlack()
    {
        Selector selector;
        selector.show(QColor());
        QCOMPARE(selector.reports(), Colors());
        QCOMPARE(selector.slider->value(), 0);
        QCOMPARE(selector.plane->hsvColor(), QColor(Qt::black));
        selector.slider->setValue(120);
        selector.press({0, 0});
        selector.release({0, 0});
        QCOMPARE(selector.reports(), Colors({Qt::black, Qt::white, Qt::white}));
    }

    void lastHues_data()
    {
        QTest::addColumn<double>("hue");
        QTest::addColumn<int>("degrees");
        QTest::newRow("359") << 359 / 360.0 << 359;
        QTest::newRow("just below the full circle") << 0.9999 << 359;
        QTest::newRow("full circle") << 1.0 << 359;
    }

    void lastHues()
    {
        QFETCH(double, hue);
        QFETCH(int, degrees);
        Selector selector;
        selector.show(QColor::fromHsvF(hue, 1.0, 1.0));
        QCOMPARE(selector.slider->value(), degrees);
        QCOMPARE(selector.reports(), Colors());
        // The plane knows the whole circle.
        const int planeHue = QColor::fromHsvF(hue, 1.0, 1.0).hue();
        QCOMPARE(selector.plane->hsvColor(), selector.at(planeHue, 100, 0));
    }

    void alphaIsDropped()
    {
        Selector selector;
        selector.show(QColor(0, 0, 255, 40));
        QCOMPARE(selector.plane->hsvColor(), QColor(Qt::blue));
        selector.press({100, 0});
        selector.release({100, 0});
        QCOMPARE(selector.reports(), Colors({Qt::blue, Qt::blue}));
    }

    void hostThatFeedsTheColorBack()
    {
        Selector selector;
        selector.show(QColor::fromHsv(200, 255, 255));
        connect(&selector, &CustomColorSelectWidget::colorChanged, &selector,
                &CustomColorSelectWidget::setColor);
        selector.press({20, 10});
        selector.drag({60, 20});
        selector.release({60, 20});
        for (int i = 0; i < 20; ++i) {
            QCoreApplication::processEvents();
        }
        // It comes to rest at a colour that it has reported.
        const Colors reports = selector.reports();
        QVERIFY(reports.size() >= 3 && reports.size() < 8);
        QCOMPARE(reports.mid(0, 3),
                 Colors({selector.at(200, 20, 10), selector.at(200, 60, 20), selector.at(200, 60, 20)}));
        QCOMPARE(selector.plane->hsvColor(), reports.back());
    }

    void userDragsOverThePlane()
    {
        Selector selector;
        selector.show(QColor::fromHsv(200, 255, 255));
        selector.press({20, 10});
        selector.drag({21, 10});
        selector.drag({21, 10});
        selector.drag({-50, 500});
        selector.release({-50, 500});
        QCoreApplication::processEvents();
        QCOMPARE(selector.reports(),
                 Colors({selector.at(200, 20, 10), selector.at(200, 21, 10), Qt::black, Qt::black}));
        QCOMPARE(selector.slider->value(), 200);
    }

    void userMovesTheSlider()
    {
        Selector selector;
        selector.show(QColor::fromHsv(200, 255, 255));
        selector.slider->setValue(201);
        selector.slider->setValue(201);
        selector.slider->setSliderPosition(10);
        QCoreApplication::processEvents();
        QCOMPARE(selector.reports(), Colors({selector.at(201, 100, 0), selector.at(10, 100, 0)}));
        QCOMPARE(selector.planeColorAt(100, 0), selector.at(10, 100, 0));
    }

    void sliderBeforeAnyColor()
    {
        Selector selector;
        selector.slider->setValue(120);
        QCOMPARE(selector.reports(), Colors());
        QCOMPARE(selector.planeColorAt(100, 0), QColor(Qt::green));
        selector.press({100, 0});
        selector.release({100, 0});
        QCOMPARE(selector.reports(), Colors({Qt::green, Qt::green}));
    }

    void sliderByKeyboard()
    {
        Selector selector;
        selector.show(QColor::fromHsv(200, 255, 255));
        QTest::keyClick(selector.slider, Qt::Key_Right);
        QTest::keyClick(selector.slider, Qt::Key_End);
        QTest::keyClick(selector.slider, Qt::Key_Right);
        QCOMPARE(selector.reports(), Colors({selector.at(201, 100, 0), selector.at(359, 100, 0)}));
    }

    // The turn shows the colour that was reported meanwhile, not the one that was set before it.
    void draggedBetweenSetColorAndItsTurn()
    {
        Selector selector;
        selector.show(QColor::fromHsv(240, 255, 255));
        selector.setColor(QColor::fromHsv(240, 51, 51));
        selector.press({100, 25});
        selector.release({100, 25});
        const QColor reported = selector.at(240, 100, 25);
        QCOMPARE(selector.reports(), Colors({reported, reported}));
        QCoreApplication::processEvents();
        QCOMPARE(selector.reports(), Colors());
        QCOMPARE(selector.plane->hsvColor(), reported);
    }

    void invalidColorIsReportedAsItIs()
    {
        Selector selector;
        selector.setColor(QColor::fromHsv(240, 51, 51));
        selector.press({50, 25});
        selector.release({50, 25});
        QCOMPARE(selector.reports(), Colors({QColor(), QColor()}));
        // There is no colour for the turn to show, so it shows the slider's hue; the marker is inside.
        QCoreApplication::processEvents();
        QCOMPARE(selector.slider->value(), 0);
        QCOMPARE(selector.reports(), Colors{selector.at(0, 50, 25)});
        QCOMPARE(selector.plane->hsvColor(), selector.at(0, 50, 25));
    }

    void reportsAreRgb()
    {
        Selector selector;
        selector.show(QColor::fromHsl(240, 51, 51));
        selector.press({50, 25});
        selector.release({50, 25});
        selector.slider->setValue(7);
        const Colors reports = selector.reports();
        QCOMPARE(reports.size(), 3);
        for (const QColor& color : reports) {
            QCOMPARE(color.spec(), QColor::Rgb);
        }
    }

    // The slider turns round with the layout, the plane does not.
    void rightToLeft()
    {
        Selector selector;
        selector.setLayoutDirection(Qt::RightToLeft);
        selector.show(QColor::fromHsv(200, 255, 255));
        QCOMPARE(selector.planeColorAt(0, 0), QColor(Qt::white));
        QCOMPARE(selector.plane->hsvColor(), selector.at(200, 100, 0));
        QTest::keyClick(selector.slider, Qt::Key_Left);
        QCOMPARE(selector.slider->value(), 201);
        QCOMPARE(selector.reports(), Colors{selector.at(201, 100, 0)});
    }

    void deletedBeforeItsTurn()
    {
        auto* selector = new CustomColorSelectWidget;
        selector->setColor(QColor(Qt::red));
        delete selector;
        QCoreApplication::processEvents();
    }

    void deletedInItsSignal()
    {
        const QPointer<Selector> selector = new Selector;
        selector->show(QColor::fromHsv(200, 100, 100));
        connect(selector, &CustomColorSelectWidget::colorChanged, this, [&selector] { delete selector; });
        selector->setColor(QColor(Qt::green));
        selector->setColor(QColor(Qt::blue));
        QCoreApplication::processEvents();
        QVERIFY(!selector);
    }
};

UIC_TEST_MAIN(tst_CustomColorSelectWidget)
#include "tst_CustomColorSelectWidget.moc"
