#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <functional>
#include <memory>

class QUrl;

/**
 * A field for the path of a folder: a line edit, a button that browses, a button that resets; above them, if
 * wanted, the required and the available space, and below them what is wrong with the path.
 *
 *     auto* field = new PathSelectionWidget(this);
 *     field->setDefaultPath(Project::folder(), tr("Project folder"));
 *     field->setPath(Project::folder());
 *     connect(field, &PathSelectionWidget::pathChanged, this, &ExportPage::showFreeSpace);
 *     connect(field, &PathSelectionWidget::browseDirectoryRequested, this, &ExportPage::browse);
 *     ...
 *     if (field->checkPath()) { startExport(field->path()); }
 *
 * **Default path.** A path that equals the default path, also two empty ones, is shown by the display text.
 * When the line edit gets the focus, it becomes empty, and the path stays until something is typed; what is
 * typed stays as typed until the focus leaves. The reset button shows only with a default path, and is
 * disabled while the path is shown by its text.
 *
 * **Readers.** They find a group of the line edit, which has the field's name and the path as its value, and
 * of the two buttons. Tab goes from one to the next. While the field is marked, the line edit is invalid and
 * has the message as its description.
 *
 * **Style sheet.** "spaceInfoFrame" (OvFrame) holds "requiredLabel" and "availableLabel";
 * "pathSelectionFrame" (OvFrame) holds "pathLineEdit" (Orvane::Tessel::TesselLineEdit, property "kitVersion",
 * always "1.0"), "pathBrowseButton" and "pathResetButton" (QToolButton, without text or icon); "errorLabel"
 * has the style hint "error". So has "pathSelectionFrame" while the field is marked; its property "focusHint"
 * (bool), set from the first focus on, tells whether the line edit has it. Margins and gaps are 0 (see
 * LayoutController).
 *
 *     #pathSelectionFrame[focusHint="true"] { border: 1px solid blue; }
 *     #pathSelectionFrame[styleHint="error"] { border: 1px solid red; }
 * @see FileUtil, StandardFolderUrls, EditSession
 */
class UICOMPONENTS_EXPORT PathSelectionWidget : public OvFrame
{
    Q_OBJECT

public:
    /// Where checkPath() shows its message. Any other value shows none: the field is marked all the same.
    enum ErrorDisplayType : int {
        Tooltip = 1, ///< a tool tip of the line edit, which opens at once
        Label = 2,   ///< "errorLabel", below the line edit; it wraps, and does not widen the field
    };

    /// An empty field without a default path. @p parent owns the field; null makes it a window.
    explicit PathSelectionWidget(QWidget* parent);
    ~PathSelectionWidget() override;

    /// The path as last set or typed, at once; neither cleaned nor checked.
    QString path() const;

    /// Empty, the default, means that there is none.
    QString defaultPath() const;

    /// Sets the path, of any form. pathChanged() follows if it differs, and always if it is the default path
    /// and that has a text. The mark of checkPath() stays until then.
    void setPath(const QString& path);

    /// Sets the default path and its display text. Either may be empty. The line edit and the path stay as
    /// they are: call it before setPath().
    void setDefaultPath(const QString& path, const QString& displayText);

    /**
     * Returns whether the path can be used. Reads the disk, as nothing else does. Call it when the path is
     * about to be used, not in a slot of pathChanged() or within 100 ms of setPath(): the pathChanged() of
     * that change removes the mark before the user sees it.
     *
     * First FileUtil::isPathValid() must agree. Then, if there is one, the check function alone decides.
     * Without one the folder, or the nearest folder above it if it does not exist yet, must be readable and
     * writable for this process; a relative path never is.
     *
     * On an error the line edit gets the focus with all its text selected, the field is marked, and the
     * message is shown as plain text and announced by readers. The next key hides a tool tip; the next
     * pathChanged() removes mark and label. Success removes no earlier mark. A handler of the widget that
     * loses the focus must not delete the field.
     */
    bool checkPath();

    /// Sets what checkPath() asks about a path that is valid in form: it returns a message for the user, or
    /// the empty string for a good path. An empty function restores the tests of permission. The function may
    /// replace itself and may delete the field.
    void setCheckPathFunc(const std::function<QString(const QString&)>& f);

    /// Tooltip by default. Does not change what is already shown.
    void setErrorDisplayType(PathSelectionWidget::ErrorDisplayType t);

    /// Sets the tool tip of the button that browses.
    void setBrowseButtonTooltip(const QString& text);

    /// Sets the tool tip of the button that resets.
    void setResetButtonTooltip(const QString& text);

    /// Shows or hides the required space, hidden by default: "..." for a negative number of @p bytes, which
    /// means not known yet, else a size in the unit that suits it, with 1024 bytes a kilobyte.
    void showRequiredSpace(bool visible, qint64 bytes);

    /// The same for the space that is available.
    void showAvailableSpace(bool visible, qint64 bytes);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The path, set or typed, became @p path. Emitted 100 ms after the first of a burst of changes, once for
    /// all of them; a steady stream of changes is reported every 100 ms. A field that is destroyed before
    /// reports nothing. Error mark and label go after all slots have run.
    void pathChanged(const QString& path);

    /// The user wants to browse; the host opens a dialog and calls setPath(). It starts at @p url: that of
    /// the path, which is empty for an empty path and may not exist, or, where the path is the default path,
    /// the computer's root (StandardFolderUrls).
    void browseDirectoryRequested(const QUrl& url);

protected:
    /// The texts of the space figures and the field's own two messages are translated (context
    /// "PathSelectionWidget") and follow a change of language; messages of FileUtil and of the host do not.
    void changeEvent(QEvent* event) override;

private:
    void requestPathChanged();
    void updateSpaceInfoVisibility();

    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
