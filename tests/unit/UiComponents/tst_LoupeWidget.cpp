#include "OnEvent.h"
#include "PaintCount.h"
#include "TestMain.h"

#include <UiComponents/LoupeWidget.h>

#include <cmath>
#include <functional>
#include <memory>

namespace {

constexpr int pixels = 13;
constexpr int zoom = 9;
constexpr int side = pixels * zoom;

QColor pixelAt(int x, int y)
{
    return {x * 19, y * 19, 200};
}

QPixmap picture()
{
    QImage image(pixels, pixels, QImage::Format_RGB32);
    for (int y = 0; y < pixels; ++y) {
        for (int x = 0; x < pixels; ++x) {
            image.setPixelColor(x, y, pixelAt(x, y));
        }
    }
    return QPixmap::fromImage(image);
}

/// The loupe as the scene paints it: over whatever is there.
QImage painted(LoupeWidget& loupe, const QColor& below)
{
    QImage image(loupe.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(below);
    loupe.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// Whether a point is clearly inside or outside of the ellipse in a rectangle of that size.
bool isInside(const QSize& size, int x, int y, double* distance)
{
    const double dx = (x + 0.5 - size.width() / 2.0) / (size.width() / 2.0);
    const double dy = (y + 0.5 - size.height() / 2.0) / (size.height() / 2.0);
    *distance = std::sqrt(dx * dx + dy * dy) - 1.0;
    return *distance < 0.0;
}

constexpr double rim = 0.03;

} // namespace

Q_DECLARE_METATYPE(std::function<void(LoupeWidget*)>)

class tst_LoupeWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction()
    {
        const LoupeWidget loupe;
        QCOMPARE(loupe.windowFlags(), Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                                          Qt::NoDropShadowWindowHint);
        QCOMPARE(loupe.property("roundedEdges"), QVariant(true));
        QVERIFY(loupe.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(!loupe.emptyPixelsColor().isValid());
        QCOMPARE(loupe.offset(), QSize(0, -loupe.height()));

        bool hasController = false;
        for (const QObject* child : loupe.children()) {
            hasController = hasController || child->inherits("InstalledLayoutController");
        }
        QVERIFY(hasController);
        // Looks and size are the sheet's.
        QCOMPARE(loupe.minimumSize(), QSize(0, 0));
        QCOMPARE(loupe.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

    void placementAt_data()
    {
        QTest::addColumn<QRect>("screen");
        QTest::addColumn<QSize>("loupe");
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<int>("placement");

        const QSize loupe(100, 60);
        const auto addScreen = [&loupe](const char* name, const QRect& screen) {
            const auto row = [&](const char* place, const QPoint& fromCorner,
                                 LoupeWidget::Placement placement) {
                QTest::addRow("%s: %s", name, place)
                    << screen << loupe << screen.topLeft() + fromCorner << int(placement);
            };
            const int right = screen.width() - 1;
            const int bottom = screen.height() - 1;
            row("middle", {right / 2, bottom / 2}, LoupeWidget::AboveRight);
            row("left edge", {0, bottom / 2}, LoupeWidget::AboveRight);
            row("bottom edge", {right / 2, bottom}, LoupeWidget::AboveRight);
            row("bottom left corner", {0, bottom}, LoupeWidget::AboveRight);
            row("first row with room above", {200, 60}, LoupeWidget::AboveRight);
            row("last row without room above", {200, 59}, LoupeWidget::BelowRight);
            row("top edge", {200, 0}, LoupeWidget::BelowRight);
            row("top left corner", {0, 0}, LoupeWidget::BelowRight);
            row("last column with room on the right", {right - 100, 300}, LoupeWidget::AboveRight);
            row("first column without room on the right", {right - 99, 300}, LoupeWidget::AboveLeft);
            row("right edge", {right, 300}, LoupeWidget::AboveLeft);
            row("bottom right corner", {right, bottom}, LoupeWidget::AboveLeft);
            row("top right corner", {right, 0}, LoupeWidget::BelowLeft);
            row("top right, at both limits", {right - 100, 60}, LoupeWidget::AboveRight);
            row("top right, beyond both limits", {right - 99, 59}, LoupeWidget::BelowLeft);
        };
        addScreen("first screen", {0, 0, 1280, 800});
        addScreen("left and above", {-1024, -768, 1024, 768});
        addScreen("odd corner", {-7, 341, 641, 481});

        // Right and top have their say even where the two exclude each other.
        QTest::newRow("screen narrower than the loupe")
            << QRect(0, 0, 80, 800) << loupe << QPoint(10, 400) << 2;
        QTest::newRow("screen lower than the loupe") << QRect(0, 0, 800, 50) << loupe << QPoint(10, 40) << 0;
        QTest::newRow("loupe without a size") << QRect(0, 0, 800, 600) << QSize(0, 0) << QPoint(799, 0) << 3;
    }

    void placementAt()
    {
        QFETCH(QRect, screen);
        QFETCH(QSize, loupe);
        QFETCH(QPoint, cursor);
        QFETCH(int, placement);
        QCOMPARE(int(LoupeWidget::placementAt(cursor, screen, loupe)), placement);
    }

    void offsetFollowsPlacementAndSize()
    {
        LoupeWidget loupe;
        loupe.resize(120, 80);
        QCOMPARE(loupe.offset(), QSize(0, -80));
        loupe.setPlacement(0);
        QCOMPARE(loupe.offset(), QSize(0, 0));
        loupe.setPlacement(1);
        QCOMPARE(loupe.offset(), QSize(-120, 0));
        loupe.setPlacement(2);
        QCOMPARE(loupe.offset(), QSize(-120, -80));
        loupe.resize(50, 60);
        QCOMPARE(loupe.offset(), QSize(-50, -60));
        loupe.setPlacement(17);
        QCOMPARE(loupe.offset(), QSize(0, 0));
    }

    void colorName()
    {
        LoupeWidget loupe;
        auto* label = loupe.findChild<QLabel*>();
        QCOMPARE(label->text(), QString());
        loupe.setColorName(QColor(171, 205, 239));
        QCOMPARE(label->text(), QStringLiteral("#abcdef"));
        loupe.setColorName(QColor(0, 0, 0, 10));
        QCOMPARE(label->text(), QStringLiteral("#000000"));
    }

    void emptyPixelsColorIsStoredOnce()
    {
        LoupeWidget loupe;
        loupe.resize(side, side);
        loupe.show();
        QVERIFY(QTest::qWaitForWindowExposed(&loupe));
        int updates = 0;
        const OnEvent onRequest(QEvent::UpdateRequest, &loupe, [&updates] { ++updates; });
        const OnEvent onPaint(QEvent::Paint, &loupe, [&updates] { ++updates; });
        loupe.setEmptyPixelsColor(Qt::darkGreen);
        QCOMPARE(loupe.emptyPixelsColor(), QColor(Qt::darkGreen));
        QTRY_VERIFY(updates > 0);
        QCoreApplication::processEvents();
        updates = 0;
        loupe.setEmptyPixelsColor(Qt::darkGreen);
        QCoreApplication::processEvents();
        QCOMPARE(updates, 0);
        loupe.setPlacement(1);
        QCoreApplication::processEvents();
        QCOMPARE(updates, 0);
        QVERIFY(loupe.setProperty("emptyPixelsColor", QColor(Qt::red)));
        QCOMPARE(loupe.emptyPixelsColor(), QColor(Qt::red));
    }

    void changesArePaintedOnce_data()
    {
        QTest::addColumn<std::function<void(LoupeWidget*)>>("change");
        QTest::addColumn<bool>("isInAScene");
        using Change = std::function<void(LoupeWidget*)>;
        const Change pixmap = [](LoupeWidget* loupe) { loupe->setPixmap(picture()); };
        const Change name = [](LoupeWidget* loupe) { loupe->setColorName(Qt::red); };
        const Change both = [pixmap, name](LoupeWidget* loupe) {
            pixmap(loupe);
            name(loupe);
        };
        for (const bool isInAScene : {false, true}) {
            const QByteArray place = isInAScene ? " in a scene" : " by itself";
            QTest::newRow("picture" + place) << pixmap << isInAScene;
            QTest::newRow("name" + place) << name << isInAScene;
            QTest::newRow("both" + place) << both << isInAScene;
        }
    }

    void changesArePaintedOnce()
    {
        QFETCH(std::function<void(LoupeWidget*)>, change);
        QFETCH(bool, isInAScene);
        QGraphicsScene scene;
        QGraphicsView view(&scene);
        auto loupe = std::make_unique<LoupeWidget>();
        loupe->resize(side, side);
        LoupeWidget* const watched = loupe.get();
        QWidget* window = watched;
        if (isInAScene) {
            scene.addWidget(loupe.release());
            window = &view;
        }
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QTRY_VERIFY(watched->isVisible());
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
        }
        PaintCount paints(watched);
        change(watched);
        QTRY_COMPARE(paints.count, 1);
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
        }
        QCOMPARE(paints.count, 1);
    }

    void pictureIsMagnifiedIntoACircle()
    {
        const auto loupe = shown();
        loupe->setPixmap(picture());
        const QImage image = painted(*loupe, Qt::black);
        int compared = 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                double distance = 0.0;
                const bool inside = isInside({side, side}, x, y, &distance);
                if (qAbs(distance) < rim) {
                    continue;
                }
                ++compared;
                const QColor expected = inside ? pixelAt(x / zoom, y / zoom) : QColor(Qt::black);
                QVERIFY2(image.pixelColor(x, y) == expected,
                         qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
            }
        }
        QVERIFY(compared > side * side * 9 / 10);
    }

    void transparentPixelsShowTheEmptyColor()
    {
        const auto loupe = shown();
        QPixmap half(pixels, pixels);
        half.fill(Qt::transparent);
        QPainter(&half).fillRect(0, 0, 6, pixels, Qt::red);
        loupe->setPixmap(half);
        loupe->setEmptyPixelsColor(Qt::blue);
        const QImage image = painted(*loupe, Qt::black);
        QCOMPARE(image.pixelColor(6 * zoom - 1, side / 2), QColor(Qt::red));
        QCOMPARE(image.pixelColor(6 * zoom, side / 2), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::black));
    }

    void withoutPictureOnlyTheEmptyColor()
    {
        const auto loupe = shown();
        loupe->setEmptyPixelsColor(Qt::blue);
        const QImage image = painted(*loupe, Qt::black);
        QCOMPARE(image.pixelColor(side / 2, side / 2), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(side - 1, side - 1), QColor(Qt::black));
    }

    void invalidEmptyColorPaintsNothing()
    {
        const auto loupe = shown();
        QCOMPARE(painted(*loupe, Qt::green).pixelColor(side / 2, side / 2), QColor(Qt::green));
    }

    // A fractional scale grabs a row more than it needs; a larger picture has no more to say.
    void onlyTheLoupesPixelsAreTaken()
    {
        const auto loupe = shown();
        QPixmap large(3 * pixels, 3 * pixels);
        large.fill(Qt::red);
        QPainter(&large).drawPixmap(0, 0, picture());
        loupe->setPixmap(large);
        const qreal ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
        QCOMPARE(ratio, 1.0);
        const QImage image = painted(*loupe, Qt::black);
        QCOMPARE(image.pixelColor(side - 2, side / 2), pixelAt(12, 6));
        QCOMPARE(image.pixelColor(side / 2, side - 2), pixelAt(6, 12));
    }

    void circleOfTheFirstSizeStays()
    {
        const auto loupe = shown();
        loupe->setPixmap(picture());
        loupe->resize(2 * side, 2 * side);
        const QImage image = painted(*loupe, Qt::black);
        QCOMPARE(image.pixelColor(side / 2, side / 2), pixelAt(3, 3));
        QCOMPARE(image.pixelColor(side, side), QColor(Qt::black));
        QCOMPARE(image.pixelColor(side - 2, side / 2), pixelAt(6, 3));
        QCOMPARE(image.pixelColor(side + 2, side / 2), QColor(Qt::black));
        // Nor does hiding and showing make another one.
        loupe->hide();
        loupe->show();
        QCOMPARE(painted(*loupe, Qt::black).pixelColor(side, side), QColor(Qt::black));
    }

    void sheetIsPaintedUnclipped()
    {
        qApp->setStyleSheet(
            QStringLiteral("LoupeWidget { border: 4px solid #00ff00; background: transparent; }"));
        const auto loupe = shown();
        loupe->setPixmap(picture());
        const QImage image = painted(*loupe, Qt::black);
        QCOMPARE(image.pixelColor(1, 1), QColor(0, 255, 0));
        QCOMPARE(image.pixelColor(side / 2, 2), QColor(0, 255, 0));
        QCOMPARE(image.pixelColor(side / 2, 5), pixelAt(6, 0));
        QCOMPARE(image.pixelColor(8, 8), QColor(Qt::black));
    }

    void sheetGivesSizeAndColor()
    {
        qApp->setStyleSheet(QStringLiteral(
            "LoupeWidget { min-width: 90px; max-width: 90px; min-height: 70px; max-height: 70px;"
            " qproperty-emptyPixelsColor: #112233; }"
            "LoupeWidget > InstalledLayoutController { qproperty-layoutMargin: 5; }"));
        LoupeWidget loupe;
        loupe.ensurePolished();
        loupe.adjustSize();
        QCOMPARE(loupe.size(), QSize(90, 70));
        QCOMPARE(loupe.emptyPixelsColor(), QColor(0x11, 0x22, 0x33));
        QCOMPARE(loupe.layout()->contentsMargins(), QMargins(5, 5, 5, 5));
    }

    void cursorOnNoScreen()
    {
        const auto loupe = shown();
        loupe->setPixmap(picture());
        loupe->setEmptyPixelsColor(Qt::blue);
        QCursor::setPos(-5000, -5000);
        QVERIFY(!QGuiApplication::screenAt(QCursor::pos()));
        QCOMPARE(painted(*loupe, Qt::black).pixelColor(side / 2, side / 2), QColor(Qt::blue));
    }

    void paintsAtEverySize()
    {
        LoupeWidget loupe;
        loupe.setAttribute(Qt::WA_DontShowOnScreen);
        loupe.setPixmap(picture());
        loupe.setEmptyPixelsColor(Qt::blue);
        for (const QSize& size : {QSize(0, 0), QSize(1, 1), QSize(1, 40), QSize(40, 1), QSize(13, 13)}) {
            loupe.setFixedSize(size);
            loupe.show();
            loupe.grab();
        }
    }

    void cleanup()
    {
        qApp->setStyleSheet(QString());
        QCursor::setPos(100, 100);
    }

private:
    static std::unique_ptr<LoupeWidget> shown()
    {
        auto loupe = std::make_unique<LoupeWidget>();
        loupe->setAttribute(Qt::WA_DontShowOnScreen);
        loupe->resize(side, side);
        loupe->show();
        return loupe;
    }
};

UIC_TEST_MAIN(tst_LoupeWidget)
#include "tst_LoupeWidget.moc"
