#include "PopupColorPicker.h"

#include "AccessibleEvents.h"
#include "ColorPickerButton.h"
#include "ColorPickerWidget.h"
#include "Pipette.h"
#include "PopupPosition.h"
#include "ScopedChange.h"
#include "ScreenColorSource.h"

#include <EditorWidgets/Workaround.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QToolButton>
#include <QVariant>

namespace {

bool isEqual(const PopupColorPicker::Options& one, const PopupColorPicker::Options& other)
{
    return one.nullColor == other.nullColor && one.opacity == other.opacity &&
           one.customColors == other.customColors;
}

/// Across windows, unlike QWidget::isAncestorOf().
bool isChildOf(const QWidget* widget, const QWidget* ancestor)
{
    while (widget && widget != ancestor) {
        widget = widget->parentWidget();
    }
    return widget;
}

/// Closes the pop-ups above @p window. Hiding it would close them on the way, where no slot may delete it.
void closePopupsOf(const QPointer<QWidget>& window)
{
    QWidget* top = QApplication::activePopupWidget();
    while (window && top && top != window && isChildOf(top, window) && top->close()) {
        top = QApplication::activePopupWidget();
    }
}

/// Where the keyboard starts.
void focusColor(const ColorPickerWidget* panel)
{
    const auto buttons = panel->findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        if (button->isChecked()) {
            button->setFocus(Qt::PopupFocusReason);
            return;
        }
    }
    if (auto* edit = panel->findChild<QLineEdit*>(QString::fromLatin1("currentColorValueEdit"))) {
        edit->setFocus(Qt::PopupFocusReason);
        edit->selectAll();
    }
}

} // namespace

class PopupColorPicker::Private
{
public:
    enum class State {
        Idle,
        Picking,
        Sampling, ///< A pipette runs, and the pop-up waits for it.
        Closing,  ///< The pop-up is closed, and the end not reported yet.
        Finishing,
    };

    explicit Private(PopupColorPicker* picker)
        : q(picker)
    {
    }
    ~Private();

    Popup* popupIn(QWidget* window) const;
    void open(QWidget* field);
    void show(QWidget* field);
    void showColor();
    void showPipetteState() const;
    void preview(const QColor& color);
    void sample();
    void sampleWithHostsPipette();
    void sampleFromScreen();
    void takeSample(const std::optional<QColor>& color);
    void endSampling();
    void reopen();
    void stopSampling();
    void cancel();
    void closePopup() const;
    void onHidden();
    void finish();

    QWidget* field() const { return qobject_cast<QWidget*>(q->parent()); }
    /// The value of the button that has this picker.
    std::optional<QColor> fieldColor() const
    {
        const auto* const button = qobject_cast<ColorPickerButton*>(q->parent());
        return button && button->picker() == q ? button->color() : current;
    }
    /// Takes over what the host has set meanwhile, which the button does not report if it is several colours.
    void askField()
    {
        if (current != fieldColor()) {
            start = current = fieldColor();
        }
    }
    void report(std::optional<QColor> color);

    PopupColorPicker* const q;
    Options options;
    QPointer<AbstractColorPicker> hostsPipette;
    Pipette* pipette = nullptr;
    QPointer<Popup> popup;
    // Contexts of the connections to the panel and to a running pipette.
    std::unique_ptr<QObject> panelListener;
    std::unique_ptr<QObject> pipetteListener;
    std::optional<QColor> current;
    std::optional<QColor> start;
    State state = State::Idle;
    bool isCancelled = false;
    bool isShowingColor = false;
    bool isReporting = false;
};

/// The panel in its window, for whichever picker uses it. Its class name is OvFrame's.
class PopupColorPicker::Popup : public OvFrame // clazy:exclude=missing-qobject-macro
{
public:
    Popup(QWidget* window, const Options& panelOptions);
    ~Popup() override;
    Popup(const Popup&) = delete;
    Popup& operator=(const Popup&) = delete;

    const Options options;
    QPointer<ColorPickerWidget> panel;
    QPointer<PopupColorPicker> user;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
};

PopupColorPicker::Popup::Popup(QWidget* window, const Options& panelOptions)
    : OvFrame(window, Qt::Popup)
    , options(panelOptions)
    , panel(new ColorPickerWidget(this, panelOptions.nullColor))
{
    setObjectName(QString::fromLatin1("colorPanelPopup"));
    setFrameShape(QFrame::StyledPanel);
    setProperty("roundedEdges", true);
    Workaround::Ui::apply(this);
    (new OvVBoxLayout(this))->autoFill()->setSizeConstraint(QLayout::SetFixedSize);

    panel->setOpacityAdjustmentAvailable(options.opacity);
    if (auto* ownColors = panel->findChild<QWidget*>(QString::fromLatin1("otherColorsPanel"))) {
        ownColors->setVisible(options.customColors);
    }
    // An empty pop-up is of no use.
    connect(panel, &QObject::destroyed, this, [this] {
        hide();
        deleteLater();
    });
}

PopupColorPicker::Popup::~Popup()
{
    if (panel) {
        panel->disconnect(this);
    }
    if (user) {
        user->d->onHidden();
    }
}

void PopupColorPicker::Popup::keyPressEvent(QKeyEvent* event)
{
    if (user && event->matches(QKeySequence::Cancel)) {
        user->d->cancel();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        close();
    } else {
        OvFrame::keyPressEvent(event);
    }
}

void PopupColorPicker::Popup::mousePressEvent(QMouseEvent* event)
{
    // A press outside closes the pop-up and then reaches what lies there. The field would open it again.
    const QWidget* const field = user ? user->d->field() : nullptr;
    setAttribute(Qt::WA_NoMouseReplay,
                 field && field->rect().contains(field->mapFromGlobal(event->globalPos())));
    OvFrame::mousePressEvent(event);
}

void PopupColorPicker::Popup::hideEvent(QHideEvent* event)
{
    if (user && !event->spontaneous()) {
        user->d->onHidden();
    }
    OvFrame::hideEvent(event);
}

PopupColorPicker::Private::~Private()
{
    panelListener.reset();
    pipetteListener.reset();
    if (popup) {
        popup->user = nullptr;
        closePopup();
    }
}

PopupColorPicker::Popup* PopupColorPicker::Private::popupIn(QWidget* window) const
{
    for (QObject* child : window->children()) {
        auto* const found = dynamic_cast<Popup*>(child);
        if (found && found->panel && isEqual(found->options, options)) {
            return found;
        }
    }
    return new Popup(window, options);
}

void PopupColorPicker::Private::open(QWidget* field)
{
    state = State::Picking;
    isCancelled = false;
    askField();
    start = current;
    popup = popupIn(field->window());
    if (popup->user) {
        const QPointer<PopupColorPicker> self(q);
        popup->user->stop();
        if (!self || state != State::Picking) {
            return;
        }
        if (!popup || !popup->panel) {
            finish();
            return;
        }
    }
    popup->user = q;
    panelListener = std::make_unique<QObject>();
    connect(popup->panel, &ColorPickerWidget::colorChanged, panelListener.get(),
            [this](const QColor& color) { preview(color); });
    connect(popup->panel, &ColorPickerWidget::pipetteRequested, panelListener.get(), [this] { sample(); });
    if (const ScreenColorSource* const source = ScreenColorSource::current()) {
        connect(source, &ScreenColorSource::unavailableReasonChanged, panelListener.get(),
                [this] { showPipetteState(); });
    }
    show(field);
}

void PopupColorPicker::Private::show(QWidget* field)
{
    const QPointer<PopupColorPicker> self(q);
    showColor();
    if (!self) {
        return;
    }
    if (state != State::Picking || !popup || !popup->panel) {
        // A host's slot of the panel's colorChanged() has closed or deleted it.
        finish();
        return;
    }
    showPipetteState();
    popup->setLayoutDirection(field->layoutDirection());
    popup->ensurePolished();
    popup->adjustSize();
    popup->move(popupPosition(field, popup->size()));
    focusColor(popup->panel);
    // A panel that is shown may find the colour among the user's own, and report its button.
    {
        const auto showing = scopedChange(isShowingColor, true, q);
        const QPointer<Popup> shown = popup;
        shown->show();
        if (shown && shown->isHidden()) {
            // A slot of that has closed it. Qt has gone on, and would never close it again.
            shown->show();
            shown->hide();
        }
    }
    if (self && state == State::Picking && popup) {
        AccessibleEvents::alert(popup);
    }
}

/// Gives the panel the present colour, without taking back what the panel makes of it.
void PopupColorPicker::Private::showColor()
{
    if (popup && popup->panel) {
        const auto showing = scopedChange(isShowingColor, true, q);
        popup->panel->setCurrentColor(current);
    }
}

/// The panel knows of the screen only, and other pickers may have shown it before.
void PopupColorPicker::Private::showPipetteState() const
{
    QString reason = hostsPipette ? QString() : Pipette::unavailableReason();
    auto* const button = popup && popup->panel
                             ? popup->panel->findChild<QToolButton*>(QString::fromLatin1("pipetteButton"))
                             : nullptr;
    if (button) {
        button->setEnabled(reason.isEmpty());
        if (reason.isEmpty() && pipette && !hostsPipette) {
            reason = pipette->failureReason();
        }
        button->setToolTip(reason);
    }
}

/// What a slot answers is no value of the host's own: Escape brings back the one from before.
void PopupColorPicker::Private::report(std::optional<QColor> color)
{
    const QPointer<PopupColorPicker> self(q);
    current = color;
    {
        const auto reporting = scopedChange(isReporting, true, q);
        Q_EMIT q->colorChanged(color);
    }
    if (self) {
        current = fieldColor();
    }
}

void PopupColorPicker::Private::preview(const QColor& color)
{
    if (isShowingColor || isCancelled) {
        return;
    }
    askField();
    if (current != color) {
        report(color);
    }
}

void PopupColorPicker::Private::sample()
{
    const QPointer<PopupColorPicker> self(q);
    state = State::Sampling;
    // The panel may report a last colour, and a slot of that end the pick.
    closePopup();
    if (!self || state != State::Sampling) {
        return;
    }
    pipetteListener = std::make_unique<QObject>();
    if (hostsPipette) {
        sampleWithHostsPipette();
    } else {
        sampleFromScreen();
    }
}

void PopupColorPicker::Private::sampleWithHostsPipette()
{
    const QPointer<QObject> listener = pipetteListener.get();
    connect(hostsPipette, &AbstractColorPicker::colorChanged, listener,
            [this](const std::optional<QColor>& color) { takeSample(color); });
    connect(hostsPipette, &AbstractColorPicker::pickingStopped, listener, [this] { endSampling(); });
    connect(hostsPipette, &QObject::destroyed, listener, [this] { endSampling(); });
    hostsPipette->pick();
    // A picker may end without a signal, and the host may have taken it away meanwhile.
    if (listener && !(hostsPipette && hostsPipette->isInProgress())) {
        endSampling();
    }
}

void PopupColorPicker::Private::sampleFromScreen()
{
    if (!pipette) {
        pipette = new Pipette(q);
    }
    const auto hasStarted = std::make_shared<bool>(false);
    const QPointer<QObject> listener = pipetteListener.get();
    connect(pipette, &Pipette::pickingStarted, listener, [hasStarted] { *hasStarted = true; });
    connect(pipette, &Pipette::colorSelected, listener, [this](const QColor& color) { takeSample(color); });
    connect(pipette, &Pipette::pickingStopped, listener, [this] { endSampling(); });
    pipette->startPicking();
    // Without the permission there is no pick.
    if (listener && !*hasStarted) {
        endSampling();
    }
}

void PopupColorPicker::Private::takeSample(const std::optional<QColor>& color)
{
    askField();
    std::optional<QColor> taken = color;
    if (taken && taken->isValid() && options.opacity && current && current->isValid()) {
        taken->setAlpha(current->alpha());
    }
    if (taken != current) {
        report(taken);
    }
}

/// Queued: a key that ends a pipette is still being delivered, and would reach the pop-up.
void PopupColorPicker::Private::endSampling()
{
    pipetteListener.reset();
    QMetaObject::invokeMethod(
        q, [this] { reopen(); }, Qt::QueuedConnection);
}

void PopupColorPicker::Private::reopen()
{
    QWidget* const widget = field();
    if (state != State::Sampling || pipetteListener || !widget) {
        return;
    }
    state = State::Picking;
    if (popup && popup->panel) {
        show(widget);
    } else {
        finish();
    }
}

void PopupColorPicker::Private::stopSampling()
{
    if (!pipetteListener) {
        return;
    }
    pipetteListener.reset();
    if (hostsPipette) {
        hostsPipette->stop();
    } else if (pipette) {
        pipette->stopPicking();
    }
}

void PopupColorPicker::Private::cancel()
{
    const QPointer<PopupColorPicker> self(q);
    isCancelled = true;
    askField();
    if (current != start) {
        report(start);
    }
    if (self) {
        closePopup();
    }
}

void PopupColorPicker::Private::closePopup() const
{
    const QPointer<Popup> closed = popup;
    if (closed) {
        closePopupsOf(closed.data());
    }
    if (closed) {
        closed->hide();
    }
}

/// Called while the pop-up is hidden or destroyed. The caller, perhaps a mouse press, still uses it.
void PopupColorPicker::Private::onHidden()
{
    if (state == State::Picking) {
        state = State::Closing;
        QMetaObject::invokeMethod(
            q,
            [this] {
                if (state == State::Closing) {
                    finish();
                }
            },
            Qt::QueuedConnection);
    }
}

void PopupColorPicker::Private::finish()
{
    if (state == State::Idle || state == State::Finishing) {
        return;
    }
    state = State::Finishing;
    const QPointer<PopupColorPicker> self(q);
    stopSampling();
    if (self) {
        // The selector adds its colour when it is closed, and the panel reports that.
        closePopup();
    }
    if (!self) {
        return;
    }
    panelListener.reset();
    if (popup && popup->user == q) {
        popup->user = nullptr;
    }
    state = State::Idle;
    Q_EMIT q->pickingStopped();
}

PopupColorPicker::PopupColorPicker()
    : PopupColorPicker(Options())
{
}

PopupColorPicker::PopupColorPicker(const Options& options)
    : d(std::make_unique<Private>(this))
{
    d->options = options;
}

PopupColorPicker::~PopupColorPicker() = default;

PopupColorPicker::Options PopupColorPicker::options() const
{
    return d->options;
}

void PopupColorPicker::setOptions(const Options& options)
{
    d->options = options;
}

void PopupColorPicker::setPipette(AbstractColorPicker* pipette)
{
    d->hostsPipette = pipette;
}

ColorPickerWidget* PopupColorPicker::panel() const
{
    return d->panelListener && d->popup ? d->popup->panel : nullptr;
}

bool PopupColorPicker::isInProgress() const
{
    return d->state != Private::State::Idle;
}

void PopupColorPicker::pick()
{
    QWidget* const field = d->field();
    if (field && !isInProgress()) {
        d->open(field);
    }
}

void PopupColorPicker::stop()
{
    d->finish();
}

std::optional<QColor> PopupColorPicker::color()
{
    if (!isInProgress()) {
        d->askField();
    }
    return d->current;
}

void PopupColorPicker::setColor(const std::optional<QColor>& color)
{
    if (d->current == color) {
        return;
    }
    d->current = color;
    if (isInProgress() && !d->isCancelled) {
        if (!d->isReporting) {
            d->start = color;
        }
        d->showColor();
    }
}
