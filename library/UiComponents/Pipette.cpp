#include "Pipette.h"

#include "LoupeWidget.h"
#include "PipetteScreenView.h"
#include "ScreenColorSource.h"
#include "ScreenGrabber.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QCursor>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QWindow>
#ifdef QT_X11EXTRAS_LIB
#include <QX11Info>

#include <cstdlib>
#include <xcb/xcb.h>
#endif

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace {

/// The number that an X11 window manager keeps in a property of the root window.
std::optional<quint32> managersValue([[maybe_unused]] const char* name)
{
#ifdef QT_X11EXTRAS_LIB
    if (xcb_connection_t* const connection = QX11Info::connection()) {
        const auto nameCookie = xcb_intern_atom(connection, 0, static_cast<uint16_t>(qstrlen(name)), name);
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
            xcb_intern_atom_reply(connection, nameCookie, nullptr), &std::free);
        const auto cookie =
            xcb_get_property(connection, 0, static_cast<xcb_window_t>(QX11Info::appRootWindow()),
                             atom ? atom->atom : xcb_atom_t(XCB_ATOM_NONE), XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
        const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> value(
            xcb_get_property_reply(connection, cookie, nullptr), &std::free);
        if (value && xcb_get_property_value_length(value.get()) == sizeof(quint32)) {
            return *static_cast<const quint32*>(xcb_get_property_value(value.get()));
        }
    }
#endif
    return {};
}

QRect desktop()
{
    QRect all;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        all |= screen->geometry();
    }
    return all;
}

} // namespace

class Pipette::Impl
{
public:
    class Run;

    void request(Pipette* q, ScreenColorSource* source);
    void finish(Pipette* q, const ScreenColorSource::Result& result);

    QColor currentColor;
    QString failureReason;
    /// One, unless startPicking() was called during a pick.
    QVector<Run*> runs;
    /// What a ScreenColorSource has instead of runs.
    std::vector<std::unique_ptr<QObject>> requests;
    /// How often stopPicking() was called.
    int ends = 0;
};

/// All that one call of startPicking() shows and listens to. It has no signals or slots of its own.
class Pipette::Impl::Run : public QObject, // clazy:exclude=missing-qobject-macro
                           private QAbstractNativeEventFilter
{
public:
    explicit Run(Pipette* pipette);
    ~Run() override;

    /// Covers the screens. Returns false if that has ended the run.
    bool show();
    void end();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool nativeEventFilter(const QByteArray& type, void* message, long* result) override;
    void addView(QScreen* screen);
    void watchApplication();
    bool isLeft() const;
    void stop() const;
    void noteLoupe(const PipetteScreenView& view);
    void uncover(const QWidget& last);
    void update(const QPoint& cursorPos);
    void finish(const QPoint& cursorPos, bool isSucceeded);

    const QPointer<Pipette> m_pipette;
    ScreenGrabber m_grabber;
    QGraphicsScene* const m_scene;
    const QPointer<LoupeWidget> m_loupe;
    /// Whether the views show pictures, since nothing would be seen through them.
    const bool m_isStill = ScreenSource::platform().grabs() == ScreenSource::Grabs::Never;
    QVector<QPointer<PipetteScreenView>> m_views;
    /// A view becomes the active window, and has not got the focus yet.
    bool m_isActivated = false;
    /// The virtual desktop that the views are on.
    const std::optional<quint32> m_desktop = managersValue("_NET_CURRENT_DESKTOP");
    /// Of all connections; gone when the run has ended.
    std::unique_ptr<QObject> m_context = std::make_unique<QObject>();
};

Pipette::Impl::Run::Run(Pipette* pipette)
    : m_pipette(pipette)
    , m_grabber(desktop(), ScreenGrabber::Cover::Overlay)
    , m_scene(new QGraphicsScene(QRectF(desktop()), this))
    , m_loupe(new LoupeWidget)
{
    m_scene->setItemIndexMethod(QGraphicsScene::NoIndex); // for one item that moves all the time
    m_scene->addWidget(m_loupe)->hide();
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        addView(screen);
    }
}

Pipette::Impl::Run::~Run()
{
    // Qt still uses a view that it activates, or whose native window hands a key to a pop-up.
    const bool isInUse = (m_context && m_isActivated) || QApplication::activePopupWidget();
    end();
    for (const QPointer<PipetteScreenView>& view : qAsConst(m_views)) {
        if (view && isInUse) {
            view->deleteLater();
        } else {
            delete view;
        }
    }
}

void Pipette::Impl::Run::addView(QScreen* screen)
{
    auto* view = new PipetteScreenView(m_scene, screen->geometry());
    if (m_isStill) {
        view->setStillPicture(m_grabber.picture(*screen));
        m_grabber.paint(view, screen->geometry());
    }
    // Or a modal dialog that is open would keep mouse and keyboard from it.
    view->windowHandle()->setTransientParent(QGuiApplication::modalWindow());
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    m_views.append(view);
    connect(view, &QObject::destroyed, m_context.get(), [this, view] { m_grabber.remove(view, desktop()); });
    connect(view, &PipetteScreenView::loupePosChanged, m_context.get(),
            [this](const QPoint& pos) { update(pos); });
    connect(view, &PipetteScreenView::pickingFinished, m_context.get(),
            [this](const QPoint& pos, bool isSucceeded) { finish(pos, isSucceeded); });
}

bool Pipette::Impl::Run::show()
{
    const int active = qMax(0, QGuiApplication::screens().indexOf(QGuiApplication::screenAt(QCursor::pos())));
    // A window that is shown or activated may call back into the host, which may do anything.
    const QPointer<Run> self = this;
    const auto goesOn = [&self] { return self && self->m_context; };
    for (int i = 0; goesOn() && i < m_views.size(); ++i) {
        if (m_views.at(i)) {
            m_views.at(i)->show();
        }
    }
    const QPointer<PipetteScreenView> view = goesOn() ? m_views.value(active) : QPointer<PipetteScreenView>();
    if (view && view->comeToFront() && goesOn()) {
        view->adjustSize();
    }
    if (goesOn()) {
        watchApplication();
    }
    return goesOn();
}

void Pipette::Impl::Run::watchApplication()
{
    const auto stop = [this] { this->stop(); };
    QObject* const context = m_context.get();
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, context, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive && (state != Qt::ApplicationInactive || isLeft())) {
            this->stop();
        }
    });
    qGuiApp->installNativeEventFilter(this);
    connect(qGuiApp, &QCoreApplication::aboutToQuit, context, stop);
    // The views cover the screens as they were.
    connect(qGuiApp, &QGuiApplication::screenAdded, context, stop);
    connect(qGuiApp, &QGuiApplication::screenRemoved, context, stop);
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        connect(screen, &QScreen::geometryChanged, context, stop);
        connect(screen, &QScreen::logicalDotsPerInchChanged, context, stop);
    }
}

/// Whether an application that Qt reports inactive has lost the keyboard to another program or virtual
/// desktop, and not only for as long as a slow window manager needs between two windows. True where that is
/// unknown.
bool Pipette::Impl::Run::isLeft() const
{
    const std::optional<quint32> active = managersValue("_NET_ACTIVE_WINDOW");
    if (active == 0U) {
        return managersValue("_NET_CURRENT_DESKTOP") != m_desktop;
    }
    const auto windows = QGuiApplication::topLevelWindows();
    return std::none_of(windows.cbegin(), windows.cend(), [active](const QWindow* window) {
        return window->handle() && active == window->winId();
    });
}

void Pipette::Impl::Run::stop() const
{
    if (m_pipette) {
        m_pipette->stopPicking();
    }
}

/// Qt does not report the application inactive again when the window manager passes the focus on.
bool Pipette::Impl::Run::nativeEventFilter([[maybe_unused]] const QByteArray& type,
                                           [[maybe_unused]] void* message, long* /*result*/)
{
#ifdef QT_X11EXTRAS_LIB
    constexpr int sentByClient = 0x80;
    if (m_context && QGuiApplication::applicationState() == Qt::ApplicationInactive &&
        type == QByteArrayLiteral("xcb_generic_event_t") &&
        (static_cast<xcb_generic_event_t*>(message)->response_type & ~sentByClient) == XCB_PROPERTY_NOTIFY &&
        isLeft()) {
        stop();
    }
#endif
    return false;
}

/// Closes all windows, which the screens show a little longer.
void Pipette::Impl::Run::end()
{
    if (!m_context) {
        return;
    }
    // First: closing windows may change the active one, which must not be reported.
    m_context.reset();
    if (qApp) {
        // The next pick may begin at once.
        const auto screens = QGuiApplication::screens();
        for (QScreen* screen : screens) {
            m_grabber.refresh(screen->geometry(), *screen);
        }
        m_grabber.settle();
    }
    for (const QPointer<PipetteScreenView>& view : qAsConst(m_views)) {
        if (view) {
            m_grabber.remove(view, view->geometry());
            view->blockSignals(true); // it still gets the event that ended the pick
            view->close();
        }
    }
    deleteLater();
}

bool Pipette::Impl::Run::eventFilter(QObject* watched, QEvent* event)
{
    const auto& widget = *static_cast<QWidget*>(watched);
    if (m_context && event->type() == QEvent::Paint && !widget.isWindow() && !m_isStill) {
        noteLoupe(*static_cast<PipetteScreenView*>(widget.window()));
    } else if (m_context && event->type() == QEvent::Leave && widget.isWindow()) {
        uncover(widget);
    } else if (event->type() == QEvent::WindowActivate || event->type() == QEvent::FocusIn) {
        m_isActivated = event->type() == QEvent::WindowActivate;
    }
    return false;
}

/// Records where the loupe is painted from now on.
void Pipette::Impl::Run::noteLoupe(const PipetteScreenView& view)
{
    const QGraphicsItem* const item = m_loupe ? m_loupe->graphicsProxyWidget() : nullptr;
    const QRectF place = item && item->isVisible() ? item->sceneBoundingRect() : QRectF();
    m_grabber.paint(&view, place.toAlignedRect() & view.geometry());
}

/// Brings the view that the cursor has come to from @p last to the front when another application's window,
/// as one that fills a screen without the focus, keeps the Enter from it.
void Pipette::Impl::Run::uncover(const QWidget& last)
{
    const QPoint cursorPos = QCursor::pos();
    if (last.geometry().contains(cursorPos) || QGuiApplication::mouseButtons() != Qt::NoButton ||
        QGuiApplication::topLevelAt(cursorPos)) {
        return;
    }
    const auto views = m_views;
    for (const QPointer<PipetteScreenView>& view : views) {
        if (view && view->geometry().contains(cursorPos)) {
            view->comeToFront();
        }
    }
}

void Pipette::Impl::Run::update(const QPoint& cursorPos)
{
    QScreen* const screen = QGuiApplication::screenAt(cursorPos);
    if (!m_loupe || !screen) {
        return;
    }
    m_loupe->setPlacement(LoupeWidget::placementAt(cursorPos, screen->geometry(), m_loupe->size()));
    const QSize offset = m_loupe->offset();
    const QPoint place = cursorPos + QPoint(offset.width(), offset.height());
    m_grabber.refresh(QRect(place, m_loupe->size()), *screen);
    m_loupe->graphicsProxyWidget()->setPos(place);
    const ScreenGrabber::Detail detail = m_grabber.around(cursorPos, LoupeWidget::pixels, *screen);
    m_loupe->setPixmap(detail.picture);
    m_loupe->setColorName(detail.color);
}

void Pipette::Impl::Run::finish(const QPoint& cursorPos, bool isSucceeded)
{
    const bool isPicked = isSucceeded && QGuiApplication::screenAt(cursorPos);
    const QColor color = isPicked ? m_grabber.colorAt(cursorPos) : QColor();
    if (m_pipette) {
        m_pipette->d->finish(m_pipette, {color, {}});
    }
}

void Pipette::Impl::request(Pipette* q, ScreenColorSource* source)
{
    const QWidget* const window = QApplication::activeWindow();
    requests.push_back(
        source->pick(window ? window->windowHandle() : nullptr,
                     [this, q](const ScreenColorSource::Result& result) { finish(q, result); }));
}

/// Separate from its callers, whose run or request may be deleted in a slot.
void Pipette::Impl::finish(Pipette* q, const ScreenColorSource::Result& result)
{
    failureReason = result.color.isValid() ? QString() : result.reason;
    if (result.color.isValid()) {
        // A copy: a slot may start another pick, which resets the colour.
        const QColor selected = currentColor = result.color;
        const QPointer<Pipette> self = q;
        const int endsBefore = ends;
        Q_EMIT q->colorSelected(selected);
        // A slot may have ended the pick.
        if (!self || ends != endsBefore) {
            return;
        }
    }
    q->stopPicking();
}

Pipette::Pipette(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Impl>())
{
}

Pipette::~Pipette()
{
    qDeleteAll(std::exchange(d->runs, {}));
}

QString Pipette::unavailableReason()
{
    const ScreenColorSource* const source = ScreenColorSource::current();
    return source ? source->unavailableReason() : QString();
}

QString Pipette::failureReason() const
{
    return d->failureReason;
}

void Pipette::startPicking()
{
    ScreenColorSource* const source = ScreenColorSource::current();
    d->failureReason = source ? source->unavailableReason() : QString();
    const bool mayRead = mayReadScreen();
    if (source ? !d->failureReason.isEmpty() : !mayRead) {
        if (!mayRead) {
            askForScreen();
        }
        return;
    }
    d->currentColor = QColor();
    if (source) {
        d->request(this, source);
        Q_EMIT pickingStarted();
        return;
    }
    auto* const run = new Impl::Run(this);
    d->runs.append(run);
    if (run->show()) {
        Q_EMIT pickingStarted();
    }
}

void Pipette::stopPicking()
{
    const QPointer<Pipette> self = this;
    ++d->ends;
    d->requests.clear();
    const QVector<Impl::Run*> ending = std::exchange(d->runs, {});
    for (Impl::Run* run : ending) {
        run->end();
    }
    if (self) {
        Q_EMIT pickingStopped();
    }
}

const QColor& Pipette::currentColor() const
{
    return d->currentColor;
}
