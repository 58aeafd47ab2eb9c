// Ends with 0 when the library uses the studio's own look and settings.

#include <FileSystem/FS.h>
#include <Settings/Settings.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/CustomColors.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/QuickDialog.h>
#include <UiComponents/SliderInputWidget.h>
#include <WidgetToolkit/OvFrame.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVariant>

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
    ColorPickerWidget panel(nullptr, false);
    panel.setCurrentColor(QColor(name));
    const auto* edit = panel.findChild<QLineEdit*>(QStringLiteral("currentColorValueEdit"));
    if (edit->text() != name || !edit->property("inputLight").toBool()) {
        qCritical("the colour is not in the studio's line edit");
        return 1;
    }
    SliderInputWidget field(nullptr, {0, 10});
    field.setValue(7);
    if (field.findChild<QSpinBox*>()->value() != 7) {
        qCritical("the number is not in the studio's spin box");
        return 1;
    }
    PathSelectionWidget folder(nullptr);
    folder.showRequiredSpace(true, 7);
    const auto* space = folder.findChild<QLabel*>(QStringLiteral("requiredLabel"));
    if (folder.checkPath() || space->text() != QLatin1String("Required: 7 studio bytes")) {
        qCritical("the folder is not looked at with the studio's eyes");
        return 1;
    }
    DialogGuideWidget guide(nullptr);
    guide.setInfo({QStringLiteral("Here"), QString(), QString(), QString(), QString()});
    if (guide.contentFrame()->objectName() != QLatin1String("studioBubble") ||
        guide.findChild<QLabel*>(QStringLiteral("headerLabel"))->text() != QLatin1String("HERE")) {
        qCritical("the guide is not in the studio's bubble and letters");
        return 1;
    }
    Qml::QuickDialog dialog;
    dialog.setQmlPath(QStringLiteral("/no such scene"));
    if (dialog.exec() != 0 || FS::lastAsked() != QLatin1String("/no such scene")) {
        qCritical("the scene is not looked for with the studio's eyes");
        return 1;
    }
    if (!dialog.property("studioKeepsFocus").toBool()) {
        qCritical("the keyboard is not kept by the studio");
        return 1;
    }
    Pipette pipette;
    int picks = 0;
    QObject::connect(&pipette, &Pipette::pickingStarted, &pipette, [&picks] { ++picks; });
    pipette.startPicking();
    if (picks != 0) {
        qCritical("the screen is read without the studio's permission");
        return 1;
    }
    pipette.startPicking();
    if (picks != 1) {
        qCritical("the studio was not asked for its permission");
        return 1;
    }
    return 0;
}
