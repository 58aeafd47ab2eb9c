#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QDialog>
#include <QPointer>

#include <memory>

namespace Qml {

class QuickContent;

/**
 * A modal dialog that shows nothing but a QML scene.
 *
 * The dialog has the size of the scene's root item, is centred on its parent, and has neither frame nor
 * background: where the scene is transparent, what is behind shows.
 *
 *     Qml::QuickDialog dialog(window);
 *     dialog.setQmlPath("/opt/editor/qml/Confirm.qml");
 *     if (dialog.exec() == QDialog::Accepted) {
 *         discard();
 *     }
 *
 * **Scene.** There the dialog is called "callback". Its slots `accept()`, `reject()` and `done(int)` end it,
 * and `cursorPos()` is the mouse position. Properties, slots and `Q_INVOKABLE` functions of a subclass can be
 * used too; that is how a form returns its values. `import UiComponents 0.1` adds the sheet's SheetColors.
 *
 *     MouseArea { anchors.fill: parent; onClicked: callback.accept() }
 *
 * **Keyboard.** The scene has the focus from the start: an item with `focus: true` gets it, Tab visits the
 * items with `activeFocusOnTab`. Escape rejects the dialog unless the scene accepts the key. Enter does
 * nothing unless the scene handles it.
 *
 * **Readers.** They find the scene's items below the dialog, as far as the scene describes them by the
 * attached properties of Accessible, and call the dialog by the name of its root item, unless it has a window
 * title. Keys are the scene's; Escape rejects.
 *
 * **Lifetime.** The scene is loaded once, by the first exec(), and keeps its state. During exec() the dialog
 * (on the heap, as with every QDialog), its parent and the scene's container may be deleted. Handlers of the
 * scene and slots of accepted() and rejected(), behind which QDialog emits finished(), use deleteLater()
 * instead.
 * @see QuickContent, SheetColors
 */
class UICOMPONENTS_EXPORT QuickDialog : public QDialog
{
    Q_OBJECT

public:
    /// Loads nothing yet. @p parent owns the dialog, which is centred on it.
    explicit QuickDialog(QWidget* parent = nullptr);
    /// Deletes the content with its scene.
    ~QuickDialog() override;

    /// Sets the QML file, a path as QuickContent::load() takes it; empty by default. Only the first exec()
    /// reads it: a later path has no effect, also when the first could not be loaded.
    void setQmlPath(const QString& path);

    /// Shows the scene, as nothing else does: show() and open() show an empty window. Makes the dialog's
    /// layout anew, without a host's children of the dialog. Returns the scene's result: 1 when accepted, 0
    /// when rejected, by Escape too, when the application quits, or when the dialog, its parent or the
    /// container is deleted.
    ///
    /// Returns 0 at once, and shows nothing, when the scene could not be loaded, now or by the first exec()
    /// (QuickContent logs the reason), and when exec() of the same dialog runs already. A scene that ends the
    /// dialog while it is loaded, as in `Component.onCompleted`, is not shown either; its result is returned.
    /// A scene without width or height gets 200 ms to give itself both, from bindings, a loader or an
    /// animation, and is shown as soon as it has; otherwise it is rejected, with a glog warning that names
    /// the file.
    ///
    /// Each call makes the dialog a modal frameless window, takes the container into it, and moves it to the
    /// middle of the parent's rectangle less half the scene's size, each half cut to whole pixels; that may
    /// be partly outside the screen. Without a parent it is the middle of the screen with the active window,
    /// or else with the mouse. The dialog follows the scene's size, its top left corner stays. At the end the
    /// container has no parent again.
    ///
    /// Qt::WA_DeleteOnClose deletes a dialog that was ended: at the end of exec(), or one turn of the event
    /// loop later when the scene ended it before that loop ran. It keeps one that could not load the scene.
    int exec() override;

protected:
    /// The loader of the scene, which the dialog owns; never null.
    QPointer<QuickContent> content();

    /// The position of the mouse on the screen.
    Q_INVOKABLE QPoint cursorPos() const;

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};

} // namespace Qml
