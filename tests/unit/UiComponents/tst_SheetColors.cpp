#include "TestMain.h"

#include <UiComponents/GuideWidget.h>
#include <UiComponents/QuickContent.h>
#include <UiComponents/SheetColors.h>

#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWidget>

#include <functional>

using Change = std::function<void()>;
Q_DECLARE_METATYPE(Change)

namespace {

QString sheet(const char* style)
{
    return QStringLiteral("file:///:/styles/%1.qss").arg(QLatin1String(style));
}

/// The colour in which the link of a rich text is painted.
QColor linkColor(const QWidget* widget)
{
    const auto* document = widget->findChild<QTextDocument*>();
    for (auto it = document->begin().begin(); !it.atEnd(); ++it) {
        if (it.fragment().charFormat().isAnchor()) {
            return it.fragment().charFormat().foreground().color();
        }
    }
    return {};
}

const QString linkText = QStringLiteral("Read <a href=\"x:y\">more</a>.");

QColor paletteLink()
{
    return QApplication::palette().color(QPalette::Link);
}

/// As a host does that has one of its own.
void setPaletteLink(const QColor& color)
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Link, color);
    QApplication::setPalette(palette);
}

/// The application's palette and sheet are left as they were.
class Session
{
public:
    ~Session()
    {
        qApp->setStyleSheet(QString());
        QApplication::setPalette(m_palette);
    }

private:
    const QPalette m_palette = QApplication::palette();
};

} // namespace

class tst_SheetColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Q_INIT_RESOURCE(styles); }

    void init() { m_session = std::make_unique<Session>(); }
    void cleanup() { m_session.reset(); }

    void withoutASheetTheyAreThePalettes()
    {
        const SheetColors colors;
        const QPalette palette = QApplication::palette();
        QCOMPARE(colors.color(QStringLiteral("window")), palette.color(QPalette::Window));
        QCOMPARE(colors.color(QStringLiteral("text")), palette.color(QPalette::WindowText));
        QCOMPARE(colors.color(QStringLiteral("textDisabled")),
                 palette.color(QPalette::Disabled, QPalette::WindowText));
        QCOMPARE(colors.color(QStringLiteral("accent")), palette.color(QPalette::Highlight));
        QCOMPARE(colors.radius(), 4);
        QCOMPARE(colors.spacing(), 8);
        const auto names = SheetColors::names();
        for (const QString& name : names) {
            QVERIFY2(colors.color(name).isValid(), qPrintable(name));
        }
        for (const char* name : {"", "radius", "Window", "nothing"}) {
            QVERIFY2(!colors.color(QString::fromLatin1(name)).isValid(), name);
        }
    }

    void followTheSheet()
    {
        const SheetColors colors;
        const QString accent = QStringLiteral("accent");
        const QColor plain = colors.color(accent);
        qApp->setStyleSheet(sheet("dark"));
        QCOMPARE(colors.color(accent), QColor(0x2f74d4));
        QCOMPARE(colors.color(QStringLiteral("window")), QColor(0x252525));
        qApp->setStyleSheet(sheet("light-components"));
        QCOMPARE(colors.color(accent), QColor(0x1f66c7));
        // What a sheet does not name, it does not take from the one before.
        qApp->setStyleSheet(
            QStringLiteral("SheetColorsProvider { qproperty-text: #123456; qproperty-radius: 0; }"));
        QCOMPARE(colors.color(QStringLiteral("text")), QColor(0x123456));
        QCOMPARE(colors.color(accent), plain);
        QCOMPARE(colors.radius(), 0);
        QCOMPARE(colors.spacing(), 8);
        qApp->setStyleSheet(QString());
        QCOMPARE(colors.radius(), 4);
        QCOMPARE(colors.color(accent), plain);
        // One that is made later knows the sheet that is there.
        qApp->setStyleSheet(sheet("dark"));
        QCOMPARE(SheetColors().color(accent), QColor(0x2f74d4));
    }

    void oneChangeIsToldOnce_data()
    {
        QTest::addColumn<Change>("change");
        const auto row = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
        row("sheet with another link", [] { qApp->setStyleSheet(sheet("light")); });
        row("sheet with the same link",
            [] { qApp->setStyleSheet(QStringLiteral("SheetColorsProvider { qproperty-link: #6ea8f7; }")); });
        row("no sheet", [] { qApp->setStyleSheet(QString()); });
        row("palette", [] { setPaletteLink(Qt::darkGreen); });
    }

    void oneChangeIsToldOnce()
    {
        QFETCH(const Change, change);
        qApp->setStyleSheet(sheet("dark"));
        const SheetColors first;
        const SheetColors second;
        QLabel label(linkText);
        label.show();
        for (const SheetColors* colors : {&first, &second}) {
            // With the values and the links of all texts.
            connect(colors, &SheetColors::changed, &label, [colors, &label] {
                QCOMPARE(paletteLink(), colors->color(QStringLiteral("link")));
                QCOMPARE(linkColor(&label), paletteLink());
            });
        }
        const QSignalSpy toldFirst(&first, &SheetColors::changed);
        const QSignalSpy toldSecond(&second, &SheetColors::changed);
        change();
        QCOMPARE(toldFirst.count(), 1);
        QCOMPARE(toldSecond.count(), 1);
    }

    void objectsMadeUnderASheetKnowThePlainLink_data()
    {
        QTest::addColumn<bool>("isFirstThere");
        QTest::newRow("beside another") << true;
        QTest::newRow("after another") << false;
    }

    void objectsMadeUnderASheetKnowThePlainLink()
    {
        QFETCH(bool, isFirstThere);
        const QColor plain = paletteLink();
        auto first = std::make_unique<SheetColors>();
        qApp->setStyleSheet(sheet("dark"));
        if (!isFirstThere) {
            first.reset();
        }
        const SheetColors second;
        QLabel label(linkText);
        label.show();
        QCOMPARE(linkColor(&label), QColor(0x6ea8f7));
        qApp->setStyleSheet(QString());
        QCOMPARE(paletteLink(), plain);
        QCOMPARE(linkColor(&label), plain);
    }

    void hostsOwnLinkStays()
    {
        const SheetColors colors;
        QLabel label(linkText);
        label.show();
        setPaletteLink(Qt::darkGreen);
        QCOMPARE(paletteLink(), QColor(Qt::darkGreen));
        QCOMPARE(linkColor(&label), QColor(Qt::darkGreen));
        qApp->setStyleSheet(sheet("dark"));
        QCOMPARE(linkColor(&label), QColor(0x6ea8f7));
        qApp->setStyleSheet(QString());
        QCOMPARE(paletteLink(), QColor(Qt::darkGreen));
        QCOMPARE(linkColor(&label), QColor(Qt::darkGreen));
        // The sheet's wins, until it goes.
        qApp->setStyleSheet(sheet("dark"));
        setPaletteLink(Qt::darkMagenta);
        QCOMPARE(paletteLink(), QColor(0x6ea8f7));
        qApp->setStyleSheet(QString());
        QCOMPARE(paletteLink(), QColor(Qt::darkMagenta));
        QCOMPARE(linkColor(&label), QColor(Qt::darkMagenta));
    }

    void linksNeedNoColorOfTheirOwn_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QColor>("link");
        QTest::newRow("dark") << sheet("dark") << QColor(0x6ea8f7);
        QTest::newRow("light") << sheet("light") << QColor(0x1f66c7);
        QTest::newRow("high-contrast") << sheet("high-contrast") << QColor(0x8cc8ff);
        QTest::newRow("components alone") << sheet("dark-components") << paletteLink();
        QTest::newRow("of the host's own")
            << QStringLiteral("SheetColorsProvider { qproperty-link: #123456; }") << QColor(0x123456);
    }

    void linksNeedNoColorOfTheirOwn()
    {
        QFETCH(QString, style);
        QFETCH(QColor, link);
        const QColor plain = paletteLink();
        const SheetColors colors;
        QLabel before(linkText);
        before.show();
        QTextBrowser browser;
        browser.setHtml(linkText);
        QLabel own(QStringLiteral("Read <a href=\"x:y\" style=\"color: #ff00ff\">more</a>."));
        own.show();
        QCOMPARE(linkColor(&before), plain);
        qApp->setStyleSheet(style);
        QLabel after(linkText);
        after.show();
        QCOMPARE(linkColor(&after), link);
        QCOMPARE(linkColor(&before), link);
        QCOMPARE(linkColor(&browser), link);
        QCOMPARE(linkColor(&own), QColor(0xff00ff));
        qApp->setStyleSheet(QString());
        QCOMPARE(linkColor(&before), plain);
        QCOMPARE(linkColor(&after), plain);
        QCOMPARE(paletteLink(), plain);
    }

    // Its changes are the user's, who would undo the colours.
    void textsThatCanBeEditedStay()
    {
        const SheetColors colors;
        QTextEdit edit;
        edit.setHtml(linkText);
        const QSignalSpy changed(&edit, &QTextEdit::textChanged);
        qApp->setStyleSheet(sheet("dark"));
        QCOMPARE(changed.count(), 0);
        QVERIFY(!edit.document()->isUndoAvailable());
    }

    void guidesFollowToo()
    {
        const SheetColors colors;
        GuideWidget guide({QString(), linkText, linkText, QString()}, nullptr);
        guide.show();
        for (const char* style : {"dark", "light", "high-contrast", "light-components"}) {
            qApp->setStyleSheet(sheet(style));
            guide.grab();
            for (const char* name : {"descriptionLabel", "learnMoreLabel"}) {
                const auto* label = guide.findChild<QLabel*>(QString::fromLatin1(name));
                const QColor expected = colors.color(QLatin1String(name) == QLatin1String("learnMoreLabel")
                                                         ? QStringLiteral("link")
                                                         : QStringLiteral("text"));
                QCOMPARE(linkColor(label), expected);
            }
        }
    }

    void scenesImportThem()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("Scene.qml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("import QtQuick 2.15\n"
                   "import UiComponents 0.1\n"
                   "Rectangle {\n"
                   "    width: 40; height: 20\n"
                   "    color: SheetColors.popup\n"
                   "    radius: SheetColors.radius\n"
                   "    property color line: SheetColors.border\n"
                   "    property int gap: SheetColors.spacing\n"
                   "    function spoil() { SheetColors.popup = \"red\" }\n"
                   "}\n");
        file.close();
        qApp->setStyleSheet(sheet("dark"));
        Qml::QuickContent content;
        Qml::QuickContent other;
        content.load(file.fileName());
        other.load(file.fileName());
        QVERIFY(content.isAvailable() && other.isAvailable());
        for (Qml::QuickContent* each : {&content, &other}) {
            qApp->setStyleSheet(sheet("dark"));
            const QQuickItem* const root = each->getUiContent()->findChild<QQuickWidget*>()->rootObject();
            const auto color = [root](const char* name) { return root->property(name).value<QColor>(); };
            QCOMPARE(color("color"), QColor(0x2b2b2b));
            QCOMPARE(color("line"), QColor(0x7c7c7c));
            QCOMPARE(root->property("radius").toInt(), 4);
            QCOMPARE(root->property("gap").toInt(), 8);
            qApp->setStyleSheet(sheet("high-contrast"));
            QCOMPARE(color("color"), QColor(Qt::black));
            QCOMPARE(color("line"), QColor(Qt::white));
            // The sheet's colours are nobody else's.
            QMetaObject::invokeMethod(const_cast<QQuickItem*>(root), "spoil");
            QCOMPARE(color("color"), QColor(Qt::black));
            qApp->setStyleSheet(QString());
            QCOMPARE(color("color"), QApplication::palette().color(QPalette::Window));
        }
    }

private:
    std::unique_ptr<Session> m_session;
};

UIC_TEST_MAIN(tst_SheetColors)
#include "tst_SheetColors.moc"
