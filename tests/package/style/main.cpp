// styled SHEET ACCENT RADIUS [components]: whether the application's sheet is the one that was asked for.

#include <UiComponents/SheetColors.h>
#include <UiComponents/SliderInputWidget.h>

#include <QApplication>
#include <QCheckBox>
#include <QFileInfo>
#include <QSlider>
#include <QStyleFactory>

namespace {

int complaints = 0;

void complain(const QString& text)
{
    ++complaints;
    fprintf(stderr, "%s\n", qPrintable(text));
}

bool shows(QWidget* widget, const QColor& color)
{
    const QImage picture = widget->grab().toImage();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { complain(text); });
    const QStringList words = application.arguments();
    const QColor accent(words.at(2));
    const bool isOfComponents = words.size() > 4;

    const SheetColors colors;
    application.setStyleSheet(QStringLiteral("file:///") + QFileInfo(words.at(1)).absoluteFilePath());
    if (colors.color(QStringLiteral("accent")) != accent || colors.radius() != words.at(3).toInt()) {
        complain(QStringLiteral("the sheet has another accent or radius"));
    }
    SliderInputWidget field(nullptr, {0, 100});
    field.setValue(50);
    if (!shows(&field, accent)) {
        complain(QStringLiteral("the slider field has another accent"));
    }
    // With a mark, whose picture is beside the sheet.
    QCheckBox box;
    box.setChecked(true);
    if (shows(&box, accent) == isOfComponents) {
        complain(QStringLiteral("the check box is not as it should be"));
    }
    return complaints;
}
