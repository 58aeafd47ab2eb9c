#include "DiskQuestions.h"
#include "FieldWindow.h"
#include "MarkingTranslator.h"
#include "NormalUser.h"
#include "Part.h"
#include "TestMain.h"

#include <DesignElements/TesselLineEdit.h>
#include <EditorUtility/FileUtil.h>
#include <QtUtility/FormatFileSize.h>
#include <Settings/StandardFolderUrls.h>
#include <UiComponents/PathSelectionWidget.h>

#include <functional>
#include <memory>
#include <sys/stat.h>

namespace {

const QString notReadable = "Selected path is not readable";
const QString notWritable = "Selected path is not writable";

constexpr Part<OvFrame> spaceOf("spaceInfoFrame");
constexpr Part<OvFrame> frameOf("pathSelectionFrame");
constexpr Part<QLineEdit> editOf("pathLineEdit");
constexpr Part<QToolButton> browseOf("pathBrowseButton");
constexpr Part<QToolButton> resetOf("pathResetButton");
constexpr Part<QLabel> requiredOf("requiredLabel");
constexpr Part<QLabel> availableOf("availableLabel");
constexpr Part<QLabel> errorOf("errorLabel");

bool isMarked(const PathSelectionWidget& field)
{
    return frameOf(field)->property("styleHint").toString() == "error";
}

/// The time of the schedulers: their timers run out when the test says so.
class Clock : public QObject
{
public:
    Clock() { qApp->installEventFilter(this); }

    /// How many requests the schedulers were sent.
    int posts = 0;
    /// The delay of the timer that was started last, and how exact it is.
    int interval = -1;
    Qt::TimerType type = Qt::PreciseTimer;

    bool isTimerRunning() const { return !timers().isEmpty(); }

    /// Delivers what is posted: starts the timer, if a call is pending.
    void start()
    {
        QCoreApplication::sendPostedEvents();
        const auto running = timers();
        if (!running.isEmpty()) {
            interval = running.first().interval;
            type = running.first().timerType;
        }
    }

    /// Lets the timer run out.
    void runOut()
    {
        const auto running = timers();
        if (!running.isEmpty()) {
            m_isOver = true;
            QTimerEvent event(running.first().timerId);
            QCoreApplication::sendEvent(m_scheduler, &event);
            m_isOver = false;
        }
    }

    void finish()
    {
        start();
        runOut();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!watched->inherits("Orvane::Util::SchedulerBase")) {
            return false;
        }
        m_scheduler = watched;
        posts += event->type() == QEvent::User ? 1 : 0;
        return event->type() == QEvent::Timer && !m_isOver;
    }

private:
    QList<QAbstractEventDispatcher::TimerInfo> timers() const
    {
        return m_scheduler ? QAbstractEventDispatcher::instance()->registeredTimers(m_scheduler)
                           : QList<QAbstractEventDispatcher::TimerInfo>();
    }

    QPointer<QObject> m_scheduler;
    bool m_isOver = false;
};

using Window = FieldWindow<PathSelectionWidget>;

QWidget* toolTipWindow()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->inherits("QTipLabel") && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

const QString folder = "/default/folder";
const QString folderText = "The default";

} // namespace

class tst_PathSelectionWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_root = QFileInfo(m_folder->path()).canonicalFilePath();
        QVERIFY(QFile(m_root).setPermissions(QFile::Permissions(0x7777)));
        QVERIFY(QDir(m_root).mkpath("folder/inner"));
        QFile file(at("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(at("nowhere"), at("dangling")));
        QVERIFY(QFile::link(at("folder"), at("link")));
        QVERIFY(QDir(m_root).mkpath("<b>bold</b>\nline"));
    }

    void cleanup()
    {
        QToolTip::hideText();
        m_folder.reset();
    }

    void startsEmpty()
    {
        const PathSelectionWidget field(nullptr);
        QVERIFY(!field.parentWidget());
        QCOMPARE(field.path(), QString());
        QCOMPARE(field.defaultPath(), QString());
        QCOMPARE(editOf(field)->text(), QString());
        QCOMPARE(editOf(field)->property("kitVersion"), QVariant("1.0"));
        QCOMPARE(errorOf(field)->property("styleHint"), QVariant("error"));
        QVERIFY(!frameOf(field)->property("focusHint").isValid());
        QVERIFY(!frameOf(field)->property("styleHint").isValid());
        const QVector<const QWidget*> hidden = {spaceOf(field), requiredOf(field), availableOf(field),
                                                resetOf(field), errorOf(field)};
        for (const QWidget* widget : hidden) {
            QVERIFY2(widget->isHidden(), qPrintable(widget->objectName()));
        }
        QVERIFY(!browseOf(field)->isHidden());
        for (const QLabel* label : {requiredOf(field), availableOf(field), errorOf(field)}) {
            QCOMPARE(label->text(), QString());
        }
    }

    void buttonToolTips()
    {
        PathSelectionWidget field(nullptr);
        field.setBrowseButtonTooltip("browse");
        field.setResetButtonTooltip("reset");
        QCOMPARE(browseOf(field)->toolTip(), "browse");
        QCOMPARE(resetOf(field)->toolTip(), "reset");
    }

    void setPathShowsAndReports()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        field.setPath("/a");
        QCOMPARE(field.path(), "/a");
        QCOMPARE(editOf(field)->text(), "/a");
        QCOMPARE(changed.count(), 0);
        clock.start();
        QCOMPARE(clock.interval, 100);
        QCOMPARE(clock.type, Qt::CoarseTimer);
        QCOMPARE(changed.count(), 0);
        clock.runOut();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), "/a");
        QVERIFY(!clock.isTimerRunning());
    }

    void lineEditIsWrittenOnlyIfItDiffers()
    {
        PathSelectionWidget field(nullptr);
        QTest::keyClicks(editOf(field), "/abc");
        editOf(field)->setCursorPosition(2);
        QTest::keyClick(editOf(field), Qt::Key_X);
        // Written by the widget, the text would put the cursor at its end and forget what can be undone.
        QCOMPARE(field.path(), "/axbc");
        QCOMPARE(editOf(field)->cursorPosition(), 3);
        QVERIFY(editOf(field)->isUndoAvailable());
    }

    void pathIsStoredLast()
    {
        PathSelectionWidget field(nullptr);
        field.setDefaultPath(folder, folderText);
        QStringList paths;
        connect(editOf(field), &QLineEdit::textChanged, this, [&] { paths += field.path(); });
        field.setPath("/a");
        field.setPath(folder);
        QCOMPARE(paths, QStringList({QString(), "/a"}));
    }

    void pathOfAnyForm_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("relative") << "a/b";
        QTest::newRow("blanks") << "  /a b  ";
        QTest::newRow("new lines") << "/a\nb\r\nc";
        QTest::newRow("markup") << "/<b>a</b>&amp;";
        QTest::newRow("unclean") << "//a/../b/./";
        QTest::newRow("4,096 characters") << "/" + QString(4095, QLatin1Char('x'));
        QTest::newRow("outside of the first plane") << "/\U0001F3AC";
    }

    void pathOfAnyForm()
    {
        QFETCH(QString, path);
        Clock clock;
        PathSelectionWidget field(nullptr);
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        field.setPath(path);
        QCOMPARE(field.path(), path);
        clock.finish();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), path);
        field.setPath(QString());
        QCOMPARE(field.path(), QString());
        QCOMPARE(editOf(field)->text(), QString());
    }

    // What the user and the host do, each with what it leads to: the path, the text of the line edit, whether
    // the reset button can be used, and how often was reported.
    void story_data()
    {
        QTest::addColumn<QStringList>("story");
        QTest::newRow("the same path again")
            << QStringList{"set /a = /a, /a, hidden, 1", "set /a = /a, /a, hidden, 1"};
        QTest::newRow("typing, emptied")
            << QStringList{"focus", "type /ab = /ab, /ab, hidden, 1", "erase 1 = /a, /a, hidden, 2",
                           "erase 2 = , , hidden, 3"};
        QTest::newRow("the default path is reported each time") << QStringList{
            "default /d = , , on, 0", "set /d = /d, The default, off, 1", "set /d = /d, The default, off, 2",
            "set /x = /x, /x, on, 3", "set /x = /x, /x, on, 3"};
        QTest::newRow("the default path comes later")
            << QStringList{"set /d", "default /d = /d, /d, on, 1", "no default = /d, /d, hidden, 1"};
        QTest::newRow("at the default path") << QStringList{"default /d",
                                                            "set /d",
                                                            "focus = /d, , off, 1",
                                                            "leave = /d, The default, off, 1",
                                                            "focus = /d, , off, 1",
                                                            "leave = /d, The default, off, 1",
                                                            "focus",
                                                            "type /y = /y, /y, on, 2",
                                                            "leave = /y, /y, on, 2"};
        QTest::newRow("elsewhere; emptied is not reset") << QStringList{"default /d",
                                                                        "set /x",
                                                                        "focus = /x, /x, on, 1",
                                                                        "leave = /x, /x, on, 1",
                                                                        "focus",
                                                                        "erase 2 = , , on, 2",
                                                                        "leave = , , on, 2"};
        QTest::newRow("a default path without a text")
            << QStringList{"plain default /d = , , on, 0", "set /d = /d, /d, on, 1", "focus = /d, , on, 1",
                           "leave = /d, , on, 1"};
        // Two empty paths are equal, and the text is for the default path.
        QTest::newRow("without a default path") << QStringList{"focus = , , hidden, 0",
                                                               "leave = , , hidden, 0",
                                                               "no default",
                                                               "focus",
                                                               "leave = , The default, hidden, 0",
                                                               "focus = , , hidden, 0"};
        // Its text would take the place of what is typed, and the next key would make a path of that.
        QTest::newRow("typing through the default path") << QStringList{"default /d",
                                                                        "focus",
                                                                        "type /d = /d, /d, off, 1",
                                                                        "type /c = /d/c, /d/c, on, 2",
                                                                        "erase 2 = /d, /d, off, 3",
                                                                        "leave = /d, The default, off, 3"};
        QTest::newRow("reset") << QStringList{"default /d", "focus", "type /x",
                                              "reset = /d, The default, off, 2"};
        QTest::newRow("reset without a default path") << QStringList{"set /x", "reset = /x, /x, hidden, 1"};
    }

    void story()
    {
        QFETCH(QStringList, story);
        Clock clock;
        Window window;
        QVERIFY(window.present());
        QSignalSpy changed(window.field, &PathSelectionWidget::pathChanged);
        const auto act = [&window](const QString& verb, const QString& object) {
            if (verb == "set") {
                window.field->setPath(object);
            } else if (verb == "default") {
                window.field->setDefaultPath(object, folderText);
            } else if (verb == "plain") {
                window.field->setDefaultPath(object.section(' ', 1), QString());
            } else if (verb == "no") {
                window.field->setDefaultPath(QString(), folderText);
            } else if (verb == "focus") {
                window.edit()->setFocus();
            } else if (verb == "leave") {
                window.other->setFocus();
            } else if (verb == "type") {
                QTest::keyClicks(window.edit(), object);
            } else if (verb == "erase") {
                QTest::keyClicks(window.edit(), QString(object.toInt(), '\b'));
            } else {
                resetOf(window.field)->click();
            }
        };
        for (const QString& step : story) {
            const QString action = step.section(" = ", 0, 0);
            act(action.section(' ', 0, 0), action.section(' ', 1));
            clock.finish();
            const auto* reset = resetOf(window.field);
            const QString seen = QStringList{window.field->path(), window.edit()->text(),
                                             reset->isHidden()    ? "hidden"
                                             : reset->isEnabled() ? "on"
                                                                  : "off",
                                             QString::number(changed.count())}
                                     .join(", ");
            if (step.contains(" = ")) {
                QCOMPARE(action + " = " + seen, step);
            }
            QVERIFY(changed.isEmpty() || changed.last().first() == window.field->path());
            // The frame shows the focus; the reset button takes it from the line edit.
            QCOMPARE(frameOf(window.field)->property("focusHint").toBool(), window.edit()->hasFocus());
            QVERIFY(action != "reset" || !window.edit()->hasFocus());
        }
    }

    void burstIsMerged()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        field.setPath("/a");
        clock.start();
        field.setPath("/b");
        QTest::keyClicks(editOf(field), "c");
        clock.start();
        QCOMPARE(clock.posts, 1);
        clock.runOut();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), "/bc");
        clock.finish();
        QCOMPARE(changed.count(), 1);
    }

    // On a sleeping disk a question takes seconds.
    void typingTouchesNoDisk()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setDefaultPath("/x", folderText);
        field.show();
        const DiskQuestions questions;
        for (int i = 0; i < 1000; ++i) {
            QTest::keyClick(editOf(field), i % 7 == 0 ? Qt::Key_Slash : Qt::Key_X);
            if (i % 100 == 99) {
                clock.finish();
                editOf(field)->clear();
            }
        }
        field.setPath(m_root);
        resetOf(field)->click();
        clock.finish();
        QCOMPARE(questions.count, 0);
        // And the counter counts.
        field.checkPath();
        QVERIFY(questions.count > 0);
    }

    void eventsAreNotConsumed()
    {
        PathSelectionWidget field(nullptr);
        for (const auto type : {QEvent::FocusIn, QEvent::FocusOut}) {
            QFocusEvent event(type);
            QVERIFY(!field.eventFilter(editOf(field), &event));
        }
        QFocusEvent event(QEvent::FocusIn);
        QVERIFY(!field.eventFilter(browseOf(field), &event));
        QCOMPARE(frameOf(field)->property("focusHint"), QVariant(false));
    }

    void browseUrl_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("defaultPath");
        QTest::addColumn<QString>("displayText");
        QTest::addColumn<QUrl>("url");
        const QUrl computer = StandardFolderUrls::myComputerUrl();
        QTest::newRow("folder") << folder << QString() << QString() << QUrl::fromLocalFile(folder);
        QTest::newRow("odd characters")
            << "/a b#ä%20" << QString() << QString() << QUrl::fromLocalFile("/a b#ä%20");
        QTest::newRow("empty") << QString() << QString() << QString() << QUrl();
        QTest::newRow("empty, with a default path") << QString() << folder << folderText << QUrl();
        QTest::newRow("default path") << folder << folder << folderText << computer;
        QTest::newRow("default path without text") << folder << folder << QString() << computer;
        QTest::newRow("other than the default path")
            << "/x" << folder << folderText << QUrl::fromLocalFile("/x");
    }

    void browseUrl()
    {
        QFETCH(QString, path);
        QFETCH(QString, defaultPath);
        QFETCH(QString, displayText);
        PathSelectionWidget field(nullptr);
        field.setDefaultPath(defaultPath, displayText);
        field.setPath(path);
        QSignalSpy requested(&field, &PathSelectionWidget::browseDirectoryRequested);
        browseOf(field)->click();
        QCOMPARE(requested.count(), 1);
        QTEST(requested.first().first().toUrl(), "url");
        QCOMPARE(field.path(), path);
    }

    void checkOfPaths_data()
    {
        QTest::addColumn<QString>("path");  // %1: the test's folder
        QTest::addColumn<QString>("error"); // null: none; "*": that of FileUtil
        const QString none;
        const QString theirs = "*";
        QTest::newRow("folder") << "%1/folder" << none;
        QTest::newRow("link to a folder") << "%1/link" << none;
        QTest::newRow("missing, made in its closest folder") << "%1/folder/a/b/c" << none;
        QTest::newRow("dangling link") << "%1/dangling" << theirs;
        QTest::newRow("below a dangling link") << "%1/dangling/x" << theirs;
        QTest::newRow("markup and a new line in the name") << "%1/<b>bold</b>\nline" << none;
        QTest::newRow("empty") << QString() << theirs;
        QTest::newRow("file") << "%1/file" << theirs;
        QTest::newRow("below a file") << "%1/file/x" << theirs;
        QTest::newRow("4,096 characters") << "/" + QString("x/").repeated(2048) << theirs;
        QTest::newRow("relative") << "folder" << notWritable;
        QTest::newRow("relative and missing") << "no such folder" << notWritable;
        QTest::newRow("blanks") << "  " << notWritable;
        QTest::newRow("new lines") << "\n" << notWritable;
    }

    void checkOfPaths()
    {
        QFETCH(QString, path);
        QFETCH(QString, error);
        path.replace("%1", m_root);
        if (error == "*") {
            QVERIFY(!FileUtil::isPathValid(path, &error));
        }
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(PathSelectionWidget::Label);
        field.setPath(path);
        QCOMPARE(field.checkPath(), error.isEmpty());
        QCOMPARE(errorOf(field)->text(), error);
        QCOMPARE(isMarked(field), !error.isEmpty());
        QCOMPARE(field.path(), path);
    }

    void checkAsksPermissions_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("error");
        QTest::newRow("all") << 0777 << "folder" << QString();
        QTest::newRow("not readable") << 0333 << "folder" << notReadable;
        QTest::newRow("not writable") << 0555 << "folder" << notWritable;
        QTest::newRow("neither") << 0 << "folder" << notWritable;
        QTest::newRow("missing below one that is not readable") << 0333 << "folder/x/y" << notReadable;
        QTest::newRow("missing below one that is not writable") << 0555 << "folder/x/y" << notWritable;
    }

    void checkAsksPermissions()
    {
        QFETCH(int, mode);
        QFETCH(QString, name);
        QFETCH(QString, error);
        const QByteArray path = QFile::encodeName(at("folder"));
        QCOMPARE(chmod(path.constData(), static_cast<mode_t>(mode)), 0);
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(PathSelectionWidget::Label);
        field.setPath(at(name));
        const Answer answer = askAsNormalUser(
            [&] { return field.checkPath() == error.isEmpty() && errorOf(field)->text() == error; });
        QCOMPARE(chmod(path.constData(), 0755), 0);
        QCOMPARE(answer, Answer::Yes);
    }

    void checkOfAFolderRemovedMeanwhile()
    {
        PathSelectionWidget field(nullptr);
        const QString path = at("folder/inner");
        QTest::keyClicks(editOf(field), path);
        QVERIFY(field.checkPath());
        QVERIFY(QDir().rmdir(path));
        QVERIFY(field.checkPath());
        // Now it cannot be made any more.
        QVERIFY(QDir().rmdir(at("folder")));
        QFile file(at("folder"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(!field.checkPath());
    }

    void checkFunctionDecidesAlone()
    {
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(PathSelectionWidget::Label);
        QStringList asked;
        QString answer;
        field.setCheckPathFunc([&](const QString& path) {
            asked += path;
            return answer;
        });
        // Of no valid form, and in the place of a file: it is not asked.
        QVERIFY(!field.checkPath());
        field.setPath(at("file"));
        QVERIFY(!field.checkPath());
        QCOMPARE(asked, QStringList());
        // Relative, which the tests of permission refuse.
        field.setPath("relative");
        QVERIFY(field.checkPath());
        answer = "wrong";
        QVERIFY(!field.checkPath());
        QCOMPARE(errorOf(field)->text(), answer);
        QCOMPARE(asked, QStringList({"relative", "relative"}));

        field.setCheckPathFunc({});
        QVERIFY(!field.checkPath());
        QCOMPARE(errorOf(field)->text(), notWritable);
        QCOMPARE(asked.size(), 2);
    }

    void checkFunctionReplacedInsideItself()
    {
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(PathSelectionWidget::Label);
        field.setPath(m_root);
        // Long enough not to be kept in the string itself: used after the replacement.
        QString first(200, QLatin1Char('1'));
        field.setCheckPathFunc([&field, first](const QString&) {
            field.setCheckPathFunc([](const QString&) { return "second"; });
            return first;
        });
        QVERIFY(!field.checkPath());
        QCOMPARE(errorOf(field)->text(), first);
        QVERIFY(!field.checkPath());
        QCOMPARE(errorOf(field)->text(), "second");
    }

    void checkFunctionSetsAnotherPath()
    {
        PathSelectionWidget field(nullptr);
        field.setPath(m_root);
        QString seen;
        field.setCheckPathFunc([&](const QString& path) {
            field.setPath("/other");
            seen = path;
            return QString();
        });
        QVERIFY(field.checkPath());
        QCOMPARE(seen, m_root);
        QCOMPARE(field.path(), "/other");
    }

    void errorIsShown_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<QString>("label");
        QTest::newRow("tool tip") << 1 << notWritable << QString();
        QTest::newRow("label") << 2 << QString() << notWritable;
        for (const int type : {0, 3, -1}) {
            QTest::addRow("nowhere: %d", type) << type << QString() << QString();
        }
    }

    void errorIsShown()
    {
        QFETCH(int, type);
        QFETCH(QString, toolTip);
        QFETCH(QString, label);
        Window window;
        QVERIFY(window.present());
        window.field->setErrorDisplayType(static_cast<PathSelectionWidget::ErrorDisplayType>(type));
        window.field->setPath("relative");
        QVERIFY(!window.field->checkPath());
        QVERIFY(window.edit()->hasFocus());
        QCOMPARE(window.edit()->selectedText(), "relative");
        QVERIFY(isMarked(*window.field));
        QCOMPARE(window.edit()->toolTip(), toolTip);
        QCOMPARE(QToolTip::isVisible(), !toolTip.isEmpty());
        QCOMPARE(QToolTip::text(), toolTip);
        QCOMPARE(errorOf(window.field)->text(), label);
        QCOMPARE(errorOf(window.field)->isVisible(), !label.isEmpty());
    }

    // The line edit's place in its frame is counted twice, which puts the tip a little lower.
    void toolTipIsShownAtTheLineEdit()
    {
        Window window;
        window.field->setStyleSheet("#pathSelectionFrame { padding: 7px; }");
        QVERIFY(window.present());
        window.field->setPath("relative");
        QVERIFY(!window.field->checkPath());
        const QLineEdit* edit = window.edit();
        QVERIFY(edit->x() >= 7 && edit->y() >= 7);
        const QWidget* tip = toolTipWindow();
        QVERIFY(tip);
        const QPoint shownAt = tip->pos();
        const QPoint expected = edit->mapToGlobal(QPoint(edit->x(), edit->y() + edit->height() / 2));
        QToolTip::showText(expected, notWritable + QLatin1Char(' '), window.edit());
        QCOMPARE(toolTipWindow(), tip);
        QCOMPARE(shownAt, tip->pos());
        // The tip follows the spot.
        QToolTip::showText(expected + QPoint(3, 5), notWritable, window.edit());
        QCOMPARE(shownAt + QPoint(3, 5), tip->pos());
    }

    void toolTipGoesWithTheNextKey()
    {
        Clock clock;
        Window window;
        QVERIFY(window.present());
        window.field->setPath("relative");
        clock.finish();
        QVERIFY(!window.field->checkPath());
        QVERIFY(QToolTip::isVisible());
        QTest::keyClicks(window.edit(), "/");
        QCOMPARE(window.edit()->toolTip(), QString());
        QTRY_VERIFY(!QToolTip::isVisible());
        // That of another widget stays.
        QToolTip::showText(window.other->mapToGlobal(QPoint()), "other", window.other);
        QTest::keyClicks(window.edit(), "x");
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), "other");
        // The mark waits for the report.
        QVERIFY(isMarked(*window.field));
        clock.finish();
        QVERIFY(!isMarked(*window.field));
        // What the widget writes itself counts as well.
        window.edit()->setToolTip("tip");
        window.field->setPath("/y");
        QCOMPARE(window.edit()->toolTip(), QString());
    }

    void reportClearsMarkAndLabel()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(PathSelectionWidget::Label);
        field.setPath("relative");
        clock.finish();
        QVERIFY(!field.checkPath());
        // A check that succeeds clears nothing: the report does, after its slots.
        field.setPath(m_root);
        QVERIFY(field.checkPath());
        QVERIFY(isMarked(field));
        QVERIFY(!errorOf(field)->isHidden());
        bool isMarkedInSlot = false;
        bool isLabelHiddenInSlot = true;
        connect(&field, &PathSelectionWidget::pathChanged, this, [&] {
            isMarkedInSlot = isMarked(field);
            isLabelHiddenInSlot = errorOf(field)->isHidden();
        });
        clock.finish();
        QVERIFY(isMarkedInSlot);
        QVERIFY(!isLabelHiddenInSlot);
        QVERIFY(!isMarked(field));
        QVERIFY(errorOf(field)->isHidden());
    }

    void markupIsShownAsItStands_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("isPlain");
        QTest::newRow("plain") << "No folder: a & b, 1 < 2" << true;
        QTest::newRow("new lines") << "one\ntwo" << true;
        QTest::newRow("tag") << "No folder: <b>a</b>" << false;
        QTest::newRow("picture") << "<img src=\"/etc/x.png\">" << false;
        QTest::newRow("entity") << "a &lt;b&gt; &amp;" << false;
        QTest::newRow("tag, new lines and blanks") << "<i>a</i>\n  two" << false;
        QTest::newRow("placeholder of a text") << "<b>%1 %L2</b>" << false;
    }

    void markupIsShownAsItStands()
    {
        QFETCH(QString, message);
        QFETCH(bool, isPlain);
        Window window;
        QVERIFY(window.present());
        window.field->setPath(m_root);
        window.field->setCheckPathFunc([message](const QString&) { return message; });
        QVERIFY(!window.field->checkPath());
        const QString tip = window.edit()->toolTip();
        QCOMPARE(tip == message, isPlain);
        QCOMPARE(QToolTip::text(), tip);
        if (isPlain) {
            QVERIFY(!Qt::mightBeRichText(tip));
        } else {
            QVERIFY(Qt::mightBeRichText(tip));
            QTextDocument document;
            document.setHtml(tip);
            QCOMPARE(document.toPlainText(), message);
        }
        window.field->setErrorDisplayType(PathSelectionWidget::Label);
        QVERIFY(!window.field->checkPath());
        QCOMPARE(errorOf(*window.field)->text(), message);
        QCOMPARE(errorOf(*window.field)->textFormat(), Qt::PlainText);
    }

    void longMessageDoesNotWidenTheField()
    {
        Window window;
        QVERIFY(window.present());
        const int width = window.field->minimumSizeHint().width();
        window.field->setErrorDisplayType(PathSelectionWidget::Label);
        window.field->setPath(at("file/") + QString(200, QLatin1Char('x')));
        QVERIFY(!window.field->checkPath());
        QVERIFY(errorOf(*window.field)->isVisible());
        QCOMPARE(window.field->minimumSizeHint().width(), width);
        QCoreApplication::processEvents();
        QCOMPARE(window.width(), 400);
    }

    void spaceText_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("size");
        QTest::newRow("not known") << qint64(-1) << "...";
        QTest::newRow("min") << std::numeric_limits<qint64>::min() << "...";
        for (const qint64 bytes : {qint64(0), qint64(1), qint64(1023), qint64(1024), qint64(1536),
                                   qint64(1) << 40, std::numeric_limits<qint64>::max()}) {
            QTest::addRow("%lld", static_cast<long long>(bytes))
                << bytes << Orvane::Util::FormatFileSize(bytes);
        }
    }

    void spaceText()
    {
        QFETCH(qint64, bytes);
        QFETCH(QString, size);
        PathSelectionWidget field(nullptr);
        field.showRequiredSpace(true, bytes);
        field.showAvailableSpace(false, bytes);
        QCOMPARE(requiredOf(field)->text(), "Required: " + size);
        QCOMPARE(availableOf(field)->text(), "Available: " + size);
    }

    void spaceVisibility()
    {
        PathSelectionWidget field(nullptr);
        for (const bool isRequired : {true, false}) {
            for (const bool isAvailable : {true, false}) {
                field.showRequiredSpace(isRequired, 1);
                field.showAvailableSpace(isAvailable, 2);
                QCOMPARE(!requiredOf(field)->isHidden(), isRequired);
                QCOMPARE(!availableOf(field)->isHidden(), isAvailable);
                QCOMPARE(!spaceOf(field)->isHidden(), isRequired || isAvailable);
            }
        }
    }

    void spaceFiguresFollowTheLanguage()
    {
        PathSelectionWidget field(nullptr);
        field.showRequiredSpace(true, 2048);
        {
            const MarkingTranslator widgetTexts("PathSelectionWidget");
            const MarkingTranslator units("FormatFileSize");
            const QString size = Orvane::Util::FormatFileSize(2048);
            QCOMPARE(requiredOf(field)->text(), QString("<Required: %1>").arg(size));
            QVERIFY(size.contains(QLatin1Char('<')));
            // A figure that was never given stays without a text.
            QCOMPARE(availableOf(field)->text(), QString());
            field.showAvailableSpace(false, -1);
            QCOMPARE(availableOf(field)->text(), "<Available: ...>");
        }
        QCOMPARE(requiredOf(field)->text(), "Required: 2 KB");
        QCOMPARE(availableOf(field)->text(), "Available: ...");
        QVERIFY(availableOf(field)->isHidden());
    }

    void messagesFollowTheLanguage_data()
    {
        QTest::addColumn<bool>("isLabel");
        QTest::addColumn<bool>("isOwn");
        QTest::newRow("tool tip") << false << true;
        QTest::newRow("label") << true << true;
        QTest::newRow("tool tip of the host") << false << false;
        QTest::newRow("label of the host") << true << false;
    }

    void messagesFollowTheLanguage()
    {
        QFETCH(bool, isLabel);
        QFETCH(bool, isOwn);
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(isLabel ? PathSelectionWidget::Label : PathSelectionWidget::Tooltip);
        field.setPath("relative");
        clock.finish();
        // The words may be the same.
        if (!isOwn) {
            field.setCheckPathFunc([](const QString&) { return notWritable; });
        }
        QVERIFY(!field.checkPath());
        const auto shown = [&] {
            if (isLabel) {
                return errorOf(field)->text();
            }
            return editOf(field)->toolTip();
        };
        {
            const MarkingTranslator translator("PathSelectionWidget");
            QCOMPARE(shown(), isOwn ? QString("<%1>").arg(notWritable) : notWritable);
        }
        QCOMPARE(shown(), notWritable);

        // What is gone does not come back.
        QTest::keyClicks(editOf(field), "x");
        const MarkingTranslator translator("PathSelectionWidget");
        QCOMPARE(editOf(field)->toolTip(), QString());
    }

    void pathSetByASlot()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(PathSelectionWidget::Label);
        QStringList seen;
        connect(&field, &PathSelectionWidget::pathChanged, this, [&] {
            if (seen.isEmpty()) {
                field.setPath("corrected");
            }
        });
        connect(&field, &PathSelectionWidget::pathChanged, this, [&](const QString& path) { seen += path; });
        field.setPath("typed");
        QVERIFY(!field.checkPath());
        clock.finish();
        // The second slot sees the same report as the first.
        QCOMPARE(seen, QStringList({"typed"}));
        QCOMPARE(field.path(), "corrected");
        QVERIFY(!isMarked(field));
        QVERIFY(errorOf(field)->isHidden());
        clock.finish();
        QCOMPARE(seen, QStringList({"typed", "corrected"}));
    }

    void destroyedWhileFocused_data()
    {
        QTest::addColumn<bool>("isWindow");
        QTest::addColumn<bool>("isWindowDeleted");
        QTest::newRow("field") << false << false;
        QTest::newRow("its window") << false << true;
        QTest::newRow("field as window") << true << true;
    }

    void destroyedWhileFocused()
    {
        QFETCH(bool, isWindow);
        QFETCH(bool, isWindowDeleted);
        Clock clock;
        auto* window = isWindow ? nullptr : new QWidget;
        const QPointer<PathSelectionWidget> field = new PathSelectionWidget(window);
        field->setStyleSheet("OvFrame[focusHint=\"true\"] { border: 2px solid red; }");
        field->setDefaultPath(folder, folderText);
        field->setPath(folder);
        field->window()->show();
        field->window()->activateWindow();
        editOf(*field)->setFocus();
        QTRY_VERIFY(editOf(*field)->hasFocus());
        int reports = 0;
        connect(field.data(), &PathSelectionWidget::pathChanged, this, [&reports] { ++reports; });
        std::unique_ptr<QWidget>(isWindowDeleted ? field->window() : field.data()).reset();
        QVERIFY(!field);
        clock.finish();
        QCOMPARE(reports, 0);
        if (!isWindowDeleted) {
            delete window;
        }
    }

private:
    QString at(const QString& name) const { return m_root + QLatin1Char('/') + name; }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_root;
};

UIC_TEST_MAIN(tst_PathSelectionWidget)
#include "tst_PathSelectionWidget.moc"
