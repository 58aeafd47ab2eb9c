// What it costs to open the colour panel.

#include "ApplicationSheet.h"
#include "Compare.h"

#include <DesignElements/TesselLineEdit.h>
#include <EditorWidgets/ColorHint.h>
#include <Settings/Settings.h>
#include <UiComponents/ColorPalette.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/ColorPickerWidgetFaces.h>
#include <UiComponents/SheetlessBuild.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvGridLayout.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/StyleHints.h>
#include <WidgetToolkit/Util.h>

#include <QApplication>
#include <QButtonGroup>
#include <QColorDialog>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QRegExpValidator>
#include <QToolButton>

#include <memory>

using namespace Bench;

/// The macro works in the global namespace only.
static void initStyles()
{
    Q_INIT_RESOURCE(styles);
}

namespace {

constexpr int queueLength = 8;

/// The reference style sheet, whose rules for the panel's class are for any widget with this name here.
const QString panelName = QStringLiteral("panel");

QString referenceSheet()
{
    initStyles();
    QFile file(QStringLiteral(":/styles/dark.qss"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no reference sheet");
    }
    return QString::fromUtf8(file.readAll())
        .replace(QStringLiteral("ColorPickerWidget"), QLatin1Char('#') + panelName)
        .replace(QStringLiteral("url("), QStringLiteral("url(:/styles/"));
}

QColor paletteColor(int index)
{
    const auto row = static_cast<std::size_t>(index / ColorPalette::columnCount);
    const auto column = static_cast<std::size_t>(index % ColorPalette::columnCount);
    return ColorPalette::rows[row][column];
}

void paint(QWidget* face, const QColor& color)
{
    face->setStyleSheet(QStringLiteral("background-color: %1;")
                            .arg(color.isValid() ? color.name() : QStringLiteral("transparent")));
}

template <typename Layout>
Layout* makeLayout(QWidget* owner)
{
    auto* layout = new Layout(owner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

/// Each button is made, given its sheet and added to the grid.
void makePlainFaces(QWidget* parent, QGridLayout* grid)
{
    for (int i = 0; i < ColorPalette::rowCount * ColorPalette::columnCount; ++i) {
        auto* button = new QToolButton(parent);
        button->setCheckable(true);
        paint(button, paletteColor(i));
        grid->addWidget(button, i / ColorPalette::columnCount, i % ColorPalette::columnCount);
    }
}

void makeOurFaces(QWidget* parent, QGridLayout* grid)
{
    SheetlessBuild::run([parent, grid] {
        for (int i = 0; i < ColorPalette::rowCount * ColorPalette::columnCount; ++i) {
            auto* button = new QToolButton(parent);
            button->setCheckable(true);
            ColorPickerWidgetFaces::paint(button, paletteColor(i));
            grid->addWidget(button, i / ColorPalette::columnCount, i % ColorPalette::columnCount);
        }
    });
}

/// The panel as it is written without a thought of speed.
class PlainPanel : public OvFrame
{
public:
    PlainPanel()
    {
        setObjectName(panelName);
        const auto frame = [](const char* name, QWidget* parent) {
            auto* result = new OvFrame(parent);
            result->setObjectName(QLatin1String(name));
            return result;
        };
        auto* top = frame("topPanel", this);
        auto* matrix = frame("colorMatrixPanel", this);
        auto* others = frame("otherColorsPanel", this);
        auto* opacity = frame("opacityPanel", this);
        m_face = new QLabel(top);
        m_face->setObjectName(QStringLiteral("currentColorDisplayLabel"));
        m_face->setMinimumSize(16, 16);
        m_edit = new Orvane::Tessel::TesselLineEdit(top);
        m_edit->setObjectName(QStringLiteral("currentColorValueEdit"));
        auto* pipette = new QToolButton(top);
        pipette->setObjectName(QStringLiteral("pipetteButton"));
        auto* othersTitle = new QLabel(QStringLiteral("Other:"), others);
        othersTitle->setObjectName(QStringLiteral("otherColorsTitleLabel"));
        auto* add = new QToolButton(others);
        add->setObjectName(QStringLiteral("addCustomColorButton"));
        auto* queue = frame("otherColorsQueuePanel", others);
        auto* opacityTitle = new QLabel(QStringLiteral("Opacity:"), opacity);
        opacityTitle->setObjectName(QStringLiteral("opacityTitleLabel"));
        auto* slider = new OvDoubleSlider(opacity);
        slider->setObjectName(QStringLiteral("opacitySlider"));
        auto* spinBox = new OvSpinBox(opacity);
        spinBox->setObjectName(QStringLiteral("opacitySpinbox"));

        makeLayout<OvVBoxLayout>(this)->autoFill();
        makeLayout<OvHBoxLayout>(top)->autoFill();
        const auto addRows = [](OvGridLayout* grid, QWidget* title, QWidget* first, QWidget* second) {
            grid->addRow(
                {{title, LayoutHelpers::Alignment::Default}, LayoutHelpers::CellModifier::SpanPrevious}, 0);
            grid->addRow({first, second}, 0);
        };
        addRows(makeLayout<OvGridLayout>(others), othersTitle, add, queue);
        addRows(makeLayout<OvGridLayout>(opacity), opacityTitle, slider, spinBox);

        makePlainFaces(matrix, makeLayout<OvGridLayout>(matrix));
        auto* queueLayout = makeLayout<OvHBoxLayout>(queue);
        for (int i = 0; i < queueLength; ++i) {
            auto* button = new QToolButton(queue);
            button->setCheckable(true);
            button->setEnabled(false);
            queueLayout->addWidget(button, 0, {});
            m_queue += button;
        }
        auto* group = new QButtonGroup(this);
        const auto buttons = matrix->findChildren<QToolButton*>() + queue->findChildren<QToolButton*>();
        for (QToolButton* button : buttons) {
            group->addButton(button);
            m_colors.insert(button, button->styleSheet());
        }
        othersTitle->setBuddy(add);
        opacityTitle->setBuddy(slider);
        setTabOrder(matrix->findChildren<QToolButton*>().constLast(), add);
        setTabOrder(m_queue.constLast(), slider);
        setTabOrder(slider, spinBox);
        fillQueue();

        m_edit->installEventFilter(this);
        m_edit->setValidator(new QRegExpValidator(QRegExp(QStringLiteral("^(#?)[a-fA-F0-9]{6}$")), m_edit));
        slider->setOrientation(Qt::Horizontal);
        slider->setRange(0, 100);
        slider->setMultiplier(0.01);
        slider->setValue(100);
        spinBox->setRange(0, 100);
        spinBox->setSuffix(QStringLiteral("%"));
        spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
        spinBox->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
        Util::bindWidgets(slider, spinBox);
        ColorHint::applyColorHint(pipette, LIGHT_GREY_TWO);
        ColorHint::applyColorHint(spinBox, INPUT_LIGHT);
        ColorHint::applyColorHint(m_edit, INPUT_LIGHT);
        ColorHint::applyColorHint(slider, SLIDER_LIGHT);
        showValue();
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        fillQueue();
        showValue();
        OvFrame::showEvent(event);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_edit && event->type() == QEvent::FocusIn) {
            m_edit->selectAll();
        }
        return OvFrame::eventFilter(watched, event);
    }

private:
    void fillQueue()
    {
        const QStringList names = Settings::userCustomColors();
        for (int i = 0; i < qMin(names.size(), queueLength); ++i) {
            m_queue.at(i)->setEnabled(true);
            paint(m_queue.at(i), QColor(names.at(i)));
        }
    }

    void showValue()
    {
        Util::applyProperty(m_face, "multiColor", true);
        Util::applyProperty(m_face, "nullColor", false);
        paint(m_face, QColor());
        m_edit->setText(QStringLiteral("#multiple"));
    }

    QLabel* m_face = nullptr;
    QLineEdit* m_edit = nullptr;
    QList<QToolButton*> m_queue;
    QHash<QToolButton*, QString> m_colors;
};

class OurPanel : public ColorPickerWidget
{
public:
    OurPanel()
        : ColorPickerWidget(nullptr, false)
    {
        setObjectName(panelName);
    }
};

/// A frame of faces, as the panel has one.
template <typename Make>
std::unique_ptr<QWidget> makeFaces(Make make)
{
    auto frame = std::make_unique<OvFrame>(nullptr);
    make(frame.get(), makeLayout<OvGridLayout>(frame.get()));
    return frame;
}

QImage pictureOf(QWidget* widget)
{
    return widget->grab().toImage();
}

template <typename Panel>
QImage pictureWhenShown(bool isEnabled)
{
    Panel panel;
    panel.setEnabled(isEnabled);
    panel.setAttribute(Qt::WA_ShowWithoutActivating);
    panel.show();
    QCoreApplication::processEvents();
    return pictureOf(&panel);
}

void require(bool isTrue, const char* message)
{
    if (!isTrue) {
        qFatal("%s", message);
    }
}

/// The user's own settings are left alone.
class MemoryStore : public SettingsStore
{
public:
    QVariant read(const QString& key) const override
    {
        Q_UNUSED(key)
        return m_value;
    }
    bool write(const QString& key, const QVariant& value) override
    {
        Q_UNUSED(key)
        m_value = value;
        return true;
    }

private:
    QVariant m_value;
};

void prepare(const QString& sheet = applicationSheet())
{
    qApp->setStyleSheet(sheet);
    Settings::setStore(std::make_unique<MemoryStore>());
    QStringList names;
    for (int i = 0; i < queueLength; ++i) {
        names += QColor(10 * i, 99, 200).name();
    }
    Settings::setUserCustomColors(names);
}

Pair faces()
{
    prepare();
    require(pictureOf(makeFaces(makeOurFaces).get()) == pictureOf(makeFaces(makePlainFaces).get()),
            "the faces look different");
    const auto side = [](void (*make)(QWidget*, QGridLayout*)) {
        const auto frame = std::make_shared<std::unique_ptr<OvFrame>>();
        const auto grid = std::make_shared<OvGridLayout*>();
        return Side{[=] { make(frame->get(), *grid); },
                    [=] {
                        *frame = std::make_unique<OvFrame>(nullptr);
                        *grid = makeLayout<OvGridLayout>(frame->get());
                    },
                    [=] { frame->reset(); }};
    };
    return {side(makeOurFaces), side(makePlainFaces)};
}

template <typename Widget>
Side construction()
{
    const auto widget = std::make_shared<std::unique_ptr<QWidget>>();
    return {[=] { *widget = std::make_unique<Widget>(); }, {}, [=] { widget->reset(); }};
}

template <typename Widget>
Side constructionAndShow()
{
    const auto widget = std::make_shared<std::unique_ptr<QWidget>>();
    return {[=] {
                *widget = std::make_unique<Widget>();
                (*widget)->show();
                QCoreApplication::processEvents();
            },
            {},
            [=] { widget->reset(); }};
}

Pair openings(const QString& sheet)
{
    prepare(sheet);
    for (const bool isEnabled : {true, false}) {
        require(pictureWhenShown<OurPanel>(isEnabled) == pictureWhenShown<PlainPanel>(isEnabled),
                "the panels look different");
    }
    return {constructionAndShow<OurPanel>(), constructionAndShow<PlainPanel>()};
}

UIC_COMPARE("ColorPickerWidget/make 72 faces, against each made and styled by itself", atMost(0.5),
            [] { return faces(); });
// Under the sheet that knows the panel, and under one of 300 rules for other widgets: there a face is a
// button with round corners, and more of the time is Qt's work for it on both sides.
UIC_COMPARE("ColorPickerWidget/make and first show, against a plain panel", atMost(1 / 1.3),
            [] { return openings(referenceSheet()); });
UIC_COMPARE("ColorPickerWidget/make and first show under a sheet of others, against a plain panel", noGoal(),
            [] { return openings(applicationSheet()); });
UIC_COMPARE("ColorPickerWidget/make, against QColorDialog", noGoal(), [] {
    prepare();
    return Pair{construction<OurPanel>(), construction<QColorDialog>()};
});
UIC_COMPARE("ColorPickerWidget/make and first show, against QColorDialog", noGoal(), [] {
    prepare();
    return Pair{constructionAndShow<OurPanel>(), constructionAndShow<QColorDialog>()};
});

} // namespace
