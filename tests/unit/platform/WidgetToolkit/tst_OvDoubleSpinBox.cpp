#include "AccessibleEars.h"
#include "DecimalNumber.h"
#include "TestMain.h"

#include <WidgetToolkit/OvDoubleSpinBox.h>

namespace {

QStringList texts;

QLineEdit* lineEdit(const QWidget& box)
{
    return box.findChild<QLineEdit*>();
}

QLocale english()
{
    return {QLocale::English, QLocale::UnitedStates};
}
QLocale german()
{
    return {QLocale::German, QLocale::Germany};
}
QLocale french()
{
    return {QLocale::French, QLocale::France};
}
QLocale swiss()
{
    return {QLocale::German, QLocale::Switzerland};
}
QLocale arabic()
{
    return {QLocale::Arabic, QLocale::Egypt};
}

} // namespace

class tst_OvDoubleSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepsAreAnnouncedOnce_data()
    {
        QTest::addColumn<double>("before");
        QTest::addColumn<QStringList>("heard");
        QTest::newRow("exact") << 0.25 << QStringList{QStringLiteral("Gain: 0.26")};
        // Added up in binary, this is 0.060000000000000005.
        QTest::newRow("rounded") << 0.05 << QStringList{QStringLiteral("Gain: 0.06")};
        QTest::newRow("at the end") << 1.0 << QStringList();
    }

    void stepsAreAnnouncedOnce()
    {
        QFETCH(double, before);
        OvDoubleSpinBox box;
        box.setRange(0.0, 1.0);
        box.setSingleStep(0.01);
        box.setAccessibleName(QStringLiteral("Gain"));
        box.setValue(before);
        const AccessibleEars ears;
        QTest::keyClick(&box, Qt::Key_Up);
        QTEST(AccessibleEars::take().filter(QStringLiteral("Gain: ")), "heard");
        box.setValue(before);
        // The text is part of what is read, and would be read each time that it is written.
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (event->type() == QAccessible::TextUpdated) {
                texts += event->accessibleInterface()->text(QAccessible::Value);
            }
        });
        texts.clear();
        QTest::keyClick(&box, Qt::Key_Up);
        QVERIFY2(texts.size() <= 1, qPrintable(texts.join(QLatin1Char(' '))));
    }

    void metaObject()
    {
        OvDoubleSpinBox box;
        const QMetaObject* meta = box.metaObject();
        QCOMPARE(meta->className(), "OvDoubleSpinBox");
        QCOMPARE(meta->superClass(), &QDoubleSpinBox::staticMetaObject);
        QVERIFY(!box.bothDecimalMarksAccepted());
        QVERIFY(box.setProperty("bothDecimalMarksAccepted", true));
        QVERIFY(box.bothDecimalMarksAccepted());
        QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
    }

    void decimalsAreAnnounced()
    {
        OvDoubleSpinBox box;
        box.setValue(0.56);
        QSignalSpy spy(&box, &OvDoubleSpinBox::decimalsChanged);
        box.setDecimals(2);
        QCOMPARE(spy.count(), 0);
        connect(&box, &OvDoubleSpinBox::decimalsChanged, this, [&box] { QCOMPARE(box.value(), 0.6); });
        box.setDecimals(1);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0), QVariantList{1});
        box.disconnect(this);
        QVERIFY(box.setProperty("decimals", 3));
        QCOMPARE(spy.count(), 2);
        box.setDecimals(-4);
        QCOMPARE(spy.last(), QVariantList{0});
    }

    void decimalMarks_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("committed");
        QTest::newRow("English, dot")
            << english() << QStringLiteral("1.25") << 1.25 << QStringLiteral("1.25");
        QTest::newRow("English, comma")
            << english() << QStringLiteral("1,25") << 1.25 << QStringLiteral("1.25");
        QTest::newRow("German, dot") << german() << QStringLiteral("1.25") << 1.25 << QStringLiteral("1,25");
        QTest::newRow("German, comma")
            << german() << QStringLiteral("1,25") << 1.25 << QStringLiteral("1,25");
        QTest::newRow("French, dot") << french() << QStringLiteral("1.25") << 1.25 << QStringLiteral("1,25");
        QTest::newRow("Swiss, comma") << swiss() << QStringLiteral("1,25") << 1.25 << QStringLiteral("1.25");
        QTest::newRow("English, comma and three digits")
            << english() << QStringLiteral("1,234") << 1.23 << QStringLiteral("1.23");
        QTest::newRow("German, dot and three digits")
            << german() << QStringLiteral("1.234") << 1.23 << QStringLiteral("1,23");
        QTest::newRow("leading mark") << english() << QStringLiteral(",5") << 0.5 << QStringLiteral("0.50");
        QTest::newRow("trailing mark") << english() << QStringLiteral("5,") << 5.0 << QStringLiteral("5.00");
        QTest::newRow("negative") << english() << QStringLiteral("-0,5") << -0.5 << QStringLiteral("-0.50");
        QTest::newRow("two marks") << english() << QStringLiteral("1.2,5") << 1.25 << QStringLiteral("1.25");
    }

    void decimalMarks()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, typed);
        QFETCH(double, value);
        QFETCH(QString, committed);
        OvDoubleSpinBox box;
        box.setLocale(locale);
        box.setRange(-10000.0, 10000.0);
        box.setBothDecimalMarksAccepted(true);
        box.selectAll();
        QTest::keyClicks(&box, typed);
        QCOMPARE(box.value(), value);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), value);
        QCOMPARE(box.text(), committed);
    }

    void oneMarkWithoutTheOption()
    {
        OvDoubleSpinBox box;
        box.setLocale(german());
        box.selectAll();
        QTest::keyClicks(&box, QStringLiteral("1.5"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), 15.0);
    }

    void textIsNotRewrittenBeforeCommit_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("typed");
        QTest::newRow("English, comma") << english() << QStringLiteral("0,5");
        QTest::newRow("German, dot") << german() << QStringLiteral("0.5");
        QTest::newRow("Arabic, dot") << arabic() << QStringLiteral("0.5");
    }

    void textIsNotRewrittenBeforeCommit()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, typed);
        OvDoubleSpinBox box;
        box.setLocale(locale);
        box.setBothDecimalMarksAccepted(true);
        box.selectAll();
        for (int i = 0; i < typed.size(); ++i) {
            QTest::keyClicks(&box, typed.mid(i, 1));
            QCOMPARE(box.text(), typed.left(i + 1));
            QCOMPARE(lineEdit(box)->cursorPosition(), i + 1);
        }
        QCOMPARE(box.value(), 0.5);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.text(), locale.toString(0.5, 'f', 2));
    }

    void markTypedOntoAMark()
    {
        OvDoubleSpinBox box;
        box.setLocale(german());
        box.setBothDecimalMarksAccepted(true);
        lineEdit(box)->setText(QStringLiteral("1.5"));
        lineEdit(box)->setCursorPosition(1);
        QTest::keyClicks(&box, QStringLiteral(","));
        QCOMPARE(box.text().size(), 3);
        QCOMPARE(box.value(), 1.5);
        QCOMPARE(lineEdit(box)->cursorPosition(), 2);
    }

    void pasted_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::newRow("foreign mark") << english() << QStringLiteral("3,75") << 3.75;
        QTest::newRow("own mark") << german() << QStringLiteral("3,75") << 3.75;
        QTest::newRow("blanks around") << english() << QStringLiteral(" 3,75 ") << 3.75;
        QTest::newRow("thousands and fraction refused") << english() << QStringLiteral("1,234.5") << 7.0;
        QTest::newRow("thousands twice refused") << english() << QStringLiteral("1,234,567") << 7.0;
        QTest::newRow("too many digits refused") << english() << QStringLiteral("1,2345") << 7.0;
        QTest::newRow("three digits behind a mark are digits")
            << german() << QStringLiteral("1.234") << 1.234;
        QTest::newRow("words refused") << english() << QStringLiteral("one") << 7.0;
    }

    void pasted()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, text);
        QFETCH(double, value);
        OvDoubleSpinBox box;
        box.setLocale(locale);
        box.setDecimals(3);
        box.setRange(0.0, 1e7);
        box.setBothDecimalMarksAccepted(true);
        box.setValue(7.0);
        box.selectAll();
        QGuiApplication::clipboard()->setText(text);
        lineEdit(box)->paste();
        box.interpretText();
        QCOMPARE(box.value(), value);
    }

    void unfinishedTextIsNotMisread()
    {
        // Not yet in the range, so the base tries again without group separators: that made 15 of it.
        OvDoubleSpinBox box;
        box.setLocale(english());
        box.setRange(2.0, 100.0);
        box.setValue(40.0);
        box.setBothDecimalMarksAccepted(true);
        box.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
        box.selectAll();
        QTest::keyClicks(&box, QStringLiteral("1,5"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), 2.0);
    }

    void groupSeparators()
    {
        OvDoubleSpinBox box;
        box.setLocale(english());
        box.setRange(0.0, 1e6);
        box.setGroupSeparatorShown(true);
        box.setValue(12345.5);
        QCOMPARE(box.text(), QStringLiteral("12,345.50"));
        box.setBothDecimalMarksAccepted(true);
        QCOMPARE(box.text(), QStringLiteral("12345.50"));
        QCOMPARE(box.value(), 12345.5);
        box.setBothDecimalMarksAccepted(false);
        QCOMPARE(box.text(), QStringLiteral("12,345.50"));

        // A separator that is neither of the two marks is no cause of doubt.
        box.setLocale(swiss());
        box.setBothDecimalMarksAccepted(true);
        box.setValue(12345.5);
        QVERIFY(box.text().contains(swiss().groupSeparator()));
        box.interpretText();
        QCOMPARE(box.value(), 12345.5);
    }

    void specialTextPrefixAndSuffixAreLeftAlone()
    {
        OvDoubleSpinBox box;
        box.setLocale(german());
        box.setBothDecimalMarksAccepted(true);
        box.setPrefix(QStringLiteral("ca. "));
        box.setSuffix(QStringLiteral(" qm."));
        box.setSpecialValueText(QStringLiteral("auto, v. 2"));
        QCOMPARE(box.text(), QStringLiteral("auto, v. 2"));
        box.interpretText();
        QCOMPARE(box.text(), QStringLiteral("auto, v. 2"));
        box.setValue(2.0);
        box.selectAll();
        QTest::keyClicks(&box, QStringLiteral("3.5"));
        QCOMPARE(box.text(), QStringLiteral("ca. 3.5 qm."));
        QCOMPARE(box.value(), 3.5);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.text(), QStringLiteral("ca. 3,50 qm."));
    }

    void negativeZeroBeginsANumber_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<bool>("bothMarks");
        QTest::addColumn<QString>("text");
        QTest::newRow("point") << english() << false << "-0.05";
        QTest::newRow("comma") << german() << false << "-0,05";
        QTest::newRow("either, point") << english() << true << "-0.05";
        QTest::newRow("either, comma") << english() << true << "-0,05";
        QTest::newRow("more zeros") << english() << false << "-00.05";
        QTest::newRow("prefix and suffix") << french() << true << "-0,05";
    }

    void negativeZeroBeginsANumber()
    {
        QFETCH(QLocale, locale);
        QFETCH(bool, bothMarks);
        QFETCH(QString, text);
        OvDoubleSpinBox box;
        box.setLocale(locale);
        box.setBothDecimalMarksAccepted(bothMarks);
        box.setRange(-2.0, -0.01);
        if (qstrcmp(QTest::currentDataTag(), "prefix and suffix") == 0) {
            box.setPrefix(QStringLiteral("x "));
            box.setSuffix(QStringLiteral(" m"));
        }
        box.setValue(-1.0);
        box.show();
        box.selectAll();
        QTest::keyClicks(&box, text);
        QCOMPARE(box.cleanText(), text);
        QCOMPARE(box.value(), -0.05);
    }

    void negativeZeroIsRefused_data()
    {
        QTest::addColumn<double>("maximum");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("left");
        QTest::newRow("more zeros than decimals") << -0.01 << "-0.000"
                                                  << "-0.00";
        QTest::newRow("positive") << -0.01 << "0.5"
                                  << ".";
        QTest::newRow("two marks") << -0.01 << "-0..0"
                                   << "-0.0";
        QTest::newRow("two signs") << -0.01 << "--0"
                                   << "-0";
    }

    void negativeZeroIsRefused()
    {
        QFETCH(double, maximum);
        QFETCH(QString, text);
        QFETCH(QString, left);
        OvDoubleSpinBox box;
        box.setLocale(english());
        box.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
        box.setRange(-2.0, maximum);
        box.setValue(-1.0);
        box.show();
        box.selectAll();
        QTest::keyClicks(&box, text);
        QCOMPARE(lineEdit(box)->text(), left);
        QCOMPARE(box.value(), -1.0);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), maximum);
    }

    void stepsAreExact_data()
    {
        QTest::addColumn<int>("decimals");
        for (int decimals = 0; decimals <= 9; ++decimals) {
            QTest::addRow("%d", decimals) << decimals;
        }
    }

    void stepsAreExact()
    {
        QFETCH(int, decimals);
        OvDoubleSpinBox box;
        box.setDecimals(decimals);
        box.setSingleStep(decimalNumber(1, decimals));
        box.setRange(-1000.0, 1000.0);
        QSignalSpy values(&box, qOverload<double>(&QDoubleSpinBox::valueChanged));
        for (int i = 1; i <= 300; ++i) {
            box.stepUp();
            QCOMPARE(values.size(), 1);
            QVERIFY(values.takeFirst().front().toDouble() == decimalNumber(i, decimals));
            QVERIFY(box.value() == decimalNumber(i, decimals));
        }
        for (int i = 299; i >= -300; --i) {
            box.stepDown();
            QVERIFY(box.value() == decimalNumber(i, decimals));
        }
    }

    void stepsAsTheBaseDoes_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("steps");
        QTest::addColumn<bool>("wrapping");
        QTest::addColumn<bool>("adaptive");
        QTest::newRow("up") << 5.0 << 1 << false << false;
        QTest::newRow("far down") << 5.0 << -7 << false << false;
        QTest::newRow("nowhere") << 5.0 << 0 << false << false;
        QTest::newRow("at the end") << 99.0 << 1 << false << false;
        QTest::newRow("into the end") << 98.5 << 10 << false << false;
        QTest::newRow("wrapping") << 99.0 << 1 << true << false;
        QTest::newRow("nearly wrapping") << 98.5 << 1 << true << false;
        QTest::newRow("adaptive") << 5.0 << 1 << false << true;
        QTest::newRow("adaptive, far") << 50.0 << -10 << false << true;
    }

    void stepsAsTheBaseDoes()
    {
        QFETCH(double, value);
        QFETCH(int, steps);
        QFETCH(bool, wrapping);
        QFETCH(bool, adaptive);
        OvDoubleSpinBox ours;
        QDoubleSpinBox base;
        QStringList reports;
        QStringList expected;
        const auto prepare = [&](QDoubleSpinBox& box, QStringList* log) {
            box.setMaximum(99.0);
            box.setValue(value);
            box.setWrapping(wrapping);
            box.setStepType(adaptive ? QAbstractSpinBox::AdaptiveDecimalStepType
                                     : QAbstractSpinBox::DefaultStepType);
            box.show();
            connect(&box, &QDoubleSpinBox::textChanged, this, [log](const QString& text) { *log += text; });
            connect(&box, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                    [log](double number) { *log += QString::number(number); });
            box.stepBy(steps);
        };
        prepare(ours, &reports);
        prepare(base, &expected);
        QCOMPARE(ours.value(), base.value());
        QCOMPARE(ours.text(), base.text());
        QCOMPARE(lineEdit(ours)->selectedText(), lineEdit(base)->selectedText());
        QCOMPARE(reports, expected);
    }

    void stepOfTextThatIsNotReportedYet()
    {
        OvDoubleSpinBox box;
        box.setKeyboardTracking(false);
        QSignalSpy values(&box, qOverload<double>(&QDoubleSpinBox::valueChanged));
        box.selectAll();
        QTest::keyClicks(&box, QStringLiteral("5"));
        QCOMPARE(values.size(), 0);
        box.stepUp();
        QCOMPARE(values.size(), 1);
        QCOMPARE(values.front().front().toDouble(), 6.0);
    }

    void deletedByAListenerOfAStep()
    {
        const QPointer<OvDoubleSpinBox> box(new OvDoubleSpinBox);
        connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                [target = box.data()] { delete target; });
        box->stepBy(1);
        QVERIFY(box.isNull());
    }
};

UIC_TEST_MAIN(tst_OvDoubleSpinBox)
#include "tst_OvDoubleSpinBox.moc"
