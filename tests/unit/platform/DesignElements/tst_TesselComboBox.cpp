#include "TestMain.h"

#include <DesignElements/TesselComboBox.h>
#include <WidgetToolkit/OvComboBox.h>

using Orvane::Tessel::convertComboBoxToTessel;

namespace {

void addItems(QComboBox& box)
{
    box.addItem(QStringLiteral("one"), 1);
    box.addItem(QStringLiteral("two"), 2);
    box.addItem(QStringLiteral("three"), 3);
}

/// The colours of the rows of the list, from top to bottom, each taken at its right edge.
QList<QColor> rowColors(OvComboBox& box)
{
    box.showPopup();
    QAbstractItemView* const view = box.view();
    const QImage image = view->viewport()->grab().toImage();
    QList<QColor> colors;
    for (int row = 0; row < box.count(); ++row) {
        const QRect rect = view->visualRect(box.model()->index(row, 0));
        colors += image.pixelColor(qMin(rect.right(), image.width() - 1) - 2, rect.center().y());
    }
    box.hidePopup();
    return colors;
}

} // namespace

class tst_TesselComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsTheProperty()
    {
        OvComboBox box;
        convertComboBoxToTessel(&box);
        QCOMPARE(box.property("tessel"), QVariant(true));
    }

    void sheetSelectsTheBox()
    {
        OvComboBox box;
        box.setStyleSheet(QStringLiteral("OvComboBox[tessel=\"true\"] { color: red; }"));
        box.ensurePolished();
        convertComboBoxToTessel(&box);
        QCOMPARE(box.palette().color(QPalette::Text), QColor(Qt::red));
    }

    void namesTheView()
    {
        OvComboBox box;
        convertComboBoxToTessel(&box);
        QCOMPARE(box.view()->objectName(), QStringLiteral("tesselComboBoxView"));
    }

    void keepsTheNameOfTheView()
    {
        OvComboBox box;
        box.view()->setObjectName(QStringLiteral("mine"));
        convertComboBoxToTessel(&box);
        QCOMPARE(box.view()->objectName(), QStringLiteral("mine"));
    }

    void itemRulesWork()
    {
        const QString sheet =
            QStringLiteral("QAbstractItemView::item { background: #102030; min-height: 31px; }"
                           " QAbstractItemView::item:selected { background: #405060; }");
        // A box that was not converted shows why the delegate is needed.
        OvComboBox plain;
        OvComboBox box;
        for (OvComboBox* each : {&plain, &box}) {
            addItems(*each);
            each->setStyleSheet(sheet);
            each->show();
        }
        convertComboBoxToTessel(&box);
        QVERIFY(!rowColors(plain).contains(QColor(0x10, 0x20, 0x30)));
        const QList<QColor> colors = rowColors(box);
        QCOMPARE(colors.mid(1), (QList<QColor>{QColor(0x10, 0x20, 0x30), QColor(0x10, 0x20, 0x30)}));
        // A selected row is painted in two layers and may round otherwise.
        QVERIFY(qAbs(colors.first().red() - 0x40) < 3 && qAbs(colors.first().blue() - 0x60) < 3);
        QCOMPARE(box.view()->sizeHintForRow(0), 31);
    }

    void itemRulesAlsoWorkAfterASheetChange()
    {
        OvComboBox box;
        addItems(box);
        box.show();
        convertComboBoxToTessel(&box);
        box.setStyleSheet(QStringLiteral("QAbstractItemView::item { background: #102030; }"));
        QCOMPARE(rowColors(box).constLast(), QColor(0x10, 0x20, 0x30));
        box.setStyleSheet(QStringLiteral("#tesselComboBoxView::item { background: #203040; }"));
        QCOMPARE(rowColors(box).constLast(), QColor(0x20, 0x30, 0x40));
    }

    void itemsAndIndexStay()
    {
        OvComboBox box;
        addItems(box);
        box.setCurrentIndex(2);
        QSignalSpy changes(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
        convertComboBoxToTessel(&box);
        QCOMPARE(changes.count(), 0);
        QCOMPARE(box.count(), 3);
        QCOMPARE(box.currentIndex(), 2);
        QCOMPARE(box.currentData().toInt(), 3);
    }

    void idempotent()
    {
        OvComboBox box;
        addItems(box);
        convertComboBoxToTessel(&box);
        const QPointer<QAbstractItemDelegate> delegate = box.itemDelegate();
        const QPointer<QAbstractItemView> view = box.view();
        convertComboBoxToTessel(&box);
        QVERIFY(delegate);
        QCOMPARE(box.itemDelegate(), delegate.data());
        QCOMPARE(box.view(), view.data());
        QCOMPARE(box.view()->objectName(), QStringLiteral("tesselComboBoxView"));
    }

    void keepsTheHostsDelegate()
    {
        OvComboBox box;
        auto* own = new QStyledItemDelegate(&box);
        box.setItemDelegate(own);
        convertComboBoxToTessel(&box);
        QCOMPARE(box.itemDelegate(), own);
    }

    void convertsAReplacedView()
    {
        OvComboBox box;
        addItems(box);
        convertComboBoxToTessel(&box);
        box.setView(new QListView);
        QVERIFY(box.view()->objectName().isEmpty());
        convertComboBoxToTessel(&box);
        QCOMPARE(box.view()->objectName(), QStringLiteral("tesselComboBoxView"));
        QVERIFY(qobject_cast<QStyledItemDelegate*>(box.itemDelegate()));
    }

    void separatorsStayNarrow()
    {
        OvComboBox box;
        addItems(box);
        box.insertSeparator(1);
        box.show();
        convertComboBoxToTessel(&box);
        QVERIFY(box.view()->sizeHintForRow(1) < box.view()->sizeHintForRow(0));
        box.showPopup();
        const QImage image = box.view()->viewport()->grab().toImage();
        const QRect row = box.view()->visualRect(box.model()->index(1, 0));
        QVERIFY(image.pixelColor(row.center()) != image.pixelColor(row.center().x(), row.top()));
        box.hidePopup();
    }

    void nullDoesNothing() { convertComboBoxToTessel(nullptr); }

    void delegateDiesWithTheBox()
    {
        auto box = std::make_unique<OvComboBox>();
        convertComboBoxToTessel(box.get());
        const QPointer<QAbstractItemDelegate> delegate = box->itemDelegate();
        box.reset();
        QVERIFY(!delegate);
    }
};

UIC_TEST_MAIN(tst_TesselComboBox)
#include "tst_TesselComboBox.moc"
