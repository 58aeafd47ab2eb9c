#include "TestMain.h"

#include <UiComponents/PipetteScreenView.h>

#include <functional>
#include <memory>

Q_DECLARE_METATYPE(QEvent::Type)
Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

constexpr QRect screenArea(0, 0, 800, 800);
constexpr QSize loupeSize(60, 60);

/// A scene with an opaque square for a loupe, and a view of it.
class Stage
{
public:
    explicit Stage(const QRect& area = screenArea)
        : scene(QRectF(area))
        , loupe(scene.addRect(QRectF(QPointF(0, 0), QSizeF(loupeSize)), Qt::NoPen, Qt::red))
    {
        loupe->hide();
        view = std::make_unique<PipetteScreenView>(&scene, area);
        moved = std::make_unique<QSignalSpy>(view.get(), &PipetteScreenView::loupePosChanged);
        finished = std::make_unique<QSignalSpy>(view.get(), &PipetteScreenView::pickingFinished);
    }

    bool present()
    {
        view->show();
        view->activateWindow();
        const bool isThere =
            QTest::qWaitForWindowExposed(view.get()) && QTest::qWaitForWindowActive(view.get());
        QCoreApplication::processEvents();
        moved->clear();
        finished->clear();
        return isThere;
    }

    QGraphicsScene scene;
    QGraphicsRectItem* loupe;
    std::unique_ptr<PipetteScreenView> view;
    std::unique_ptr<QSignalSpy> moved;
    std::unique_ptr<QSignalSpy> finished;
};

QPixmap dropper()
{
    QPixmap pixmap(40, 20);
    pixmap.fill(Qt::red);
    return pixmap;
}

/// Straight to the view's handler: QApplication::notify() sends a shortcut override before each key press.
void pressKey(PipetteScreenView* view, int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    static_cast<QObject*>(view)->event(&event);
}

bool isArrow(const QCursor& cursor)
{
    return cursor.shape() == Qt::ArrowCursor;
}

/// The regions that the viewport paints, in its coordinates.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget* viewport) { viewport->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    QRegion painted;
};

/// Tells of each event of one kind, whoever gets it.
class EventWatch : public QObject
{
public:
    explicit EventWatch(QEvent::Type type)
        : m_type(type)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == m_type && seen) {
            seen(object);
            return isTaken;
        }
        return false;
    }

    std::function<void(QObject*)> seen;
    bool isTaken = false; // and nobody else gets it

private:
    QEvent::Type m_type;
};

} // namespace

using Act = std::function<void(PipetteScreenView*)>;
Q_DECLARE_METATYPE(Act)

class tst_PipetteScreenView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QCursor::setPos(400, 300); }

    void cleanup() { qApp->setStyleSheet(QString()); }

    void constructionCoversTheScreen_data()
    {
        QTest::addColumn<QRect>("area");
        QTest::newRow("first screen") << screenArea;
        QTest::newRow("left and above") << QRect(-640, -480, 640, 480);
        QTest::newRow("odd") << QRect(801, 13, 333, 111);
    }

    void constructionCoversTheScreen()
    {
        QFETCH(QRect, area);
        const Stage stage(area);
        const PipetteScreenView& view = *stage.view;
        QVERIFY(!view.parent());
        QCOMPARE(view.windowFlags(),
                 Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint);
        QVERIFY(view.testAttribute(Qt::WA_MouseTracking));
        QVERIFY(view.viewport()->hasMouseTracking());
        QVERIFY(view.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(view.testAttribute(Qt::WA_NoSystemBackground));
        QVERIFY(!view.autoFillBackground());
        QVERIFY(!view.viewport()->autoFillBackground());

        QCOMPARE(view.geometry(), area);
        QCOMPARE(view.minimumSize(), area.size());
        QCOMPARE(view.maximumSize(), area.size());
        QCOMPARE(view.viewport()->geometry(), QRect(QPoint(0, 0), area.size()));
        QCOMPARE(view.windowHandle()->geometry(), area);
        QCOMPARE(view.sceneRect(), QRectF(area));
        QCOMPARE(view.viewportUpdateMode(), QGraphicsView::SmartViewportUpdate);
        QCOMPARE(view.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view.mapFromScene(area.topLeft()), QPoint(0, 0));
        QCOMPARE(view.mapFromScene(area.bottomRight()), QPoint(area.width() - 1, area.height() - 1));

        const auto sheet = QStringLiteral("border: none; background: transparent; margin: 0px 0px 0px 0px; "
                                          "padding: 0px 0px 0px 0px;");
        QCOMPARE(view.styleSheet(), sheet);
        QCOMPARE(view.viewport()->styleSheet(), sheet);
        const QBrush overlay(QColor(0, 0, 0, 1), Qt::SolidPattern);
        QCOMPARE(view.backgroundBrush(), overlay);
        QCOMPARE(stage.scene.backgroundBrush(), overlay);
    }

    void constructionMakesTheWindowOnItsScreen()
    {
        EventWatch watch(QEvent::WinIdChange);
        QVector<QRect> places;
        watch.seen = [&places](QObject* object) {
            if (const auto* view = qobject_cast<QGraphicsView*>(object)) {
                places.append(view->geometry());
            }
        };
        const Stage stage(QRect(-640, -480, 640, 480));
        QCOMPARE(places, (QVector<QRect>{QRect(-639, -479, 10, 10)}));
    }

    void constructionLeavesTheViewHidden()
    {
        Stage stage;
        QVERIFY(stage.loupe->isVisible());
        QVERIFY(!stage.view->isVisible());
        QVERIFY(!stage.view->windowHandle()->isVisible());
        QVERIFY(!stage.view->testAttribute(Qt::WA_DontShowOnScreen));
        QVERIFY(stage.present());
        QVERIFY(stage.view->windowHandle()->isVisible());
        QCOMPARE(stage.view->geometry(), screenArea);
    }

    void bottomItemIsTheLoupe()
    {
        QGraphicsScene scene(screenArea);
        QGraphicsItem* const top = scene.addRect(0, 0, 10, 10);
        top->setZValue(5.0);
        QGraphicsItem* const bottom = scene.addRect(0, 0, 10, 10);
        top->hide();
        bottom->hide();
        const PipetteScreenView view(&scene, screenArea);
        QVERIFY(bottom->isVisible());
        QVERIFY(!top->isVisible());
    }

    void sceneMayLackAll_data()
    {
        QTest::addColumn<QString>("what");
        for (const char* what : {"no scene", "no loupe", "scene dies", "loupe dies"}) {
            QTest::newRow(what) << what;
        }
    }

    void sceneMayLackAll()
    {
        QFETCH(QString, what);
        auto scene = std::make_unique<QGraphicsScene>(screenArea);
        QGraphicsItem* const loupe = what.endsWith("dies") ? scene->addRect(0, 0, 10, 10) : nullptr;
        PipetteScreenView view(what == "no scene" ? nullptr : scene.get(), screenArea);
        QCOMPARE(view.geometry(), screenArea);
        QSignalSpy moved(&view, &PipetteScreenView::loupePosChanged);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QVERIFY(moved.count() > 0);
        if (what == "scene dies") {
            scene.reset();
        } else {
            delete loupe;
        }
        for (const QEvent::Type type : {QEvent::Leave, QEvent::FocusIn, QEvent::WindowDeactivate}) {
            QEvent event(type);
            QVERIFY(QCoreApplication::sendEvent(&view, &event));
        }
        QTest::mouseMove(view.viewport(), QPoint(20, 20));
        view.grab();
    }

    void cursorNeedsAllItsParts_data()
    {
        QTest::addColumn<QPixmap>("pixmap");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("hotSpot");
        QTest::addColumn<bool>("expected");
        QTest::newRow("all") << dropper() << QSize(32, 32) << QSize(2, 14) << true;
        QTest::newRow("hot spot at the corner") << dropper() << QSize(32, 32) << QSize(0, 0) << true;
        QTest::newRow("no picture") << QPixmap() << QSize(32, 32) << QSize(2, 14) << false;
        QTest::newRow("no size") << dropper() << QSize() << QSize(2, 14) << false;
        QTest::newRow("empty size") << dropper() << QSize(32, 0) << QSize(2, 14) << false;
        QTest::newRow("no hot spot") << dropper() << QSize(32, 32) << QSize() << false;
        QTest::newRow("negative hot spot") << dropper() << QSize(32, 32) << QSize(-1, 3) << false;
        QTest::newRow("nothing") << QPixmap() << QSize() << QSize() << false;
    }

    void cursorNeedsAllItsParts()
    {
        QFETCH(QPixmap, pixmap);
        QFETCH(QSize, size);
        QFETCH(QSize, hotSpot);
        QFETCH(bool, expected);
        Stage stage;
        PipetteScreenView& view = *stage.view;
        view.setCursor(Qt::CrossCursor);
        view.setCursorPixmap(pixmap);
        view.setCursorSize(size);
        view.setCursorHotSpot(hotSpot);
        QCOMPARE(view.cursorPixmap().cacheKey(), pixmap.cacheKey());
        QCOMPARE(view.cursorSize(), size);
        QCOMPARE(view.cursorHotSpot(), hotSpot);
        QCOMPARE(isArrow(view.cursor()), !expected);

        // Also when a part is taken away again.
        view.setCursorPixmap(QPixmap());
        QVERIFY(isArrow(view.cursor()));
    }

    void cursorIsScaled()
    {
        Stage stage;
        stage.view->setCursorPixmap(dropper());
        stage.view->setCursorSize({20, 20});
        stage.view->setCursorHotSpot({3, 9});
        const QCursor cursor = stage.view->cursor();
        QCOMPARE(cursor.pixmap().size(), QSize(20, 10));
        QCOMPARE(cursor.hotSpot(), QPoint(3, 9));
        // The same value again sets the cursor again.
        stage.view->setCursor(Qt::CrossCursor);
        stage.view->setCursorHotSpot({3, 9});
        QCOMPARE(stage.view->cursor().hotSpot(), QPoint(3, 9));
    }

    void sheetGivesTheCursor()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("dropper.png"));
        QVERIFY(dropper().save(file));
        qApp->setStyleSheet(
            QStringLiteral("PipetteScreenView { qproperty-cursorPixmap: url(%1);"
                           " qproperty-cursorSize: 20px 20px; qproperty-cursorHotSpot: 2px 7px; }")
                .arg(file));
        const Stage stage;
        QCOMPARE(stage.view->cursorSize(), QSize(20, 20));
        QCOMPARE(stage.view->cursorHotSpot(), QSize(2, 7));
        QCOMPARE(stage.view->cursor().pixmap().size(), QSize(20, 10));
    }

    void eventsThatShowTheLoupe_data()
    {
        QTest::addColumn<QEvent::Type>("type");
        QTest::newRow("FocusIn") << QEvent::FocusIn;
        QTest::newRow("Enter") << QEvent::Enter;
        QTest::newRow("WindowActivate") << QEvent::WindowActivate;
    }

    void eventsThatShowTheLoupe()
    {
        QFETCH(QEvent::Type, type);
        Stage stage;
        QVERIFY(stage.present());
        stage.view->setCursorPixmap(dropper());
        stage.view->setCursorSize({20, 20});
        stage.view->setCursorHotSpot({3, 9});
        stage.view->setCursor(Qt::CrossCursor);
        stage.loupe->hide();
        bool wasHidden = false;
        connect(stage.view.get(), &PipetteScreenView::loupePosChanged, this,
                [&stage, &wasHidden] { wasHidden = !stage.loupe->isVisible(); });
        QEvent event(type);
        event.ignore();
        QVERIFY(QCoreApplication::sendEvent(stage.view.get(), &event));
        QVERIFY(event.isAccepted());
        QCOMPARE(stage.moved->count(), 1);
        QCOMPARE(stage.moved->first().first().toPoint(), QPoint(400, 300));
        QVERIFY(wasHidden);
        QVERIFY(stage.loupe->isVisible());
        QCOMPARE(stage.view->cursor().hotSpot(), QPoint(3, 9));
        QCOMPARE(stage.finished->count(), 0);
        if (type != QEvent::FocusIn) {
            stage.view->clearFocus();
            QTRY_VERIFY(stage.view->hasFocus());
        }
    }

    void eventsThatHideTheLoupe_data()
    {
        QTest::addColumn<QEvent::Type>("type");
        QTest::newRow("Leave") << QEvent::Leave;
        QTest::newRow("WindowDeactivate") << QEvent::WindowDeactivate;
    }

    void eventsThatHideTheLoupe()
    {
        QFETCH(QEvent::Type, type);
        Stage stage;
        QVERIFY(stage.present());
        stage.loupe->show();
        QEvent event(type);
        event.ignore();
        QVERIFY(QCoreApplication::sendEvent(stage.view.get(), &event));
        QVERIFY(event.isAccepted());
        QVERIFY(!stage.loupe->isVisible());
        QCOMPARE(stage.moved->count(), 0);
        QCOMPARE(stage.finished->count(), 0);
    }

    void enterRaisesAndTakesTheKeyboard()
    {
        Stage stage;
        QVERIFY(stage.present());
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        int raises = 0;
        EventWatch watch(QEvent::ZOrderChange);
        watch.seen = [&](QObject* object) { raises += object == stage.view.get() ? 1 : 0; };
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(stage.view.get(), &enter);
        QCOMPARE(raises, 1);
        QVERIFY(QTest::qWaitForWindowActive(stage.view.get()));
        QTRY_VERIFY(stage.view->hasFocus());
    }

    void wheelIsSwallowed()
    {
        Stage stage;
        QVERIFY(stage.present());
        QWheelEvent wheel(QPointF(50, 50), QPointF(50, 50), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        wheel.ignore();
        QVERIFY(static_cast<QObject*>(stage.view.get())->event(&wheel));
        QVERIFY(wheel.isAccepted());
        QCoreApplication::sendEvent(stage.view->viewport(), &wheel);
        QCOMPARE(stage.moved->count(), 0);
        QCOMPARE(stage.finished->count(), 0);
    }

    void ends_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QVariantList>("finished"); // with what, unless empty
        const QVariantList givenUp{QPoint(400, 300), false};
        const auto row = [](const char* name, const QVariantList& finished, const Act& act) {
            QTest::newRow(name) << act << finished;
        };
        row("left button", {QPoint(124, 46), true}, [](PipetteScreenView* view) {
            QWindow* const window = view->windowHandle();
            QSignalSpy finished(view, &PipetteScreenView::pickingFinished);
            QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, QPoint(123, 45));
            QCOMPARE(finished.count(), 0);
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, QPoint(124, 46));
        });
        for (const auto button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
            row(qPrintable(QString("button %1").arg(button)), {}, [button](PipetteScreenView* view) {
                QTest::mouseClick(view->windowHandle(), button, Qt::NoModifier, QPoint(123, 45));
                QVERIFY(view->isVisible());
            });
        }
        row("Escape", givenUp, [](PipetteScreenView* view) { pressKey(view, Qt::Key_Escape); });
        row("shortcut override", givenUp, [](PipetteScreenView* view) {
            QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier);
            event.ignore();
            QVERIFY(QCoreApplication::sendEvent(view, &event));
            QVERIFY(event.isAccepted());
        });
        row("closed", givenUp, [](PipetteScreenView* view) { QVERIFY(view->close()); });
        row("other keys", {}, [](PipetteScreenView* view) {
            for (const int key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_A, Qt::Key_Down, Qt::Key_PageDown}) {
                pressKey(view, key);
            }
        });
    }

    void ends()
    {
        QFETCH(Act, act);
        QFETCH(QVariantList, finished);
        Stage stage;
        QVERIFY(stage.present());
        act(stage.view.get());
        QCOMPARE(stage.finished->count(), finished.isEmpty() ? 0 : 1);
        QCOMPARE(stage.finished->value(0), finished);
    }

    void moveInsideMovesTheLoupe()
    {
        Stage stage;
        QVERIFY(stage.present());
        stage.loupe->hide();
        stage.view->setCursor(Qt::CrossCursor);
        QMouseEvent move(QEvent::MouseMove, QPointF(10, 20), QPointF(10, 20), QPointF(10, 20), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(stage.view->viewport(), &move);
        QCOMPARE(stage.moved->count(), 1);
        QCOMPARE(stage.moved->first().first().toPoint(), QPoint(10, 20));
        QVERIFY(stage.loupe->isVisible());
        QVERIFY(isArrow(stage.view->cursor()));
    }

    void moveOutsideHidesTheLoupe()
    {
        Stage stage;
        QVERIFY(stage.present());
        stage.loupe->show();
        for (const QPointF& outside :
             {QPointF(-1, 20), QPointF(20, -1), QPointF(800, 20), QPointF(20, 800)}) {
            stage.loupe->show();
            QMouseEvent move(QEvent::MouseMove, outside, outside, outside, Qt::LeftButton, Qt::LeftButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(stage.view->viewport(), &move);
            QVERIFY(!stage.loupe->isVisible());
            QCoreApplication::sendEvent(stage.view->viewport(), &move);
            QVERIFY(!stage.loupe->isVisible());
        }
        QCOMPARE(stage.moved->count(), 0);
    }

    void showReportsTheCursorByItsColumn_data()
    {
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<bool>("expected");
        QTest::newRow("inside") << QPoint(150, 150) << true;
        QTest::newRow("first column") << QPoint(100, 150) << true;
        QTest::newRow("last column") << QPoint(299, 150) << true;
        QTest::newRow("left of it") << QPoint(99, 150) << false;
        QTest::newRow("right of it") << QPoint(300, 150) << false;
        QTest::newRow("above, in its columns") << QPoint(150, 5) << true;
        QTest::newRow("below, in its columns") << QPoint(150, 700) << true;
    }

    void showReportsTheCursorByItsColumn()
    {
        QFETCH(QPoint, cursor);
        QFETCH(bool, expected);
        QCursor::setPos(cursor);
        Stage stage({100, 100, 200, 200});
        stage.loupe->hide();
        QShowEvent event;
        QCoreApplication::sendEvent(stage.view.get(), &event);
        QCOMPARE(stage.moved->count(), expected ? 1 : 0);
        if (expected) {
            QCOMPARE(stage.moved->first().first().toPoint(), cursor);
        }
        QVERIFY(stage.loupe->isVisible());
    }

    void viewMayDieInItsSlots_data()
    {
        QTest::addColumn<Act>("act");
        const auto send = [](QEvent::Type type) {
            return Act([type](PipetteScreenView* view) {
                QEvent event(type);
                QCoreApplication::sendEvent(view, &event);
            });
        };
        QTest::newRow("FocusIn") << send(QEvent::FocusIn);
        QTest::newRow("Enter") << send(QEvent::Enter);
        QTest::newRow("WindowActivate") << send(QEvent::WindowActivate);
        QTest::newRow("Enter, raised") << Act([](PipetteScreenView* view) {
            EventWatch watch(QEvent::ZOrderChange);
            watch.isTaken = true;
            watch.seen = [view](QObject*) { Q_EMIT view->loupePosChanged(QPoint()); };
            QEvent enter(QEvent::Enter);
            QVERIFY(QCoreApplication::sendEvent(view, &enter));
        });
        QTest::newRow("ShortcutOverride") << Act([](PipetteScreenView* view) {
            QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_A, Qt::NoModifier);
            QCoreApplication::sendEvent(view, &event);
        });
        QTest::newRow("Escape") << Act([](PipetteScreenView* view) { pressKey(view, Qt::Key_Escape); });
        QTest::newRow("move") << Act([](PipetteScreenView* view) {
            QTest::mouseMove(view->windowHandle(), QPoint(30, 40));
            QCoreApplication::processEvents();
        });
        QTest::newRow("release") << Act([](PipetteScreenView* view) {
            QTest::mouseClick(view->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 40));
        });
        QTest::newRow("closed") << Act([](PipetteScreenView* view) { view->close(); });
        QTest::newRow("show") << Act([](PipetteScreenView* view) {
            QShowEvent event;
            QCoreApplication::sendEvent(view, &event);
        });
    }

    void viewMayDieInItsSlots()
    {
        QFETCH(Act, act);
        Stage stage;
        QVERIFY(stage.present());
        const auto die = [&stage] { stage.view.reset(); };
        connect(stage.view.get(), &PipetteScreenView::loupePosChanged, this, die);
        connect(stage.view.get(), &PipetteScreenView::pickingFinished, this, die);
        act(stage.view.get());
        QVERIFY(!stage.view);
    }

    // One that puts a frame around the window is asked once for the right place, and then gets its way.
    void windowManagersPlace()
    {
        Stage stage;
        QVERIFY(stage.present());
        QWindow* const window = stage.view->windowHandle();
        const QSignalSpy moves(window, &QWindow::yChanged);
        window->setPosition(screenArea.topLeft() + QPoint(0, 24));
        QTRY_COMPARE(moves.count(), 2);
        QCOMPARE(stage.view->geometry(), screenArea);
        window->setPosition(screenArea.topLeft() + QPoint(0, 24));
        QTRY_COMPARE(stage.view->y(), screenArea.y() + 24);
        QCoreApplication::processEvents();
        QCOMPARE(moves.count(), 3);
        QCOMPARE(stage.view->size(), screenArea.size());
    }

    void overlayCoversEverything()
    {
        Stage stage;
        QVERIFY(stage.present());
        stage.loupe->hide();
        QImage image(screenArea.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        stage.view->QWidget::render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        for (const QPoint& point :
             {QPoint(0, 0), QPoint(799, 0), QPoint(0, 799), QPoint(799, 799), QPoint(400, 300)}) {
            QCOMPARE(image.pixel(point), qRgba(0, 0, 0, 1));
        }
    }

    void stillPictureLiesBelowTheOverlay()
    {
        Stage stage;
        QVERIFY(stage.present());
        stage.loupe->setPos(200, 100);
        QImage still(screenArea.size(), QImage::Format_RGB32);
        for (int y = 0; y < still.height(); ++y) {
            for (int x = 0; x < still.width(); ++x) {
                still.setPixel(x, y, qRgb(x % 256, y % 256, (x + y) % 256));
            }
        }
        stage.view->setStillPicture(QPixmap::fromImage(still));
        QImage image(screenArea.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        stage.view->QWidget::render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        const auto covered = [](int value) { return value >= 128 ? value - 1 : value; };
        for (const QPoint& point : {QPoint(0, 0), QPoint(255, 255), QPoint(128, 127), QPoint(700, 411)}) {
            QCOMPARE(image.pixel(point), qRgb(covered(point.x() % 256), covered(point.y() % 256),
                                              covered((point.x() + point.y()) % 256)));
        }
        QCOMPARE(image.pixel(230, 130), qRgb(255, 0, 0));
    }

    void moveRepaintsTwoPlacesOnly()
    {
        Stage stage;
        QVERIFY(stage.present());
        const QRect before(QPoint(100, 100), loupeSize);
        const QRect after(QPoint(500, 600), loupeSize);
        stage.loupe->setPos(before.topLeft());
        QCoreApplication::processEvents();
        PaintWatch watch(stage.view->viewport());
        stage.loupe->setPos(after.topLeft());
        QTRY_VERIFY(!watch.painted.isEmpty());
        QCoreApplication::processEvents();
        QVERIFY((QRegion(before) + after - watch.painted).isEmpty());
        const QRegion allowed = QRegion(before.adjusted(-3, -3, 3, 3)) + after.adjusted(-3, -3, 3, 3);
        QVERIFY((watch.painted - allowed).isEmpty());
    }
};

UIC_TEST_MAIN(tst_PipetteScreenView)
#include "tst_PipetteScreenView.moc"
