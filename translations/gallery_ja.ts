<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>BoxLayoutPage</name>
    <message>
        <source>Box and grid layouts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>spacer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stretch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A box layout takes its owner&apos;s children in the order in which they were made, or a list of items: widgets with a stretch factor, and spacers that stretch or keep their size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>autoFill() and a stretch behind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>addItems() with a spacer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The spacer behind item 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Policy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Factor or pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The frame around</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorInputPage</name>
    <message>
        <source>Colour field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A colour button in a frame, ready for a row of a form. The frame&apos;s margins belong to the style sheet; the button inside is the anchor for a pop-up picker.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click it to pick a colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A frame around one colour button.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorPickerButtonPage</name>
    <message>
        <source>Colour button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A button whose face is a colour. A click hands over to an exchangeable picker, here Qt&apos;s colour dialog: every colour that is tried is on the button at once, and Cancel brings the old one back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The face is a child of its own; the button says by dynamic properties when it has no colour, or several.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>Pick a colour</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FramePage</name>
    <message>
        <source>Frame and layout controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>margins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Components build their layouts without margins and spacing; the style sheet sets both through the layout controller. A frame is its own controller, any other widget gets one installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A frame controls its own layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A group box with an installed controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The base of composite components; a sheet sets the metrics of its layout through its properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any widget with an installed controller: select the controller by its class name below the widget.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The style sheet %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style sheets (*.qss)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – UiComponents Gallery</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Search title, class, keyword</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageRegistry</name>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout and styling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bubbles and frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Services</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyProviderPage</name>
    <message>
        <source>Property provider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A widget that paints itself takes its colours and sizes from a hidden child, which a style sheet selects by class name and writes with qproperty-.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A dial whose hand is styled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An example: the provider is selected by its class name below the widget that it serves.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SignalLogView</name>
    <message>
        <source>Signals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the component: its signals appear here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StyleHintsPage</name>
    <message>
        <source>Style hints and properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code names a variant, the style sheet gives it a look: a hint is a dynamic property that the sheet selects on. Setting it polishes the widget again, and only when it changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SwitchBar</name>
    <message>
        <source>A style sheet of your own that reloads when you save it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restarts the gallery on the same page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
