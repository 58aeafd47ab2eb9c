#include "Exceptions.h"

#include "RealUser.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSize>
#include <QUndoStack>

#include <algorithm>
#include <cstdio>

namespace {

/// In the place of a type: the widget that takes the focus, or the window that becomes the active one.
constexpr const char* focus = "";

/// While @p name is under way for an object of @p type, neither it nor what owns it is deleted at once.
/// Without a type, no widget is, nor what owns some.
struct Row
{
    const char* type;
    const char* name;   ///< of a signal or an action; null for any
    Doings doing;       ///< what that is; none for anything
    Doings around;      ///< in the middle of one of these, unless that is none
    const char* signal; ///< in a slot of this signal, or of any where it is empty; null where it need be none
    const char* file;   ///< below the checkout's root: a header, or what shows that Qt does not survive it
    const char* words;  ///< what it says there
};

constexpr const char* qt = "tests/chaos/QtDefects.cpp";
constexpr const char* slider = "platform/WidgetToolkit/OvCustomSlider.h";
constexpr const char* spinBox = "platform/WidgetToolkit/OvSpinBox.h";
constexpr const char* session = "library/UiComponents/EditSession.h";
constexpr const char* util = "platform/WidgetToolkit/Util.h";

const std::vector<Row>& rows()
{
    static const Doings any;
    static const Doings input = Doing::Typing | Doing::Wheel | Doing::Mouse;
    // Leaving a field takes over what was typed.
    static const Doings editing = input | Doing::Showing | Doing::Other;
    static const Doings notEntering =
        input | Doing::Showing | Doing::Forcing | Doing::Deleting | Doing::Other;
    static const std::vector<Row> table{
        {"ColorBlendingComboBox", "blendingModeChanged", any, any, nullptr,
         "library/UiComponents/ColorBlendingComboBox.h",
         "A slot of blendingModeChanged() deletes the box with deleteLater()"},
        {"ColorPickerButton", "pickingStopped", any, Doing::Showing, nullptr,
         "library/UiComponents/ColorPickerButton.h",
         "A slot of a pickingStopped() that hiding the button causes must use deleteLater()"},
        {"ColorPickerWidget", "colorChanged", any, Doing::Showing, nullptr,
         "library/UiComponents/ColorPickerWidget.h",
         "A slot that runs because the panel is being shown or hidden must delete the panel with "
         "deleteLater()"},
        {"SliderInputWidget", "valueChanged", any, editing, nullptr,
         "library/UiComponents/SliderInputWidget.h",
         "While the user types or steps in the spin box, or leaves it, a slot must delete the field with "
         "deleteLater()"},
        {"DoubleSliderInputWidget", "valueChanged", any, editing, nullptr,
         "library/UiComponents/SliderInputWidget.h",
         "While the user types or steps in the spin box, or leaves it, a slot must delete the field with "
         "deleteLater()"},
        {"PointSelectorWidget", "valueChanged", any, editing, nullptr,
         "library/UiComponents/PointSelectorWidget.h",
         "While the user types or steps in a spin box, or leaves it, a slot must delete the field with "
         "deleteLater()"},
        {"SearchWidget", nullptr, Doing::Signal, any, nullptr, "library/UiComponents/SearchWidget.h",
         "Slots of both signals delete the field with deleteLater()"},
        {"PathSelectionWidget", "checkPath", any, any, nullptr, "library/UiComponents/PathSelectionWidget.h",
         "A handler of the widget that loses the focus must not delete the field"},
        {"OvCustomSlider", nullptr, Doing::Signal, Doing::Forcing, nullptr, slider,
         "Behind the signals of setRange(), setMinimum(), setMaximum(),"},
        {"OvCustomSlider", nullptr, Doing::Forcing, any, "", slider,
         "Behind the signals of setRange(), setMinimum(), setMaximum(),"},
        {"OvCustomSlider", "sliderMoved", Doing::Signal, Doing::Call, nullptr, slider,
         "behind sliderMoved() of a setValue() during a drag"},
        {"OvCustomSlider", "rangeChanged", Doing::Signal, any, nullptr, util, "a slider in setRange()"},
        {"QAbstractSpinBox", nullptr, Doing::Signal, notEntering, nullptr, spinBox,
         "Behind all others, above all while the user types or steps, QAbstractSpinBox goes on"},
        {"QAbstractSpinBox", nullptr, input, any, "", util, "a spin box while the user types or steps in it"},
        {"QAbstractSpinBox", "valueChanged(QString)", Doing::Signal, Doing::Call, nullptr, spinBox,
         "Behind all others, above all while the user types or steps, QAbstractSpinBox goes on"},
        {"QAbstractSpinBox", "textChanged", Doing::Signal, Doing::Call, nullptr, spinBox,
         "Behind all others, above all while the user types or steps, QAbstractSpinBox goes on"},

        {"QAbstractSpinBox", nullptr, any, any, "", session, "Its slots may delete the session"},
        {"QComboBox", nullptr, any, any, "", session, "Its slots may delete the session"},
        {"QLineEdit", nullptr, any, any, "", session, "Its slots may delete the session"},

        {focus, nullptr, Doing::Leaving, any, "", qt, "focusTakerIsDeleted"},
        {"QWidget", "override", Doing::Typing, any, "", qt, "overridingWidgetIsDeleted"},
        {nullptr, "application", Doing::Other, any, "", qt, "changedSiblingIsDeleted"},
        {nullptr, "event", Doing::Other, any, "", qt, "changedSiblingIsDeleted"},
        {nullptr, "delete", Doing::Deleting, any, "", qt, "hiddenWidgetIsDeleted"},
        {"QWidget", nullptr, Doing::Showing, any, nullptr, qt, "hiddenWidgetIsDeleted"},
        {"QAbstractButton", "pressed", any, Doing::Forcing, nullptr, qt, "animatedButtonIsDeleted"},
        {"QAbstractButton", "released", any, any, nullptr, qt, "releasedButtonIsDeleted"},
        {"QAbstractButton", "toggled", any, any, nullptr, qt, "toggledButtonIsDeleted"},
        {"QAbstractItemView", nullptr, Doing::Signal, any, nullptr, qt, "viewIsDeleted"},
        {"QComboBox", nullptr, Doing::Signal, any, nullptr, qt, "comboBoxIsDeleted"},
        {"QDialog", nullptr, Doing::Signal, any, nullptr, qt, "dialogIsDeleted"},
        {"QLineEdit", nullptr, Doing::Signal, any, nullptr, qt, "lineEditIsDeleted"},
        {"QUndoStack", nullptr, any, any, nullptr, qt, "undoStackIsDeleted"},
    };
    return table;
}

struct Text
{
    const char* pattern;
    const char* why;
};

const std::vector<Text>& expectedTexts()
{
    static const std::vector<Text> texts{
        {"^This plugin does not support ", "what the off-screen platform cannot do"},
        {"^Could not parse (application )?style ?sheet", "a broken sheet was set"},
        {"^QWidget::set(M(in|ax)imumSize|WindowModified): ", "so were other properties"},
        {"^No colour was picked: (there is no screen at|this platform cannot grab) ",
         "the mouse left the off-screen platform's screen"},
        {"^QComboBox::setMaxCount: ", "so were other properties"},
        {"^QPainter::begin: Paint device returned engine == 0", "a window is too large for the memory"},
        {"^QFont::fromString: Invalid description", "so was the font of a model's item"},
        {"^qDrawPlainRect: Invalid parameters", "so was the place of a frame"},
        {"Attempt to set a screen on a child window", "a shown window became a part of another"},
        {"^QComboBox::setMaxVisibleItems: ", "so were other properties"},
        {"^QSpinBox::setDisplayIntegerBase: ", "so were other properties"},
        {"^QObject::connect: Cannot connect .nullptr.::currentChanged",
         "a key comes to a box whose model is gone"},
        {"^Invalid batchSize ", "so were other properties"},
        {"^edit: (index was invalid|editing failed)", "a view was asked to edit nothing"},
        {"^QBasicTimer::start: Timers cannot have negative timeouts", "an automatic repetition was"},
        {"^QItemSelectionModel: (Selecting|Setting the current index) when no model has been set",
         "a view without a model selects"},
        {"^Q(WidgetLineControl|LineEdit)::setSelection: Invalid start position", "an input method selects"},
        {"^file:///.*(/broken-|/chaos-[A-Za-z]+:)|^QQuickWidget does not support using windows as "
         "a root item",
         "so was a scene"},
        {"^Unable to detect a web browser to launch ", "the machine has none for a guide's link"},
        {"^Could not (find main qml file|resolve root object)", "QuickContent.h: \"glog gets a warning\""},
    };
    return texts;
}

/// Whether @p object goes with @p owner, or shows it.
bool isAt(const QObject* object, const QObject* owner)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(object);
    const auto* box = qobject_cast<const QComboBox*>(object);
    if ((view && view->model() == owner) || (box && box->model() == owner)) {
        return true;
    }
    for (; object; object = object->parent()) {
        if (object == owner) {
            return true;
        }
    }
    return false;
}

/// Of overloaded signals, only one may be meant.
bool isNamed(const Frame& frame, const char* name)
{
    return frame.name == name || frame.name.startsWith(QByteArray(name) + '(');
}

/// Whether @p frame concerns an object of @p type that does not survive the end of @p victim. What a widget
/// does not take of the user's input goes to its parents.
bool concerns(const Frame& frame, const char* type, const QObject* victim)
{
    const QObject* object = frame.object;
    while (object && !(object->inherits(type) && isAt(object, victim))) {
        object = frame.doing.testFlag(Doing::Signal) ? nullptr : object->parent();
    }
    return object;
}

} // namespace

int Exceptions::forbidding(const World& world, const QObject* victim)
{
    const bool isWidget = victim->isWidgetType() || victim->inherits("Qml::QuickContent");
    Doings around;
    for (int i = 0; i < world.frames.size(); ++i) {
        const Frame& frame = world.frames[i];
        around |= frame.doing;
        const auto isMeant = [&](const char* type) {
            return !type           ? isWidget
                   : *type == '\0' ? isAt(frame.focusTaker, victim)
                                   : concerns(frame, type, victim);
        };
        const auto isInSlotOf = [&](const char* signal) {
            return std::any_of(world.frames.begin() + i, world.frames.end(), [&](const Frame& inner) {
                return inner.doing.testFlag(Doing::Signal) && (*signal == '\0' || isNamed(inner, signal));
            });
        };
        for (std::size_t j = 0; j < rows().size(); ++j) {
            const Row& row = rows()[j];
            if (isMeant(row.type) && (!row.name || isNamed(frame, row.name)) &&
                (!row.doing || (row.doing & frame.doing)) && (!row.around || (row.around & around)) &&
                (!row.signal || isInSlotOf(row.signal))) {
                return static_cast<int>(j);
            }
        }
    }
    return -1;
}

bool Exceptions::forbidsLoop(const World& world)
{
    for (int i = 0; i < world.frames.size(); ++i) {
        const Frame& frame = world.frames[i];
        if (qobject_cast<const QUndoStack*>(frame.object.data())) {
            return true; // undoStackIsPushedInUndo
        }
        if (!frame.doing.testFlag(Doing::Signal)) {
            continue;
        }
        // Qt's views hold references to what a step in the loop changes: viewIsSteppedInALoop. What takes the
        // focus from a line edit, as its own menu does, may be gone when the loop ends: focusTakerIsDeleted.
        // And so may the window that becomes the active one: activatedWindowBecomesAPart.
        const bool isOfView = qobject_cast<const QAbstractItemView*>(frame.object.data()) ||
                              isNamed(frame, "highlighted") || isNamed(frame, "textHighlighted");
        const bool isOfEdit = isNamed(frame, "editingFinished") && frame.object &&
                              (frame.object->inherits("QLineEdit") || frame.object->inherits("SearchWidget"));
        const bool isOfLeaving =
            isNamed(frame, "released") || isNamed(frame, "editingFinished") || isNamed(frame, "valueChanged");
        const bool isOfActivation = isOfLeaving && i > 0 && world.frames[i - 1].doing.testFlag(Doing::Other);
        if (isOfView || isOfEdit || isOfActivation) {
            return true;
        }
    }
    return false;
}

bool Exceptions::maySet(const QByteArray& property, const QVariant& value)
{
    // A list view goes by the cells of its grid from item to item: emptyGridIsWalkedForEver.
    return property != "gridSize" || !value.toSize().isValid() || !value.toSize().isEmpty();
}

bool Exceptions::mayGrab(const QWidget* widget)
{
    // Before its window has ever been shown: grabbedSceneIsResized.
    const auto parts = widget->findChildren<QWidget*>();
    return !RealUser::isThere() || widget->window()->windowHandle() ||
           std::none_of(parts.begin(), parts.end(),
                        [](const QWidget* part) { return part->inherits("QQuickWidget"); });
}

bool Exceptions::isExpected(const QString& message)
{
    for (const Text& text : expectedTexts()) {
        if (QRegularExpression(QLatin1String(text.pattern)).match(message).hasMatch()) {
            return true;
        }
    }
    return false;
}

bool Exceptions::mayGoOn(const QString& delivered)
{
    // Scroll bars, and the arrows of a box's list, that each other's room makes come and go:
    // tinyScrollAreaGoesOn, smallListOfABoxGoesOn.
    return delivered.contains(QStringLiteral(" to QScrollArea ")) ||
           delivered.contains(QStringLiteral(" to QComboBoxListView "));
}

bool Exceptions::mayStayPressed(const QObject* object)
{
    // ColorPickerButton.h: "A picker that ends in silence leaves the button pressed".
    // And Qt lets a scroll bar be that was hidden while it was pressed: hiddenScrollBarStaysPressed.
    return object->inherits("ColorPickerButton") || object->inherits("QScrollBar");
}

int Exceptions::checkCitations(const QString& root)
{
    int wrong = 0;
    for (const Row& row : rows()) {
        QFile file(QDir(root).filePath(QLatin1String(row.file)));
        QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        text.remove(
            QRegularExpression(QStringLiteral("^\\s*(\\*|///)"), QRegularExpression::MultilineOption));
        const QString words = QLatin1String(row.words);
        // Of the cases, one that is run.
        const QString cited = row.file == qt ? QStringLiteral("{\"%1\", %1}").arg(words) : words;
        if (!text.simplified().contains(cited)) {
            std::fprintf(stderr, "%s does not say \"%s\"\n", row.file, row.words);
            ++wrong;
        }
    }
    return wrong;
}
