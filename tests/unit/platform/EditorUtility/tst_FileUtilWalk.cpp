#include "TestMain.h"

#include <EditorUtility/FileUtilWalk.h>

Q_DECLARE_METATYPE(FileUtilWalk::Form)

using FileUtilWalk::Form;

class tst_FileUtilWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void forms_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<Form>("expected");

        const auto names = [](int length) { // of 255 characters, with slashes between
            QString path = QStringLiteral("/") + QString(length - 1, QLatin1Char('x'));
            for (int slash = 0; slash < length; slash += 256) {
                path[slash] = QLatin1Char('/');
            }
            return path;
        };
        const QString twoByteLetter(QChar(0xe4));
        QTest::newRow("null") << QString() << Form::Empty;
        QTest::newRow("empty") << QString(QLatin1String("")) << Form::Empty;
        QTest::newRow("root") << QStringLiteral("/") << Form::Good;
        QTest::newRow("relative") << QStringLiteral("a/b") << Form::Good;
        QTest::newRow("blank") << QStringLiteral(" ") << Form::Good;
        QTest::newRow("new lines") << QStringLiteral("/a\nb\n") << Form::Good;
        QTest::newRow("markup") << QStringLiteral("/<b>&amp;</b>") << Form::Good;
        QTest::newRow("other scripts") << QString::fromUtf8("/Größe/色/😀") << Form::Good;
        QTest::newRow("decomposed") << QString::fromUtf8("/a\xCC\x88") << Form::Good;
        QTest::newRow("replacement character") << QString(QChar(QChar::ReplacementCharacter)) << Form::Good;
        QTest::newRow("resource") << QStringLiteral(":/icons") << Form::Resource;
        QTest::newRow("colon in front") << QStringLiteral(":x") << Form::Resource;
        QTest::newRow("colon inside") << QStringLiteral("./:x") << Form::Good;
        QTest::newRow("NUL") << QString(QChar(QChar::Null)) << Form::NotStorable;
        QTest::newRow("NUL at the end") << QStringLiteral("/a") + QChar(QChar::Null) << Form::NotStorable;
        QTest::newRow("half a surrogate pair") << QStringLiteral("/a") + QChar(0xd800) << Form::NotStorable;
        QTest::newRow("name of max length") << QString(255, QLatin1Char('x')) << Form::Good;
        QTest::newRow("name too long") << QString(256, QLatin1Char('x')) << Form::NameTooLong;
        QTest::newRow("name inside too long")
            << QStringLiteral("/a/") + QString(256, QLatin1Char('x')) + QStringLiteral("/b")
            << Form::NameTooLong;
        QTest::newRow("name of max length in bytes") << twoByteLetter.repeated(127) << Form::Good;
        QTest::newRow("name too long in bytes") << twoByteLetter.repeated(128) << Form::NameTooLong;
        QTest::newRow("path of max length") << names(4095) << Form::Good;
        QTest::newRow("path too long") << names(4096) << Form::PathTooLong;
        QTest::newRow("path too long in bytes")
            << (QStringLiteral("/") + twoByteLetter.repeated(127)).repeated(17) << Form::PathTooLong;
    }

    void forms()
    {
        QFETCH(QString, path);
        QTEST(FileUtilWalk::form(path), "expected");
    }

    void walks_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("closest");
        QTest::addColumn<bool>("blocked");

        const auto row = [](const char* path, const char* closest, bool blocked = false) {
            QTest::newRow(path) << QString::fromLatin1(path) << QString::fromLatin1(closest) << blocked;
        };
        row("/", "/");
        row("//", "/");
        row("/..", "/");
        row("/../..", "/");
        row("/no such folder", "/");
        row("/no such folder/..", "/");
        row("/no such/folder/../../..", "/");
        row("/dev/null", "/dev", true);
        row("/dev/null/", "/dev", true);
        row("/dev/null/x", "/dev", true);
        row("/dev/null/..", "/dev", true);
        row("/dev/null/../..", "/", true);
        row(".", ".");
        row("./", ".");
        row("..", "..");
        row("../..", "../..");
        row("./..//.", "..");
        row("no such folder", ".");
        row("no such folder/..", ".");
        row("no such folder/../..", "..");
        row("./:x", ".");
    }

    void walks()
    {
        QFETCH(QString, path);
        const FileUtilWalk::Result result = FileUtilWalk::walk(path);
        QTEST(result.closest, "closest");
        QTEST(result.isBlocked, "blocked");
    }
};

UIC_TEST_MAIN(tst_FileUtilWalk)
#include "tst_FileUtilWalk.moc"
