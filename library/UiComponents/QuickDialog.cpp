#include "QuickDialog.h"

#include "QuickContent.h"
#include "ScopedChange.h"

#include <QtUtility/QmlWindowFocusWorkaround.h>

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWidget>
#include <QScopeGuard>
#include <QScreen>
#include <QTimer>

#include <glog/logging.h>
#include <optional>

namespace {

// The time for bindings of the scene to give it a size.
constexpr int sizeGraceMs = 200;

/// With some window managers Qt now and then takes the window to be at (0, 0) though it is in its place, and
/// maps global coordinates wrongly. Moving it once more, when it becomes active, corrects that.
class PlaceKeeper : public QObject
{
public:
    explicit PlaceKeeper(QWidget* window)
        : m_window(window)
        , m_place(window->pos())
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Move) {
            // Moves by the scene or the host are not spontaneous.
            m_isMovedByOthers = event->spontaneous();
        } else if (event->type() == QEvent::WindowActivate) {
            m_window->removeEventFilter(this);
            if (m_isMovedByOthers && m_window->pos() != m_place) {
                m_window->move(m_place);
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* const m_window;
    const QPoint m_place;
    bool m_isMovedByOthers = false;
};

/// Waits until an empty container gets a size. Meanwhile the scene may end the dialog, and slots may delete
/// anything.
void awaitSize(const QPointer<QWidget>& container, const QDialog* dialog)
{
    const auto* const view = container->findChild<QQuickWidget*>();
    const QQuickItem* const root = view ? view->rootObject() : nullptr;
    if (!root || !container->size().isEmpty()) {
        return;
    }
    QEventLoop loop;
    const auto quitWithSize = [&loop, &container] {
        if (container && !container->size().isEmpty()) {
            loop.quit();
        }
    };
    QObject::connect(root, &QQuickItem::widthChanged, &loop, quitWithSize);
    QObject::connect(root, &QQuickItem::heightChanged, &loop, quitWithSize);
    QObject::connect(root, &QObject::destroyed, &loop, &QEventLoop::quit);
    QObject::connect(dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(sizeGraceMs, &loop, &QEventLoop::quit);
    // User input stays queued for the dialog.
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

QPoint middleOfScreen()
{
    const QWidget* const active = QApplication::activeWindow();
    const QScreen* screen = active ? QGuiApplication::screenAt(active->frameGeometry().center()) : nullptr;
    if (!screen) {
        screen = QGuiApplication::screenAt(QCursor::pos());
    }
    if (!screen) {
        screen = QGuiApplication::primaryScreen();
    }
    return screen ? screen->availableGeometry().center() : QPoint();
}

} // namespace

class Qml::QuickDialog::Private
{
public:
    explicit Private(QuickDialog* dialog);

    void makeWindow() const;
    QBoxLayout* makeLayout() const;
    void moveToMiddle(const QWidget* container) const;

    QuickDialog* const q;
    const std::unique_ptr<QuickContent> content = std::make_unique<QuickContent>();
    QString qmlPath;
    bool isRunning = false;
};

Qml::QuickDialog::Private::Private(QuickDialog* dialog)
    : q(dialog)
{
    q->setAttribute(Qt::WA_TranslucentBackground);
    content->qmlContext()->setContextProperty(QString::fromLatin1("callback"), q);
    Orvane::Util::ApplyQmlWindowFocusWorkaround(q, content->getUiContent());
}

void Qml::QuickDialog::Private::makeWindow() const
{
    QSizePolicy policy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    policy.setHeightForWidth(q->sizePolicy().hasHeightForWidth());
    q->setSizePolicy(policy);
    q->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    q->setModal(true);
}

QBoxLayout* Qml::QuickDialog::Private::makeLayout() const
{
    // A widget cannot have two layouts.
    delete q->layout();
    auto* layout = new QHBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    // Or the window would grow with the scene and never shrink.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    return layout;
}

void Qml::QuickDialog::Private::moveToMiddle(const QWidget* container) const
{
    const QWidget* const parent = q->parentWidget();
    const QPoint middle = parent ? parent->mapToGlobal(parent->rect().center()) : middleOfScreen();
    const int left = static_cast<int>(container->width() * 0.5);
    const int top = static_cast<int>(container->height() * 0.5);
    q->move(middle - QPoint(left, top));
}

Qml::QuickDialog::QuickDialog(QWidget* parent)
    : QDialog(parent)
    , d(std::make_unique<Private>(this))
{
}

Qml::QuickDialog::~QuickDialog() = default;

void Qml::QuickDialog::setQmlPath(const QString& path)
{
    d->qmlPath = path;
}

int Qml::QuickDialog::exec()
{
    if (d->isRunning) {
        return Rejected;
    }
    const QPointer<QuickDialog> self = this;
    const auto running = scopedChange(d->isRunning, true, this);
    // The result with which the dialog ends, if it does.
    std::optional<int> ending;
    const QObject watch;
    connect(this, &QDialog::finished, &watch, [&ending](int result) { ending = result; });

    if (d->content->isUndefined()) {
        d->content->load(d->qmlPath);
    }
    const QPointer<QWidget> container = d->content->getUiContent();
    if (!d->content->isAvailable() || !container) {
        return Rejected;
    }
    if (!ending) {
        awaitSize(container, this);
    }
    if (!self || !container || ending) {
        return ending.value_or(Rejected);
    }
    if (container->size().isEmpty()) {
        LOG(WARNING) << "Nothing to show, the root item has no size: " << d->qmlPath.toStdString();
        return Rejected;
    }

    d->makeWindow();
    const QPointer<QBoxLayout> layout = d->makeLayout();
    layout->addWidget(container, 0, Qt::Alignment());
    const auto release = qScopeGuard([layout, container] {
        if (container && layout) {
            layout->removeWidget(container);
        }
        if (container) {
            container->setParent(nullptr);
        }
    });
    d->moveToMiddle(container);
    const PlaceKeeper place(this);
    // Queued, since the dialog's destructor deletes the container as well. What else ends the dialog hides
    // it.
    connect(
        container, &QObject::destroyed, &watch,
        [self] {
            if (self && self->isVisible()) {
                self->reject();
            }
        },
        Qt::QueuedConnection);
    // The scene may end the dialog while it is being shown, before QDialog's event loop runs, which would
    // then never return.
    show();
    if (!self || ending) {
        return ending.value_or(Rejected);
    }
    const int result = QDialog::exec();
    if (self) {
        // The loop ends with a visible dialog only when the application quits.
        hide();
    }
    return result;
}

QPointer<Qml::QuickContent> Qml::QuickDialog::content()
{
    return d->content.get();
}

QPoint Qml::QuickDialog::cursorPos() const
{
    return QCursor::pos();
}
