// Ends with 0 when the library uses the studio's own look and settings.

#include <Settings/Settings.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/CustomColors.h>
#include <UiComponents/SliderInputWidget.h>

#include <QApplication>
#include <QSpinBox>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QString name = QStringLiteral("#123456");
    const ColorBlendingComboBox box;
    if (box.hasFrame()) {
        qCritical("the combo box has not the studio's look");
        return 1;
    }
    if (!Util::appendCustomColor(name) || Settings::userCustomColors() != QStringList{name}) {
        qCritical("the colour is not in the studio's settings");
        return 1;
    }
    SliderInputWidget field(nullptr, {0, 10});
    field.setValue(7);
    if (field.findChild<QSpinBox*>()->value() != 7) {
        qCritical("the number is not in the studio's spin box");
        return 1;
    }
    return 0;
}
