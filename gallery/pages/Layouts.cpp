#include "../Page.h"
#include "../PageRegistry.h"

#include <EditorWidgets/ColorHint.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/OvGridLayout.h>
#include <WidgetToolkit/PropertyProviderBase.h>
#include <WidgetToolkit/StyleHints.h>
#include <WidgetToolkit/Util.h>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSlider>
#include <QToolButton>

#include <memory>

/// The properties of a SampleDial for a style sheet.
class SampleDialStyle : public PropertyProviderBase
{
    Q_OBJECT
    Q_PROPERTY(QColor handColor MEMBER m_handColor WRITE setHandColor)
    Q_PROPERTY(int handWidth MEMBER m_handWidth WRITE setHandWidth)

public:
    using PropertyProviderBase::PropertyProviderBase;

    void setHandColor(const QColor& color)
    {
        m_handColor = color;
        parentWidget()->update();
    }

    void setHandWidth(int pixels)
    {
        m_handWidth = qMax(0, pixels);
        parentWidget()->update();
    }

    QColor m_handColor = QColor(47, 111, 222);
    int m_handWidth = 6;
};

/// A widget that paints a dial with the values of its property provider.
class SampleDial : public QWidget
{
    Q_OBJECT

public:
    explicit SampleDial(QWidget* parent)
        : QWidget(parent)
        , m_style(new SampleDialStyle(this))
    {
        constexpr int diameter = 96;
        setObjectName(QStringLiteral("sampleDial"));
        setFixedSize(diameter, diameter);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        constexpr double disabledOpacity = 0.4;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
        const double inset = m_style->m_handWidth / 2.0 + 1;
        const QRectF dial = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
        painter.setPen(QPen(palette().color(QPalette::Mid), m_style->m_handWidth));
        painter.drawEllipse(dial);
        painter.setPen(QPen(m_style->m_handColor, m_style->m_handWidth, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(dial, 225 * 16, -200 * 16);
    }

private:
    SampleDialStyle* const m_style;
};

namespace {

/// A tile that stands for content.
QLabel* makeTile(const char* text, QWidget* parent)
{
    constexpr QSize minSize(44, 32);
    auto* tile = new QLabel(QString::fromUtf8(text), parent);
    tile->setObjectName(QStringLiteral("sampleTile"));
    tile->setAlignment(Qt::AlignCenter);
    tile->setFrameShape(QFrame::StyledPanel);
    tile->setMinimumSize(minSize);
    return tile;
}

/// A row of three tiles.
OvHBoxLayout* makeRow(QWidget* row)
{
    row->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    for (const char* text : {"1", "2", "3"}) {
        makeTile(text, row);
    }
    auto* layout = new OvHBoxLayout(row);
    layout->autoFill();
    return layout;
}

template <typename Fill>
Twins<OvFrame> addFrames(Page* page, const QString& caption, Fill fill)
{
    return page->addTwins<OvFrame>(caption, [fill](OvFrame* frame) {
        frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        frame->setFrameShape(QFrame::StyledPanel);
        fill(frame);
    });
}

struct Spacer
{
    LayoutHelpers::SpacerPolicy policy = LayoutHelpers::SpacerPolicy::Fixed;
    int number = 40;
};

void fillWithItems(OvFrame* frame, const Spacer& spacer)
{
    qDeleteAll(frame->findChildren<QLabel*>());
    delete frame->layout();
    QLabel* const tiles[] = {makeTile("1", frame), makeTile("2", frame), makeTile("× 3", frame)};
    (new OvHBoxLayout(frame))
        ->addItems({{tiles[0], 1}, {spacer.policy, spacer.number}, {tiles[1], 1}, {tiles[2], 3}});
    for (QLabel* tile : tiles) {
        tile->show();
    }
}

void fillGrid(OvFrame* frame)
{
    auto* grid = new OvGridLayout(frame);
    grid->addRow({{makeTile("1 + 2", frame), LayoutHelpers::Alignment::Default},
                  LayoutHelpers::CellModifier::SpanPrevious,
                  {makeTile("3", frame), LayoutHelpers::Alignment::Right}},
                 0);
    grid->addRow({makeTile("4", frame), makeTile("5", frame), makeTile("6", frame)}, 0);
}

QStringList colorHints()
{
    return {LIGHT_GREY_ONE, LIGHT_GREY_TWO, WITHOUT_BG1, WITHOUT_BG2,
            WITHOUT_BG3,    SELECT_LIGHT,   INPUT_LIGHT, SLIDER_LIGHT};
}

} // namespace

void PageRegistry::frame(Page* page)
{
    const auto frames = page->addTwins<OvFrame>(tr("A frame controls its own layout"), [](OvFrame* frame) {
        frame->setFrameShape(QFrame::StyledPanel);
        makeRow(frame);
    });
    const auto boxes = page->addTwins<QGroupBox>(tr("A group box with an installed controller"), &makeRow);
    const auto controllers = [boxes] {
        QObjectList found;
        boxes.each([&found](QWidget* box) {
            found.append(dynamic_cast<QObject*>(Util::installLayoutController(box)));
        });
        return found;
    };

    page->properties()->addHeading(QStringLiteral("OvFrame"));
    page->properties()->addProperties(frames);
    page->properties()->addHeading(QStringLiteral("InstalledLayoutController"));
    page->properties()->addProperties(controllers);
    page->signalLog()->watch(frames.enabled, "frame");
    page->describeStyling(frames.enabled, tr("The base of composite components; a sheet sets the metrics of "
                                             "its layout through its properties."));
    page->describeStyling(boxes.enabled,
                          tr("Any widget with an installed controller: select the controller by its class "
                             "name below the widget."),
                          QStringLiteral("Util::installLayoutController()"));
}

void PageRegistry::layouts(Page* page)
{
    const auto spacer = std::make_shared<Spacer>();
    addFrames(page, tr("autoFill() and a stretch behind"),
              [](OvFrame* frame) { makeRow(frame)->addStretch(1); });
    const auto items = addFrames(page, tr("addItems() with a spacer"),
                                 [spacer](OvFrame* frame) { fillWithItems(frame, *spacer); });
    addFrames(page, tr("A grid: one cell spans two, one is aligned right"), &fillGrid);
    addFrames(page, tr("A column"), [](OvFrame* frame) {
        for (const char* text : {"A", "B"}) {
            makeTile(text, frame);
        }
        (new OvVBoxLayout(frame))->autoFill();
    });

    PropertyPanel* const panel = page->properties();
    const auto fill = [items, spacer] {
        items.each([&spacer](OvFrame* frame) { fillWithItems(frame, *spacer); });
    };
    panel->addHeading(tr("The spacer behind item 1"));
    panel->addChoice(tr("Policy"), {tr("Stretch"), tr("Fixed")}, 1, [spacer, fill](int index) {
        spacer->policy = static_cast<LayoutHelpers::SpacerPolicy>(index);
        fill();
    });
    panel->addNumber(tr("Factor or pixels"), 0, 200, spacer->number, [spacer, fill](int number) {
        spacer->number = number;
        fill();
    });
    panel->addHeading(tr("The frame around"));
    panel->addProperties(items);
}

void PageRegistry::styleHints(Page* page)
{
    const auto buttons = page->addTwins<QToolButton>(
        tr("A button"), [](QToolButton* button) { button->setText(QStringLiteral("QToolButton")); });
    const auto edits = page->addTwins<QLineEdit>(
        tr("An edit"), [](QLineEdit* edit) { edit->setText(QStringLiteral("QLineEdit")); });
    const auto sliders = page->addTwins<QSlider>(tr("A slider"), [](QSlider* slider) {
        slider->setOrientation(Qt::Horizontal);
        slider->setValue(50);
    });
    const auto onAll = [buttons, edits, sliders](const auto& apply) {
        buttons.each(apply);
        edits.each(apply);
        sliders.each(apply);
    };

    PropertyPanel* const panel = page->properties();
    const QStringList hints = QStringList{QString()} + colorHints() + QStringList{QStringLiteral("error")};
    QStringList choices = hints;
    choices.first() = tr("(none)");
    panel->addHeading(QStringLiteral("Util::applyStyleHint"));
    panel->addChoice(tr("Hint"), choices, 0, [onAll, hints](int index) {
        onAll([hint = hints.at(index)](QWidget* widget) { Util::applyStyleHint(widget, hint); });
    });
    panel->addHeading(QStringLiteral("Util::applyProperty"));
    for (const char* name : {"nullColor", "multiColor", "hovered"}) {
        panel->addSwitch(QString::fromUtf8(name), false, [onAll, name](bool on) {
            onAll([name, on](QWidget* widget) { Util::applyProperty(widget, name, on); });
        });
    }
    panel->addHeading(QStringLiteral("Util::Details::removeClassMemberPrefix"));
    panel->addText(tr("Member name"), QStringLiteral("m_guideWidget"), [page](const QString& name) {
        page->signalLog()->addLine(
            QStringLiteral("\"%1\" → \"%2\"")
                .arg(name, Util::Details::removeClassMemberPrefix(name.toUtf8().constData())));
    });
    page->signalLog()->watch(buttons.enabled, "button");
    page->signalLog()->watch(edits.enabled, "edit");
    page->signalLog()->watch(sliders.enabled, "slider");
}

void PageRegistry::colorHint(Page* page)
{
    page->addTwins<QWidget>(QString(), [](QWidget* grid) {
        grid->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        auto* layout = new QGridLayout(grid);
        layout->setContentsMargins(0, 0, 0, 0);
        const QStringList hints = colorHints();
        for (const QString& hint : hints) {
            auto* button = new QPushButton(hint, grid);
            ColorHint::applyColorHint(button, hint);
            layout->addWidget(button, layout->count() / 2, layout->count() % 2);
        }
    });
    const auto edits = page->addTwins<QLineEdit>(
        tr("An edit"), [](QLineEdit* edit) { edit->setText(tr("Choose a variant below")); });

    PropertyPanel* const panel = page->properties();
    const auto setHint = edits.setter(&ColorHint::applyColorHint);
    panel->addHeading(QStringLiteral("ColorHint::applyColorHint()"));
    panel->addChoice(tr("Variant of the edit"), QStringList{tr("(none)")} + colorHints(), 0,
                     [setHint](int index) { setHint(index == 0 ? QString() : colorHints().at(index - 1)); });
    panel->addText(tr("Any text"), QString(), [page, setHint, edit = edits.enabled](const QString& text) {
        setHint(text);
        const QString hint = edit ? edit->property("styleHint").toString() : QString();
        page->signalLog()->addLine(QStringLiteral("styleHint: \"%1\"").arg(hint));
    });
    page->signalLog()->watch(edits.enabled, "edit");
    page->describeStyling(
        edits.enabled,
        tr("Any plain control: ColorHint and Util::applyStyleHint() give it one of the shared variants."),
        QStringLiteral("ColorHint"), colorHints());
}

void PageRegistry::propertyProvider(Page* page)
{
    const auto dials = page->addTwins<SampleDial>(tr("A dial whose hand is styled"));
    page->properties()->addHeading(QStringLiteral("SampleDialStyle"));
    page->properties()->addProperties(dials.children<SampleDialStyle>());
    page->describeStyling(
        dials.enabled,
        tr("An example: the provider is selected by its class name below the widget that it serves."),
        QStringLiteral("PropertyProviderBase"));
}

#include "Layouts.moc"
