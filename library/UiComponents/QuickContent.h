#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QObject>
#include <QPointer>
#include <QSizeF>

#include <memory>

class QQmlContext;
class QString;
class QWidget;

namespace Qml {

/**
 * Loads a QML file into a widget that is as large as the file's root item.
 *
 * It is not a widget itself: it owns a plain container with a transparent QQuickWidget in it, which hosts
 * put where they like. QuickDialog does that for whole dialogs.
 *
 *     Qml::QuickContent content;
 *     content.qmlContext()->setContextProperty("model", model);   // before loading
 *     content.load("/opt/editor/qml/Welcome.qml");
 *     if (content.isAvailable()) {
 *         layout->addWidget(content.getUiContent());
 *     }
 *
 * **States.** A new one is undefined; load() makes it available or failed. Nothing is thrown and nothing
 * is shown when a file cannot be loaded: glog gets a warning under the name of the file QuickContent.cpp,
 * and Qt logs the errors in the QML with their lines, as it does for every QQuickWidget. Where glog writes
 * to is the host's choice; a host that never initialises it has the warnings on its standard error, and no
 * files.
 *
 * **Only local files are loaded as QML.** A path is never taken for a URL: "https://..." and "qrc:/..." are
 * files that do not exist. A file that was loaded cannot fetch components, modules or scripts from another
 * machine either; such an import fails with a glog warning. Pictures and data are the scene's own affair.
 *
 * **Size.** The container has a fixed size, the root item's, rounded. It follows when the scene changes
 * the size of its root item later; a size that is not valid then changes nothing.
 *
 * **Compiling.** What the pointers lead to is in Qt's module Qml: a host that uses qmlContext() links
 * `Qt5::Qml`. No other host needs Qt's QML modules to compile.
 *
 * **Lifetime.** The container and the view die with this object, in whichever window they are. A host
 * that puts the container into a window takes it out again (`setParent(nullptr)`) when it wants to use it
 * elsewhere, and before this object dies. When the window dies first the container dies with it, and
 * nothing can be loaded or shown any more. The scene's own handlers must not delete this object, nor load
 * it again; deleteLater() is safe.
 */
class UICOMPONENTS_EXPORT QuickContent : public QObject
{
    Q_OBJECT

public:
    /// Undefined, and without a parent.
    QuickContent();
    /// Deletes the view and the container, as far as they are alive.
    ~QuickContent() override;

    /// Loads the file @p path, as QFile takes it, and returns when its scene is complete. Afterwards
    /// isAvailable() tells the outcome.
    ///
    /// It fails when there is no such file, when the file makes no item (it cannot be read, has errors,
    /// imports what is not there, or its root is a window or no item at all), and when the root item's
    /// width or height is below 0. An item of 0 by 0 is available and cannot be seen. A script that
    /// throws while the scene is made fails nothing; Qt logs it.
    ///
    /// It may be called again, also after a failure: the file is read anew, with all that it imports, and
    /// replaces the scene that was there. Components that a host has made with the same engine must be gone
    /// by then. A file that does not exist leaves the old scene in the container.
    void load(const QString& path);

    /// The latest load() succeeded.
    bool isAvailable() const;

    /// load() was never called. A content that failed is not undefined.
    bool isUndefined() const;

    /// The container, a widget without a parent at first. It stays owned by this object. Null when it died
    /// with a window that it was put into.
    QPointer<QWidget> getUiContent();

    /// The root context of the view's own engine: set properties on it before loading, and the scene sees
    /// them by name. Owned by the engine. Null when the container died.
    QPointer<QQmlContext> qmlContext();

private:
    bool loadQml(const QString& path);
    QSizeF getSize() const;

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace Qml
