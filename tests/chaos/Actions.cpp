#include "Actions.h"

#include "Clock.h"
#include "Components.h"
#include "Exceptions.h"
#include "Invariants.h"
#include "Journal.h"
#include "Reader.h"
#include "RealUser.h"

#include <Settings/Settings.h>
#include <Settings/SettingsStore.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLayout>
#include <QMetaProperty>
#include <QMimeData>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyleFactory>
#include <QTranslator>
#include <QWindow>
#include <QtTest>

namespace {

/// Other texts, of other lengths and directions, each time.
class SillyTranslator : public QTranslator
{
public:
    explicit SillyTranslator(const QString& text)
        : m_text(text)
    {
    }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return m_text + QLatin1String(text);
    }

private:
    const QString m_text;
};

std::unique_ptr<QTranslator> translator;

/// Of a margin or a side by code. Qt itself paints windows that are much larger for seconds.
constexpr int maxPixels = 300;
constexpr int maxLetters = 60;

/// Of a host that does anything while it is asked. Good ones have a few colours, and keep what they are
/// given.
class Store : public SettingsStore
{
public:
    /// Without @p world nothing happens.
    Store(quint64 seed, World* world)
        : m_random(seed)
        , m_world(world)
        , m_isGood(m_random.oneIn(2))
    {
        QStringList colors;
        for (int i = m_random.below(12); i > 0; --i) {
            colors += QColor::fromRgb(static_cast<QRgb>(m_random.next())).name();
        }
        m_value = colors;
    }
    QVariant read(const QString&) const override
    {
        if (m_isGood) {
            return m_value;
        }
        switch (m_random.below(6)) {
        case 0:
            return {};
        case 1:
            return QVariantList{m_random.color(), 5, QVariant(), QStringLiteral("#123456"), QVariantMap()};
        case 2:
            return QVector<int>(3000, 7).size();
        case 3:
            return QVariant(QStringList(QVector<QString>(2000, m_random.text()).toList()));
        default:
            return m_random.value(m_random.below(70));
        }
    }
    bool write(const QString&, const QVariant& value) override
    {
        m_value = value;
        const bool isWritten = m_isGood || m_random.oneIn(2);
        if (m_world) {
            m_world->callHost(nullptr);
        }
        return isWritten;
    }

private:
    mutable Random m_random;
    World* const m_world;
    const bool m_isGood;
    QVariant m_value;
};

QString at(const QPoint& point)
{
    return QStringLiteral(" at (%1, %2)").arg(point.x()).arg(point.y());
}

Qt::KeyboardModifiers anyModifiers(Random& random)
{
    return random.oneOf<Qt::KeyboardModifiers>({Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                                                Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
                                                Qt::ControlModifier | Qt::ShiftModifier, Qt::KeypadModifier});
}

Qt::MouseButton anyButton(Random& random)
{
    return random.oneOf<Qt::MouseButton>({Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                          Qt::RightButton, Qt::MiddleButton, Qt::BackButton,
                                          Qt::ForwardButton, Qt::ExtraButton24});
}

QWindow* windowOf(const QWidget* widget)
{
    QWindow* const window = widget->window()->windowHandle();
    return window && window->isVisible() ? window : nullptr;
}

/// Hardly anybody clicks anywhere else.
QPoint inside(const QWidget* widget, const QPoint& point)
{
    return {qAbs(point.x()) % qMax(1, widget->width()), qAbs(point.y()) % qMax(1, widget->height())};
}

/// As the window system reports it.
void mouse(World& world, QWidget* widget, const QPoint& point, Qt::MouseButton button, QEvent::Type type)
{
    QWindow* const window = windowOf(widget);
    if (!window) {
        return;
    }
    world.mouseWidget = widget->window();
    if (type == QEvent::MouseButtonPress) {
        world.buttons |= button;
    } else if (type == QEvent::MouseButtonRelease) {
        world.buttons &= ~Qt::MouseButtons(button);
    }
    const QPoint local = widget->mapTo(widget->window(), RealUser::isThere() ? inside(widget, point) : point);
    QWidget* const receiver = widget->window()->childAt(local);
    const Under under(world, Doing::Mouse, receiver ? receiver : widget, "mouse");
    const QPoint global = window->mapToGlobal(local);
    if (RealUser::isThere()) {
        RealUser::moveMouse(global);
        if (type == QEvent::MouseButtonPress) {
            RealUser::press(button);
        } else if (type == QEvent::MouseButtonRelease) {
            RealUser::release(button);
        }
        return;
    }
    QCursor::setPos(global);
    world.timestamp += world.random.oneIn(3) ? 1000 : 20;
    qt_handleMouseEvent(window, local, global, world.buttons, button, type, Qt::NoModifier, world.timestamp);
}

void moveMouse(World& world)
{
    QWidget* const widget = world.anyWidget();
    if (!widget) {
        return;
    }
    const QPoint point = world.random.pointAround(widget->size());
    const Under under(world, Doing::Mouse, widget, "move");
    Journal::note(QStringLiteral("mouse to %1").arg(World::nameOf(widget)) + at(point));
    mouse(world, widget, point, Qt::NoButton, QEvent::MouseMove);
}

void pressOrRelease(World& world)
{
    const QPointer<QWidget> widget = world.anyWidget();
    if (!widget) {
        return;
    }
    const Qt::MouseButton button = anyButton(world.random);
    const QPoint point = world.random.pointAround(widget->size());
    const bool isPressed = world.buttons & button;
    const Under under(world, Doing::Mouse, widget, "button");
    Journal::note(QStringLiteral("%1 button %2 on %3")
                      .arg(isPressed ? QStringLiteral("release") : QStringLiteral("press"))
                      .arg(button)
                      .arg(World::nameOf(widget)) +
                  at(point));
    mouse(world, widget, point, button, isPressed ? QEvent::MouseButtonRelease : QEvent::MouseButtonPress);
}

void click(World& world)
{
    const QPointer<QWidget> widget = world.anyWidget();
    if (!widget) {
        return;
    }
    const Qt::MouseButton button = anyButton(world.random);
    const QPoint point = world.random.pointAround(widget->size());
    const Under under(world, Doing::Mouse, widget, "click");
    Journal::note(QStringLiteral("click button %1 on %2").arg(button).arg(World::nameOf(widget)) + at(point));
    for (int i = world.random.oneIn(4) ? 2 : 1; i > 0; --i) {
        for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            // One that is down is let go.
            const bool isDown = type == QEvent::MouseButtonPress && world.buttons.testFlag(button);
            if (widget && !isDown) {
                mouse(world, widget, point, type == QEvent::MouseMove ? Qt::NoButton : button, type);
            }
        }
    }
}

/// Straight to the widget, whatever is above it.
void sendMouse(World& world)
{
    const QPointer<QWidget> widget = world.anyWidget();
    if (!widget) {
        return;
    }
    Random& random = world.random;
    const Qt::MouseButton button = anyButton(random);
    const Under under(world, Doing::Mouse, widget, "send");
    const QPoint point = random.pointAround(widget->size());
    Journal::note(QStringLiteral("send press of %1 to %2").arg(button).arg(World::nameOf(widget)) +
                  at(point));
    const auto send = [&](QEvent::Type type, const QPoint& place, Qt::MouseButton cause,
                          Qt::MouseButtons buttons) {
        if (widget) {
            QMouseEvent event(type, place, widget->mapToGlobal(place), cause, buttons, anyModifiers(random));
            QCoreApplication::sendEvent(widget, &event);
        }
    };
    send(random.oneIn(8) ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, point, button, button);
    for (int i = random.below(4); i > 0; --i) {
        send(QEvent::MouseMove, random.pointAround({200, 200}), Qt::NoButton, button);
    }
    send(QEvent::MouseButtonRelease, random.pointAround({200, 200}), button, Qt::NoButton);
    for (QWidget* parent = widget ? widget->parentWidget() : nullptr; parent;
         parent = parent->parentWidget()) {
        if (Invariants::isPressed(parent)) {
            world.leftByQt.append(parent);
        }
    }
}

void turnWheel(World& world)
{
    QWidget* const widget = world.anyWidget();
    if (!widget) {
        return;
    }
    Random& random = world.random;
    const QPoint point = random.pointAround(widget->size());
    const QPoint angle(random.oneOf<int>({0, 0, 120, -15}),
                       random.oneOf<int>({0, 120, -120, 1, 100000, INT_MIN}));
    const Under under(world, Doing::Wheel, widget, "wheel");
    Journal::note(QStringLiteral("wheel %1 on %2").arg(angle.y()).arg(World::nameOf(widget)) + at(point));
    if (RealUser::isThere() && windowOf(widget)) {
        RealUser::moveMouse(widget->mapToGlobal(inside(widget, point)));
        RealUser::turnWheel(angle.y() > 0);
        return;
    }
    // Of a touch pad, which counts in pixels, too; and phases that nobody began.
    QWheelEvent event(point, widget->mapToGlobal(point), random.oneIn(2) ? QPoint() : angle / 4, angle,
                      world.buttons, anyModifiers(random),
                      static_cast<Qt::ScrollPhase>(random.below(Qt::ScrollMomentum + 1)), random.oneIn(4));
    QCoreApplication::sendEvent(widget, &event);
}

void pressKey(World& world)
{
    // With the X server's name.
    static const std::vector<std::pair<Qt::Key, const char*>> keys{
        {Qt::Key_Tab, "Tab"},       {Qt::Key_Backtab, "ISO_Left_Tab"},
        {Qt::Key_Return, "Return"}, {Qt::Key_Enter, "KP_Enter"},
        {Qt::Key_Escape, "Escape"}, {Qt::Key_Space, "space"},
        {Qt::Key_Up, "Up"},         {Qt::Key_Down, "Down"},
        {Qt::Key_Left, "Left"},     {Qt::Key_Right, "Right"},
        {Qt::Key_Home, "Home"},     {Qt::Key_End, "End"},
        {Qt::Key_PageUp, "Prior"},  {Qt::Key_F4, "F4"},
        {Qt::Key_Delete, "Delete"}, {Qt::Key_Backspace, "BackSpace"},
        {Qt::Key_Menu, "Menu"},     {Qt::Key_A, "a"},
        {Qt::Key_C, "c"},           {Qt::Key_V, "v"},
        {Qt::Key_X, "x"},           {Qt::Key_Z, "z"},
        {Qt::Key_0, "0"},           {Qt::Key_9, "9"},
        {Qt::Key_Minus, "minus"},   {Qt::Key_Period, "period"},
        {Qt::Key_Comma, "comma"},   {Qt::Key_NumberSign, "numbersign"}};
    Random& random = world.random;
    QPointer<QWidget> widget =
        random.oneIn(3) || !QApplication::focusWidget() ? world.anyWidget() : QApplication::focusWidget();
    if (!widget) {
        return;
    }
    const bool atWindow = windowOf(widget) && random.oneIn(2);
    if (atWindow && widget->window()->focusWidget()) {
        widget = widget->window()->focusWidget();
    }
    const auto& [key, name] = random.oneOf(keys);
    const Qt::KeyboardModifiers modifiers = anyModifiers(random);
    if (RealUser::isThere() && atWindow) {
        Journal::note(QStringLiteral("key ") + QLatin1String(name));
        RealUser::strike(name, modifiers);
        return;
    }
    const QString text = key >= Qt::Key_Space && key <= Qt::Key_Z ? QString(QChar(key)).toLower() : QString();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const Doings doing = isEnter                 ? Doing::Entering
                         : key == Qt::Key_Escape ? Doing::Typing | Doing::Showing // it closes
                                                 : Doing::Typing;
    const Under under(world, doing, widget, "key");
    Journal::note(
        QStringLiteral("key %1+%2 to %3").arg(modifiers, 0, 16).arg(key, 0, 16).arg(World::nameOf(widget)));
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (!widget) {
            return;
        }
        if (atWindow && windowOf(widget)) {
            qt_handleKeyEvent(windowOf(widget), type, key, modifiers, text);
        } else {
            const bool isRepeated = type == QEvent::KeyPress && random.oneIn(5);
            QKeyEvent event(type, key, modifiers, text, isRepeated,
                            static_cast<ushort>(random.between(1, 3)));
            QCoreApplication::sendEvent(widget, &event);
        }
    }
}

void inputMethod(World& world)
{
    Random& random = world.random;
    QWidget* const widget = random.oneIn(3) ? world.anyWidget() : QApplication::focusWidget();
    if (!widget) {
        return;
    }
    const Under under(world, Doing::Typing, widget, "input method");
    Journal::note(QStringLiteral("input method of %1").arg(World::nameOf(widget)));
    QInputMethodEvent event(
        random.oneIn(2) ? random.text() : QString(),
        {{QInputMethodEvent::Cursor, random.integer(), 1, QVariant()},
         {QInputMethodEvent::Selection, random.between(-3, 9), random.between(-3, 9), QVariant()}});
    event.setCommitString(random.oneIn(2) ? random.text() : QString(), random.between(-5, 5),
                          random.between(0, 9));
    QCoreApplication::sendEvent(widget, &event);
}

void paste(World& world)
{
    Random& random = world.random;
    auto* mime = new QMimeData;
    random.oneIn(3) ? mime->setColorData(random.color()) : mime->setText(random.text());
    QWidget* const widget = world.anyWidget();
    Journal::note(QStringLiteral("paste or drop on %1").arg(World::nameOf(widget)));
    if (!widget || random.oneIn(2)) {
        QGuiApplication::clipboard()->setMimeData(mime);
        return;
    }
    const Under under(world, Doing::Typing, widget, "drop");
    const QPointer<QWidget> alive = widget;
    const QPoint point = random.pointAround(widget->size());
    QDragEnterEvent enter(point, Qt::CopyAction | Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    for (int i = random.below(3); alive && i > 0; --i) {
        QDragMoveEvent move(random.pointAround(widget->size()), Qt::CopyAction, mime, Qt::LeftButton,
                            Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &move);
    }
    if (alive && random.oneIn(3)) {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(widget, &leave);
    } else if (alive && enter.isAccepted()) {
        QDropEvent drop(point, Qt::CopyAction, mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &drop);
    }
    delete mime;
}

void focus(World& world)
{
    QWidget* const widget = world.anyWidget();
    if (!widget) {
        return;
    }
    const Under under(world, Doing::Other, widget, "focus");
    Journal::note(QStringLiteral("focus %1").arg(World::nameOf(widget)));
    switch (world.random.below(4)) {
    case 0:
        widget->clearFocus();
        break;
    case 1:
        widget->activateWindow();
        break;
    case 2:
        QApplication::setActiveWindow(world.random.oneIn(2) ? widget->window() : nullptr);
        break;
    default:
        widget->setFocus(static_cast<Qt::FocusReason>(world.random.below(Qt::NoFocusReason + 1)));
        break;
    }
}

void sendState(World& world)
{
    QWidget* const widget = world.anyWidget();
    if (!widget) {
        return;
    }
    static const std::vector<QEvent::Type> types{
        QEvent::Enter,          QEvent::Leave,         QEvent::StyleChange,
        QEvent::FontChange,     QEvent::PaletteChange, QEvent::LayoutDirectionChange,
        QEvent::LanguageChange, QEvent::LayoutRequest, QEvent::ScreenChangeInternal,
        QEvent::UpdateRequest};
    const QEvent::Type type = world.random.oneOf(types);
    const Under under(world, Doing::Other, widget, "event");
    Journal::note(QStringLiteral("event %1 to %2").arg(type).arg(World::nameOf(widget)));
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

void contextMenu(World& world)
{
    QWidget* const widget = world.anyWidget();
    if (!widget) {
        return;
    }
    const Under under(world, Doing::Mouse, widget, "menu");
    Journal::note(QStringLiteral("menu or tip of %1").arg(World::nameOf(widget)));
    const QPoint point = world.random.pointAround(widget->size());
    if (world.random.oneIn(2)) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, widget->mapToGlobal(point));
        QCoreApplication::sendEvent(widget, &event);
    } else {
        QHelpEvent event(QEvent::ToolTip, point, widget->mapToGlobal(point));
        QCoreApplication::sendEvent(widget, &event);
    }
}

void resize(World& world)
{
    QWidget* const widget = world.random.oneIn(2) ? world.anyTop() : world.anyPartWidget();
    if (!widget) {
        return;
    }
    const QSize size = world.random.size();
    const Under under(world, Doing::Other, widget, "resize");
    Journal::note(
        QStringLiteral("resize %1 to %2x%3").arg(World::nameOf(widget)).arg(size.width()).arg(size.height()));
    if (world.random.oneIn(4)) {
        widget->setFixedSize(size);
    } else if (world.random.oneIn(4)) {
        widget->move(world.random.pointAround({2000, 2000}));
    } else {
        widget->resize(size);
    }
}

void show(World& world)
{
    const QPointer<QWidget> widget = world.random.oneIn(2) ? world.anyTop() : world.anyPartWidget();
    if (!widget) {
        return;
    }
    static const std::vector<std::pair<const char*, void (*)(QWidget*)>> ways{
        {"show", [](QWidget* w) { w->show(); }},
        {"show", [](QWidget* w) { w->show(); }},
        {"hide", [](QWidget* w) { w->hide(); }},
        {"close", [](QWidget* w) { w->close(); }},
        {"minimise", [](QWidget* w) { w->showMinimized(); }},
        {"maximise", [](QWidget* w) { w->showMaximized(); }},
        {"restore", [](QWidget* w) { w->showNormal(); }},
        {"toggle", [](QWidget* w) { w->setVisible(w->isHidden()); }},
        {"raise", [](QWidget* w) { w->raise(); }},
        {"lower", [](QWidget* w) { w->lower(); }},
    };
    const auto way = world.random.oneOf(ways);
    const Under under(world, Doing::Showing, widget, way.first);
    Journal::note(QStringLiteral("%1 %2").arg(QLatin1String(way.first), World::nameOf(widget)));
    way.second(widget);
}

void enableAny(World& world)
{
    Actions::enable(world, world.anyWidget(), !world.random.oneIn(3));
}

/// What a property or a slot of that name does.
Doing doingOf(const QByteArray& name)
{
    static const std::vector<QByteArray> showing{"visible", "setVisible", "setHidden", "hide", "close",
                                                 "done",    "accept",     "reject",    "open", "exec"};
    static const std::vector<QByteArray> forcing{
        "minimum",     "setMinimum",     "maximum",           "setMaximum",    "setRange",   "decimals",
        "setDecimals", "sliderPosition", "setSliderPosition", "setSliderDown", "setEnabled", "setDisabled",
        "enabled",     "triggerAction",  "animateClick",      "stepUp",        "stepDown"};
    const auto isIn = [&name](const std::vector<QByteArray>& names) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    return name.startsWith("show") || isIn(showing) ? Doing::Showing
           : isIn(forcing)                          ? Doing::Forcing
                                                    : Doing::Call;
}

void setProperty(World& world, QObject* object)
{
    const QMetaObject* const type = object->metaObject();
    const QMetaProperty property = type->property(world.random.below(type->propertyCount()));
    const QByteArray name = property.name();
    // Pressed without anybody who presses: that is what the invariants look for. And no limit of a stack that
    // is in use.
    if (!property.isWritable() || name == "down" || name == "sliderDown" || name == "undoLimit") {
        return;
    }
    QVariant value = world.random.value(property.userType());
    if (property.isEnumType()) {
        const QMetaEnum values = property.enumerator();
        value = values.value(world.random.below(values.keyCount()));
    } else if (name == "styleSheet") {
        value = world.random.styleSheet();
    }
    const bool isMetric = name.startsWith("layout") || name.endsWith("Width") || name.endsWith("Height");
    if (isMetric && value.toInt() > maxPixels) {
        value = maxPixels;
    }
    if (name.endsWith("fix") || name == "specialValueText") {
        value = value.toString().left(maxLetters); // a spin box gets as wide as these
    }
    if (!value.isValid() || !Exceptions::maySet(name, value)) {
        return;
    }
    const Under under(world, doingOf(name), object, name);
    Journal::note(QStringLiteral("%1 of %2 := %3")
                      .arg(QLatin1String(name), World::nameOf(object), value.toString().left(40)));
    property.write(object, value);
}

void invokeSlot(World& world, QObject* object)
{
    const QMetaObject* const type = object->metaObject();
    const QMetaMethod method = type->method(world.random.below(type->methodCount()));
    const QByteArray name = method.name();
    if (method.methodType() != QMetaMethod::Slot || method.access() != QMetaMethod::Public ||
        name == "deleteLater" || method.parameterCount() > 3) {
        return;
    }
    std::vector<QVariant> values(3);
    std::vector<QGenericArgument> arguments(3);
    for (int i = 0; i < method.parameterCount(); ++i) {
        const auto place = static_cast<std::size_t>(i);
        const int wanted = method.parameterType(i);
        values[place] =
            name == "setStyleSheet" ? QVariant(world.random.styleSheet()) : world.random.value(wanted);
        if (!values[place].isValid() || values[place].userType() != wanted) {
            return;
        }
        if (name == "animateClick") {
            values[place] = world.random.below(Actions::maxClick);
        }
        arguments[place] = QGenericArgument(values[place].typeName(), values[place].constData());
    }
    const Under under(world, doingOf(name), object, name);
    Journal::note(QStringLiteral("slot %1 of %2").arg(QLatin1String(name), World::nameOf(object)));
    method.invoke(object, arguments[0], arguments[1], arguments[2]);
}

void callAny(World& world)
{
    Actions::call(world, world.anyPart().object);
}

void moveAny(World& world)
{
    Actions::move(world, world.anyPartWidget());
}

void changeModel(World& world)
{
    Random& random = world.random;
    for (const auto& object : qAsConst(world.others)) {
        auto* model = qobject_cast<QStandardItemModel*>(object);
        const bool isChanging = std::any_of(world.frames.begin(), world.frames.end(),
                                            [&](const Frame& frame) { return frame.object == object; });
        if (!model || isChanging || random.oneIn(3)) {
            continue;
        }
        const Under under(world, Doing::Other, model, "model");
        const int change = random.below(7);
        Journal::note(QStringLiteral("change %1 of a model").arg(change));
        switch (change) {
        case 0:
            model->clear();
            return;
        case 1:
            model->insertRow(0, new QStandardItem(random.text()));
            return;
        case 2:
            model->removeRows(0, random.below(model->rowCount() + 1));
            return;
        case 3:
            model->sort(0);
            return;
        case 4:
            model->setColumnCount(random.below(3));
            return;
        case 5:
            Q_EMIT model->layoutAboutToBeChanged();
            Q_EMIT model->layoutChanged();
            return;
        default:
            if (QStandardItem* const item = model->item(0)) {
                item->setData(
                    random.value(random.oneOf<int>({QMetaType::QString, QMetaType::QFont, QMetaType::QIcon})),
                    random.below(20));
            }
            return;
        }
    }
}

void changeApplication(World& world)
{
    Random& random = world.random;
    const int change = random.below(9);
    const Under under(world, Doing::Other, nullptr, "application");
    Journal::note(QStringLiteral("change %1 of the application").arg(change));
    switch (change) {
    case 0:
        qApp->setStyleSheet(random.styleSheet());
        break;
    case 1:
        QApplication::setStyle(random.oneOf<QString>({QStringLiteral("Fusion"), QStringLiteral("Windows")}));
        break;
    case 2:
        translator = std::make_unique<SillyTranslator>(random.text().left(maxLetters));
        QCoreApplication::installTranslator(translator.get());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
        break;
    case 3:
        QLocale::setDefault(random.value(QMetaType::QLocale).toLocale());
        break;
    case 4:
        QGuiApplication::setLayoutDirection(random.oneIn(2) ? Qt::LeftToRight : Qt::RightToLeft);
        break;
    case 5:
        QApplication::setPalette(random.value(QMetaType::QPalette).value<QPalette>());
        break;
    case 6:
        QApplication::setFont(random.value(QMetaType::QFont).value<QFont>());
        break;
    case 7:
        Settings::setStore(std::make_unique<Store>(random.next(), &world));
        break;
    default:
        QCoreApplication::quit();
        break;
    }
}

void letEventsRun(World& world)
{
    const Under under(world, Doing::Other, nullptr, "events");
    if (world.random.oneIn(2)) {
        const int time = world.random.oneOf<int>({1, 20, 110, 600, 5000});
        Journal::note(QStringLiteral("%1 ms pass").arg(time));
        Clock::advance(time);
    }
    Journal::note(QStringLiteral("events"));
    QCoreApplication::processEvents();
}

void grab(World& world)
{
    QWidget* const widget = world.anyWidget();
    if (!widget || widget->width() > 3000 || widget->height() > 3000 || !Exceptions::mayGrab(widget)) {
        return;
    }
    const Under under(world, Doing::Other, widget, "grab");
    Journal::note(QStringLiteral("grab %1").arg(World::nameOf(widget)));
    widget->grab();
}

void makeAny(World& world)
{
    Actions::make(world);
}

void execDialog(World& world)
{
    const QPointer<QDialog> dialog = new QDialog(world.anyTop());
    world.addTop(dialog);
    Journal::note(QStringLiteral("exec of a dialog"));
    const Under under(world, Doing::Call, nullptr, "exec");
    dialog->setAttribute(Qt::WA_DeleteOnClose, world.random.oneIn(3));
    dialog->exec();
}

void removeAny(World& world)
{
    const int kind = world.random.below(4);
    const bool now = world.random.oneIn(2);
    if (kind == 0) {
        world.remove(world.anyTop(), now);
    } else if (kind == 1 && !world.others.isEmpty()) {
        world.remove(world.others[world.random.below(world.others.size())], now);
    } else {
        world.remove(world.anyPart().object, now);
    }
}

struct Action
{
    int weight;
    void (*act)(World& world);
};

const std::vector<Action>& actions()
{
    static const std::vector<Action> table{
        {14, click},      {10, pressOrRelease},   {8, moveMouse},     {8, sendMouse},
        {6, turnWheel},   {16, pressKey},         {3, inputMethod},   {2, paste},
        {5, focus},       {3, sendState},         {3, contextMenu},   {5, resize},
        {6, show},        {3, enableAny},         {20, callAny},      {2, moveAny},
        {3, changeModel}, {2, changeApplication}, {12, letEventsRun}, {3, grab},
        {4, Reader::act}, {2, removeAny},         {2, makeAny},       {1, execDialog},
    };
    return table;
}

/// As a shown window stays when it becomes a part of another.
bool hasNativePart(const QWidget* widget)
{
    const auto parts = widget->findChildren<QWidget*>();
    return std::any_of(parts.begin(), parts.end(),
                       [](const QWidget* part) { return part->windowHandle() && !part->isWindow(); });
}

bool isBelow(const QWidget* widget, const QWidget* ancestor)
{
    while (widget && widget != ancestor) {
        widget = widget->parentWidget();
    }
    return widget;
}

} // namespace

void Actions::act(World& world)
{
    using Act = void (*)(World&);
    static const std::vector<Act> users{click, pressOrRelease, moveMouse, turnWheel, pressKey};
    if (RealUser::isThere() && !world.random.oneIn(4)) {
        world.random.oneOf(users)(world);
        return;
    }
    int sum = 0;
    for (const Action& action : actions()) {
        sum += action.weight;
    }
    int chosen = world.random.below(sum);
    for (const Action& action : actions()) {
        chosen -= action.weight;
        if (chosen < 0) {
            action.act(world);
            return;
        }
    }
}

void Actions::call(World& world, QObject* object)
{
    if (!object) {
        return;
    }
    const Component* component = nullptr;
    for (const Part& part : qAsConst(world.parts)) {
        if (part.object == object) {
            component = part.component;
        }
    }
    if (!component) {
        return;
    }
    if (component->calls.empty() || world.random.oneIn(2)) {
        world.random.oneIn(2) ? setProperty(world, object) : invokeSlot(world, object);
        return;
    }
    const Component::Call chosen = world.random.oneOf(component->calls);
    const Under under(world, Doing::Call, object, chosen.name);
    Journal::note(QStringLiteral("call %1 of %2").arg(QLatin1String(chosen.name), World::nameOf(object)));
    chosen.make(object, world);
}

void Actions::enable(World& world, QWidget* widget, bool on)
{
    if (!widget) {
        return;
    }
    const Under under(world, Doing::Forcing, widget, "enable");
    Journal::note(QStringLiteral("%1 %2").arg(on ? QStringLiteral("enable") : QStringLiteral("disable"),
                                              World::nameOf(widget)));
    widget->setEnabled(on);
}

void Actions::make(World& world)
{
    constexpr int maxParts = 30;
    QWidget* const top = world.anyTop();
    if (!top || world.parts.size() > maxParts || Exceptions::forbidsLoop(world)) {
        return;
    }
    const Under under(world, Doing::Showing, top, "make");
    Components::make(world, world.random.oneIn(3) ? world.anyPartWidget() : top);
}

void Actions::move(World& world, QWidget* widget)
{
    QWidget* const parent = world.random.oneIn(3)   ? nullptr
                            : world.random.oneIn(2) ? world.anyTop()
                                                    : world.anyPartWidget();
    // PointingWidget.h: "nobody else lays it out".
    const bool isLaidOut =
        widget && widget->inherits("PointingWidget") && parent && parent->inherits("QSplitter");
    if (!widget || isLaidOut || isBelow(parent, widget) || Exceptions::forbidding(world, widget) >= 0) {
        return;
    }
    if (hasNativePart(widget)) {
        return; // Qt gets lost: partWithNativePartMoves
    }
    const Under under(world, Doing::Showing, widget, "move");
    Journal::note(QStringLiteral("%1 moves to %2").arg(World::nameOf(widget), World::nameOf(parent)));
    const QPointer<QWidget> alive = widget;
    const QPointer<QWidget> aliveParent = parent;
    QWidget* const focused = widget->window()->focusWidget();
    if (isBelow(focused, widget)) {
        // Qt lets the window keep it: movedWidgetStaysTheFocus.
        focused->clearFocus();
    }
    if (!alive || (parent && !aliveParent)) {
        return;
    }
    widget->setParent(parent);
    if (alive && !parent) {
        world.addTop(alive);
    }
    if (alive && world.random.oneIn(2)) {
        alive->show();
    }
}

void Actions::letGo(World& world)
{
    if (RealUser::isThere()) {
        // The server may have told another program of the release.
        QWidget desktop;
        QWidget* const grabber = QWidget::mouseGrabber();
        QMouseEvent release(QEvent::MouseButtonRelease, QPoint(-9, -9), Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QCoreApplication::sendEvent(grabber ? grabber : &desktop, &release);
        world.buttons = Qt::NoButton;
        return;
    }
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton,
                                         Qt::ForwardButton, Qt::ExtraButton24}) {
        if (!(world.buttons & button)) {
            continue;
        }
        QWidget* const widget = QWidget::mouseGrabber() ? QWidget::mouseGrabber() : world.mouseWidget.data();
        if (widget && windowOf(widget)) {
            mouse(world, widget, QPoint(-5, -5), button, QEvent::MouseButtonRelease);
        }
    }
    world.buttons = Qt::NoButton;
    // And a click elsewhere.
    QWidget desktop;
    desktop.show();
    mouse(world, &desktop, QPoint(5, 5), Qt::LeftButton, QEvent::MouseButtonPress);
    mouse(world, &desktop, QPoint(5, 5), Qt::LeftButton, QEvent::MouseButtonRelease);
}

void Actions::resetApplication()
{
    qApp->setStyleSheet(QString());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    translator.reset();
    QLocale::setDefault(QLocale::c());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    Settings::setStore(std::make_unique<Store>(1, nullptr));
    QGuiApplication::clipboard()->clear();
    QCursor::setPos(0, 0);
}
