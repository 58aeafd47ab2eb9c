#include "AccessibleEars.h"
#include "Part.h"
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
#include <WidgetToolkit/OvPixmapWidget.h>

#include <algorithm>
#include <functional>

namespace {

using Make = std::function<QWidget*()>;
using Works = std::function<bool(QWidget&)>;

struct Component
{
    Make make;
    /// Whether a key does what the page says.
    QMap<QString, Works> keys;
    /// How many parts the page names; all of them, if it is negative.
    int count = -1;
    /// Whether it is what the widget has opened.
    bool isPopup = false;
};

/// The rows of the page's table, without their marks: component, what is read, keys.
QVector<QStringList> rowsOfPage()
{
    QFile page(QStringLiteral(UIC_ACCESSIBILITY_PAGE));
    QVector<QStringList> rows;
    const QString text = page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1String("| `"))) {
            QStringList cells = line.mid(2, line.size() - 4).split(QStringLiteral(" | "));
            cells[0].remove(QLatin1Char('`'));
            rows.append(cells);
        }
    }
    return rows;
}

QString cellOf(const QString& component, int column)
{
    const auto rows = rowsOfPage();
    for (const QStringList& row : rows) {
        if (row.constFirst() == component) {
            return row.value(column);
        }
    }
    return QStringLiteral("no row");
}

/// The keys that a cell names.
QStringList keysIn(const QString& cell)
{
    static const QRegularExpression names(
        QStringLiteral("\\b(Space|Enter|Escape|Tab|arrows|Shift|Page Up|Page Down|Home|End|Control)\\b"));
    QStringList keys;
    for (auto found = names.globalMatch(cell); found.hasNext();) {
        const QString key = found.next().captured();
        if (!keys.contains(key)) {
            keys += key;
        }
    }
    keys.sort();
    return keys;
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

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

/// Whether each of @p pressed makes another value of what @p read returns.
template <typename Read>
bool changes(Read read, std::initializer_list<Qt::Key> pressed)
{
    return std::all_of(pressed.begin(), pressed.end(), [&read](Qt::Key key) {
        const auto before = read();
        press(key);
        return read() != before;
    });
}

/// For a widget that is given to it.
template <typename Widget, typename Signal>
Works emits(Signal signal, Qt::Key key, const char* part)
{
    return [=](QWidget& widget) {
        QSignalSpy spy(qobject_cast<Widget*>(&widget), signal);
        partOf(widget, part)->setFocus();
        press(key);
        return spy.size() == 1;
    };
}

QMap<QString, Works> keysOf(const Works& arrows, const std::function<Works(Qt::Key)>& other)
{
    return {{QStringLiteral("arrows"), arrows},
            {QStringLiteral("Page Up"), other(Qt::Key_PageUp)},
            {QStringLiteral("Page Down"), other(Qt::Key_PageDown)},
            {QStringLiteral("Home"), other(Qt::Key_Home)},
            {QStringLiteral("End"), other(Qt::Key_End)}};
}

/// The keys of the slider called @p name.
QMap<QString, Works> sliderKeys(const char* name)
{
    const auto moves = [name](std::initializer_list<Qt::Key> pressed) {
        const QVector<Qt::Key> all(pressed);
        return [name, all](QWidget& widget) {
            QWidget* const popup = QApplication::activePopupWidget();
            auto* const slider = partOf<QAbstractSlider>(popup ? *popup : widget, name);
            slider->setValue((slider->minimum() + slider->maximum()) / 2);
            slider->setFocus();
            return std::all_of(all.cbegin(), all.cend(), [slider](Qt::Key key) {
                return changes([slider] { return slider->value(); }, {key});
            });
        };
    };
    return keysOf(moves({Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}),
                  [moves](Qt::Key key) { return moves({key}); });
}

QMap<QString, Works> planeKeys()
{
    const auto moves = [](const QVector<Qt::Key>& all, Qt::KeyboardModifiers modifiers, double min) {
        return [=](QWidget& widget) {
            auto& plane = *qobject_cast<PointSelectionPlane*>(&widget);
            plane.resize(101, 101);
            plane.setFocus();
            return std::all_of(all.cbegin(), all.cend(), [&plane, modifiers, min](Qt::Key key) {
                const QPointF before = plane.point();
                press(key, modifiers);
                return (plane.point() - before).manhattanLength() >= min;
            });
        };
    };
    const QVector<Qt::Key> arrows{Qt::Key_Right, Qt::Key_Left, Qt::Key_Up, Qt::Key_Down};
    auto all = keysOf(moves(arrows, Qt::NoModifier, 0.0099),
                      [moves](Qt::Key key) { return moves({key}, Qt::NoModifier, 0.0099); });
    all.insert(QStringLiteral("Shift"), moves(arrows, Qt::ShiftModifier, 0.099));
    all.insert(QStringLiteral("Control"), [](QWidget& widget) {
        auto& plane = *qobject_cast<PointSelectionPlane*>(&widget);
        plane.setFocus();
        press(Qt::Key_Home, Qt::ControlModifier);
        const double top = plane.point().y();
        press(Qt::Key_End, Qt::ControlModifier);
        return top == 0.0 && plane.point() == QPointF(0.25, 1.0);
    });
    return all;
}

QMap<QString, Works> panelKeys()
{
    const auto moves = [](std::initializer_list<Qt::Key> pressed) {
        const QVector<Qt::Key> all(pressed);
        return [all](QWidget& widget) {
            // In the middle of the palette.
            const auto buttons = partOf(widget, "colorMatrixPanel")->findChildren<QToolButton*>();
            buttons.at(buttons.size() / 2 + 4)->setFocus();
            return std::all_of(all.cbegin(), all.cend(),
                               [](Qt::Key key) { return changes(QApplication::focusWidget, {key}); });
        };
    };
    auto all = keysOf(moves({Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}),
                      [moves](Qt::Key key) { return moves({key}); });
    all.insert(QStringLiteral("Tab"), moves({Qt::Key_Tab, Qt::Key_Tab}));
    return all;
}

/// A key that ends a pick in the panel of a colour field, after another colour.
Works endsWith(Qt::Key key, const QColor& color)
{
    return [key, color](QWidget& widget) {
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("#0000ff"));
        press(key);
        return !QApplication::activePopupWidget() &&
               qobject_cast<ColorPickerButton*>(&widget)->color() == std::optional<QColor>(color);
    };
}

/// Space on the button of a colour field, which picks.
bool picks(ColorPickerButton& button)
{
    button.setPicker(new PopupColorPicker);
    button.setFocus();
    press(Qt::Key_Space);
    QWidget* const popup = QApplication::activePopupWidget();
    const bool isOpen = popup != nullptr;
    if (isOpen) {
        popup->close();
    }
    return isOpen;
}

bool picksFromWidget(QWidget& widget)
{
    auto& button = *qobject_cast<WidgetColorPickerButton*>(&widget);
    button.setTargetWidget(&button);
    button.setFocus();
    QSignalSpy starts(&button, &WidgetColorPickerButton::pickingStarted);
    QSignalSpy ends(&button, &WidgetColorPickerButton::pickingFinished);
    // Any key ends it.
    QTimer::singleShot(0, &button, [&button] { QTest::keyClick(&button, Qt::Key_A); });
    press(Qt::Key_Space);
    return starts.size() == 1 && ends.size() == 1;
}

bool opensGuide(QWidget& widget)
{
    auto& button = *qobject_cast<GuideButton*>(&widget);
    button.setGuideInfo(
        std::make_unique<GuideInfo>(QStringLiteral("Trim"), QStringLiteral("Drag"), QString(), QString()));
    button.setFocus();
    press(Qt::Key_Space);
    return QApplication::activePopupWidget() != nullptr;
}

bool closesGuide(QWidget& widget)
{
    const bool isOpen = opensGuide(widget);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    return isOpen && !QApplication::activePopupWidget();
}

/// A guide with a picture and a link, by keyboard.
bool followsLink(QWidget& widget)
{
    auto& guide = *qobject_cast<GuideWidget*>(&widget);
    guide.setInfo({QStringLiteral("Trim"), QString(), QStringLiteral("<a href='manual:trim'>More</a>"), {}});
    QSignalSpy followed(&guide, &GuideWidget::learnMoreClicked);
    QWidget* const link = partOf(guide, "learnMoreLabel");
    for (int i = 0; i < 5 && QApplication::focusWidget() != link; ++i) {
        QTest::keyClick(&guide, Qt::Key_Tab);
    }
    QTest::keyClick(link, Qt::Key_Enter);
    return followed.size() == 1;
}

bool pausesPicture(QWidget& widget)
{
    auto& guide = *qobject_cast<GuideWidget*>(&widget);
    guide.setInfo({QStringLiteral("Trim"), {}, {}, QStringLiteral(UIC_TEST_DATA "/guide.gif")});
    auto* const picture = partOf<OvPixmapWidget>(guide, "gifPixmapWidget");
    picture->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    return picture->movie()->state() == QMovie::Paused;
}

QMap<QString, Component> components()
{
    const auto tab = QStringLiteral("Tab");
    const auto space = QStringLiteral("Space");
    const auto enter = QStringLiteral("Enter");
    const auto escape = QStringLiteral("Escape");
    const QColor orange(0xff, 0x80, 0x40, 128);
    QMap<QString, Component> all;
    const auto add = [&all](const char* name, const Component& component) {
        all.insert(QString::fromLatin1(name), component);
    };
    const auto makeButton = [orange] {
        auto* button = new ColorPickerButton;
        button->setColor(orange);
        return button;
    };
    add("ColorInputWidget",
        {[orange] { return new ColorInputWidget(nullptr, orange); },
         {{space, [](QWidget& widget) { return picks(*widget.findChild<ColorPickerButton*>()); }}}});
    add("ColorPickerButton",
        {makeButton,
         {{space, [](QWidget& widget) { return picks(*qobject_cast<ColorPickerButton*>(&widget)); }}}});
    add("PopupColorPicker", {[makeButton] {
                                 auto* button = makeButton();
                                 button->setPicker(new PopupColorPicker);
                                 button->show();
                                 QApplication::setActiveWindow(button);
                                 button->click();
                                 return button;
                             },
                             {{enter, endsWith(Qt::Key_Enter, QColor(0, 0, 0xff, orange.alpha()))},
                              {escape, endsWith(Qt::Key_Escape, orange)}},
                             1,
                             true});
    add("ColorPickerWidget", {[orange] {
                                  auto* panel = new ColorPickerWidget(nullptr, false);
                                  panel->setCurrentColor(orange);
                                  return panel;
                              },
                              panelKeys()});
    auto selectorKeys = sliderKeys("hueSlider");
    for (const Qt::Key key : {Qt::Key_Enter, Qt::Key_Escape}) {
        selectorKeys.insert(key == Qt::Key_Enter ? enter : escape, [key](QWidget&) {
            QTest::keyClick(QApplication::activePopupWidget(), key);
            return !QApplication::activePopupWidget();
        });
    }
    add("CustomColorSelectWidget", {[] {
                                        auto* panel = new ColorPickerWidget(nullptr, false);
                                        panel->setCurrentColor(QColor(Qt::red));
                                        panel->show();
                                        QApplication::setActiveWindow(panel);
                                        partOf<QToolButton>(panel, "addCustomColorButton")->click();
                                        QCoreApplication::processEvents();
                                        return panel;
                                    },
                                    selectorKeys, -1, true});
    add("ColorBlendingComboBox", {[] { return new ColorBlendingComboBox(nullptr); }, {}, 1});
    add("WidgetColorPickerButton", {[] {
                                        auto* button = new WidgetColorPickerButton;
                                        button->setColor(Qt::blue);
                                        return button;
                                    },
                                    {{space, picksFromWidget}}});
    add("SliderInputWidget", {[] {
                                  auto* field = new SliderInputWidget(nullptr, {0, 100});
                                  field->setValue(40);
                                  return field;
                              },
                              sliderKeys("slider")});
    add("DoubleSliderInputWidget", {[] {
                                        auto* field = new DoubleSliderInputWidget(nullptr, {0.0, 1.0, 2});
                                        field->setValue(0.4);
                                        return field;
                                    },
                                    sliderKeys("slider")});
    add("PointSelectionPlane", {[] {
                                    auto* plane = new PointSelectionPlane(nullptr);
                                    plane->setLimits({0, 0, 1, 1});
                                    plane->setPoint({0.25, 0.5});
                                    return plane;
                                },
                                planeKeys()});
    add("PointSelectorWidget", {[] {
                                    auto* field = new PointSelectorWidget(nullptr, {{0, 0}, {1, 1}, 2, 2});
                                    field->setValue({0.25, 0.5});
                                    return field;
                                },
                                {}});
    add("PathSelectionWidget", {[] {
                                    auto* field = new PathSelectionWidget(nullptr);
                                    field->setPath(QStringLiteral("/tmp"));
                                    return field;
                                },
                                {{tab, [](QWidget& widget) {
                                      widget.findChild<QLineEdit*>()->setFocus();
                                      return changes(QApplication::focusWidget, {Qt::Key_Tab});
                                  }}}});
    add("SearchWidget", {[] { return new SearchWidget; },
                         {{enter, [](QWidget& widget) {
                               widget.findChild<QLineEdit*>()->setText(QStringLiteral("blur"));
                               return emits<SearchWidget>(&SearchWidget::editingFinished, Qt::Key_Enter,
                                                          "searchLineEdit")(widget);
                           }}}});
    add("AdjustingListView", {[] { return new AdjustingListView(nullptr); }, {}, 1});
    add("GuideButton", {[] { return new GuideButton; }, {{space, opensGuide}, {escape, closesGuide}}});
    add("GuideWidget", {[] {
                            return new GuideWidget({QStringLiteral("Trim"), {}, {}, {}}, nullptr);
                        },
                        {{enter, followsLink}, {space, pausesPicture}}});
    add("DialogGuideWidget",
        {[] {
             auto* bubble = new DialogGuideWidget(nullptr);
             bubble->setInfo({QStringLiteral("Fill"), QStringLiteral("Drag"), QStringLiteral("Next"),
                              QStringLiteral("Back"), QString()});
             return bubble;
         },
         {{enter, emits<DialogGuideWidget>(&DialogGuideWidget::mainClicked, Qt::Key_Enter, "mainButton")},
          {escape,
           emits<DialogGuideWidget>(&DialogGuideWidget::closeClicked, Qt::Key_Escape, "mainButton")}}});
    add("Qml::QuickDialog", {[] { return new Qml::QuickDialog; }, {{escape, [](QWidget& widget) {
                                                                        QTest::keyClick(&widget,
                                                                                        Qt::Key_Escape);
                                                                        return !widget.isVisible();
                                                                    }}}});
    return all;
}

} // namespace

/**
 * docs/accessibility.md says what the components say.
 */
class tst_AccessibilityManual : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void openLink(const QUrl& url) { Q_UNUSED(url) }

private Q_SLOTS:
    void initTestCase()
    {
        QDesktopServices::setUrlHandler(QStringLiteral("manual"), this, "openLink");
        auto record = std::make_shared<Record>();
        record->value = QStringList{QStringLiteral("#123456")};
        Settings::setStore(std::make_unique<RecordingStore>(record));
    }

    void cleanupTestCase()
    {
        QDesktopServices::unsetUrlHandler(QStringLiteral("manual"));
        Settings::setStore(nullptr);
    }

    void table_data()
    {
        QTest::addColumn<QString>("component");
        const auto all = components();
        for (auto row = all.cbegin(); row != all.cend(); ++row) {
            QTest::newRow(qPrintable(row.key())) << row.key();
        }
    }

    void table()
    {
        QFETCH(QString, component);
        const Component row = components().value(component);
        const std::unique_ptr<QWidget> widget(row.make());
        widget->setAccessibleName(QStringLiteral("Fill"));
        QWidget* const root = row.isPopup ? QApplication::activePopupWidget() : widget.get();
        QVERIFY(root);
        QCOMPARE(found(reader(root), row.count), cellOf(component, 1));
    }

    // A row of the page for each component, and a test for each key that it names.
    void pageIsComplete()
    {
        QMap<QString, QStringList> tested;
        const auto all = components();
        for (auto row = all.cbegin(); row != all.cend(); ++row) {
            tested[row.key()] = row->keys.keys();
        }
        QMap<QString, QStringList> named;
        const auto rows = rowsOfPage();
        for (const QStringList& row : rows) {
            named[row.constFirst()] = keysIn(row.value(2));
        }
        QCOMPARE(named, tested);
    }

    void keys_data()
    {
        QTest::addColumn<QString>("component");
        QTest::addColumn<QString>("key");
        const auto all = components();
        for (auto row = all.cbegin(); row != all.cend(); ++row) {
            for (auto key = row->keys.cbegin(); key != row->keys.cend(); ++key) {
                QTest::addRow("%s, %s", qPrintable(row.key()), qPrintable(key.key()))
                    << row.key() << key.key();
            }
        }
    }

    void keys()
    {
        QFETCH(QString, component);
        QFETCH(QString, key);
        const Component row = components().value(component);
        const std::unique_ptr<QWidget> widget(row.make());
        if (!row.isPopup) {
            widget->show();
            QApplication::setActiveWindow(widget.get());
        }
        QVERIFY(row.keys.value(key)(*widget));
    }
};

UIC_TEST_MAIN(tst_AccessibilityManual)
#include "tst_AccessibilityManual.moc"
