#include "TestMain.h"

#include <ApplicationUtility/Customization.h>

namespace {

bool isBold(const QString& labelText)
{
    QTextDocument document;
    document.setHtml(labelText);
    return document.firstBlock().begin().fragment().charFormat().font().bold();
}

} // namespace

class tst_Customization : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void boldByLanguageAndTitle_data()
    {
        QTest::addColumn<QLocale>("language");
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("bold");

        const QString latin = QStringLiteral("Chroma key");
        const QString kana = QString::fromUtf8("クロマキー");
        QTest::newRow("English") << QLocale(QLocale::English) << latin << true;
        QTest::newRow("no language") << QLocale::c() << latin << true;
        QTest::newRow("Russian") << QLocale(QLocale::Russian) << QString::fromUtf8("Цвет") << true;
        QTest::newRow("Japanese") << QLocale(QLocale::Japanese) << kana << false;
        QTest::newRow("not translated to Japanese") << QLocale(QLocale::Japanese) << latin << false;
        QTest::newRow("Japanese in English") << QLocale(QLocale::English) << kana << false;
        QTest::newRow("number in Korean") << QLocale(QLocale::Korean) << QStringLiteral("2") << false;
        QTest::newRow("number in English") << QLocale(QLocale::English) << QStringLiteral("2") << true;
    }

    void boldByLanguageAndTitle()
    {
        QFETCH(QLocale, language);
        QFETCH(QString, title);
        QLocale::setDefault(language);
        QTEST(isBold(Customization::localeDependedBoldText(title)), "bold");
    }

    void followsAChangeOfLanguage()
    {
        const QString title = QStringLiteral("Title");
        QLocale::setDefault(QLocale(QLocale::Chinese));
        QVERIFY(!isBold(Customization::localeDependedBoldText(title)));
        QLocale::setDefault(QLocale(QLocale::French));
        QVERIFY(isBold(Customization::localeDependedBoldText(title)));
    }

    void emptyTitle()
    {
        QCOMPARE(Customization::localeDependedBoldText(QString()), QString());
        QCOMPARE(Customization::localeDependedBoldText(QLatin1String("")), QString());
    }

    void aLabelShowsMarkupAsText()
    {
        // As wide as the characters in bold, and not as the word that they would be as markup.
        QLabel label(Customization::localeDependedBoldText(QStringLiteral("<i>word</i>")));
        QLabel plain(QStringLiteral("<i>word</i>"));
        plain.setTextFormat(Qt::PlainText);
        QFont bold = plain.font();
        bold.setBold(true);
        plain.setFont(bold);
        QVERIFY(qAbs(label.sizeHint().width() - plain.sizeHint().width()) <= 2);
    }

    void aLabelWrapsTheTitle()
    {
        QLabel label(Customization::localeDependedBoldText(QStringLiteral("several words of a long title")));
        const int oneLine = label.sizeHint().height();
        const int width = label.sizeHint().width();
        label.setWordWrap(true);
        QVERIFY(label.heightForWidth(width / 2) > oneLine);
        QVERIFY(label.heightForWidth(width * 2) <= oneLine + 1);
    }
};

UIC_TEST_MAIN(tst_Customization)
#include "tst_Customization.moc"
