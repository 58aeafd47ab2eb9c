#include "ColorPickerWidget.h"

#include "AccessibleEvents.h"
#include "AccessibleFactory.h"
#include "ColorPalette.h"
#include "ColorPickerWidgetButton.h"
#include "ColorPickerWidgetFaces.h"
#include "ColorPlaneWidget.h"
#include "CustomColorSelectWidget.h"
#include "CustomColors.h"
#include "LabelFocus.h"
#include "NamedPart.h"
#include "Pipette.h"
#include "PopupPosition.h"
#include "ScreenColorSource.h"
#include "SheetlessBuild.h"

#include <DesignElements/TesselLineEdit.h>
#include <EditorWidgets/ColorHint.h>
#include <EditorWidgets/Workaround.h>
#include <Settings/Settings.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvGridLayout.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/StyleHints.h>
#include <WidgetToolkit/Util.h>

#include <QButtonGroup>
#include <QDialog>
#include <QEvent>
#include <QFocusEvent>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QRegExpValidator>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QVariant>
#include <QVector>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

constexpr int opacitySteps = 100;

// Of preview and plane, where no sheet gives them a size, in pixels.
constexpr int barePreviewSize = 16;
constexpr QSize barePlaneSize(200, 160);

QColor opaque(const QColor& color)
{
    return color.isValid() ? QColor::fromRgb(color.rgb()) : QColor();
}

/// The colour model can differ all the same.
bool looksTheSame(const std::optional<QColor>& first, const std::optional<QColor>& second)
{
    if (!first || !second) {
        return first.has_value() == second.has_value();
    }
    return first->isValid() == second->isValid() && first->rgba() == second->rgba();
}

/// Buttons by keyOf() their colour.
using ColorIndex = QHash<QRgb, ColorPickerWidgetButton*>;

/// The opaque colour; 0, which is translucent, for an invalid one.
QRgb keyOf(const QColor& color)
{
    return color.isValid() ? color.rgb() : 0U;
}

/// Adds a row for @p title, and one for @p first and @p second.
void addTitledRow(OvGridLayout* grid, QWidget* title, QWidget* first, QWidget* second)
{
    grid->addRow({LayoutHelpers::GridItem(title, LayoutHelpers::Alignment::Default),
                  LayoutHelpers::GridItem(LayoutHelpers::CellModifier::SpanPrevious)},
                 0);
    grid->addRow({first, second}, 0);
}

/// The pop-up of the selector.
// Without Q_OBJECT, since style sheets know it as a QDialog.
class SelectorPopup : public QDialog // clazy:exclude=missing-qobject-macro
{
public:
    explicit SelectorPopup(QWidget* parent)
        : QDialog(parent, Qt::Popup)
    {
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        // QDialog would look for a default button.
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            accept();
        } else {
            QDialog::keyPressEvent(event);
        }
    }
};

} // namespace

class ColorPickerWidget::Private
{
public:
    /// The parts of a panel that a slot has deleted. Qt's line edits, buttons and spin boxes use themselves
    /// after their signals. So each emission shares this, and the parts are deleted after the last one has
    /// returned, not in an event loop of a slot.
    class Remains
    {
    public:
        Remains() = default;
        ~Remains()
        {
            for (const QPointer<QWidget>& part : qAsConst(m_parts)) {
                if (part) {
                    part->deleteLater();
                }
            }
        }
        Remains(const Remains&) = delete;
        Remains& operator=(const Remains&) = delete;

        void keep(QWidget* part)
        {
            part->hide();
            part->setParent(nullptr);
            m_parts.append(part);
        }

    private:
        QVector<QPointer<QWidget>> m_parts;
    };

    /// The edit of the value, which shows words where there is no colour.
    // Without Q_OBJECT, since style sheets know it as a TesselLineEdit.
    class ValueEdit : public Orvane::Tessel::TesselLineEdit // clazy:exclude=missing-qobject-macro
    {
    public:
        using TesselLineEdit::TesselLineEdit;

        /// Shows the current value in the edit.
        std::function<void()> showValue;

    protected:
        void focusInEvent(QFocusEvent* event) override
        {
            TesselLineEdit::focusInEvent(event);
            // The first press would clear the selection.
            m_isEntered = event->reason() == Qt::MouseFocusReason;
            selectWords();
        }

        void focusOutEvent(QFocusEvent* event) override
        {
            const QPointer<ValueEdit> self(this);
            TesselLineEdit::focusOutEvent(event);
            const bool isBack =
                event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
            if (self && !isBack) {
                showValue();
            }
        }

        void mousePressEvent(QMouseEvent* event) override
        {
            TesselLineEdit::mousePressEvent(event);
            if (std::exchange(m_isEntered, false)) {
                selectWords();
            }
        }

    private:
        void selectWords()
        {
            if (!hasAcceptableInput()) {
                selectAll();
            }
        }

        bool m_isEntered = false;
    };

    Private(ColorPickerWidget* panel, bool nullColorAllowed, const QStringList& ownColors);
    static std::unique_ptr<Private> make(ColorPickerWidget* panel, bool nullColorAllowed);

    void layOut();
    void buildPalette(bool nullColorAllowed);
    ColorPickerWidgetButton* makeColorButton(QWidget* parent);
    void addPaletteButton(int row, int column, const QColor& color);
    void buildQueue();
    void configureInputs() const;
    void orderTabs() const;
    void setTexts();
    void showPipetteState();
    void connectInputs();

    void fillQueue(const QStringList& names);
    void reinitializeCustomColors();
    ColorPickerWidgetButton* queueButton(int index) const;
    ColorPickerWidgetButton* buttonFor(const QColor& color) const;

    void setColor(const std::optional<QColor>& color);
    void setSliderToAlpha() const;
    QColor withSliderAlpha(QColor color) const;
    void hold(const std::optional<QColor>& color);
    void clearCheckedColorButton() const;
    void updateColorButtonsCheckState();
    void updateColorValueWidgets() const;
    void updatePreview() const;

    void onButtonToggled(QAbstractButton* button, bool checked);
    void onOpacityChanged();
    void onTextEdited(const QString& text);
    void onCustomColorButtonClicked();
    void onSelectorReport(const QColor& color);
    void onSelectorFinished();

    void createSelector();
    void placeSelector() const;
    void closeSelector() const;
    bool storeCurrentColor() const;

    template <typename Emission>
    void announce(Emission emission);
    void reportColor();
    void keepPartsInUse() const;

    ColorPickerWidget* const q;
    OvFrame* const topPanel;
    OvFrame* const colorMatrixPanel;
    OvFrame* const otherColorsPanel;
    OvFrame* const opacityPanel;
    QLabel* const currentColorDisplayLabel;
    ValueEdit* const currentColorValueEdit;
    QToolButton* const pipetteButton;
    QLabel* const otherColorsTitleLabel;
    QToolButton* const addCustomColorButton;
    OvFrame* const otherColorsQueuePanel;
    QLabel* const opacityTitleLabel;
    OvDoubleSlider* const opacitySlider;
    OvSpinBox* const opacitySpinbox;
    QButtonGroup* const buttons;
    OvGridLayout* const paletteLayout;
    OvHBoxLayout* const queueLayout;
    // Context of all child connections; destroyed first, since hiding an emptied spin box emits.
    std::unique_ptr<QObject> listener = std::make_unique<QObject>();

    int colorDialogOffset = 0;
    // The button of each colour. The settings may repeat a colour, or hold one of the palette: own colours
    // come before the palette, later ones before earlier ones.
    ColorIndex paletteButtons;
    ColorIndex queueButtons;
    QPointer<QDialog> popup;
    QPointer<CustomColorSelectWidget> selector;
    // Given to the selector, or reported by it, last.
    std::optional<QColor> selectorColor;
    std::optional<QColor> currentColor;
    bool opacityAdjustmentAvailable = true;

    int nextButtonId = -2;
    // True while the panel checks the button of the selector's colour, whose handler then does nothing.
    bool isFollowing = false;
    QString shownReason; // of the pipette button
    const std::shared_ptr<Remains> remains = std::make_shared<Remains>();
};

ColorPickerWidget::Private::Private(ColorPickerWidget* panel, bool nullColorAllowed,
                                    const QStringList& ownColors)
    : q(panel)
    , topPanel(named("topPanel", new OvFrame(panel)))
    , colorMatrixPanel(named("colorMatrixPanel", new OvFrame(panel)))
    , otherColorsPanel(named("otherColorsPanel", new OvFrame(panel)))
    , opacityPanel(named("opacityPanel", new OvFrame(panel)))
    , currentColorDisplayLabel(named("currentColorDisplayLabel", new QLabel(topPanel)))
    , currentColorValueEdit(named("currentColorValueEdit", new ValueEdit(topPanel)))
    , pipetteButton(named("pipetteButton", new QToolButton(topPanel)))
    , otherColorsTitleLabel(named("otherColorsTitleLabel", new QLabel(otherColorsPanel)))
    , addCustomColorButton(named("addCustomColorButton", new QToolButton(otherColorsPanel)))
    , otherColorsQueuePanel(named("otherColorsQueuePanel", new OvFrame(otherColorsPanel)))
    , opacityTitleLabel(named("opacityTitleLabel", new QLabel(opacityPanel)))
    , opacitySlider(named("opacitySlider", new OvDoubleSlider(opacityPanel)))
    , opacitySpinbox(named("opacitySpinbox", new OvSpinBox(opacityPanel)))
    , buttons(new QButtonGroup(panel))
    , paletteLayout(new OvGridLayout(colorMatrixPanel))
    , queueLayout(new OvHBoxLayout(otherColorsQueuePanel))
{
    layOut();
    buildPalette(nullColorAllowed);
    buildQueue();
    fillQueue(ownColors);
    configureInputs();
    orderTabs();
    setTexts();
    updateColorValueWidgets();
    connectInputs();
}

std::unique_ptr<ColorPickerWidget::Private> ColorPickerWidget::Private::make(ColorPickerWidget* panel,
                                                                             bool nullColorAllowed)
{
    AccessibleFactory::install();
    const QStringList ownColors = Settings::userCustomColors();
    std::unique_ptr<Private> result;
    SheetlessBuild::run([&] { result = std::make_unique<Private>(panel, nullColorAllowed, ownColors); });
    return result;
}

void ColorPickerWidget::Private::layOut()
{
    (new OvVBoxLayout(q))->autoFill();
    (new OvHBoxLayout(topPanel))->autoFill();
    addTitledRow(new OvGridLayout(otherColorsPanel), otherColorsTitleLabel, addCustomColorButton,
                 otherColorsQueuePanel);
    addTitledRow(new OvGridLayout(opacityPanel), opacityTitleLabel, opacitySlider, opacitySpinbox);
}

void ColorPickerWidget::Private::buildPalette(bool nullColorAllowed)
{
    for (int row = 0; row < ColorPalette::rowCount; ++row) {
        int column = 0;
        if (nullColorAllowed && row == 0) {
            // Instead of white and the second grey.
            addPaletteButton(row, column++, QColor());
            addPaletteButton(row, column++, ColorPalette::rows.front().front());
        }
        for (; column < ColorPalette::columnCount; ++column) {
            addPaletteButton(
                row, column,
                ColorPalette::rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
        }
    }
}

ColorPickerWidgetButton* ColorPickerWidget::Private::makeColorButton(QWidget* parent)
{
    auto* button = new ColorPickerWidgetButton(parent);
    button->setCheckable(true);
    // The id that the group would assign, after a search through all others.
    buttons->addButton(button, nextButtonId--);
    return button;
}

void ColorPickerWidget::Private::addPaletteButton(int row, int column, const QColor& color)
{
    ColorPickerWidgetButton* const button = makeColorButton(colorMatrixPanel);
    if (!color.isValid()) {
        button->setProperty("nullColor", true);
    }
    paletteLayout->addWidget(button, row, column);
    button->setColor(color);
    paletteButtons.insert(keyOf(color), button);
}

void ColorPickerWidget::Private::buildQueue()
{
    for (int i = 0; i < ColorPalette::maxOwnColors; ++i) {
        QToolButton* const button = makeColorButton(otherColorsQueuePanel);
        button->setEnabled(false);
        queueLayout->addWidget(button, 0, {});
    }
}

void ColorPickerWidget::Private::configureInputs() const
{
    const QRegExp sixDigits(QString::fromLatin1("^(#?)[a-fA-F0-9]{6}$"), Qt::CaseSensitive);
    currentColorValueEdit->setValidator(new QRegExpValidator(sixDigits, currentColorValueEdit));
    currentColorDisplayLabel->setMinimumSize(barePreviewSize, barePreviewSize);

    opacitySlider->setOrientation(Qt::Horizontal);
    opacitySlider->setRange(0, opacitySteps);
    opacitySlider->setMultiplier(1.0 / opacitySteps);
    opacitySlider->setValue(opacitySlider->maximum());
    opacitySpinbox->setRange(0, opacitySteps);
    opacitySpinbox->setSuffix(QString::fromLatin1("%"));
    opacitySpinbox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    opacitySpinbox->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    Util::bindWidgets(opacitySlider, opacitySpinbox);

    ColorHint::applyColorHint(pipetteButton, LIGHT_GREY_TWO);
    ColorHint::applyColorHint(opacitySpinbox, INPUT_LIGHT);
    ColorHint::applyColorHint(currentColorValueEdit, INPUT_LIGHT);
    ColorHint::applyColorHint(opacitySlider, SLIDER_LIGHT);

    q->setFocusPolicy(LabelFocus::policy);
    otherColorsTitleLabel->setBuddy(addCustomColorButton);
    opacityTitleLabel->setBuddy(opacitySlider);
}

/// From top to bottom. In order of creation the colour buttons would be last.
void ColorPickerWidget::Private::orderTabs() const
{
    QWidget* const lastOfPalette = paletteLayout->itemAt(paletteLayout->count() - 1)->widget();
    QWidget::setTabOrder(lastOfPalette, addCustomColorButton);
    QWidget::setTabOrder(queueButton(ColorPalette::maxOwnColors - 1), opacitySlider);
    QWidget::setTabOrder(opacitySlider, opacitySpinbox);
}

void ColorPickerWidget::Private::setTexts()
{
    otherColorsTitleLabel->setText(tr("Other:"));
    opacityTitleLabel->setText(tr("Opacity:"));
    showPipetteState();
}

/// Disables the button and sets its tool tip while no colour can be picked, unless the host changed either.
void ColorPickerWidget::Private::showPipetteState()
{
    const bool isAsLeft = pipetteButton->isEnabledTo(q) == shownReason.isEmpty();
    if (isAsLeft && pipetteButton->toolTip() == shownReason) {
        shownReason = Pipette::unavailableReason();
        pipetteButton->setEnabled(shownReason.isEmpty());
        pipetteButton->setToolTip(shownReason);
    }
}

void ColorPickerWidget::Private::connectInputs()
{
    currentColorValueEdit->showValue = [this] { updateColorValueWidgets(); };
    if (const ScreenColorSource* const source = ScreenColorSource::current()) {
        connect(source, &ScreenColorSource::unavailableReasonChanged, listener.get(),
                [this] { showPipetteState(); });
    }
    connect(currentColorValueEdit, &QLineEdit::textEdited, listener.get(),
            [this](const QString& text) { onTextEdited(text); });
    connect(pipetteButton, &QAbstractButton::clicked, listener.get(),
            [this] { announce([this] { Q_EMIT q->pipetteRequested(); }); });
    connect(pipetteButton, &QAbstractButton::clicked, listener.get(),
            [this] { announce([this] { Q_EMIT q->closeRequested(); }); });
    connect(buttons, qOverload<QAbstractButton*, bool>(&QButtonGroup::buttonToggled), listener.get(),
            [this](QAbstractButton* button, bool checked) { onButtonToggled(button, checked); });
    connect(addCustomColorButton, &QAbstractButton::clicked, listener.get(),
            [this] { onCustomColorButtonClicked(); });
    connect(opacitySlider, &OvDoubleSlider::doubleValueChanged, listener.get(),
            [this] { onOpacityChanged(); });
}

void ColorPickerWidget::Private::fillQueue(const QStringList& names)
{
    for (int i = 0; i < qMin(names.size(), ColorPalette::maxOwnColors); ++i) {
        if (QColor::isValidColor(names.at(i))) {
            const QColor color = opaque(QColor(names.at(i)));
            ColorPickerWidgetButton* const button = queueButton(i);
            button->setEnabled(true);
            button->setColor(color);
            queueButtons.insert(keyOf(color), button);
        }
    }
}

void ColorPickerWidget::Private::reinitializeCustomColors()
{
    queueButtons.clear();
    fillQueue(Settings::userCustomColors());
    updateColorButtonsCheckState();
}

/// In the order on the screen, not of creation.
ColorPickerWidgetButton* ColorPickerWidget::Private::queueButton(int index) const
{
    return static_cast<ColorPickerWidgetButton*>(queueLayout->itemAt(index)->widget());
}

ColorPickerWidgetButton* ColorPickerWidget::Private::buttonFor(const QColor& color) const
{
    // Of several buttons of the colour, the one that the user has checked stays.
    auto* const checked = static_cast<ColorPickerWidgetButton*>(buttons->checkedButton());
    if (checked && checked->color() == opaque(color)) {
        return checked;
    }
    ColorPickerWidgetButton* const own = queueButtons.value(keyOf(color));
    return own ? own : paletteButtons.value(keyOf(color));
}

void ColorPickerWidget::Private::setColor(const std::optional<QColor>& color)
{
    if (color == currentColor) {
        return;
    }
    const QPointer<ColorPickerWidget> self = q;
    hold(color);
    if (opacityAdjustmentAvailable) {
        setSliderToAlpha();
    }
    if (self) {
        updateColorButtonsCheckState();
    }
}

/// May emit: a slot may delete the panel.
void ColorPickerWidget::Private::setSliderToAlpha() const
{
    if (currentColor && currentColor->isValid()) {
        opacitySlider->setDoubleValue(currentColor->alphaF());
    }
}

QColor ColorPickerWidget::Private::withSliderAlpha(QColor color) const
{
    // With an alpha, an invalid colour would differ from other invalid ones.
    if (opacityAdjustmentAvailable && color.isValid()) {
        color.setAlphaF(opacitySlider->doubleValue());
    }
    return color;
}

void ColorPickerWidget::Private::hold(const std::optional<QColor>& color)
{
    const bool isSeen = !looksTheSame(color, currentColor);
    currentColor = color;
    if (isSeen) {
        AccessibleEvents::valueChanged(currentColorDisplayLabel);
    }
}

void ColorPickerWidget::Private::clearCheckedColorButton() const
{
    if (QAbstractButton* const checked = buttons->checkedButton()) {
        buttons->setExclusive(false);
        checked->setChecked(false);
        buttons->setExclusive(true);
    }
}

void ColorPickerWidget::Private::updateColorButtonsCheckState()
{
    if (currentColor) {
        if (ColorPickerWidgetButton* const button = buttonFor(*currentColor)) {
            button->setChecked(true);
            return;
        }
    }
    clearCheckedColorButton();
    updateColorValueWidgets();
}

void ColorPickerWidget::Private::updateColorValueWidgets() const
{
    updatePreview();
    QString text = QString::fromLatin1("#multiple");
    if (currentColor) {
        text = currentColor->isValid() ? currentColor->name() : QString::fromLatin1("#null");
    }
    if (currentColorValueEdit->text() == text) {
        return;
    }
    const bool isSameLength = currentColorValueEdit->text().size() == text.size();
    const int cursor = currentColorValueEdit->cursorPosition();
    currentColorValueEdit->setText(text);
    if (isSameLength) {
        currentColorValueEdit->setCursorPosition(cursor);
    }
}

void ColorPickerWidget::Private::updatePreview() const
{
    Util::applyProperty(currentColorDisplayLabel, "multiColor", !currentColor.has_value());
    Util::applyProperty(currentColorDisplayLabel, "nullColor",
                        currentColor.has_value() && !currentColor->isValid());
    ColorPickerWidgetFaces::paint(currentColorDisplayLabel, currentColor.value_or(QColor()));
}

void ColorPickerWidget::Private::onButtonToggled(QAbstractButton* button, bool checked)
{
    if (!checked || isFollowing) {
        return;
    }
    hold(withSliderAlpha(static_cast<ColorPickerWidgetButton*>(button)->color().value_or(QColor())));
    updateColorValueWidgets();
    reportColor();
}

void ColorPickerWidget::Private::onOpacityChanged()
{
    if (opacityAdjustmentAvailable && currentColor) {
        hold(withSliderAlpha(*currentColor));
        reportColor();
    }
}

void ColorPickerWidget::Private::onTextEdited(const QString& text)
{
    if (text.isEmpty()) {
        return;
    }
    if (!text.startsWith(QLatin1Char('#'))) {
        const int cursor = currentColorValueEdit->cursorPosition();
        currentColorValueEdit->setText(QLatin1Char('#') + text);
        currentColorValueEdit->setCursorPosition(cursor + 1);
        return;
    }
    if (!currentColorValueEdit->hasAcceptableInput() || !QColor::isValidColor(text)) {
        return;
    }
    hold(withSliderAlpha(QColor(text)));
    if (ColorPickerWidgetButton* const button = buttonFor(*currentColor)) {
        const QPointer<ColorPickerWidget> self = q;
        button->setChecked(true);
        // A slot may have set several colours.
        if (!self || !currentColor) {
            return;
        }
    } else {
        clearCheckedColorButton();
        updatePreview();
    }
    reportColor();
}

void ColorPickerWidget::Private::onCustomColorButtonClicked()
{
    // The selector takes the focus, and an emptied spin box would emit in the middle of that.
    const QPointer<ColorPickerWidget> self = q;
    opacitySpinbox->interpretText();
    if (!self) {
        return;
    }
    if (!popup) {
        createSelector();
    }
    const QColor start = opaque(currentColor.value_or(QColor()));
    // The selector keeps the hue of a grey, which the colour does not have.
    if (selectorColor != start) {
        selectorColor = start;
        selector->startFrom(start);
    }
    placeSelector();
    announce([this, self] {
        popup->show();
        if (self) {
            popup->raise();
            popup->activateWindow();
        }
        // Some layouts have their final size only when they are shown.
        if (self) {
            placeSelector();
        }
    });
}

void ColorPickerWidget::Private::createSelector()
{
    popup = new SelectorPopup(q);
    selector = new CustomColorSelectWidget(popup);
    (new OvVBoxLayout(popup))->autoFill();
    popup->setProperty("roundedEdges", true);
    Workaround::Ui::apply(popup);
    if (auto* const plane = selector->findChild<ColorPlaneWidget*>()) {
        plane->setMinimumSize(barePlaneSize);
        plane->setFocus();
    }
    selectorColor.reset();
    connect(selector, &CustomColorSelectWidget::colorChanged, listener.get(),
            [this](const QColor& color) { onSelectorReport(color); });
    connect(popup, &QDialog::finished, listener.get(),
            [this] { announce([this] { onSelectorFinished(); }); });
}

void ColorPickerWidget::Private::placeSelector() const
{
    // In a hidden window, changes in nested layouts do not reach the outer ones: from the innermost outwards.
    const auto parts = popup->findChildren<QWidget*>();
    std::for_each(parts.crbegin(), parts.crend(), [](QWidget* part) { part->updateGeometry(); });
    popup->adjustSize();
    const QRect button(addCustomColorButton->mapToGlobal(QPoint()), addCustomColorButton->size());
    popup->move(selectorPosition(button, popup->size(), colorDialogOffset, popupArea(*addCustomColorButton)));
}

/// Closes the selector without emitting, since the panel is being hidden and may be deleted next. The button
/// of the added colour appears when the panel is shown again.
void ColorPickerWidget::Private::closeSelector() const
{
    if (popup && popup->isVisible()) {
        popup->hide();
        storeCurrentColor();
    }
}

bool ColorPickerWidget::Private::storeCurrentColor() const
{
    return currentColor && Util::appendCustomColor(currentColor->name());
}

void ColorPickerWidget::Private::onSelectorReport(const QColor& color)
{
    selectorColor = opaque(color);
    hold(withSliderAlpha(color));
    {
        const QScopedValueRollback<bool> following(isFollowing, true);
        updateColorButtonsCheckState();
        // Otherwise done by the handler of the button, which does nothing now.
        updateColorValueWidgets();
    }
    reportColor();
}

void ColorPickerWidget::Private::onSelectorFinished()
{
    // Slots of the focus, and the host's store, may delete the panel.
    const QPointer<ColorPickerWidget> self = q;
    addCustomColorButton->setFocus(Qt::PopupFocusReason);
    if (!self || !storeCurrentColor() || !self) {
        return;
    }
    ColorPickerWidgetButton* const button = queueButton(ColorPalette::maxOwnColors - 1);
    const QRgb oldKey = keyOf(button->color().value_or(QColor()));
    if (button->isEnabled() && queueButtons.value(oldKey) == button) {
        queueButtons.remove(oldKey);
    }
    queueLayout->removeWidget(button);
    queueLayout->insertWidget(0, button, 0, {});
    QWidget::setTabOrder(addCustomColorButton, button);
    const QColor color = opaque(*currentColor);
    button->setColor(color);
    queueButtons.insert(keyOf(color), button);
    button->setEnabled(true);
    button->setChecked(true);
}

/// Emits, or moves the focus. Slots may delete the panel.
template <typename Emission>
void ColorPickerWidget::Private::announce(Emission emission)
{
    const std::shared_ptr<Remains> kept = remains;
    emission();
}

void ColorPickerWidget::Private::reportColor()
{
    const QColor color = *currentColor;
    announce([this, color] { Q_EMIT q->colorChanged(color); });
}

/// During an emission, one of the parts is in use.
void ColorPickerWidget::Private::keepPartsInUse() const
{
    if (remains.use_count() == 1) {
        return;
    }
    for (QWidget* part : {static_cast<QWidget*>(popup), static_cast<QWidget*>(topPanel),
                          static_cast<QWidget*>(colorMatrixPanel), static_cast<QWidget*>(otherColorsPanel),
                          static_cast<QWidget*>(opacityPanel)}) {
        if (part) {
            remains->keep(part);
        }
    }
}

ColorPickerWidget::ColorPickerWidget(QWidget* parent)
    : ColorPickerWidget(parent, false)
{
}

ColorPickerWidget::ColorPickerWidget(QWidget* parent, bool nullColorAllowed)
    : OvFrame(parent)
    , d(Private::make(this, nullColorAllowed))
{
}

ColorPickerWidget::~ColorPickerWidget()
{
    d->listener.reset();
    d->currentColorValueEdit->showValue = [] {};
    d->keepPartsInUse();
}

const std::optional<QColor>& ColorPickerWidget::currentColor() const
{
    return d->currentColor;
}

void ColorPickerWidget::setCurrentColor(const std::optional<QColor>& color)
{
    d->setColor(color);
}

bool ColorPickerWidget::opacityAdjustmentAvailable() const
{
    return d->opacityAdjustmentAvailable;
}

void ColorPickerWidget::setOpacityAdjustmentAvailable(bool available)
{
    d->opacityAdjustmentAvailable = available;
    d->opacityPanel->setVisible(available);
    if (available) {
        d->setSliderToAlpha();
    }
}

int ColorPickerWidget::GetcolorDialogOffset() const
{
    return d->colorDialogOffset;
}

void ColorPickerWidget::showEvent(QShowEvent* event)
{
    const QPointer<ColorPickerWidget> self = this;
    d->reinitializeCustomColors();
    if (self) {
        OvFrame::showEvent(event);
    }
}

void ColorPickerWidget::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) {
        d->closeSelector();
    }
    OvFrame::hideEvent(event);
}

void ColorPickerWidget::focusInEvent(QFocusEvent* event)
{
    // Not by a focus proxy: Qt still uses the panel then, which a slot may delete when a part loses the
    // focus.
    d->currentColorValueEdit->setFocus(event->reason());
}

void ColorPickerWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->setTexts();
    }
    OvFrame::changeEvent(event);
}
