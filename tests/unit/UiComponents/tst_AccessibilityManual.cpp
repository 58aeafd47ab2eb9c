#include "AccessibleEars.h"
#include "RecordingStore.h"
#include "TestMain.h"

#include <Settings/Settings.h>
#include <UiComponents/AbstractColorPicker.h>
#include <UiComponents/AdjustingListView.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/QuickDialog.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <UiComponents/WidgetColorPickerButton.h>

#include <functional>

using Make = std::function<QWidget*()>;
Q_DECLARE_METATYPE(Make)

namespace {

/// What the page says of a component: the second cell of its row.
QString cellOf(const QString& component)
{
    QFile page(QStringLiteral(UIC_ACCESSIBILITY_PAGE));
    if (!page.open(QIODevice::ReadOnly)) {
        return page.errorString();
    }
    const QStringList lines = QString::fromUtf8(page.readAll()).split(QLatin1Char('\n'));
    const QString start = QStringLiteral("| `%1` | ").arg(component);
    for (const QString& line : lines) {
        if (line.startsWith(start)) {
            return line.mid(start.size()).section(QStringLiteral(" | "), 0, 0);
        }
    }
    return QStringLiteral("no row");
}

/// The same of the running component. Layouts have no name, and of equal kinds of choices one will do.
QString found(QAccessibleInterface& root, int count)
{
    QStringList parts;
    QString lastChoice;
    const QStringList lines = accessibleTree(root);
    for (const QString& line : lines) {
        const QString part = line.trimmed();
        const QString role = part.section(QLatin1Char(' '), 0, 0);
        const bool isRepeated = role == QLatin1String("RadioButton") && lastChoice == role;
        lastChoice = role;
        if (part != role && !isRepeated && role != QLatin1String("StaticText")) {
            parts += part;
        }
    }
    return parts.mid(0, count).join(QStringLiteral("; "));
}

} // namespace

/**
 * docs/accessibility.md says what the components say.
 */
class tst_AccessibilityManual : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        auto record = std::make_shared<Record>();
        record->value = QStringList{QStringLiteral("#123456")};
        Settings::setStore(std::make_unique<RecordingStore>(record));
    }

    void cleanupTestCase() { Settings::setStore(nullptr); }

    void table_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<int>("count");
        const auto row = [](const char* component, const Make& make, int count = -1) {
            QTest::newRow(component) << make << count;
        };
        const auto orange = QColor(0xff, 0x80, 0x40, 128);
        row("ColorInputWidget", [orange] { return new ColorInputWidget(nullptr, orange); });
        row("ColorPickerButton", [orange] {
            auto* button = new ColorPickerButton;
            button->setColor(orange);
            return button;
        });
        row(
            "PopupColorPicker",
            [orange] {
                auto* button = new ColorPickerButton;
                button->setColor(orange);
                button->setPicker(new PopupColorPicker);
                button->show();
                button->click();
                return button;
            },
            2);
        row("ColorPickerWidget", [orange] {
            auto* panel = new ColorPickerWidget(nullptr, false);
            panel->setCurrentColor(orange);
            return panel;
        });
        row(
            "ColorBlendingComboBox", [] { return new ColorBlendingComboBox(nullptr); }, 1);
        row("WidgetColorPickerButton", [] {
            auto* button = new WidgetColorPickerButton;
            button->setColor(Qt::blue);
            return button;
        });
        row("SliderInputWidget", [] {
            auto* field = new SliderInputWidget(nullptr, {0, 100});
            field->setValue(40);
            return field;
        });
        row("DoubleSliderInputWidget", [] {
            auto* field = new DoubleSliderInputWidget(nullptr, {0.0, 1.0, 2});
            field->setValue(0.4);
            return field;
        });
        row("PointSelectionPlane", [] {
            auto* plane = new PointSelectionPlane(nullptr);
            plane->setLimits({0, 0, 1, 1});
            plane->setPoint({0.25, 0.5});
            return plane;
        });
        row("PointSelectorWidget", [] {
            auto* field = new PointSelectorWidget(nullptr, {{0, 0}, {1, 1}, 2, 2});
            field->setValue({0.25, 0.5});
            return field;
        });
        row("PathSelectionWidget", [] {
            auto* field = new PathSelectionWidget(nullptr);
            field->setPath(QStringLiteral("/tmp"));
            return field;
        });
        row("SearchWidget", [] { return new SearchWidget; });
        row(
            "AdjustingListView", [] { return new AdjustingListView(nullptr); }, 1);
        row("GuideButton", [] { return new GuideButton; });
        row("GuideWidget", [] { return new GuideWidget({QStringLiteral("Trim"), {}, {}, {}}, nullptr); });
        row("DialogGuideWidget", [] {
            auto* bubble = new DialogGuideWidget(nullptr);
            bubble->setInfo({QStringLiteral("Fill"), QStringLiteral("Drag"), QStringLiteral("Next"),
                             QStringLiteral("Back"), QString()});
            return bubble;
        });
        row("Qml::QuickDialog", [] { return new Qml::QuickDialog; });
    }

    void table()
    {
        QFETCH(Make, make);
        QFETCH(int, count);
        const std::unique_ptr<QWidget> component(make());
        component->setAccessibleName(QStringLiteral("Fill"));
        QCOMPARE(found(reader(component.get()), count), cellOf(QString::fromLatin1(QTest::currentDataTag())));
    }
};

UIC_TEST_MAIN(tst_AccessibilityManual)
#include "tst_AccessibilityManual.moc"
