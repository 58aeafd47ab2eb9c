#include "PathSelectionWidget.h"

#include "AccessibleEvents.h"
#include "AccessibleFactory.h"
#include "ClickButton.h"
#include "LabelFocus.h"
#include "NamedPart.h"
#include "ScopedChange.h"

#include <DesignElements/TesselLineEdit.h>
#include <EditorUtility/FileUtil.h>
#include <QtUtility/FormatFileSize.h>
#include <QtUtility/Scheduler.h>
#include <Settings/StandardFolderUrls.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/Util.h>

#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QTextDocument>
#include <QToolTip>
#include <QUrl>

#include <optional>

using Orvane::Tessel::TesselLineEdit;

namespace {

constexpr int reportDelayMs = 100;

constexpr char notReadable[] = QT_TRANSLATE_NOOP("PathSelectionWidget", "Selected path is not readable");
constexpr char notWritable[] = QT_TRANSLATE_NOOP("PathSelectionWidget", "Selected path is not writable");
constexpr char required[] = QT_TRANSLATE_NOOP("PathSelectionWidget", "Required: %1");
constexpr char available[] = QT_TRANSLATE_NOOP("PathSelectionWidget", "Available: %1");

/// Keeps QToolTip from taking a text for rich text.
QString literalToolTip(const QString& text)
{
    if (!Qt::mightBeRichText(text)) {
        return text;
    }
    return QString::fromLatin1("<span style=\"white-space: pre-wrap\">") + text.toHtmlEscaped() +
           QString::fromLatin1("</span>");
}

} // namespace

class PathSelectionWidget::Private
{
public:
    /// A label with a figure of disk space, which it keeps to translate its text again.
    class SpaceFigure
    {
    public:
        SpaceFigure(QLabel* label, const char* text)
            : m_label(label)
            , m_text(text)
        {
        }

        void show(bool visible, qint64 bytes)
        {
            m_bytes = bytes;
            write();
            m_label->setVisible(visible);
        }

        void retranslate()
        {
            if (m_bytes) {
                write();
            }
        }

    private:
        void write()
        {
            using namespace Orvane::Util;
            const QString size = *m_bytes < 0 ? QString::fromLatin1("...")
                                              : FormatFileSize(*m_bytes, -1, FileSizeUnit::Auto, 1024);
            m_label->setText(PathSelectionWidget::tr(m_text).arg(size));
        }

        QLabel* const m_label;
        const char* const m_text;
        std::optional<qint64> m_bytes;
    };

    struct PathError
    {
        QString message;
        /// The source text of our own messages.
        const char* source = nullptr;
    };

    explicit Private(PathSelectionWidget* widget);

    bool isDefaultPathShownByText(const QString& newPath) const;
    void handleFocus(bool hasFocus);
    PathError findError() const;
    void showError(const PathError& error);
    void dropToolTip() const;
    void retranslate();

    PathSelectionWidget* const q;
    OvFrame* const spaceInfoFrame;
    QLabel* const requiredLabel;
    QLabel* const availableLabel;
    OvFrame* const pathSelectionFrame;
    TesselLineEdit* const pathLineEdit;
    QToolButton* const pathBrowseButton;
    QToolButton* const pathResetButton;
    QLabel* const errorLabel;
    Orvane::Util::Scheduler<PathSelectionWidget> scheduler;
    ErrorDisplayType errorDisplayType = Tooltip;
    QString path;
    QString defaultPath;
    QString defaultDisplayText;
    std::function<QString(const QString&)> checkFunction;
    bool settingPath = false; // changes of the line edit are the widget's own
    SpaceFigure requiredSpace;
    SpaceFigure availableSpace;
    PathError shownError;
};

PathSelectionWidget::Private::Private(PathSelectionWidget* widget)
    : q(widget)
    , spaceInfoFrame(named("spaceInfoFrame", new OvFrame(widget)))
    , requiredLabel(named("requiredLabel", new QLabel(spaceInfoFrame)))
    , availableLabel(named("availableLabel", new QLabel(spaceInfoFrame)))
    , pathSelectionFrame(named("pathSelectionFrame", new OvFrame(widget)))
    , pathLineEdit(named("pathLineEdit", new TesselLineEdit(pathSelectionFrame)))
    , pathBrowseButton(named("pathBrowseButton", new ClickButton(pathSelectionFrame)))
    , pathResetButton(named("pathResetButton", new ClickButton(pathSelectionFrame)))
    , errorLabel(named("errorLabel", new QLabel(widget)))
    , scheduler(widget, &PathSelectionWidget::requestPathChanged, reportDelayMs)
    , requiredSpace(requiredLabel, required)
    , availableSpace(availableLabel, available)
{
    LabelFocus::lead(q, pathLineEdit);
    (new OvVBoxLayout(q))->autoFill();
    (new OvHBoxLayout(spaceInfoFrame))->autoFill()->addStretch(0);
    (new OvHBoxLayout(pathSelectionFrame))->autoFill()->setStretch(0, 1);

    Util::applyProperty(pathLineEdit, "kitVersion", QString::fromLatin1("1.0"));
    Util::applyStyleHint(errorLabel, QString::fromLatin1("error"));
    errorLabel->setTextFormat(Qt::PlainText);
    // A message quotes paths, which must not widen the panel.
    errorLabel->setWordWrap(true);
    QSizePolicy policy = errorLabel->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    errorLabel->setSizePolicy(policy);

    for (QWidget* hidden : {static_cast<QWidget*>(spaceInfoFrame), static_cast<QWidget*>(requiredLabel),
                            static_cast<QWidget*>(availableLabel), static_cast<QWidget*>(pathResetButton),
                            static_cast<QWidget*>(errorLabel)}) {
        hidden->hide();
    }
}

bool PathSelectionWidget::Private::isDefaultPathShownByText(const QString& newPath) const
{
    return !defaultPath.isEmpty() && !defaultDisplayText.isEmpty() && newPath == defaultPath;
}

void PathSelectionWidget::Private::handleFocus(bool hasFocus)
{
    if (path == defaultPath) {
        const auto writing = scopedChange(settingPath, true, q);
        pathLineEdit->setText(hasFocus ? QString() : defaultDisplayText);
    }
    Util::applyProperty(pathSelectionFrame, "focusHint", hasFocus);
}

PathSelectionWidget::Private::PathError PathSelectionWidget::Private::findError() const
{
    // Copies: a check function may set another path, replace itself or delete the widget.
    QString checked = path;
    const auto check = checkFunction;

    PathError error;
    if (!FileUtil::isPathValid(checked, &error.message)) {
        return error;
    }
    if (check) {
        return {check(checked), nullptr};
    }
    const QDir folder(checked);
    if (folder.isRelative()) {
        checked.clear();
    } else if (!folder.exists()) {
        checked = FileUtil::closestPath(checked);
    }
    if (!FileUtil::isOperationAllowed(checked, FileUtil::Read)) {
        error.source = notReadable;
    }
    if (!FileUtil::isOperationAllowed(checked, FileUtil::Write)) {
        error.source = notWritable;
    }
    if (error.source) {
        error.message = tr(error.source);
    }
    return error;
}

void PathSelectionWidget::Private::showError(const PathError& error)
{
    pathLineEdit->setFocus(Qt::OtherFocusReason);
    pathLineEdit->selectAll();
    Util::applyStyleHint(pathSelectionFrame, QString::fromLatin1("error"));
    shownError = error;
    if (errorDisplayType == Tooltip) {
        const QString tip = literalToolTip(error.message);
        pathLineEdit->setToolTip(tip);
        const QPoint spot = pathLineEdit->pos() + QPoint(0, pathLineEdit->height() / 2);
        QToolTip::showText(pathLineEdit->mapToGlobal(spot), tip, pathLineEdit);
    } else if (errorDisplayType == Label) {
        errorLabel->setText(error.message);
        errorLabel->show();
    }
    AccessibleEvents::alert(pathLineEdit);
}

void PathSelectionWidget::Private::dropToolTip() const
{
    // A tool tip that is shown stays when the widget's text changes.
    if (QToolTip::isVisible() && QToolTip::text() == pathLineEdit->toolTip()) {
        QToolTip::hideText();
    }
    pathLineEdit->setToolTip(QString());
}

void PathSelectionWidget::Private::retranslate()
{
    requiredSpace.retranslate();
    availableSpace.retranslate();
    if (!shownError.source) {
        return;
    }
    // Replaces the message where it is still shown.
    const QString before = shownError.message;
    shownError.message = tr(shownError.source);
    if (pathLineEdit->toolTip() == literalToolTip(before)) {
        pathLineEdit->setToolTip(literalToolTip(shownError.message));
    }
    if (errorLabel->text() == before) {
        errorLabel->setText(shownError.message);
    }
}

PathSelectionWidget::PathSelectionWidget(QWidget* parent)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this))
{
    AccessibleFactory::install();
    d->pathLineEdit->installEventFilter(this);
    connect(d->pathBrowseButton, &QToolButton::clicked, this, [this] {
        const bool isDefault = !d->defaultPath.isEmpty() && d->path == d->defaultPath;
        Q_EMIT browseDirectoryRequested(isDefault ? StandardFolderUrls::myComputerUrl()
                                                  : QUrl::fromLocalFile(d->path));
    });
    connect(d->pathResetButton, &QToolButton::clicked, this, [this] {
        if (!d->defaultPath.isEmpty()) {
            const QPointer<PathSelectionWidget> self = this;
            setPath(d->defaultPath);
            if (self) {
                d->pathLineEdit->clearFocus();
            }
        }
    });
    connect(d->pathLineEdit, &QLineEdit::textChanged, this, [this] {
        d->dropToolTip();
        if (!d->settingPath) {
            setPath(d->pathLineEdit->text());
        }
    });
}

PathSelectionWidget::~PathSelectionWidget()
{
    // ~QWidget() takes the focus from the line edit, if the field is a window.
    d->pathLineEdit->disconnect(this);
}

QString PathSelectionWidget::path() const
{
    return d->path;
}

QString PathSelectionWidget::defaultPath() const
{
    return d->defaultPath;
}

void PathSelectionWidget::setPath(const QString& path)
{
    // @p path may be a reference to d->path.
    const QString newPath = path; // NOLINT(performance-unnecessary-copy-initialization)
    const QPointer<PathSelectionWidget> self = this;
    const auto writing = scopedChange(d->settingPath, true, this);
    bool isResettable = true;
    if (d->isDefaultPathShownByText(newPath)) {
        // The user may still be typing another path.
        const bool isBeingTyped = d->pathLineEdit->hasFocus() && d->pathLineEdit->text() == newPath;
        if (!isBeingTyped) {
            d->pathLineEdit->setText(d->defaultDisplayText);
        }
        d->scheduler.schedule();
        isResettable = false;
    } else if (newPath != d->path) {
        if (d->pathLineEdit->text() != newPath) {
            d->pathLineEdit->setText(newPath);
        }
        d->scheduler.schedule();
    }
    // May move the focus, and slots may delete the widget.
    d->pathResetButton->setEnabled(isResettable);
    if (self) {
        d->path = newPath;
    }
}

void PathSelectionWidget::setDefaultPath(const QString& path, const QString& displayText)
{
    d->defaultPath = path;
    d->defaultDisplayText = displayText;
    d->pathResetButton->setVisible(!d->defaultPath.isEmpty());
}

bool PathSelectionWidget::checkPath()
{
    const QPointer<PathSelectionWidget> self = this;
    const Private::PathError error = d->findError();
    if (error.message.isEmpty()) {
        return true;
    }
    if (self) {
        d->showError(error);
    }
    return false;
}

void PathSelectionWidget::setCheckPathFunc(const std::function<QString(const QString&)>& f)
{
    d->checkFunction = f;
}

void PathSelectionWidget::setErrorDisplayType(PathSelectionWidget::ErrorDisplayType t)
{
    d->errorDisplayType = t;
}

void PathSelectionWidget::setBrowseButtonTooltip(const QString& text)
{
    d->pathBrowseButton->setToolTip(text);
}

void PathSelectionWidget::setResetButtonTooltip(const QString& text)
{
    d->pathResetButton->setToolTip(text);
}

void PathSelectionWidget::showRequiredSpace(bool visible, qint64 bytes)
{
    d->requiredSpace.show(visible, bytes);
    updateSpaceInfoVisibility();
}

void PathSelectionWidget::showAvailableSpace(bool visible, qint64 bytes)
{
    d->availableSpace.show(visible, bytes);
    updateSpaceInfoVisibility();
}

bool PathSelectionWidget::eventFilter(QObject* watched, QEvent* event)
{
    const QPointer<PathSelectionWidget> self = this;
    if (watched == d->pathLineEdit) {
        if (event->type() == QEvent::FocusIn) {
            d->handleFocus(true);
        } else if (event->type() == QEvent::FocusOut) {
            d->handleFocus(false);
        }
    }
    return self ? QObject::eventFilter(watched, event) : true;
}

void PathSelectionWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->retranslate();
    }
    OvFrame::changeEvent(event);
}

void PathSelectionWidget::requestPathChanged()
{
    const QPointer<PathSelectionWidget> self = this;
    // A copy, so that all slots get the same path if one of them sets another.
    const QString path = d->path;
    Q_EMIT pathChanged(path);
    if (self) {
        d->errorLabel->hide();
        Util::applyStyleHint(d->pathSelectionFrame, QString());
    }
}

void PathSelectionWidget::updateSpaceInfoVisibility()
{
    d->spaceInfoFrame->setVisible(d->requiredLabel->isVisibleTo(d->spaceInfoFrame) ||
                                  d->availableLabel->isVisibleTo(d->spaceInfoFrame));
}
