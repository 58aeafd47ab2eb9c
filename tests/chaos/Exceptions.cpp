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

/// In the place of a type: the widget that takes the focus, or the window that becomes the active one or is
/// one no longer.
constexpr const char* focus = "";

enum class Kind {
    Deletion, ///< an object is not deleted at once
    Loop,     ///< no loop begins in a slot
    Property, ///< a property does not get an empty size
    Grab,     ///< a window that was never on a screen is not grabbed
    Rest,     ///< a widget goes on when all others have come to rest
    Press,    ///< a widget stays pressed
    Text,     ///< a warning is logged
};

/// While @p name is under way for an object of @p type, neither it nor what owns it is deleted at once, or no
/// loop begins.
struct Row
{
    Kind kind;
    const char* type; ///< a pattern of warnings; null for any widget, and for what owns some
    const char*
        file; ///< below the checkout's root: a header, or what shows that Qt does not survive it; or null
    const char* words;          ///< what it says there
    const char* name = nullptr; ///< of a signal or an action; null for any;
    Doings doing = {};          ///< what that is; none for anything
    Doings around = {};         ///< in the middle of one of these, unless that is none
    const char* signal =
        nullptr; ///< in a slot of this one, or of any where it is empty; null: need not be in one
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
        {Kind::Deletion, "ColorBlendingComboBox", "library/UiComponents/ColorBlendingComboBox.h",
         "A slot of blendingModeChanged() deletes the box with deleteLater()", "blendingModeChanged"},
        {Kind::Deletion, "ColorPickerButton", "library/UiComponents/ColorPickerButton.h",
         "A slot of any signal that hiding the button causes must use deleteLater()", nullptr, Doing::Signal,
         Doing::Showing},
        {Kind::Deletion, "ColorPickerWidget", "library/UiComponents/ColorPickerWidget.h",
         "A slot that runs because the panel is being shown or hidden must delete the panel with "
         "deleteLater()",
         "colorChanged", any, Doing::Showing},
        {Kind::Deletion, "SliderInputWidget", "library/UiComponents/SliderInputWidget.h",
         "While the user types or steps in the spin box, or leaves it, a slot must delete the field with "
         "deleteLater()",
         "valueChanged", any, editing},
        {Kind::Deletion, "DoubleSliderInputWidget", "library/UiComponents/SliderInputWidget.h",
         "While the user types or steps in the spin box, or leaves it, a slot must delete the field with "
         "deleteLater()",
         "valueChanged", any, editing},
        {Kind::Deletion, "PointSelectorWidget", "library/UiComponents/PointSelectorWidget.h",
         "While the user types or steps in a spin box, or leaves it, a slot must delete the field with "
         "deleteLater()",
         "valueChanged", any, editing},
        {Kind::Deletion, "SearchWidget", "library/UiComponents/SearchWidget.h",
         "Slots of both signals delete the field with deleteLater()", nullptr, Doing::Signal},
        {Kind::Deletion, "PathSelectionWidget", "library/UiComponents/PathSelectionWidget.h",
         "A handler of the widget that loses the focus must not delete the field", "checkPath"},
        {Kind::Deletion, "OvCustomSlider", slider,
         "After the signals of setRange(), setMinimum(), setMaximum(),", nullptr, Doing::Signal,
         Doing::Forcing},
        {Kind::Deletion, "OvCustomSlider", slider,
         "After the signals of setRange(), setMinimum(), setMaximum(),", nullptr, Doing::Forcing, any, ""},
        {Kind::Deletion, "OvCustomSlider", slider, "after sliderMoved() of a setValue() during a drag",
         "sliderMoved", Doing::Signal, Doing::Call},
        {Kind::Deletion, "OvCustomSlider", util, "a slider in setRange()", "rangeChanged", Doing::Signal},
        {Kind::Deletion, "QAbstractSpinBox", spinBox,
         "After all others, above all while the user types or steps, QAbstractSpinBox still uses the spin "
         "box",
         nullptr, Doing::Signal, notEntering},
        {Kind::Deletion, "QAbstractSpinBox", util, "a spin box while the user types or steps in it", nullptr,
         input, any, ""},
        {Kind::Deletion, "QAbstractSpinBox", spinBox,
         "After all others, above all while the user types or steps, QAbstractSpinBox still uses the spin "
         "box",
         "valueChanged(QString)", Doing::Signal, Doing::Call},
        {Kind::Deletion, "QAbstractSpinBox", spinBox,
         "After all others, above all while the user types or steps, QAbstractSpinBox still uses the spin "
         "box",
         "textChanged", Doing::Signal, Doing::Call},
        {Kind::Deletion, "QAbstractSpinBox", session, "Slots may delete the session", nullptr, any, any, ""},
        {Kind::Deletion, "QComboBox", session, "Slots may delete the session", nullptr, any, any, ""},
        {Kind::Deletion, "PathSelectionWidget", session, "Slots may delete the session", nullptr, any, any,
         ""},
        {Kind::Deletion, "SearchWidget", session, "Slots may delete the session", nullptr, any, any, ""},
        {Kind::Deletion, "QLineEdit", session, "Slots may delete the session", nullptr, any, any, ""},
        {Kind::Deletion, "EditSession", session, "and where hiding or disabling it", "committed",
         Doing::Signal, Doing::Showing},
        {Kind::Deletion, "QWidget", session, "and where hiding or disabling it", "callback", Doing::Signal,
         Doing::Showing},

        {Kind::Deletion, focus, qt, "focusTakerIsDeleted", "leave", Doing::Leaving, any, ""},
        {Kind::Deletion, focus, qt, "deactivatedWindowIsDeleted", "deactivate", Doing::Leaving, any, ""},
        {Kind::Deletion, "QWidget", qt, "overridingWidgetIsDeleted", "override", Doing::Typing, any, ""},
        {Kind::Deletion, nullptr, qt, "changedSiblingIsDeleted", "application", Doing::Other, any, ""},
        {Kind::Deletion, nullptr, qt, "changedSiblingIsDeleted", "event", Doing::Other, any, ""},
        {Kind::Deletion, nullptr, qt, "widgetIsDeletedAsTheCursorLeaves", "cursor leaves", Doing::Other},
        {Kind::Deletion, "QWidget", qt, "widgetIsDeletedInARightPress", "right press", Doing::Mouse},
        {Kind::Deletion, nullptr, qt, "hiddenWidgetIsDeleted", "delete", Doing::Deleting, any, ""},
        {Kind::Deletion, "QWidget", qt, "hiddenWidgetIsDeleted", nullptr, Doing::Showing},
        {Kind::Deletion, "QAbstractButton", qt, "animatedButtonIsDeleted", "pressed", any, Doing::Forcing},
        {Kind::Deletion, "QAbstractButton", qt, "releasedButtonIsDeleted", "released"},
        {Kind::Deletion, "QAbstractButton", qt, "toggledButtonIsDeleted", "toggled"},
        {Kind::Deletion, "QAbstractItemView", qt, "viewIsDeleted", nullptr, Doing::Signal},
        {Kind::Deletion, "QComboBox", qt, "comboBoxIsDeleted", nullptr, Doing::Signal},
        {Kind::Deletion, "QDialog", qt, "dialogIsDeleted", nullptr, Doing::Signal},
        {Kind::Deletion, "QLineEdit", qt, "lineEditIsDeleted", nullptr, Doing::Signal},
        {Kind::Deletion, "QUndoStack", qt, "undoStackIsDeleted"},

        {Kind::Loop, "QUndoStack", qt, "undoStackIsPushedInUndo"},
        {Kind::Loop, "QAbstractItemView", qt, "viewIsSteppedInALoop", nullptr, Doing::Signal},
        {Kind::Loop, "QObject", qt, "viewIsSteppedInALoop", "highlighted", Doing::Signal},
        {Kind::Loop, "QObject", qt, "viewIsSteppedInALoop", "textHighlighted", Doing::Signal},
        // What takes the focus, as an edit's own menu does, may be gone when the loop ends.
        {Kind::Loop, "QLineEdit", qt, "focusTakerIsDeleted", "editingFinished", Doing::Signal},
        {Kind::Loop, "SearchWidget", qt, "focusTakerIsDeleted", "editingFinished", Doing::Signal},
        {Kind::Loop, "EditSession", qt, "focusTakerIsDeleted", "committed", Doing::Signal, Doing::Leaving},
        {Kind::Loop, "QObject", qt, "focusTakerIsDeleted", "callback", Doing::Signal, Doing::Leaving},
        // And so may the window that becomes the active one.
        {Kind::Loop, "QObject", qt, "activatedWindowBecomesAPart", "editingFinished", Doing::Signal,
         Doing::Other},
        {Kind::Loop, "QObject", qt, "activatedWindowBecomesAPart", "released", Doing::Signal, Doing::Other},
        {Kind::Loop, "QObject", qt, "activatedWindowBecomesAPart", "valueChanged", Doing::Signal,
         Doing::Other},

        {Kind::Property, "gridSize", qt, "emptyGridIsWalkedForEver"},
        {Kind::Grab, "QQuickWidget", qt, "grabbedSceneIsResized"},

        // Scroll bars, and the arrows of a box's list, that each other's room makes come and go.
        {Kind::Rest, "QScrollArea", qt, "tinyScrollAreaGoesOn"},
        {Kind::Rest, "QComboBoxListView", qt, "smallListOfABoxGoesOn"},
        {Kind::Rest, "PipetteScreenView", "library/UiComponents/Pipette.h",
         "puts a second set of windows and a second loupe over the first, and the two may take turns in "
         "front"},

        {Kind::Press, "ColorPickerButton", "library/UiComponents/ColorPickerButton.h",
         "A picker that ends without a signal leaves the button pressed until one reports its end"},
        {Kind::Press, "QScrollBar", qt, "hiddenScrollBarStaysPressed"},

        {Kind::Text, "^This plugin does not support ", nullptr, "what the off-screen platform cannot do"},
        {Kind::Text, "^Could not parse (application )?style ?sheet", nullptr, "a broken sheet was set"},
        {Kind::Text, "^QWidget::set(M(in|ax)imumSize|WindowModified): ", nullptr, "so were other properties"},
        {Kind::Text, "^No colour was picked: (there is no screen at|this platform cannot grab) ", nullptr,
         "the mouse left the off-screen platform's screen"},
        {Kind::Text, "^QComboBox::setMaxCount: ", nullptr, "so were other properties"},
        {Kind::Text, "^QPainter::begin: Paint device returned engine == 0", nullptr,
         "a window is too large for the memory"},
        {Kind::Text, "^QFont::fromString: Invalid description", nullptr, "so was the font of a model's item"},
        {Kind::Text, "^qDrawPlainRect: Invalid parameters", nullptr, "so was the place of a frame"},
        {Kind::Text, "Attempt to set a screen on a child window", nullptr,
         "a shown window became a part of another"},
        {Kind::Text, "^QComboBox::setMaxVisibleItems: ", nullptr, "so were other properties"},
        {Kind::Text, "^QSpinBox::setDisplayIntegerBase: ", nullptr, "so were other properties"},
        {Kind::Text, "^QObject::connect: Cannot connect .nullptr.::currentChanged", nullptr,
         "a key comes to a box whose model is gone"},
        {Kind::Text, "^Invalid batchSize ", nullptr, "so were other properties"},
        {Kind::Text, "^edit: (index was invalid|editing failed)", nullptr,
         "a view was asked to edit nothing"},
        {Kind::Text, "^QBasicTimer::start: Timers cannot have negative timeouts", nullptr,
         "an automatic repetition was"},
        {Kind::Text, "^QItemSelectionModel: (Selecting|Setting the current index) when no model has been set",
         nullptr, "a view without a model selects"},
        {Kind::Text, "^QSortFilterProxyModel: index from wrong model passed to mapToSource", nullptr,
         "a reader hears a combo box while Qt gives it another model"},
        {Kind::Text, "^Q(WidgetLineControl|LineEdit)::setSelection: Invalid start position", nullptr,
         "an input method selects"},
        {Kind::Text,
         "^file:///.*(/broken-|/chaos-[A-Za-z]+:)|^QQuickWidget does not support using windows as a root "
         "item",
         nullptr, "so was a scene"},
        {Kind::Text, "^Unable to detect a web browser to launch ", nullptr,
         "the machine has none for a guide's link"},
        {Kind::Text, "^Could not (find main qml file|resolve root object)",
         "library/UiComponents/QuickContent.h", "glog gets a warning under the file name QuickContent.cpp"},
    };
    return table;
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

/// The first row of @p kind that concerns what is under way, and @p victim; or -1.
int rowOf(Kind kind, const World& world, const QObject* victim)
{
    const bool isWidget = victim && (victim->isWidgetType() || victim->inherits("Qml::QuickContent"));
    Doings around;
    for (int i = 0; i < world.frames.size(); ++i) {
        const Frame& frame = world.frames[i];
        around |= frame.doing;
        const auto isMeant = [&](const char* type) {
            return !type           ? isWidget
                   : *type == '\0' ? isAt(frame.focusTaker, victim)
                   : !victim       ? frame.object && frame.object->inherits(type)
                                   : concerns(frame, type, victim);
        };
        const auto isInSlotOf = [&](const char* signal) {
            return std::any_of(world.frames.begin() + i, world.frames.end(), [&](const Frame& inner) {
                return inner.doing.testFlag(Doing::Signal) && (*signal == '\0' || isNamed(inner, signal));
            });
        };
        for (std::size_t j = 0; j < rows().size(); ++j) {
            const Row& row = rows()[j];
            if (row.kind == kind && isMeant(row.type) && (!row.name || isNamed(frame, row.name)) &&
                (!row.doing || (row.doing & frame.doing)) && (!row.around || (row.around & around)) &&
                (!row.signal || isInSlotOf(row.signal))) {
                return static_cast<int>(j);
            }
        }
    }
    return -1;
}

template <typename Condition>
bool isListed(Kind kind, Condition condition)
{
    return std::any_of(rows().begin(), rows().end(),
                       [&](const Row& row) { return row.kind == kind && condition(row); });
}

bool hasPart(const QObject* object, const char* type)
{
    const auto parts = object->findChildren<QWidget*>();
    return std::any_of(parts.begin(), parts.end(),
                       [type](const QWidget* part) { return part->inherits(type); });
}

} // namespace

int Exceptions::forbidding(const World& world, const QObject* victim)
{
    return rowOf(Kind::Deletion, world, victim);
}

bool Exceptions::forbidsLoop(const World& world)
{
    return rowOf(Kind::Loop, world, nullptr) >= 0;
}

bool Exceptions::maySet(const QByteArray& property, const QVariant& value)
{
    const bool isEmpty = value.toSize().isValid() && value.toSize().isEmpty();
    return !isEmpty || !isListed(Kind::Property, [&](const Row& row) { return property == row.type; });
}

bool Exceptions::mayGrab(const QWidget* widget)
{
    return !RealUser::isThere() || widget->window()->windowHandle() ||
           !isListed(Kind::Grab, [&](const Row& row) { return hasPart(widget->window(), row.type); });
}

bool Exceptions::isExpected(const QString& message)
{
    return isListed(Kind::Text, [&](const Row& row) {
        return QRegularExpression(QLatin1String(row.type)).match(message).hasMatch();
    });
}

bool Exceptions::mayGoOn(const QString& delivered)
{
    return isListed(Kind::Rest, [&](const Row& row) {
        return delivered.contains(QStringLiteral(" to %1 ").arg(QLatin1String(row.type)));
    });
}

bool Exceptions::mayStayPressed(const QObject* object)
{
    return isListed(Kind::Press, [&](const Row& row) { return object->inherits(row.type); });
}

int Exceptions::checkCitations(const QString& root)
{
    int wrong = 0;
    for (const Row& row : rows()) {
        if (!row.file) {
            continue;
        }
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
