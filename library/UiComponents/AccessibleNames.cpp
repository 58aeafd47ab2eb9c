#include "AccessibleNames.h"

#include <QCoreApplication>
#include <QLabel>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QVector>

#include <algorithm>

namespace {

/// A part by the class of its component and by its own object name.
struct PartName
{
    const char* component;
    const char* part;
    // Null for the main part, which has the component's name.
    const char* name;
    // Whether it is meaningless without the component's name.
    bool isJoined = false;
    const char* hint = nullptr;
};

// clang-format off
const PartName partNames[] = {
    {"ColorInputWidget", "colorPicker", nullptr},
    {"ColorPickerWidget", "currentColorDisplayLabel",
     QT_TRANSLATE_NOOP("ColorPickerWidget", "Current colour")},
    {"ColorPickerWidget", "currentColorValueEdit", QT_TRANSLATE_NOOP("ColorPickerWidget", "Colour value")},
    {"ColorPickerWidget", "pipetteButton",
     QT_TRANSLATE_NOOP("ColorPickerWidget", "Pick a colour from the screen"), false,
     QT_TRANSLATE_NOOP("ColorPickerWidget", "Needs a mouse; without one, type the colour value")},
    {"ColorPickerWidget", "addCustomColorButton",
     QT_TRANSLATE_NOOP("ColorPickerWidget", "Choose another colour")},
    {"ColorPickerWidget", "colorMatrixPanel", QT_TRANSLATE_NOOP("ColorPickerWidget", "Palette")},
    {"ColorPickerWidget", "otherColorsQueuePanel", QT_TRANSLATE_NOOP("ColorPickerWidget", "Own colours")},
    {"ColorPickerWidget", "opacitySlider", QT_TRANSLATE_NOOP("ColorPickerWidget", "Opacity")},
    {"ColorPickerWidget", "opacitySpinbox", QT_TRANSLATE_NOOP("ColorPickerWidget", "Opacity in percent")},
    {"CustomColorSelectWidget", "colorPlane",
     QT_TRANSLATE_NOOP("CustomColorSelectWidget", "Saturation and brightness")},
    {"CustomColorSelectWidget", "hueSlider", QT_TRANSLATE_NOOP("CustomColorSelectWidget", "Hue")},
    {"DialogGuideWidget", "closeButton", QT_TRANSLATE_NOOP("DialogGuideWidget", "Close")},
    {"DialogGuideWidget", "gifPixmapWidget", QT_TRANSLATE_NOOP("DialogGuideWidget", "Animated picture")},
    {"GuideWidget", "gifPixmapWidget", QT_TRANSLATE_NOOP("GuideWidget", "Animated picture")},
    {"SliderInputWidget", "slider", nullptr},
    {"SliderInputWidget", "spinbox", QT_TRANSLATE_NOOP("SliderInputWidget", "number"), true},
    {"DoubleSliderInputWidget", "slider", nullptr},
    {"DoubleSliderInputWidget", "spinbox", QT_TRANSLATE_NOOP("SliderInputWidget", "number"), true},
    {"PointSelectorWidget", "pointSelector", nullptr},
    {"PointSelectorWidget", "xSpinbox", QT_TRANSLATE_NOOP("PointSelectorWidget", "x"), true},
    {"PointSelectorWidget", "ySpinbox", QT_TRANSLATE_NOOP("PointSelectorWidget", "y"), true},
    {"PathSelectionWidget", "pathLineEdit", nullptr},
    {"PathSelectionWidget", "pathBrowseButton", QT_TRANSLATE_NOOP("PathSelectionWidget", "Choose a folder"),
     true},
    {"PathSelectionWidget", "pathResetButton",
     QT_TRANSLATE_NOOP("PathSelectionWidget", "Back to the default folder"), true},
    {"PathSelectionWidget", "errorLabel", nullptr},
    {"SearchWidget", "searchLineEdit", nullptr},
    {"SearchWidget", "clearSearchButton", QT_TRANSLATE_NOOP("SearchWidget", "Clear the search")},
};
// clang-format on

/// The contexts of the texts are the components', but for the twin that shares its sibling's.
QString translated(const PartName& entry, const char* text)
{
    const bool isTwin = qstrcmp(entry.component, "DoubleSliderInputWidget") == 0;
    return QCoreApplication::translate(isTwin ? "SliderInputWidget" : entry.component, text);
}

/// The classes of the table, each once.
QVector<const char*> componentClasses()
{
    QVector<const char*> classes;
    for (const PartName& entry : partNames) {
        if (classes.isEmpty() || qstrcmp(classes.last(), entry.component) != 0) {
            classes.append(entry.component);
        }
    }
    return classes;
}

bool isComponent(const QWidget* widget)
{
    static const QVector<const char*> classes = componentClasses();
    return std::any_of(classes.cbegin(), classes.cend(),
                       [widget](const char* name) { return widget->inherits(name); });
}

/// Whether some component has a part called so.
bool isPartName(const QString& name)
{
    return std::any_of(std::begin(partNames), std::end(partNames),
                       [&name](const PartName& entry) { return name == QLatin1String(entry.part); });
}

const PartName* entryOf(const QWidget* widget, const QWidget* component)
{
    const QString name = widget->objectName();
    const auto* const found =
        std::find_if(std::begin(partNames), std::end(partNames), [&](const PartName& entry) {
            return component->inherits(entry.component) && name == QLatin1String(entry.part);
        });
    return found == std::end(partNames) ? nullptr : found;
}

} // namespace

QWidget* AccessibleNames::componentOf(const QWidget* widget)
{
    const QWidget* inner = widget;
    while (inner && !inner->isWindow()) {
        QWidget* const outer = inner->parentWidget();
        if (outer && isComponent(outer)) {
            return outer;
        }
        inner = outer;
    }
    return nullptr;
}

QLabel* AccessibleNames::labelOf(const QWidget* widget)
{
    for (const QWidget* outer = widget->parentWidget(); outer; outer = outer->parentWidget()) {
        const auto labels = outer->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        for (QLabel* label : labels) {
            if (label->buddy() == widget) {
                return label;
            }
        }
        if (outer->isWindow()) {
            break;
        }
    }
    return nullptr;
}

QString AccessibleNames::ownName(const QWidget* widget)
{
    if (!widget->accessibleName().isEmpty()) {
        return widget->accessibleName();
    }
    const QLabel* const label = labelOf(widget);
    return label ? plainText(label) : QString();
}

QString AccessibleNames::plainText(const QLabel* label)
{
    QString text = label->text();
    if (label->textFormat() != Qt::PlainText && Qt::mightBeRichText(text)) {
        // Without the files that a document would load.
        text = QTextDocumentFragment::fromHtml(text).toPlainText();
    }
    if (label->buddy()) { // others show it as it is
        text.replace(QRegularExpression(QString::fromLatin1("&(.)")), QString::fromLatin1("\\1"));
    }
    text = text.trimmed();
    if (text.endsWith(QLatin1Char(':')) || text.endsWith(QChar(0xff1a))) {
        text.chop(1);
    }
    return text.trimmed();
}

QString AccessibleNames::nameOf(const QWidget* widget)
{
    const QWidget* const component = componentOf(widget);
    const PartName* const entry = component ? entryOf(widget, component) : nullptr;
    QString part = entry && entry->name ? translated(*entry, entry->name) : QString();
    if (entry && !entry->isJoined && !part.isEmpty() && widget->accessibleName().isEmpty()) {
        return part;
    }
    const QString own = ownName(widget);
    return own.isEmpty() && entry ? joined(nameOf(component), part) : own;
}

QString AccessibleNames::joined(const QString& component, const QString& part)
{
    if (component.isEmpty() || part.isEmpty()) {
        return component + part;
    }
    return QCoreApplication::translate("AccessibleNames", "%1, %2").arg(component, part);
}

QString AccessibleNames::sentences(const QString& first, const QString& second)
{
    if (first.isEmpty() || second.isEmpty()) {
        return first + second;
    }
    if (QString::fromUtf8("\u3002\uff01\uff1f").contains(first.back())) {
        return first + second;
    }
    if (QString::fromLatin1(".!?").contains(first.back())) {
        return first + QLatin1Char(' ') + second;
    }
    return QCoreApplication::translate("AccessibleNames", "%1. %2", "Two sentences").arg(first, second);
}

bool AccessibleNames::isNamedByComponent(const QWidget* widget)
{
    const QWidget* const component = componentOf(widget);
    const PartName* const entry = component ? entryOf(widget, component) : nullptr;
    return entry && !entry->name && ownName(widget).isEmpty();
}

bool AccessibleNames::hasEntry(const QWidget* widget)
{
    const QWidget* const component = isPartName(widget->objectName()) ? componentOf(widget) : nullptr;
    return component && entryOf(widget, component);
}

QString AccessibleNames::hintOf(const QWidget* widget)
{
    const QWidget* const component = componentOf(widget);
    const PartName* const entry = component ? entryOf(widget, component) : nullptr;
    if (widget->inherits("WidgetColorPickerButton")) {
        return QCoreApplication::translate("WidgetColorPickerButton",
                                           "Needs a mouse; without one, type the value in a colour panel");
    }
    return entry && entry->hint ? translated(*entry, entry->hint) : QString();
}
