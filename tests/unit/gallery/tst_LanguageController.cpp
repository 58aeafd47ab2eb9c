#include "TestMain.h"

#include <gallery/GalleryApplication.h>
#include <gallery/LanguageController.h>
#include <gallery/PageRegistry.h>

class tst_LanguageController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void init() { QLocale::setDefault(QLocale("en")); }

    void startsWithTheSourceTexts()
    {
        const LanguageController controller;
        QCOMPARE(controller.language(), QStringLiteral("en"));
        QCOMPARE(PageRegistry::groupTitle(PageGroup::Colour), QStringLiteral("Colour"));
    }

    void everyLanguageHasAName()
    {
        QStringList names;
        const QStringList codes = LanguageController::languages();
        for (const QString& code : codes) {
            names.append(LanguageController::nativeName(code));
        }
        QCOMPARE(names,
                 (QStringList{"العربية", "Deutsch", "English", "Español", "Français", "日本語", "简体中文"}));
    }

    void theGallerysTexts_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("title");
        QTest::newRow("Arabic") << "ar"
                                << "اللون";
        QTest::newRow("German") << "de"
                                << "Farbe";
        QTest::newRow("Spanish") << "es"
                                 << "Color";
        QTest::newRow("French") << "fr"
                                << "Couleur";
        QTest::newRow("Japanese") << "ja"
                                  << "色";
        QTest::newRow("Chinese") << "zh_CN"
                                 << "颜色";
    }

    void theGallerysTexts()
    {
        QFETCH(QString, code);
        LanguageController controller;
        QSignalSpy changed(&controller, &LanguageController::languageChanged);
        controller.setLanguage(code);
        QCOMPARE(controller.language(), code);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), code);
        QTEST(PageRegistry::groupTitle(PageGroup::Colour), "title");
        QCOMPARE(QLocale().language(), QLocale(code).language());
        QCOMPARE(QGuiApplication::layoutDirection(), QLocale().textDirection());
    }

    void thereAndBack()
    {
        LanguageController controller;
        controller.setLanguage("de");
        QSignalSpy changed(&controller, &LanguageController::languageChanged);
        controller.setLanguage("de");
        QCOMPARE(changed.count(), 0);
        controller.setLanguage("en");
        QCOMPARE(changed.count(), 1);
        QCOMPARE(PageRegistry::groupTitle(PageGroup::Colour), QStringLiteral("Colour"));
    }

    void unknownLanguage()
    {
        LanguageController controller;
        QSignalSpy changed(&controller, &LanguageController::languageChanged);
        controller.setLanguage("xx");
        controller.setLanguage(QString());
        QCOMPARE(controller.language(), QStringLiteral("en"));
        QCOMPARE(changed.count(), 0);
    }

    void goesWithTheController()
    {
        {
            LanguageController controller;
            controller.setLanguage("de");
        }
        QCOMPARE(PageRegistry::groupTitle(PageGroup::Colour), QStringLiteral("Colour"));
    }
};

UIC_TEST_MAIN(tst_LanguageController)
#include "tst_LanguageController.moc"
