#include "QmlFiles.h"
#include "RealInput.h"
#include "TestMain.h"

#include <Settings/Settings.h>
#include <UiComponents/AbstractColorPicker.h>
#include <UiComponents/AdjustingListView.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/QuickDialog.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <UiComponents/Translations.h>
#include <UiComponents/WidgetColorPickerButton.h>

#include <algorithm>
#include <functional>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/ParameterPanel.h>
#include <memory>

namespace {

constexpr int answerLimitMs = 60000;

/// A reader, which knows of this program what the message bus tells it.
class Client
{
public:
    Client()
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(UIC_ATSPI_CLIENT),
                        {QString::number(QCoreApplication::applicationPid())});
    }
    ~Client()
    {
        m_process.closeWriteChannel();
        // It may be asking this program something.
        if (!QTest::qWaitFor([this] { return m_process.state() == QProcess::NotRunning; }, answerLimitMs)) {
            m_process.kill();
        }
    }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Whether it is ready, and everybody on the bus knows what it wants to hear.
    bool isListening()
    {
        answer();
        return m_process.state() == QProcess::Running;
    }

    QStringList ask(const QStringList& command)
    {
        m_process.write(command.join(QLatin1Char('\t')).toUtf8() + '\n');
        return answer();
    }

    QStringList heard() { return ask({QStringLiteral("heard")}); }
    QStringList tree(const QString& name) { return ask({QStringLiteral("tree"), name}); }

private:
    /// The event loop runs meanwhile: it is this program that the client asks, a thousand times for a tree.
    QStringList answer()
    {
        QStringList lines;
        QEventLoop loop;
        const auto read = [&] {
            while (m_process.canReadLine()) {
                lines += QString::fromUtf8(m_process.readLine()).chopped(1);
            }
            if (lines.endsWith(QStringLiteral("."))) {
                loop.quit();
            }
        };
        QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &loop, read);
        QObject::connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
                         &QEventLoop::quit);
        QTimer::singleShot(answerLimitMs, &loop, &QEventLoop::quit);
        if (m_process.state() != QProcess::NotRunning) {
            loop.exec();
        }
        return lines.endsWith(QStringLiteral(".")) ? lines.mid(0, lines.size() - 1) : QStringList();
    }

    QProcess m_process;
};

/// A user who sees nothing: hears what the client hears.
class Ear
{
public:
    explicit Ear(Client* client)
        : m_client(client)
    {
    }

    /// Whether the keyboard comes to what is called @p name, by Tab alone.
    bool tabTo(const char* name) { return tabTo(QString(QLatin1String(name))); }
    bool tabTo(const QString& name)
    {
        constexpr int maxStops = 80;
        for (int i = 0; i < maxStops; ++i) {
            m_heard.clear();
            if (!RealInput::key(QStringLiteral("Tab"))) {
                return false;
            }
            const auto hasMoved = [this] {
                m_heard += m_client->heard();
                return std::any_of(m_heard.cbegin(), m_heard.cend(),
                                   [](const QString& text) { return text.endsWith(QLatin1Char('!')); });
            };
            if (!QTest::qWaitFor(hasMoved, answerLimitMs) || m_heard.contains(name + QLatin1Char('!'))) {
                break;
            }
        }
        return m_heard.contains(name + QLatin1Char('!'));
    }

    bool press(const char* key, const QString& text)
    {
        m_heard.clear();
        return RealInput::key(QLatin1String(key)) && hears(text);
    }
    bool press(const char* key, const char* text) { return press(key, QString(QLatin1String(text))); }

    bool type(const char* keys, const char* text)
    {
        m_heard.clear();
        return RealInput::type(QLatin1String(keys)) && hears(QLatin1String(text));
    }

    /// What is heard of @p action: at least @p count lines.
    QStringList listen(int count, const std::function<void()>& action)
    {
        m_client->heard(); // what came late
        m_heard.clear();
        action();
        const auto isAnswered = [&] { return (m_heard += m_client->heard()).size() >= count; };
        return QTest::qWaitFor(isAnswered, answerLimitMs) ? m_heard : QStringList{QStringLiteral("nothing")};
    }

    /// Presses @p key, and returns what is heard of a change.
    QStringList change(const char* key)
    {
        return listen(1, [key] { RealInput::key(QLatin1String(key)); });
    }

    bool hears(const char* text) { return hears(QString(QLatin1String(text))); }

    const char* said()
    {
        m_said = m_heard.join(QLatin1Char('\n')).toUtf8();
        return m_said.constData();
    }

private:
    bool hears(const QString& text)
    {
        return QTest::qWaitFor([&] { return (m_heard += m_client->heard()).contains(text); }, answerLimitMs);
    }

    Client* const m_client;
    QStringList m_heard;
    QByteArray m_said;
};

/// A window as a host's, with a labelled field of each kind.
class Form : public QWidget
{
public:
    Form()
    {
        m_layout->addRow(QStringLiteral("&Fill:"), fill);
        m_layout->addRow(QStringLiteral("&Level:"), level);
        m_layout->addRow(QStringLiteral("&Gain:"), gain);
        m_layout->addRow(QStringLiteral("&Position:"), position);
        m_layout->addRow(QStringLiteral("&Search:"), search);
        m_layout->addRow(QStringLiteral("&Export to:"), folder);
        m_layout->addRow(QStringLiteral("&Title colour:"), panel);
        m_layout->addRow(QStringLiteral("&Blending:"), blending);
        m_layout->addRow(QStringLiteral("&Key colour:"), key);
        m_layout->addRow(QStringLiteral("&Versions:"), versions);
        m_layout->addRow(QStringLiteral("&Help:"), help);
        fill->setPicker(new PopupColorPicker);
        key->setTargetWidget(this);
        key->setColor(Qt::blue);
        versions->setModel(
            new QStringListModel({QStringLiteral("Rough cut"), QStringLiteral("Fine cut")}, this));
        // Qt asks no label for the name of a list.
        versions->setAccessibleName(QStringLiteral("Versions"));
        help->setGuideInfo(std::make_unique<GuideInfo>(
            QStringLiteral("Trim"), QStringLiteral("Drag the end of a clip."),
            QStringLiteral("<a href=\"x:y\">More</a>"), QStringLiteral(":/gallery/guides/trim.gif")));
        position->setValue({0.25, 0.5});
        gain->setValue(0.4);
        level->setValue(40);
        panel->setCurrentColor(QColor(0xff, 0x5d, 0x00));
    }

private:
    QFormLayout* const m_layout = new QFormLayout(this);

public:
    ColorInputWidget* const fill = new ColorInputWidget(this, QColor(0xff, 0x80, 0x40, 128));
    SliderInputWidget* const level = new SliderInputWidget(this, {0, 100});
    DoubleSliderInputWidget* const gain = new DoubleSliderInputWidget(this, {0.0, 1.0, 2});
    PointSelectorWidget* const position = new PointSelectorWidget(this, {{0.0, 0.0}, {1.0, 1.0}, 2, 2});
    SearchWidget* const search = new SearchWidget(this);
    PathSelectionWidget* const folder = new PathSelectionWidget(this);
    ColorPickerWidget* const panel = new ColorPickerWidget(this, false);
    ColorBlendingComboBox* const blending = new ColorBlendingComboBox(this);
    WidgetColorPickerButton* const key = new WidgetColorPickerButton(this);
    AdjustingListView* const versions = new AdjustingListView(this);
    GuideButton* const help = new GuideButton(this);
};

/// In the language of now.
QString pictureName()
{
    return QCoreApplication::translate("GuideWidget", "Animated picture");
}
QString panelPart(const char* name)
{
    return QCoreApplication::translate("ColorPickerWidget", name);
}

CommandLine startOn(const char* page)
{
    CommandLine start;
    start.page = QLatin1String(page);
    return start;
}

} // namespace

/**
 * What a real client of the desktop's accessibility hears of the components.
 */
class tst_AccessibleClient : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void cleanup()
    {
        qApp->setStyleSheet(QString());
        Settings::setUserCustomColors({});
        Translations::load(QLocale(QLocale::English));
    }

    void transcript_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << QStringLiteral("en");
        QTest::newRow("German") << QStringLiteral("de");
        QTest::newRow("Japanese") << QStringLiteral("ja");
    }

    // Whatever a client reads of each component, and hears while a user goes through with the keyboard, is
    // what the file says.
    void transcript()
    {
        QFETCH(QString, language);
        QVERIFY(Translations::load(QLocale(language)));
        Form form;
        form.setWindowTitle(QStringLiteral("Clip"));
        QVERIFY(RealInput::showAndActivate(&form));
        Client client;
        QVERIFY(client.isListening());
        Ear ear(&client);
        QStringList found = client.tree(QStringLiteral("Clip"));

        QVERIFY2(ear.press("alt+g", "Gain!"), ear.said());
        QVERIFY2(ear.press("alt+f", "Fill!"), ear.said());
        QVERIFY(RealInput::key(QStringLiteral("space")));
        QTRY_VERIFY(QApplication::activePopupWidget());
        found += QStringLiteral("--- The colour field, opened");
        // All of the panel is in the form too.
        found += client.tree(QStringLiteral("Fill")).mid(0, 5);
        QVERIFY2(ear.press("Escape", "Fill!"), ear.said());

        found += QStringLiteral("--- The guide, opened");
        QVERIFY2(ear.press("alt+h", "Help!"), ear.said());
        QVERIFY2(ear.press("space", "Trim!"), ear.said());
        found += client.tree(QStringLiteral("Help"));
        QVERIFY2(ear.press("Tab", "More!"), ear.said());
        QVERIFY2(ear.press("Tab", pictureName() + QLatin1Char('!')), ear.said());
        found += ear.change("space");
        found += ear.change("space");
        QVERIFY2(ear.press("Escape", "Help!"), ear.said());

        found += QStringLiteral("--- The bubble, shown and entered");
        DialogGuideWidget bubble(&form);
        bubble.setInfo({QStringLiteral("Tour"), QStringLiteral("Drag the edge."), QStringLiteral("Next"),
                        QStringLiteral("Back"), QStringLiteral(":/gallery/guides/trim.gif")});
        bubble.pointTo(form.mapToGlobal(QPoint(60, 60)));
        found += ear.listen(1, [&bubble] { bubble.show(); });
        bubble.enter();
        QVERIFY2(ear.hears("Next!"), ear.said());
        found += client.tree(QStringLiteral("Tour"));
        QSignalSpy closed(&bubble, &DialogGuideWidget::closeClicked);
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_COMPARE(closed.size(), 1);
        // Heard before anything else is, on a slow machine too.
        QVERIFY2(ear.listen(1, [&bubble] { bubble.hide(); }).contains(QStringLiteral("Help!")), ear.said());

        found += QStringLiteral("--- Colours and numbers that change");
        found += ear.listen(1, [&form] { form.panel->setCurrentColor(QColor()); });
        found += ear.listen(1, [&form] { form.panel->setCurrentColor({}); });
        found += ear.listen(1, [&form] { form.panel->setCurrentColor(QColor(Qt::blue)); });
        QVERIFY2(ear.press("alt+g", "Gain!"), ear.said());
        found += ear.change("Right");

        found += QStringLiteral("--- The free selector");
        const QString other = panelPart("Choose another colour");
        QVERIFY2(ear.press("alt+t", panelPart("Colour value") + QLatin1Char('!')), ear.said());
        QVERIFY2(ear.tabTo(other), ear.said());
        found += ear.listen(4, [] { RealInput::key(QStringLiteral("space")); });
        found += client.ask({QStringLiteral("tree"), other, QStringLiteral("dialog")});
        found += ear.listen(2, [] { RealInput::key(QStringLiteral("Left")); });
        QVERIFY2(ear.press("Escape", other + QLatin1Char('!')), ear.said());

        found += QStringLiteral("--- An error");
        form.folder->setErrorDisplayType(PathSelectionWidget::Label);
        QSignalSpy paths(form.folder, &PathSelectionWidget::pathChanged);
        form.folder->setPath(QStringLiteral("nowhere"));
        QTRY_COMPARE(paths.size(), 1);
        found += ear.listen(3, [&form] { form.folder->checkPath(); });

        found += QStringLiteral("--- The QML dialog");
        const QmlFiles files;
        Qml::QuickDialog dialog(&form);
        dialog.setQmlPath(files.item(QStringLiteral(
            "width: 120; height: 80; Accessible.role: Accessible.Pane; Accessible.name: 'Discard the clip?'\n"
            "Rectangle { width: 50; height: 20; focus: true; Accessible.role: Accessible.Button\n"
            "Accessible.name: 'Discard'; Keys.onReturnPressed: callback.accept() }")));
        QTimer::singleShot(0, &dialog, [&] {
            if (QTest::qWaitForWindowActive(&dialog)) {
                found += client.ask(
                    {QStringLiteral("tree"), QStringLiteral("Discard the clip?"), QStringLiteral("dialog")});
            }
            RealInput::key(QStringLiteral("Return"));
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));

        QFile file(QStringLiteral(UIC_TEST_DATA "/transcript-%1.txt").arg(language));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString expected = QString::fromUtf8(file.readAll()).trimmed();
        const QString heard = found.join(QLatin1Char('\n'));
        QFile copy(QDir::temp().filePath(QStringLiteral("transcript-%1.txt").arg(language)));
        if (heard != expected && copy.open(QIODevice::WriteOnly)) {
            copy.write(heard.toUtf8() + '\n');
        }
        QVERIFY2(heard == expected,
                 qPrintable(copy.fileName() + QStringLiteral(" differs from ") + file.fileName()));
    }

    void sets()
    {
        Form form;
        form.setWindowTitle(QStringLiteral("Clip"));
        QVERIFY(RealInput::showAndActivate(&form));
        Client client;
        QVERIFY(client.isListening());
        QSignalSpy gains(form.gain, &DoubleSliderInputWidget::valueChanged);
        QSignalSpy positions(form.position, &PointSelectorWidget::valueChanged);
        client.heard();
        client.ask(
            {QStringLiteral("set"), QStringLiteral("Gain"), QStringLiteral("slider"), QStringLiteral("0.7")});
        QTRY_VERIFY(!gains.isEmpty());
        QCOMPARE(gains.constLast().constFirst().toDouble(), 0.7);
        client.ask({QStringLiteral("set"), QStringLiteral("Position, x"), QStringLiteral("slider"),
                    QStringLiteral("0.75")});
        QTRY_VERIFY(!positions.isEmpty());
        QCOMPARE(positions.constLast().constFirst().toPointF(), QPointF(0.75, 0.5));
        QStringList heard;
        QTRY_VERIFY2((heard += client.heard()).contains(QStringLiteral("Position, x: 0.75")),
                     qPrintable(heard.join(QLatin1Char('\n'))));
        client.ask({QStringLiteral("press"), QStringLiteral("red, #ff0000")});
        QTRY_COMPARE(form.panel->currentColor(), std::optional<QColor>(QColor(Qt::red)));
        QTRY_VERIFY2((heard += client.heard()).contains(QStringLiteral("Current colour: red, #ff0000")),
                     qPrintable(heard.join(QLatin1Char('\n'))));
    }

    // What the user cannot change, his reader cannot either.
    void setsNothingThatIsLocked()
    {
        Form form;
        form.setWindowTitle(QStringLiteral("Clip"));
        form.level->setEnabled(false);
        auto* const number = form.gain->findChild<QDoubleSpinBox*>();
        number->setReadOnly(true);
        QVERIFY(RealInput::showAndActivate(&form));
        Client client;
        QVERIFY(client.isListening());
        const auto set = [&client](const char* name, const char* role, const char* value) {
            client.ask(
                {QStringLiteral("set"), QLatin1String(name), QLatin1String(role), QLatin1String(value)});
        };
        set("Level", "slider", "70");
        set("Level, number", "spin button", "70");
        set("Gain, number", "spin button", "0.7");
        // Answered after those.
        set("Position, x", "slider", "0.75");
        QTRY_COMPARE(form.position->value(), QPointF(0.75, 0.5));
        QCOMPARE(form.level->value(), 40);
        QCOMPARE(form.gain->value(), 0.4);
    }

    void dragsAreHeardOnce()
    {
        Form form;
        form.setWindowTitle(QStringLiteral("Clip"));
        QVERIFY(RealInput::showAndActivate(&form));
        Client client;
        QVERIFY(client.isListening());
        const auto* const slider = form.gain->findChild<QSlider*>();
        QWidget* const plane = form.position->findChild<PointSelectionPlane*>();
        QSignalSpy gains(form.gain, &DoubleSliderInputWidget::valueChanged);
        QStringList heard;
        const auto hears = [&](const char* start, int count) {
            return QTest::qWaitFor(
                [&] { return (heard += client.heard()).filter(QLatin1String(start)).size() >= count; });
        };
        client.heard();
        const QPoint middle = slider->rect().center();
        QVERIFY(RealInput::drag(slider, middle, middle + QPoint(slider->width() / 4, 0)));
        QVERIFY2(hears("Gain: ", 1), qPrintable(heard.join(QLatin1Char('\n'))));
        QVERIFY(gains.size() > 1);
        const QPoint corner(plane->width() / 4, plane->height() / 4);
        QVERIFY(RealInput::drag(plane, corner, corner * 2));
        // One after the other, so that more of them would have come before.
        QVERIFY2(hears("Position, ", 2), qPrintable(heard.join(QLatin1Char('\n'))));
        QVERIFY(RealInput::key(QStringLiteral("alt+l")));
        QVERIFY2(hears("Level!", 1), qPrintable(heard.join(QLatin1Char('\n'))));
        QCOMPARE(heard.filter(QStringLiteral("Gain: ")).size(), 1);
        QCOMPARE(heard.filter(QStringLiteral("Position, x: ")).size(), 1);
        QCOMPARE(heard.filter(QStringLiteral("Position, y: ")).size(), 1);
    }

    // A user without a mouse and without eyes fills the form in.
    void keyboardAlone()
    {
        Form form;
        form.setWindowTitle(QStringLiteral("Clip"));
        QVERIFY(RealInput::showAndActivate(&form));
        Client client;
        QVERIFY(client.isListening());
        QStringList heard;
        const auto hears = [&](const QString& text) {
            return QTest::qWaitFor([&] { return (heard += client.heard()).contains(text); }, answerLimitMs);
        };
        const auto goTo = [&](const char* chord, const char* name) {
            heard.clear();
            return RealInput::key(QLatin1String(chord)) && hears(QLatin1String(name) + QStringLiteral("!"));
        };
        QSignalSpy levels(form.level, &SliderInputWidget::valueChanged);
        QVERIFY2(goTo("alt+l", "Level"), qPrintable(heard.join(QLatin1Char('\n'))));
        QVERIFY(RealInput::key(QStringLiteral("Right")));
        QVERIFY2(hears(QStringLiteral("Level: 41")), qPrintable(heard.join(QLatin1Char('\n'))));
        QCOMPARE(levels.constLast().constFirst().toInt(), 41);

        QSignalSpy gains(form.gain, &DoubleSliderInputWidget::valueChanged);
        QVERIFY(goTo("alt+g", "Gain"));
        QVERIFY(RealInput::key(QStringLiteral("Right")));
        QVERIFY2(hears(QStringLiteral("Gain: 0.41")), qPrintable(heard.join(QLatin1Char('\n'))));
        QCOMPARE(gains.constLast().constFirst().toDouble(), 0.41);

        QSignalSpy positions(form.position, &PointSelectorWidget::valueChanged);
        QVERIFY(goTo("alt+p", "Position"));
        QVERIFY(RealInput::key(QStringLiteral("End")));
        QVERIFY2(hears(QStringLiteral("Position, x: 1")), qPrintable(heard.join(QLatin1Char('\n'))));
        QCOMPARE(positions.constLast().constFirst().toPointF(), QPointF(1.0, 0.5));

        QVERIFY(goTo("alt+s", "Search"));
        QVERIFY(RealInput::type(QStringLiteral("blur")));
        QTRY_COMPARE(form.search->text(), QStringLiteral("blur"));

        QVERIFY(goTo("alt+e", "Export to"));
        QVERIFY(RealInput::type(QStringLiteral("/tmp")));
        QTRY_COMPARE(form.folder->path(), QStringLiteral("/tmp"));

        QVERIFY(goTo("alt+t", "Colour value"));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(QStringLiteral("#0000ff")));
        QVERIFY2(hears(QStringLiteral("Current colour: blue, #0000ff")),
                 qPrintable(heard.join(QLatin1Char('\n'))));
        QCOMPARE(form.panel->currentColor(), std::optional<QColor>(QColor(Qt::blue)));
        QCOMPARE(heard.count(QStringLiteral("Current colour: blue, #0000ff")), 1);
    }

    // A page of the gallery, as a user finds it: Tab goes on until a field is heard by its name.
    void clipPropertiesByEar()
    {
        MainWindow window(startOn("properties"));
        QVERIFY(RealInput::showAndActivate(&window));
        // What the panel edits, as a host keeps it.
        QMap<QString, QString> clip;
        const auto* const panel = window.findChild<ParameterPanel*>();
        connect(panel, &ParameterPanel::parameterChanged, this,
                [&clip](const QString& name, const QString& value) { clip.insert(name, value); });
        Client client;
        QVERIFY(client.isListening());
        Ear ear(&client);

        QVERIFY2(ear.tabTo("Search parameters"), ear.said());
        QVERIFY2(ear.type("Rotation", "Search parameters: Rotation"), ear.said());
        QVERIFY2(ear.tabTo("Clear the search"), ear.said());
        // The only field that is left.
        QVERIFY2(ear.press("Tab", "Rotation!"), ear.said());
        QVERIFY2(ear.press("shift+Tab", "Clear the search!"), ear.said());
        QVERIFY2(ear.press("space", "Search parameters!"), ear.said());
        QVERIFY2(ear.tabTo("Position"), ear.said());
        QVERIFY2(ear.press("End", "Position, x: 1"), ear.said());
        QVERIFY2(ear.tabTo("Position, y"), ear.said());
        QVERIFY2(ear.press("Up", "Position, y: 0.01"), ear.said());
        QVERIFY2(ear.tabTo("Scale"), ear.said());
        QVERIFY2(ear.press("Right", "Scale: 100.1"), ear.said());
        QVERIFY2(ear.tabTo("Rotation"), ear.said());
        QVERIFY2(ear.press("Home", "Rotation: -180"), ear.said());
        QVERIFY2(ear.tabTo("Opacity, number"), ear.said());
        QVERIFY2(ear.press("Down", "Opacity, number: 99"), ear.said());
        QVERIFY2(ear.tabTo("Blending"), ear.said());
        const QString blending = panel->findChild<ColorBlendingComboBox*>()->itemText(1);
        QVERIFY2(ear.press("Down", QStringLiteral("Blending: ") + blending), ear.said());
        QVERIFY2(ear.tabTo("Tint"), ear.said());
        QVERIFY2(ear.press("space", "Colour value!"), ear.said());
        QVERIFY2(ear.type("#0000ff", "Tint: blue, #0000ff"), ear.said());
        QVERIFY2(ear.press("Return", "Tint!"), ear.said());
        QVERIFY2(ear.tabTo("Proxies"), ear.said());
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY2(ear.type("/tmp", "Proxies: /tmp"), ear.said());
        QVERIFY2(ear.tabTo("Back to the home folder"), ear.said());
        // Its current item is heard first, at which tabTo() would go on.
        QVERIFY2(ear.press("Tab", "Effects!"), ear.said());
        QVERIFY2(ear.press("Down", "Sharpen!"), ear.said());

        QMap<QString, QString> expected;
        expected.insert(QStringLiteral("Position"), QStringLiteral("1, 0.01"));
        expected.insert(QStringLiteral("Scale"), QStringLiteral("100.1"));
        expected.insert(QStringLiteral("Rotation"), QStringLiteral("-180"));
        expected.insert(QStringLiteral("Opacity"), QStringLiteral("99"));
        expected.insert(QStringLiteral("Blending"), blending);
        expected.insert(QStringLiteral("Tint"), QStringLiteral("#0000ff"));
        expected.insert(QStringLiteral("Proxies"), QStringLiteral("/tmp"));
        QCOMPARE(clip, expected);
        QCOMPARE(panel->findChild<AdjustingListView*>()->currentIndex().data().toString(),
                 QStringLiteral("Sharpen"));
    }

    void colorPanelByEar()
    {
        MainWindow window(startOn("color-panel"));
        QVERIFY(RealInput::showAndActivate(&window));
        const auto* const panel = window.findChild<ColorPickerWidget*>();
        Client client;
        QVERIFY(client.isListening());
        Ear ear(&client);

        QVERIFY2(ear.tabTo("Colour value"), ear.said());
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY2(ear.type("#0000ff", "Current colour: blue, #0000ff"), ear.said());
        QVERIFY2(ear.tabTo("no colour"), ear.said());
        QVERIFY2(ear.press("Down", "red, #ff0000!"), ear.said());
        QVERIFY2(ear.press("space", "Current colour: red, #ff0000"), ear.said());
        QVERIFY2(ear.press("Right", "Current colour: orange, #ff5d00"), ear.said());
        QVERIFY2(ear.tabTo("Opacity"), ear.said());
        QVERIFY2(ear.press("Home", "Opacity: 0"), ear.said());
        QVERIFY2(ear.press("Right", "Current colour: orange, #ff5d00, 1 %"), ear.said());
        QVERIFY2(ear.tabTo("Opacity in percent"), ear.said());
        QVERIFY2(ear.press("Up", "Opacity in percent: 2"), ear.said());
        QColor expected(0xff, 0x5d, 0x00);
        expected.setAlphaF(0.02);
        QCOMPARE(panel->currentColor()->name(QColor::HexArgb), expected.name(QColor::HexArgb));
    }
};

UIC_TEST_MAIN(tst_AccessibleClient)
#include "tst_AccessibleClient.moc"
