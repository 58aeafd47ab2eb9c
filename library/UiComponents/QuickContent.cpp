#include "QuickContent.h"

#include "AccessibleFactory.h"
#include "SceneColors.h"
#include "SceneView.h"

#include <FileSystem/FS.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QQmlAbstractUrlInterceptor>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWidget>
#include <QVBoxLayout>
#include <QVector>
#include <QWindow>

#include <glog/logging.h>

namespace {

/// Qt would block on a pipe, and crash on a file that is too large.
bool isLoadable(const QUrl& url)
{
    if (!url.isLocalFile()) {
        return url.scheme() == QLatin1String("qrc");
    }
    constexpr qint64 maxSize = qint64{64} * 1024 * 1024;
    const QFileInfo file(url.toLocalFile());
    return !file.exists() || file.isDir() || (file.isFile() && file.size() <= maxSize);
}

/// Refuses code from other machines as well. Called in the engine's loading thread too.
class LocalFilesOnly : public QQmlAbstractUrlInterceptor
{
public:
    QUrl intercept(const QUrl& url, DataType type) override
    {
        if (type == UrlString || url.isEmpty() || isLoadable(url)) {
            return url;
        }
        LOG(WARNING) << "Refused to load as qml: " << url.toString().toStdString();
        return {};
    }
};

QSize containerSize(const QSizeF& size)
{
    // To Qt, QWIDGETSIZE_MAX means no minimum.
    const QSizeF maxSize(QWIDGETSIZE_MAX - 1, QWIDGETSIZE_MAX - 1);
    return size.boundedTo(maxSize).toSize();
}

/// The view refuses a window as root item, but does not delete it.
void deleteStrayWindows(const QQuickWidget* view)
{
    const QWindowList found = QGuiApplication::topLevelWindows();
    // Guarded, since one of them may own others.
    QVector<QPointer<QWindow>> windows;
    windows.reserve(found.size());
    for (QWindow* window : found) {
        windows.append(window);
    }
    for (const QPointer<QWindow>& window : qAsConst(windows)) {
        if (window && window.data() != view->quickWindow() && qmlEngine(window.data()) == view->engine()) {
            delete window.data();
        }
    }
}

} // namespace

class Qml::QuickContent::Private
{
public:
    enum State { Undefined = 0, Failed = 1, Available = 2 };

    Private();
    ~Private();
    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;

    void fitContainer(const QSizeF& size) const;

    const std::unique_ptr<QQmlAbstractUrlInterceptor> interceptor = std::make_unique<LocalFilesOnly>();
    // Owned, but a parent may delete them first.
    const QPointer<QWidget> container = new QWidget;
    // A scene may change its size while the view is being destroyed and is no SceneView any more.
    const QPointer<QQuickWidget> view = new SceneView;
    int state = Undefined;
};

Qml::QuickContent::Private::Private()
{
    AccessibleFactory::install();
    SceneColors::registerType();
    view->engine()->setUrlInterceptor(interceptor.get());
    view->setAttribute(Qt::WA_AlwaysStackOnTop);
    view->setClearColor(Qt::transparent);

    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    container->setLayout(layout);
    // A style sheet for all widgets must not fill the background of the scene.
    container->setAttribute(Qt::WA_NoSystemBackground);
}

/// The view before the container, which would delete it too, and before the interceptor, which its engine
/// uses.
Qml::QuickContent::Private::~Private()
{
    delete view;
    delete container;
}

void Qml::QuickContent::Private::fitContainer(const QSizeF& size) const
{
    if (container) {
        container->setFixedSize(containerSize(size));
    }
}

Qml::QuickContent::QuickContent()
    : d(std::make_unique<Private>())
{
}

Qml::QuickContent::~QuickContent() = default;

void Qml::QuickContent::load(const QString& path)
{
    if (!loadQml(path)) {
        d->state = Private::Failed;
        return;
    }
    const QSizeF size = getSize();
    if (!size.isValid()) {
        d->state = Private::Failed;
        return;
    }
    d->fitContainer(size);
    d->state = Private::Available;

    const auto follow = [this] {
        const QQuickItem* const root = d->view ? d->view->rootObject() : nullptr;
        const QSizeF now = root ? root->size() : QSizeF();
        // A window without a size is hidden, and would keep a dialog from ever ending.
        const bool mayShrink = d->container && (!d->container->isVisible() || !containerSize(now).isEmpty());
        if (now.isValid() && mayShrink) {
            d->fitContainer(now);
        }
    };
    connect(d->view->rootObject(), &QQuickItem::widthChanged, this, follow);
    connect(d->view->rootObject(), &QQuickItem::heightChanged, this, follow);
}

bool Qml::QuickContent::isAvailable() const
{
    return d->state == Private::Available;
}

bool Qml::QuickContent::isUndefined() const
{
    return d->state == Private::Undefined;
}

QPointer<QWidget> Qml::QuickContent::getUiContent()
{
    return d->container.data();
}

QPointer<QQmlContext> Qml::QuickContent::qmlContext()
{
    return d->view ? d->view->rootContext() : nullptr;
}

bool Qml::QuickContent::loadQml(const QString& path)
{
    if (!FS::exists(path)) {
        LOG(WARNING) << "Could not find main qml file: " << path.toStdString();
        return false;
    }
    if (d->view) {
        if (!isUndefined()) {
            // The engine caches the file. The old scene must be gone before the cache can be cleared.
            d->view->setSource(QUrl());
            d->view->engine()->clearComponentCache();
        }
        d->view->setSource(QUrl::fromLocalFile(path));
        if (!d->view->rootObject()) {
            deleteStrayWindows(d->view.data());
        }
    }
    return true;
}

QSizeF Qml::QuickContent::getSize() const
{
    if (const QQuickItem* const root = d->view ? d->view->rootObject() : nullptr) {
        return root->size();
    }
    LOG(WARNING) << "Could not resolve root object for main qml";
    return {};
}
