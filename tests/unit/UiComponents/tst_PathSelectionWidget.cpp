#include "FreedMemory.h"
#include "MarkingTranslator.h"
#include "MetaObject.h"
#include "NormalUser.h"
#include "TestMain.h"

#include <DesignElements/TesselLineEdit.h>
#include <EditorUtility/FileUtil.h>
#include <QtUtility/FormatFileSize.h>
#include <Settings/StandardFolderUrls.h>
#include <UiComponents/PathSelectionWidget.h>

#include <QAbstractEventDispatcher>
#include <QBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QTextDocument>
#include <QTimerEvent>
#include <QToolButton>
#include <QToolTip>

#include <dlfcn.h>
#include <functional>
#include <memory>
#include <sys/stat.h>

namespace {

/// How often the library asked the platform about the disk.
int diskQuestions = 0;

template <typename Function>
Function original(const char* symbol)
{
    ++diskQuestions;
    // POSIX guarantees what C++ does not: an object pointer holds a function's address.
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

} // namespace

// In the program these stand before those of the shared library, which they count and pass on.
bool FileUtil::isPathValid(const QString& path, QString* error)
{
    return original<decltype(&FileUtil::isPathValid)>("_ZN8FileUtil11isPathValidERK7QStringPS0_")(path,
                                                                                                  error);
}

QString FileUtil::closestPath(const QString& path)
{
    return original<decltype(&FileUtil::closestPath)>("_ZN8FileUtil11closestPathERK7QString")(path);
}

bool FileUtil::isOperationAllowed(const QString& path, Operations operations)
{
    return original<decltype(&FileUtil::isOperationAllowed)>(
        "_ZN8FileUtil18isOperationAllowedERK7QString6QFlagsINS_9OperationEE")(path, operations);
}

namespace {

const QString notReadable = QStringLiteral("Selected path is not readable");
const QString notWritable = QStringLiteral("Selected path is not writable");

template <typename Widget>
Widget* part(const PathSelectionWidget& field, const char* name)
{
    return field.findChild<Widget*>(QLatin1String(name));
}

OvFrame* spaceOf(const PathSelectionWidget& field)
{
    return part<OvFrame>(field, "spaceInfoFrame");
}
OvFrame* frameOf(const PathSelectionWidget& field)
{
    return part<OvFrame>(field, "pathSelectionFrame");
}
QLineEdit* editOf(const PathSelectionWidget& field)
{
    return part<QLineEdit>(field, "pathLineEdit");
}
QToolButton* browseOf(const PathSelectionWidget& field)
{
    return part<QToolButton>(field, "pathBrowseButton");
}
QToolButton* resetOf(const PathSelectionWidget& field)
{
    return part<QToolButton>(field, "pathResetButton");
}
QLabel* requiredOf(const PathSelectionWidget& field)
{
    return part<QLabel>(field, "requiredLabel");
}
QLabel* availableOf(const PathSelectionWidget& field)
{
    return part<QLabel>(field, "availableLabel");
}
QLabel* errorOf(const PathSelectionWidget& field)
{
    return part<QLabel>(field, "errorLabel");
}

bool isMarked(const PathSelectionWidget& field)
{
    return frameOf(field)->property("styleHint").toString() == QLatin1String("error");
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

/// A field and another one, in an active window.
class Window : public QWidget
{
public:
    Window()
        : field(new PathSelectionWidget(this))
        , other(new QLineEdit(this))
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(field);
        layout->addWidget(other);
        resize(400, 120);
        move(100, 100);
    }

    bool present()
    {
        show();
        activateWindow();
        other->setFocus();
        return QTest::qWaitForWindowActive(this);
    }

    QLineEdit* edit() const { return editOf(*field); }

    PathSelectionWidget* const field;
    QLineEdit* const other;
};

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

const QString folder = QStringLiteral("/default/folder");
const QString folderText = QStringLiteral("The default");

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
        QVERIFY(QDir(m_root).mkpath(QStringLiteral("folder/inner")));
        QFile file(at(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(at(QStringLiteral("nowhere")), at(QStringLiteral("dangling"))));
        QVERIFY(QFile::link(at(QStringLiteral("folder")), at(QStringLiteral("link"))));
        QVERIFY(QDir(m_root).mkpath(QStringLiteral("<b>bold</b>\nline")));
    }

    void cleanup()
    {
        QToolTip::hideText();
        m_folder.reset();
    }

    void metaObject()
    {
        const QMetaObject& meta = PathSelectionWidget::staticMetaObject;
        QCOMPARE(QByteArray(meta.className()), QByteArray("PathSelectionWidget"));
        QCOMPARE(meta.superClass(), &OvFrame::staticMetaObject);
        QCOMPARE(ownMethods(meta), QStringList({QStringLiteral("signal pathChanged(QString)"),
                                                QStringLiteral("signal browseDirectoryRequested(QUrl)")}));
        QCOMPARE(meta.method(meta.methodOffset()).parameterNames(), QList<QByteArray>{"path"});
        QCOMPARE(meta.method(meta.methodOffset() + 1).parameterNames(), QList<QByteArray>{"url"});
        QCOMPARE(ownProperties(meta), QStringList());
        QCOMPARE(static_cast<int>(PathSelectionWidget::ErrorDisplayType::Tooltip), 1);
        QCOMPARE(static_cast<int>(PathSelectionWidget::ErrorDisplayType::Label), 2);
    }

    void children()
    {
        QWidget parent;
        const PathSelectionWidget field(&parent);
        QCOMPARE(field.parentWidget(), &parent);
        const auto childrenOf = [](const QWidget* widget) {
            QStringList result;
            const auto children = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
            for (const QWidget* child : children) {
                result += child->objectName() + QLatin1Char(' ') +
                          QString::fromLatin1(child->metaObject()->className());
            }
            return result;
        };
        QCOMPARE(childrenOf(&field), QStringList({QStringLiteral("spaceInfoFrame OvFrame"),
                                                  QStringLiteral("pathSelectionFrame OvFrame"),
                                                  QStringLiteral("errorLabel QLabel")}));
        QCOMPARE(childrenOf(spaceOf(field)), QStringList({QStringLiteral("requiredLabel QLabel"),
                                                          QStringLiteral("availableLabel QLabel")}));
        QCOMPARE(childrenOf(frameOf(field)),
                 QStringList({QStringLiteral("pathLineEdit Orvane::Tessel::TesselLineEdit"),
                              QStringLiteral("pathBrowseButton QToolButton"),
                              QStringLiteral("pathResetButton QToolButton")}));

        const auto* column = qobject_cast<QBoxLayout*>(field.layout());
        const auto* spaces = qobject_cast<QBoxLayout*>(spaceOf(field)->layout());
        const auto* row = qobject_cast<QBoxLayout*>(frameOf(field)->layout());
        QVERIFY(column && spaces && row);
        for (const QBoxLayout* layout : {column, spaces, row}) {
            QCOMPARE(layout->contentsMargins(), QMargins());
            QCOMPARE(layout->spacing(), 0);
        }
        QCOMPARE(column->direction(), QBoxLayout::TopToBottom);
        QCOMPARE(column->count(), 3);
        QCOMPARE(spaces->direction(), QBoxLayout::LeftToRight);
        QCOMPARE(spaces->count(), 3);
        QVERIFY(spaces->itemAt(2)->spacerItem());
        QCOMPARE(row->count(), 3);
        QCOMPARE(row->stretch(0), 1);
        QCOMPARE(row->stretch(1), 0);
        QCOMPARE(row->stretch(2), 0);
    }

    void startsEmpty()
    {
        const PathSelectionWidget field(nullptr);
        QVERIFY(!field.parentWidget());
        QCOMPARE(field.path(), QString());
        QCOMPARE(field.defaultPath(), QString());
        QCOMPARE(editOf(field)->text(), QString());
        QCOMPARE(editOf(field)->property("kitVersion"), QVariant(QStringLiteral("1.0")));
        QCOMPARE(errorOf(field)->property("styleHint"), QVariant(QStringLiteral("error")));
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
        field.setBrowseButtonTooltip(QStringLiteral("browse"));
        field.setResetButtonTooltip(QStringLiteral("reset"));
        QCOMPARE(browseOf(field)->toolTip(), QStringLiteral("browse"));
        QCOMPARE(resetOf(field)->toolTip(), QStringLiteral("reset"));
    }

    void setPathShowsAndReports()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        field.setPath(QStringLiteral("/a"));
        QCOMPARE(field.path(), QStringLiteral("/a"));
        QCOMPARE(editOf(field)->text(), QStringLiteral("/a"));
        QCOMPARE(changed.count(), 0);
        clock.start();
        QCOMPARE(clock.interval, 100);
        QCOMPARE(clock.type, Qt::CoarseTimer);
        QCOMPARE(changed.count(), 0);
        clock.runOut();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), QStringLiteral("/a"));
        QVERIFY(!clock.isTimerRunning());
    }

    void setPathWithTheSamePathReportsNothing()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setPath(QStringLiteral("/a"));
        clock.finish();
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        field.setPath(QStringLiteral("/a"));
        clock.finish();
        QCOMPARE(changed.count(), 0);
        QCOMPARE(clock.posts, 1);
    }

    void setPathWithTheDefaultPathAlwaysReports()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setDefaultPath(folder, folderText);
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        for (int i = 1; i <= 2; ++i) {
            field.setPath(folder);
            QCOMPARE(field.path(), folder);
            QCOMPARE(editOf(field)->text(), folderText);
            clock.finish();
            QCOMPARE(changed.count(), i);
            QCOMPARE(changed.last().first().toString(), folder);
        }
    }

    void lineEditIsWrittenOnlyIfItDiffers()
    {
        PathSelectionWidget field(nullptr);
        QTest::keyClicks(editOf(field), QStringLiteral("/abc"));
        editOf(field)->setCursorPosition(2);
        QTest::keyClick(editOf(field), Qt::Key_X);
        // Written by the widget, the text would put the cursor at its end and forget what can be undone.
        QCOMPARE(field.path(), QStringLiteral("/axbc"));
        QCOMPARE(editOf(field)->cursorPosition(), 3);
        QVERIFY(editOf(field)->isUndoAvailable());
    }

    void pathIsStoredLast()
    {
        PathSelectionWidget field(nullptr);
        field.setDefaultPath(folder, folderText);
        QStringList paths;
        connect(editOf(field), &QLineEdit::textChanged, this, [&] { paths += field.path(); });
        field.setPath(QStringLiteral("/a"));
        field.setPath(folder);
        QCOMPARE(paths, QStringList({QString(), QStringLiteral("/a")}));
    }

    void setPathWithItsOwnPath()
    {
        PathSelectionWidget field(nullptr);
        field.setPath(QStringLiteral("/a"));
        editOf(field)->setText(QStringLiteral("/b"));
        field.setPath(field.path());
        QCOMPARE(field.path(), QStringLiteral("/b"));
    }

    void pathOfAnyForm_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("relative") << QStringLiteral("a/b");
        QTest::newRow("blanks") << QStringLiteral("  /a b  ");
        QTest::newRow("new lines") << QStringLiteral("/a\nb\r\nc");
        QTest::newRow("markup") << QStringLiteral("/<b>a</b>&amp;");
        QTest::newRow("unclean") << QStringLiteral("//a/../b/./");
        QTest::newRow("4,096 characters") << QStringLiteral("/") + QString(4095, QLatin1Char('x'));
        QTest::newRow("outside of the first plane") << QStringLiteral("/\U0001F3AC");
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

    void typingIsThePath()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        QTest::keyClicks(editOf(field), QStringLiteral("/ab"));
        QCOMPARE(field.path(), QStringLiteral("/ab"));
        QTest::keyClick(editOf(field), Qt::Key_Backspace);
        QCOMPARE(field.path(), QStringLiteral("/a"));
        clock.finish();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), QStringLiteral("/a"));
        editOf(field)->clear();
        QCOMPARE(field.path(), QString());
    }

    // Its text would take the place of what is typed, and the next key would make a path of that.
    void typingThroughTheDefaultPath()
    {
        Clock clock;
        Window window;
        window.field->setDefaultPath(QStringLiteral("/ab"), folderText);
        QVERIFY(window.present());
        QSignalSpy changed(window.field, &PathSelectionWidget::pathChanged);
        window.edit()->setFocus();
        QTest::keyClicks(window.edit(), QStringLiteral("/ab"));
        QCOMPARE(window.edit()->text(), QStringLiteral("/ab"));
        QCOMPARE(window.field->path(), QStringLiteral("/ab"));
        QVERIFY(!resetOf(*window.field)->isEnabled());

        QTest::keyClicks(window.edit(), QStringLiteral("/c"));
        QCOMPARE(window.edit()->text(), QStringLiteral("/ab/c"));
        QCOMPARE(window.field->path(), QStringLiteral("/ab/c"));
        QVERIFY(resetOf(*window.field)->isEnabled());

        QTest::keyClick(window.edit(), Qt::Key_Backspace);
        QTest::keyClick(window.edit(), Qt::Key_Backspace);
        clock.finish();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), QStringLiteral("/ab"));
        QCOMPARE(window.edit()->text(), QStringLiteral("/ab"));
        window.other->setFocus();
        QCOMPARE(window.edit()->text(), folderText);
        QCOMPARE(window.field->path(), QStringLiteral("/ab"));
    }

    void burstIsMerged()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        field.setPath(QStringLiteral("/a"));
        clock.start();
        field.setPath(QStringLiteral("/b"));
        QTest::keyClicks(editOf(field), QStringLiteral("c"));
        clock.start();
        QCOMPARE(clock.posts, 1);
        clock.runOut();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), QStringLiteral("/bc"));
        clock.finish();
        QCOMPARE(changed.count(), 1);
    }

    // A debounce would put the report off with every key.
    void timerIsNotRestarted()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        field.setPath(QStringLiteral("/a"));
        clock.start();
        clock.interval = -1;
        for (int i = 0; i < 10; ++i) {
            field.setPath(QString::number(i));
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
            QVERIFY(clock.isTimerRunning());
        }
        QCOMPARE(clock.posts, 1);
        clock.runOut();
        QCOMPARE(changed.count(), 1);
    }

    void editAfterTheCallStartsANewBurst()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        field.setPath(QStringLiteral("/a"));
        clock.finish();
        field.setPath(QStringLiteral("/b"));
        QCOMPARE(changed.count(), 1);
        clock.finish();
        QCOMPARE(changed.count(), 2);
        QCOMPARE(clock.posts, 2);
    }

    void editInsideTheSlotStartsANewBurst()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        QStringList paths;
        connect(&field, &PathSelectionWidget::pathChanged, this, [&](const QString& path) {
            paths += path;
            field.setPath(QStringLiteral("/b"));
        });
        field.setPath(QStringLiteral("/a"));
        clock.finish();
        clock.finish();
        clock.finish();
        QCOMPARE(paths, QStringList({QStringLiteral("/a"), QStringLiteral("/b")}));
    }

    void tenThousandEditsPostOneEvent()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        for (int i = 0; i < 10'000; ++i) {
            field.setPath(QString::number(i));
        }
        clock.start();
        QCOMPARE(clock.posts, 1);
        clock.runOut();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), QStringLiteral("9999"));
    }

    // On a sleeping disk a question takes seconds.
    void typingTouchesNoDisk()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setDefaultPath(QStringLiteral("/x"), folderText);
        field.show();
        diskQuestions = 0;
        int typed = 0;
        while (typed < 10'000) {
            editOf(field)->clear();
            for (int i = 0; i < 100; ++i, ++typed) {
                QTest::keyClick(editOf(field), typed % 7 == 0 ? Qt::Key_Slash : Qt::Key_X);
            }
            clock.finish();
        }
        field.setPath(m_root);
        resetOf(field)->click();
        clock.finish();
        QCOMPARE(diskQuestions, 0);
        // And the counter counts.
        field.setPath(at(QStringLiteral("missing")));
        QVERIFY(field.checkPath());
        QCOMPARE(diskQuestions, 4);
    }

    void setDefaultPathLeavesTheLineEdit()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setPath(folder);
        clock.finish();
        QSignalSpy changed(&field, &PathSelectionWidget::pathChanged);
        field.setDefaultPath(folder, folderText);
        QCOMPARE(field.defaultPath(), folder);
        QCOMPARE(field.path(), folder);
        QCOMPARE(editOf(field)->text(), folder);
        clock.finish();
        QCOMPARE(changed.count(), 0);
    }

    void resetButtonShowsWithADefaultPath()
    {
        PathSelectionWidget field(nullptr);
        field.setDefaultPath(folder, QString());
        QVERIFY(!resetOf(field)->isHidden());
        field.setDefaultPath(QString(), folderText);
        QVERIFY(resetOf(field)->isHidden());
    }

    void resetGoesToTheDefaultPath()
    {
        Window window;
        window.field->setDefaultPath(folder, folderText);
        QVERIFY(window.present());
        window.edit()->setFocus();
        QTest::keyClicks(window.edit(), QStringLiteral("/x"));
        QTest::mouseClick(resetOf(*window.field), Qt::LeftButton);
        QCOMPARE(window.field->path(), folder);
        QCOMPARE(window.edit()->text(), folderText);
        QVERIFY(!window.edit()->hasFocus());
        QCOMPARE(frameOf(*window.field)->property("focusHint"), QVariant(false));
    }

    void resetWithoutADefaultPathDoesNothing()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setPath(QStringLiteral("/x"));
        clock.finish();
        resetOf(field)->click();
        clock.finish();
        QCOMPARE(field.path(), QStringLiteral("/x"));
        QCOMPARE(clock.posts, 1);
    }

    void resetButtonIsDisabledAtTheDefaultPath()
    {
        PathSelectionWidget field(nullptr);
        field.setDefaultPath(folder, folderText);
        QVERIFY(resetOf(field)->isEnabled());
        field.setPath(folder);
        QVERIFY(!resetOf(field)->isEnabled());
        field.setPath(QStringLiteral("/x"));
        QVERIFY(resetOf(field)->isEnabled());
        field.setPath(QStringLiteral("/x"));
        QVERIFY(resetOf(field)->isEnabled());
    }

    void defaultPathWithoutText()
    {
        PathSelectionWidget field(nullptr);
        field.setDefaultPath(folder, QString());
        field.setPath(folder);
        QCOMPARE(editOf(field)->text(), folder);
        QVERIFY(resetOf(field)->isEnabled());
    }

    void focusInAndOutAtTheDefaultPath()
    {
        Clock clock;
        Window window;
        window.field->setDefaultPath(folder, folderText);
        window.field->setPath(folder);
        clock.finish();
        QVERIFY(window.present());
        QCOMPARE(window.edit()->text(), folderText);
        for (int i = 0; i < 2; ++i) {
            window.edit()->setFocus();
            QCOMPARE(window.edit()->text(), QString());
            QCOMPARE(window.field->path(), folder);
            window.other->setFocus();
            QCOMPARE(window.edit()->text(), folderText);
            QCOMPARE(window.field->path(), folder);
        }
        // Its own writing is no edit.
        clock.finish();
        QCOMPARE(clock.posts, 1);
    }

    void focusInAndOutElsewhere()
    {
        Window window;
        window.field->setDefaultPath(folder, folderText);
        window.field->setPath(QStringLiteral("/x"));
        QVERIFY(window.present());
        window.edit()->setFocus();
        QCOMPARE(window.edit()->text(), QStringLiteral("/x"));
        window.other->setFocus();
        QCOMPARE(window.edit()->text(), QStringLiteral("/x"));
        window.edit()->setFocus();
        window.edit()->selectAll();
        QTest::keyClick(window.edit(), Qt::Key_Delete);
        window.other->setFocus();
        // Emptied is not reset.
        QCOMPARE(window.edit()->text(), QString());
        QCOMPARE(window.field->path(), QString());
    }

    void focusWithoutADefaultPath()
    {
        Window window;
        QVERIFY(window.present());
        window.edit()->setFocus();
        window.other->setFocus();
        QCOMPARE(window.edit()->text(), QString());
        // Two empty paths are equal, and the text is for the default path.
        window.field->setDefaultPath(QString(), folderText);
        window.edit()->setFocus();
        window.other->setFocus();
        QCOMPARE(window.edit()->text(), folderText);
        window.edit()->setFocus();
        QCOMPARE(window.edit()->text(), QString());
        QCOMPARE(window.field->path(), QString());
    }

    void focusAtADefaultPathWithoutText()
    {
        Window window;
        window.field->setDefaultPath(folder, QString());
        window.field->setPath(folder);
        QVERIFY(window.present());
        window.edit()->setFocus();
        QCOMPARE(window.edit()->text(), QString());
        window.other->setFocus();
        QCOMPARE(window.edit()->text(), QString());
        QCOMPARE(window.field->path(), folder);
    }

    void typingAtTheDefaultPath()
    {
        Window window;
        window.field->setDefaultPath(folder, folderText);
        window.field->setPath(folder);
        QVERIFY(window.present());
        window.edit()->setFocus();
        QTest::keyClicks(window.edit(), QStringLiteral("/y"));
        QCOMPARE(window.field->path(), QStringLiteral("/y"));
        window.other->setFocus();
        QCOMPARE(window.edit()->text(), QStringLiteral("/y"));
    }

    void focusHint()
    {
        Window window;
        QVERIFY(window.present());
        window.edit()->setFocus();
        QCOMPARE(frameOf(*window.field)->property("focusHint"), QVariant(true));
        browseOf(*window.field)->setFocus();
        QCOMPARE(frameOf(*window.field)->property("focusHint"), QVariant(false));
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
        QTest::newRow("odd characters") << QStringLiteral("/a b#ä%20") << QString() << QString()
                                        << QUrl::fromLocalFile(QStringLiteral("/a b#ä%20"));
        QTest::newRow("empty") << QString() << QString() << QString() << QUrl();
        QTest::newRow("empty, with a default path") << QString() << folder << folderText << QUrl();
        QTest::newRow("default path") << folder << folder << folderText << computer;
        QTest::newRow("default path without text") << folder << folder << QString() << computer;
        QTest::newRow("other than the default path")
            << QStringLiteral("/x") << folder << folderText << QUrl::fromLocalFile(QStringLiteral("/x"));
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
        const QString theirs = QStringLiteral("*");
        QTest::newRow("folder") << QStringLiteral("%1/folder") << none;
        QTest::newRow("link to a folder") << QStringLiteral("%1/link") << none;
        QTest::newRow("missing, made in its closest folder") << QStringLiteral("%1/folder/a/b/c") << none;
        QTest::newRow("dangling link") << QStringLiteral("%1/dangling") << theirs;
        QTest::newRow("below a dangling link") << QStringLiteral("%1/dangling/x") << theirs;
        QTest::newRow("markup and a new line in the name") << QStringLiteral("%1/<b>bold</b>\nline") << none;
        QTest::newRow("empty") << QString() << theirs;
        QTest::newRow("file") << QStringLiteral("%1/file") << theirs;
        QTest::newRow("below a file") << QStringLiteral("%1/file/x") << theirs;
        QTest::newRow("4,096 characters")
            << QStringLiteral("/") + QStringLiteral("x/").repeated(2048) << theirs;
        QTest::newRow("relative") << QStringLiteral("folder") << notWritable;
        QTest::newRow("relative and missing") << QStringLiteral("no such folder") << notWritable;
        QTest::newRow("blanks") << QStringLiteral("  ") << notWritable;
        QTest::newRow("new lines") << QStringLiteral("\n") << notWritable;
    }

    void checkOfPaths()
    {
        QFETCH(QString, path);
        QFETCH(QString, error);
        path.replace(QLatin1String("%1"), m_root);
        if (error == QLatin1String("*")) {
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
        QTest::newRow("all") << 0777 << QStringLiteral("folder") << QString();
        QTest::newRow("not readable") << 0333 << QStringLiteral("folder") << notReadable;
        QTest::newRow("not writable") << 0555 << QStringLiteral("folder") << notWritable;
        QTest::newRow("neither") << 0 << QStringLiteral("folder") << notWritable;
        QTest::newRow("missing below one that is not readable")
            << 0333 << QStringLiteral("folder/x/y") << notReadable;
        QTest::newRow("missing below one that is not writable")
            << 0555 << QStringLiteral("folder/x/y") << notWritable;
    }

    void checkAsksPermissions()
    {
        QFETCH(int, mode);
        QFETCH(QString, name);
        QFETCH(QString, error);
        const QByteArray path = QFile::encodeName(at(QStringLiteral("folder")));
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
        const QString path = at(QStringLiteral("folder/inner"));
        QTest::keyClicks(editOf(field), path);
        QVERIFY(field.checkPath());
        QVERIFY(QDir().rmdir(path));
        QVERIFY(field.checkPath());
        // Now it cannot be made any more.
        QVERIFY(QDir().rmdir(at(QStringLiteral("folder"))));
        QFile file(at(QStringLiteral("folder")));
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
        // Relative, which the tests of permission refuse.
        field.setPath(QStringLiteral("relative"));
        diskQuestions = 0;
        QVERIFY(field.checkPath());
        QCOMPARE(diskQuestions, 1);
        answer = QStringLiteral("wrong");
        QVERIFY(!field.checkPath());
        QCOMPARE(errorOf(field)->text(), answer);
        QCOMPARE(asked, QStringList({QStringLiteral("relative"), QStringLiteral("relative")}));

        field.setCheckPathFunc({});
        QVERIFY(!field.checkPath());
        QCOMPARE(errorOf(field)->text(), notWritable);
        QCOMPARE(asked.size(), 2);
    }

    void checkFunctionIsNotAskedAboutInvalidPaths()
    {
        PathSelectionWidget field(nullptr);
        bool asked = false;
        field.setCheckPathFunc([&](const QString&) {
            asked = true;
            return QString();
        });
        QVERIFY(!field.checkPath());
        field.setPath(at(QStringLiteral("file")));
        QVERIFY(!field.checkPath());
        QVERIFY(!asked);
    }

    void checkFunctionReplacedInsideItself()
    {
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(PathSelectionWidget::Label);
        field.setPath(m_root);
        // Long enough not to be kept in the string itself: used after the replacement.
        QString first(200, QLatin1Char('1'));
        field.setCheckPathFunc([&field, first](const QString&) {
            field.setCheckPathFunc([](const QString&) { return QStringLiteral("second"); });
            return first;
        });
        QVERIFY(!field.checkPath());
        QCOMPARE(errorOf(field)->text(), first);
        QVERIFY(!field.checkPath());
        QCOMPARE(errorOf(field)->text(), QStringLiteral("second"));
    }

    void checkFunctionSetsAnotherPath()
    {
        PathSelectionWidget field(nullptr);
        field.setPath(m_root);
        QString seen;
        field.setCheckPathFunc([&](const QString& path) {
            field.setPath(QStringLiteral("/other"));
            seen = path;
            return QString();
        });
        QVERIFY(field.checkPath());
        QCOMPARE(seen, m_root);
        QCOMPARE(field.path(), QStringLiteral("/other"));
    }

    void checkFunctionDeletesTheWidget_data()
    {
        QTest::addColumn<QString>("error");
        QTest::newRow("good") << QString();
        QTest::newRow("wrong") << QStringLiteral("wrong");
    }

    void checkFunctionDeletesTheWidget()
    {
        QFETCH(QString, error);
        QPointer<PathSelectionWidget> field = new PathSelectionWidget(nullptr);
        field->setPath(m_root);
        field->setCheckPathFunc([&field, error](const QString& path) {
            delete field;
            return path.isEmpty() ? QStringLiteral("lost") : error;
        });
        QCOMPARE(field->checkPath(), error.isEmpty());
        QVERIFY(!field);
    }

    void errorTakesTheKeyboard()
    {
        Window window;
        QVERIFY(window.present());
        window.field->setPath(QStringLiteral("relative"));
        QSignalSpy selected(window.edit(), &QLineEdit::selectionChanged);
        QVERIFY(!window.field->checkPath());
        QVERIFY(window.edit()->hasFocus());
        QCOMPARE(window.edit()->selectedText(), QStringLiteral("relative"));
        QVERIFY(selected.count() > 0);
        QVERIFY(isMarked(*window.field));
        QCOMPARE(frameOf(*window.field)->property("focusHint"), QVariant(true));
    }

    void errorAsToolTip()
    {
        Window window;
        QVERIFY(window.present());
        window.field->setPath(QStringLiteral("relative"));
        QVERIFY(!window.field->checkPath());
        QCOMPARE(window.edit()->toolTip(), notWritable);
        QCOMPARE(QToolTip::text(), notWritable);
        QVERIFY(QToolTip::isVisible());
        QVERIFY(errorOf(*window.field)->isHidden());
        QCOMPARE(errorOf(*window.field)->text(), QString());
    }

    // The line edit's place in its frame is counted twice, which puts the tip a little lower.
    void toolTipIsShownAtTheLineEdit()
    {
        Window window;
        window.field->setStyleSheet(QStringLiteral("#pathSelectionFrame { padding: 7px; }"));
        QVERIFY(window.present());
        window.field->setPath(QStringLiteral("relative"));
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

    void errorAsLabel()
    {
        Window window;
        QVERIFY(window.present());
        window.field->setErrorDisplayType(PathSelectionWidget::Label);
        window.field->setPath(QStringLiteral("relative"));
        QVERIFY(!window.field->checkPath());
        QCOMPARE(errorOf(*window.field)->text(), notWritable);
        QVERIFY(errorOf(*window.field)->isVisible());
        QCOMPARE(window.edit()->toolTip(), QString());
        QVERIFY(!QToolTip::isVisible());
    }

    void errorShownNowhere()
    {
        Window window;
        QVERIFY(window.present());
        for (const int type : {0, 3, -1}) {
            window.other->setFocus();
            window.field->setErrorDisplayType(static_cast<PathSelectionWidget::ErrorDisplayType>(type));
            window.field->setPath(QStringLiteral("relative"));
            QVERIFY(!window.field->checkPath());
            QVERIFY(isMarked(*window.field));
            QVERIFY(window.edit()->hasFocus());
            QVERIFY(errorOf(*window.field)->isHidden());
            QCOMPARE(window.edit()->toolTip(), QString());
            QVERIFY(!QToolTip::isVisible());
        }
    }

    void toolTipGoesWithTheNextKey()
    {
        Clock clock;
        Window window;
        QVERIFY(window.present());
        window.field->setPath(QStringLiteral("relative"));
        clock.finish();
        QVERIFY(!window.field->checkPath());
        QVERIFY(QToolTip::isVisible());
        QTest::keyClicks(window.edit(), QStringLiteral("/"));
        QCOMPARE(window.edit()->toolTip(), QString());
        QTRY_VERIFY(!QToolTip::isVisible());
        // That of another widget stays.
        QToolTip::showText(window.other->mapToGlobal(QPoint()), QStringLiteral("other"), window.other);
        QTest::keyClicks(window.edit(), QStringLiteral("x"));
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("other"));
        // The mark waits for the report.
        QVERIFY(isMarked(*window.field));
        clock.finish();
        QVERIFY(!isMarked(*window.field));
        // What the widget writes itself counts as well.
        window.edit()->setToolTip(QStringLiteral("tip"));
        window.field->setPath(QStringLiteral("/y"));
        QCOMPARE(window.edit()->toolTip(), QString());
    }

    void reportClearsMarkAndLabel()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(PathSelectionWidget::Label);
        field.setPath(QStringLiteral("relative"));
        clock.finish();
        QVERIFY(!field.checkPath());
        bool isMarkedInSlot = false;
        bool isLabelHiddenInSlot = true;
        connect(&field, &PathSelectionWidget::pathChanged, this, [&] {
            isMarkedInSlot = isMarked(field);
            isLabelHiddenInSlot = errorOf(field)->isHidden();
        });
        field.setPath(QStringLiteral("/x"));
        QVERIFY(isMarked(field));
        clock.finish();
        QVERIFY(isMarkedInSlot);
        QVERIFY(!isLabelHiddenInSlot);
        QVERIFY(!isMarked(field));
        QVERIFY(errorOf(field)->isHidden());
    }

    void successClearsNothing()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(PathSelectionWidget::Label);
        field.setPath(QStringLiteral("relative"));
        clock.finish();
        QVERIFY(!field.checkPath());
        field.setPath(m_root);
        QVERIFY(field.checkPath());
        QVERIFY(isMarked(field));
        QVERIFY(!errorOf(field)->isHidden());
        clock.finish();
        QVERIFY(!isMarked(field));
    }

    void markupIsShownAsItStands_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("isPlain");
        QTest::newRow("plain") << QStringLiteral("No folder: a & b, 1 < 2") << true;
        QTest::newRow("new lines") << QStringLiteral("one\ntwo") << true;
        QTest::newRow("tag") << QStringLiteral("No folder: <b>a</b>") << false;
        QTest::newRow("picture") << QStringLiteral("<img src=\"/etc/x.png\">") << false;
        QTest::newRow("entity") << QStringLiteral("a &lt;b&gt; &amp;") << false;
        QTest::newRow("tag, new lines and blanks") << QStringLiteral("<i>a</i>\n  two") << false;
        QTest::newRow("placeholder of a text") << QStringLiteral("<b>%1 %L2</b>") << false;
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
        window.field->setPath(at(QStringLiteral("file/")) + QString(200, QLatin1Char('x')));
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
        QTest::newRow("not known") << qint64(-1) << QStringLiteral("...");
        QTest::newRow("least") << std::numeric_limits<qint64>::min() << QStringLiteral("...");
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
        QCOMPARE(requiredOf(field)->text(), QStringLiteral("Required: ") + size);
        QCOMPARE(availableOf(field)->text(), QStringLiteral("Available: ") + size);
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
        MarkingTranslator widgetTexts("PathSelectionWidget");
        MarkingTranslator units("FormatFileSize");
        QCoreApplication::installTranslator(&widgetTexts);
        QCoreApplication::installTranslator(&units);
        QCoreApplication::sendPostedEvents();
        const QString size = Orvane::Util::FormatFileSize(2048);
        const QString shown = requiredOf(field)->text();
        // A figure that was never given stays without a text.
        const QString notShown = availableOf(field)->text();
        field.showAvailableSpace(false, -1);
        const QString unknown = availableOf(field)->text();
        QCoreApplication::removeTranslator(&widgetTexts);
        QCoreApplication::removeTranslator(&units);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(shown, QStringLiteral("<Required: %1>").arg(size));
        QVERIFY(size.contains(QLatin1Char('<')));
        QCOMPARE(notShown, QString());
        QCOMPARE(unknown, QStringLiteral("<Available: ...>"));
        QCOMPARE(requiredOf(field)->text(), QStringLiteral("Required: 2 KB"));
        QCOMPARE(availableOf(field)->text(), QStringLiteral("Available: ..."));
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
        field.setPath(QStringLiteral("relative"));
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
        MarkingTranslator translator("PathSelectionWidget");
        QCoreApplication::installTranslator(&translator);
        QCoreApplication::sendPostedEvents();
        const QString translated = shown();
        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(translated, isOwn ? QStringLiteral("<%1>").arg(notWritable) : notWritable);
        QCOMPARE(shown(), notWritable);

        // What is gone does not come back.
        QTest::keyClicks(editOf(field), QStringLiteral("x"));
        QCoreApplication::installTranslator(&translator);
        QCoreApplication::sendPostedEvents();
        const QString gone = editOf(field)->toolTip();
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(gone, QString());
    }

    void pathSetByASlot()
    {
        Clock clock;
        PathSelectionWidget field(nullptr);
        field.setErrorDisplayType(PathSelectionWidget::Label);
        QStringList seen;
        connect(&field, &PathSelectionWidget::pathChanged, this, [&] {
            if (seen.isEmpty()) {
                field.setPath(QStringLiteral("corrected"));
            }
        });
        connect(&field, &PathSelectionWidget::pathChanged, this, [&](const QString& path) { seen += path; });
        field.setPath(QStringLiteral("typed"));
        QVERIFY(!field.checkPath());
        clock.finish();
        // The second slot sees the same report as the first.
        QCOMPARE(seen, QStringList({QStringLiteral("typed")}));
        QCOMPARE(field.path(), QStringLiteral("corrected"));
        QVERIFY(!isMarked(field));
        QVERIFY(errorOf(field)->isHidden());
        clock.finish();
        QCOMPARE(seen, QStringList({QStringLiteral("typed"), QStringLiteral("corrected")}));
    }

    void deletedInsidePathChanged()
    {
        Clock clock;
        QPointer<PathSelectionWidget> field = new PathSelectionWidget(nullptr);
        connect(field.data(), &PathSelectionWidget::pathChanged, this, [&field] { delete field; });
        field->setPath(QStringLiteral("/x"));
        clock.finish();
        QVERIFY(!field);
    }

    void deletedWithACallPending_data()
    {
        QTest::addColumn<bool>("isTimerRunning");
        QTest::newRow("before the event") << false;
        QTest::newRow("before the timer") << true;
    }

    void deletedWithACallPending()
    {
        QFETCH(bool, isTimerRunning);
        Clock clock;
        auto field = std::make_unique<PathSelectionWidget>(nullptr);
        int reports = 0;
        connect(field.get(), &PathSelectionWidget::pathChanged, this, [&reports] { ++reports; });
        field->setPath(QStringLiteral("/x"));
        if (isTimerRunning) {
            clock.start();
            QVERIFY(clock.isTimerRunning());
        }
        field.reset();
        clock.finish();
        QCOMPARE(reports, 0);
        QVERIFY(!clock.isTimerRunning());
    }

    // QToolButton writes into itself after a click.
    void deletedInsideBrowse()
    {
        QPointer<PathSelectionWidget> field = new PathSelectionWidget(nullptr);
        connect(field.data(), &PathSelectionWidget::browseDirectoryRequested, this,
                [&field] { delete field; });
        field->show();
        const FreedMemoryWatch memory;
        QTest::mouseClick(browseOf(*field), Qt::LeftButton);
        QVERIFY(!field);
        QVERIFY(memory.deleted() > 0);
        QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
    }

    void deletedByTheResetButton()
    {
        QPointer<PathSelectionWidget> field = new PathSelectionWidget(nullptr);
        field->setDefaultPath(folder, folderText);
        field->show();
        connect(resetOf(*field), &QToolButton::clicked, this, [&field] { delete field; });
        const FreedMemoryWatch memory;
        QTest::mouseClick(resetOf(*field), Qt::LeftButton);
        QVERIFY(!field);
        QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
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
        field->setStyleSheet(QStringLiteral("OvFrame[focusHint=\"true\"] { border: 2px solid red; }"));
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

    void tabOrder()
    {
        Window window;
        window.field->setDefaultPath(folder, folderText);
        QVERIFY(window.present());
        window.edit()->setFocus();
        QTest::keyClick(window.edit(), Qt::Key_Tab);
        QVERIFY(browseOf(*window.field)->hasFocus());
        QTest::keyClick(browseOf(*window.field), Qt::Key_Tab);
        QVERIFY(resetOf(*window.field)->hasFocus());
        QTest::keyClick(resetOf(*window.field), Qt::Key_Tab);
        QVERIFY(window.other->hasFocus());
    }

    void rightToLeft()
    {
        Window window;
        window.setLayoutDirection(Qt::RightToLeft);
        window.field->setDefaultPath(folder, folderText);
        window.field->showRequiredSpace(true, 1);
        window.field->showAvailableSpace(true, 1);
        QVERIFY(window.present());
        QVERIFY(resetOf(*window.field)->x() < browseOf(*window.field)->x());
        QVERIFY(browseOf(*window.field)->x() < window.edit()->x());
        QVERIFY(availableOf(*window.field)->x() < requiredOf(*window.field)->x());
        QCOMPARE(requiredOf(*window.field)->geometry().right(), spaceOf(*window.field)->rect().right());
    }

private:
    QString at(const QString& name) const { return m_root + QLatin1Char('/') + name; }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_root;
};

UIC_TEST_MAIN(tst_PathSelectionWidget)
#include "tst_PathSelectionWidget.moc"
