// A part of a host that is loaded and unloaded while the program runs, and the libraries with it. What each
// function makes, it deletes.

#include <UiComponents/CustomColors.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/QuickContent.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/Translations.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>

#include <QLineEdit>
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

/// With a regular expression, which Qt caches.
extern "C" Q_DECL_EXPORT void typeASearch()
{
    SearchWidget search;
    search.show();
    QTest::keyClicks(search.findChild<QLineEdit*>(), QStringLiteral("ab"));
    QCOMPARE(search.text(), QStringLiteral("ab"));
}

/// In the settings, whose file Qt keeps in its memory.
extern "C" Q_DECL_EXPORT void keepAColor()
{
    QVERIFY(Util::appendCustomColor(QStringLiteral("#123456")));
}

/// Whose colours are the library's.
extern "C" Q_DECL_EXPORT void showAScene()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Scene.qml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("import QtQuick 2.15\n"
               "import UiComponents 0.1\n"
               "Rectangle { width: 40; height: 20; color: SheetColors.popup }\n");
    file.close();
    Qml::QuickContent content;
    content.load(file.fileName());
    QVERIFY(content.isAvailable());
    content.getUiContent()->show();
}
