#include "Deletion.h"
#include "FakeColorPicker.h"
#include "FreedMemory.h"
#include "MouseEvents.h"
#include "Part.h"
#include "PickingStage.h"
#include "PipetteWindows.h"
#include "QmlFiles.h"
#include "TestMain.h"
#include "Wheel.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/QuickDialog.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>

#include <functional>

namespace {

using Action = std::function<void()>;
using Report = std::function<void()>;

const QString scheme = QStringLiteral("uic-deletion-test");

/// A component in a window, and what makes it report.
struct Scene
{
    QObject* component;
    Action act;
};

using Make = std::function<Scene(QWidget* window, const Report& report)>;

QPoint middle(const QWidget* widget)
{
    return widget->rect().center();
}

void pressKey(QWidget* widget, int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

template <typename Component>
using Act = std::function<void(Component*)>;

/// Adds a row: @p act makes what @p make made report by @p signal.
template <typename Component, typename Signal>
void add(
    const QByteArray& name, Component* (*make)(QWidget*), Signal signal, const Act<Component>& act,
    int report = 1, const Act<Component>& prepare = [](Component*) {})
{
    const auto scene = [=](QWidget* window, const Report& slot) {
        auto* const component = make(window);
        return Scene{component, [=] {
                         prepare(component);
                         QObject::connect(component, signal, component, slot);
                         act(component);
                     }};
    };
    QTest::newRow(name) << Make(scene) << report;
}

ColorPickerButton* makeColorButton(QWidget* window)
{
    auto* const button = new ColorPickerButton(window);
    button->setPicker(new FakeColorPicker);
    return button;
}

FakeColorPicker* pickerOf(ColorPickerButton* button)
{
    return static_cast<FakeColorPicker*>(button->picker());
}

ColorInputWidget* makeColorField(QWidget* window)
{
    auto* const field = new ColorInputWidget(window, Qt::blue);
    auto* const picker = new FakeColorPicker;
    field->setPicker(picker);
    picker->onPick = [picker] { picker->finish(QColor(Qt::red)); };
    return field;
}

PointSelectorWidget* makePointField(QWidget* window)
{
    auto* const field = new PointSelectorWidget(window, {{0, 0}, {100, 100}, 2, 2});
    field->findChild<PointSelectionPlane*>()->setMinimumSize(100, 100);
    return field;
}

PathSelectionWidget* makeFolderField(QWidget* window)
{
    auto* const field = new PathSelectionWidget(window);
    field->setDefaultPath(QStringLiteral("/default"), QStringLiteral("Default"));
    return field;
}

/// Something to pick from.
QWidget* makeTarget(QWidget* window)
{
    auto* const target = new PatternWidget(window);
    target->setFixedSize(100, 80);
    window->layout()->addWidget(target);
    return target;
}

WidgetColorPicker* makeWidgetPicker(QWidget* window)
{
    auto* const picker = new WidgetColorPicker({});
    picker->setParent(window);
    picker->setTarget(makeTarget(window));
    return picker;
}

WidgetColorPickerButton* makeWidgetPickerButton(QWidget* window)
{
    auto* const button = new WidgetColorPickerButton(window);
    button->setTargetWidget(makeTarget(window));
    return button;
}

/// Once a pick waits for it.
void pressOn(const QWidget* target)
{
    PickingStage::moveCursor(target);
    QTimer::singleShot(0, target, [target] {
        const QWidget* const window = target->window();
        QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, target->geometry().center());
    });
}

ColorPickerButton* makePanelButton(QWidget* window)
{
    auto* const button = new ColorPickerButton(window);
    button->setPicker(new PopupColorPicker);
    button->setColor(QColor(Qt::blue));
    window->layout()->addWidget(button);
    return button;
}

PopupColorPicker* makePopupPicker(QWidget* window)
{
    return static_cast<PopupColorPicker*>(makePanelButton(window)->picker());
}

ColorInputWidget* makePanelField(QWidget* window)
{
    auto* const field = new ColorInputWidget(window, Qt::blue);
    field->setPicker(new PopupColorPicker);
    return field;
}

QWidget* windowOf(QObject* component)
{
    auto* const widget = qobject_cast<QWidget*>(component);
    return (widget ? widget : qobject_cast<QWidget*>(component->parent()))->window();
}

ColorPickerButton* buttonIn(const QWidget* window)
{
    return window->findChild<ColorPickerButton*>();
}

/// Chooses a colour in the panel, which is a preview of the field's.
void chooseInPanel(const QWidget* window)
{
    buttonIn(window)->startPicking();
    auto* const edit = partOf<QLineEdit>(window, "currentColorValueEdit");
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("#123456"));
}

void pressEscapeInPanel(const QWidget* window)
{
    QTest::keyPress(partOf(window, "colorPanelPopup")->windowHandle(), Qt::Key_Escape);
}

GuideInfo guideInfo()
{
    return {QStringLiteral("Trim"), QString(), QStringLiteral("<a href=\"%1:x\">Learn more</a>").arg(scheme),
            QString()};
}

GuideButton* makeGuideButton(QWidget* window)
{
    auto* const button = new GuideButton(window);
    button->setGuideInfo(std::make_unique<GuideInfo>(guideInfo()));
    return button;
}

void clickLink(QWidget* guide)
{
    auto* const label = partOf<QLabel>(guide, "learnMoreLabel");
    QTest::mouseClick(label, Qt::LeftButton, {}, {5, middle(label).y()});
}

/// As typed, and to be reported by Enter.
void typeUnreported(QWidget* field, const char* name)
{
    auto* const spinBox = partOf<QAbstractSpinBox>(field, name);
    spinBox->setKeyboardTracking(false);
    spinBox->selectAll();
    QTest::keyClick(spinBox, Qt::Key_1);
}

} // namespace

Q_DECLARE_METATYPE(Make)

/// A slot that deletes the component that called it, or its window: at once, or while it runs an event loop,
/// as for a message box. Qt's own handlers run on after the slot, and some write into what is gone.
class tst_Deletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QDesktopServices::setUrlHandler(scheme, this, "ignoreLink"); }

    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(scheme); }

    void deletedInASlot_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<int>("report"); // the index of the report that deletes
        addColorFields();
        addPickers();
        addPanels();
        addSliderFields();
        addPointFields();
        addTextFields();
        addGuides();
        addDialogs();
    }

    void deletedInASlot()
    {
        QFETCH(Make, make);
        QFETCH(int, report);
        for (const Deletion deletion : allDeletions) {
            for (const bool isWindowDeleted : {false, true}) {
                int reports = 0;
                const QPointer<QWidget> window = new QWidget;
                auto* const layout = new QVBoxLayout(window);
                QPointer<QObject> component;
                const Scene scene = make(window, [&] {
                    if (++reports == report) {
                        destroy(isWindowDeleted ? window.data() : component.data(), deletion);
                    }
                });
                component = scene.component;
                auto* const widget = qobject_cast<QWidget*>(component);
                if (widget && !widget->isWindow()) {
                    layout->addWidget(widget);
                }
                window->show();
                QVERIFY(QTest::qWaitForWindowActive(window));
                const Action act = scene.act;
                {
                    const FreedMemoryWatch memory;
                    act();
                    QVERIFY(!component);
                    QVERIFY(memory.deleted() > 0);
                    QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
                }
                QVERIFY(!QWidget::mouseGrabber());
                delete window;
            }
        }
    }

    void ignoreLink(const QUrl& url) { Q_UNUSED(url) }

private:
    static void addColorFields()
    {
        const auto add = [](const char* name, auto signal, const Act<ColorPickerButton>& act) {
            ::add(QByteArray("colour button, ") + name, makeColorButton, signal, act);
        };
        add("clicked", &ColorPickerButton::pickingStarted,
            [](auto* button) { QTest::mouseClick(button, Qt::LeftButton); });
        add("Space", &ColorPickerButton::pickingStarted,
            [](auto* button) { QTest::keyClick(button, Qt::Key_Space); });
        add("reported", &ColorPickerButton::colorChanged,
            [](auto* button) { pickerOf(button)->preview(QColor(Qt::red)); });
        add("reported by a picker that runs a loop", &ColorPickerButton::colorChanged, [](auto* button) {
            auto* const picker = pickerOf(button);
            picker->onPick = [picker] { picker->preview(QColor(Qt::red)); };
            QTest::mouseClick(button, Qt::LeftButton);
        });
        add("stopped", &ColorPickerButton::pickingStopped,
            [](auto* button) { pickerOf(button)->finish(QColor(Qt::red)); });
        add("final colour", &ColorPickerButton::colorChanged,
            [](auto* button) { pickerOf(button)->finish(QColor(Qt::red)); });
        add("setColor", &ColorPickerButton::colorChanged,
            [](auto* button) { button->setColor(QColor(Qt::red)); });
        ::add<ColorInputWidget>(
            "colour field", makeColorField, &ColorInputWidget::colorChanged,
            [](auto* field) { QTest::mouseClick(field->anchorWidget(), Qt::LeftButton); });
    }

    static void addPickers()
    {
        const auto make = [](QWidget* window) { return new Pipette(window); };
        const Act<Pipette> start = [](auto* pipette) { pipette->startPicking(); };
        ::add<Pipette>("pipette, started", make, &Pipette::pickingStarted, start);
        const auto add = [=](const char* name, auto signal, const Act<Pipette>& act) {
            ::add<Pipette>(QByteArray("pipette, ") + name, make, signal, act, 1, [=](auto* pipette) {
                start(pipette);
                QVERIFY(QTest::qWaitForWindowActive(PipetteWindows::views().first()));
            });
        };
        const auto click = [](auto*) {
            PipetteWindows::release(QGuiApplication::primaryScreen(), {600, 500});
        };
        const auto key = [](Qt::Key code) {
            return [code](auto*) { QTest::keyPress(PipetteWindows::views().first()->windowHandle(), code); };
        };
        add("colour", &Pipette::colorSelected, click);
        add("click", &Pipette::pickingStopped, click);
        add("Escape", &Pipette::pickingStopped, key(Qt::Key_Escape));
        add("another key", &Pipette::pickingStopped, key(Qt::Key_A));
        add("another application", &Pipette::pickingStopped,
            [](auto*) { Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive); });
        add("stopped", &Pipette::pickingStopped, [](auto* pipette) { pipette->stopPicking(); });

        const auto pick = [](auto* picker) {
            pressOn(picker->target());
            picker->pick();
        };
        ::add<WidgetColorPicker>("widget picker, colour", makeWidgetPicker,
                                 &AbstractColorPicker::colorChanged, pick);
        ::add<WidgetColorPicker>("widget picker, stopped", makeWidgetPicker,
                                 &AbstractColorPicker::pickingStopped, pick);
        const auto addButton = [](const char* name, auto signal) {
            for (const bool isByKey : {false, true}) {
                ::add<WidgetColorPickerButton>(QByteArray("widget picker button, ") + name +
                                                   (isByKey ? " by Space" : " by a click"),
                                               makeWidgetPickerButton, signal, [isByKey](auto* button) {
                                                   pressOn(button->targetWidget());
                                                   if (isByKey) {
                                                       QTest::keyClick(button, Qt::Key_Space);
                                                   } else {
                                                       QTest::mouseClick(button, Qt::LeftButton);
                                                   }
                                               });
            }
        };
        addButton("started", &WidgetColorPickerButton::pickingStarted);
        addButton("finished", &WidgetColorPickerButton::pickingFinished);
        addButton("colour", &WidgetColorPickerButton::colorChanged);
    }

    static void addPanels()
    {
        const auto add = [](const QByteArray& name, auto make, auto changed, auto stopped) {
            using Component = std::remove_pointer_t<decltype(make(nullptr))>;
            const auto choose = [](Component* made) { chooseInPanel(windowOf(made)); };
            ::add<Component>(
                name + ", Escape", make, changed, [=](auto* made) { pressEscapeInPanel(windowOf(made)); }, 1,
                choose);
            ::add<Component>(
                name + ", sample", make, changed,
                [=](auto* made) {
                    QWidget* const window = windowOf(made);
                    FakeColorPicker sampler;
                    sampler.onPick = [&sampler] { sampler.preview(QColor(Qt::green)); };
                    static_cast<PopupColorPicker*>(buttonIn(window)->picker())->setPipette(&sampler);
                    QTest::mouseClick(partOf(window, "pipetteButton"), Qt::LeftButton);
                },
                1, choose);
            ::add<Component>(
                name + ", closed", make, stopped,
                [=](auto* made) {
                    const QPointer<QObject> alive = made;
                    pressEscapeInPanel(windowOf(made));
                    QTRY_VERIFY(!alive);
                },
                1, choose);
            ::add<Component>(
                name + ", stopped", make, stopped,
                [=](auto* made) { buttonIn(windowOf(made))->stopPicking(); }, 1, choose);
        };
        add("pop-up picker", makePopupPicker, &AbstractColorPicker::colorChanged,
            &AbstractColorPicker::pickingStopped);
        add("button with a panel", makePanelButton, &ColorPickerButton::colorChanged,
            &ColorPickerButton::pickingStopped);
        ::add<ColorInputWidget>(
            "colour field with a panel, Escape", makePanelField, &ColorInputWidget::colorChanged,
            [](auto* field) { pressEscapeInPanel(field->window()); }, 1,
            [](auto* field) { chooseInPanel(field->window()); });
    }

    static void addSliderFields()
    {
        using Slide = Act<QAbstractSlider>;
        const auto add = [](const char* name, const Slide& act) {
            const auto slide = [act](QWidget* field) { act(partOf<QAbstractSlider>(field, "slider")); };
            ::add<SliderInputWidget>(
                QByteArray("slider field, ") + name,
                [](QWidget* window) {
                    return new SliderInputWidget(window, {0, 100});
                },
                &SliderInputWidget::valueChanged, slide);
            ::add<DoubleSliderInputWidget>(
                QByteArray("fraction field, ") + name,
                [](QWidget* window) {
                    return new DoubleSliderInputWidget(window, {0.0, 1.0, 2});
                },
                &DoubleSliderInputWidget::valueChanged, slide);
        };
        add("press", [](auto* slider) { press(*slider, middle(slider)); });
        add("middle press", [](auto* slider) { press(*slider, middle(slider), Qt::MiddleButton); });
        add("release without tracking", [](auto* slider) {
            slider->setTracking(false);
            press(*slider, middle(slider));
            release(*slider, middle(slider));
        });
        add("drag", [](auto* slider) {
            press(*slider, {2, middle(slider).y()});
            drag(*slider, middle(slider));
        });
        add("key", [](auto* slider) { pressKey(slider, Qt::Key_Right); });
        add("wheel", [](auto* slider) {
            slider->setFocus();
            turnWheel(*slider, 120);
        });
        add("value", [](auto* slider) { slider->setValue(7); });
        add("spin box", [](auto* slider) {
            partOf<QAbstractSpinBox>(slider->parentWidget(), "spinbox")->setProperty("value", 1);
        });
        add("Enter", [](auto* slider) {
            typeUnreported(slider->parentWidget(), "spinbox");
            pressKey(partOf<QAbstractSpinBox>(slider->parentWidget(), "spinbox"), Qt::Key_Return);
        });
        add("setValue", [](auto* slider) {
            auto* const whole = qobject_cast<SliderInputWidget*>(slider->parentWidget());
            auto* const fraction = qobject_cast<DoubleSliderInputWidget*>(slider->parentWidget());
            whole ? whole->setValue(7) : fraction->setValue(0.5);
        });
    }

    static void addPointFields()
    {
        using Pick = Act<PointSelectionPlane>;
        // The plane reports once, the field for the plane and for each coordinate.
        const auto add = [](const char* name, int reports, const Pick& before, const Pick& act) {
            ::add<PointSelectionPlane>(
                QByteArray("point plane, ") + name,
                [](QWidget* window) { return new PointSelectionPlane(window); },
                &PointSelectionPlane::pointChanged, act, 1, before);
            const auto planeOf = [](auto* field) {
                return field->template findChild<PointSelectionPlane*>();
            };
            for (int i = 1; i <= reports; ++i) {
                ::add<PointSelectorWidget>(
                    QByteArray("point field, ") + name + ", report " + QByteArray::number(i), makePointField,
                    &PointSelectorWidget::valueChanged, [=](auto* field) { act(planeOf(field)); }, i,
                    [=](auto* field) { before(planeOf(field)); });
            }
        };
        const Pick nothing = [](PointSelectionPlane*) {};
        const Pick pressed = [](PointSelectionPlane* plane) { press(*plane, {5, 5}); };
        add("press", 3, nothing, pressed);
        add("double click", 3, nothing, [](auto* plane) {
            sendMouse(*plane, QEvent::MouseButtonDblClick, {20, 20}, Qt::LeftButton, Qt::LeftButton);
        });
        add("drag", 3, pressed, [](auto* plane) { drag(*plane, QPoint(9, 9)); });
        add("release", 3, pressed, [](auto* plane) { release(*plane, QPoint(9, 9)); });
        add("key", 2, pressed, [](auto* plane) { pressKey(plane, Qt::Key_Right); });
        const auto field = [](const char* name, int report, const Act<PointSelectorWidget>& act) {
            ::add(QByteArray("point field, ") + name, makePointField, &PointSelectorWidget::valueChanged, act,
                  report);
        };
        for (const int report : {1, 2}) {
            field(report == 1 ? "setValue, x" : "setValue, y", report,
                  [](auto* made) { made->setValue(QPointF(7, 7)); });
        }
        field("spin box", 1,
              [](auto* made) { partOf<QAbstractSpinBox>(made, "xSpinbox")->setProperty("value", 7.0); });
        field("Enter", 1, [](auto* made) {
            typeUnreported(made, "xSpinbox");
            pressKey(partOf<QAbstractSpinBox>(made, "xSpinbox"), Qt::Key_Return);
        });
    }

    static void addTextFields()
    {
        const auto add = [](const char* name, auto signal, const Act<PathSelectionWidget>& act) {
            ::add(QByteArray("folder field, ") + name, makeFolderField, signal, act);
        };
        add("browse", &PathSelectionWidget::browseDirectoryRequested,
            [](auto* field) { QTest::mouseClick(partOf(field, "pathBrowseButton"), Qt::LeftButton); });
        add("browse by Space", &PathSelectionWidget::browseDirectoryRequested,
            [](auto* field) { QTest::keyClick(partOf(field, "pathBrowseButton"), Qt::Key_Space); });
        add("changed", &PathSelectionWidget::pathChanged, [](auto* field) {
            const QPointer<QWidget> self = field;
            field->setPath(QStringLiteral("/another"));
            QTRY_VERIFY(!self);
        });
        // Signals of the parts, to which a host may connect.
        const auto addClick = [](const char* name, const char* button, auto make) {
            QTest::newRow(name) << Make([=](QWidget* window, const Report& report) {
                auto* const field = make(window);
                auto* const clicked = partOf<QAbstractButton>(field, button);
                connect(clicked, &QAbstractButton::clicked, field, report);
                return Scene{field, [=] { QTest::mouseClick(clicked, Qt::LeftButton); }};
            }) << 1;
        };
        addClick("folder field, reset", "pathResetButton", makeFolderField);
        addClick("search field, clear", "clearSearchButton", [](QWidget* window) {
            auto* const field = new SearchWidget(window);
            partOf<QLineEdit>(field, "searchLineEdit")->setText(QStringLiteral("a"));
            return field;
        });
        QTest::newRow("folder field, check function") << Make([](QWidget* window, const Report& report) {
            auto* const field = new PathSelectionWidget(window);
            field->setPath(QStringLiteral("/some"));
            field->setCheckPathFunc([report](const QString&) {
                report();
                return QStringLiteral("Not this one");
            });
            return Scene{field, [=] { field->checkPath(); }};
        }) << 1;
    }

    static void addGuides()
    {
        const auto add = [](const char* name, const Act<GuideWidget>& act) {
            ::add<GuideWidget>(
                QByteArray("guide, ") + name,
                [](QWidget* window) { return new GuideWidget(guideInfo(), window); },
                &GuideWidget::learnMoreClicked, act);
        };
        add("link", clickLink);
        // Qt's text control is in the middle of its own key event.
        add("link by keyboard", [](auto* guide) {
            auto* const label = partOf<QLabel>(guide, "learnMoreLabel");
            label->setFocus();
            QTest::keyClick(label, Qt::Key_Tab);
            QTest::keyClick(label, Qt::Key_Return);
        });
        ::add<GuideButton>("guide button, link", makeGuideButton, &GuideButton::learnMoreClicked,
                           [](auto* button) {
                               button->click();
                               clickLink(button);
                           });
        ::add<GuideButton>("guide button, click", makeGuideButton, &GuideButton::clicked,
                           [](auto* button) { QTest::mouseClick(button, Qt::LeftButton); });
        const auto bubble = [](const char* name, auto signal) {
            ::add<DialogGuideWidget>(
                QByteArray("dialog guide, ") + name,
                [](QWidget* window) {
                    auto* const guide = new DialogGuideWidget(window);
                    guide->setInfo({QStringLiteral("Trim"), QStringLiteral("What it is for."),
                                    QStringLiteral("Next"), QStringLiteral("Back"), QString()});
                    return guide;
                },
                signal,
                [name](auto* guide) {
                    guide->show();
                    QTest::mouseClick(partOf(guide, name), Qt::LeftButton);
                });
        };
        bubble("closeButton", &DialogGuideWidget::closeClicked);
        bubble("mainButton", &DialogGuideWidget::mainClicked);
        bubble("secondaryButton", &DialogGuideWidget::secondaryClicked);
    }

    static void addDialogs()
    {
        add<Qml::QuickDialog>(
            "QML dialog, finished",
            [](QWidget* window) {
                static const QmlFiles files;
                auto* const dialog = new Qml::QuickDialog(window);
                dialog->setQmlPath(files.item(QStringLiteral("width: 100; height: 80")));
                return dialog;
            },
            &QDialog::finished,
            [](auto* dialog) {
                QTimer::singleShot(0, dialog, [dialog] { dialog->accept(); });
                dialog->exec();
            });
    }
};

UIC_TEST_MAIN(tst_Deletion)
#include "tst_Deletion.moc"
