#include "MetaObject.h"
#include "SizedWidget.h"
#include "TestMain.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/OvGridLayout.h>
#include <WidgetToolkit/Util.h>

namespace {

const QString oneSheet = QStringLiteral("OvFrame { qproperty-layoutMargin: 5; qproperty-layoutSpacing: 7; }");
const QString otherSheet =
    QStringLiteral("OvFrame { qproperty-layoutMargin: 9; qproperty-layoutSpacing: 1; }");
const QMargins oneMargins(5, 5, 5, 5);
const QMargins otherMargins(9, 9, 9, 9);

/// A component as they all are: children, then a layout whose metrics code sets to zero.
class Component : public OvFrame
{
public:
    explicit Component(QWidget* parent = nullptr)
        : OvFrame(parent)
        , first(new SizedWidget(this))
        , second(new SizedWidget(this))
        , box(new OvHBoxLayout(this))
    {
        box->setContentsMargins(0, 0, 0, 0);
        box->setSpacing(0);
        box->autoFill();
    }

    SizedWidget* const first;
    SizedWidget* const second;
    OvHBoxLayout* const box;
};

} // namespace

class tst_OvFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qApp->setStyleSheet(QString()); }

    void isAPlainFrame()
    {
        QWidget parent;
        const OvFrame frame(&parent, Qt::Tool);
        QCOMPARE(frame.parentWidget(), &parent);
        QCOMPARE(frame.windowType(), Qt::Tool);
        QCOMPARE(frame.frameShape(), QFrame::NoFrame);
        QCOMPARE(frame.contentsMargins(), QMargins());
        QVERIFY(!frame.getLayout());
        QVERIFY(frame.inherits("QFrame"));
    }

    void properties()
    {
        QCOMPARE(
            ownProperties(OvFrame::staticMetaObject),
            (QStringList{QStringLiteral("int layoutMargin rw"), QStringLiteral("int layoutMarginLeft rw"),
                         QStringLiteral("int layoutMarginTop rw"), QStringLiteral("int layoutMarginRight rw"),
                         QStringLiteral("int layoutMarginBottom rw"), QStringLiteral("int layoutSpacing rw"),
                         QStringLiteral("int layoutHorizontalSpacing rw"),
                         QStringLiteral("int layoutVerticalSpacing rw")}));
    }

    void layoutIsTheControlledOne()
    {
        OvFrame frame;
        auto* layout = new OvVBoxLayout(&frame);
        QCOMPARE(frame.getLayout(), layout);
        LayoutController& controller = frame;
        QCOMPARE(controller.getLayout(), layout);
    }

    void installedControllerIsTheFrameItself()
    {
        OvFrame frame;
        QCOMPARE(Util::installLayoutController(&frame), static_cast<LayoutController*>(&frame));
        QVERIFY(frame.children().isEmpty());
    }

    void layoutAfterPolish()
    {
        OvFrame frame;
        frame.setStyleSheet(oneSheet);
        frame.ensurePolished();
        auto* layout = new OvHBoxLayout(&frame);
        layout->addWidget(new SizedWidget);
        QTRY_COMPARE(frame.sizeHint(), QSize(30, 20));
    }

    void valuesAreThereAtTheFirstShow_data()
    {
        QTest::addColumn<bool>("asChild");
        QTest::newRow("window") << false;
        QTest::newRow("child") << true;
    }

    void valuesAreThereAtTheFirstShow()
    {
        QFETCH(bool, asChild);
        qApp->setStyleSheet(oneSheet);
        QWidget window;
        QVBoxLayout outer(&window);
        outer.setContentsMargins(0, 0, 0, 0);
        Component component;
        if (asChild) {
            outer.addWidget(&component);
            window.show();
            QCOMPARE(window.size(), component.size());
        } else {
            component.show();
        }
        // No event loop has run.
        QCOMPARE(component.first->geometry().topLeft(), QPoint(5, 5));
        QCOMPARE(component.second->x() - component.first->geometry().right() - 1, 7);
        QCOMPARE(component.size(), QSize(20 + 7 + 20 + 10, 20));
        component.setParent(nullptr);
    }

    void valuesAreThereInAGrab()
    {
        qApp->setStyleSheet(
            oneSheet +
            QStringLiteral("QWidget { background: white; } Component QWidget { background: red; }"));
        QWidget window;
        Component component(&window);
        component.first->setStyleSheet(QStringLiteral("background: red;"));
        component.first->setAttribute(Qt::WA_StyledBackground);
        component.resize(200, 100);
        const QImage image = component.grab().toImage();
        QCOMPARE(image.pixelColor(4, 50), QColor(Qt::white));
        QCOMPARE(image.pixelColor(5, 50), QColor(Qt::red));
    }

    void selectedByObjectName()
    {
        Component component;
        component.setObjectName(QStringLiteral("topPanel"));
        component.setStyleSheet(QStringLiteral("#topPanel { qproperty-layoutMarginRight: 4; }"));
        component.ensurePolished();
        QCOMPARE(component.box->contentsMargins(), QMargins(0, 0, 4, 0));
    }

    void eachSideAndLaterWins()
    {
        Component component;
        component.setStyleSheet(
            QStringLiteral("OvFrame { qproperty-layoutMarginLeft: 1; qproperty-layoutMargin: 2;"
                           " qproperty-layoutMarginTop: 3; qproperty-layoutMarginBottom: 0; }"));
        component.ensurePolished();
        QCOMPARE(component.box->contentsMargins(), QMargins(2, 3, 2, 0));
    }

    void applicationSheetChanges()
    {
        Component component;
        qApp->setStyleSheet(oneSheet);
        component.show();
        QCOMPARE(component.box->contentsMargins(), oneMargins);
        qApp->setStyleSheet(otherSheet);
        QCOMPARE(component.box->contentsMargins(), otherMargins);
        QCOMPARE(component.box->spacing(), 1);
        component.hide();
        qApp->setStyleSheet(oneSheet);
        QCOMPARE(component.box->contentsMargins(), oneMargins);
    }

    void ancestorSheetChanges()
    {
        QWidget window;
        QWidget panel(&window);
        Component component(&panel);
        window.setStyleSheet(oneSheet);
        window.show();
        QCOMPARE(component.box->contentsMargins(), oneMargins);
        window.setStyleSheet(otherSheet);
        QCOMPARE(component.box->contentsMargins(), otherMargins);
        panel.setStyleSheet(oneSheet);
        QCOMPARE(component.box->contentsMargins(), oneMargins);
    }

    void removedRuleKeepsTheValue()
    {
        Component component;
        component.setStyleSheet(oneSheet);
        component.show();
        component.setStyleSheet(QString());
        QCOMPARE(component.box->contentsMargins(), oneMargins);
    }

    void layoutIsReplaced()
    {
        Component component;
        component.setStyleSheet(oneSheet);
        component.show();
        delete component.box;
        auto* layout = new OvVBoxLayout(&component);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->autoFill();
        QTRY_COMPARE(layout->contentsMargins(), oneMargins);
        QCOMPARE(layout->spacing(), 7);
        QTRY_COMPARE(component.first->pos(), QPoint(5, 5));
    }

    void codeZeroesTheMetrics()
    {
        Component component;
        component.setStyleSheet(oneSheet);
        component.ensurePolished();
        component.box->setContentsMargins(0, 0, 0, 0);
        component.box->setSpacing(0);
        QTRY_COMPARE(component.box->contentsMargins(), oneMargins);
        QCOMPARE(component.box->spacing(), 7);
        QCOMPARE(component.sizeHint(), QSize(57, 20));
    }

    void gridTakesBothSpacings()
    {
        OvFrame frame;
        auto* grid = new OvGridLayout(&frame);
        frame.setStyleSheet(QStringLiteral(
            "OvFrame { qproperty-layoutHorizontalSpacing: 3; qproperty-layoutVerticalSpacing: 4; }"));
        frame.ensurePolished();
        QCOMPARE(grid->horizontalSpacing(), 3);
        QCOMPARE(grid->verticalSpacing(), 4);
        grid->setSpacing(0);
        QTRY_COMPARE(grid->horizontalSpacing(), 3);
        QCOMPARE(grid->verticalSpacing(), 4);
    }

    void innerLayoutsAreLeftAlone()
    {
        Component component;
        component.setStyleSheet(oneSheet);
        component.show();
        auto* inner = new OvVBoxLayout(nullptr);
        component.box->addLayout(inner);
        inner->setContentsMargins(1, 1, 1, 1);
        QCoreApplication::processEvents();
        QCOMPARE(inner->contentsMargins(), QMargins(1, 1, 1, 1));
        QCOMPARE(inner->spacing(), 0);
    }

    void frameOfTheSheetSurroundsTheLayout()
    {
        Component component;
        component.setStyleSheet(
            QStringLiteral("OvFrame { border: 2px solid red; padding: 3px; qproperty-layoutMargin: 4; }"));
        component.show();
        QCOMPARE(component.first->pos(), QPoint(9, 9));
        QCOMPARE(component.sizeHint(), QSize(58, 28));
    }
};

UIC_TEST_MAIN(tst_OvFrame)
#include "tst_OvFrame.moc"
