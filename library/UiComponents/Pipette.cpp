#include "Pipette.h"

#include "InputFocus.h"
#include "LoupePlacement.h"
#include "LoupeWidget.h"
#include "PipetteScreenView.h"
#include "ScreenReader.h"

#include <QtUtility/PrivacyAccess.h>

#include <QApplication>
#include <QCursor>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QList>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QVector>
#include <QWindow>

#include <utility>

namespace {

/// Whether the program may read the screen. Asks for the permission if not.
bool mayReadScreen()
{
    // By their numbers, which every platform shares; a host's own may have other names for them.
    constexpr auto screenCapture = static_cast<Orvane::Util::PrivacyType>(5);
    constexpr auto granted = static_cast<Orvane::Util::AccessStatus>(0);
    if (Orvane::Util::IsPrivacyAccessGranted(screenCapture) == granted) {
        return true;
    }
    Orvane::Util::RequestPrivacyAccess(screenCapture);
    return false;
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

/// One for all pipettes, as long as the screens may show windows of any: a new one would take these for what
/// is to be picked.
std::shared_ptr<ScreenReader> sharedReader()
{
    static std::weak_ptr<ScreenReader> present;
    auto reader = present.lock();
    if (!reader || !reader->isOfPresentScreens()) {
        // Not std::make_shared(): it has an object that is one in the whole program, and a library with such
        // an object is never unloaded.
        reader.reset(new ScreenReader(desktop(), ScreenReader::Cover::Overlay));
        present = reader;
    }
    return reader;
}

} // namespace

class Pipette::Impl
{
public:
    class Run;

    explicit Impl(Pipette* pipette)
        : owner(pipette)
    {
    }
    ~Impl();
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    void start();
    void stop();

    Pipette* const owner;
    QColor currentColor;
    /// One, unless startPicking() was called during a pick.
    QVector<Run*> runs;
};

/// All that one call of startPicking() shows and listens to. It is deleted when the screens have settled
/// after its end. It has no signals or slots of its own.
class Pipette::Impl::Run : public QObject // clazy:exclude=missing-qobject-macro
{
public:
    explicit Run(Impl* pipette);
    ~Run() override;

    /// Covers the screens. False when that has ended the run.
    bool show();
    void end();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addView(QScreen* screen);
    QVector<QPointer<PipetteScreenView>> takeViews();
    void watchApplication();
    void noteLoupe(const QWidget& window);
    void uncover(const QPoint& cursorPos);
    void update(const QPoint& cursorPos);
    void finish(const QPoint& cursorPos, bool isSucceeded);

    Impl* const m_pipette;
    std::shared_ptr<ScreenReader> m_reader;
    QGraphicsScene* const m_scene;
    const QPointer<LoupeWidget> m_loupe;
    QVector<QPointer<PipetteScreenView>> m_views;
    /// Of all connections; gone when the run has ended.
    std::unique_ptr<QObject> m_context = std::make_unique<QObject>();
};

Pipette::Impl::~Impl()
{
    const QVector<Run*> remaining = std::exchange(runs, {});
    qDeleteAll(remaining);
}

void Pipette::Impl::start()
{
    if (!mayReadScreen()) {
        return;
    }
    currentColor = QColor();
    auto* const run = new Run(this);
    runs.append(run);
    if (run->show()) {
        Q_EMIT owner->pickingStarted();
    }
}

void Pipette::Impl::stop()
{
    const QPointer<Pipette> pipette = owner;
    const QVector<Run*> ending = std::exchange(runs, {});
    for (Run* run : ending) {
        run->end();
    }
    if (pipette) {
        Q_EMIT pipette->pickingStopped();
    }
}

Pipette::Impl::Run::Run(Impl* pipette)
    : m_pipette(pipette)
    , m_reader(sharedReader())
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
    // Windows that vanish may change what is active: nobody is to hear of it from here.
    m_context.reset();
    const auto remaining = takeViews();
    for (const QPointer<PipetteScreenView>& view : remaining) {
        if (view && QApplication::activePopupWidget()) {
            // Its native window may be handing a key to the pop-up.
            view->hide();
            view->deleteLater();
        } else {
            delete view;
        }
    }
}

void Pipette::Impl::Run::addView(QScreen* screen)
{
    auto* view = new PipetteScreenView(m_scene, screen->geometry());
    if (ScreenSource::platform().grabs() == ScreenSource::Grabs::Never) {
        view->setStillPicture(m_reader->picture(*screen));
    }
    // Or a modal dialog that is open would keep mouse and keyboard from it.
    view->windowHandle()->setTransientParent(QGuiApplication::modalWindow());
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    m_views.append(view);
    connect(view, &PipetteScreenView::loupePosChanged, m_context.get(),
            [this](const QPoint& pos) { update(pos); });
    connect(view, &PipetteScreenView::pickingFinished, m_context.get(),
            [this](const QPoint& pos, bool isSucceeded) { finish(pos, isSucceeded); });
}

bool Pipette::Impl::Run::show()
{
    const int active = qMax(0, QGuiApplication::screens().indexOf(QGuiApplication::screenAt(QCursor::pos())));
    // A window that is shown or activated may call back into the host, where everything can happen.
    const QPointer<Run> self = this;
    const auto isOver = [&self] { return !self || !self->m_context; };
    const auto views = m_views;
    for (const QPointer<PipetteScreenView>& view : views) {
        if (view) {
            view->show();
        }
        if (isOver()) {
            return false;
        }
    }
    if (const QPointer<PipetteScreenView> view = views.value(active)) {
        view->raise();
        view->activateWindow();
        if (isOver()) {
            return false;
        }
        if (view) {
            view->adjustSize();
        }
    }
    watchApplication();
    return true;
}

void Pipette::Impl::Run::watchApplication()
{
    const auto stop = [this] { m_pipette->stop(); };
    QObject* const context = m_context.get();
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, context, [stop](Qt::ApplicationState state) {
        const bool isDoubtful =
            state == Qt::ApplicationInactive && state == QGuiApplication::applicationState();
        if (state != Qt::ApplicationActive && (!isDoubtful || isFocusOfAnotherProgram())) {
            stop();
        }
    });
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

/// The views, which are about to vanish. The screens show them a little longer.
QVector<QPointer<PipetteScreenView>> Pipette::Impl::Run::takeViews()
{
    for (const QPointer<PipetteScreenView>& view : qAsConst(m_views)) {
        if (view) {
            m_reader->remove(*view);
        }
    }
    if (qApp) {
        QTimer::singleShot(ScreenReader::settleTime, qApp, [kept = m_reader] {});
    }
    return std::exchange(m_views, {});
}

void Pipette::Impl::Run::end()
{
    deleteLater();
    m_context.reset();
    const auto closing = takeViews();
    for (const QPointer<PipetteScreenView>& view : closing) {
        if (view) {
            view->close();
        }
        if (view) {
            view->deleteLater();
        }
    }
}

bool Pipette::Impl::Run::eventFilter(QObject* watched, QEvent* event)
{
    const auto& widget = *static_cast<QWidget*>(watched);
    if (event->type() == QEvent::Paint && !widget.isWindow()) {
        noteLoupe(*widget.window());
    } else if (event->type() == QEvent::Leave && widget.isWindow()) {
        const QPoint cursorPos = QCursor::pos();
        if (!widget.geometry().contains(cursorPos)) {
            uncover(cursorPos);
        }
    }
    return false;
}

/// The loupe is seen where it stands now, from now on.
void Pipette::Impl::Run::noteLoupe(const QWidget& window)
{
    const QGraphicsItem* const item = m_loupe ? m_loupe->graphicsProxyWidget() : nullptr;
    const QRect place = item && item->isVisible() ? item->sceneBoundingRect().toAlignedRect() : QRect();
    m_reader->paint(window, place & window.geometry());
}

/// Brings the view below the cursor to the front when another application's window keeps the Enter from it.
/// Window managers have a full-screen window above all others on a screen without the focus.
void Pipette::Impl::Run::uncover(const QPoint& cursorPos)
{
    if (QGuiApplication::mouseButtons() != Qt::NoButton || QGuiApplication::topLevelAt(cursorPos)) {
        return;
    }
    for (const QPointer<PipetteScreenView>& view : qAsConst(m_views)) {
        if (view && view->geometry().contains(cursorPos)) {
            const QPointer<PipetteScreenView> covered = view;
            covered->raise();
            if (covered) {
                covered->activateWindow();
            }
            return;
        }
    }
}

void Pipette::Impl::Run::update(const QPoint& cursorPos)
{
    QScreen* const screen = QGuiApplication::screenAt(cursorPos);
    if (!m_loupe || !screen) {
        return;
    }
    m_loupe->setPlacement(LoupePlacement::placementAt(cursorPos, screen->geometry(), m_loupe->size()));
    const QSize offset = m_loupe->offset();
    m_loupe->graphicsProxyWidget()->setPos(cursorPos.x() + offset.width(), cursorPos.y() + offset.height());
    const ScreenReader::Detail detail = m_reader->around(cursorPos, LoupeWidget::pixels, *screen);
    m_loupe->setPixmap(detail.picture);
    m_loupe->setColorName(detail.color);
}

void Pipette::Impl::Run::finish(const QPoint& cursorPos, bool isSucceeded)
{
    if (isSucceeded && QGuiApplication::screenAt(cursorPos)) {
        m_pipette->currentColor = m_reader->colorAt(cursorPos);
        // A copy: a slot may start another pick, which resets the color.
        const QColor selected = m_pipette->currentColor;
        const QPointer<Run> self = this;
        Q_EMIT m_pipette->owner->colorSelected(selected);
        // A slot may have done so.
        if (!self || !m_context) {
            return;
        }
    }
    m_pipette->stop();
}

Pipette::Pipette(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Impl>(this))
{
}

Pipette::~Pipette() = default;

void Pipette::startPicking()
{
    d->start();
}

void Pipette::stopPicking()
{
    d->stop();
}

const QColor& Pipette::currentColor() const
{
    return d->currentColor;
}
