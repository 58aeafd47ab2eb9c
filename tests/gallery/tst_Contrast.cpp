#include "Legibility.h"
#include "Settle.h"
#include "TestMain.h"

#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>
#include <gallery/PageRegistry.h>
#include <gallery/StyleController.h>

/**
 * What everybody can see, from the pictures of all pages in all reference styles: texts, borders, marks, the
 * focus, and whether what is clicked is large enough.
 */
class tst_Contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GalleryApplication::prepare();
        QApplication::setCursorFlashTime(0);
        QFont font = QApplication::font();
        font.setPixelSize(13);
        QApplication::setFont(font);
    }

    void cleanup() { qApp->setStyleSheet(QString()); }

    void everyPage_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("style");
        const QVector<PageInfo> pages = PageRegistry::pages();
        const QStringList styles = StyleController::builtInStyles();
        for (const QString& style : styles) {
            for (const PageInfo& page : pages) {
                if (style != QLatin1String("none")) {
                    QTest::addRow("%s, %s", qPrintable(page.id), qPrintable(style)) << page.id << style;
                }
            }
        }
    }

    void everyPage()
    {
        QFETCH(QString, page);
        QFETCH(QString, style);
        CommandLine start;
        start.page = page;
        start.style = style;
        MainWindow window(start);
        window.resize(1100, 1500);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.page()->prepareForPicture();
        settle();
        QStringList all;
        const auto others = QApplication::topLevelWidgets();
        for (QWidget* other : others) {
            if (other->isVisible() && (other == &window || window.isAncestorOf(other->parentWidget()))) {
                all += Legibility::failures(other);
            }
        }
        all += Legibility::focusFailures(&window);
        QVERIFY2(all.isEmpty(), qPrintable(QLatin1Char('\n') + all.join(QLatin1Char('\n'))));
    }
};

UIC_TEST_MAIN(tst_Contrast)
#include "tst_Contrast.moc"
