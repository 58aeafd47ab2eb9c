#include "TestMain.h"

#include <EditorWidgets/Workaround.h>

namespace {

const char roundedEdges[] = "roundedEdges";
const char sheet[] = "*[roundedEdges=\"true\"] { background: #ff0000; border-radius: 12px; }";

/// Paints itself, as the loupe of a pipette does.
class PaintingWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
    int strokes = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        QPainter painter(this);
        painter.setBrush(Qt::green);
        painter.drawEllipse(rect());
        ++strokes;
    }
};

class EventLog : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        types.append(event->type());
        return QObject::eventFilter(watched, event);
    }

    QVector<QEvent::Type> types;
};

QImage picture(QWidget* widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren | QWidget::DrawWindowBackground);
    return image;
}

} // namespace

class tst_Workaround : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cornersAreTransparent_data()
    {
        QTest::addColumn<int>("flags");
        QTest::addColumn<bool>("propertyFirst");
        QTest::newRow("pop-up, property before") << int(Qt::Popup) << true;
        QTest::newRow("pop-up, property after") << int(Qt::Popup) << false;
        QTest::newRow("frameless window, property before")
            << int(Qt::Window | Qt::FramelessWindowHint) << true;
        QTest::newRow("frameless window, property after")
            << int(Qt::Window | Qt::FramelessWindowHint) << false;
    }

    void cornersAreTransparent()
    {
        QFETCH(const int, flags);
        QFETCH(const bool, propertyFirst);
        QDialog widget(nullptr, Qt::WindowFlags(flags));
        const Qt::WindowFlags before = widget.windowFlags();
        widget.setStyleSheet(QString::fromLatin1(sheet));
        widget.resize(60, 40);
        if (propertyFirst) {
            widget.setProperty(roundedEdges, true);
        }
        Workaround::Ui::apply(&widget);
        widget.setProperty(roundedEdges, true);

        QCOMPARE(widget.windowFlags(), before | Qt::NoDropShadowWindowHint);
        const QImage image = picture(&widget);
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(59, 39).alpha(), 0);
        QCOMPARE(image.pixelColor(30, 20), QColor(Qt::red));
        QCOMPARE(image.pixelColor(30, 0), QColor(Qt::red));
    }

    void withoutSheetThePaletteFills()
    {
        QDialog dialog(nullptr, Qt::Popup);
        dialog.resize(60, 40);
        dialog.setProperty(roundedEdges, true);
        Workaround::Ui::apply(&dialog);
        const QImage image = picture(&dialog);
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(30, 20), dialog.palette().color(QPalette::Window));
        QCOMPARE(image.pixelColor(30, 0), dialog.palette().color(QPalette::Window));
    }

    void paintingClassIsLeftToItself()
    {
        PaintingWidget widget(nullptr, Qt::Window | Qt::FramelessWindowHint);
        widget.resize(60, 40);
        widget.setProperty(roundedEdges, true);
        Workaround::Ui::apply(&widget);
        const QImage image = picture(&widget);
        QCOMPARE(widget.strokes, 1);
        QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
        QCOMPARE(image.pixelColor(30, 20), QColor(Qt::green));
    }

    void nativeWindowHasAlpha()
    {
        QDialog dialog(nullptr, Qt::Popup);
        dialog.setProperty(roundedEdges, true);
        Workaround::Ui::apply(&dialog);
        dialog.winId();
        QVERIFY(dialog.windowHandle()->requestedFormat().hasAlpha());
        QVERIFY(dialog.windowHandle()->flags().testFlag(Qt::NoDropShadowWindowHint));
    }

    void withoutPropertyNothingChanges()
    {
        QDialog dialog;
        const Qt::WindowFlags flags = dialog.windowFlags();
        Workaround::Ui::apply(&dialog);
        QCOMPARE(dialog.windowFlags(), flags);
        QVERIFY(!dialog.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(!dialog.testAttribute(Qt::WA_NoSystemBackground));
    }

    void propertySetToFalseTakesEverythingBack()
    {
        QDialog dialog;
        const Qt::WindowFlags flags = dialog.windowFlags();
        Workaround::Ui::apply(&dialog);
        dialog.setProperty(roundedEdges, true);
        QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
        dialog.setProperty(roundedEdges, false);
        QVERIFY(!dialog.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(!dialog.testAttribute(Qt::WA_NoSystemBackground));
        QCOMPARE(dialog.windowFlags(), flags);

        dialog.setProperty(roundedEdges, true);
        dialog.setProperty(roundedEdges, QVariant());
        QVERIFY(!dialog.testAttribute(Qt::WA_TranslucentBackground));
    }

    void hostsOwnAttributesStay()
    {
        QDialog dialog(nullptr, Qt::Popup | Qt::NoDropShadowWindowHint);
        dialog.setAttribute(Qt::WA_TranslucentBackground);
        Workaround::Ui::apply(&dialog);
        dialog.setProperty(roundedEdges, true);
        dialog.setProperty(roundedEdges, false);
        QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(dialog.testAttribute(Qt::WA_NoSystemBackground));
        QVERIFY(dialog.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
    }

    void secondCallDoesNothing()
    {
        QDialog dialog;
        dialog.setProperty(roundedEdges, true);
        Workaround::Ui::apply(&dialog);
        const int children = dialog.children().size();
        // What the host takes away after the first call is not set again by the second.
        dialog.setAttribute(Qt::WA_TranslucentBackground, false);
        EventLog log;
        dialog.installEventFilter(&log);
        Workaround::Ui::apply(&dialog);
        QVERIFY(log.types.isEmpty());
        QCOMPARE(dialog.children().size(), children);
        QVERIFY(!dialog.testAttribute(Qt::WA_TranslucentBackground));
    }

    // setWindowFlags() would hide the window and make its native window anew.
    void visibleWindowStaysAsItIs()
    {
        QDialog dialog(nullptr, Qt::Window | Qt::FramelessWindowHint);
        dialog.setGeometry(50, 60, 200, 100);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const WId id = dialog.winId();
        EventLog log;
        dialog.installEventFilter(&log);
        Workaround::Ui::apply(&dialog);
        dialog.setProperty(roundedEdges, true);
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.winId(), id);
        QCOMPARE(dialog.geometry(), QRect(50, 60, 200, 100));
        QCOMPARE(dialog.windowType(), Qt::Window);
        QVERIFY(!log.types.contains(QEvent::Hide));
        QVERIFY(!log.types.contains(QEvent::Move));
        QVERIFY(!log.types.contains(QEvent::Resize));
    }

    void childWidget()
    {
        QWidget window;
        window.setStyleSheet(QString::fromLatin1(sheet));
        auto* layout = new QVBoxLayout(&window);
        auto* child = new QFrame;
        layout->addWidget(child);
        window.resize(100, 100);
        window.show();
        const QRect geometry = child->geometry();
        child->setProperty(roundedEdges, true);
        Workaround::Ui::apply(child);
        QVERIFY(!child->isWindow());
        QVERIFY(child->isVisible());
        QCOMPARE(child->geometry(), geometry);
        QCOMPARE(child->windowFlags() & Qt::NoDropShadowWindowHint, Qt::WindowFlags());
        const QImage image = picture(child);
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(child->rect().center()), QColor(Qt::red));
    }

    void embeddedWidget()
    {
        QGraphicsScene scene;
        auto* widget = new QDialog(nullptr, Qt::Window | Qt::FramelessWindowHint);
        widget->setStyleSheet(QString::fromLatin1(sheet));
        widget->resize(60, 40);
        QGraphicsProxyWidget* const proxy = scene.addWidget(widget, widget->windowFlags());
        const Qt::WindowFlags flags = proxy->windowFlags();
        Workaround::Ui::apply(widget);
        widget->setProperty(roundedEdges, true);
        QCOMPARE(proxy->windowFlags(), flags);
        QVERIFY(proxy->isVisible());

        QImage image(60, 40, QImage::Format_ARGB32);
        image.fill(Qt::blue);
        QPainter painter(&image);
        const QRectF whole(0, 0, 60, 40);
        scene.render(&painter, whole, proxy->sceneBoundingRect());
        painter.end();
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(30, 20), QColor(Qt::red));
    }

    void otherPropertiesAreIgnored()
    {
        QDialog dialog;
        Workaround::Ui::apply(&dialog);
        dialog.setProperty("roundededges", true);
        dialog.setProperty("rounded", true);
        QVERIFY(!dialog.testAttribute(Qt::WA_TranslucentBackground));
    }

    void nullWidget() { Workaround::Ui::apply(nullptr); }
};

UIC_TEST_MAIN(tst_Workaround)
#include "tst_Workaround.moc"
