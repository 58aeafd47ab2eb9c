#include "PipettePage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "PickedColors.h"

#include <UiComponents/LoupeWidget.h>
#include <UiComponents/Pipette.h>

#include <QImage>
#include <QPushButton>

#include <cmath>

namespace {

constexpr int LoupePixels = 13;
constexpr int Magnification = 9;

/// What a loupe sees in a corner of the desktop: half of its pixels are beyond it.
enum class Place { Anywhere, Corner };

/// A picture of the screen around a red spot.
QPixmap picture(Place place, qreal ratio)
{
    QImage image(LoupePixels, LoupePixels, QImage::Format_ARGB32_Premultiplied);
    constexpr int middle = LoupePixels / 2;
    for (int y = 0; y < LoupePixels; ++y) {
        for (int x = 0; x < LoupePixels; ++x) {
            const double distance = std::hypot(x - middle, y - middle) / LoupePixels;
            const bool isOutside = place == Place::Corner && (x > middle || y < middle);
            image.setPixelColor(x, y,
                                isOutside ? QColor(Qt::transparent)
                                          : QColor::fromHsvF(distance / 2, 0.85, 1.0 - distance / 2));
        }
    }
    return QPixmap::fromImage(image.scaled(image.size() * ratio));
}

LoupeWidget* makeLoupe(QWidget* parent)
{
    auto* loupe = new LoupeWidget(parent);
    // It is a window of its own otherwise.
    loupe->setWindowFlags(Qt::Widget);
    loupe->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Without a sheet it would be as small as its label.
    loupe->setMinimumSize(LoupePixels * Magnification, LoupePixels * Magnification);
    loupe->setPixmap(picture(Place::Anywhere, loupe->devicePixelRatioF()));
    loupe->setColorName(QColor(255, 38, 38));
    return loupe;
}

} // namespace

PageInfo PipettePage::info()
{
    return {QStringLiteral("pipette"),
            tr("Screen pipette"),
            PageGroup::Colour,
            {tr("colour"), tr("pick"), tr("screen"), tr("magnifier"), tr("eyedropper")},
            {QStringLiteral("Pipette")},
            &createPage<PipettePage>};
}

PipettePage::PipettePage(QWidget* parent)
    : Page(
          info(),
          tr("Picks the colour of any pixel on any screen, of other applications too. A click picks, any key "
             "gives up. The loupe beside the cursor shows the pixels around it."),
          parent)
    , m_pipette(new Pipette(this))
    , m_colors(new PickedColors(this))
{
    addPicking();
    addLoupes();
    signalLog()->watch(m_pipette, QStringLiteral("pipette"));
}

PipettePage::~PipettePage() = default;

void PipettePage::addPicking()
{
    auto* start = new QPushButton(tr("Pick a colour from the screen"), this);
    start->setObjectName(QStringLiteral("startPipette"));
    connect(start, &QPushButton::clicked, m_pipette, &Pipette::startPicking);
    connect(m_pipette, &Pipette::colorSelected, m_colors, &PickedColors::add);
    addDemonstration(QString(), start);
    addDemonstration(tr("What it picked, the latest first"), m_colors);

    properties()->addHeading(QStringLiteral("Pipette"));
    properties()->addAction(QStringLiteral("startPicking()"), [this] { m_pipette->startPicking(); });
    properties()->addAction(QStringLiteral("stopPicking()"), [this] { m_pipette->stopPicking(); });
}

void PipettePage::addLoupes()
{
    const auto loupes = addTwins<LoupeWidget>(tr("The loupe by itself"), &makeLoupe);
    properties()->addHeading(tr("The loupe by itself"));
    properties()->addChoice(tr("Picture"), {tr("Anywhere"), tr("In a corner of the desktop"), tr("None")}, 0,
                            [loupes](int choice) {
                                loupes.each([choice](LoupeWidget* loupe) {
                                    const auto place = choice == 1 ? Place::Corner : Place::Anywhere;
                                    loupe->setPixmap(
                                        choice == 2 ? QPixmap() : picture(place, loupe->devicePixelRatioF()));
                                });
                            });
    properties()->addColor(QStringLiteral("setColorName()"), QColor(255, 38, 38),
                           [loupes](const QColor& color) {
                               loupes.each([&color](LoupeWidget* loupe) { loupe->setColorName(color); });
                           });
    properties()->addProperties(loupes.objects());
    describeStyling(
        loupes.enabled,
        tr("The magnifier of the pipette, which carries the property roundedEdges. Its border is "
           "painted over the picture; its background must be transparent. The windows that cover the "
           "screens meanwhile are of the class PipetteScreenView: its cursorPixmap, cursorSize and "
           "cursorHotSpot are the cursor of the pick."));
}
