#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QDialog>
#include <QPointer>

#include <memory>

namespace Qml {

class QuickContent;

/**
 * A modal dialog whose whole face is a QML scene.
 *
 * The dialog is as large as the scene's root item, sits on the middle of its parent, and has neither frame
 * nor background: all looks come from the scene, and where that is transparent, what is behind shows.
 *
 *     Qml::QuickDialog dialog(window);
 *     dialog.setQmlPath("/opt/editor/qml/Confirm.qml");
 *     if (dialog.exec() == QDialog::Accepted) {
 *         discard();
 *     }
 *
 * **In the scene** the dialog is called "callback". Its slots `accept()`, `reject()` and `done(int)` end it,
 * and `cursorPos()` is where the mouse is on the screen. What a subclass declares as properties, slots or
 * `Q_INVOKABLE` can be used too; that is how a form gives its values back.
 *
 *     MouseArea { anchors.fill: parent; onClicked: callback.accept() }
 *
 * **Keyboard.** The keyboard is the scene's from the start: an item with `focus: true` has it, Tab goes
 * through the items with `activeFocusOnTab`. Escape rejects the dialog unless the scene accepts the key.
 * Enter does nothing unless the scene handles it.
 *
 * **Only exec() shows the scene.** show() and open() of the base class show an empty window. The layout of
 * the dialog is its own, made anew by each exec(): a host's children of the dialog are not in it.
 *
 * **Lifetime.** The scene is loaded once, when it is first needed, and keeps its state from one exec() to
 * the next. The dialog, its parent or the scene's container may be deleted while exec() runs, which then
 * returns 0; a dialog that may be must be on the heap, as with every QDialog. Handlers of the scene must
 * not delete the dialog, nor must slots of accepted() and rejected(), behind which QDialog emits finished();
 * deleteLater() is safe. With Qt::WA_DeleteOnClose a dialog that has been ended is deleted: at the end of
 * exec(), or one turn of the event loop later when the scene ended it before that loop ran. An exec() that
 * could not load the scene does not delete it.
 */
class UICOMPONENTS_EXPORT QuickDialog : public QDialog
{
    Q_OBJECT

public:
    /// Nothing is loaded yet. @p parent is what the dialog is centred on, and owns it as usual.
    explicit QuickDialog(QWidget* parent = nullptr);
    /// Deletes the content with its scene.
    ~QuickDialog() override;

    /// The QML file, a path as QuickContent::load() takes it; empty at first. Only the first exec() reads
    /// it: another path has no effect later, also when the first could not be loaded.
    void setQmlPath(const QString& path);

    /// Shows the scene and returns when it has been ended, with the result that it was ended with: 1 when
    /// accepted, 0 when rejected, by Escape too, or when the application quits.
    ///
    /// Returns 0 at once, and shows nothing, when the scene could not be loaded, now or at the first
    /// exec(); the reason is logged as QuickContent says. So does a call while exec() of the same dialog
    /// runs, which does nothing else. A scene that ends the dialog while it is loaded, as in
    /// `Component.onCompleted`, is not shown either; its result is returned. A scene without width or height
    /// gets 200 ms to give itself both, from bindings, a loader or an animation, and is shown as soon as it
    /// has; otherwise it is rejected, with a warning of glog that names the file.
    ///
    /// Every call makes the dialog a modal frameless window, takes the container of the scene into it, and
    /// moves it: the middle of the parent's rectangle less half the scene's size, each half cut to whole
    /// pixels. That may be partly outside the screen when the parent is. Without a parent it is the middle
    /// of the screen with the active window, or else with the mouse. When the scene changes its size the
    /// dialog does, and its top left corner stays. At the end the container has no parent again.
    int exec() override;

protected:
    /// What loads the scene; never null while the dialog lives, which owns it.
    QPointer<QuickContent> content();

    /// The position of the mouse on the screen.
    Q_INVOKABLE QPoint cursorPos() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace Qml
