#include "TestMain.h"

#include <DesignElements/TesselLineEdit.h>

#include <gallery/AppliedRules.h>
#include <memory>

class tst_AppliedRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QGroupBox>();
        m_window->setObjectName("box");
        auto* frame = new QFrame(m_window.get());
        frame->setObjectName("frame");
        auto* button = new QPushButton(frame);
        button->setObjectName("button");
        button->setCheckable(true);
        button->setProperty("styleHint", "error dark");
        auto* edit = new Orvane::Tessel::TesselLineEdit(frame);
        edit->setObjectName("edit");
    }

    void cleanup() { qApp->setStyleSheet(QString()); }

    void matches_data()
    {
        QTest::addColumn<QString>("selector");
        QTest::addColumn<bool>("applies");
        QTest::newRow("any") << "*" << true;
        QTest::newRow("type") << "QPushButton" << true;
        QTest::newRow("base class") << "QAbstractButton" << true;
        QTest::newRow("another type") << "QToolButton" << false;
        QTest::newRow("class alone") << ".QPushButton" << true;
        QTest::newRow("base class alone") << ".QAbstractButton" << false;
        QTest::newRow("name") << "#button" << true;
        QTest::newRow("another name") << "#frame" << false;
        QTest::newRow("type and name") << "QPushButton#button" << true;
        QTest::newRow("attribute") << "[styleHint]" << true;
        QTest::newRow("no such attribute") << "[none]" << false;
        QTest::newRow("value") << "[styleHint=\"error dark\"]" << true;
        QTest::newRow("another value") << "[styleHint=\"error\"]" << false;
        QTest::newRow("one of the words") << "[styleHint~=\"dark\"]" << true;
        QTest::newRow("begins with") << "[styleHint^=\"err\"]" << true;
        QTest::newRow("contains") << "[styleHint*=\"or d\"]" << true;
        QTest::newRow("property of Qt's") << "[checkable=\"true\"]" << true;
        QTest::newRow("enumeration") << "[layoutDirection=\"0\"]" << true;
        QTest::newRow("child") << "QFrame > QPushButton" << true;
        QTest::newRow("no child") << "QGroupBox > QPushButton" << false;
        QTest::newRow("descendant") << "QGroupBox QPushButton" << true;
        QTest::newRow("no descendant") << "QDialog QPushButton" << false;
        QTest::newRow("chain") << "QGroupBox#box > #frame QPushButton" << true;
        QTest::newRow("state") << "QPushButton:hover" << true;
        QTest::newRow("part") << "QPushButton::menu-indicator:open" << true;
    }

    // What Qt's own style does with the rule is the measure.
    void matches()
    {
        QFETCH(QString, selector);
        QFETCH(bool, applies);
        const QVector<AppliedRule> rules = applied(selector + " { color: red; }");
        QCOMPARE(rules.size(), applies ? 1 : 0);
        if (applies) {
            QCOMPARE(rules.first().selector, selector);
        }
        if (!selector.contains(":")) {
            // A property that a rule sets shows whether Qt applies it.
            qApp->setStyleSheet(selector + " { qproperty-accessibleName: applied; }");
            button()->ensurePolished();
            QCOMPARE(button()->accessibleName() == "applied", applies);
        }
    }

    void order_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("expected");
        QTest::newRow("position") << "QPushButton { } QWidget { }"
                                  << "QWidget 1, QPushButton 1";
        QTest::newRow("types") << "QFrame QPushButton { } QWidget { }"
                               << "QFrame QPushButton 2, QWidget 1";
        QTest::newRow("attribute over types") << "[checkable] { } QGroupBox QFrame QPushButton { }"
                                              << "[checkable] 16, QGroupBox QFrame QPushButton 3";
        QTest::newRow("state as an attribute") << ":hover { } [checkable] { }"
                                               << "[checkable] 16, :hover 16";
        QTest::newRow("name over attributes") << "#button { } [checkable][styleHint]:hover { }"
                                              << "#button 256, [checkable][styleHint]:hover 48";
        QTest::newRow("selectors of one rule") << "QPushButton, #button, QLabel { }"
                                               << "#button 256";
        QTest::newRow("a selector for a state") << "QPushButton, #button:hover { }"
                                                << "#button:hover 272, QPushButton 1";
    }

    void order()
    {
        QFETCH(QString, sheet);
        QStringList rules;
        const auto applying = applied(sheet);
        for (const AppliedRule& rule : applying) {
            rules.append(QString("%1 %2").arg(rule.selector).arg(rule.specificity));
        }
        QTEST(rules.join(", "), "expected");
    }

    // For Qt, 256 rules weigh as much as one type in a selector.
    void farBehind_data()
    {
        QTest::addColumn<int>("between");
        QTest::addColumn<QString>("first");
        QTest::newRow("254 rules between") << 254 << "near";
        QTest::newRow("255 rules between") << 255 << "far";
        QTest::newRow("256 rules between") << 256 << "far";
    }

    void farBehind()
    {
        QFETCH(int, between);
        const QString sheet = "QFrame QPushButton { qproperty-accessibleName: near; }" +
                              QString("QDial { }").repeated(between) +
                              "QPushButton { qproperty-accessibleName: far; }";
        QTEST(applied(sheet).constFirst().declarations.constFirst().value, "first");
        qApp->setStyleSheet(sheet);
        button()->ensurePolished();
        QTEST(button()->accessibleName(), "first");
    }

    void namespaces()
    {
        const SheetText sheet("Orvane--Tessel--TesselLineEdit { color: red; }");
        QCOMPARE(appliedRules(m_window->findChild<QWidget*>("edit"), sheet).size(), 1);
    }

    void lines()
    {
        const QVector<AppliedRule> rules =
            applied("QFrame { }\n\nQWidget {\n color: red;\n}\n.QPushButton\n{ }");
        QCOMPARE(rules.size(), 2);
        QCOMPARE(rules.at(0).line, 6);
        QCOMPARE(rules.at(1).line, 3);
        QCOMPARE(rules.at(1).declarations.first().line, 4);
    }

    void ownSheetsAreStronger()
    {
        button()->setStyleSheet("margin: 3px");
        m_window->setStyleSheet("QPushButton { margin: 4px; }");
        const QVector<AppliedRule> rules = applied("#button { margin: 5px; }");
        QCOMPARE(rules.size(), 3);
        QCOMPARE(rules.at(0).owner, button());
        QCOMPARE(rules.at(0).selector, QString("*"));
        QCOMPARE(rules.at(1).owner, m_window.get());
        QCOMPARE(rules.at(2).owner, nullptr);
        QVERIFY(!rules.at(0).declarations.first().isOverridden);
        QVERIFY(rules.at(1).declarations.first().isOverridden);
        QVERIFY(rules.at(2).declarations.first().isOverridden);
    }

    void states_data()
    {
        QTest::addColumn<QString>("selector");
        QTest::addColumn<bool>("holds");
        QTest::newRow("none") << "QPushButton" << true;
        QTest::newRow("enabled") << "QPushButton:enabled" << true;
        QTest::newRow("disabled") << "QPushButton:disabled" << false;
        QTest::newRow("not disabled") << "QPushButton:!disabled" << true;
        QTest::newRow("checked") << "QPushButton:checked" << true;
        QTest::newRow("unchecked") << "QPushButton:unchecked" << false;
        QTest::newRow("hover") << "QPushButton:hover" << false;
        QTest::newRow("two") << "QPushButton:checked:hover" << false;
        QTest::newRow("part") << "QPushButton::menu-indicator" << true;
        QTest::newRow("state of a part") << "QPushButton::menu-indicator:hover" << true;
        QTest::newRow("state that a part shares") << "QPushButton::menu-indicator:disabled" << false;
    }

    void states()
    {
        QFETCH(QString, selector);
        button()->setChecked(true);
        QTEST(applied(selector + " { }").constFirst().holdsNow, "holds");
    }

    void overridden_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("valid");
        QTest::newRow("later") << "QPushButton { color: a; } QPushButton { color: b; }"
                               << "b";
        QTest::newRow("in one rule") << "QPushButton { color: a; color: b; }"
                                     << "b";
        QTest::newRow("another property") << "QPushButton { color: a; } QPushButton { margin: b; }"
                                          << "b a";
        QTest::newRow("only in a state") << "QPushButton { color: a; } QPushButton:hover { color: b; }"
                                         << "b a";
        QTest::newRow("in a state too") << "QPushButton:hover { color: a; } #button { color: b; }"
                                        << "b";
        QTest::newRow("of a part") << "QPushButton { color: a; } #button::menu-indicator { color: b; }"
                                   << "b a";
        QTest::newRow("shorthand") << "QPushButton { margin-left: a; border-color: b; border-radius: c; }"
                                      "#button { margin: d; border: e; }"
                                   << "d e c";
        QTest::newRow("a part of a shorthand") << "QPushButton { margin: a; } #button { margin-left: b; }"
                                               << "b a";
    }

    void overridden()
    {
        QFETCH(QString, sheet);
        QStringList valid;
        const auto rules = applied(sheet);
        for (const AppliedRule& rule : rules) {
            for (const AppliedRule::Declaration& declaration : rule.declarations) {
                if (!declaration.isOverridden) {
                    valid.append(declaration.value);
                }
            }
        }
        QTEST(valid.join(" "), "valid");
    }

private:
    QPushButton* button() const { return m_window->findChild<QPushButton*>("button"); }

    QVector<AppliedRule> applied(const QString& sheet) const
    {
        return appliedRules(button(), SheetText(sheet));
    }

    std::unique_ptr<QGroupBox> m_window;
};

UIC_TEST_MAIN(tst_AppliedRules)
#include "tst_AppliedRules.moc"
