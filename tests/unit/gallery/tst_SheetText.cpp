#include "TestMain.h"

#include <gallery/SheetText.h>

class tst_SheetText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rules()
    {
        const SheetText sheet(
            "/* first\n line */\nQLabel,\n#a > .B:hover::handle[c=\"d\"] {\n"
            "    color: rgb(1, 2, 3);\n\n    qproperty-text: \"a: b;\"; ; border : 1px\n  solid red\n}\n"
            "@media print { QFrame { color: red; } }\nQFrame {}\n");
        QCOMPARE(sheet.errorLine(), 0);
        QCOMPARE(sheet.error(), QString());
        QCOMPARE(sheet.rules().size(), 2);
        const SheetText::Rule first = sheet.rules().constFirst();
        QCOMPARE(first.line, 3);
        QStringList declarations;
        for (const SheetText::Declaration& declaration : first.declarations) {
            declarations.append(
                QString("%1 %2: %3").arg(declaration.line).arg(declaration.property, declaration.value));
        }
        QCOMPARE(declarations, (QStringList{"5 color: rgb(1, 2, 3)", "7 qproperty-text: \"a: b;\"",
                                            "7 border: 1px solid red"}));
        QCOMPARE(sheet.rules().constLast().line, 11);
        QVERIFY(sheet.rules().constLast().declarations.isEmpty());
    }

    // What Qt passes over is in the sheet, and the rules behind it are where they are.
    void rulesAfterAnError()
    {
        const SheetText sheet("QLabel { a; color: red; x: 3 }\nQFrame { b: }\n QDial { margin: 3px }");
        QCOMPARE(sheet.errorLine(), 1);
        QCOMPARE(sheet.rules().size(), 3);
        QCOMPARE(sheet.rules().constFirst().declarations.size(), 2);
        QCOMPARE(sheet.rules().constLast().line, 3);
    }

    void errors_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("error");
        QTest::newRow("empty") << "" << 0 << "";
        QTest::newRow("blanks") << "\n  \n" << 0 << "";
        QTest::newRow("a comment") << "/* { */\n" << 0 << "";
        QTest::newRow("no last semicolon") << "QLabel { color: red }" << 0 << "";
        QTest::newRow("a hint of the style") << "QTableView { gridline-color: red; }" << 0 << "";
        QTest::newRow("an icon") << "* { dialog-ok-icon: url(a); }" << 0 << "";
        QTest::newRow("a property of a class not in use") << "QDial { qproperty-none: 3; }" << 0 << "";
        QTest::newRow("a property of another class by its name")
            << "#none { qproperty-none: 3; } QLabel#none { qproperty-none: 3; }" << 0 << "";
        QTest::newRow("at-rule") << "@import \"a\";\nQLabel {}" << 0 << "";
        QTest::newRow("no colon") << "QLabel {\n  color red;\n}" << 2 << "error near “red”";
        QTest::newRow("no value") << "QLabel {\n\n  color: ;\n}" << 3 << "error near “;”";
        QTest::newRow("no semicolon") << "QLabel {\n  color: red\n  margin: 3px;\n}" << 3 << "error near “:”";
        QTest::newRow("no brace") << "QLabel\n  color: red;\n}" << 2 << "error near “red”";
        QTest::newRow("no end") << "QLabel {\n  color: red;\n" << 2 << "the rule has no end";
        QTest::newRow("selector alone") << "QFrame {}\nQLabel" << 2 << "the rule has no end";
        QTest::newRow("no end before another")
            << "QLabel {\n  color: red;\nQFrame {\n}" << 3 << "error near “{”";
        QTest::newRow("one end too many") << "QLabel {}\n}\nQFrame {}" << 2 << "error near “}”";
        QTest::newRow("no selector") << "QLabel {}\n{ color: red; }" << 2 << "error near “{”";
        QTest::newRow("comma without a selector") << "QLabel,\n{ color: red; }" << 2 << "error near “{”";
        QTest::newRow("attribute") << "QLabel[a=\n{ color: red; }" << 2 << "error near “{”";
        QTest::newRow("state") << "QFrame {}\nQLabel: { color: red; }" << 2 << "error near “color”";
        QTest::newRow("comment without an end") << "QLabel {}\n/* QFrame {}" << 2 << "error near “}”";
        QTest::newRow("text without an end")
            << "QLabel {\n  qproperty-text: \"a;\n}" << 2 << "error near “\"a;”";
        QTest::newRow("property of one of two classes") << "QLabel, QDial {\n  qproperty-wrapping: true;\n}"
                                                        << 2 << "there is no property “qproperty-wrapping”";
        QTest::newRow("two errors, the other way round")
            << "QLabel {\n  b;\n  a: 1;\n}" << 2 << "error near “;”";
        QTest::newRow("colour") << "QLabel {\n  border: 1px solid #12;\n}" << 2 << "error near “#12”";
        QTest::newRow("two errors") << "QLabel {\n  a: 1;\n  b\n}\n}" << 2 << "there is no property “a”";
        QTest::newRow("property") << "QLabel {\n  color: red;\n  colour: red;\n}" << 3
                                  << "there is no property “colour”";
        QTest::newRow("property of the class")
            << "QLabel {\n  qproperty-texts: \"a\";\n}" << 2 << "there is no property “qproperty-texts”";
        QTest::newRow("escape before") << "#a\\62 c { }\n\nQLabel { x }" << 3 << "error near “}”";
        QTest::newRow("lines of a file from elsewhere") << "QLabel {\r\n}\r\nx\r\n"
                                                        << 3 << "the rule has no end";
    }

    void errors()
    {
        QFETCH(QString, text);
        const QLabel inUse;
        const SheetText sheet(text);
        QTEST(sheet.error(), "error");
        QTEST(sheet.errorLine(), "line");
    }
};

UIC_TEST_MAIN(tst_SheetText)
#include "tst_SheetText.moc"
