#include "TestMain.h"

#include <UiComponents/SheetlessBuild.h>

namespace {

const char* const sheet =
    "QWidget { color: #d8dadf; background: #202226; font-size: 12px; }"
    "QToolButton { background: #33373e; border: 1px solid #43474f; border-radius: 4px; }"
    "QToolButton:checked { border: 2px solid white; }"
    "QFrame#panel QToolButton[late=\"true\"] { min-width: 60px; }"
    "QLineEdit, QSpinBox { padding: 5px; border: 1px solid red; }"
    "QSlider::groove:horizontal { height: 4px; background: #17191c; }"
    "QSlider::handle:horizontal { width: 12px; margin: -4px 0; background: white; }";

/// One of each kind, with names, properties and sheets that come after construction.
void fill(QWidget* window)
{
    auto* panel = new QFrame(window);
    auto* grid = new QGridLayout(panel);
    (new QGridLayout(window))->addWidget(panel);
    panel->setObjectName(QStringLiteral("panel"));
    for (int i = 0; i < 6; ++i) {
        auto* button = new QToolButton(panel);
        button->setCheckable(true);
        button->setChecked(i == 2);
        button->setEnabled(i != 4);
        button->setProperty("late", i == 3);
        button->setStyleSheet(QStringLiteral("background-color: #0000%1;").arg(99 - 10 * i));
        grid->addWidget(button, i / 3, i % 3);
    }
    grid->addWidget(new QLineEdit(QStringLiteral("text"), panel), 2, 0);
    grid->addWidget(new QSpinBox(panel), 2, 1);
    grid->addWidget(new QSlider(Qt::Horizontal, panel), 2, 2);
    grid->addWidget(new QCheckBox(QStringLiteral("check"), panel), 3, 0);
    grid->addWidget(new QComboBox(panel), 3, 1);
    grid->addWidget(new QLabel(QStringLiteral("label"), panel), 3, 2);
}

QImage pictureOf(QWidget* window)
{
    return window->grab().toImage();
}

} // namespace

class tst_SheetlessBuild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qApp->setStyleSheet(QString()); }

    void runsOnce_data()
    {
        QTest::addColumn<QString>("applicationSheet");
        QTest::newRow("without a sheet") << QString();
        QTest::newRow("with a sheet") << QString::fromLatin1(sheet);
    }

    void runsOnce()
    {
        QFETCH(QString, applicationSheet);
        qApp->setStyleSheet(applicationSheet);
        int runs = 0;
        SheetlessBuild::run([&runs] { ++runs; });
        QCOMPARE(runs, 1);
    }

    void looksTheSame_data()
    {
        QTest::addColumn<QString>("applicationSheet");
        QTest::addColumn<QString>("windowSheet");
        const QString rules = QString::fromLatin1(sheet);
        QTest::newRow("without a sheet") << QString() << QString();
        QTest::newRow("sheet of the application") << rules << QString();
        QTest::newRow("sheet of the window") << QString() << rules;
        QTest::newRow("both") << rules << QStringLiteral("QToolButton { min-height: 30px; }");
    }

    void looksTheSame()
    {
        QFETCH(QString, applicationSheet);
        QFETCH(QString, windowSheet);
        qApp->setStyleSheet(applicationSheet);
        QWidget plain;
        plain.setStyleSheet(windowSheet);
        fill(&plain);
        QWidget ours;
        ours.setStyleSheet(windowSheet);
        SheetlessBuild::run([&ours] { fill(&ours); });
        QCOMPARE(ours.sizeHint(), plain.sizeHint());
        QCOMPARE(pictureOf(&ours), pictureOf(&plain));
        // And after another sheet.
        for (QWidget* window : {&ours, &plain}) {
            window->setStyleSheet(QStringLiteral("QToolButton { border: 3px solid green; }"));
        }
        QCOMPARE(pictureOf(&ours), pictureOf(&plain));
    }

    // Qt marks a widget with the first look into a sheet for it.
    void noRuleIsLookedUp()
    {
        qApp->setStyleSheet(QString::fromLatin1(sheet));
        QWidget window;
        const QToolButton plain(&window);
        QVERIFY(plain.testAttribute(Qt::WA_StyleSheet));
        QToolButton* button = nullptr;
        SheetlessBuild::run([&] {
            button = new QToolButton(&window);
            button->setStyleSheet(QStringLiteral("color: red;"));
        });
        QVERIFY(!button->testAttribute(Qt::WA_StyleSheet));
        button->ensurePolished();
        QVERIFY(button->testAttribute(Qt::WA_StyleSheet));
        QCOMPARE(button->palette().color(QPalette::ButtonText), QColor(Qt::red));
    }

    void sheetCountsAgainAfterwards()
    {
        qApp->setStyleSheet(QString::fromLatin1(sheet));
        SheetlessBuild::run([] {});
        QLabel label;
        label.ensurePolished();
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(0xd8, 0xda, 0xdf));
    }

    void nested()
    {
        qApp->setStyleSheet(QString::fromLatin1(sheet));
        QWidget plain;
        fill(&plain);
        QWidget ours;
        int runs = 0;
        SheetlessBuild::run([&] {
            SheetlessBuild::run([&] {
                fill(&ours);
                ++runs;
            });
            ++runs;
        });
        QCOMPARE(runs, 2);
        QCOMPARE(pictureOf(&ours), pictureOf(&plain));
    }

    void nothingIsLeft()
    {
        const int before = QApplication::allWidgets().size();
        SheetlessBuild::run([] {});
        QCOMPARE(QApplication::allWidgets().size(), before);
    }
};

UIC_TEST_MAIN(tst_SheetlessBuild)
#include "tst_SheetlessBuild.moc"
