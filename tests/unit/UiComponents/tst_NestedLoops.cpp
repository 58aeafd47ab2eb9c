#include "Deletion.h"
#include "FakeColorPicker.h"
#include "FreedMemory.h"
#include "MouseEvents.h"
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
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/QuickDialog.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QDesktopServices>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

#include <functional>

namespace {

using Action = std::function<void()>;
using Report = std::function<void()>;

const QString Scheme = QStringLiteral("uic-nested-loops-test");

/// A component in a window, and what makes it report.
struct Scene
{
    QWidget* component;
    Action act;
};

using Make = std::function<Scene(QWidget* window, const Report& report)>;

template <typename Part>
Part* part(const QWidget* of, const char* name)
{
    return of->findChild<Part*>(QLatin1String(name));
}

QPoint middle(const QWidget* widget)
{
    return widget->rect().center();
}

void pressKey(QWidget* widget, int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

QString link()
{
    return QStringLiteral("<a href=\"%1:x\">Learn more</a>").arg(Scheme);
}

template <typename Field>
Scene slideThe(Field* field, const Report& report, const std::function<void(QAbstractSlider*)>& act)
{
    QObject::connect(field, &Field::valueChanged, field, report);
    auto* const slider = part<QAbstractSlider>(field, "slider");
    return {field, [slider, act] { act(slider); }};
}

} // namespace

Q_DECLARE_METATYPE(Make)

/// A slot that runs an event loop, as for a message box, in which the component that called it is deleted.
class tst_NestedLoops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QDesktopServices::setUrlHandler(Scheme, this, "ignoreLink"); }

    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(Scheme); }

    void deletedInALoopOfASlot_data()
    {
        QTest::addColumn<Make>("make");
        addColorFields();
        addSliderFields();
        addPointFields();
        addTextFields();
        addGuides();
        addDialogs();
    }

    void deletedInALoopOfASlot()
    {
        QFETCH(Make, make);
        for (const Deletion deletion : {Deletion::InANestedLoop, Deletion::LaterInANestedLoop}) {
            for (const bool isWindowDeleted : {false, true}) {
                const QPointer<QWidget> window = new QWidget;
                auto* const layout = new QVBoxLayout(window);
                QPointer<QWidget> component;
                const Scene scene = make(
                    window, [&] { destroy(isWindowDeleted ? window.data() : component.data(), deletion); });
                component = scene.component;
                if (!component->isWindow()) {
                    layout->addWidget(component);
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
    void addColorFields() const
    {
        const auto row = [](const char* name, auto signal,
                            const std::function<void(ColorPickerButton*, FakeColorPicker*)>& act) {
            QTest::addRow("colour button, %s", name)
                << Make([signal, act](QWidget* window, const Report& report) {
                       auto* const button = new ColorPickerButton(window);
                       auto* const picker = new FakeColorPicker;
                       button->setPicker(picker);
                       connect(button, signal, button, report);
                       return Scene{button, [=] { act(button, picker); }};
                   });
        };
        const auto click = [](ColorPickerButton* button, FakeColorPicker*) {
            QTest::mouseClick(button, Qt::LeftButton);
        };
        row("clicked", &ColorPickerButton::pickingStarted, click);
        row("Space", &ColorPickerButton::pickingStarted,
            [](ColorPickerButton* button, FakeColorPicker*) { QTest::keyClick(button, Qt::Key_Space); });
        row("reported", &ColorPickerButton::colorChanged,
            [](ColorPickerButton*, FakeColorPicker* picker) { picker->preview(QColor(Qt::red)); });
        row("reported by a picker that runs a loop", &ColorPickerButton::colorChanged,
            [](ColorPickerButton* button, FakeColorPicker* picker) {
                picker->onPick = [picker] { picker->preview(QColor(Qt::red)); };
                QTest::mouseClick(button, Qt::LeftButton);
            });
        row("stopped", &ColorPickerButton::pickingStopped,
            [](ColorPickerButton*, FakeColorPicker* picker) { picker->finish(QColor(Qt::red)); });
        row("final colour", &ColorPickerButton::colorChanged,
            [](ColorPickerButton*, FakeColorPicker* picker) { picker->finish(QColor(Qt::red)); });
        row("setColor", &ColorPickerButton::colorChanged,
            [](ColorPickerButton* button, FakeColorPicker*) { button->setColor(QColor(Qt::red)); });
        QTest::newRow("colour field") << Make([](QWidget* window, const Report& report) {
            auto* const field = new ColorInputWidget(window, Qt::blue);
            auto* const picker = new FakeColorPicker;
            field->setPicker(picker);
            connect(field, &ColorInputWidget::colorChanged, field, report);
            return Scene{field, [=] {
                             picker->onPick = [picker] { picker->finish(QColor(Qt::red)); };
                             QTest::mouseClick(field->anchorWidget(), Qt::LeftButton);
                         }};
        });
    }

    void addSliderFields() const
    {
        using Slide = std::function<void(QAbstractSlider*)>;
        const auto row = [](const char* name, const Slide& act) {
            QTest::addRow("slider field, %s", name) << Make([act](QWidget* window, const Report& report) {
                return slideThe(new SliderInputWidget(window, {0, 100}), report, act);
            });
            QTest::addRow("fraction field, %s", name) << Make([act](QWidget* window, const Report& report) {
                return slideThe(new DoubleSliderInputWidget(window, {0.0, 1.0, 2}), report, act);
            });
        };
        row("press", [](QAbstractSlider* slider) { press(*slider, middle(slider)); });
        row("middle press",
            [](QAbstractSlider* slider) { press(*slider, middle(slider), Qt::MiddleButton); });
        row("release without tracking", [](QAbstractSlider* slider) {
            slider->setTracking(false);
            press(*slider, middle(slider));
            release(*slider, middle(slider));
        });
        row("drag", [](QAbstractSlider* slider) {
            press(*slider, {2, middle(slider).y()});
            drag(*slider, middle(slider));
        });
        row("key", [](QAbstractSlider* slider) { pressKey(slider, Qt::Key_Right); });
        row("wheel", [](QAbstractSlider* slider) {
            slider->setFocus();
            turnWheel(*slider, 120);
        });
        row("value", [](QAbstractSlider* slider) { slider->setValue(7); });
        row("Enter", [](QAbstractSlider* slider) {
            auto* const spinBox = part<QAbstractSpinBox>(slider->parentWidget(), "spinbox");
            spinBox->setKeyboardTracking(false);
            spinBox->selectAll();
            QTest::keyClick(spinBox, Qt::Key_1);
            pressKey(spinBox, Qt::Key_Return);
        });
        QTest::newRow("slider field, setValue") << Make([](QWidget* window, const Report& report) {
            auto* const field = new SliderInputWidget(window, {0, 100});
            connect(field, &SliderInputWidget::valueChanged, field, report);
            return Scene{field, [=] { field->setValue(7); }};
        });
        QTest::newRow("fraction field, setValue") << Make([](QWidget* window, const Report& report) {
            auto* const field = new DoubleSliderInputWidget(window, {0.0, 1.0, 2});
            connect(field, &DoubleSliderInputWidget::valueChanged, field, report);
            return Scene{field, [=] { field->setValue(0.5); }};
        });
    }

    void addPointFields() const
    {
        using Pick = std::function<void(PointSelectionPlane*)>;
        const auto row = [](const char* name, const Pick& before, const Pick& act) {
            QTest::addRow("point plane, %s", name) << Make([=](QWidget* window, const Report& report) {
                auto* const plane = new PointSelectionPlane(window);
                return Scene{plane, [=] {
                                 before(plane);
                                 connect(plane, &PointSelectionPlane::pointChanged, plane, report);
                                 act(plane);
                             }};
            });
            QTest::addRow("point field, %s", name) << Make([=](QWidget* window, const Report& report) {
                auto* const field = new PointSelectorWidget(window, {{0, 0}, {100, 100}, 2, 2});
                auto* const plane = field->findChild<PointSelectionPlane*>();
                plane->setMinimumSize(100, 100);
                return Scene{field, [=] {
                                 before(plane);
                                 connect(field, &PointSelectorWidget::valueChanged, field, report);
                                 act(plane);
                             }};
            });
        };
        const Pick nothing = [](PointSelectionPlane*) {};
        const Pick pressed = [](PointSelectionPlane* plane) { press(*plane, {5, 5}); };
        row("press", nothing, pressed);
        row("drag", pressed, [](PointSelectionPlane* plane) { drag(*plane, {9, 9}); });
        row("release", pressed, [](PointSelectionPlane* plane) { release(*plane, {9, 9}); });
        row("key", pressed, [](PointSelectionPlane* plane) { pressKey(plane, Qt::Key_Right); });
        QTest::newRow("point field, setValue") << Make([](QWidget* window, const Report& report) {
            auto* const field = new PointSelectorWidget(window, {{0, 0}, {100, 100}, 2, 2});
            connect(field, &PointSelectorWidget::valueChanged, field, report);
            return Scene{field, [=] { field->setValue({7, 7}); }};
        });
    }

    void addTextFields() const
    {
        const auto path = [](const char* name, auto signal,
                             const std::function<void(PathSelectionWidget*)>& act) {
            QTest::addRow("folder field, %s", name) << Make([=](QWidget* window, const Report& report) {
                auto* const field = new PathSelectionWidget(window);
                field->setDefaultPath(QStringLiteral("/default"), QStringLiteral("Default"));
                connect(field, signal, field, report);
                return Scene{field, [=] { act(field); }};
            });
        };
        path("browse", &PathSelectionWidget::browseDirectoryRequested, [](PathSelectionWidget* field) {
            QTest::mouseClick(part<QWidget>(field, "pathBrowseButton"), Qt::LeftButton);
        });
        path("browse by Space", &PathSelectionWidget::browseDirectoryRequested,
             [](PathSelectionWidget* field) {
                 QTest::keyClick(part<QWidget>(field, "pathBrowseButton"), Qt::Key_Space);
             });
        path("changed", &PathSelectionWidget::pathChanged, [](PathSelectionWidget* field) {
            const QPointer<PathSelectionWidget> self = field;
            field->setPath(QStringLiteral("/another"));
            QTRY_VERIFY(!self);
        });
        QTest::newRow("folder field, check function") << Make([](QWidget* window, const Report& report) {
            auto* const field = new PathSelectionWidget(window);
            field->setPath(QStringLiteral("/some"));
            field->setCheckPathFunc([report](const QString&) {
                report();
                return QStringLiteral("Not this one");
            });
            return Scene{field, [=] { field->checkPath(); }};
        });
    }

    void addGuides() const
    {
        QTest::newRow("guide, link") << Make([](QWidget* window, const Report& report) {
            auto* const guide =
                new GuideWidget({QStringLiteral("Trim"), QString(), link(), QString()}, window);
            connect(guide, &GuideWidget::learnMoreClicked, guide, report);
            return Scene{guide, [=] {
                             auto* const label = part<QLabel>(guide, "learnMoreLabel");
                             QTest::mouseClick(label, Qt::LeftButton, {}, {5, middle(label).y()});
                         }};
        });
        QTest::newRow("guide button, link") << Make([](QWidget* window, const Report& report) {
            auto* const button = new GuideButton(window);
            button->setGuideInfo(
                std::make_unique<GuideInfo>(QStringLiteral("Trim"), QString(), link(), QString()));
            connect(button, &GuideButton::learnMoreClicked, button, report);
            return Scene{button, [=] {
                             button->click();
                             auto* const label = part<QLabel>(button, "learnMoreLabel");
                             QTest::mouseClick(label, Qt::LeftButton, {}, {5, middle(label).y()});
                         }};
        });
        QTest::newRow("guide button, click") << Make([](QWidget* window, const Report& report) {
            auto* const button = new GuideButton(window);
            connect(button, &GuideButton::clicked, button, report);
            return Scene{button, [=] { QTest::mouseClick(button, Qt::LeftButton); }};
        });
        const auto bubble = [](const char* name, auto signal) {
            QTest::addRow("dialog guide, %s", name) << Make([=](QWidget* window, const Report& report) {
                auto* const guide = new DialogGuideWidget(window);
                guide->setInfo({QStringLiteral("Trim"), QStringLiteral("What it is for."),
                                QStringLiteral("Next"), QStringLiteral("Back"), QString()});
                connect(guide, signal, guide, report);
                return Scene{guide, [=] {
                                 guide->show();
                                 QTest::mouseClick(part<QWidget>(guide, name), Qt::LeftButton);
                             }};
            });
        };
        bubble("closeButton", &DialogGuideWidget::closeClicked);
        bubble("mainButton", &DialogGuideWidget::mainClicked);
        bubble("secondaryButton", &DialogGuideWidget::secondaryClicked);
    }

    void addDialogs() const
    {
        const QString file = m_files.item(QStringLiteral("width: 100; height: 80"));
        QTest::newRow("QML dialog, finished") << Make([file](QWidget* window, const Report& report) {
            auto* const dialog = new Qml::QuickDialog(window);
            dialog->setQmlPath(file);
            connect(dialog, &QDialog::finished, dialog, report);
            return Scene{dialog, [=] {
                             QTimer::singleShot(0, dialog, [dialog] { dialog->accept(); });
                             dialog->exec();
                         }};
        });
    }

    QmlFiles m_files;
};

UIC_TEST_MAIN(tst_NestedLoops)
#include "tst_NestedLoops.moc"
