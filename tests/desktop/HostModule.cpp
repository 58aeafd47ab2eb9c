// A part of a host that is loaded and unloaded while the program runs, and the libraries with it. What each
// function makes, it deletes.

#include <UiComponents/Pipette.h>
#include <UiComponents/Translations.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>

#include <QTimer>
#include <QtTest>

namespace {

void press(QWidget* widget)
{
    QTest::mousePress(widget->windowHandle(), Qt::LeftButton, Qt::NoModifier, widget->rect().center());
}

} // namespace

/// Looks for the desktop's portal, where the program may not read the screen.
extern "C" Q_DECL_EXPORT void pickFromTheScreen()
{
    Pipette pipette;
    pipette.startPicking();
    pipette.stopPicking();
}

/// Ends with a press that reaches nobody.
extern "C" Q_DECL_EXPORT void pickFromAWidget()
{
    QWidget target;
    target.resize(200, 200);
    target.show();
    WidgetColorPicker picker({});
    picker.setTarget(&target);
    QTimer::singleShot(0, &target, [&target] { press(&target); });
    picker.pick();
}

/// Leaves texts for the application.
extern "C" Q_DECL_EXPORT void loadALanguage()
{
    Translations::load(QLocale(QStringLiteral("ar")));
}

/// Ends in the middle of a drag, until whose end readers are not told of the colour.
extern "C" Q_DECL_EXPORT void changeAColor()
{
    QWidget window;
    WidgetColorPickerButton button(&window);
    window.resize(200, 200);
    window.show();
    press(&window);
    button.setColor(Qt::red);
}
