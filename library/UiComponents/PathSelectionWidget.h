#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <functional>
#include <memory>

class QUrl;

/**
 * A field for the path of a folder: a line edit, a button that browses, a button that resets; above them, if
 * wanted, how much space is required and available, and below them what is wrong with the path.
 *
 *     auto* field = new PathSelectionWidget(this);
 *     field->setDefaultPath(Project::folder(), tr("Project folder"));
 *     field->setPath(Project::folder());
 *     connect(field, &PathSelectionWidget::pathChanged, this, &ExportPage::showFreeSpace);
 *     connect(field, &PathSelectionWidget::browseDirectoryRequested, this, &ExportPage::browse);
 *     ...
 *     if (field->checkPath()) { startExport(field->path()); }
 *
 * **Browsing** is the host's: the button emits browseDirectoryRequested(), the host opens a dialog and
 * answers with setPath().
 *
 * **The default path** can have a text of its own, which the line edit shows instead of it. While the line
 * edit has the keyboard and the path is the default path, it is empty, and the path stays what it is until
 * something is typed. What is typed stays as it is, also the default path: the text is shown for whatever
 * path equals the default path when the keyboard leaves, also for two empty ones. The reset button shows
 * only with a default path, and is disabled while the path is one that is shown by its text.
 *
 * **Reports.** The path is what is typed, at once. pathChanged() follows 100 ms after the first of a burst of
 * changes, typed or set, once for all that came until then; a steady stream of changes is reported every
 * 100 ms. No change touches the disk: only checkPath() does, so it belongs to the moment when the path is
 * used, and to the slots of pathChanged() at most.
 *
 * **Errors.** checkPath() marks the field and shows a message, in a tool tip or a label. The next key takes
 * the tool tip away, the next pathChanged() the mark and the label. Messages are plain text: markup in them,
 * or in a path that they quote, is shown as it stands.
 *
 * **Language.** The texts of the space figures and the widget's own two messages are translated (context
 * "PathSelectionWidget") and follow a change of language; messages of FileUtil and of the host do not.
 *
 * **Style sheet.** The children are "spaceInfoFrame" (OvFrame) with "requiredLabel" and "availableLabel"
 * (QLabel); "pathSelectionFrame" (OvFrame) with "pathLineEdit" (Orvane::Tessel::TesselLineEdit, with the
 * property "kitVersion", always "1.0"), "pathBrowseButton" and "pathResetButton" (QToolButton, without text
 * or picture); "errorLabel" (QLabel, hint "error"). The frame "pathSelectionFrame" has the hint "error" while
 * the field is marked, and the property "focusHint" (bool) once the line edit has had the keyboard: whether
 * it has it now. Margins and gaps are those of LayoutController, 0 at first.
 *
 *     #pathSelectionFrame[focusHint="true"] { border: 1px solid blue; }
 *     #pathSelectionFrame[styleHint="error"] { border: 1px solid red; }
 *
 * **Lifetime.** The widget may be deleted in a slot of its signals and in its check function. A report that
 * has not been made by then is not made. What happens when checkPath() takes the keyboard from another widget
 * must not delete it.
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

    /// An empty field without a default path. @p parent owns the widget as usual; null makes it a window.
    explicit PathSelectionWidget(QWidget* parent);
    ~PathSelectionWidget() override;

    /// The path as it was set or typed last; it is neither cleaned nor checked.
    QString path() const;

    /// Empty at first, which means that there is none.
    QString defaultPath() const;

    /// Sets the path, of any form. pathChanged() follows if it is another one, and always if it is the
    /// default path and that has a text. A mark that checkPath() made stays until then.
    void setPath(const QString& path);

    /// Sets the default path and the text that stands for it. Either may be empty. The line edit and the
    /// path stay as they are: call it before setPath().
    void setDefaultPath(const QString& path, const QString& displayText);

    /**
     * Whether the path is one that can be used; asks the disk.
     *
     * First FileUtil::isPathValid() must agree. Then, if there is one, the check function alone decides.
     * Without one the folder, or the nearest folder above it if it does not exist yet, must be readable and
     * writable for this process; a relative path never is.
     *
     * If there is an error, the line edit gets the keyboard with all its text selected, the field is marked
     * and the message is shown. An earlier mark is not removed by success.
     */
    bool checkPath();

    /// Sets what checkPath() asks about a path that is valid in form: it returns a message for the user, or
    /// the empty string for a good path. An empty function brings the tests of permission back. A copy is
    /// kept. It may replace itself and may delete the widget.
    void setCheckPathFunc(const std::function<QString(const QString&)>& f);

    /// Tooltip at first. Nothing that is shown already changes.
    void setErrorDisplayType(PathSelectionWidget::ErrorDisplayType t);

    /// Sets the tool tip of the button that browses.
    void setBrowseButtonTooltip(const QString& text);

    /// Sets the tool tip of the button that resets.
    void setResetButtonTooltip(const QString& text);

    /// Shows or hides how much space is required: "..." for a negative number of @p bytes, which means not
    /// known yet, else a size in the unit that suits it, of 1024 bytes a kilobyte. Hidden at first.
    void showRequiredSpace(bool visible, qint64 bytes);

    /// The same for the space that is available.
    void showAvailableSpace(bool visible, qint64 bytes);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The path was changed within the last 100 ms or a little more, and is @p path now; see above. Error
    /// mark and label go after all slots have run.
    void pathChanged(const QString& path);

    /// The user wants to browse, from @p url: a local file's, which is empty for an empty path and may not
    /// exist; or, where the path is the default path, the computer's root (StandardFolderUrls).
    void browseDirectoryRequested(const QUrl& url);

protected:
    void changeEvent(QEvent* event) override;

private:
    void requestPathChanged();
    void updateSpaceInfoVisibility();

    class Private;
    const std::unique_ptr<Private> d;
};
