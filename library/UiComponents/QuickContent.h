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
 * Loads a QML file into a widget of the size of the file's root item.
 *
 * It is no widget: it owns a plain container with a transparent QQuickWidget, which hosts put where they
 * like.
 *
 *     Qml::QuickContent content;
 *     content.qmlContext()->setContextProperty("model", model);   // before loading
 *     content.load("/opt/editor/qml/Welcome.qml");
 *     if (content.isAvailable()) {
 *         layout->addWidget(content.getUiContent());
 *     }
 *
 * **States.** A content is undefined until load() makes it available or failed. Nothing is thrown or shown on
 * failure: glog gets a warning under the file name QuickContent.cpp, and Qt logs errors in the QML with their
 * lines. Where glog writes to is the host's choice; without its initialisation, to standard error.
 *
 * **Files.** Only local files are loaded as QML. A path is never taken for a URL: "https://..." and
 * "qrc:/..." are files that do not exist. A loaded file cannot fetch components, modules or scripts from
 * another machine, nor pipes, devices and files of more than 64 MiB; such an import fails with a glog
 * warning. Images and data are the scene's own affair.
 *
 * **Size.** The container has the fixed size of the root item, rounded, and follows its changes; a size that
 * is not valid changes nothing, nor does one that is empty while the container is visible.
 *
 * **Lifetime.** This object deletes container and view, in whichever window they are: take the container out
 * of a window (`setParent(nullptr)`) before using it elsewhere. A window that is deleted first takes the
 * container with it, and nothing can be loaded or shown any more. Handlers of the scene must neither delete
 * this object nor load it again; deleteLater() is safe.
 * @see QuickDialog
 */
class UICOMPONENTS_EXPORT QuickContent : public QObject
{
    Q_OBJECT

public:
    /// Undefined, and without a parent.
    QuickContent();
    /// Deletes the view and the container, unless a window did so.
    ~QuickContent() override;

    /// Loads the file @p path, as QFile takes it, and returns when its scene is complete. isAvailable() then
    /// returns the outcome.
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

    /// Whether the latest load() succeeded.
    bool isAvailable() const;

    /// Whether load() was never called. A content that failed is not undefined.
    bool isUndefined() const;

    /// The container, which this object owns: a widget without a parent by default, null after it was deleted
    /// with a window that it was put into. Readers find the scene's items below it, as below a QuickDialog.
    QPointer<QWidget> getUiContent();

    /// The root context of the view's own engine, which owns it. The scene sees properties set on it before
    /// loading. Null after the container is deleted. Only hosts that use it link `Qt5::Qml`.
    QPointer<QQmlContext> qmlContext();

private:
    bool loadQml(const QString& path);
    QSizeF getSize() const;

    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};

} // namespace Qml
