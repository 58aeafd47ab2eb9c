#include "TestMain.h"

#include <gallery/CommandLine.h>

Q_DECLARE_METATYPE(CommandLine::Action)

namespace {

CommandLine parse(const QStringList& arguments)
{
    return CommandLine::parse(QStringList("gallery") + arguments);
}

} // namespace

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const CommandLine line = parse({});
        QCOMPARE(line.error, QString());
        QCOMPARE(line.action, CommandLine::Action::Show);
        QCOMPARE(line.page, QString());
        QCOMPARE(line.style, QStringLiteral("dark"));
        QCOMPARE(line.language, QStringLiteral("en"));
        QCOMPARE(line.direction, Qt::LeftToRight);
    }

    void everyValue()
    {
        const CommandLine line =
            parse({"--page", "frame", "--style=light", "--language", "de", "--direction", "rtl"});
        QCOMPARE(line.error, QString());
        QCOMPARE(line.page, QStringLiteral("frame"));
        QCOMPARE(line.style, QStringLiteral("light"));
        QCOMPARE(line.language, QStringLiteral("de"));
        QCOMPARE(line.direction, Qt::RightToLeft);
    }

    void action_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<CommandLine::Action>("action");
        QTest::newRow("show") << QStringList() << CommandLine::Action::Show;
        QTest::newRow("tour") << QStringList{"--tour", "out"} << CommandLine::Action::Tour;
        QTest::newRow("list") << QStringList{"--list"} << CommandLine::Action::List;
        QTest::newRow("styling manual")
            << QStringList{"--styling-manual"} << CommandLine::Action::StylingManual;
        QTest::newRow("code") << QStringList{"--code"} << CommandLine::Action::Code;
        QTest::newRow("help") << QStringList{"--help"} << CommandLine::Action::Help;
        QTest::newRow("help, short") << QStringList{"-h"} << CommandLine::Action::Help;
    }

    void action()
    {
        QFETCH(QStringList, arguments);
        QFETCH(CommandLine::Action, action);
        const CommandLine line = parse(arguments);
        QCOMPARE(line.error, QString());
        QCOMPARE(line.action, action);
        QCOMPARE(line.tourFolder, action == CommandLine::Action::Tour ? QStringLiteral("out") : QString());
    }

    void error_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("named");
        QTest::newRow("unknown option") << QStringList{"--colour"} << "colour";
        QTest::newRow("unknown page") << QStringList{"--page", "no-such"} << "no-such";
        QTest::newRow("page without id") << QStringList{"--page"} << "page";
        QTest::newRow("unknown style") << QStringList{"--style", "pink"} << "pink";
        QTest::newRow("style file that is not there")
            << QStringList{"--style", "no/such.qss"} << "no/such.qss";
        QTest::newRow("style that is a folder") << QStringList{"--style", "."} << "\".\"";
        QTest::newRow("unknown language") << QStringList{"--language", "xx"} << "xx";
        QTest::newRow("unknown direction") << QStringList{"--direction", "up"} << "up";
        QTest::newRow("tour without folder") << QStringList{"--tour"} << "tour";
        QTest::newRow("tour with an empty folder") << QStringList{"--tour", ""} << "tour";
        QTest::newRow("stray word") << QStringList{"frame"} << "frame";
    }

    void error()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, named);
        const QString error = parse(arguments).error;
        QVERIFY2(error.contains(named), qPrintable(error));
    }

    void anyStyleFileThatIsThere()
    {
        QTemporaryFile sheet;
        QVERIFY(sheet.open());
        const CommandLine line = parse({"--style", sheet.fileName()});
        QCOMPARE(line.error, QString());
        QCOMPARE(line.style, sheet.fileName());
    }

    void argumentsLeadBack()
    {
        const CommandLine line =
            parse({"--page", "layouts", "--style", "none", "--language", "ja", "--direction", "rtl"});
        const CommandLine again = parse(line.arguments());
        QCOMPARE(again.error, QString());
        QCOMPARE(again.page, line.page);
        QCOMPARE(again.style, line.style);
        QCOMPARE(again.language, line.language);
        QCOMPARE(again.direction, line.direction);
    }
};

UIC_TEST_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
