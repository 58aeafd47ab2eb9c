#include "TestMain.h"
#include "Wheel.h"

#include <WidgetToolkit/OvComboBox.h>

#include <limits>

namespace {

/// A subclass that keeps its change events from the base.
class Swallowing : public OvComboBox
{
protected:
    void changeEvent(QEvent* event) override { Q_UNUSED(event) }
};

/// Keeps the Hide events of a widget for itself.
class HideTaker : public QObject
{
public:
    explicit HideTaker(QWidget* widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override { return event->type() == QEvent::Hide; }
};

void fill(QComboBox& box)
{
    box.addItems({QStringLiteral("a"), QStringLiteral("an item with a rather long name that is wide"),
                  QStringLiteral("another")});
}

} // namespace

class tst_OvComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAComboBox()
    {
        OvComboBox box;
        QCOMPARE(box.metaObject()->className(), "OvComboBox");
        QCOMPARE(box.metaObject()->superClass(), &QComboBox::staticMetaObject);
        QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
        QCOMPARE(box.property("popupVisible"), QVariant(false));
    }

    void wheelNeedsFocus()
    {
        QWidget window;
        QLineEdit other(&window);
        OvComboBox box;
        box.setParent(&window);
        fill(box);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other.setFocus();
        QVERIFY(!turnWheel(box, -120));
        QCOMPARE(box.currentIndex(), 0);
        box.setFocus();
        QVERIFY(turnWheel(box, -120));
        QCOMPARE(box.currentIndex(), 1);
    }

    void popupIsWideEnough_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QPoint>("corner"); // of the window
        const QPoint there(0, 0);
        const QString sheet =
            QStringLiteral("QComboBox { combobox-popup: 0; border: 1px solid red; padding: 3px; }"
                           "QComboBox QAbstractItemView::item { padding: 0 20px; }");
        QTest::newRow("left to right") << Qt::LeftToRight << QString() << there;
        QTest::newRow("right to left") << Qt::RightToLeft << QString() << there;
        QTest::newRow("with sheet") << Qt::LeftToRight << sheet << there;
        QTest::newRow("with sheet, right to left") << Qt::RightToLeft << sheet << there;
        QTest::newRow("with sheet, on no screen") << Qt::LeftToRight << sheet << QPoint(3000, 100);
    }

    void popupIsWideEnough()
    {
        QFETCH(QPoint, corner);
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(QString, sheet);
        QWidget window;
        window.setGeometry(QRect(corner, QSize(700, 300)));
        OvComboBox box;
        box.setParent(&window);
        box.setStyleSheet(sheet);
        box.setLayoutDirection(direction);
        fill(box);
        box.setGeometry(550, 10, 60, box.sizeHint().height());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        box.showPopup();
        const QWidget* popup = box.view()->window();
        QVERIFY(popup->isVisible());
        QVERIFY(box.view()->viewport()->width() >= box.view()->sizeHintForColumn(0));
        QVERIFY(box.screen()->availableGeometry().contains(popup->geometry()));
        if (direction == Qt::RightToLeft) {
            QCOMPARE(popup->geometry().right(), box.mapToGlobal(box.rect().topRight()).x());
        }
        box.hidePopup();
        QVERIFY(!popup->isVisible());
    }

    void popupStaysOnTheScreen()
    {
        OvComboBox box;
        fill(box);
        box.addItem(QString(1000, QLatin1Char('w')));
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        box.setGeometry(screen.right() - 50, screen.bottom() - 30, 50, 25);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.showPopup();
        const QRect popup = box.view()->window()->geometry();
        QVERIFY(screen.contains(popup));
        QCOMPARE(popup.width(), screen.width());
        box.hidePopup();
    }

    void popupVisible()
    {
        OvComboBox box;
        fill(box);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.showPopup();
        QCOMPARE(box.property("popupVisible"), QVariant(true));
        box.hidePopup();
        QCOMPARE(box.property("popupVisible"), QVariant(false));
    }

    void popupVisibleWhenClosedFromOutside()
    {
        OvComboBox box;
        fill(box);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.showPopup();
        // As Qt closes pop-ups when the application is left: without a word to the box.
        box.view()->window()->close();
        QCOMPARE(box.property("popupVisible"), QVariant(false));
        box.showPopup();
        QCOMPARE(box.property("popupVisible"), QVariant(true));
        QTest::keyClick(box.view(), Qt::Key_Escape);
        QCOMPARE(box.property("popupVisible"), QVariant(false));
        // The box asks for it, and does not hear of it.
        box.showPopup();
        const HideTaker taker(box.view()->window());
        box.hidePopup();
        QCOMPARE(box.property("popupVisible"), QVariant(false));
    }

    void emptyBoxHasNoPopup()
    {
        OvComboBox box;
        box.show();
        box.showPopup();
        QCOMPARE(box.property("popupVisible"), QVariant(false));
        box.hidePopup();
        QCOMPARE(box.property("popupVisible"), QVariant(false));
    }

    void modelDiesBeforeThePopup()
    {
        OvComboBox box;
        box.setModel(new QStringListModel({QStringLiteral("a")}, &box));
        box.show();
        delete box.model();
        // QComboBox logs a warning where it makes a pop-up without a model.
        box.showPopup();
        box.hidePopup();
        QCOMPARE(box.property("popupVisible"), QVariant(false));
    }

    void modelDiesWhileThePopupOpens()
    {
        OvComboBox box;
        box.setModel(new QStringListModel({QStringLiteral("a")}, &box));
        box.show();
        connect(&box, QOverload<int>::of(&QComboBox::highlighted), &box, [&box] { delete box.model(); });
        box.showPopup();
        QCOMPARE(box.count(), 0);
        box.hidePopup();
        QCOMPARE(box.property("popupVisible"), QVariant(false));
    }

    void sheetSeesThePopup()
    {
        OvComboBox box;
        fill(box);
        box.setStyleSheet(QStringLiteral("OvComboBox { border: none; background: #00ff00; }"
                                         "OvComboBox[popupVisible=\"true\"] { background: #ff0000; }"));
        box.resize(120, 30);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        const QPoint corner(2, 2);
        QCOMPARE(box.grab().toImage().pixelColor(corner), QColor(0, 255, 0));
        box.showPopup();
        QCOMPARE(box.grab().toImage().pixelColor(corner), QColor(255, 0, 0));
        box.hidePopup();
        QCOMPARE(box.grab().toImage().pixelColor(corner), QColor(0, 255, 0));
    }

    void minimumIsAFewCharacters()
    {
        OvComboBox box;
        fill(box);
        QVERIFY(box.minimumSizeHint().width() < box.sizeHint().width() / 2);
        QCOMPARE(box.minimumSizeHint().height(), box.sizeHint().height());
        const int few = box.minimumSizeHint().width();
        box.setMinimumContentsLength(10);
        const int letter = box.fontMetrics().horizontalAdvance(QLatin1Char('X'));
        QCOMPARE(box.minimumSizeHint().width(), few + 6 * letter);
    }

    void minimumOfShortItems()
    {
        OvComboBox box;
        box.addItems({QStringLiteral("1"), QStringLiteral("2")});
        QVERIFY(box.minimumSizeHint().width() <= box.sizeHint().width());
    }

    void minimumWithAnIcon()
    {
        OvComboBox box;
        fill(box);
        const QSize before = box.minimumSizeHint();
        QPixmap icon(40, 40);
        icon.fill(Qt::red);
        box.setIconSize(icon.size());
        QCOMPARE(box.minimumSizeHint(), before);
        // Of any item, and as much as the box itself leaves for it.
        box.setItemIcon(1, icon);
        QCOMPARE(box.minimumSizeHint().width(), before.width() + 40 + 4);
        QCOMPARE(box.minimumSizeHint().height(), box.sizeHint().height());
        QVERIFY(box.minimumSizeHint().height() > 40);
    }

    void minimumFollowsTheFont()
    {
        Swallowing box;
        fill(box);
        const QSize before = box.minimumSizeHint();
        QFont font = box.font();
        font.setPixelSize(40);
        box.setFont(font);
        QVERIFY(box.minimumSizeHint().width() > before.width());
        QVERIFY(box.minimumSizeHint().height() > before.height());
    }

    void longTextIsElided_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("sheet");
        const QString sheet = QStringLiteral("QComboBox { border: 1px solid blue; padding: 2px 8px; }");
        QTest::newRow("plain") << Qt::LeftToRight << true << QString();
        QTest::newRow("right to left") << Qt::RightToLeft << true << QString();
        QTest::newRow("disabled") << Qt::LeftToRight << false << QString();
        QTest::newRow("with sheet") << Qt::LeftToRight << true << sheet;
        QTest::newRow("with sheet, right to left") << Qt::RightToLeft << true << sheet;
    }

    void longTextIsElided()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(bool, enabled);
        QFETCH(QString, sheet);
        OvComboBox box;
        box.setLayoutDirection(direction);
        box.setEnabled(enabled);
        box.setStyleSheet(sheet);
        fill(box);
        box.setCurrentIndex(1);
        box.resize(110, 28);
        box.ensurePolished();

        // Looks like a box whose item has the shortened text.
        OvComboBox shortened;
        shortened.setLayoutDirection(direction);
        shortened.setEnabled(enabled);
        shortened.setStyleSheet(sheet);
        shortened.resize(110, 28);
        shortened.ensurePolished();
        QStyleOptionComboBox option;
        option.initFrom(&box);
        option.subControls = QStyle::SC_All;
        const int room =
            box.style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
                .width() -
            2;
        const QString text = box.fontMetrics().elidedText(box.currentText(), Qt::ElideRight, room);
        QVERIFY(text.endsWith(QChar(0x2026)));
        shortened.addItem(text);
        QCOMPARE(box.grab().toImage(), shortened.grab().toImage());

        // And as QComboBox paints it when there is room.
        QComboBox plain;
        plain.setLayoutDirection(direction);
        plain.setEnabled(enabled);
        plain.setStyleSheet(sheet);
        fill(plain);
        plain.setCurrentIndex(1);
        plain.resize(600, 28);
        box.resize(600, 28);
        QCOMPARE(box.grab().toImage(), plain.grab().toImage());
    }

    void nothingIsElidedAtTheSizeHint_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("sheet");
        const QString sheet = QStringLiteral("QComboBox { border: 1px solid blue; padding: 2px 5px; }");
        for (const char* const text : {"Deutsch", "English", "Off", "AV", "i", "Full HD, 1920 x 1080",
                                       "دقة كاملة، 1920 × 1080، 25 إطارًا"}) {
            QTest::addRow("%s", text) << QString::fromUtf8(text) << QString();
            QTest::addRow("%s, with sheet", text) << QString::fromUtf8(text) << sheet;
        }
    }

    // A text advances by more than its ink is wide: measured by that it was shortened, in a box of its very
    // size, as soon as the sheet left no room to spare.
    void nothingIsElidedAtTheSizeHint()
    {
        QFETCH(QString, text);
        QFETCH(QString, sheet);
        QComboBox plain;
        OvComboBox box;
        for (QComboBox* const each : {&plain, static_cast<QComboBox*>(&box)}) {
            each->setStyleSheet(sheet);
            each->addItem(text);
            each->ensurePolished();
            each->resize(plain.sizeHint());
        }
        QCOMPARE(box.sizeHint(), plain.sizeHint());
        QCOMPARE(box.grab().toImage(), plain.grab().toImage());
    }

    void nothingIsCutOffFromRightToLeft_data() { nothingIsElidedAtTheSizeHint_data(); }

    // There a text begins at the right edge, and what it advances by is beyond the left one.
    void nothingIsCutOffFromRightToLeft()
    {
        QFETCH(QString, text);
        QFETCH(QString, sheet);
        const auto ink = [&](int moreRoom) {
            OvComboBox box;
            box.setLayoutDirection(Qt::RightToLeft);
            box.setStyleSheet(sheet);
            QFont font = box.font();
            font.setPixelSize(13);
            box.setFont(font);
            box.addItems({text, QString()});
            box.resize(box.sizeHint() + QSize(moreRoom, 0));
            const QImage with = box.grab().toImage();
            box.setCurrentIndex(1);
            const QImage without = box.grab().toImage();
            int pixels = 0;
            for (int y = 0; y < with.height(); ++y) {
                for (int x = 0; x < with.width(); ++x) {
                    pixels += with.pixel(x, y) != without.pixel(x, y);
                }
            }
            return pixels;
        };
        QVERIFY(ink(40) > 0);
        QCOMPARE(ink(0), ink(40));
    }

    void paintsAtAnySize()
    {
        OvComboBox box;
        fill(box);
        box.setCurrentIndex(1);
        for (int size = 0; size < 30; ++size) {
            box.resize(size, size);
            box.grab();
        }
        box.setPlaceholderText(QStringLiteral("choose"));
        box.setCurrentIndex(-1);
        box.resize(100, 30);
        const QImage withPlaceholder = box.grab().toImage();
        box.setPlaceholderText(QString());
        QVERIFY(box.grab().toImage() != withPlaceholder);
    }

    void extremeContentsLength()
    {
        OvComboBox box;
        box.addItem(QString(50, QLatin1Char('w')));
        box.setMinimumContentsLength(100);
        const QSize hint = box.minimumSizeHint();
        box.setMinimumContentsLength(std::numeric_limits<int>::max());
        QCOMPARE(box.minimumSizeHint(), hint);
    }

    void deletedWhileOpen()
    {
        auto* box = new OvComboBox;
        fill(*box);
        box->show();
        QVERIFY(QTest::qWaitForWindowExposed(box));
        box->showPopup();
        const QPointer<QWidget> popup(box->view()->window());
        QVERIFY(popup->isVisible());
        delete box;
        QVERIFY(popup.isNull());
    }
};

UIC_TEST_MAIN(tst_OvComboBox)
#include "tst_OvComboBox.moc"
