#include "Invariants.h"

#include "Clock.h"
#include "Exceptions.h"
#include "FreedMemory.h"
#include "Journal.h"
#include "RealUser.h"
#include "World.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAbstractSlider>
#include <QApplication>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QMutex>
#include <QThread>
#include <QWindow>
#include <QtCore/private/qobject_p.h>

#include <csignal>
#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <typeinfo>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/asan_interface.h>
#endif

// What Qt offers to debuggers: functions to be called for every object that is made and that dies.
extern Q_CORE_EXPORT quintptr qtHookData[]; // NOLINT(modernize-avoid-c-arrays)

namespace {

constexpr int addObjectHook = 3;
constexpr int removeObjectHook = 4;
constexpr qint64 maxStep = 1000; // ms
constexpr qint64 maxWait = 3000;

using Objects = std::set<QObject*>; // in an order that has nothing to do with those of other threads
// Never destroyed: objects die after main(), too.
Objects& objects = *new Objects;
Objects& before = *new Objects;
QMutex mutex;
std::map<QObject*, int>& timersBefore = *new std::map<QObject*, int>;
qint64 stepBegan = 0;
qint64 waitedBefore = 0;
volatile std::sig_atomic_t wasStopped = 0;
#ifndef __SANITIZE_ADDRESS__
std::unique_ptr<FreedMemoryWatch> memory;
#endif
QString delivered; // the events, since it was emptied

void added(QObject* object)
{
    const QMutexLocker lock(&mutex);
    objects.insert(object);
}

void removed(QObject* object)
{
    const QMutexLocker lock(&mutex);
    objects.erase(object);
    before.erase(object);
}

/// The class of @p object, also where it has no meta-object of its own.
QByteArray typeOf(const QObject* object)
{
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(*object).name(), nullptr, nullptr, nullptr), &std::free);
    return name.get();
}

bool isQts(const QObject* object)
{
    const QByteArray path = Invariants::libraryOf(object);
    return path.contains("/libQt5") || path.contains("/qt5/");
}

QString names(const QVector<QObject*>& found)
{
    QStringList list;
    for (const QObject* object : found) {
        list += QString::fromUtf8(typeOf(object)) + QLatin1Char(' ') + object->objectName();
    }
    return list.join(QStringLiteral(", "));
}

/// The application's event filters, which Qt alone knows.
Objects filters()
{
    Objects found;
    if (const auto* const extra = QObjectPrivate::get(qApp)->extraData) {
        for (const QPointer<QObject>& filter : extra->eventFilters) {
            found.insert(filter);
        }
    }
    found.erase(nullptr);
    return found;
}

/// Of this thread, that were not there before the first window.
QVector<QObject*> newOnes(const Objects& among)
{
    const QMutexLocker lock(&mutex);
    QVector<QObject*> found;
    for (QObject* object : among) {
        if (before.count(object) == 0 && object->thread() == QThread::currentThread()) {
            found.append(object);
        }
    }
    return found;
}

/// What is new, without the few of a kind that Qt makes when they are first needed and keeps, and the one of
/// a kind that a library keeps.
QVector<QObject*> leftovers()
{
    constexpr int few = 16;
    std::map<QByteArray, int> counts;
    QVector<QObject*> left;
    const auto present = newOnes(objects);
    for (QObject* object : present) {
        // The last drag's picture stays as a hidden window, for the next one.
        const bool isSeen =
            object->isWidgetType() || (object->isWindowType() && !object->inherits("QShapedPixmapWindow"));
        const QObject* root = object;
        while (root->parent()) {
            root = root->parent();
        }
        // The library's own are below the application, or below a plain object.
        const bool isBelow =
            root == qApp || (root != object && root->metaObject() == &QObject::staticMetaObject);
        const bool isKept = isQts(object) || isBelow;
        const int max = isQts(object) ? few : 1;
        if (!isKept || isSeen || ++counts[typeOf(object)] > max) {
            left.append(object);
        }
    }
    return left;
}

std::map<QObject*, int> timersOf(const Objects& among)
{
    const QMutexLocker lock(&mutex);
    std::map<QObject*, int> counts;
    for (QObject* object : among) {
        if (object->thread() == QThread::currentThread()) {
            counts[object] = QAbstractEventDispatcher::instance()->registeredTimers(object).size();
        }
    }
    return counts;
}

/// Whether another button of the mouse is down already.
bool isFurtherPress(const QEvent& event)
{
    if (event.type() != QEvent::MouseButtonPress) {
        return false;
    }
    const auto& press = static_cast<const QMouseEvent&>(event);
    return press.buttons() != press.button();
}

bool isRightPress(const QEvent& event)
{
    return event.type() == QEvent::MouseButtonPress &&
           static_cast<const QMouseEvent&>(event).button() == Qt::RightButton;
}

void check(bool isGood, const QString& problem)
{
    if (!isGood) {
        Journal::fail(problem);
    }
}

} // namespace

bool Application::notify(QObject* receiver, QEvent* event)
{
    constexpr int maxLetters = 200;
    if (delivered.size() < maxLetters && event->type() != QEvent::Timer) {
        delivered += QStringLiteral("%1 to %2; ").arg(event->type()).arg(World::nameOf(receiver));
    }
    const bool isHidden = event->type() == QEvent::Hide || event->type() == QEvent::WindowBlocked;
    if (world && ((isHidden && Invariants::isPressed(receiver)) || isFurtherPress(*event))) {
        world->leftByQt.append(receiver);
    }
    if (world && event->type() == QEvent::MouseButtonRelease && QApplication::activePopupWidget()) {
        world->noteLeft();
    }
    std::optional<Under> under;
    std::optional<Under> inner;
    if (world && event->type() == QEvent::DeferredDelete) {
        under.emplace(*world, Doing::Deleting, receiver, "delete");
    } else if (world && event->type() == QEvent::FocusOut && receiver->isWidgetType()) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        under.emplace(*world, Doing::Leaving, receiver, "leave");
        QWidget* const taker =
            reason == Qt::PopupFocusReason ? QApplication::activePopupWidget() : QApplication::focusWidget();
        world->frames.last().focusTaker = taker ? taker : QApplication::activeWindow();
        if (reason == Qt::ActiveWindowFocusReason) {
            inner.emplace(*world, Doing::Leaving, receiver, "deactivate");
            world->frames.last().focusTaker = static_cast<QWidget*>(receiver)->window();
        }
    } else if (world && event->type() == QEvent::ShortcutOverride) {
        under.emplace(*world, Doing::Typing, receiver, "override");
    } else if (world && event->type() == QEvent::Leave && receiver->isWidgetType()) {
        under.emplace(*world, Doing::Other, receiver, "cursor leaves");
    } else if (const auto doing = RealUser::hear(receiver, *event); world && doing) {
        Journal::note(QStringLiteral("input %1 to %2").arg(event->type()).arg(World::nameOf(receiver)));
        under.emplace(*world, *doing, receiver, isRightPress(*event) ? "right press" : "input");
    }
    return QApplication::notify(receiver, event);
}

QByteArray Invariants::libraryOf(const QObject* object)
{
    Dl_info library = {};
    // Where its table of functions is.
    const bool isFound = dladdr(*reinterpret_cast<void* const*>(object), &library) != 0;
    return isFound ? library.dli_fname : "";
}

bool Invariants::isPressed(const QObject* object)
{
    const auto* button = qobject_cast<const QAbstractButton*>(object);
    const auto* slider = qobject_cast<const QAbstractSlider*>(object);
    return (button && button->isDown()) || (slider && slider->isSliderDown());
}

void Invariants::begin()
{
    qtHookData[addObjectHook] = reinterpret_cast<quintptr>(&added);
    qtHookData[removeObjectHook] = reinterpret_cast<quintptr>(&removed);
}

void Invariants::rememberObjects()
{
    before = objects;
    timersBefore = timersOf(objects);
    stepBegan = Clock::cpuMilliseconds();
    waitedBefore = Clock::waitedMilliseconds();
    std::signal(SIGCONT, [](int) { wasStopped = 1; });
}

void Invariants::beginWindow()
{
#ifndef __SANITIZE_ADDRESS__
    memory = std::make_unique<FreedMemoryWatch>();
#endif
}

void Invariants::checkAtRest()
{
    // More than any layout takes. A movie may paint now and then: a little time passes in turns, too.
    constexpr int enough = 100;
    int turn = 0;
    do {
        delivered.clear();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (!delivered.isEmpty() && ++turn < enough);
    check(turn < enough || Exceptions::mayGoOn(delivered),
          QStringLiteral("does not come to rest: ") + delivered);
}

void Invariants::checkSettled()
{
    check(!QWidget::mouseGrabber(),
          QStringLiteral("the mouse is grabbed by %1").arg(World::nameOf(QWidget::mouseGrabber())));
    check(!QWidget::keyboardGrabber(),
          QStringLiteral("the keyboard is grabbed by %1").arg(World::nameOf(QWidget::keyboardGrabber())));
    check(!QApplication::overrideCursor(), QStringLiteral("an override cursor is left"));
    check(!QApplication::activePopupWidget(), QStringLiteral("a pop-up is left"));
    const auto left = newOnes(filters());
    for (QObject* filter : left) {
        // A tip of Qt's goes by itself, after a while.
        check(filter->inherits("QTipLabel"),
              QStringLiteral("filters the application still: ") + World::nameOf(filter));
    }
    const auto present = newOnes(objects);
    for (QObject* object : present) {
        check(!object->inherits("HighlightFrameOverlay"), QStringLiteral("a highlight is left"));
        check(!isPressed(object) || Exceptions::mayStayPressed(object),
              QStringLiteral("stays pressed: ") + World::nameOf(object));
    }
}

void Invariants::checkEmpty()
{
    checkSettled();
    const QVector<QObject*> left = leftovers();
#ifdef __SANITIZE_ADDRESS__
    for (QObject* object : left) {
        __asan_describe_address(object);
    }
#else
    check(memory->writtenAfterwards() == 0, QStringLiteral("deleted memory was written to afterwards"));
    memory.reset();
#endif
    check(left.isEmpty(), QStringLiteral("left behind: ") + names(left));
    for (const auto& [object, count] : timersOf(objects)) {
        // The application has one for Qt's tips, which end in real time.
        const bool isForTips = RealUser::isThere() && object == qApp;
        check(count <= timersBefore[object] || isQts(object) || isForTips,
              QStringLiteral("a timer is left of ") + World::nameOf(object));
    }
}

void Invariants::noteStep()
{
    const qint64 now = Clock::cpuMilliseconds();
    check(now - stepBegan < maxStep, QStringLiteral("a step took %1 ms").arg(now - stepBegan));
    check(!isWaiting(),
          QStringLiteral("a step waited for %1 ms").arg(Clock::waitedMilliseconds() - waitedBefore));
    stepBegan = now;
    waitedBefore = Clock::waitedMilliseconds();
    wasStopped = 0;
}

bool Invariants::isWaiting()
{
    // A slow disk is nobody's fault, nor is somebody who stops the program.
    return wasStopped == 0 && Clock::waitedMilliseconds() - waitedBefore > maxWait;
}
