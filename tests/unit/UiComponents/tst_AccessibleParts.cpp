#include "AccessibleEars.h"
#include "MarkingTranslator.h"
#include "Part.h"
#include "RecordingStore.h"
#include "TestMain.h"

#include <DesignElements/TesselLineEdit.h>
#include <Settings/Settings.h>
#include <UiComponents/AbstractColorPicker.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <UiComponents/WidgetColorPickerButton.h>

#include <functional>
#include <private/qguiapplication_p.h>

using Make = std::function<QWidget*(QWidget*)>;
using End = std::function<void(ColorPickerButton*)>;
Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(End)
Q_DECLARE_METATYPE(PathSelectionWidget::ErrorDisplayType)

namespace {

QToolButton* paletteButton(const ColorPickerWidget& panel, const char* color)
{
    const auto all = panel.findChildren<QToolButton*>();
    for (QToolButton* button : all) {
        if (button->styleSheet().contains(QLatin1String(color))) {
            return button;
        }
    }
    return nullptr;
}

QString description(QWidget* widget)
{
    return reader(widget).text(QAccessible::Description);
}

} // namespace

class tst_AccessibleParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_record = std::make_shared<Record>();
        Settings::setStore(std::make_unique<RecordingStore>(m_record));
    }

    void cleanup() { Settings::setStore(nullptr); }

    void fields_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QStringList>("tree");
        const auto row = [](const char* name, const Make& make, const QStringList& tree) {
            QTest::newRow(name) << make << tree;
        };
        row("colour field",
            [](QWidget* parent) { return new ColorInputWidget(parent, QColor(0xff, 0x80, 0x40)); },
            {QStringLiteral("Grouping Fill"), QStringLiteral("  Button Fill = orange, #ff8040")});
        row("slider field",
            [](QWidget* parent) {
                auto* field = new SliderInputWidget(parent, {0, 200});
                field->setValue(40);
                return field;
            },
            {QStringLiteral("Grouping Fill"), QStringLiteral("  Slider Fill = 40"),
             QStringLiteral("  SpinBox Fill, number = 40")});
        row("double slider field",
            [](QWidget* parent) {
                auto* field = new DoubleSliderInputWidget(parent, {0.0, 1.0, 2});
                field->setValue(0.4);
                return field;
            },
            {QStringLiteral("Grouping Fill"), QStringLiteral("  Slider Fill = 0.4"),
             QStringLiteral("  SpinBox Fill, number = 0.40")});
        row("point selector",
            [](QWidget* parent) {
                return new PointSelectorWidget(parent, {{0.0, 0.0}, {1.0, 1.0}, 2, 2});
            },
            {QStringLiteral("Grouping Fill"), QStringLiteral("  SpinBox Fill, x = 0.00"),
             QStringLiteral("  SpinBox Fill, y = 0.00"), QStringLiteral("  Grouping Fill"),
             QStringLiteral("  Slider Fill, x = 0"), QStringLiteral("  Slider Fill, y = 0")});
        row("search field", [](QWidget* parent) { return new SearchWidget(parent); },
            {QStringLiteral("Grouping Fill"), QStringLiteral("  EditableText Fill"),
             QStringLiteral("  Button Clear the search")});
        row("folder field", [](QWidget* parent) { return new PathSelectionWidget(parent); },
            {QStringLiteral("Grouping Fill"), QStringLiteral("  EditableText Fill"),
             QStringLiteral("  Button Fill, Choose a folder"),
             QStringLiteral("  Button Fill, Back to the default folder"), QStringLiteral("  AlertMessage")});
    }

    // The label of a field names all that is inside it, and Alt and its letter lead there.
    void fields()
    {
        QFETCH(Make, make);
        QWidget window;
        auto* form = new QFormLayout(&window);
        auto* const other = new QLineEdit(&window);
        form->addRow(other);
        QWidget* const field = make(&window);
        form->addRow(QStringLiteral("&Fill:"), field);
        QStringList tree = accessibleTree(reader(field));
        // Layouts are told from groups by having no name.
        QStringList named;
        for (const QString& line : qAsConst(tree)) {
            const QString plain = line.trimmed();
            if (plain != QLatin1String("Border") && plain != QLatin1String("Client") &&
                !plain.startsWith(QLatin1String("StaticText"))) {
                named += line.startsWith(QLatin1Char(' ')) ? QStringLiteral("  ") + plain : plain;
            }
        }
        QTEST(named, "tree");

        window.show();
        QApplication::setActiveWindow(&window);
        other->setFocus();
        QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
        QVERIFY(QApplication::focusWidget());
        QVERIFY(field->isAncestorOf(QApplication::focusWidget()));
        QCOMPARE(spokenName(QApplication::focusWidget()), QStringLiteral("Fill"));
        const auto labels = reader(QApplication::focusWidget()).relations(QAccessible::Label);
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.constFirst().first->object(), form->labelForField(field));
        // A part with a name of its own would lose it: readers prefer the label's text.
        const auto parts = field->findChildren<QWidget*>();
        for (QWidget* part : parts) {
            const int count = spokenName(part) == QLatin1String("Fill") ? 1 : 0;
            QCOMPARE(reader(part).relations(QAccessible::Label).size(), count);
            if (part->focusPolicy() != Qt::NoFocus && part->isVisible()) {
                other->setFocus();
                reader(part).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
                QVERIFY2(part->hasFocus(), qPrintable(part->objectName()));
            }
        }
    }

    void labelFurtherUp()
    {
        QWidget window;
        QLabel label(QStringLiteral("&Level:"), &window);
        QWidget group(&window);
        SliderInputWidget field(&group, {0, 10});
        label.setBuddy(&field);
        QWidget* const slider = partOf(&field, "slider");
        QCOMPARE(spokenName(slider), QStringLiteral("Level"));
        const auto labels = reader(slider).relations(QAccessible::Label);
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.constFirst().first->object(), &label);
    }

    void ownNamesWin()
    {
        QWidget window;
        const QLabel ofNobody(QStringLiteral("Fill"), &window);
        SliderInputWidget field(&window, {0, 10});
        QCOMPARE(spokenName(partOf(&field, "slider")), QString());
        QVERIFY(reader(partOf(&field, "slider")).relations(QAccessible::Label).isEmpty());
        QCOMPARE(spokenName(partOf(&field, "spinbox")), QStringLiteral("number"));
        field.setAccessibleName(QStringLiteral("Opacity"));
        QCOMPARE(spokenName(&field), QStringLiteral("Opacity"));
        QCOMPARE(spokenName(partOf(&field, "spinbox")), QStringLiteral("Opacity, number"));
        partOf(&field, "spinbox")->setAccessibleName(QStringLiteral("Percent"));
        QCOMPARE(spokenName(partOf(&field, "spinbox")), QStringLiteral("Percent"));
        partOf(&field, "spinbox")->setAccessibleName(QString());
        const MarkingTranslator translator("SliderInputWidget");
        QCOMPARE(spokenName(partOf(&field, "spinbox")), QStringLiteral("Opacity, <number>"));
    }

    void colorButtonSpeaks()
    {
        ColorPickerButton button;
        button.setToolTip(QStringLiteral("The colour of the light"));
        QAccessibleInterface& interface = reader(&button);
        QCOMPARE(interface.role(), QAccessible::Button);
        QCOMPARE(interface.text(QAccessible::Name), QStringLiteral("The colour of the light"));
        QCOMPARE(interface.text(QAccessible::Value), QStringLiteral("several colours"));
        button.setColor(QColor());
        QCOMPARE(interface.text(QAccessible::Value), QStringLiteral("no colour"));
        button.setColor(QColor(0xff, 0x80, 0x40, 128));
        QCOMPARE(interface.text(QAccessible::Value), QStringLiteral("orange, #ff8040, 50 %"));
        QCOMPARE(interface.text(QAccessible::Description), QStringLiteral("orange, #ff8040, 50 %"));

        WidgetColorPickerButton picking;
        picking.setColor(Qt::blue);
        QCOMPARE(reader(&picking).text(QAccessible::Value), QStringLiteral("blue, #0000ff"));
        QCOMPARE(
            reader(&picking).text(QAccessible::Description),
            QStringLiteral("blue, #0000ff. Needs a mouse; without one, type the value in a colour panel"));
        // One sentence after the other as the language has it.
        const MarkingTranslator translator("AccessibleNames");
        QCOMPARE(
            reader(&picking).text(QAccessible::Description),
            QStringLiteral("<blue, #0000ff. Needs a mouse; without one, type the value in a colour panel>"));
    }

    void descriptionsAreSentences_data()
    {
        QTest::addColumn<QString>("own");
        QTest::addColumn<QString>("before"); // the hint
        const QString chinese = QStringLiteral("\u952e\u3002");
        QTest::newRow("with a stop") << QStringLiteral("Key?") << QStringLiteral("Key? ");
        QTest::newRow("in Chinese") << chinese << chinese;
    }

    void descriptionsAreSentences()
    {
        QFETCH(QString, own);
        QFETCH(QString, before);
        WidgetColorPickerButton button;
        button.setAccessibleDescription(own);
        QCOMPARE(description(&button),
                 QStringLiteral("no colour. ") + before +
                     QStringLiteral("Needs a mouse; without one, type the value in a colour panel"));
    }

    void colorsAreAnnouncedOnce()
    {
        ColorPickerButton button;
        button.setAccessibleName(QStringLiteral("Fill"));
        WidgetColorPickerButton picking;
        picking.setAccessibleName(QStringLiteral("Key"));
        const AccessibleEars ears;
        button.setColor(QColor(Qt::red));
        QCOMPARE(AccessibleEars::take(), QStringList{QStringLiteral("Fill: red, #ff0000")});
        button.setColor(QColor(Qt::red));
        QCOMPARE(AccessibleEars::take(), QStringList());
        button.setColor({});
        QCOMPARE(AccessibleEars::take(), QStringList{QStringLiteral("Fill: several colours")});
        picking.setColor(Qt::blue);
        QCOMPARE(AccessibleEars::take(),
                 QStringList{QStringLiteral("Key: ") + reader(&picking).text(QAccessible::Description)});
    }

    void dragsAreAnnouncedOnce()
    {
        QWidget window;
        window.resize(100, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        ColorPickerButton button;
        button.setAccessibleName(QStringLiteral("Fill"));
        const AccessibleEars ears;
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, {10, 10});
        for (int red = 0; red < 256; red += 51) {
            button.setColor(QColor(red, 0, 0));
        }
        QCOMPARE(AccessibleEars::take(), QStringList());
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, {10, 10});
        QCoreApplication::processEvents();
        QCOMPARE(AccessibleEars::take(), QStringList{QStringLiteral("Fill: red, #ff0000")});
        button.setColor(QColor(Qt::black));
        QCOMPARE(AccessibleEars::take(), QStringList{QStringLiteral("Fill: black, #000000")});
    }

    // The release of a button over a window that has died comes to nobody.
    void dragThatNobodyEnds_data()
    {
        QTest::addColumn<End>("end");
        QTest::newRow("the window of the press has died") << End([](ColorPickerButton* button) {
            QGuiApplicationPrivate::mouse_buttons = Qt::NoButton;
            QEvent any(QEvent::User);
            QCoreApplication::sendEvent(button, &any);
            QCoreApplication::processEvents();
        });
        QTest::newRow("released beside all windows") << End([](ColorPickerButton* button) {
            QMouseEvent move(QEvent::MouseMove, {}, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(button, &move);
            QCoreApplication::processEvents();
        });
        QTest::newRow("another change before any event") << End([](ColorPickerButton* button) {
            button->setColor(QColor(Qt::blue));
            QGuiApplicationPrivate::mouse_buttons = Qt::NoButton;
            button->setColor(QColor(Qt::red));
        });
    }

    void dragThatNobodyEnds()
    {
        QFETCH(End, end);
        ColorPickerButton button;
        button.setAccessibleName(QStringLiteral("Fill"));
        const AccessibleEars ears;
        QGuiApplicationPrivate::mouse_buttons = Qt::LeftButton;
        const auto release = qScopeGuard([] { QGuiApplicationPrivate::mouse_buttons = Qt::NoButton; });
        button.setColor(QColor(Qt::red));
        QCoreApplication::processEvents();
        QCOMPARE(AccessibleEars::take(), QStringList());
        end(&button);
        QCOMPARE(AccessibleEars::take(), QStringList{QStringLiteral("Fill: red, #ff0000")});
    }

    void panelSpeaks()
    {
        m_record->value = QStringList{QStringLiteral("#123456")};
        ColorPickerWidget panel(nullptr, true);
        panel.setAccessibleName(QStringLiteral("Colour of the title"));
        panel.setCurrentColor(QColor(0xff, 0x5d, 0x00));
        QStringList lines = accessibleTree(reader(&panel));
        for (QString& line : lines) {
            line = line.trimmed();
        }
        QCOMPARE(lines.constFirst(), QStringLiteral("Grouping Colour of the title"));
        for (const char* expected :
             {"Graphic Current colour = orange, #ff5d00", "EditableText Colour value = #ff5d00",
              "Button Pick a colour from the screen", "Grouping Palette", "RadioButton no colour",
              "RadioButton orange, #ff5d00", "RadioButton white, #ffffff", "Button Choose another colour",
              "Grouping Own colours", "RadioButton very dark blue, #123456", "RadioButton Empty place",
              "Slider Opacity = 1", "SpinBox Opacity in percent = 100%"}) {
            QVERIFY2(lines.contains(QString::fromLatin1(expected)), expected);
        }
        QVERIFY(reader(paletteButton(panel, "#ff5d00")).state().checked);
        QVERIFY(!reader(paletteButton(panel, "#ff0000")).state().checked);
        QCOMPARE(description(partOf(&panel, "pipetteButton")),
                 QStringLiteral("Needs a mouse; without one, type the colour value"));

        const MarkingTranslator translator("ColorPickerWidget");
        QCOMPARE(spokenName(partOf(&panel, "pipetteButton")),
                 QStringLiteral("<Pick a colour from the screen>"));
    }

    void panelAnnouncesItsColor()
    {
        ColorPickerWidget panel(nullptr, false);
        const AccessibleEars ears;
        const auto changes = [] { return AccessibleEars::take().filter(QStringLiteral("Current colour:")); };
        const auto said = [](const char* color) {
            return QStringList{QStringLiteral("Current colour: ") + QLatin1String(color)};
        };
        panel.setCurrentColor(QColor(Qt::red));
        QCOMPARE(changes(), said("red, #ff0000"));
        paletteButton(panel, "#ff5d00")->click();
        QCOMPARE(changes(), said("orange, #ff5d00"));
        auto* const edit = panel.findChild<QLineEdit*>(QStringLiteral("currentColorValueEdit"));
        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("#0000ff"));
        QCOMPARE(changes(), said("blue, #0000ff"));
        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("#ffc000"));
        QCOMPARE(changes(), said("golden yellow, #ffc000"));
        partOf(&panel, "opacitySpinbox")->setProperty("value", 50);
        QCOMPARE(changes(), said("golden yellow, #ffc000, 50 %"));
        panel.setCurrentColor({});
        QCOMPARE(changes(), said("several colours"));
    }

    void labelLeadsToPanel()
    {
        QWidget window;
        auto* form = new QFormLayout(&window);
        auto* const other = new QLineEdit(&window);
        form->addRow(other);
        auto* const panel = new ColorPickerWidget(&window, false);
        form->addRow(QStringLiteral("&Fill:"), panel);
        window.show();
        QApplication::setActiveWindow(&window);
        other->setFocus();
        QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget(), partOf(panel, "currentColorValueEdit"));
        // Tab does not stop at the panel itself.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), other);
    }

    void valueEditHelps_data()
    {
        QTest::addColumn<std::optional<QColor>>("color");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("isPasted");
        QTest::addColumn<QString>("left");
        QTest::newRow("several") << std::optional<QColor>() << QStringLiteral("ff0000") << false
                                 << QStringLiteral("#ff0000");
        QTest::newRow("none") << std::optional<QColor>(QColor()) << QStringLiteral("00ff00") << false
                              << QStringLiteral("#00ff00");
        QTest::newRow("none, not a colour")
            << std::optional<QColor>(QColor()) << QStringLiteral("00f") << false << QStringLiteral("#null");
        QTest::newRow("several, nothing typed")
            << std::optional<QColor>() << QString() << false << QStringLiteral("#multiple");
        // Which are taken with the next edit only.
        QTest::newRow("several, digits pasted")
            << std::optional<QColor>() << QStringLiteral("ff0000") << true << QStringLiteral("#multiple");
        QTest::newRow("several, a colour pasted in upper case")
            << std::optional<QColor>() << QStringLiteral("#ABCDEF") << true << QStringLiteral("#abcdef");
    }

    // What is shown for no colour is not added to, and what is not the value does not stay.
    void valueEditHelps()
    {
        QFETCH(std::optional<QColor>, color);
        QFETCH(QString, typed);
        QFETCH(bool, isPasted);
        for (const Qt::FocusReason reason : {Qt::TabFocusReason, Qt::MouseFocusReason}) {
            ColorPickerWidget panel(nullptr, true);
            panel.setCurrentColor(color);
            panel.show();
            QApplication::setActiveWindow(&panel);
            auto* const edit = panel.findChild<QLineEdit*>(QStringLiteral("currentColorValueEdit"));
            partOf(&panel, "opacitySlider")->setFocus();
            if (reason == Qt::MouseFocusReason) {
                QTest::mouseClick(edit, Qt::LeftButton);
            } else {
                edit->setFocus(reason);
            }
            QCOMPARE(edit->selectedText(), edit->text());
            if (isPasted) {
                QGuiApplication::clipboard()->setText(typed);
                edit->paste();
            } else {
                QTest::keyClicks(edit, typed);
            }
            partOf(&panel, "opacitySlider")->setFocus();
            QTEST(edit->text(), "left");
        }
    }

    void paletteKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QString>("color");
        const auto row = [](const char* name, Qt::Key key, Qt::LayoutDirection direction, const char* color) {
            QTest::newRow(name) << int(key) << direction << QString::fromLatin1(color);
        };
        row("start of the row", Qt::Key_Home, Qt::LeftToRight, "#ff8484");
        row("end of the row", Qt::Key_End, Qt::LeftToRight, "#ff8cd3");
        row("from right to left", Qt::Key_Home, Qt::RightToLeft, "#ff8484");
        row("top of the column", Qt::Key_PageUp, Qt::LeftToRight, "#bfbfbf");
        row("bottom of the column", Qt::Key_PageDown, Qt::LeftToRight, "#493700");
    }

    void paletteKeys()
    {
        QFETCH(int, key);
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(QString, color);
        ColorPickerWidget panel(nullptr, false);
        panel.setLayoutDirection(direction);
        panel.show();
        QApplication::setActiveWindow(&panel);
        QToolButton* const start = paletteButton(panel, "#ffd85f");
        QToolButton* const end = paletteButton(panel, qPrintable(color));
        start->setFocus();
        QSignalSpy changes(&panel, &ColorPickerWidget::colorChanged);
        // Nothing is checked, and nothing becomes so on the way.
        QTest::keyClick(start, Qt::Key(key));
        QCOMPARE(QApplication::focusWidget(), end);
        QCOMPARE(changes.size(), 0);
        start->click();
        start->setFocus();
        changes.clear();
        QTest::keyClick(start, Qt::Key(key));
        QCOMPARE(panel.currentColor(), std::optional<QColor>(QColor(color)));
        QCOMPARE(changes.size(), 1);
    }

    void folderErrors_data()
    {
        QTest::addColumn<PathSelectionWidget::ErrorDisplayType>("type");
        QTest::newRow("tool tip") << PathSelectionWidget::Tooltip;
        QTest::newRow("label") << PathSelectionWidget::Label;
        QTest::newRow("nowhere") << PathSelectionWidget::ErrorDisplayType(0);
    }

    void folderErrors()
    {
        QFETCH(PathSelectionWidget::ErrorDisplayType, type);
        PathSelectionWidget field(nullptr);
        field.setAccessibleName(QStringLiteral("Export to"));
        field.setErrorDisplayType(type);
        field.setCheckPathFunc([](const QString&) { return QStringLiteral("Full & <b>locked</b>"); });
        field.setPath(QDir::tempPath());
        field.show();
        QAccessibleInterface& edit = reader(partOf(&field, "pathLineEdit"));
        QTRY_VERIFY(!edit.state().invalid);
        QSignalSpy changes(&field, &PathSelectionWidget::pathChanged);
        QTRY_COMPARE(changes.size(), 1);
        const AccessibleEars ears;
        QVERIFY(!field.checkPath());
        QVERIFY(edit.state().invalid);
        const QString message = type == PathSelectionWidget::ErrorDisplayType(0)
                                    ? QString()
                                    : QStringLiteral("Full & <b>locked</b>");
        QCOMPARE(edit.text(QAccessible::Description), message);
        const QStringList heard = AccessibleEars::take();
        QVERIFY(heard.contains(QStringLiteral("Export to: ") + message));
        QCOMPARE(heard.count(QStringLiteral("Export to!")), 1);
        QAccessibleInterface& label = reader(partOf(&field, "errorLabel"));
        QCOMPARE(label.role(), QAccessible::AlertMessage);
        const auto messages = edit.relations(QAccessible::Controlled);
        const auto edits = label.relations(QAccessible::Controller);
        QCOMPARE(messages.size(), type == PathSelectionWidget::Label ? 1 : 0);
        QCOMPARE(edits.size(), messages.size());
        if (type == PathSelectionWidget::Label) {
            QCOMPARE(messages.constFirst().first, &label);
            QCOMPARE(edits.constFirst().first, &edit);
        }
        // The key that hides a tool tip leaves the mark.
        partOf(&field, "pathLineEdit")->setToolTip(QString());
        QVERIFY(edit.state().invalid);
        field.setPath(QDir::homePath());
        QTRY_VERIFY(!edit.state().invalid);
        QCOMPARE(edit.text(QAccessible::Description), QString());
        QVERIFY(edit.relations(QAccessible::Controlled).isEmpty());
        QToolTip::hideText();
    }

    void paletteTips()
    {
        ColorPickerWidget panel(nullptr, false);
        panel.show();
        QToolButton* const button = paletteButton(panel, "#ff5d00");
        QHelpEvent event(QEvent::ToolTip, {2, 2}, button->mapToGlobal({2, 2}));
        QApplication::sendEvent(button, &event);
        QCOMPARE(QToolTip::text(), QStringLiteral("orange, #ff5d00"));
        QToolTip::hideText();
    }

    // The pop-up belongs to the window: fields share it.
    void colorPopupIsItsFields()
    {
        QWidget window;
        ColorInputWidget fill(&window, QColor(Qt::red));
        ColorInputWidget stroke(&window, QColor(Qt::blue));
        fill.setAccessibleName(QStringLiteral("Fill"));
        stroke.setAccessibleName(QStringLiteral("Stroke"));
        for (ColorInputWidget* field : {&fill, &stroke}) {
            field->setPicker(new PopupColorPicker);
        }
        window.show();
        const AccessibleEars ears;
        for (ColorInputWidget* field : {&fill, &stroke}) {
            auto* const button = qobject_cast<QAbstractButton*>(field->anchorWidget());
            AccessibleEars::take();
            button->click();
            QAccessibleInterface& popup = reader(QApplication::activePopupWidget());
            QCOMPARE(popup.role(), QAccessible::Dialog);
            QCOMPARE(popup.text(QAccessible::Name), field->accessibleName());
            QCOMPARE(popup.parent(), &reader(button));
            const int place = reader(button).childCount() - 1;
            QCOMPARE(reader(button).child(place), &popup);
            QCOMPARE(reader(button).indexOfChild(&popup), place);
            const QStringList heard = AccessibleEars::take();
            QVERIFY(heard.contains(field->accessibleName() + QStringLiteral("!")));
            QVERIFY(heard.contains(field->accessibleName() + (field == &fill
                                                                  ? QStringLiteral(": red, #ff0000")
                                                                  : QStringLiteral(": blue, #0000ff"))));
            QApplication::activePopupWidget()->close();
            QCOMPARE(reader(button).childCount(), place);
            QCoreApplication::processEvents();
        }
    }

    void buttonsCanBePressed()
    {
        ColorPickerWidget panel(nullptr, false);
        panel.show();
        QToolButton* const button = paletteButton(panel, "#ff5d00");
        QAccessibleActionInterface* const actions = reader(button).actionInterface();
        QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
        actions->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(panel.currentColor(), std::optional<QColor>(QColor(0xff, 0x5d, 0x00)));
        QSignalSpy requests(&panel, &ColorPickerWidget::pipetteRequested);
        reader(partOf(&panel, "pipetteButton"))
            .actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(requests.size(), 1);
    }

    void lineEditsCanBeRead()
    {
        SearchWidget field;
        auto* const edit = field.findChild<QLineEdit*>();
        QAccessibleInterface& interface = reader(edit);
        QVERIFY(interface.state().editable);
        QVERIFY(interface.state().searchEdit);
        QAccessibleTextInterface* const text = interface.textInterface();
        QAccessibleEditableTextInterface* const editable = interface.editableTextInterface();
        QVERIFY(text && editable);
        QSignalSpy changes(&field, &SearchWidget::textChanged);
        editable->insertText(0, QStringLiteral("red light"));
        QCOMPARE(field.text(), QStringLiteral("red light"));
        QCOMPARE(changes.size(), 1);
        editable->replaceText(0, 3, QStringLiteral("blue"));
        QCOMPARE(interface.text(QAccessible::Value), QStringLiteral("blue light"));
        editable->deleteText(4, 10);
        QCOMPARE(text->text(0, text->characterCount()), QStringLiteral("blue"));
        text->setSelection(0, 1, 3);
        int start = 0;
        int end = 0;
        text->selection(0, &start, &end);
        QCOMPARE(text->selectionCount(), 1);
        QCOMPARE(start, 1);
        QCOMPARE(end, 3);
        text->removeSelection(0);
        QCOMPARE(text->selectionCount(), 0);
        text->addSelection(0, 2);
        QCOMPARE(edit->selectedText(), QStringLiteral("bl"));
        text->setCursorPosition(2);
        QCOMPARE(text->cursorPosition(), 2);
        interface.setText(QAccessible::Value, QStringLiteral("green"));
        interface.setText(QAccessible::Name, QStringLiteral("Colour"));
        QCOMPARE(field.text(), QStringLiteral("green"));
        edit->setWhatsThis(QStringLiteral("Finds clips"));
        QCOMPARE(interface.text(QAccessible::Help), QStringLiteral("Finds clips"));
        field.show();
        const QRect second = text->characterRect(1);
        QVERIFY(second.left() > text->characterRect(0).left());
        QCOMPARE(text->offsetAtPoint(second.center() - QPoint(1, 0)), 1);
        QVERIFY(text->characterRect(5).isNull());
        // All of it looks the same.
        QCOMPARE(text->attributes(5, &start, &end), QString());
        QCOMPARE(start, 0);
        QCOMPARE(end, 5);
        text->attributes(6, &start, &end);
        QCOMPARE(start, -1);
        QCOMPARE(end, -1);
        edit->setReadOnly(true);
        QVERIFY(!interface.editableTextInterface());
        QVERIFY(interface.state().readOnly);
        // A client may have asked for it before.
        editable->insertText(0, QStringLiteral("dark "));
        interface.setText(QAccessible::Value, QStringLiteral("red"));
        edit->setReadOnly(false);
        edit->setEnabled(false);
        editable->deleteText(0, 5);
        QVERIFY(!interface.editableTextInterface());
        QCOMPARE(field.text(), QStringLiteral("green"));
    }

    void longTextsAreScrolled_data()
    {
        QTest::addColumn<int>("from");
        QTest::newRow("to the left") << 300;
        QTest::newRow("to the right") << 0;
    }

    void longTextsAreScrolled()
    {
        QFETCH(const int, from);
        SearchWidget field;
        auto* const edit = field.findChild<QLineEdit*>();
        edit->setText(QString(300, QLatin1Char('m')));
        field.resize(150, field.sizeHint().height());
        field.show();
        QAccessibleTextInterface* const text = reader(edit).textInterface();
        const auto isSeen = [edit, text](int offset) {
            edit->grab(); // it scrolls when it paints
            return edit->rect().contains(edit->mapFromGlobal(text->characterRect(offset).center()));
        };
        text->setCursorPosition(from);
        QVERIFY(!isSeen(100));
        text->scrollToSubstring(100, 103);
        for (const int offset : {100, 101, 102}) {
            QVERIFY(isSeen(offset));
        }
    }

    void spinBoxesCanBeRead()
    {
        DoubleSliderInputWidget field(nullptr, {0.0, 1.0, 2});
        QSignalSpy changes(&field, &DoubleSliderInputWidget::valueChanged);
        for (const char* part : {"slider", "spinbox"}) {
            QAccessibleInterface& interface = reader(partOf(&field, part));
            QAccessibleValueInterface* const value = interface.valueInterface();
            QVERIFY(value);
            QCOMPARE(value->minimumValue().toDouble(), 0.0);
            QCOMPARE(value->maximumValue().toDouble(), 1.0);
            QCOMPARE(value->minimumStepSize().toDouble(), 0.01);
            value->setCurrentValue(0.7);
            QCOMPARE(value->currentValue().toDouble(), 0.7);
            QVERIFY(!changes.isEmpty());
            QCOMPARE(changes.takeLast().constFirst().toDouble(), 0.7);
            changes.clear();
            value->setCurrentValue(0.2);
            changes.clear();
        }
        QAccessibleTextInterface* const text = reader(partOf(&field, "spinbox")).textInterface();
        QVERIFY(text);
        QCOMPARE(text->text(0, text->characterCount()), QStringLiteral("0.20"));
        auto* const box = field.findChild<QDoubleSpinBox*>();
        box->setReadOnly(true);
        reader(box).valueInterface()->setCurrentValue(0.9);
        QVERIFY(reader(box).state().readOnly);
        QVERIFY(!reader(box).state().editable);
        field.setEnabled(false);
        for (const char* part : {"slider", "spinbox"}) {
            QAccessibleInterface& interface = reader(partOf(&field, part));
            interface.valueInterface()->setCurrentValue(0.9);
            QVERIFY(interface.state().disabled);
            QCOMPARE(interface.valueInterface()->currentValue().toDouble(), 0.2);
        }
        QVERIFY(changes.isEmpty());
        SliderInputWidget whole(nullptr, {0, 10000000});
        QAccessibleInterface& slider = reader(partOf(&whole, "slider"));
        slider.valueInterface()->setCurrentValue(1234566.6);
        QCOMPARE(whole.value(), 1234567);
        QCOMPARE(slider.text(QAccessible::Value), QLocale().toString(1234567));
    }

    void planesAreTwoSliders()
    {
        PointSelectorWidget field(nullptr, {{-1.0, 0.0}, {1.0, 4.0}, 2, 2});
        field.setAccessibleName(QStringLiteral("Position"));
        field.setValue({0.25, 1.0});
        auto* const plane = field.findChild<PointSelectionPlane*>();
        plane->setFixedSize(101, 101);
        field.show();
        QCOMPARE(accessibleTree(reader(plane)), QStringList({QStringLiteral("Grouping Position"),
                                                             QStringLiteral("  Slider Position, x = 0.25"),
                                                             QStringLiteral("  Slider Position, y = 1")}));
        QCOMPARE(spokenName(partOf(&field, "xSpinbox")), QStringLiteral("Position, x"));

        QAccessibleInterface* const x = reader(plane).child(0);
        QCOMPARE(x->parent(), &reader(plane));
        QCOMPARE(reader(plane).indexOfChild(x), 0);
        QCOMPARE(reader(plane).indexOfChild(&reader(plane)), -1);
        QVERIFY(!reader(plane).child(2));
        // Both are all of the plane, which has the keyboard.
        QCOMPARE(x->rect(), QRect(plane->mapToGlobal({}), plane->size()));
        const QPoint middle = x->rect().center();
        QVERIFY(!reader(plane).childAt(middle.x(), middle.y()));
        QVERIFY(reader(plane).state().focusable);
        QVERIFY(!x->state().focusable);
        QVERIFY(!x->state().disabled);
        QVERIFY(x->isValid());
        // They have no parts, and a name that cannot be changed alone.
        QVERIFY(!x->child(0) && !x->childAt(middle.x(), middle.y()));
        QCOMPARE(x->indexOfChild(x), -1);
        x->setText(QAccessible::Name, QStringLiteral("Width"));
        QCOMPARE(x->text(QAccessible::Name), QStringLiteral("Position, x"));
        QCOMPARE(x->text(QAccessible::Description), QString());
        QAccessibleValueInterface* const value = x->valueInterface();
        QCOMPARE(value->minimumValue().toDouble(), -1.0);
        QCOMPARE(value->maximumValue().toDouble(), 1.0);
        QCOMPARE(value->minimumStepSize().toDouble(), 0.02);

        // As by a key: reported once, and announced once.
        QSignalSpy changes(plane, &PointSelectionPlane::pointChanged);
        const AccessibleEars ears;
        value->setCurrentValue(0.5);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(plane->point(), QPointF(0.5, 1.0));
        QCOMPARE(AccessibleEars::take().filter(QStringLiteral("Position, x")),
                 QStringList{QStringLiteral("Position, x: 0.5")});
        value->setCurrentValue(0.5);
        QCOMPARE(changes.size(), 1);
        value->setCurrentValue(7.0);
        QCOMPARE(plane->point(), QPointF(1.0, 1.0));
        plane->setEnabled(false);
        QVERIFY(x->state().disabled);
        value->setCurrentValue(0.0);
        QCOMPARE(plane->point(), QPointF(1.0, 1.0));
    }

    void planeKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<QStringList>("heard");
        const auto row = [](const char* name, Qt::Key key, Qt::KeyboardModifiers modifiers,
                            const QPointF& point, const char* heard) {
            QTest::newRow(name) << int(key) << modifiers << point << QStringList{QString::fromLatin1(heard)};
        };
        row("right", Qt::Key_Right, Qt::NoModifier, {51, 50}, "Light, x: 51");
        row("up", Qt::Key_Up, Qt::NoModifier, {50, 49}, "Light, y: 49");
        row("ten to the left", Qt::Key_Left, Qt::ShiftModifier, {40, 50}, "Light, x: 40");
        row("a page up", Qt::Key_PageUp, Qt::NoModifier, {50, 40}, "Light, y: 40");
        row("a page down", Qt::Key_PageDown, Qt::NoModifier, {50, 60}, "Light, y: 60");
        row("to the left edge", Qt::Key_Home, Qt::NoModifier, {0, 50}, "Light, x: 0");
        row("to the right edge", Qt::Key_End, Qt::NoModifier, {100, 50}, "Light, x: 100");
        row("to the top", Qt::Key_Home, Qt::ControlModifier, {50, 0}, "Light, y: 0");
        row("to the bottom", Qt::Key_End, Qt::ControlModifier, {50, 100}, "Light, y: 100");
    }

    void planeKeys()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        PointSelectionPlane plane(nullptr);
        plane.setAccessibleName(QStringLiteral("Light"));
        plane.resize(101, 101);
        plane.setLimits({0, 0, 100, 100});
        plane.setPoint({50, 50});
        plane.show();
        QSignalSpy changes(&plane, &PointSelectionPlane::pointChanged);
        const AccessibleEars ears;
        QTest::keyClick(&plane, Qt::Key(key), modifiers);
        QTEST(plane.point(), "point");
        QCOMPARE(changes.size(), 1);
        QTEST(AccessibleEars::take().filter(QStringLiteral("Light")), "heard");
    }

    void planeDragsAreAnnouncedOnce()
    {
        QWidget window;
        PointSelectorWidget field(&window, {{0.0, 0.0}, {1.0, 1.0}, 2, 2});
        field.setAccessibleName(QStringLiteral("Light"));
        auto* const plane = field.findChild<PointSelectionPlane*>();
        plane->setMinimumSize(101, 101);
        field.resize(field.sizeHint());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy changes(plane, &PointSelectionPlane::pointChanged);
        const AccessibleEars ears;
        const auto at = [&](int x, int y) { return plane->mapTo(&window, QPoint(x, y)); };
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, at(10, 10));
        QTest::mouseMove(window.windowHandle(), at(20, 30));
        QTest::mouseMove(window.windowHandle(), at(30, 40));
        QVERIFY(changes.size() >= 2);
        QCOMPARE(AccessibleEars::take(), QStringList());
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, at(50, 75));
        QCoreApplication::processEvents();
        const QStringList heard = AccessibleEars::take();
        QCOMPARE(heard, QStringList({QStringLiteral("Light, x: 0.5"), QStringLiteral("Light, y: 0.75")}));
        plane->setFocus();
        QTest::keyClick(plane, Qt::Key_Right);
        QCOMPARE(AccessibleEars::take(), QStringList{QStringLiteral("Light, x: 0.51")});
    }

    void colorPlaneIsTwoSliders()
    {
        ColorPickerWidget panel(nullptr, false);
        panel.setCurrentColor(QColor(Qt::red));
        panel.show();
        panel.findChild<QToolButton*>(QStringLiteral("addCustomColorButton"))->click();
        QWidget* const plane = partOf(&panel, "colorPlane");
        QVERIFY(plane);
        QCoreApplication::processEvents();
        QCOMPARE(accessibleTree(reader(plane)),
                 QStringList({QStringLiteral("Grouping Saturation and brightness"),
                              QStringLiteral("  Slider Saturation = 100"),
                              QStringLiteral("  Slider Brightness = 100")}));
        reader(plane).child(1)->valueInterface()->setCurrentValue(0);
        QCOMPARE(panel.currentColor(), std::optional<QColor>(QColor(Qt::black)));
        QCOMPARE(reader(plane).child(1)->valueInterface()->currentValue().toDouble(), 0.0);
        plane->window()->close();
    }

private:
    std::shared_ptr<Record> m_record;
};

UIC_TEST_MAIN(tst_AccessibleParts)
#include "tst_AccessibleParts.moc"
