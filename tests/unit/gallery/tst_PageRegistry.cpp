#include "TestMain.h"

#include <gallery/GalleryApplication.h>
#include <gallery/MessageWatch.h>
#include <gallery/Page.h>
#include <gallery/PageRegistry.h>
#include <gallery/StyleController.h>

namespace {

bool hasSeveralColors(const QImage& image)
{
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != first) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

class tst_PageRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void cleanup() { qApp->setStyleSheet(QString()); }

    void idsAreUniqueAndStable()
    {
        QSet<QString> ids;
        static const QRegularExpression kebab("^[a-z][a-z0-9]*(-[a-z0-9]+)*$");
        const QVector<PageInfo> pages = PageRegistry::pages();
        QVERIFY(!pages.isEmpty());
        for (const PageInfo& page : pages) {
            QVERIFY2(kebab.match(page.id).hasMatch(), qPrintable(page.id));
            QVERIFY2(!ids.contains(page.id), qPrintable(page.id));
            ids.insert(page.id);
            QVERIFY2(!page.title.isEmpty(), qPrintable(page.id));
            QVERIFY2(!page.covers.isEmpty(), qPrintable(page.id));
            QVERIFY2(page.fill, qPrintable(page.id));
        }
    }

    void groupsAreInOrderAndNamed()
    {
        PageGroup last = PageGroup::Colour;
        const QVector<PageInfo> pages = PageRegistry::pages();
        for (const PageInfo& page : pages) {
            QVERIFY2(page.group >= last, qPrintable(page.id));
            QVERIFY(!PageRegistry::groupTitle(page.group).isEmpty());
            last = page.group;
        }
    }

    void find()
    {
        QCOMPARE(PageRegistry::find("frame")->id, QStringLiteral("frame"));
        QVERIFY(!PageRegistry::find("fram"));
        QVERIFY(!PageRegistry::find(QString()));
    }

    void matches_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<bool>("isMatch");
        QTest::newRow("empty") << "" << true;
        QTest::newRow("blanks") << "  " << true;
        QTest::newRow("title") << "layout controller" << true;
        QTest::newRow("words in any order") << "controller frame" << true;
        QTest::newRow("class") << "OvFrame" << true;
        QTest::newRow("class, other case") << "ovfr" << true;
        QTest::newRow("keyword") << "spacing" << true;
        QTest::newRow("id") << "frame" << true;
        QTest::newRow("one word of two") << "frame zebra" << false;
        QTest::newRow("nothing like it") << "zebra" << false;
    }

    void matches()
    {
        QFETCH(QString, filter);
        QTEST(PageRegistry::matches(*PageRegistry::find("frame"), filter), "isMatch");
    }

    void everyPage_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("style");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        const QVector<PageInfo> pages = PageRegistry::pages();
        for (const PageInfo& page : pages) {
            const QStringList styles = StyleController::builtInStyles();
            for (const QString& style : styles) {
                QTest::newRow(qPrintable(page.id + "-" + style)) << page.id << style << Qt::LeftToRight;
            }
            QTest::newRow(qPrintable(page.id + "-dark-rtl")) << page.id << "dark" << Qt::RightToLeft;
        }
    }

    void everyPage()
    {
        QFETCH(QString, id);
        QFETCH(QString, style);
        QFETCH(Qt::LayoutDirection, direction);
        MessageWatch messages;
        StyleController controller;
        QVERIFY(controller.setStyle(style));
        QApplication::setLayoutDirection(direction);
        {
            QWidget window;
            auto* page = new Page(*PageRegistry::find(id), &window);
            page->resize(840, 680);
            window.resize(840, 680);
            window.setAttribute(Qt::WA_DontShowOnScreen);
            window.show();
            page->prepareForPicture();
            const QImage image = page->grab().toImage();
            QVERIFY(hasSeveralColors(image));
            // A page may be left at any moment.
            QCoreApplication::processEvents();
        }
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(messages.takeWarnings(), QStringList());
    }
};

UIC_TEST_MAIN(tst_PageRegistry)
#include "tst_PageRegistry.moc"
