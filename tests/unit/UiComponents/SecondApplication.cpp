// A program with two QApplications, one after the other: Qt forgets the factories of interfaces and the
// translators with the first. Colours of the sheet may be deleted after it.

#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/SheetColors.h>
#include <UiComponents/Translations.h>
#include <WidgetToolkit/OvDoubleSlider.h>

#include <QAccessible>
#include <QApplication>
#include <QPalette>

#include <cstdio>
#include <memory>

namespace {

QString spokenValue(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Value);
}

bool isSpoken(int argc, char** argv)
{
    std::unique_ptr<SheetColors> colors;
    QApplication application(argc, argv);
    colors = std::make_unique<SheetColors>();
    application.setStyleSheet(QStringLiteral("SheetColorsProvider { qproperty-link: #123456; }"));
    Translations::load(QLocale(QLocale::German));
    OvDoubleSlider slider;
    slider.setMultiplier(0.01);
    slider.setDoubleValue(0.4);
    ColorPickerButton button;
    button.setColor(QColor(Qt::red));
    const QString said = spokenValue(&slider) + QLatin1Char(' ') + spokenValue(&button);
    std::puts(qPrintable(said));
    return said == QLatin1String("0.4 Rot, #ff0000") &&
           QApplication::palette().color(QPalette::Link) == QColor(0x123456);
}

} // namespace

int main(int argc, char** argv)
{
    QLocale::setDefault(QLocale::c());
    const bool isFirst = isSpoken(argc, argv);
    return isFirst && isSpoken(argc, argv) ? 0 : 1;
}
