// What Qt by itself does not survive, or leaves behind: the reasons of rows in Exceptions.cpp, shown without
// this library. A case that is no longer seen, as with another Qt, fails: its row can go. Off the screen all
// but one are shown, and on a screen that one, which needs OpenGL.

#include "AccessibleEars.h"
#include "FreedMemory.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QQuickWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStringListModel>
#include <QTemporaryDir>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>
#include <QtTest>

#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

constexpr unsigned patience = 5; // s

/// Whether it shows by itself. Most write into memory that was freed, crash, or never return.
using Case = bool (*)();

void bring(QWidget& window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    QCoreApplication::processEvents();
}

/// Two line edits, of which the first has the focus and was edited.
struct Window : QWidget
{
    Window()
    {
        second->move(0, 50);
        bring(*this);
        first->setFocus();
        QTest::keyClick(first, Qt::Key_A);
    }

    QLineEdit* const first = new QLineEdit(this);
    QLineEdit* const second = new QLineEdit(this);
};

bool focusTakerIsDeleted()
{
    const Window window;
    QObject::connect(window.first, &QLineEdit::editingFinished, window.second,
                     [&window] { delete window.second; });
    window.second->setFocus();
    return false;
}

bool hiddenWidgetIsDeleted()
{
    const Window window;
    QObject::connect(window.first, &QLineEdit::editingFinished, window.first,
                     [&window] { delete window.first; });
    window.first->hide();
    return false;
}

/// Says so when its language changes.
class Speaker : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange) {
            setWindowTitle(QStringLiteral("a"));
        }
    }
};

bool changedSiblingIsDeleted()
{
    QWidget window;
    const Speaker speaker(&window);
    auto* const sibling = new QWidget(&window);
    QObject::connect(&speaker, &QWidget::windowTitleChanged, sibling, [sibling] { delete sibling; });
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&window, &event);
    return false;
}

/// Deletes a widget that gets an event of @p type.
class Remover : public QObject
{
public:
    explicit Remover(QEvent::Type type)
        : m_type(type)
    {
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != m_type) {
            return false;
        }
        watched->removeEventFilter(this);
        delete watched;
        event->accept();
        return true;
    }

private:
    const QEvent::Type m_type;
};

/// A window with a part in its corner.
struct Corner : QWidget
{
    explicit Corner(QEvent::Type deadly)
        : remover(deadly)
    {
        part->installEventFilter(&remover);
        resize(300, 300);
        bring(*this);
    }

    Remover remover;
    QWidget* const part = new QWidget(this);
};

bool widgetIsDeletedAsTheCursorLeaves()
{
    Corner window(QEvent::Leave);
    for (const QPoint& point : {QPoint(9, 9), QPoint(200, 200)}) {
        QTest::mouseMove(window.windowHandle(), point);
        QCoreApplication::processEvents();
    }
    return false;
}

/// It is sent a context menu event next.
bool widgetIsDeletedInARightPress()
{
    Corner window(QEvent::MouseButtonPress);
    QTest::mousePress(window.windowHandle(), Qt::RightButton, Qt::NoModifier, QPoint(9, 9));
    return false;
}

/// It is remembered as the one that is scrolled.
bool widgetIsDeletedByATouchpad()
{
    const Corner window(QEvent::Wheel);
    QWheelEvent event({9.0, 9.0}, {9.0, 9.0}, {0, 9}, {0, 9}, Qt::NoButton, Qt::NoModifier, Qt::ScrollBegin,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window.part, &event);
    return false;
}

bool movedWidgetStaysTheFocus()
{
    QWidget window;
    QWidget other;
    auto* const part = new QWidget(&window);
    auto* const edit = new QLineEdit(part);
    bring(window);
    edit->setFocus();
    part->hide();
    part->setFocus();
    part->setParent(&other);
    return window.focusWidget() == edit;
}

bool activatedWindowBecomesAPart()
{
    QWidget window;
    QWidget other;
    auto* const button = new QToolButton(&window);
    other.show();
    bring(window);
    window.activateWindow();
    QCoreApplication::processEvents();
    button->setFocus();
    button->setDown(true);
    QObject::connect(button, &QToolButton::released, &other, [&] { other.setParent(&window); });
    other.activateWindow();
    QCoreApplication::processEvents();
    return false;
}

bool dyingWindowGetsAChild()
{
    auto* const window = new Window;
    auto* const button = new QToolButton(window);
    button->setFocusPolicy(Qt::StrongFocus);
    button->show();
    button->setFocus();
    button->setDown(true);
    QObject::connect(button, &QToolButton::released, button,
                     [window] { (new QWidget)->setParent(window->second); });
    delete window;
    return false;
}

bool partWithNativePartMoves()
{
    auto* const window = new QWidget;
    auto* const part = new QWidget(window);
    auto* const native = new QDialog(window);
    bring(*window);
    bring(*native);
    native->setParent(nullptr);
    native->setParent(part);
    part->setParent(nullptr);
    delete window;
    delete part;
    return false;
}

bool animatedButtonIsDeleted()
{
    auto* const button = new QToolButton;
    QObject::connect(button, &QToolButton::pressed, button, [button] { delete button; });
    button->animateClick();
    return false;
}

bool releasedButtonIsDeleted()
{
    Window window;
    auto* const button = new QToolButton(&window);
    button->setFocusPolicy(Qt::StrongFocus);
    button->show();
    button->setFocus();
    QTest::mousePress(button, Qt::LeftButton);
    QObject::connect(button, &QToolButton::released, button, [button] { delete button; });
    window.first->setFocus();
    return false;
}

bool toggledButtonIsDeleted()
{
    auto* const button = new QToolButton;
    button->setCheckable(true);
    QObject::connect(button, &QToolButton::toggled, button, [button] { delete button; });
    button->click();
    return false;
}

bool viewIsDeleted()
{
    QStringListModel model({QStringLiteral("a"), QStringLiteral("b")});
    auto* const view = new QListView;
    view->setModel(&model);
    bring(*view);
    QObject::connect(view, &QListView::pressed, view, [view] { delete view; });
    QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier, {5, 5});
    return false;
}

bool viewIsSteppedInALoop()
{
    QStringListModel model({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    QListView view;
    view.setModel(&model);
    bool isLost = false;
    QObject::connect(view.selectionModel(), &QItemSelectionModel::currentChanged, &view,
                     [&](const QModelIndex& current, const QModelIndex&) {
                         if (current.row() == 1) {
                             view.setCurrentIndex(model.index(2));
                             isLost = current.model() != &model;
                         }
                     });
    view.setCurrentIndex(model.index(1));
    return isLost;
}

/// Its contents are as wide as its window.
class WideList : public QListView
{
protected:
    void resizeEvent(QResizeEvent* event) override
    {
        resizeContents(viewport()->width(), contentsSize().height());
        QListView::resizeEvent(event);
    }
};

bool emptyGridIsWalkedForEver()
{
    QStringListModel model(QStringList(QVector<QString>(40, QStringLiteral("a")).toList()));
    WideList view;
    view.setModel(&model);
    view.setGridSize({0, 20});
    view.resize(200, 100);
    bring(view);
    view.setCurrentIndex(model.index(20));
    QTest::keyClick(&view, Qt::Key_Right);
    return false;
}

bool comboBoxIsDeleted()
{
    auto* const box = new QComboBox;
    box->addItems({QStringLiteral("a"), QStringLiteral("b")});
    QObject::connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), box, [box] { delete box; });
    box->setCurrentIndex(1);
    return false;
}

bool dialogIsDeleted()
{
    auto* const dialog = new QDialog;
    dialog->show();
    QObject::connect(dialog, &QDialog::rejected, dialog, [dialog] { delete dialog; });
    dialog->reject();
    return false;
}

bool lineEditIsDeleted()
{
    auto* const edit = new QLineEdit;
    bring(*edit);
    QObject::connect(edit, &QLineEdit::textChanged, edit, [edit] { delete edit; });
    QTest::keyClick(edit, Qt::Key_A);
    return false;
}

/// Does something when it is undone.
class Command : public QUndoCommand
{
public:
    explicit Command(std::function<void()> act)
        : m_act(std::move(act))
    {
    }
    void undo() override { m_act(); }

private:
    const std::function<void()> m_act;
};

bool undoStackIsDeleted()
{
    auto* const stack = new QUndoStack;
    stack->push(new Command([stack] { delete stack; }));
    stack->undo();
    return false;
}

bool undoStackIsPushedInUndo()
{
    QUndoStack stack;
    stack.push(new Command([] {}));
    stack.push(new Command([&stack] { stack.push(new Command([] {})); }));
    stack.undo();
    return stack.index() != stack.count(); // What was pushed is not the last that was done.
}

/// Without the focus, whose loss releases it.
struct ButtonWindow : Window
{
    ButtonWindow()
    {
        button->setFocusPolicy(Qt::NoFocus);
        button->move(0, 100);
        button->show();
        resize(200, 200);
        QCoreApplication::processEvents();
    }

    void click(Qt::MouseButton mouseButton) const
    {
        QTest::mouseClick(windowHandle(), mouseButton, Qt::NoModifier, button->geometry().center());
    }

    QToolButton* const button = new QToolButton(this);
};

bool hiddenButtonStaysPressed()
{
    const ButtonWindow window;
    QObject::connect(window.button, &QToolButton::pressed, window.button, &QWidget::hide);
    window.click(Qt::LeftButton);
    return window.button->isDown();
}

bool blockedButtonStaysPressed()
{
    const ButtonWindow window;
    QDialog dialog;
    dialog.setModal(true);
    QObject::connect(window.button, &QToolButton::pressed, &dialog, &QWidget::show);
    window.click(Qt::LeftButton);
    return window.button->isDown();
}

bool secondReleaseIsLost()
{
    const ButtonWindow window;
    const QPoint place = window.first->geometry().center();
    QTest::mousePress(window.windowHandle(), Qt::RightButton, Qt::NoModifier, place);
    delete window.first;
    window.click(Qt::LeftButton);
    return window.button->isDown();
}

bool activatedWindowIsDeleted()
{
    auto* const other = new QWidget;
    other->show();
    const Window window;
    QObject::connect(window.first, &QLineEdit::editingFinished, other, [other] { delete other; });
    other->activateWindow();
    QCoreApplication::processEvents();
    return false;
}

bool deactivatedWindowIsDeleted()
{
    struct Filter : QObject
    {
        bool eventFilter(QObject* object, QEvent* event) override
        {
            const bool isMeant = event->type() == QEvent::FocusOut && object == window->first;
            if (isMeant) {
                delete window;
            }
            return isMeant;
        }
        Window* const window = new Window;
    };
    Filter filter;
    filter.window->first->installEventFilter(&filter);
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    return false;
}

/// The slider does not get it.
bool menuTakesARelease()
{
    QSlider slider;
    bring(slider);
    const QPoint middle = slider.rect().center();
    QTest::mousePress(slider.windowHandle(), Qt::LeftButton, {}, middle);
    slider.setSliderDown(true);
    QMenu menu;
    menu.addAction(QStringLiteral("a"));
    menu.popup(slider.mapToGlobal(middle));
    QTest::mouseRelease(menu.windowHandle(), Qt::LeftButton, {}, QPoint(1, 1));
    menu.close();
    return slider.isSliderDown();
}

/// Its parent gets the press.
bool spinBoxKeepsARelease()
{
    struct Parent : QWidget
    {
        void mousePressEvent(QMouseEvent*) override { isDown = true; }
        void mouseReleaseEvent(QMouseEvent*) override { isDown = false; }
        bool isDown = false;
    };
    Parent parent;
    QSpinBox box(&parent);
    parent.show();
    const QPoint edge(0, 0);
    QTest::mousePress(&box, Qt::LeftButton, {}, edge);
    const bool isGiven = parent.isDown;
    QTest::mouseRelease(&box, Qt::LeftButton, {}, edge);
    return isGiven && parent.isDown;
}

bool hiddenScrollBarStaysPressed()
{
    QScrollBar bar(Qt::Horizontal);
    bar.resize(200, 20);
    bring(bar);
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, {30, 10});
    bar.hide();
    bar.show();
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, {30, 10});
    return bar.isSliderDown();
}

/// Whether there is an event in each of a hundred turns.
bool goesOn()
{
    static int count = 0;
    class Counter : public QObject
    {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            Q_UNUSED(watched)
            count += event->type() == QEvent::Timer ? 0 : 1;
            return false;
        }
    };
    Counter counter;
    qApp->installEventFilter(&counter);
    constexpr int turns = 100;
    for (int i = 0; i < turns; ++i) {
        QCoreApplication::processEvents();
    }
    return count > turns / 2;
}

/// A picture that keeps its proportions.
class Picture : public QWidget
{
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return {240, 160}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return (width * 160 + 120) / 240; }
};

bool tinyScrollAreaGoesOn()
{
    QScrollArea area;
    area.setWidgetResizable(true);
    area.setWidget(new QWidget);
    auto* const layout = new QVBoxLayout(area.widget());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new Picture);
    bring(area);
    area.resize(0, 300);
    QCoreApplication::processEvents();
    area.resize(3, 0);
    return goesOn();
}

bool smallListOfABoxGoesOn()
{
    QWidget window;
    QComboBox box(&window);
    for (int i = 0; i < 30; ++i) {
        box.addItem(QString::number(i));
    }
    bring(window);
    box.showPopup();
    box.view()->window()->resize(100, 7);
    return goesOn();
}

/// Deletes itself when it is asked whether a key is its own.
class Overrider : public QWidget
{
protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ShortcutOverride) {
            delete this;
            return true;
        }
        return QWidget::event(event);
    }
};

bool overridingWidgetIsDeleted()
{
    auto* const widget = new Overrider;
    bring(*widget);
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
    return false;
}

/// By the one to whom a child of it says that it goes.
bool dyingButtonIsRead()
{
    const AccessibleEars ears;
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        if (event->type() == QAccessible::ObjectHide) {
            event->accessibleInterface()->parent()->text(QAccessible::Name);
        }
    });
    auto* const button = new QToolButton;
    new QLabel(button);
    bring(*button);
    reader(button);
    delete button;
    return false;
}

bool sizelessDialogIsNotModal()
{
    QDialog dialog;
    dialog.setModal(true);
    bring(dialog);
    dialog.resize(0, 30);
    return dialog.isVisible() && QApplication::activeModalWidget() != &dialog;
}

class Closer : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            static_cast<QWidget*>(watched)->close();
        }
        return false;
    }
};

bool menuClosedWhileItOpens()
{
    Closer closer;
    QMenu menu;
    menu.addAction(QStringLiteral("a"));
    menu.installEventFilter(&closer);
    menu.exec(QPoint(10, 10));
    return false;
}

/// It keeps the functions of an OpenGL context that is made anew, for the window's.
bool grabbedSceneIsResized()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("scene.qml")));
    if (!file.open(QIODevice::WriteOnly) ||
        file.write("import QtQuick 2.15\nItem { width: 90; height: 60 }") < 0) {
        return false;
    }
    file.close();
    QWidget window;
    QQuickWidget scene(&window);
    scene.setSource(QUrl::fromLocalFile(file.fileName()));
    window.grab();
    window.show();
    if (QTest::qWaitForWindowExposed(&window)) {
        scene.resize(200, 100);
    }
    return false;
}

/// In a process of its own, which may do anything.
bool isSeen(Case run, int argc, char** argv)
{
    const pid_t child = fork();
    if (child == 0) {
        dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
        alarm(patience);
        const QApplication application(argc, argv);
        const FreedMemoryWatch watch;
        const bool isShown = run();
        _exit(isShown || watch.writtenAfterwards() > 0 ? 1 : 0);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && status != 0;
}

} // namespace

int main(int argc, char** argv)
{
    const bool isOnScreen = qEnvironmentVariable("QT_QPA_PLATFORM") != QLatin1String("offscreen");
    const std::vector<std::pair<const char*, Case>> onScreen{
        {"grabbedSceneIsResized", grabbedSceneIsResized}};
    const std::vector<std::pair<const char*, Case>> offScreen{
        {"focusTakerIsDeleted", focusTakerIsDeleted},
        {"hiddenWidgetIsDeleted", hiddenWidgetIsDeleted},
        {"changedSiblingIsDeleted", changedSiblingIsDeleted},
        {"widgetIsDeletedAsTheCursorLeaves", widgetIsDeletedAsTheCursorLeaves},
        {"widgetIsDeletedInARightPress", widgetIsDeletedInARightPress},
        {"widgetIsDeletedByATouchpad", widgetIsDeletedByATouchpad},
        {"movedWidgetStaysTheFocus", movedWidgetStaysTheFocus},
        {"activatedWindowBecomesAPart", activatedWindowBecomesAPart},
        {"dyingWindowGetsAChild", dyingWindowGetsAChild},
        {"partWithNativePartMoves", partWithNativePartMoves},
        {"animatedButtonIsDeleted", animatedButtonIsDeleted},
        {"releasedButtonIsDeleted", releasedButtonIsDeleted},
        {"toggledButtonIsDeleted", toggledButtonIsDeleted},
        {"viewIsDeleted", viewIsDeleted},
        {"viewIsSteppedInALoop", viewIsSteppedInALoop},
        {"emptyGridIsWalkedForEver", emptyGridIsWalkedForEver},
        {"comboBoxIsDeleted", comboBoxIsDeleted},
        {"dialogIsDeleted", dialogIsDeleted},
        {"lineEditIsDeleted", lineEditIsDeleted},
        {"undoStackIsDeleted", undoStackIsDeleted},
        {"undoStackIsPushedInUndo", undoStackIsPushedInUndo},
        {"hiddenButtonStaysPressed", hiddenButtonStaysPressed},
        {"blockedButtonStaysPressed", blockedButtonStaysPressed},
        {"secondReleaseIsLost", secondReleaseIsLost},
        {"activatedWindowIsDeleted", activatedWindowIsDeleted},
        {"hiddenScrollBarStaysPressed", hiddenScrollBarStaysPressed},
        {"spinBoxKeepsARelease", spinBoxKeepsARelease},
        {"deactivatedWindowIsDeleted", deactivatedWindowIsDeleted},
        {"menuTakesARelease", menuTakesARelease},
        {"tinyScrollAreaGoesOn", tinyScrollAreaGoesOn},
        {"smallListOfABoxGoesOn", smallListOfABoxGoesOn},
        {"overridingWidgetIsDeleted", overridingWidgetIsDeleted},
        {"dyingButtonIsRead", dyingButtonIsRead},
        {"sizelessDialogIsNotModal", sizelessDialogIsNotModal},
        {"menuClosedWhileItOpens", menuClosedWhileItOpens},
    };
    int unseen = 0;
    for (const auto& [name, run] : isOnScreen ? onScreen : offScreen) {
        const bool isThere = isSeen(run, argc, argv);
        std::fprintf(stderr, "%s: %s\n", name, isThere ? "seen" : "not seen");
        unseen += isThere ? 0 : 1;
    }
    return qMin(unseen, 1);
}
