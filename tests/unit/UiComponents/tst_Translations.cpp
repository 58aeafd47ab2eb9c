#include "MarkingTranslator.h"
#include "TestMain.h"

#include <QtUtility/FormatFileSize.h>
#include <UiComponents/Translations.h>

#include <QLabel>

namespace {

QString translated(const char* context, const char* text)
{
    return QCoreApplication::translate(context, text);
}

/// A catalogue of one text, "Annuler" for "Cancel" of QPlatformTheme.
const QByteArray cancelInFrench = QByteArray::fromBase64(
    "PLhkGMrvnJXNIRy/YKG93acAAAACZnJCAAAACASYSbwAAAAAaQAAADcDAAAADgBBAG4AbgB1AGwAZQByCAAAAAAGAAAA"
    "BkNhbmNlbAcAAAAOUVBsYXRmb3JtVGhlbWUBiAAAAAIDAQ==");

/// A host's folder, which has the German texts as those of another language.
class HostFolder
{
public:
    bool add(const QString& name) const
    {
        return QFile::copy(":/uicomponents/translations/uicomponents_de.qm", m_folder.filePath(name));
    }
    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Before any call.
    void initTestCase() { QCOMPARE(translated("blendingModes", "SourceOver"), QString("SourceOver")); }

    void languages()
    {
        QCOMPARE(Translations::languages(), (QStringList{"ar", "de", "en", "es", "fr", "ja", "zh_CN"}));
    }

    void load_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<bool>("isFound");
        QTest::addColumn<QString>("sourceOver");
        QTest::addColumn<QString>("required");
        const auto row = [](const char* name, bool isFound, const char* sourceOver, const char* required) {
            QTest::newRow(name) << QLocale(name) << isFound << QString(sourceOver) << QString(required);
        };
        row("en", true, "Normal", "Required: %1");
        row("en_US", true, "Normal", "Required: %1");
        row("de", true, "Normal", "Benötigt: %1");
        row("de_AT", true, "Normal", "Benötigt: %1");
        row("fr_CA", true, "Normal", "Requis\u00a0: %1");
        row("es_MX", true, "Normal", "Necesario: %1");
        row("ja", true, "通常", "必要: %1");
        row("zh_CN", true, "正常", "需要：%1");
        row("ar_EG", true, "عادي", "المطلوب: %1");
        // They do not read that script, or that language.
        row("zh_TW", false, "Normal", "Required: %1");
        row("ru", false, "Normal", "Required: %1");
        row("C", false, "Normal", "Required: %1");
    }

    void load()
    {
        QFETCH(QLocale, locale);
        QVERIFY(Translations::load(QLocale("de")));
        QTEST(Translations::load(locale), "isFound");
        QTEST(translated("blendingModes", "SourceOver"), "sourceOver");
        QTEST(translated("PathSelectionWidget", "Required: %1"), "required");
    }

    // Those of the platform libraries too.
    void platform()
    {
        QVERIFY(Translations::load(QLocale("fr")));
        QVERIFY(Orvane::Util::FormatFileSize(5).endsWith(" o"));
        QVERIFY(Translations::load(QLocale("en")));
        QVERIFY(Orvane::Util::FormatFileSize(5).endsWith(" B"));
    }

    void widgetsAreToldOnce()
    {
        QVERIFY(Translations::load(QLocale("en")));
        struct Counter : QLabel
        {
            void changeEvent(QEvent* event) override { changes += event->type() == QEvent::LanguageChange; }
            int changes = 0;
        } label;
        QCoreApplication::processEvents();
        label.changes = 0;
        QVERIFY(Translations::load(QLocale("ar")));
        QCOMPARE(label.changes, 0);
        QCoreApplication::processEvents();
        QCOMPARE(label.changes, 1);
    }

    void folderOfTheHost()
    {
        const HostFolder folder;
        QVERIFY(folder.add("uicomponents_it.qm") && folder.add("uicomponents_fr.qm"));
        QCOMPARE(Translations::languages(folder.path()),
                 (QStringList{"ar", "de", "en", "es", "fr", "it", "ja", "zh_CN"}));

        const char* const source = "Required: %1";
        for (const char* code : {"it", "fr"}) {
            QVERIFY(Translations::load(QLocale(code), folder.path()));
            QCOMPARE(translated("PathSelectionWidget", source), QString("Benötigt: %1"));
        }
        QVERIFY(Translations::load(QLocale("fr")));
        QCOMPARE(translated("PathSelectionWidget", source), QString("Requis\u00a0: %1"));
        QVERIFY(!Translations::load(QLocale("it")));
        QCOMPARE(translated("PathSelectionWidget", source), QString(source));
        QVERIFY(Translations::load(QLocale("es"), "/no/such/folder"));
        QCOMPARE(translated("PathSelectionWidget", source), QString("Necesario: %1"));
    }

    // The folder has another language of the user's, but not the first.
    void languagesOfTheUserInTheirOrder()
    {
        const HostFolder folder;
        QVERIFY(folder.add("uicomponents_fr.qm"));
        const QByteArray before = qgetenv("LANGUAGE");
        const auto restore = qScopeGuard([&before] { qputenv("LANGUAGE", before); });
        qputenv("LANGUAGE", "ja:fr");
        QVERIFY(QLocale::system().uiLanguages().constFirst().startsWith("ja"));
        QVERIFY(Translations::load(QLocale::system(), folder.path()));
        const QString japanese = translated("PathSelectionWidget", "Choose a folder");
        QVERIFY(Translations::load(QLocale("ja")));
        QCOMPARE(japanese, translated("PathSelectionWidget", "Choose a folder"));
        QVERIFY(japanese != QString("Ordner wählen"));
    }

    void direction()
    {
        QVERIFY(Translations::load(QLocale("ar")));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        QVERIFY(Translations::load(QLocale("fr")));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
        // The host's own choice stays.
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    // A folder is never the current one.
    void currentFolderIsNotRead()
    {
        const HostFolder folder;
        QVERIFY(folder.add("uicomponents_it.qm"));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        const bool isFound = Translations::load(QLocale("it"));
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(!isFound);
    }

    // It goes with the language of the components, and with their next one.
    void textsOfQt()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("qtbase_fr.qm"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(cancelInFrench) > 0);
        file.close();
        QVERIFY(Translations::load(QLocale("fr_CH"), folder.path()));
        QCOMPARE(translated("QPlatformTheme", "Cancel"), QString("Annuler"));
        QCOMPARE(translated("PathSelectionWidget", "Required: %1"), QString("Requis\u00a0: %1"));
        QVERIFY(Translations::load(QLocale("ja"), folder.path()));
        QVERIFY(translated("QPlatformTheme", "Cancel") != QString("Annuler"));
    }

    void wordsOfTheHostStay()
    {
        QVERIFY(Translations::load(QLocale("en")));
        {
            const MarkingTranslator host("SearchWidget");
            QVERIFY(Translations::load(QLocale("de")));
            QCOMPARE(translated("SearchWidget", "Clear the search"), QString("<Clear the search>"));
            QCOMPARE(translated("PathSelectionWidget", "Choose a folder"), QString("Ordner wählen"));
        }
        QCOMPARE(translated("SearchWidget", "Clear the search"), QString("Suche leeren"));
    }
};

UIC_TEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
