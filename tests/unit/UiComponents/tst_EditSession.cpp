#include "AccessibleEars.h"
#include "FakeColorPicker.h"
#include "FreedMemory.h"
#include "MarkingTranslator.h"
#include "MouseEvents.h"
#include "TestMain.h"
#include "Wheel.h"

#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/EditCommand.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/EditSessionField.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <UiComponents/WidgetColorPickerButton.h>
#include <WidgetToolkit/OvDoubleSlider.h>

#include <functional>
#include <memory>

using Color = std::optional<QColor>;

/// A field, the parts of it that a user works with, two values, the first of its range, and the text of
/// another.
struct Kind
{
    const char* name;
    std::function<QWidget*(QWidget*)> make;
    const char* dragged; // class of the part, or null
    const char* keyed;
    const char* typed;
    QVariant start;
    QVariant other = {};
    QVariant first = {};
    QString text = {};
};

template <typename Field, typename... Init>
std::function<QWidget*(QWidget*)> maker(Init... init)
{
    return [init...](QWidget* parent) { return new Field(parent, init...); };
}

template <typename Field>
QWidget* makeRanged(QWidget* parent)
{
    auto* field = new Field(parent);
    field->setRange(0, 100);
    return field;
}

QWidget* makePlane(QWidget* parent)
{
    auto* plane = new PointSelectionPlane(parent);
    plane->setFixedSize(101, 101);
    plane->setLimits({0.0, 0.0, 100.0, 100.0});
    plane->setFocusPolicy(Qt::StrongFocus);
    return plane;
}

QWidget* makeSelector(QWidget* parent)
{
    auto* field = new PointSelectorWidget(parent, {{0.0, 0.0}, {10.0, 10.0}, 1, 1});
    // A pixel is less than a step of the boxes.
    field->findChild<PointSelectionPlane*>()->setFixedSize(188, 188);
    return field;
}

QWidget* makeCombo(QWidget* parent, bool isEditable)
{
    auto* box = new QComboBox(parent);
    box->addItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three"),
                   QStringLiteral("four"), QStringLiteral("five"), QStringLiteral("six")});
    box->setEditable(isEditable);
    box->setInsertPolicy(QComboBox::NoInsert);
    return box;
}

const QVector<Kind>& kinds()
{
    using Double = DoubleSliderInputWidget::Initializer;
    const auto slider = "QAbstractSlider";
    const auto spin = "QAbstractSpinBox";
    const auto edit = "QLineEdit";
    static const QVector<Kind> all = {
        {"SliderInputWidget", maker<SliderInputWidget>(SliderInputWidget::Initializer{0, 100}), slider,
         slider, spin, 50, 80, 0, "37"},
        {"DoubleSliderInputWidget", maker<DoubleSliderInputWidget>(Double{0.0, 1.0, 2}), slider, slider, spin,
         0.5, 0.8, 0.0, "0.37"},
        {"PointSelectionPlane", makePlane, "PointSelectionPlane", "PointSelectionPlane", nullptr,
         QPointF(50, 50), QPointF(80, 20), QPointF(0, 0)},
        {"PointSelectorWidget", makeSelector, "PointSelectionPlane", "PointSelectionPlane", spin,
         QPointF(5, 5), QPointF(8, 2), QPointF(0, 0), "3.7"},
        {"QSlider", makeRanged<QSlider>, slider, slider, nullptr, 50, 80, 0},
        {"OvDoubleSlider",
         [](QWidget* parent) {
             auto* field = new OvDoubleSlider(parent);
             field->setMultiplier(0.01);
             field->setRange(0, 100);
             return field;
         },
         slider, slider, nullptr, 0.5, 0.8, 0.0},
        {"QSpinBox", makeRanged<QSpinBox>, nullptr, spin, spin, 50, 80, 0, "37"},
        {"QDoubleSpinBox", makeRanged<QDoubleSpinBox>, nullptr, spin, spin, 50.0, 80.0, 0.0, "3.7"},
        {"QLineEdit", maker<QLineEdit>(), nullptr, nullptr, edit, "before", "other", "", "typed"},
        {"SearchWidget", maker<SearchWidget>(), nullptr, nullptr, edit, "before", "other", "", "typed"},
        {"PathSelectionWidget", maker<PathSelectionWidget>(), nullptr, nullptr, edit, "/before", "/other", "",
         "/typed"},
        {"QComboBox", [](QWidget* parent) { return makeCombo(parent, false); }, nullptr, "QComboBox", nullptr,
         2, 4, 0},
        {"editable QComboBox", [](QWidget* parent) { return makeCombo(parent, true); }, nullptr, "QComboBox",
         "QComboBox", "three", "five", "one", "typed"},
        {"ColorBlendingComboBox", maker<ColorBlendingComboBox>(), nullptr, "QComboBox", nullptr,
         int(BlendingMode::Multiply), int(BlendingMode::Screen), int(BlendingMode::SourceOver)},
    };
    return all;
}

template <typename Field, typename... Init>
Kind ofColor(const Color& start, Init... init)
{
    return {"colour", maker<Field>(init...), nullptr, nullptr, nullptr, QVariant::fromValue(start)};
}

/// A field in a window, with a session, and what the session has told.
class Stage
{
public:
    explicit Stage(const Kind& kind)
        : field(kind.make(&window))
        , session(new EditSession(field))
        , other(new QPushButton(&window))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(other);
        other->setFocusPolicy(Qt::StrongFocus);
        session->setValue(kind.start);
        dragged = part(kind.dragged);
        keyed = part(kind.keyed);
        typed = part(kind.typed);
        turned = qobject_cast<PointSelectionPlane*>(keyed) ? typed : keyed;
        listen();
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other->setFocus();
    }

    /// The story so far; each run of previews is one.
    QString story() const { return lines.join(QLatin1Char(' ')); }

    void pressKey(QWidget* on, int key, bool isRepeated = false) const
    {
        sendKey(on, QEvent::KeyPress, key, isRepeated);
    }
    void releaseKey(QWidget* on, int key, bool isRepeated = false) const
    {
        sendKey(on, QEvent::KeyRelease, key, isRepeated);
    }
    /// A key that makes the value another.
    int stepKey() const { return qobject_cast<QAbstractSlider*>(keyed) ? Qt::Key_Right : Qt::Key_Down; }
    int backKey() const { return backKey(keyed); }
    static int backKey(const QWidget* on)
    {
        return qobject_cast<const QAbstractSlider*>(on) ? Qt::Key_Left : Qt::Key_Up;
    }

    void type(const QString& text) const
    {
        typed->setFocus();
        editor()->selectAll();
        QTest::keyClicks(typed, text);
    }
    QLineEdit* editor() const
    {
        auto* edit = qobject_cast<QLineEdit*>(typed.data());
        return edit ? edit : typed->findChild<QLineEdit*>();
    }
    void write(const QVariant& value) const { EditSessionField::of(field).write(value); }

    QWidget window;
    QPointer<QWidget> field;
    QPointer<EditSession> session;
    QPushButton* const other;
    QPointer<QWidget> dragged;
    QPointer<QWidget> keyed;
    QPointer<QWidget> typed;
    QPointer<QWidget> turned; // by the wheel
    QStringList lines;
    QVariant previewed;
    QVariant committed;

private:
    QWidget* part(const char* name) const
    {
        if (!name || field->inherits(name)) {
            return name ? field.data() : nullptr;
        }
        const auto parts = field->findChildren<QWidget*>();
        for (QWidget* candidate : parts) {
            if (candidate->inherits(name)) {
                return candidate;
            }
        }
        return nullptr;
    }

    void listen()
    {
        QObject::connect(session, &EditSession::started, &window, [this] { lines += "started"; });
        QObject::connect(session, &EditSession::previewed, &window, [this](const QVariant& value) {
            QVERIFY2(!EditSessionField::isSame(value, previewed), "the same again");
            previewed = value;
            if (lines.constLast() != "previewed") {
                lines += "previewed";
            }
            QVERIFY(session->isActive());
        });
        QObject::connect(session, &EditSession::committed, &window, [this](const QVariant& value) {
            lines += "committed";
            committed = value;
            QVERIFY(EditSessionField::isSame(value, session->value()));
            QVERIFY(EditSessionField::isSame(value, previewed));
            QVERIFY(!session->isActive());
            previewed.clear();
        });
        QObject::connect(session, &EditSession::cancelled, &window, [this] {
            lines += "cancelled";
            QVERIFY(EditSessionField::isSame(session->startValue(), session->value()));
            previewed.clear();
        });
    }

    static void sendKey(QWidget* on, QEvent::Type type, int key, bool isRepeated)
    {
        if (type == QEvent::KeyPress) {
            QKeyEvent shortcut(QEvent::ShortcutOverride, key, Qt::NoModifier, {}, isRepeated);
            QCoreApplication::sendEvent(on, &shortcut);
        }
        QKeyEvent event(type, key, Qt::NoModifier, {}, isRepeated);
        QCoreApplication::sendEvent(on, &event);
    }
};

/// As those that a nested event loop ends.
class LatePicker : public FakeColorPicker
{
public:
    void stop() override {}
};

/// Makes its session itself, and is derived from again.
class FieldWithASession : public SliderInputWidget
{
    Q_OBJECT

public:
    FieldWithASession()
        : SliderInputWidget(nullptr)
    {
    }
    EditSession* const session = new EditSession(this);
};

class DerivedField : public FieldWithASession
{
    Q_OBJECT
};

ColorPickerButton* buttonOf(const Stage& stage)
{
    return qobject_cast<ColorPickerButton*>(stage.field);
}

using Act = std::function<void(Stage&, const Kind&)>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(std::function<void(FakeColorPicker&)>)
Q_DECLARE_METATYPE(std::function<void(QWidget*)>)
Q_DECLARE_METATYPE(std::function<void(QSpinBox&)>)
Q_DECLARE_METATYPE(QAbstractSpinBox::CorrectionMode)
Q_DECLARE_METATYPE(std::function<void(WidgetColorPickerButton*)>)

enum class Needs { Nothing, Drag, Keys, Wheel, Text };

struct Story
{
    const char* name;
    Needs needs;
    const char* expected;
    Act act;
};

void dragOn(Stage& stage)
{
    QWidget& part = *stage.dragged;
    part.setFocus();
    const QPoint middle = part.rect().center();
    press(part, middle);
    for (int i = 1; i <= 10; ++i) {
        drag(part, middle + QPoint(3 * i, 0));
    }
}

void dropAt(Stage& stage, int distance)
{
    release(*stage.dragged, stage.dragged->rect().center() + QPoint(distance, 0));
}

void turnOn(Stage& stage)
{
    stage.turned->setFocus();
    for (int i = 0; i < 3; ++i) {
        turnWheel(*stage.turned, -120);
    }
}

void leave(QWidget* part)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(part, &event);
}

void hold(Stage& stage, int key)
{
    stage.keyed->setFocus();
    stage.pressKey(stage.keyed, key);
    stage.releaseKey(stage.keyed, key, true);
    stage.pressKey(stage.keyed, key, true);
}

/// Where a slider or a plane that is at the first of its values is taken hold of.
QPoint markerOf(const QWidget* part)
{
    const auto* const slider = qobject_cast<const QSlider*>(part);
    if (!slider) {
        return {};
    }
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.maximum = slider->maximum();
    option.upsideDown = slider->orientation() == Qt::Vertical;
    return slider->style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
        .center();
}

void pressKeyAtEnd(Stage& stage, const Kind&)
{
    const bool isList = qobject_cast<QComboBox*>(stage.turned);
    const int key = qobject_cast<QLineEdit*>(stage.turned)          ? Qt::Key_Delete
                    : qobject_cast<QAbstractSpinBox*>(stage.turned) ? Qt::Key_Down
                    : isList                                        ? Qt::Key_Up
                                                                    : Qt::Key_Left;
    stage.turned->setFocus();
    stage.pressKey(stage.turned, key);
    // At once.
    QVERIFY(stage.session->isActive());
    stage.releaseKey(stage.turned, key);
    stage.other->setFocus();
}

void turnWheelAtEnd(Stage& stage, const Kind&)
{
    stage.turned->setFocus();
    turnWheel(*stage.turned, qobject_cast<QComboBox*>(stage.turned) ? 120 : -120);
    QVERIFY(stage.session->isActive());
    leave(stage.turned);
}

const QVector<Story>& stories()
{
    const auto once = "started previewed committed";
    const auto twice = "started previewed committed started previewed committed";
    const auto nothing = "";
    const auto cancelled = "started previewed cancelled";
    const auto refresh = [](Stage& s, const Kind& k) {
        const EditSession::Refresh guard(&s.window);
        s.write(k.other);
    };
    static const QVector<Story> all = {
        {"drag", Needs::Drag, once,
         [](Stage& s, const Kind&) {
             dragOn(s);
             dropAt(s, 30);
         }},
        {"drag that is let go elsewhere", Needs::Drag, once,
         [](Stage& s, const Kind&) {
             dragOn(s);
             dropAt(s, 40);
         }},
        {"drag, Escape", Needs::Drag, cancelled,
         [](Stage& s, const Kind& k) {
             dragOn(s);
             s.pressKey(s.dragged, Qt::Key_Escape);
             QVERIFY(EditSessionField::isSame(s.session->value(), k.start));
             // The mouse is still down, but moves nothing.
             drag(*s.dragged, QPoint(5, 5));
             dropAt(s, -20);
         }},
        {"drag, host change", Needs::Drag, twice,
         [refresh](Stage& s, const Kind& k) {
             dragOn(s);
             refresh(s, k);
             drag(*s.dragged, QPoint(10, 10));
             dropAt(s, 20);
         }},
        {"drag, hidden", Needs::Drag, once,
         [](Stage& s, const Kind&) {
             dragOn(s);
             s.field->hide();
         }},
        {"drag, disabled", Needs::Drag, once,
         [](Stage& s, const Kind&) {
             dragOn(s);
             s.field->setEnabled(false);
         }},
        {"drag, deleted", Needs::Drag, "started previewed",
         [](Stage& s, const Kind&) {
             dragOn(s);
             delete s.field;
         }},
        {"held key", Needs::Keys, once,
         [](Stage& s, const Kind&) {
             hold(s, s.stepKey());
             QVERIFY(s.session->isActive());
             s.releaseKey(s.keyed, s.stepKey());
         }},
        {"key there, key back", Needs::Keys, twice,
         [](Stage& s, const Kind&) {
             s.keyed->setFocus();
             for (const int key : {s.stepKey(), s.backKey()}) {
                 s.pressKey(s.keyed, key);
                 s.releaseKey(s.keyed, key);
             }
         }},
        {"keys that overlap, back where it began", Needs::Keys, cancelled,
         [](Stage& s, const Kind&) {
             s.keyed->setFocus();
             s.pressKey(s.keyed, s.stepKey());
             s.pressKey(s.keyed, s.backKey());
             s.releaseKey(s.keyed, s.stepKey());
             s.releaseKey(s.keyed, s.backKey());
         }},
        {"held key, Escape", Needs::Keys, cancelled,
         [](Stage& s, const Kind& k) {
             hold(s, s.stepKey());
             s.pressKey(s.keyed, Qt::Key_Escape);
             QVERIFY(EditSessionField::isSame(s.session->value(), k.start));
         }},
        {"held key, focus loss", Needs::Keys, once,
         [](Stage& s, const Kind&) {
             hold(s, s.stepKey());
             s.other->setFocus();
         }},
        {"held key, deleted", Needs::Keys, "started previewed",
         [](Stage& s, const Kind&) {
             hold(s, s.stepKey());
             delete s.field;
         }},
        {"key without effect", Needs::Keys, nothing,
         [](Stage& s, const Kind&) {
             s.keyed->setFocus();
             s.pressKey(s.keyed, Qt::Key_F5);
             s.releaseKey(s.keyed, Qt::Key_F5);
         }},
        {"a host without a word", Needs::Keys, once, [](Stage& s, const Kind& k) { s.write(k.other); }},
        {"a part that is set while another has the focus", Needs::Wheel, once,
         [](Stage& s, const Kind&) {
             s.field->setFocus();
             if (auto* box = qobject_cast<QAbstractSpinBox*>(s.turned)) {
                 box->stepDown();
             } else {
                 s.pressKey(s.turned, s.stepKey());
                 s.releaseKey(s.turned, s.stepKey());
             }
         }},
        {"wheel, cursor leaves", Needs::Wheel, once,
         [](Stage& s, const Kind&) {
             turnOn(s);
             leave(s.turned);
         }},
        {"wheel, focus loss", Needs::Wheel, once,
         [](Stage& s, const Kind&) {
             turnOn(s);
             s.other->setFocus();
         }},
        {"wheel, then a key", Needs::Wheel, twice,
         [](Stage& s, const Kind&) {
             turnOn(s);
             s.pressKey(s.turned, s.backKey(s.turned));
             s.releaseKey(s.turned, s.backKey(s.turned));
         }},
        {"wheel, then a shortcut", Needs::Wheel, once,
         [](Stage& s, const Kind&) {
             turnOn(s);
             QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
             QCoreApplication::sendEvent(s.turned, &shortcut);
         }},
        {"wheel, then another button", Needs::Wheel, once,
         [](Stage& s, const Kind&) {
             turnOn(s);
             press(*s.turned, s.turned->rect().center(), Qt::RightButton);
         }},
        {"fingers leave the touchpad", Needs::Wheel, once,
         [](Stage& s, const Kind&) {
             turnOn(s);
             QWheelEvent end({}, {}, {}, {}, Qt::NoButton, Qt::NoModifier, Qt::ScrollEnd, false);
             QCoreApplication::sendEvent(s.turned, &end);
         }},
        {"wheel, Escape", Needs::Wheel, cancelled,
         [](Stage& s, const Kind& k) {
             turnOn(s);
             s.pressKey(s.turned, Qt::Key_Escape);
             QVERIFY(EditSessionField::isSame(s.session->value(), k.start));
         }},
        {"wheel, hidden", Needs::Wheel, once,
         [](Stage& s, const Kind&) {
             turnOn(s);
             s.field->hide();
         }},
        {"text, Enter", Needs::Text, once,
         [](Stage& s, const Kind& k) {
             s.type(k.text);
             QVERIFY(s.session->isActive());
             QTest::keyClick(s.typed, Qt::Key_Return);
         }},
        {"text, focus loss", Needs::Text, once,
         [](Stage& s, const Kind& k) {
             s.type(k.text);
             s.other->setFocus();
         }},
        {"text, pop-up, Enter", Needs::Text, once,
         [](Stage& s, const Kind& k) {
             s.type(k.text);
             QFocusEvent popup(QEvent::FocusOut, Qt::PopupFocusReason);
             QCoreApplication::sendEvent(s.typed, &popup);
             QVERIFY(s.session->isActive());
             QTest::keyClick(s.typed, Qt::Key_Return);
         }},
        {"text, Escape", Needs::Text, cancelled,
         [](Stage& s, const Kind& k) {
             s.type(k.text);
             s.pressKey(s.typed, Qt::Key_Escape);
             QVERIFY(EditSessionField::isSame(s.session->value(), k.start));
         }},
        {"text, hidden", Needs::Text, once,
         [](Stage& s, const Kind& k) {
             s.type(k.text);
             s.field->hide();
         }},
        {"text, disabled", Needs::Text, once,
         [](Stage& s, const Kind& k) {
             s.type(k.text);
             s.field->setEnabled(false);
         }},
        {"text, host change", Needs::Text, once,
         [refresh](Stage& s, const Kind& k) {
             s.type(k.text);
             refresh(s, k);
             s.other->setFocus();
         }},
        {"text, deleted", Needs::Text, "started previewed",
         [](Stage& s, const Kind& k) {
             s.type(k.text);
             delete s.field;
         }},
        {"text there and back", Needs::Text, cancelled,
         [](Stage& s, const Kind& k) {
             const QString before = s.editor()->text();
             s.type(k.text);
             s.type(before);
             QTest::keyClick(s.typed, Qt::Key_Return);
         }},
        {"paste, Enter", Needs::Text, once,
         [](Stage& s, const Kind& k) {
             QGuiApplication::clipboard()->setText(k.text);
             s.typed->setFocus();
             s.editor()->selectAll();
             QTest::keyClick(s.typed, Qt::Key_V, Qt::ControlModifier);
             QTest::keyClick(s.typed, Qt::Key_Return);
         }},
        {"paste from the menu", Needs::Text, once,
         [](Stage& s, const Kind& k) {
             QGuiApplication::clipboard()->setText(k.text);
             s.typed->setFocus();
             s.editor()->selectAll();
             s.editor()->paste();
         }},
        {"tab through", Needs::Nothing, nothing,
         [](Stage& s, const Kind&) {
             s.other->setFocus();
             for (int i = 0; i < 6; ++i) {
                 QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
             }
         }},
        {"a host that sets it", Needs::Nothing, nothing,
         [](Stage& s, const Kind& k) { s.session->setValue(k.other); }},
        {"a host that refreshes", Needs::Nothing, nothing, refresh},
        {"a host in silence, then a refresh", Needs::Nothing, nothing,
         [refresh](Stage& s, const Kind& k) {
             const QSignalBlocker blocker(s.field);
             refresh(s, k);
         }},
        {"hidden", Needs::Nothing, nothing, [](Stage& s, const Kind&) { s.field->hide(); }},
        {"deleted", Needs::Nothing, nothing, [](Stage& s, const Kind&) { delete s.field; }},
    };
    return all;
}

QString expectedOf(const Kind& kind, const Story& story)
{
    if (story.name == QByteArray("a host without a word")) {
        // A plane reports nothing that is set, and a selector one coordinate after the other.
        if (kind.name == QByteArray("PointSelectionPlane")) {
            return {};
        }
        if (kind.name == QByteArray("PointSelectorWidget")) {
            return QStringLiteral("started previewed committed started previewed committed");
        }
    }
    return QString::fromLatin1(story.expected);
}

class tst_EditSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void story_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("told");
        QTest::addColumn<QString>("expected");
        for (int kind = 0; kind < kinds().size(); ++kind) {
            for (int i = 0; i < stories().size(); ++i) {
                const Kind& k = kinds().at(kind);
                const Story& s = stories().at(i);
                const bool isPlaneAlone = k.name == QByteArray("PointSelectionPlane");
                const bool isPossible = s.needs == Needs::Nothing || (s.needs == Needs::Drag && k.dragged) ||
                                        (s.needs == Needs::Keys && k.keyed) ||
                                        (s.needs == Needs::Wheel && k.keyed && !isPlaneAlone) ||
                                        (s.needs == Needs::Text && k.typed);
                if (isPossible) {
                    QTest::addRow("%s: %s", k.name, s.name) << kind << i << expectedOf(k, s);
                }
            }
        }
    }

    void story()
    {
        QFETCH(int, kind);
        QFETCH(int, told);
        QFETCH(QString, expected);
        const Kind& k = kinds().at(kind);
        const Story& s = stories().at(told);
        Stage stage(k);
        QVERIFY(EditSessionField::isSame(stage.session->value(), k.start));
        s.act(stage, k);
        QCOMPARE(stage.story(), expected);
        if (stage.session) {
            QVERIFY(!stage.session->isActive());
            // Late reports, as a folder field's, tell no other.
            QTest::qWait(k.name == QByteArray("PathSelectionWidget") ? 150 : 0);
            QCOMPARE(stage.story(), expected);
        }
    }

    void colorPick_data()
    {
        using Pick = std::function<void(FakeColorPicker&)>;
        QTest::addColumn<Pick>("pick");
        QTest::addColumn<Color>("start");
        QTest::addColumn<Color>("result");
        QTest::addColumn<QString>("expected");
        const Color red{QColor(Qt::red)};
        const Color blue{QColor(Qt::blue)};
        const QString once("started previewed committed");
        const QString cancelled("started previewed cancelled");
        const Pick previews = [blue](FakeColorPicker& picker) {
            picker.preview(QColor(Qt::green));
            picker.preview(blue);
            picker.finish(blue);
        };
        const Pick takenBack = [red](FakeColorPicker& picker) {
            picker.preview(QColor(Qt::green));
            picker.finish(red);
        };
        QTest::newRow("previews") << previews << red << blue << once;
        QTest::newRow("without a preview")
            << Pick([blue](FakeColorPicker& picker) { picker.finish(blue); }) << red << blue << once;
        QTest::newRow("another end than the last preview") << Pick([blue](FakeColorPicker& picker) {
            picker.preview(QColor(Qt::green));
            picker.finish(blue);
        }) << red << blue << once;
        QTest::newRow("nothing chosen")
            << Pick([red](FakeColorPicker& picker) { picker.finish(red); }) << red << red << QString();
        QTest::newRow("taken back") << takenBack << red << red << cancelled;
        QTest::newRow("several, taken back") << Pick([](FakeColorPicker& picker) {
            picker.preview(QColor(Qt::green));
            picker.finish({});
        }) << Color() << Color() << cancelled;
        QTest::newRow("several to one") << previews << Color() << blue << once;
        QTest::newRow("no colour") << Pick([](FakeColorPicker& picker) { picker.finish(QColor()); }) << red
                                   << Color(QColor()) << once;
        QTest::newRow("hidden") << Pick([](FakeColorPicker& picker) {
            picker.preview(QColor(Qt::blue));
            qobject_cast<QWidget*>(picker.parent())->hide();
        }) << red << blue << once;
        QTest::newRow("disabled") << Pick([](FakeColorPicker& picker) {
            picker.preview(QColor(Qt::green));
            qobject_cast<QWidget*>(picker.parent())->setEnabled(false);
            picker.finish(QColor(Qt::blue));
        }) << red << blue << once;
        QTest::newRow("the host's value, then more previews") << Pick([](FakeColorPicker& picker) {
            picker.preview(QColor(Qt::green));
            const auto* const field = qobject_cast<QWidget*>(picker.parent())->parentWidget();
            field->findChild<EditSession*>()->setValue(QVariant::fromValue(Color(QColor(Qt::yellow))));
            picker.preview(QColor(Qt::cyan));
            picker.finish(QColor(Qt::blue));
        }) << red << blue << QString("started previewed committed started previewed committed");
        QTest::newRow("its end while the host shows its document") << Pick([](FakeColorPicker& picker) {
            const EditSession::Refresh refresh(qobject_cast<QWidget*>(picker.parent())->window());
            picker.finish(QColor(Qt::blue));
        }) << red << blue << QString();
        QTest::newRow("no end is told") << Pick([](FakeColorPicker& picker) {
            picker.preview(QColor(Qt::green));
            picker.finishInSilence();
            picker.preview(QColor(Qt::blue));
        }) << red << blue << once;
    }

    void colorPick()
    {
        using Pick = std::function<void(FakeColorPicker&)>;
        QFETCH(Pick, pick);
        QFETCH(Color, start);
        QFETCH(Color, result);
        QFETCH(QString, expected);
        Stage stage(ofColor<ColorInputWidget>(start, QColor(Qt::white)));
        auto* const button = stage.field->findChild<ColorPickerButton*>();
        auto* const picker = new FakeColorPicker;
        button->setPicker(picker);
        // A host's own look, which keeps still.
        picker->onSetColor = [](const Color&) {};
        button->startPicking();
        pick(*picker);
        QCOMPARE(stage.story(), expected);
        QCOMPARE(button->color(), result);
        if (expected.endsWith("committed")) {
            QCOMPARE(stage.committed.value<Color>(), result);
        }
    }

    void cancelledPick_data()
    {
        QTest::addColumn<Act>("pick");
        QTest::addColumn<Color>("start");
        QTest::addColumn<QString>("expected");
        const QString cancelled("started previewed cancelled");
        const auto add = [](const char* name, const Color& start, const QString& expected, const Act& pick) {
            QTest::newRow(name) << pick << start << expected;
        };
        const auto fake = [](const Stage& s) {
            auto* const picker = new FakeColorPicker;
            buttonOf(s)->setPicker(picker);
            buttonOf(s)->startPicking();
            return picker;
        };
        const auto choose = [](const Stage& s) {
            auto* const popup = new PopupColorPicker;
            buttonOf(s)->setPicker(popup);
            buttonOf(s)->startPicking();
            popup->panel()->findChildren<QToolButton*>().constFirst()->click();
            Q_EMIT popup->panel()->colorChanged(Qt::green);
        };
        for (const Color& start : {Color(QColor(Qt::red)), Color(), Color(QColor())}) {
            const char* const from = !start ? "several colours" : start->isValid() ? "red" : "no colour";
            add(qPrintable(QStringLiteral("panel, from ") + from), start, cancelled,
                [choose](Stage& s, const Kind&) {
                    choose(s);
                    s.session->cancel();
                });
            add(qPrintable(QStringLiteral("pipette of the panel, from ") + from), start, cancelled,
                [choose](Stage& s, const Kind&) {
                    FakeColorPicker pipette;
                    choose(s);
                    auto* const popup = qobject_cast<PopupColorPicker*>(buttonOf(s)->picker());
                    popup->setPipette(&pipette);
                    Q_EMIT popup->panel()->pipetteRequested();
                    QVERIFY(pipette.isInProgress());
                    pipette.preview(QColor(Qt::blue));
                    s.session->cancel();
                    QVERIFY(!pipette.isInProgress());
                });
            add(qPrintable(QStringLiteral("a slot of a preview, from ") + from), start, cancelled,
                [fake](Stage& s, const Kind&) {
                    connect(s.session, &EditSession::previewed, s.session, &EditSession::cancel);
                    fake(s)->preview(QColor(Qt::green));
                });
            add(qPrintable(QStringLiteral("a slot of the end, from ") + from), start, cancelled,
                [fake](Stage& s, const Kind&) {
                    connect(s.session, &EditSession::started, s.session, &EditSession::cancel);
                    fake(s)->finish(QColor(Qt::green));
                });
        }
        add("nothing chosen yet", QColor(Qt::red), {}, [fake](Stage& s, const Kind&) {
            fake(s);
            s.session->cancel();
        });
        add("a picker that ends later", QColor(Qt::red), cancelled, [](Stage& s, const Kind&) {
            auto* const picker = new LatePicker;
            buttonOf(s)->setPicker(picker);
            buttonOf(s)->startPicking();
            picker->preview(QColor(Qt::green));
            s.session->cancel();
            picker->finish(QColor(Qt::blue));
        });
    }

    void cancelledPick()
    {
        QFETCH(Act, pick);
        QFETCH(Color, start);
        QFETCH(QString, expected);
        const Kind kind = ofColor<ColorPickerButton>(start);
        Stage stage(kind);
        pick(stage, kind);
        QVERIFY(!buttonOf(stage)->isPickingInProgress());
        QCOMPARE(stage.story(), expected);
        QVERIFY(buttonOf(stage)->color() == start);
        // What the host sets afterwards stays.
        stage.session->setValue(QVariant::fromValue(Color(QColor(Qt::green))));
        QVERIFY(buttonOf(stage)->color() == Color(QColor(Qt::green)));
    }

    void colorPickWithThePanel()
    {
        Stage stage(ofColor<ColorPickerButton>(Color()));
        auto* const button = qobject_cast<ColorPickerButton*>(stage.field);
        button->setPicker(new PopupColorPicker);
        for (const int key : {Qt::Key_Escape, Qt::Key_Return}) {
            stage.lines.clear();
            button->startPicking();
            auto* const popup = stage.window.findChild<QWidget*>("colorPanelPopup");
            auto* const edit = popup->findChild<QLineEdit*>();
            edit->selectAll();
            QTest::keyClicks(edit, "#123456");
            QTest::keyClick(edit, Qt::Key_Home);
            QVERIFY(stage.session->isActive());
            QTest::keyClick(edit, Qt::Key(key));
            QTRY_VERIFY(!button->isPickingInProgress());
            QCOMPARE(stage.story(), QString(key == Qt::Key_Escape ? "started previewed cancelled"
                                                                  : "started previewed committed"));
            QCOMPARE(button->color(), key == Qt::Key_Escape ? Color() : Color(QColor(0x12, 0x34, 0x56)));
        }
    }

    // The colour of a picked widget is that of another selection, also when the button wears it already.
    void widgetColor()
    {
        QWidget window;
        window.resize(300, 200);
        QWidget target(&window);
        target.setGeometry(100, 50, 100, 100);
        target.setStyleSheet("background: #2f6fde;");
        WidgetColorPickerButton button(&window);
        button.setTargetWidget(&target);
        EditSession session(&button);
        QStringList lines;
        connect(&session, &EditSession::started, this, [&] { lines += "started"; });
        connect(&session, &EditSession::previewed, this, [&] { lines += "previewed"; });
        connect(&session, &EditSession::committed, this,
                [&](const QVariant& color) { lines += color.value<QColor>().name(); });
        connect(&session, &EditSession::cancelled, this, [&] { lines += "cancelled"; });
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto pickAt = [&](const QPoint& point) {
            QTimer::singleShot(0, &window, [&window, point] {
                QCursor::setPos(window.mapToGlobal(point));
                QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, point);
            });
            button.startPicking();
        };
        for (int i = 0; i < 2; ++i) {
            lines.clear();
            pickAt(target.geometry().center());
            QCOMPARE(lines, (QStringList{"started", "previewed", "#2f6fde"}));
        }
        lines.clear();
        pickAt(QPoint(5, 190));
        QCOMPARE(lines, QStringList());

        // A pick that is cancelled would still bring what is below the cursor.
        session.setValue(QColor(Qt::red));
        QTimer::singleShot(0, &window, [&] {
            QCursor::setPos(target.mapToGlobal(target.rect().center()));
            session.cancel();
        });
        button.startPicking();
        QCOMPARE(lines, QStringList());
        QCOMPARE(button.color(), QColor(Qt::red));
    }

    void meanwhileInAWidgetPick_data()
    {
        using Meanwhile = std::function<void(WidgetColorPickerButton*)>;
        QTest::addColumn<Meanwhile>("meanwhile");
        QTest::addColumn<QStringList>("lines");
        const QStringList once{"started", "previewed", "#2f6fde"};
        // Left to the picker.
        QTest::newRow("hidden") << Meanwhile([](WidgetColorPickerButton* button) { button->hide(); }) << once;
        QTest::newRow("disabled") << Meanwhile([](WidgetColorPickerButton* button) {
            button->setEnabled(false);
        }) << once;
        QTest::newRow("set by the host") << Meanwhile([](WidgetColorPickerButton* button) {
            button->findChild<EditSession*>()->setValue(QColor(Qt::red));
        }) << once;
        QTest::newRow("deleted") << Meanwhile([](WidgetColorPickerButton* button) { delete button; })
                                 << QStringList();
    }

    void meanwhileInAWidgetPick()
    {
        using Meanwhile = std::function<void(WidgetColorPickerButton*)>;
        QFETCH(Meanwhile, meanwhile);
        QFETCH(QStringList, lines);
        QWidget window;
        window.resize(300, 200);
        QWidget target(&window);
        target.setGeometry(100, 50, 100, 100);
        target.setStyleSheet("background: #2f6fde;");
        const QPointer<WidgetColorPickerButton> button = new WidgetColorPickerButton(&window);
        button->setTargetWidget(&target);
        const QPointer<EditSession> session = new EditSession(button);
        QStringList story;
        connect(session, &EditSession::started, this, [&] { story += "started"; });
        connect(session, &EditSession::previewed, this, [&] { story += "previewed"; });
        connect(session, &EditSession::committed, this,
                [&](const QVariant& color) { story += color.value<QColor>().name(); });
        connect(session, &EditSession::cancelled, this, [&] { story += "cancelled"; });
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QPoint middle = target.geometry().center();
        QTimer::singleShot(0, &window, [&] {
            meanwhile(button);
            QCursor::setPos(window.mapToGlobal(middle));
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, middle);
        });
        button->startPicking();
        QCOMPARE(story, lines);
        QVERIFY(!session || !session->isActive());
    }

    void deletedInAColorPick()
    {
        QWidget window;
        auto* const field = new ColorInputWidget(&window, Qt::red);
        auto* const picker = new FakeColorPicker;
        field->setPicker(picker);
        QStringList story;
        const QPointer<EditSession> session = new EditSession(field);
        connect(session, &EditSession::started, this, [&] { story += "started"; });
        connect(session, &EditSession::previewed, this, [&] { story += "previewed"; });
        connect(session, &EditSession::committed, this, [&] { story += "committed"; });
        connect(session, &EditSession::cancelled, this, [&] { story += "cancelled"; });
        field->findChild<ColorPickerButton*>()->startPicking();
        picker->preview(QColor(Qt::blue));
        delete field;
        QVERIFY(!session);
        QCOMPARE(story, QStringList({"started", "previewed"}));
    }

    void multiValue_data()
    {
        QTest::addColumn<int>("kind");
        for (int kind = 0; kind < kinds().size(); ++kind) {
            QTest::newRow(kinds().at(kind).name) << kind;
        }
    }

    void multiValue()
    {
        QFETCH(int, kind);
        Stage stage(kinds().at(kind));
        QVERIFY(!stage.session->isMultiValue());
        stage.session->setMultiValue(true);
        const auto isShown = [&stage] {
            const auto parts = stage.field->findChildren<QWidget*>() << stage.field;
            bool isCovered = true;
            for (const QWidget* part : parts) {
                const auto* box = qobject_cast<const QComboBox*>(part);
                const int arrow = box ? box->height() + 8 : 8;
                if (qobject_cast<const QLineEdit*>(part) || (box && !box->isEditable())) {
                    const auto* cover = part->findChild<QLabel*>("multiValueCover");
                    isCovered = isCovered && cover && cover->isVisibleTo(part) &&
                                cover->width() > part->width() - arrow;
                }
            }
            return isCovered && stage.session->isMultiValue() && stage.field->property("multiValue").toBool();
        };
        QVERIFY(isShown());
        stage.window.resize(stage.window.size() + QSize(100, 0));
        QVERIFY(isShown());
        const auto described = [&stage] {
            return stage.field->accessibleDescription() + [&stage] {
                const auto parts = stage.field->findChildren<QWidget*>();
                for (const QWidget* part : parts) {
                    if (part->focusPolicy() != Qt::NoFocus) {
                        return part->accessibleDescription();
                    }
                }
                return QString();
            }();
        };
        QVERIFY(described().contains("Several values"));
        {
            const MarkingTranslator translator("EditSessionCover");
            QVERIFY(described().contains("<Several values>"));
        }
        // Whatever of it gets the keyboard.
        const auto parts = stage.field->findChildren<QWidget*>() << stage.field;
        for (QWidget* part : parts) {
            if (part->focusPolicy() != Qt::NoFocus && part->isVisible()) {
                QVERIFY2(reader(part).text(QAccessible::Description).contains("Several values"),
                         part->metaObject()->className());
            }
        }
        // The user tabs through.
        for (int i = 0; i < 8; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY(isShown());
        QCOMPARE(stage.story(), QString());
        const auto isUncovered = [&stage, &described] {
            return !stage.field->property("multiValue").toBool() &&
                   !stage.field->findChild<QLabel*>("multiValueCover") && described().isEmpty();
        };
        stage.session->setValue(kinds().at(kind).other);
        QVERIFY(!stage.session->isMultiValue());
        QVERIFY(isUncovered());
        QCOMPARE(stage.story(), QString());
        stage.session->setMultiValue(true);
        QVERIFY(isShown());
        delete stage.session;
        QVERIFY(isUncovered());
    }

    void multiValueTakesTheHiddenValue_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("end");
        for (int kind = 0; kind < kinds().size(); ++kind) {
            if (kinds().at(kind).typed) {
                QTest::addRow("%s", kinds().at(kind).name) << kind << int(Qt::Key_Return);
                QTest::addRow("%s, Escape", kinds().at(kind).name) << kind << int(Qt::Key_Escape);
            }
        }
    }

    void multiValueTakesTheHiddenValue()
    {
        QFETCH(int, kind);
        QFETCH(int, end);
        Stage stage(kinds().at(kind));
        const QString hidden = stage.editor()->text();
        stage.session->setMultiValue(true);
        stage.typed->setFocus();
        stage.editor()->deselect();
        // The hidden text is typed over, wherever the cursor stands in it.
        QTest::keyClicks(stage.typed, hidden);
        QCOMPARE(stage.editor()->text(), hidden);
        QVERIFY(stage.session->isActive());
        QVERIFY(!stage.session->isMultiValue());
        stage.pressKey(stage.typed, end);
        if (end == Qt::Key_Escape) {
            QCOMPARE(stage.story(), QString("started previewed cancelled"));
            QVERIFY(stage.session->isMultiValue());
        } else {
            QCOMPARE(stage.story(), QString("started previewed committed"));
            QVERIFY(EditSessionField::isSame(stage.committed, kinds().at(kind).start));
        }
    }

    void multiValueTakesTheEnd_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("on");
        QTest::addColumn<Act>("enter");
        for (int i = 0; i < kinds().size(); ++i) {
            const Kind& kind = kinds().at(i);
            const bool isPlane = kind.keyed == QByteArray("PointSelectionPlane");
            const auto add = [i, &kind](const char* on, const char* how, const Act& enter) {
                QTest::addRow("%s: %s, %s", kind.name, on, how) << i << QString(on) << enter;
            };
            if (kind.dragged) {
                add("dragged", "beyond the end", [](Stage& s, const Kind&) {
                    const QPoint from = markerOf(s.dragged);
                    const QPoint beyond = from + QPoint(-40, from.isNull() ? -40 : 40);
                    press(*s.dragged, from);
                    drag(*s.dragged, beyond);
                    release(*s.dragged, beyond);
                });
                add("dragged", "in its place", [](Stage& s, const Kind&) {
                    press(*s.dragged, markerOf(s.dragged));
                    release(*s.dragged, markerOf(s.dragged));
                });
            }
            if (kind.keyed) {
                add("keyed", "key", &pressKeyAtEnd);
            }
            if (kind.keyed && !isPlane) {
                add("keyed", "wheel", &turnWheelAtEnd);
            }
            if (kind.typed && qstrcmp(kind.typed, kind.keyed) != 0) {
                add("typed", "key", &pressKeyAtEnd);
            }
            if (kind.typed == QByteArray("QAbstractSpinBox")) {
                add("typed", "wheel", &turnWheelAtEnd);
            }
        }
    }

    void multiValueTakesTheEnd()
    {
        QFETCH(int, kind);
        QFETCH(QString, on);
        QFETCH(Act, enter);
        const Kind& k = kinds().at(kind);
        Stage stage(k);
        stage.session->setValue(k.first);
        if (auto* box = qobject_cast<QComboBox*>(stage.field)) {
            const EditSession::Refresh refresh(box);
            box->setCurrentIndex(0); // an editable one has taken the text only
        }
        stage.session->setMultiValue(true);
        stage.turned = on == QLatin1String("typed") ? stage.typed : stage.keyed;
        enter(stage, k);
        QCOMPARE(stage.story(), QString("started previewed committed"));
        QVERIFY(EditSessionField::isSame(stage.committed, k.first));
        QVERIFY(!stage.session->isMultiValue());
    }

    void hiddenNumberIsTypedOn_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("value");
        QTest::newRow("another") << "72" << 72;
        QTest::newRow("the hidden one, by the nearest") << "7" << 8;
    }

    // Its first digit is no value of the range yet.
    void hiddenNumberIsTypedOn()
    {
        QFETCH(QString, typed);
        QFETCH(int, value);
        QSpinBox field;
        field.setRange(8, 200);
        field.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
        EditSession session(&field);
        QSignalSpy committed(&session, &EditSession::committed);
        session.setMultiValue(true);
        field.show();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        const auto* const cover = field.findChild<QLabel*>("multiValueCover");
        QVERIFY(cover->isVisible());
        QTest::keyClick(&field, Qt::Key_7);
        QVERIFY(!cover->isVisible());
        QTest::keyClick(&field, Qt::Key_Escape);
        QVERIFY(cover->isVisible());
        QTest::keyClicks(&field, typed);
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(committed.count(), 1);
        QCOMPARE(committed.constFirst().constFirst().toInt(), value);
    }

    void hiddenNumberIsNotEntered_data()
    {
        using Correction = QAbstractSpinBox::CorrectionMode;
        QTest::addColumn<int>("key");
        QTest::addColumn<Correction>("correction");
        QTest::addColumn<bool>("isFraction");
        QTest::newRow("not yet a value")
            << int(Qt::Key_7) << QAbstractSpinBox::CorrectToPreviousValue << false;
        QTest::newRow("nothing") << int(Qt::Key_Backspace) << QAbstractSpinBox::CorrectToPreviousValue
                                 << false;
        for (const bool isFraction : {false, true}) {
            QTest::addRow("nothing, the nearest of which is the minimum%s", isFraction ? ", fraction" : "")
                << int(Qt::Key_Backspace) << QAbstractSpinBox::CorrectToNearestValue << isFraction;
        }
    }

    // A spin box takes its own number again when the text is none.
    void hiddenNumberIsNotEntered()
    {
        QFETCH(int, key);
        QFETCH(QAbstractSpinBox::CorrectionMode, correction);
        QFETCH(bool, isFraction);
        const std::unique_ptr<QWidget> field(isFraction ? makeRanged<QDoubleSpinBox>(nullptr)
                                                        : makeRanged<QSpinBox>(nullptr));
        field->setProperty("minimum", 8);
        field->setProperty("value", 50);
        qobject_cast<QAbstractSpinBox*>(field.get())->setCorrectionMode(correction);
        EditSession session(field.get());
        QSignalSpy started(&session, &EditSession::started);
        session.setMultiValue(true);
        field->show();
        QVERIFY(QTest::qWaitForWindowActive(field.get()));
        QTest::keyClick(field.get(), Qt::Key(key));
        QTest::keyClick(field.get(), Qt::Key_Return);
        QCOMPARE(started.count(), 0);
        QCOMPARE(session.value().toInt(), 50);
        QVERIFY(session.isMultiValue());
        QVERIFY(field->findChild<QLabel*>("multiValueCover")->isVisible());
    }

    void hiddenNumberIsCoveredAgain_data()
    {
        using Way = std::function<void(QSpinBox&)>;
        QTest::addColumn<Way>("way");
        QTest::newRow("all is undone") << Way([](QSpinBox& field) {
            QTest::keyClick(&field, Qt::Key_7);
            field.findChild<QLineEdit*>()->undo();
        });
        QTest::newRow("inserted without a key") << Way([](QSpinBox& field) {
            auto* const editor = field.findChild<QLineEdit*>();
            editor->selectAll();
            editor->insert("7");
            field.clearFocus();
        });
    }

    void hiddenNumberIsCoveredAgain()
    {
        using Way = std::function<void(QSpinBox&)>;
        QFETCH(Way, way);
        QSpinBox field;
        field.setRange(8, 200);
        field.setValue(50);
        EditSession session(&field);
        QSignalSpy started(&session, &EditSession::started);
        session.setMultiValue(true);
        field.show();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        way(field);
        QCOMPARE(started.count(), 0);
        QVERIFY(session.isMultiValue());
        QVERIFY(field.findChild<QLabel*>("multiValueCover")->isVisible());
    }

    void hiddenTextIsReplaced_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<bool>("isHidden");
        QTest::addColumn<QString>("text");
        for (const char* const how : {"input method", "context menu", "drop"}) {
            QTest::newRow(how) << QString(how) << true << "after";
        }
        QTest::newRow("one that is seen") << "drop" << false << "afterbefore";
    }

    void hiddenTextIsReplaced()
    {
        QFETCH(QString, how);
        QFETCH(bool, isHidden);
        QFETCH(QString, text);
        QLineEdit field("before");
        EditSession session(&field);
        QSignalSpy committed(&session, &EditSession::committed);
        session.setMultiValue(isHidden);
        field.show();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        field.end(false);
        if (how == QLatin1String("drop")) {
            QMimeData dragged;
            dragged.setText("after");
            const QPoint start(0, 5);
            QDragEnterEvent enter(start, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&field, &enter);
            QDropEvent drop(start, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&field, &drop);
            QCOMPARE(committed.count(), 1);
        } else if (how == QLatin1String("context menu")) {
            QApplication::clipboard()->setText("after");
            QContextMenuEvent pressed(QContextMenuEvent::Keyboard, QPoint());
            QCoreApplication::sendEvent(&field, &pressed);
            auto* const menu = field.findChild<QMenu*>();
            for (QAction* action : menu->actions()) {
                if (action->text().startsWith("&Paste")) {
                    action->trigger();
                }
            }
            menu->close();
        } else {
            QInputMethodEvent composed;
            composed.setCommitString("after");
            QCoreApplication::sendEvent(&field, &composed);
        }
        QCOMPARE(field.text(), text);
        session.commit();
        QCOMPARE(committed.count(), 1);
        QCOMPARE(committed.constFirst().constFirst().toString(), text);
    }

    void multiColor()
    {
        ColorInputWidget field(nullptr, Qt::red);
        EditSession session(&field);
        QSignalSpy changed(&field, &ColorInputWidget::colorChanged);
        session.setMultiValue(true);
        QCOMPARE(field.color(), Color());
        QVERIFY(field.property("multiValue").toBool());
        QVERIFY(reader(field.anchorWidget()).text(QAccessible::Description).contains("Several values"));
        session.setValue(QVariant::fromValue(Color(QColor(Qt::blue))));
        QVERIFY(!session.isMultiValue());
        QCOMPARE(field.color(), Color(QColor(Qt::blue)));
    }

    // A plane is finer than the boxes beside it.
    void shownValueIsCommitted()
    {
        Stage stage(kinds().at(3));
        QVector<QPointF> points;
        connect(stage.session, &EditSession::previewed, this,
                [&points](const QVariant& value) { points += value.toPointF(); });
        dragOn(stage);
        dropAt(stage, 31);
        QCOMPARE(stage.story(), QString("started previewed committed"));
        const auto boxes = stage.field->findChildren<QDoubleSpinBox*>();
        QCOMPARE(stage.committed.toPointF(), QPointF(boxes.at(0)->value(), boxes.at(1)->value()));
        for (const QPointF& point : qAsConst(points)) {
            QCOMPARE(point.x() * 10, double(qRound(point.x() * 10)));
            // Never half of a point: the drag is level.
            QCOMPARE(point.y(), points.constFirst().y());
        }
    }

    void unfinishedText()
    {
        Stage stage({"SliderInputWidget", maker<SliderInputWidget>(SliderInputWidget::Initializer{10, 100}),
                     nullptr, nullptr, "QAbstractSpinBox", 50, 80, 10, "5"});
        // Below the range, and so no value yet.
        stage.type("5");
        QCOMPARE(stage.story(), QString());
        stage.pressKey(stage.typed, Qt::Key_Escape);
        QCOMPARE(stage.editor()->text(), QString("50"));
        stage.type("5");
        stage.other->setFocus();
        QCOMPARE(stage.story(), QString("started previewed committed"));
        QCOMPARE(stage.committed, QVariant(10));
    }

    void undoKey_data()
    {
        QTest::addColumn<int>("kind");
        for (int kind = 0; kind < kinds().size(); ++kind) {
            if (kinds().at(kind).typed) {
                QTest::newRow(kinds().at(kind).name) << kind;
            }
        }
    }

    // What is not entered yet is the edit's to undo, and all else the host's.
    void undoKey()
    {
        QFETCH(int, kind);
        Stage stage(kinds().at(kind));
        int undone = 0;
        int redone = 0;
        const QShortcut undo(QKeySequence::Undo, &stage.window, [&undone] { ++undone; });
        const QShortcut redo(QKeySequence::Redo, &stage.window, [&redone] { ++redone; });
        const auto press = [&stage](QKeySequence::StandardKey keys) {
            const int key = QKeySequence::keyBindings(keys).constFirst()[0];
            QTest::keyClick(stage.typed, Qt::Key(key & ~Qt::KeyboardModifierMask),
                            Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
        };
        if (auto* box = qobject_cast<QComboBox*>(stage.field)) {
            box->setCompleter(nullptr); // it types too
        }
        const QString before = stage.editor()->text();
        stage.type(kinds().at(kind).text);
        for (int i = 0; stage.editor()->text() != before && i < 9; ++i) {
            press(QKeySequence::Undo);
        }
        QCOMPARE(stage.editor()->text(), before);
        QCOMPARE(undone, 0);
        press(QKeySequence::Redo);
        QVERIFY(stage.editor()->text() != before);
        QCOMPARE(redone, 0);
        stage.type(kinds().at(kind).text);
        QTest::keyClick(stage.typed, Qt::Key_Return);
        QVERIFY(stage.story().endsWith("committed"));
        const QString entered = stage.editor()->text();
        press(QKeySequence::Undo);
        press(QKeySequence::Redo);
        QCOMPARE(undone, 1);
        QCOMPARE(redone, 1);
        QCOMPARE(stage.editor()->text(), entered);

        // The next text is undone back to the one that was entered, and no further.
        QTest::keyClick(stage.typed, Qt::Key_End);
        QTest::keyClick(stage.typed, Qt::Key_Backspace);
        QVERIFY(stage.editor()->text() != entered);
        press(QKeySequence::Undo);
        QCOMPARE(stage.editor()->text(), entered);
        QCOMPARE(undone, 1);
        press(QKeySequence::Undo);
        QCOMPARE(stage.editor()->text(), entered);
        QCOMPARE(undone, 2);
    }

    void fortyFields()
    {
        QWidget inspector;
        QUndoStack stack;
        int told = 0;
        QVector<EditSession*> sessions;
        QVector<const Kind*> kindOf;
        for (int i = 0; i < 40; ++i) {
            const Kind& kind = kinds().at(i % kinds().size());
            auto* const session = new EditSession(kind.make(&inspector));
            for (const auto signal : {&EditSession::previewed, &EditSession::committed}) {
                connect(session, signal, this, [&told] { ++told; });
            }
            for (const auto signal : {&EditSession::started, &EditSession::cancelled}) {
                connect(session, signal, this, [&told] { ++told; });
            }
            EditCommand::record(
                session, &stack, [] { return QString(); },
                [] {
                    return EditCommand::Targets{{[] { return QVariant(); }, [](const QVariant&) {}}};
                });
            sessions += session;
            kindOf += &kind;
        }
        inspector.show();
        QVERIFY(QTest::qWaitForWindowExposed(&inspector));
        const auto load = [&](QVariant Kind::*value) {
            const EditSession::Refresh refresh(&inspector);
            for (int i = 0; i < sessions.size(); ++i) {
                // By the field's own setter, as a host has it.
                EditSessionField::of(sessions.at(i)->field()).write(kindOf.at(i)->*value);
                sessions.at(i)->setMultiValue(i % 7 == 0);
            }
        };
        for (const auto value : {&Kind::start, &Kind::other, &Kind::first, &Kind::start}) {
            load(value);
            // A folder field's report is late.
            QTest::qWait(150);
            for (int i = 0; i < sessions.size(); ++i) {
                QVERIFY2(EditSessionField::isSame(sessions.at(i)->value(), kindOf.at(i)->*value),
                         kindOf.at(i)->name);
                QVERIFY(!sessions.at(i)->isActive());
            }
        }
        QCOMPARE(told, 0);
        QCOMPARE(stack.count(), 0);
    }

    // A host that writes each value into its document, and shows the document again.
    void refreshInAReport()
    {
        Stage stage(kinds().at(0));
        auto* const slider = qobject_cast<SliderInputWidget*>(stage.field);
        connect(stage.session, &EditSession::previewed, this, [&stage, slider](const QVariant& value) {
            const EditSession::Refresh refresh(&stage.window);
            slider->setValue(value.toInt() / 5 * 5);
            stage.previewed = slider->value();
        });
        dragOn(stage);
        dropAt(stage, 30);
        QVERIFY(stage.lines.count("started") == 1);
        QVERIFY(stage.story().endsWith("committed"));
        QCOMPARE(stage.committed.toInt() % 5, 0);
    }

    void askedInASlot_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("expected");
        const QString once("started previewed committed");
        const QString cancelled("started previewed cancelled");
        for (const char* const signal : {"started()", "previewed(QVariant)"}) {
            const auto add = [signal](const char* what, const QString& expected, const Act& act) {
                QTest::addRow("%s %s", signal, what) << QByteArray("2").append(signal) << act << expected;
            };
            add("hide", once, [](Stage& s, const Kind&) { s.field->hide(); });
            add("disable", once, [](Stage& s, const Kind&) { s.field->setEnabled(false); });
            add("commit", once, [](Stage& s, const Kind&) { s.session->commit(); });
            add("cancel", cancelled, [](Stage& s, const Kind&) { s.session->cancel(); });
            add("hide, then cancel", once, [](Stage& s, const Kind&) {
                s.field->hide();
                s.session->cancel();
            });
            add("cancel, then hide", cancelled, [](Stage& s, const Kind&) {
                s.session->cancel();
                s.field->hide();
            });
            add("hide while refreshing", once, [](Stage& s, const Kind&) {
                const EditSession::Refresh refresh(&s.window);
                s.field->hide();
            });
            add("deleteLater", "started previewed", [](Stage& s, const Kind&) { s.field->deleteLater(); });
        }
    }

    void askedInASlot()
    {
        QFETCH(QByteArray, signal);
        QFETCH(Act, act);
        QFETCH(QString, expected);
        const Kind& kind = kinds().at(0);
        Stage stage(kind);
        QAction slot;
        connect(&slot, &QAction::triggered, this, [&] {
            slot.disconnect();
            act(stage, kind);
        });
        QVERIFY(connect(stage.session, signal.constData(), &slot, SLOT(trigger())));
        stage.keyed->setFocus();
        stage.pressKey(stage.keyed, stage.stepKey());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(stage.story(), expected);
        QVERIFY(!stage.session || !stage.session->isActive());
        QVERIFY(!stage.field ||
                EditSessionField::isSame(stage.session->value(), expected.endsWith("cancelled") ? 50 : 51));
        if (stage.field) {
            // The next one is told as ever.
            stage.field->show();
            stage.field->setEnabled(true);
            stage.lines.clear();
            stage.keyed->setFocus();
            stage.pressKey(stage.keyed, stage.stepKey());
            stage.releaseKey(stage.keyed, stage.stepKey());
            QCOMPARE(stage.story(), QString("started previewed committed"));
        }
    }

    void deletedInASlot_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<bool>("onlySession");
        for (const bool onlySession : {true, false}) {
            for (const char* const signal :
                 {"started()", "previewed(QVariant)", "committed(QVariant)", "cancelled()"}) {
                QTest::addRow("%s %s", signal, onlySession ? "session" : "window")
                    << QByteArray("2").append(signal) << onlySession;
            }
        }
    }

    void deletedInASlot()
    {
        QFETCH(QByteArray, signal);
        QFETCH(bool, onlySession);
        auto window = std::make_unique<QWidget>();
        auto* const field = new PointSelectionPlane(window.get());
        field->setFixedSize(101, 101);
        field->setLimits({0.0, 0.0, 100.0, 100.0});
        QPointer<EditSession> session = new EditSession(field);
        QAction remove(nullptr);
        bool isDone = false;
        connect(&remove, &QAction::triggered, this, [&] {
            isDone = true;
            if (onlySession) {
                delete session;
            } else {
                window.release()->deleteLater();
                delete session;
            }
        });
        QVERIFY(connect(session, signal.constData(), &remove, SLOT(trigger())));
        const QPointer<QWidget> alive = field;
        press(*field, QPoint(20, 20));
        drag(*field, QPoint(30, 30));
        if (signal.contains("cancelled") && session) {
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(field, &escape);
        }
        if (alive) {
            release(*field, QPoint(30, 30));
        }
        QVERIFY(isDone);
        QVERIFY(!session);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // Qt asks whoever has not accepted the event for its parent. What is deleted is overwritten: a use
    // crashes.
    void deletedByAWheelWhileAKeyIsHeld()
    {
        const QPointer<QWidget> window = new QWidget;
        auto* const slider = new OvCustomSlider(window);
        auto* const session = new EditSession(slider);
        connect(session, &EditSession::committed, this, [window] { delete window; });
        window->show();
        QApplication::setActiveWindow(window);
        slider->setFocus();
        QTest::keyPress(slider, Qt::Key_Up);
        QVERIFY(session->isActive());
        QWheelEvent wheel({1.0, 1.0}, slider->mapToGlobal(QPoint(1, 1)), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        // One that a program sends is not handed on.
        QSpontaneKeyEvent::setSpontaneous(&wheel);
        const FreedMemoryWatch watch;
        qApp->notify(slider, &wheel);
        QVERIFY(!window);
        QCOMPARE(watch.writtenAfterwards(), std::size_t(0));
    }

    // The key still reaches the host's shortcut.
    void deletedByAKeyAfterTheWheel()
    {
        QWidget window;
        QAction action;
        action.setShortcut(Qt::Key_F5);
        window.addAction(&action);
        const QSignalSpy triggered(&action, &QAction::triggered);
        auto* const slider = new OvCustomSlider(&window);
        auto* const session = new EditSession(slider);
        connect(session, &EditSession::committed, this, [slider] { delete slider; });
        window.show();
        QApplication::setActiveWindow(&window);
        slider->setFocus();
        turnWheel(*slider, 120);
        QVERIFY(session->isActive());
        const FreedMemoryWatch watch;
        QTest::keyPress(window.windowHandle(), Qt::Key_F5);
        QVERIFY(window.children().isEmpty());
        QCOMPARE(triggered.count(), 1);
        QCOMPARE(watch.writtenAfterwards(), std::size_t(0));
    }

    void deletedAsItsWindowGoes_data()
    {
        using Way = std::function<void(QWidget*)>;
        QTest::addColumn<Way>("way");
        QTest::newRow("hidden") << Way(&QWidget::hide);
        QTest::newRow("minimised") << Way(&QWidget::showMinimized);
        QTest::newRow("disabled") << Way([](QWidget* window) { window->setEnabled(false); });
        QTest::newRow("used by the keyboard") << Way(
            [](QWidget* window) { QTest::keyPress(window->findChild<OvCustomSlider*>(), Qt::Key_Left); });
    }

    // Qt goes through the children of the field, of which the session is one. Seen by the sanitizer, which
    // finds the session's memory in use.
    void deletedAsItsWindowGoes()
    {
        using Way = std::function<void(QWidget*)>;
        QFETCH(Way, way);
        QWidget window;
        SliderInputWidget field(&window);
        auto* const slider = field.findChild<OvCustomSlider*>();
        const QPointer<EditSession> session = new EditSession(&field);
        connect(session, &EditSession::committed, this, [session] { delete session; });
        window.show();
        press(*slider, slider->rect().bottomRight());
        QVERIFY(session->isActive());
        const FreedMemoryWatch watch;
        way(&window);
        QVERIFY(!session);
        QCOMPARE(watch.writtenAfterwards(), std::size_t(0));
    }

    void fieldDeletedByItsPickersColor_data()
    {
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("asked for") << false;
        QTest::newRow("taken") << true;
    }

    // Reading what is gone is seen by the sanitizer alone.
    void fieldDeletedByItsPickersColor()
    {
        QFETCH(bool, isTaken);
        const QPointer<ColorPickerButton> button = new ColorPickerButton;
        auto* const picker = new FakeColorPicker;
        if (isTaken) {
            connect(button, &ColorPickerButton::colorChanged, this, [button] { delete button; });
        } else {
            picker->onColor = [button] { delete button; };
        }
        button->setPicker(picker);
        const QPointer<EditSession> session = new EditSession(button);
        button->startPicking();
        const FreedMemoryWatch watch;
        picker->finish(QColor(Qt::red));
        QVERIFY(!button);
        QVERIFY(!session);
        QCOMPARE(watch.writtenAfterwards(), std::size_t(0));
    }

    void windowDestroyedWhileTyping()
    {
        QStringList lines;
        {
            Stage stage(kinds().at(0));
            stage.type("37");
            connect(stage.session, &EditSession::committed, this, [&lines] { lines += "committed"; });
            connect(stage.session, &EditSession::cancelled, this, [&lines] { lines += "cancelled"; });
        }
        QCOMPARE(lines, QStringList());
    }

    void cancelWithoutAnEdit_data()
    {
        QTest::addColumn<bool>("isPicking");
        QTest::newRow("at rest") << false;
        QTest::newRow("while a colour is picked") << true;
    }

    // The button reports several colours to nobody.
    void cancelWithoutAnEdit()
    {
        QFETCH(bool, isPicking);
        ColorPickerButton button;
        button.setPicker(new FakeColorPicker);
        button.setColor(Qt::red);
        EditSession session(&button);
        if (isPicking) {
            button.startPicking();
        }
        button.setColor(std::nullopt);
        session.cancel();
        QVERIFY(!button.isPickingInProgress());
        QCOMPARE(button.color(), Color());
    }

    void fieldWithItsOwnSession()
    {
        DerivedField field;
        QSignalSpy previews(field.session, &EditSession::previewed);
        field.findChild<QAbstractSlider*>()->setFocus();
        QTest::keyClick(field.findChild<QAbstractSlider*>(), Qt::Key_Right);
        QCOMPARE(previews.size(), 1);
    }

    void otherWidgets()
    {
        QLabel label;
        EditSession session(&label);
        QCOMPARE(session.field(), &label);
        QCOMPARE(session.value(), QVariant());
        session.setValue(7);
        session.commit();
        session.cancel();
        session.setMultiValue(true);
        QVERIFY(session.isMultiValue());
        QVERIFY(!session.isActive());
    }
};

UIC_TEST_MAIN(tst_EditSession)
#include "tst_EditSession.moc"
