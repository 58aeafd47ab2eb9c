#include "PageRegistry.h"

#include <algorithm>

namespace {

PageInfo row(const char* id, PageGroup group, const QString& title, const QString& introduction,
             const QStringList& keywords, const char* covers, void (*fill)(Page*))
{
    return {QLatin1String(id),
            group,
            title,
            introduction,
            keywords,
            QString::fromLatin1(covers).split(QLatin1Char(' ')),
            fill};
}

} // namespace

QVector<PageInfo> PageRegistry::pages()
{
    return {
        row("color-picker-button", PageGroup::Colour, tr("Colour button"),
            tr("A button whose face is a colour. A click hands over to an exchangeable picker, here the "
               "colour panel or Qt's colour dialog: every colour that is tried is on the button at once."),
            {tr("colour"), tr("picker"), tr("dialog")}, "ColorPickerButton ClickButton AbstractColorPicker",
            &colorPickerButton),
        row("color-input", PageGroup::Colour, tr("Colour field"),
            tr("A colour button in a frame, ready for a row of a form. The frame's margins belong to the "
               "style sheet; the button inside is the anchor for a pop-up picker."),
            {tr("colour"), tr("form"), tr("row"), tr("picker")},
            "ColorInputWidget PopupColorPicker AbstractColorPicker", &colorInput),
        row("color-panel", PageGroup::Colour, tr("Colour panel"),
            tr("The panel that a colour field opens: a palette, a hexadecimal value, the user's own colours, "
               "a selector of any colour, and opacity."),
            {tr("colour"), tr("palette"), tr("opacity"), tr("picker")}, "ColorPickerWidget CustomColors",
            &colorPanel),
        row("color-selector", PageGroup::Colour, tr("Free colour selector"),
            tr("A colour plane above a slider for its hue: one selector for any colour. A colour that code "
               "sets appears on the next turn of the event loop."),
            {tr("colour"), tr("custom"), tr("hue"), tr("slider"), QStringLiteral("HSV")},
            "CustomColorSelectWidget", &colorSelector),
        row("color-plane", PageGroup::Colour, tr("Colour plane"),
            tr("All colours of one hue: saturation grows to the right, brightness upwards. Drag the marker, "
               "also beyond the edge, or move it with the arrow keys, by ten pixels with Shift."),
            {tr("colour"), tr("saturation"), tr("hue"), tr("marker"), QStringLiteral("HSV")},
            "ColorPlaneWidget", &colorPlane),
        row("blending-modes", PageGroup::Colour, tr("Blending modes"),
            tr("How the colour of a layer is combined with what lies under it. The names are sorted in the "
               "user's language, behind the first, which is no blending at all. Here the layer is a grey "
               "ramp and three lights, on a landscape."),
            {tr("layer"), tr("combo box"), tr("composition"), QStringLiteral("Multiply")},
            "ColorBlendingComboBox BlendingMode", &blendingModes),
        row("pipette", PageGroup::Colour, tr("Screen pipette"),
            tr("Picks the colour of any pixel on any screen, of other applications too. A click picks, any "
               "key gives up. The loupe beside the cursor shows the pixels around it."),
            {tr("colour"), tr("pick"), tr("screen"), tr("magnifier"), tr("eyedropper")},
            "Pipette ScreenColorSource", &pipette),
        row("widget-color-picker", PageGroup::Colour, tr("Colour from a widget"),
            tr("Click a button, then into the film: the colour of that pixel is picked. Any other click or "
               "key ends it too; with the cursor elsewhere nothing is picked."),
            {tr("colour"), tr("pick"), tr("preview"), tr("cursor")},
            "WidgetColorPickerButton WidgetColorPicker WidgetColorPickerStylingObject", &widgetColorPicker),
        row("slider-input", PageGroup::Inputs, tr("Slider field"),
            tr("A slider and a spin box of one whole number, kept in step. Each change is reported by both, "
               "so the signal arrives twice with the same value."),
            {tr("number"), tr("integer"), tr("range"), tr("spin box")}, "SliderInputWidget", &sliderInput),
        row("double-slider-input", PageGroup::Inputs, tr("Slider field for fractions"),
            tr("A slider and a spin box of one number with a fixed count of decimals, exact to the last "
               "digit. Both the point and the comma are decimal marks while typing."),
            {tr("number"), tr("decimals"), tr("range"), tr("spin box")}, "DoubleSliderInputWidget",
            &doubleSliderInput),
        row("point-plane", PageGroup::Inputs, tr("Point plane"),
            tr("A pad on which a point is picked by clicking, dragging, also out of the window, and with the "
               "arrow keys, ten pixels at a time with Shift. Here it stands for -1 to 1 both ways."),
            {tr("point"), tr("position"), tr("pad"), tr("drag")}, "PointSelectionPlane", &pointPlane),
        row("point-selector", PageGroup::Inputs, tr("Point selector"),
            tr("A point plane and a spin box for each coordinate, kept in step. A point that is picked is "
               "reported as it is, and then as the spin boxes round it."),
            {tr("point"), tr("position"), tr("coordinates"), tr("spin box")},
            "PointSelectorWidget PointSelectionPlane", &pointSelector),
        row("spin-box", PageGroup::Inputs, tr("Spin box"),
            tr("A spin box that is safe to scroll past, since the wheel changes it only while it has the "
               "focus, and quick to type into: Enter commits the number and leaves it selected."),
            {tr("number"), tr("wheel"), tr("integer")}, "OvSpinBox", &spinBox),
        row("double-spin-box", PageGroup::Inputs, tr("Spin box for fractions"),
            tr("The spin box for fractions. On request it takes both the point and the comma as the decimal "
               "mark, whatever the language, so that nobody has to look for the right key."),
            {tr("number"), tr("decimals"), tr("comma"), tr("wheel")}, "OvDoubleSpinBox", &doubleSpinBox),
        row("custom-slider", PageGroup::Inputs, tr("Slider"),
            tr("A slider that goes where it is clicked: a press on the groove moves the handle there at once "
               "and the drag goes on from it. The wheel changes it only while it has the focus."),
            {tr("number"), tr("wheel"), tr("groove")}, "OvCustomSlider", &customSlider),
        row("double-slider", PageGroup::Inputs, tr("Slider for fractions"),
            tr("A slider with a fractional value: its steps times a multiplier. A value that code sets is "
               "kept exactly, also between two steps, in whatever order multiplier, range and value come."),
            {tr("number"), tr("multiplier"), tr("step")}, "OvDoubleSlider", &doubleSlider),
        row("bind-widgets", PageGroup::Inputs, tr("Slider and spin box in step"),
            tr("Keeps a slider and a spin box on one value, in both directions. What is typed reads back "
               "digit for digit; the handle goes to the nearest step."),
            {tr("binding"), tr("number"), tr("decimals")}, "Util", &boundWidgets),
        row("combo-box", PageGroup::Inputs, tr("Combo box"),
            tr("A combo box that gives way in a narrow panel: the text is cut off with an ellipsis, while "
               "the pop-up is as wide as its widest item. The wheel changes it only while it has the focus."),
            {tr("list"), tr("choice"), tr("pop-up"), tr("wheel")}, "OvComboBox", &comboBox),
        row("tessel-line-edit", PageGroup::Inputs, tr("Line edit"),
            tr("The design system's line edit. Its context menu always has the same shape: what can do "
               "nothing at the moment is disabled, not missing."),
            {tr("text"), tr("context menu"), tr("field")}, "TesselLineEdit", &tesselLineEdit),
        row("tessel-elegant-slider", PageGroup::Inputs, tr("Elegant slider"),
            tr("The design system's slider: a slim groove and a round handle. Where no style sheet speaks of "
               "its parts it draws them in the colours of its palette."),
            {tr("number"), tr("hue"), tr("groove")}, "TesselElegantSlider", &elegantSlider),
        row("tessel-combo-box", PageGroup::Inputs, tr("Combo box of the design system"),
            tr("Gives a combo box the look of the design system in place: items, index and signals stay as "
               "they are."),
            {tr("list"), tr("choice"), QStringLiteral("convertComboBoxToTessel")}, "TesselComboBox",
            &tesselComboBox),
        row("path-selection", PageGroup::Inputs, tr("Folder field"),
            tr("A field for a folder. It asks its host to browse, reports edits in bursts of a tenth of a "
               "second, and looks at the disk only when it is told to check the path. Here the host opens "
               "Qt's folder dialog and shows the space that is free where the path is."),
            {tr("path"), tr("browse"), tr("directory"), tr("disk"), tr("error")}, "PathSelectionWidget",
            &pathSelection),
        row("search", PageGroup::Inputs, tr("Search field"),
            tr("A field for a search: it reports each change at once, and the end of an edit by Enter or by "
               "leaving it. A text never starts with a blank. Its placeholder has three colours, which "
               "change when the mouse comes or goes."),
            {tr("filter"), tr("find"), tr("text"), tr("clear"), tr("placeholder")}, "SearchWidget", &search),
        row("adjusting-list", PageGroup::Inputs, tr("Growing list"),
            tr("A list that is as high as all its rows for as long as it is being loaded, and scrolls like "
               "any other once it is complete. It looks at its rows when it is told to and when it is "
               "resized, and does not watch its model."),
            {tr("list view"), tr("rows"), tr("loading"), tr("height")}, "AdjustingListView", &adjustingList),
        row("properties", PageGroup::Inputs, tr("Properties of a clip"),
            tr("The value inputs in one panel, as an editor shows the properties of a clip. The panel can be "
               "scrolled past every field: the wheel changes only the one that has the keyboard."),
            {tr("panel"), tr("inspector"), tr("form"), tr("editor")},
            "SliderInputWidget DoubleSliderInputWidget PointSelectorWidget ColorBlendingComboBox "
            "ColorInputWidget PathSelectionWidget SearchWidget AdjustingListView",
            &clipProperties),
        row("edit-session", PageGroup::Inputs, tr("One edit, one step"),
            tr("A session tells what a user does to a field as one story, from the first change to the end "
               "of the drag, the text or the pick. Here each becomes one step of undo. Escape takes it "
               "back."),
            {tr("undo"), tr("redo"), tr("several values"), tr("drag"), tr("typing")},
            "EditSession EditCommand", &editSession),
        row("title-card", PageGroup::Inputs, tr("Title cards"),
            tr("An application in miniature, to be read in examples/titlecard: an inspector of several "
               "cards, undo and redo of everything, presets, a tour, a QML dialog, and pictures of the "
               "canvas."),
            {tr("undo"), tr("several values"), tr("application"), tr("tour"), tr("export")},
            "EditSession EditCommand", &titleCard),
        row("frame", PageGroup::Layout, tr("Frame and layout controller"),
            tr("Components build their layouts without margins and spacing; the style sheet sets both "
               "through the layout controller. A frame is its own controller, any other widget gets one "
               "installed."),
            {tr("margins"), tr("spacing"), QStringLiteral("qproperty")}, "OvFrame LayoutController", &frame),
        row("layouts", PageGroup::Layout, tr("Box and grid layouts"),
            tr("A box layout takes its owner's children in the order in which they were made, or a list of "
               "items: widgets with a stretch factor, and spacers that stretch or keep their size. A grid is "
               "filled row by row."),
            {tr("spacer"), tr("stretch"), tr("row"), tr("column"), QStringLiteral("autoFill")},
            "OvBoxLayout OvHBoxLayout OvVBoxLayout OvGridLayout LayoutHelpers", &layouts),
        row("style-hints", PageGroup::Layout, tr("Style hints and properties"),
            tr("Code names a variant, the style sheet gives it a look: a hint is a dynamic property that the "
               "sheet selects on. Setting it polishes the widget again, and only when it changed."),
            {QStringLiteral("styleHint"), QStringLiteral("applyProperty"), QStringLiteral("repolish")},
            "StyleHints Util", &styleHints),
        row("color-hint", PageGroup::Layout, tr("Colour variants"),
            tr("The editor's eight colour variants of plain controls, by name. Anything but one of the names "
               "is ignored; the empty text drops the variant."),
            {tr("variant"), tr("hint"), QStringLiteral("styleHint")}, "ColorHint", &colorHint),
        row("property-provider", PageGroup::Layout, tr("Property provider"),
            tr("A widget that paints itself takes its colours and sizes from a hidden child, which a style "
               "sheet selects by class name and writes with qproperty-."),
            {QStringLiteral("qproperty")}, "PropertyProviderBase", &propertyProvider),
        row("pointing-widget", PageGroup::Bubbles, tr("Pointing bubble"),
            tr("A bubble whose arrow touches a spot. It stays on its screen, or inside its parent, goes to "
               "the other side where there is no room, and follows the widget that it annotates."),
            {tr("bubble"), tr("arrow"), tr("hint"), tr("pop-up")}, "PointingWidget", &pointingWidget),
        row("workaround", PageGroup::Bubbles, tr("Rounded pop-ups"),
            tr("Real rounded corners where desktops disagree about them: a widget with the property "
               "roundedEdges is translucent, and painted all the same."),
            {tr("corner"), tr("translucent"), QStringLiteral("roundedEdges")}, "Workaround", &roundedPopup),
        row("highlight-frame", PageGroup::Bubbles, tr("Highlight frame"),
            tr("Outlines a widget without its notice: it follows the target through moves, resizes and "
               "hiding, lies over all its children and takes neither mouse nor focus."),
            {tr("outline"), tr("overlay")}, "HighlightFrame", &highlightFrame),
        row("pixmap-widget", PageGroup::Bubbles, tr("Animated picture"),
            tr("Plays an animated picture in the size of the widget, keeps its proportions, stays sharp on "
               "scaled screens and rests while it is hidden."),
            {tr("movie"), QStringLiteral("GIF"), tr("animation")}, "OvPixmapWidget", &pixmapWidget),
        row("guide", PageGroup::Guides, tr("Guide"),
            tr("A short piece of help: a heading, an animated picture that plays while it is seen, a "
               "description and a link to further reading. What is empty is left out."),
            {tr("help"), tr("hint"), tr("animation"), tr("link")}, "GuideWidget GuideInfo", &guide),
        row("guide-button", PageGroup::Guides, tr("Guide button"),
            tr("A click opens a guide in a bubble below the button. Escape, a click elsewhere and hiding the "
               "button close it."),
            {tr("help"), tr("hint"), tr("pop-up"), tr("bubble")}, "GuideButton", &guideButton),
        row("dialog-guide", PageGroup::Guides, tr("Dialog guide"),
            tr("A bubble that walks the user through a step and follows the widget that it annotates. Start "
               "the tour to see it at work."),
            {tr("help"), tr("bubble"), tr("tour"), tr("animation")}, "DialogGuideWidget DialogGuideInfo",
            &dialogGuide),
        row("qml-dialog", PageGroup::Guides, tr("QML dialog"),
            tr("A modal dialog whose whole content is a QML scene: a file that is loaded when the dialog "
               "first runs. The scene knows the dialog as \"callback\" and ends it. Change the source and "
               "open it."),
            {QStringLiteral("QML"), tr("dialog"), tr("confirmation"), tr("form"), tr("scene")},
            "QuickDialog QuickContent SheetColors", &qmlDialog),
        row("services", PageGroup::Services, tr("Platform services"),
            tr("The functions and classes below the components, with their live results."),
            QStringList() << tr("File sizes") << tr("Paths") << tr("Own colours and folders")
                          << tr("Scheduler") << tr("Headings") << tr("Languages") << tr("Privacy access")
                          << tr("Focus of hosted QML") << tr("bytes") << tr("unit") << QStringLiteral("KB")
                          << QStringLiteral("MB") << QStringLiteral("GB") << tr("folder") << tr("file")
                          << tr("permission") << tr("validity") << tr("colour") << tr("store")
                          << tr("computer") << tr("timer") << tr("delay") << tr("merge") << tr("burst")
                          << tr("bold") << tr("language") << tr("script")
                          << QStringLiteral("localeDependedBoldText") << tr("screen") << tr("capture")
                          << tr("keyboard") << tr("dialog") << QStringLiteral("QML"),
            "FormatFileSize FileUtil FS Settings SettingsStore StandardFolderUrls CustomColors Scheduler "
            "Customization PrivacyAccess QmlWindowFocusWorkaround Translations",
            &services),
    };
}

std::optional<PageInfo> PageRegistry::find(const QString& id)
{
    const QVector<PageInfo> all = pages();
    const auto found =
        std::find_if(all.cbegin(), all.cend(), [&id](const PageInfo& page) { return page.id == id; });
    return found == all.cend() ? std::nullopt : std::optional<PageInfo>(*found);
}

QString PageRegistry::groupTitle(PageGroup group)
{
    switch (group) {
    case PageGroup::Colour:
        return tr("Colour");
    case PageGroup::Inputs:
        return tr("Inputs");
    case PageGroup::Layout:
        return tr("Layout and styling");
    case PageGroup::Bubbles:
        return tr("Bubbles and frames");
    case PageGroup::Guides:
        return tr("Guides and dialogs");
    case PageGroup::Services:
        return tr("Services");
    }
    return {};
}

bool PageRegistry::matches(const PageInfo& page, const QString& filter)
{
    const QStringList texts = QStringList{page.title, page.id} + page.covers + page.keywords;
    const QStringList words = filter.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(words.cbegin(), words.cend(), [&texts](const QString& word) {
        return std::any_of(texts.cbegin(), texts.cend(),
                           [&word](const QString& text) { return text.contains(word, Qt::CaseInsensitive); });
    });
}
