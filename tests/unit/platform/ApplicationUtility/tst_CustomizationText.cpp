#include "TestMain.h"

#include <ApplicationUtility/CustomizationText.h>

class tst_CustomizationText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languages_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("expected");

        for (const char* bold : {"C", "en_US", "de_DE", "pl_PL", "vi_VN", "tr_TR", "ru_RU", "uk_UA", "el_GR",
                                 "hy_AM", "ka_GE", "he_IL", "sr_Latn_RS", "zxx_nowhere"}) {
            QTest::newRow(bold) << QString::fromLatin1(bold) << true;
        }
        for (const char* regular : {"ja_JP", "zh_CN", "zh_TW", "zh_HK", "ko_KR", "ar_EG", "fa_IR",
                                    "ur_PK", "th_TH", "lo_LA", "km_KH", "my_MM", "hi_IN", "bn_BD",
                                    "ta_IN", "te_IN", "ml_IN", "pa_IN", "si_LK", "bo_CN", "am_ET"}) {
            QTest::newRow(regular) << QString::fromLatin1(regular) << false;
        }
    }

    void languages()
    {
        QFETCH(QString, language);
        QTEST(CustomizationText::suits(QLocale(language).script()), "expected");
    }

    void titles_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("expected");

        const auto row = [](const char* title, bool expected) {
            QTest::newRow(title) << QString::fromUtf8(title) << expected;
        };
        row("", true);
        row("Chroma key", true);
        row("Größe, naïve, Łódź", true);
        row("Цветовой ключ", true);
        row("Χρώμα", true);
        row("Գույն", true);
        row("ფერი", true);
        row("צבע", true);
        row("1,280 × 720 @ 60 % … “!”", true);
        row("😀 🎬", true);
        row("e\xCC\x81", true); // a combining accent
        row("色", false);
        row("キー", false);
        row("ひらがな", false);
        row("한국어", false);
        row("اللون", false);
        row("สี", false);
        row("रंग", false);
        row("நிறம்", false);
        row("Chroma key 色", false);
        row("𠀀", false); // outside the basic plane
        QTest::newRow("private use") << QString(QChar(0xe000)) << true;
        QTest::newRow("half a surrogate pair") << QString(QChar(0xd800)) << true;
        QTest::newRow("NUL") << QString(QChar(QChar::Null)) << true;
    }

    void titles()
    {
        QFETCH(QString, title);
        QTEST(CustomizationText::suits(title), "expected");
    }

    void labels_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("shown"); // null: as the title
        QTest::addColumn<Qt::LayoutDirection>("direction");

        const auto row = [](const char* name, const QString& title, const QString& shown = QString(),
                            Qt::LayoutDirection direction = Qt::LeftToRight) {
            QTest::newRow(name) << title << (shown.isNull() ? title : shown) << direction;
        };
        row("word", QStringLiteral("Title"));
        row("markup", QStringLiteral("<b>bold</b> & <i>&amp; &lt; \"quoted\" 'x'"));
        row("only a tag", QStringLiteral("<br>"));
        row("closes our own", QStringLiteral("</b></span><img src=\":/x\">"));
        row("comment", QStringLiteral("<!-- x -->"));
        row("xml", QStringLiteral("<?xml version=\"1.0\"?>"));
        row("doctype", QStringLiteral("<!DOCTYPE html>"));
        row("argument mark", QStringLiteral("100 %1 %2"));
        row("runs of blanks", QStringLiteral("a  b   c"));
        row("blanks at both ends", QStringLiteral("  a  "));
        row("only blanks", QStringLiteral("   "));
        row("tab", QStringLiteral("a\tb"));
        row("line break", QStringLiteral("a\nb"));
        row("line breaks", QStringLiteral("\n\na\n\nb\n"));
        row("only a line break", QStringLiteral("\n"));
        row("line break of another system", QStringLiteral("a\r\nb\rc"), QStringLiteral("a\nb\nc"));
        row("separators of Unicode", QStringLiteral("a\u2028b\u2029c"), QStringLiteral("a\nb\nc"));
        row("marks of Qt", QStringLiteral("a\uFDD0b\uFDD1c"), QStringLiteral("a\uFFFDb\uFFFDc"));
        row("Hebrew", QString::fromUtf8("צבע"), {}, Qt::RightToLeft);
        row("Arabic", QString::fromUtf8("لون RGB"), {}, Qt::RightToLeft);
        row("Latin with Hebrew", QString::fromUtf8("RGB צבע"));
        row("digits before Hebrew", QString::fromUtf8("3 צבע"), {}, Qt::RightToLeft);
        row("Hebrew on two lines", QString::fromUtf8("צבע\nRGB"), {}, Qt::RightToLeft);
        row("emoji", QString::fromUtf8("😀"));
    }

    void labels()
    {
        QFETCH(QString, title);
        for (const bool bold : {true, false}) {
            const QString text = CustomizationText::label(title, bold);
            QVERIFY(Qt::mightBeRichText(text));
            QTextDocument document;
            document.setHtml(text);
            QTEST(document.toPlainText(), "shown");
            QCOMPARE(document.blockCount(), 1);
            QTEST(document.firstBlock().textDirection(), "direction");
            for (auto it = document.firstBlock().begin(); !it.atEnd(); ++it) {
                QCOMPARE(it.fragment().charFormat().font().bold(), bold);
            }
            QVERIFY(CustomizationText::label(QString(), bold).isEmpty());
        }
    }
};

UIC_TEST_MAIN(tst_CustomizationText)
#include "tst_CustomizationText.moc"
