#include "../Page.h"
#include "../PageRegistry.h"
#include "../PreviewScreen.h"

#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/LoupeWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/ScreenColorSource.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>
#include <UiComponents/WidgetColorPickerStylingObject.h>

#include <QListWidget>

#include <cmath>

namespace {

constexpr int loupePixels = 13;

/// Where the loupe is: in a corner half of its pixels are beyond the desktop.
enum class Place { Anywhere, Corner };

/// A picture of the screen around a red spot.
QPixmap loupePicture(Place place, qreal ratio)
{
    QImage image(loupePixels, loupePixels, QImage::Format_ARGB32_Premultiplied);
    constexpr int middle = loupePixels / 2;
    for (int y = 0; y < loupePixels; ++y) {
        for (int x = 0; x < loupePixels; ++x) {
            const double distance = std::hypot(x - middle, y - middle) / loupePixels;
            const bool isOutside = place == Place::Corner && (x > middle || y < middle);
            image.setPixelColor(x, y,
                                isOutside ? QColor(Qt::transparent)
                                          : QColor::fromHsvF(distance / 2, 0.85, 1.0 - distance / 2));
        }
    }
    return QPixmap::fromImage(image.scaled(image.size() * ratio));
}

void setUpLoupe(LoupeWidget* loupe)
{
    constexpr int magnification = 9;
    // By default it is a window.
    loupe->setWindowFlags(Qt::Widget);
    loupe->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Without a sheet it has the size of its label.
    loupe->setMinimumSize(loupePixels * magnification, loupePixels * magnification);
    loupe->setPixmap(loupePicture(Place::Anywhere, loupe->devicePixelRatioF()));
    loupe->setColorName(QColor(255, 38, 38));
}

/// The colours that @p pipette has picked, the latest first.
QListWidget* makePickedColors(const Pipette* pipette)
{
    constexpr QSize swatchSize(32, 16);
    constexpr int height = 96;
    auto* list = new QListWidget;
    list->setObjectName(QStringLiteral("pickedColors"));
    list->setAccessibleName(PageRegistry::tr("Picked colours"));
    list->setIconSize(swatchSize);
    list->setFixedHeight(height);
    QObject::connect(pipette, &Pipette::colorSelected, list, [list, swatchSize](const QColor& color) {
        QPixmap swatch(swatchSize);
        swatch.fill(color.rgb());
        list->insertItem(0, new QListWidgetItem(QIcon(swatch), color.name()));
        list->setCurrentRow(0);
    });
    return list;
}

/// Has @p button, which starts @p pipette, say why when there is nothing to pick with, or the last pick
/// failed.
void followAvailability(QPushButton* button, const Pipette* pipette)
{
    const auto show = [button, pipette] {
        const QString reason = Pipette::unavailableReason();
        button->setEnabled(reason.isEmpty());
        button->setToolTip(reason.isEmpty() ? pipette->failureReason() : reason);
    };
    show();
    QObject::connect(pipette, &Pipette::pickingStopped, button, show);
    if (const ScreenColorSource* const source = ScreenColorSource::current()) {
        QObject::connect(source, &ScreenColorSource::unavailableReasonChanged, button, show);
    }
}

/// The picking cursor that the page's control chooses.
struct PickingLook : WidgetColorPickerStylingObject
{
    QCursor pickingCursor() const override { return shape; }

    Qt::CursorShape shape = Qt::CrossCursor;
};

/// The look for all pickers, which keep pointers to it.
PickingLook* look()
{
    static PickingLook look;
    return &look;
}

} // namespace

void PageRegistry::pipette(Page* page)
{
    auto* pipette = new Pipette(page);
    auto* start = new QPushButton(tr("Pick a colour from the screen"));
    start->setObjectName(QStringLiteral("startPipette"));
    QObject::connect(start, &QPushButton::clicked, pipette, &Pipette::startPicking);
    followAvailability(start, pipette);
    page->describeCode(start, [] {
        return QStringList{
            QStringLiteral("#include <UiComponents/Pipette.h>"),
            QStringLiteral("auto* pipette = new Pipette(parent);"),
            QStringLiteral("QObject::connect($, &QPushButton::clicked, pipette, &Pipette::startPicking);")};
    });
    page->addDemonstration(QString(), start);
    page->addDemonstration(tr("What it picked, the latest first"), makePickedColors(pipette));
    const auto loupes = page->addTwins<LoupeWidget>(tr("The loupe by itself"), &setUpLoupe);

    PropertyPanel* const panel = page->properties();
    panel->addHeading(QStringLiteral("Pipette"));
    panel->addAction(QStringLiteral("startPicking()"), pipette, &Pipette::startPicking);
    panel->addAction(QStringLiteral("stopPicking()"), pipette, &Pipette::stopPicking);
    panel->addHeading(tr("The loupe by itself"));
    panel->addChoice(tr("Picture"), {tr("Anywhere"), tr("In a corner of the desktop"), tr("None")}, 0,
                     loupes.setter([](LoupeWidget* loupe, int choice) {
                         const auto place = choice == 1 ? Place::Corner : Place::Anywhere;
                         loupe->setPixmap(choice == 2 ? QPixmap()
                                                      : loupePicture(place, loupe->devicePixelRatioF()));
                     }));
    panel->addColor(QStringLiteral("setColorName()"), QColor(255, 38, 38),
                    loupes.setter(&LoupeWidget::setColorName));
    panel->addProperties(loupes);
    page->signalLog()->watch(pipette, "pipette");
    page->describeStyling(loupes.enabled,
                          tr("The loupe of the pipette, which carries the property roundedEdges. Its "
                             "border is painted over the picture; its background must be transparent. The "
                             "windows that cover the screens meanwhile are of the class PipetteScreenView: "
                             "its cursorPixmap, cursorSize and cursorHotSpot are the cursor of the pick."));
}

void PageRegistry::widgetColorPicker(Page* page)
{
    const QColor sample(98, 178, 240);
    look()->shape = Qt::CrossCursor;
    auto* film = new PreviewScreen(page);
    page->addDemonstration(tr("The target"), film);
    const auto buttons = page->addTwins<WidgetColorPickerButton>(
        tr("A button that shows its colour"), [film, sample](WidgetColorPickerButton* button) {
            button->setAccessibleName(tr("Pick a colour from the film"));
            button->setTargetWidget(film);
            button->setPickerStylingObject(look());
            button->setColor(sample);
        });
    const auto fields = page->addTwins<ColorPickerButton>(
        tr("A colour button with this picker"), [film, sample](ColorPickerButton* field) {
            field->setAccessibleName(tr("Pick a colour from the film"));
            auto* picker = new WidgetColorPicker({field});
            picker->setTarget(film);
            picker->setStylingObject(look());
            field->setPicker(picker);
            field->setColor(sample);
        });
    page->addTwins<WidgetColorPickerButton>(tr("Before its first pick"),
                                            [film](WidgetColorPickerButton* button) {
                                                button->setAccessibleName(tr("Pick a colour from the film"));
                                                button->setTargetWidget(film);
                                                button->setPickerStylingObject(look());
                                            });
    const QPointer<WidgetColorPicker> picker = fields.enabled->findChild<WidgetColorPicker*>();

    PropertyPanel* const panel = page->properties();
    panel->addHeading(QStringLiteral("WidgetColorPickerButton"));
    panel->addProperties(buttons, {"changeSelfColor"});
    panel->addColor(QStringLiteral("setColor()"), sample, buttons.setter(&WidgetColorPickerButton::setColor));
    panel->addAction(QStringLiteral("startPicking()"), buttons.enabled.data(),
                     &WidgetColorPickerButton::startPicking);
    panel->addAction(QStringLiteral("stopPicking()"), buttons.enabled.data(),
                     &WidgetColorPickerButton::stopPicking);
    panel->addHeading(tr("Target and cursor"));
    panel->addChoice(tr("Target"), {tr("The film"), tr("The whole page"), tr("None")}, 0,
                     [page, film, buttons, picker](int choice) {
                         QWidget* const targets[] = {film, page, nullptr};
                         if (buttons.enabled && picker) {
                             buttons.enabled->setTargetWidget(targets[choice]);
                             picker->setTarget(targets[choice]);
                         }
                     });
    panel->addChoice(tr("Picking cursor"), {tr("Cross"), tr("Pointing hand"), tr("Question mark")}, 0,
                     [](int choice) {
                         constexpr Qt::CursorShape shapes[] = {Qt::CrossCursor, Qt::PointingHandCursor,
                                                               Qt::WhatsThisCursor};
                         look()->shape = shapes[choice];
                     });
    panel->addSwitch(tr("The film runs"), film->isRunning(), [film](bool on) { film->setRunning(on); });
    page->signalLog()->watch(buttons.enabled, "button");
    page->signalLog()->watch(fields.enabled, "field");
    page->signalLog()->watch(picker, "picker");
    page->describeStyling(buttons.enabled, tr("Its background is its colour, written into its own sheet; "
                                              "size and border are the application's."));
    QObject::connect(page, &Page::pictureRequested, film, [film] {
        constexpr double pictureProgress = 0.35;
        film->stopAt(pictureProgress);
    });
}
