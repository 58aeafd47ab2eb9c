#include "TestMain.h"

#include <GuiHelper/HighlightFrame.h>

#include <memory>

using Orvane::Gui::HighlightFrame;

namespace {

QList<QWidget*> overlaysOf(const QWidget* target)
{
    return target->findChildren<QWidget*>(QStringLiteral("highlightFrame"), Qt::FindDirectChildrenOnly);
}

QWidget* overlayOf(const QWidget* target)
{
    return overlaysOf(target).value(0);
}

/// What the user sees of the target's window, from the window's backing store.
QImage onScreen(const QWidget* target)
{
    const QWidget* const window = target->window();
    const QRect part(target->mapTo(window, QPoint()), target->size());
    return window->screen()
        ->grabWindow(window->winId(), part.x(), part.y(), part.width(), part.height())
        .toImage();
}

QColor highlight()
{
    return QGuiApplication::palette().color(QPalette::Active, QPalette::Highlight);
}

/// Whether @p image has a border of @p width in @p color, and something else inside.
bool isOutlined(const QImage& image, int width, const QColor& color)
{
    const QRect inner = image.rect().adjusted(width, width, -width, -width);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if ((inner.isValid() && inner.contains(x, y)) == (image.pixelColor(x, y).rgb() == color.rgb())) {
                return false;
            }
        }
    }
    return true;
}

class WhiteWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override { QPainter(this).fillRect(event->rect(), Qt::white); }
};

/// Counts its child events, by which containers adopt children.
class Container : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
    int childEvents = 0;

protected:
    void childEvent(QChildEvent* event) override
    {
        ++childEvents;
        QWidget::childEvent(event);
    }
};

} // namespace

class tst_HighlightFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outlinesTarget()
    {
        WhiteWidget window;
        auto* target = new WhiteWidget(&window);
        target->setGeometry(20, 30, 80, 60);
        window.resize(150, 150);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const HighlightFrame frame(target);
        QCOMPARE(overlayOf(target)->geometry(), QRect(0, 0, 80, 60));
        QVERIFY(overlayOf(target)->isVisible());
        QVERIFY(isOutlined(target->grab().toImage(), 2, highlight()));
        QTRY_VERIFY(isOutlined(onScreen(target), 2, highlight()));
    }

    void outlinesDisabledTarget()
    {
        WhiteWidget target;
        target.resize(40, 40);
        target.setEnabled(false);
        const HighlightFrame frame(&target);
        QVERIFY(isOutlined(target.grab().toImage(), 2, highlight()));
    }

    void followsResize()
    {
        WhiteWidget target;
        target.resize(40, 40);
        const HighlightFrame frame(&target);
        target.show();
        for (const QSize& size : {QSize(90, 20), QSize(10, 70), QSize(41, 43)}) {
            target.resize(size);
            QCOMPARE(overlayOf(&target)->geometry(), QRect(QPoint(), target.size()));
            QVERIFY(isOutlined(target.grab().toImage(), 2, highlight()));
        }
    }

    void tinySizes_data()
    {
        QTest::addColumn<QSize>("size");
        for (int side = 0; side < 6; ++side) {
            QTest::addRow("%d x %d", side, side) << QSize(side, side);
            QTest::addRow("%d x 30", side) << QSize(side, 30);
        }
    }

    void tinySizes()
    {
        QFETCH(const QSize, size);
        WhiteWidget window;
        WhiteWidget target(&window);
        target.resize(size);
        window.resize(60, 60);
        const HighlightFrame frame(&target);
        window.show();
        QCOMPARE(overlayOf(&target)->geometry(), QRect(QPoint(), size));
        if (!size.isEmpty()) {
            QVERIFY(isOutlined(target.grab().toImage(), 2, highlight()));
        }
        window.repaint();
    }

    void followsHideAndShow()
    {
        WhiteWidget window;
        auto* target = new WhiteWidget(&window);
        target->hide();
        const HighlightFrame frame(target);
        window.show();
        QVERIFY(!overlayOf(target)->isVisible());
        target->show();
        QVERIFY(overlayOf(target)->isVisible());
        target->hide();
        QVERIFY(!overlayOf(target)->isVisible());
        QVERIFY(target->isHidden());
        target->show();
        QVERIFY(overlayOf(target)->isVisible());
    }

    void followsReparenting()
    {
        WhiteWidget first;
        WhiteWidget second;
        auto* target = new WhiteWidget(&first);
        target->resize(50, 50);
        first.show();
        second.show();
        const HighlightFrame frame(target);
        target->setParent(&second);
        target->show();
        QCOMPARE(overlayOf(target)->window(), &second);
        QVERIFY(overlayOf(target)->isVisible());
        target->resize(33, 44);
        QVERIFY(isOutlined(target->grab().toImage(), 2, highlight()));

        target->setParent(nullptr);
        target->show();
        QCOMPARE(overlayOf(target)->geometry(), target->rect());
        const std::unique_ptr<QWidget> owner(target);
    }

    void outlinesWindow()
    {
        WhiteWidget window;
        window.resize(120, 80);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const HighlightFrame frame(&window);
        QTRY_VERIFY(isOutlined(onScreen(&window), 2, highlight()));
    }

    void staysOnTopOfAddedAndRaisedChildren()
    {
        WhiteWidget target;
        target.resize(50, 50);
        auto* before = new WhiteWidget(&target);
        before->resize(50, 50);
        const HighlightFrame frame(&target);
        QVERIFY(isOutlined(target.grab().toImage(), 2, highlight()));

        auto* added = new WhiteWidget(&target);
        added->resize(50, 50);
        added->show();
        QCOMPARE(target.children().constLast(), overlayOf(&target));
        QVERIFY(isOutlined(target.grab().toImage(), 2, highlight()));

        before->raise();
        QCOMPARE(target.children().constLast(), overlayOf(&target));
        added->raise();
        QCOMPARE(target.children().constLast(), overlayOf(&target));
        // The order among the target's own children is theirs.
        QVERIFY(target.children().indexOf(before) < target.children().indexOf(added));

        // A child that goes away and is raised elsewhere is none of the frame's business.
        WhiteWidget other;
        added->setParent(&other);
        added->raise();
        QCOMPARE(target.children().constLast(), overlayOf(&target));
    }

    void mouseFallsThrough()
    {
        QPushButton target;
        target.resize(60, 30);
        target.show();
        QVERIFY(QTest::qWaitForWindowExposed(&target));
        const HighlightFrame frame(&target);
        QSignalSpy clicks(&target, &QPushButton::clicked);
        QCOMPARE(target.childAt(0, 0), nullptr);
        QTest::mouseClick(target.windowHandle(), Qt::LeftButton, {}, QPoint(0, 0));
        QTest::mouseClick(target.windowHandle(), Qt::LeftButton, {}, QPoint(30, 15));
        QCOMPARE(clicks.count(), 2);
    }

    void focusAndTabOrderStay()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* target = new QWidget;
        layout->addWidget(target);
        auto* inner = new QVBoxLayout(target);
        auto* first = new QLineEdit;
        auto* second = new QLineEdit;
        auto* outside = new QLineEdit;
        inner->addWidget(first);
        inner->addWidget(second);
        layout->addWidget(outside);
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        second->setFocus();
        {
            const HighlightFrame frame(target);
            QCOMPARE(QApplication::focusWidget(), second);
            QTest::keyClick(second, Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), outside);
            QTest::keyClick(outside, Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), first);
            QCOMPARE(overlayOf(target)->focusPolicy(), Qt::NoFocus);
        }
        QCOMPARE(QApplication::focusWidget(), first);
        QCOMPARE(first->nextInFocusChain(), second);
        QTest::keyClick(first, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), second);
    }

    void layoutAndSizesStay()
    {
        QWidget target;
        auto* layout = new QVBoxLayout(&target);
        layout->addWidget(new QPushButton(QStringLiteral("One")));
        layout->addWidget(new QPushButton(QStringLiteral("Two")));
        target.show();
        const QSize hint = target.sizeHint();
        const QSize minimumHint = target.minimumSizeHint();
        const QSize minimum = target.minimumSize();
        const QSize size = target.size();
        const QRect second = layout->itemAt(1)->geometry();
        const HighlightFrame frame(&target);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(layout->count(), 2);
        QCOMPARE(target.sizeHint(), hint);
        QCOMPARE(target.minimumSizeHint(), minimumHint);
        QCOMPARE(target.minimumSize(), minimum);
        QCOMPARE(target.size(), size);
        QCOMPARE(layout->itemAt(1)->geometry(), second);
    }

    void targetIsToldOfNoChild()
    {
        Container target;
        target.show();
        {
            const HighlightFrame frame(&target);
            const HighlightFrame another(&target);
            QCoreApplication::sendPostedEvents();
            QCOMPARE(overlaysOf(&target).size(), 2);
        }
        QCOMPARE(target.childEvents, 0);
        const HighlightFrame frame(&target);
        auto* child = new QWidget(&target);
        QCOMPARE(target.childEvents, 1);
        delete child;
        QVERIFY(target.childEvents > 1);
    }

    // QSplitter adopts every child widget in its child event.
    void splitterAdoptsNothing()
    {
        QSplitter splitter;
        splitter.addWidget(new WhiteWidget);
        splitter.addWidget(new WhiteWidget);
        splitter.resize(300, 100);
        splitter.show();
        splitter.setSizes({100, 195});
        const QList<int> sizes = splitter.sizes();
        {
            const HighlightFrame frame(&splitter);
            QCoreApplication::sendPostedEvents();
            QCOMPARE(splitter.count(), 2);
            QCOMPARE(splitter.sizes(), sizes);
            QCOMPARE(overlayOf(&splitter)->geometry(), splitter.rect());
            splitter.addWidget(new WhiteWidget);
            QCOMPARE(splitter.count(), 3);
            QCOMPARE(splitter.children().constLast(), overlayOf(&splitter));
        }
        QCOMPARE(splitter.count(), 3);
    }

    void containersKeepTheirState()
    {
        QStackedWidget stack;
        stack.addWidget(new WhiteWidget);
        QMainWindow mainWindow;
        auto* central = new WhiteWidget;
        mainWindow.setCentralWidget(central);
        QScrollArea area;
        auto* content = new WhiteWidget;
        area.setWidget(content);
        QGroupBox box;
        box.setCheckable(true);
        box.setChecked(false);

        const HighlightFrame frames[] = {HighlightFrame(&stack), HighlightFrame(&mainWindow),
                                         HighlightFrame(&area), HighlightFrame(area.viewport()),
                                         HighlightFrame(&box)};
        Q_UNUSED(frames)
        for (QWidget* target : {static_cast<QWidget*>(&stack), static_cast<QWidget*>(&mainWindow),
                                static_cast<QWidget*>(&area), static_cast<QWidget*>(&box)}) {
            target->resize(200, 150);
            target->show();
            QCOMPARE(overlayOf(target)->geometry(), target->rect());
        }
        QCoreApplication::sendPostedEvents();
        QCOMPARE(stack.count(), 1);
        QCOMPARE(mainWindow.centralWidget(), central);
        QCOMPARE(area.widget(), content);
        QCOMPARE(overlayOf(area.viewport())->geometry(), area.viewport()->rect());
    }

    // QWidget::scroll() moves all children and copies what is painted, the outline too.
    void survivesScrolling()
    {
        QTableWidget table(100, 1);
        table.setFrameShape(QFrame::NoFrame);
        table.setShowGrid(false);
        table.resize(200, 200);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        const HighlightFrame frame(table.viewport());
        const QWidget* const viewport = table.viewport();
        QTRY_VERIFY(isOutlined(onScreen(viewport), 2, highlight()));
        for (const int value : {1, 5, 90, 3}) {
            table.verticalScrollBar()->setValue(value);
            QCOMPARE(overlayOf(viewport)->geometry(), viewport->rect());
            QTRY_VERIFY(isOutlined(onScreen(viewport), 2, highlight()));
        }
        viewport->parentWidget()->update();
        table.viewport()->scroll(7, 11);
        QCOMPARE(overlayOf(viewport)->geometry(), viewport->rect());
        QTRY_VERIFY(isOutlined(onScreen(viewport), 2, highlight()));
    }

    void removedAtOnce()
    {
        WhiteWidget window;
        auto* target = new WhiteWidget(&window);
        target->setGeometry(10, 10, 50, 50);
        window.resize(80, 80);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto frame = std::make_unique<HighlightFrame>(target);
        QTRY_VERIFY(isOutlined(onScreen(target), 2, highlight()));
        frame.reset();
        QVERIFY(overlaysOf(target).isEmpty());
        // No turn of the event loop in between: a colour under the outline may be picked next.
        const QImage image = onScreen(target);
        for (const QPoint& corner :
             {QPoint(0, 0), QPoint(49, 0), QPoint(0, 49), QPoint(49, 49), QPoint(25, 1)}) {
            QCOMPARE(image.pixelColor(corner), QColor(Qt::white));
        }
    }

    // A frame that is dropped while its target paints must not paint it once more inside.
    void removedFromInsidePaint()
    {
        struct Dropper : QWidget
        {
            void paintEvent(QPaintEvent* event) override
            {
                Q_UNUSED(event)
                ++depth;
                deepest = qMax(deepest, depth);
                frame.reset();
                --depth;
            }
            std::unique_ptr<HighlightFrame> frame;
            int depth = 0;
            int deepest = 0;
        } target;
        target.resize(40, 40);
        target.show();
        QVERIFY(QTest::qWaitForWindowExposed(&target));
        target.frame = std::make_unique<HighlightFrame>(&target);
        target.repaint();
        QVERIFY(!target.frame);
        QCOMPARE(target.deepest, 1);
        QVERIFY(overlaysOf(&target).isEmpty());
    }

    void targetDiesFirst()
    {
        auto target = std::make_unique<WhiteWidget>();
        target->show();
        HighlightFrame frame(target.get());
        const QPointer<QWidget> overlay = overlayOf(target.get());
        target.reset();
        QVERIFY(!overlay);
        QEvent event(QEvent::User);
        QVERIFY(!frame.eventFilter(&frame, &event));
    }

    void overlayDeletedByTarget()
    {
        WhiteWidget target;
        target.show();
        const HighlightFrame frame(&target);
        qDeleteAll(target.findChildren<QWidget*>());
        target.resize(77, 33);
        auto* child = new WhiteWidget(&target);
        child->raise();
        QVERIFY(overlaysOf(&target).isEmpty());
    }

    // A child is raised while another one dies, and then the target with the rest.
    void childrenDieAndAreRaised()
    {
        auto target = std::make_unique<WhiteWidget>();
        const HighlightFrame frame(target.get());
        auto* first = new WhiteWidget(target.get());
        auto* second = new WhiteWidget(target.get());
        new WhiteWidget(target.get());
        connect(first, &QObject::destroyed, second, [second] { second->raise(); });
        target->show();
        delete first;
        QCOMPARE(target->children().constLast(), overlayOf(target.get()));
        QCOMPARE(target->children().indexOf(second), 1);
        const QPointer<QWidget> overlay = overlayOf(target.get());
        target.reset();
        QVERIFY(!overlay);
    }

    void nullTarget()
    {
        HighlightFrame frame(nullptr);
        QEvent event(QEvent::Resize);
        QVERIFY(!frame.eventFilter(nullptr, &event));
    }

    void twoFramesOnOneTarget_data()
    {
        QTest::addColumn<bool>("firstGoesFirst");
        QTest::newRow("first goes first") << true;
        QTest::newRow("second goes first") << false;
    }

    void twoFramesOnOneTarget()
    {
        QFETCH(const bool, firstGoesFirst);
        WhiteWidget target;
        target.resize(50, 50);
        auto* child = new WhiteWidget(&target);
        target.show();
        auto first = std::make_unique<HighlightFrame>(&target);
        auto second = std::make_unique<HighlightFrame>(&target);
        QCOMPARE(overlaysOf(&target).size(), 2);
        child->raise();
        QVERIFY(target.children().indexOf(child) < target.children().indexOf(overlaysOf(&target).at(0)));
        QVERIFY(target.children().indexOf(child) < target.children().indexOf(overlaysOf(&target).at(1)));

        (firstGoesFirst ? first : second).reset();
        QCOMPARE(overlaysOf(&target).size(), 1);
        target.resize(60, 40);
        QVERIFY(isOutlined(target.grab().toImage(), 2, highlight()));
        (firstGoesFirst ? second : first).reset();
        QVERIFY(overlaysOf(&target).isEmpty());
    }

    void sheetSetsColorAndWidth()
    {
        WhiteWidget target;
        target.resize(50, 50);
        target.setStyleSheet(QStringLiteral("HighlightFrameOverlay { qproperty-borderColor: #ff8800; }"
                                            "#highlightFrame { qproperty-borderWidth: 5; }"));
        const HighlightFrame frame(&target);
        QVERIFY(isOutlined(target.grab().toImage(), 5, QColor(0xff, 0x88, 0)));
    }

    void broadSheetPaintsNothingMore()
    {
        WhiteWidget target;
        target.resize(50, 50);
        target.setStyleSheet(
            QStringLiteral("* { background: #123456; border: 6px solid black; padding: 4px; }"));
        const HighlightFrame frame(&target);
        const QImage image = target.grab().toImage();
        QCOMPARE(image.pixelColor(25, 25), QColor(Qt::white));
        QCOMPARE(image.pixelColor(1, 25), highlight());
        QCOMPARE(image.pixelColor(3, 25), QColor(Qt::white));
    }

    void propertiesNormalise()
    {
        WhiteWidget target;
        target.resize(50, 50);
        const HighlightFrame frame(&target);
        QWidget* const overlay = overlayOf(&target);
        QCOMPARE(QString::fromLatin1(overlay->metaObject()->className()),
                 QStringLiteral("HighlightFrameOverlay"));
        QCOMPARE(overlay->property("borderWidth").toInt(), 2);
        QCOMPARE(overlay->property("borderColor").value<QColor>(), QColor());

        overlay->setProperty("borderWidth", -3);
        QCOMPARE(overlay->property("borderWidth").toInt(), 0);
        QCOMPARE(target.grab().toImage().pixelColor(0, 0), QColor(Qt::white));
        overlay->setProperty("borderWidth", 1000);
        QCOMPARE(target.grab().toImage().pixelColor(25, 25), highlight());
        overlay->setProperty("borderWidth", 3);
        overlay->setProperty("borderColor", QColor(Qt::green));
        QVERIFY(isOutlined(target.grab().toImage(), 3, Qt::green));
        overlay->setProperty("borderColor", QColor());
        QVERIFY(isOutlined(target.grab().toImage(), 3, highlight()));
    }
};

UIC_TEST_MAIN(tst_HighlightFrame)
#include "tst_HighlightFrame.moc"
