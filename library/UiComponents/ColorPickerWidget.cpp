#include "ColorPickerWidget.h"

#include "ColorFaces.h"
#include "ColorPalette.h"
#include "ColorPlaneWidget.h"
#include "CustomColorSelectWidget.h"
#include "CustomColors.h"
#include "SelectorPlacement.h"
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

#include <QAccessible>
#include <QButtonGroup>
#include <QDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QRegExpValidator>
#include <QScreen>
#include <QToolButton>
#include <QVariant>
#include <QVector>

#include <algorithm>

namespace {

constexpr int queueLength = 8;
constexpr int opacitySteps = 100;

// Of preview and plane, where no sheet gives them a size, in pixels.
constexpr int barePreviewSize = 16;
constexpr QSize barePlaneSize(200, 160);

QColor opaque(const QColor& color)
{
    return color.isValid() ? QColor::fromRgb(color.rgb()) : QColor();
}

/// Buttons by keyOf() their colour.
using ColorIndex = QHash<QRgb, QToolButton*>;

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
class SelectorDialog : public QDialog // clazy:exclude=missing-qobject-macro
{
public:
    explicit SelectorDialog(QWidget* parent)
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

class ColorPickerWidget::Private : public QAccessible::ActivationObserver
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

    Private(ColorPickerWidget* panel, bool nullColorAllowed, const QStringList& ownColors);
    ~Private() override;
    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;
    static std::unique_ptr<Private> make(ColorPickerWidget* panel, bool nullColorAllowed);

    void nameObjects() const;
    void layOut();
    void buildPalette(bool nullColorAllowed);
    QToolButton* makeColorButton(QWidget* parent);
    void addPaletteButton(int row, int column, const QColor& color);
    void buildQueue();
    void configureInputs() const;
    void orderTabs() const;
    void setTexts() const;
    void connectInputs();

    void fillQueue(const QStringList& names);
    void reinitializeCustomColors();
    QToolButton* queueButton(int index) const;
    void setButtonColor(QToolButton* button, const QColor& color);
    void nameButton(QWidget* button) const;
    void nameControls() const;
    void accessibilityActiveChanged(bool active) override;
    QToolButton* buttonFor(const QColor& color) const;

    void setColor(const std::optional<QColor>& color);
    void setSliderToAlpha() const;
    void takeSliderAlpha();
    void clearCheckedColorButton() const;
    void updateColorButtonsCheckState();
    void updateColorValueWidgets() const;
    void updatePreview() const;

    void onButtonToggled(QAbstractButton* button, bool checked);
    void onOpacityChanged(double opacity);
    void onTextEdited(const QString& text);
    void onCustomColorButtonClicked();
    void onSelectorReport(const QColor& color);
    void onDialogFinished();

    void createDialog();
    void placeDialog() const;
    void closeDialog() const;
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
    Orvane::Tessel::TesselLineEdit* const currentColorValueEdit;
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
    // The colour of each button, and the button of each colour. The settings may repeat a colour, or hold one
    // of the palette: own colours come before the palette, later ones before earlier ones.
    QHash<QWidget*, QColor> buttonColors;
    ColorIndex paletteButtons;
    ColorIndex queueButtons;
    QPointer<QDialog> dialog;
    QPointer<CustomColorSelectWidget> selector;
    // Given to the selector, or reported by it, last.
    std::optional<QColor> selectorColor;
    std::optional<QColor> currentColor;
    bool opacityAdjustmentAvailable = true;

    int nextButtonId = -2;
    bool namesAreRead = QAccessible::isActive();
    // True while the panel changes buttons and slider itself, whose handlers then do nothing.
    bool isFollowing = false;
    const std::shared_ptr<Remains> remains = std::make_shared<Remains>();
};

ColorPickerWidget::Private::Private(ColorPickerWidget* panel, bool nullColorAllowed,
                                    const QStringList& ownColors)
    : q(panel)
    , topPanel(new OvFrame(panel))
    , colorMatrixPanel(new OvFrame(panel))
    , otherColorsPanel(new OvFrame(panel))
    , opacityPanel(new OvFrame(panel))
    , currentColorDisplayLabel(new QLabel(topPanel))
    , currentColorValueEdit(new Orvane::Tessel::TesselLineEdit(topPanel))
    , pipetteButton(new QToolButton(topPanel))
    , otherColorsTitleLabel(new QLabel(otherColorsPanel))
    , addCustomColorButton(new QToolButton(otherColorsPanel))
    , otherColorsQueuePanel(new OvFrame(otherColorsPanel))
    , opacityTitleLabel(new QLabel(opacityPanel))
    , opacitySlider(new OvDoubleSlider(opacityPanel))
    , opacitySpinbox(new OvSpinBox(opacityPanel))
    , buttons(new QButtonGroup(panel))
    , paletteLayout(new OvGridLayout(colorMatrixPanel))
    , queueLayout(new OvHBoxLayout(otherColorsQueuePanel))
{
    nameObjects();
    layOut();
    buildPalette(nullColorAllowed);
    buildQueue();
    fillQueue(ownColors);
    configureInputs();
    orderTabs();
    setTexts();
    updateColorValueWidgets();
    connectInputs();
    QAccessible::installActivationObserver(this);
}

ColorPickerWidget::Private::~Private()
{
    QAccessible::removeActivationObserver(this);
}

std::unique_ptr<ColorPickerWidget::Private> ColorPickerWidget::Private::make(ColorPickerWidget* panel,
                                                                             bool nullColorAllowed)
{
    const QStringList ownColors = Settings::userCustomColors();
    std::unique_ptr<Private> result;
    SheetlessBuild::run([&] { result = std::make_unique<Private>(panel, nullColorAllowed, ownColors); });
    return result;
}

void ColorPickerWidget::Private::nameObjects() const
{
    topPanel->setObjectName(QStringLiteral("topPanel"));
    colorMatrixPanel->setObjectName(QStringLiteral("colorMatrixPanel"));
    otherColorsPanel->setObjectName(QStringLiteral("otherColorsPanel"));
    opacityPanel->setObjectName(QStringLiteral("opacityPanel"));
    currentColorDisplayLabel->setObjectName(QStringLiteral("currentColorDisplayLabel"));
    currentColorValueEdit->setObjectName(QStringLiteral("currentColorValueEdit"));
    pipetteButton->setObjectName(QStringLiteral("pipetteButton"));
    otherColorsTitleLabel->setObjectName(QStringLiteral("otherColorsTitleLabel"));
    addCustomColorButton->setObjectName(QStringLiteral("addCustomColorButton"));
    otherColorsQueuePanel->setObjectName(QStringLiteral("otherColorsQueuePanel"));
    opacityTitleLabel->setObjectName(QStringLiteral("opacityTitleLabel"));
    opacitySlider->setObjectName(QStringLiteral("opacitySlider"));
    opacitySpinbox->setObjectName(QStringLiteral("opacitySpinbox"));
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

QToolButton* ColorPickerWidget::Private::makeColorButton(QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setCheckable(true);
    // The id that the group would assign, after a search through all others.
    buttons->addButton(button, nextButtonId--);
    return button;
}

void ColorPickerWidget::Private::addPaletteButton(int row, int column, const QColor& color)
{
    QToolButton* const button = makeColorButton(colorMatrixPanel);
    if (!color.isValid()) {
        button->setProperty("nullColor", true);
    }
    paletteLayout->addWidget(button, row, column);
    setButtonColor(button, color);
    paletteButtons.insert(keyOf(color), button);
}

void ColorPickerWidget::Private::buildQueue()
{
    for (int i = 0; i < queueLength; ++i) {
        QToolButton* const button = makeColorButton(otherColorsQueuePanel);
        button->setEnabled(false);
        queueLayout->addWidget(button, 0, {});
    }
}

void ColorPickerWidget::Private::configureInputs() const
{
    const QRegExp sixDigits(QStringLiteral("^(#?)[a-fA-F0-9]{6}$"), Qt::CaseSensitive);
    currentColorValueEdit->setValidator(new QRegExpValidator(sixDigits, currentColorValueEdit));
    currentColorDisplayLabel->setMinimumSize(barePreviewSize, barePreviewSize);

    opacitySlider->setOrientation(Qt::Horizontal);
    opacitySlider->setRange(0, opacitySteps);
    opacitySlider->setMultiplier(1.0 / opacitySteps);
    opacitySlider->setValue(opacitySlider->maximum());
    opacitySpinbox->setRange(0, opacitySteps);
    opacitySpinbox->setSuffix(QStringLiteral("%"));
    opacitySpinbox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    opacitySpinbox->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    Util::bindWidgets(opacitySlider, opacitySpinbox);

    ColorHint::applyColorHint(pipetteButton, LIGHT_GREY_TWO);
    ColorHint::applyColorHint(opacitySpinbox, INPUT_LIGHT);
    ColorHint::applyColorHint(currentColorValueEdit, INPUT_LIGHT);
    ColorHint::applyColorHint(opacitySlider, SLIDER_LIGHT);

    otherColorsTitleLabel->setBuddy(addCustomColorButton);
    opacityTitleLabel->setBuddy(opacitySlider);
}

// From top to bottom. In order of creation the colour buttons would be last.
void ColorPickerWidget::Private::orderTabs() const
{
    QWidget* const lastOfPalette = paletteLayout->itemAt(paletteLayout->count() - 1)->widget();
    QWidget::setTabOrder(lastOfPalette, addCustomColorButton);
    QWidget::setTabOrder(queueButton(queueLength - 1), opacitySlider);
    QWidget::setTabOrder(opacitySlider, opacitySpinbox);
}

void ColorPickerWidget::Private::setTexts() const
{
    otherColorsTitleLabel->setText(tr("Other:"));
    opacityTitleLabel->setText(tr("Opacity:"));
    if (namesAreRead) {
        nameControls();
    }
}

void ColorPickerWidget::Private::connectInputs()
{
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
            [this](double opacity) { onOpacityChanged(opacity); });
}

void ColorPickerWidget::Private::fillQueue(const QStringList& names)
{
    for (int i = 0; i < qMin(names.size(), queueLength); ++i) {
        if (QColor::isValidColor(names.at(i))) {
            const QColor color = opaque(QColor(names.at(i)));
            QToolButton* const button = queueButton(i);
            button->setEnabled(true);
            setButtonColor(button, color);
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
QToolButton* ColorPickerWidget::Private::queueButton(int index) const
{
    return qobject_cast<QToolButton*>(queueLayout->itemAt(index)->widget());
}

void ColorPickerWidget::Private::setButtonColor(QToolButton* button, const QColor& color)
{
    const auto shown = buttonColors.constFind(button);
    if (shown != buttonColors.constEnd() && *shown == color) {
        return;
    }
    buttonColors.insert(button, color);
    ColorFaces::paint(button, color);
    if (namesAreRead) {
        nameButton(button);
    }
}

/// For assistive technology.
void ColorPickerWidget::Private::nameButton(QWidget* button) const
{
    const QColor color = buttonColors.value(button);
    button->setAccessibleName(color.isValid() ? color.name() : tr("No colour"));
}

/// Only while accessibility is active, since setting a name takes longer than constructing the widget.
void ColorPickerWidget::Private::nameControls() const
{
    currentColorValueEdit->setAccessibleName(tr("Colour value"));
    pipetteButton->setAccessibleName(tr("Pick a colour from the screen"));
    addCustomColorButton->setAccessibleName(tr("Choose another colour"));
    for (auto entry = buttonColors.cbegin(); entry != buttonColors.cend(); ++entry) {
        nameButton(entry.key());
    }
}

void ColorPickerWidget::Private::accessibilityActiveChanged(bool active)
{
    namesAreRead = active;
    if (active) {
        nameControls();
    }
}

QToolButton* ColorPickerWidget::Private::buttonFor(const QColor& color) const
{
    // Of several buttons of the colour, the one that the user has checked stays.
    auto* const checked = qobject_cast<QToolButton*>(buttons->checkedButton());
    if (checked && buttonColors.value(checked) == opaque(color)) {
        return checked;
    }
    QToolButton* const own = queueButtons.value(keyOf(color));
    return own ? own : paletteButtons.value(keyOf(color));
}

void ColorPickerWidget::Private::setColor(const std::optional<QColor>& color)
{
    if (color == currentColor) {
        return;
    }
    const QPointer<ColorPickerWidget> self = q;
    currentColor = color;
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

void ColorPickerWidget::Private::takeSliderAlpha()
{
    // With an alpha, an invalid colour would differ from other invalid ones.
    if (opacityAdjustmentAvailable && currentColor->isValid()) {
        currentColor->setAlphaF(opacitySlider->doubleValue());
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
        if (QToolButton* const button = buttonFor(*currentColor)) {
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
    QString text = QStringLiteral("#multiple");
    if (currentColor) {
        text = currentColor->isValid() ? currentColor->name() : QStringLiteral("#null");
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
    ColorFaces::paint(currentColorDisplayLabel, currentColor.value_or(QColor()));
}

void ColorPickerWidget::Private::onButtonToggled(QAbstractButton* button, bool checked)
{
    if (!checked || isFollowing) {
        return;
    }
    currentColor = buttonColors.value(button);
    takeSliderAlpha();
    updateColorValueWidgets();
    reportColor();
}

void ColorPickerWidget::Private::onOpacityChanged(double opacity)
{
    Q_UNUSED(opacity)
    if (!opacityAdjustmentAvailable || !currentColor || isFollowing) {
        return;
    }
    takeSliderAlpha();
    reportColor();
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
    currentColor = QColor(text);
    takeSliderAlpha();
    if (QToolButton* const button = buttonFor(*currentColor)) {
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
    if (!dialog) {
        createDialog();
    }
    const QColor start = opaque(currentColor.value_or(QColor()));
    // The selector keeps the hue of a grey, which the colour does not have.
    if (selectorColor != start) {
        selectorColor = start;
        selector->startFrom(start);
    }
    placeDialog();
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
    // Some layouts have their final size only when they are shown.
    placeDialog();
}

void ColorPickerWidget::Private::createDialog()
{
    dialog = new SelectorDialog(q);
    selector = new CustomColorSelectWidget(dialog);
    (new OvVBoxLayout(dialog))->autoFill();
    dialog->setProperty("roundedEdges", true);
    Workaround::Ui::apply(dialog);
    if (auto* const plane = selector->findChild<ColorPlaneWidget*>()) {
        plane->setMinimumSize(barePlaneSize);
        plane->setFocus();
    }
    selectorColor.reset();
    connect(selector, &CustomColorSelectWidget::colorChanged, listener.get(),
            [this](const QColor& color) { onSelectorReport(color); });
    connect(dialog, &QDialog::finished, listener.get(), [this] { onDialogFinished(); });
}

void ColorPickerWidget::Private::placeDialog() const
{
    // In a hidden window, changes in nested layouts do not reach the outer ones: from the innermost outwards.
    const auto parts = dialog->findChildren<QWidget*>();
    std::for_each(parts.crbegin(), parts.crend(), [](QWidget* part) { part->updateGeometry(); });
    dialog->adjustSize();
    const QRect button(addCustomColorButton->mapToGlobal(QPoint()), addCustomColorButton->size());
    const QScreen* screen = QGuiApplication::screenAt(button.center());
    if (!screen) {
        screen = q->screen();
    }
    dialog->move(SelectorPlacement::besideButton(button, dialog->size(), colorDialogOffset,
                                                 screen ? screen->availableGeometry() : QRect()));
}

/// Closes the selector without emitting, since the panel is being hidden and may be deleted next. The button
/// of the added colour appears when the panel is shown again.
void ColorPickerWidget::Private::closeDialog() const
{
    if (dialog && dialog->isVisible()) {
        dialog->hide();
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
    currentColor = color;
    takeSliderAlpha();
    isFollowing = true;
    updateColorButtonsCheckState();
    // Otherwise done by the handler of the button, which does nothing now.
    updateColorValueWidgets();
    isFollowing = false;
    reportColor();
}

void ColorPickerWidget::Private::onDialogFinished()
{
    addCustomColorButton->setFocus(Qt::PopupFocusReason);
    if (!storeCurrentColor()) {
        return;
    }
    QToolButton* const button = queueButton(queueLength - 1);
    const QRgb oldKey = keyOf(buttonColors.value(button));
    if (button->isEnabled() && queueButtons.value(oldKey) == button) {
        queueButtons.remove(oldKey);
    }
    queueLayout->removeWidget(button);
    queueLayout->insertWidget(0, button, 0, {});
    QWidget::setTabOrder(addCustomColorButton, button);
    const QColor color = opaque(*currentColor);
    setButtonColor(button, color);
    queueButtons.insert(keyOf(color), button);
    button->setEnabled(true);
    button->setChecked(true);
}

/// Emits. Slots may delete the panel.
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
    for (QWidget* part : {static_cast<QWidget*>(dialog), static_cast<QWidget*>(topPanel),
                          static_cast<QWidget*>(colorMatrixPanel), static_cast<QWidget*>(otherColorsPanel),
                          static_cast<QWidget*>(opacityPanel)}) {
        if (part) {
            remains->keep(part);
        }
    }
}

ColorPickerWidget::ColorPickerWidget(QWidget* parent, bool nullColorAllowed)
    : OvFrame(parent)
    , d(Private::make(this, nullColorAllowed))
{
}

ColorPickerWidget::~ColorPickerWidget()
{
    d->listener.reset();
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
        d->closeDialog();
    }
    OvFrame::hideEvent(event);
}

void ColorPickerWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->setTexts();
    }
    OvFrame::changeEvent(event);
}
