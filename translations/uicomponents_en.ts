<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>AccessibleNames</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>Two sentences</comment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>pink</source>
        <translation>pink</translation>
    </message>
    <message>
        <source>red</source>
        <translation>red</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
    <message>
        <source>brown</source>
        <translation>brown</translation>
    </message>
    <message>
        <source>golden yellow</source>
        <translation>golden yellow</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>yellow</translation>
    </message>
    <message>
        <source>olive</source>
        <translation>olive</translation>
    </message>
    <message>
        <source>yellow green</source>
        <translation>yellow green</translation>
    </message>
    <message>
        <source>green</source>
        <translation>green</translation>
    </message>
    <message>
        <source>turquoise</source>
        <translation>turquoise</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>cyan</translation>
    </message>
    <message>
        <source>azure</source>
        <translation>azure</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blue</translation>
    </message>
    <message>
        <source>violet</source>
        <translation>violet</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>black</source>
        <translation>black</translation>
    </message>
    <message>
        <source>very dark grey</source>
        <translation>very dark grey</translation>
    </message>
    <message>
        <source>dark grey</source>
        <translation>dark grey</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>grey</translation>
    </message>
    <message>
        <source>light grey</source>
        <translation>light grey</translation>
    </message>
    <message>
        <source>very light grey</source>
        <translation>very light grey</translation>
    </message>
    <message>
        <source>white</source>
        <translation>white</translation>
    </message>
    <message>
        <source>very dark %1</source>
        <translation>very dark %1</translation>
    </message>
    <message>
        <source>very light %1</source>
        <translation>very light %1</translation>
    </message>
    <message>
        <source>greyish %1</source>
        <translation>greyish %1</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>dark %1</translation>
    </message>
    <message>
        <source>light %1</source>
        <translation>light %1</translation>
    </message>
    <message>
        <source>several colours</source>
        <translation>several colours</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>no colour</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <translation>%1, %2 %</translation>
    </message>
</context>
<context>
    <name>ColorPickerWidget</name>
    <message>
        <source>Other:</source>
        <translation>Other:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Opacity:</translation>
    </message>
    <message>
        <source>Colour value</source>
        <translation>Colour value</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>Pick a colour from the screen</translation>
    </message>
    <message>
        <source>Choose another colour</source>
        <translation>Choose another colour</translation>
    </message>
    <message>
        <source>Current colour</source>
        <translation>Current colour</translation>
    </message>
    <message>
        <source>Needs a mouse; without one, type the colour value</source>
        <translation>Needs a mouse; without one, type the colour value</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>Own colours</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>Opacity in percent</source>
        <translation>Opacity in percent</translation>
    </message>
    <message>
        <source>Empty place</source>
        <translation>Empty place</translation>
    </message>
</context>
<context>
    <name>CustomColorSelectWidget</name>
    <message>
        <source>Hue</source>
        <translation>Hue</translation>
    </message>
    <message>
        <source>Saturation and brightness</source>
        <translation>Saturation and brightness</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
</context>
<context>
    <name>DialogGuideWidget</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>Animated picture</translation>
    </message>
</context>
<context>
    <name>EditSessionCover</name>
    <message>
        <source>Several values</source>
        <translation>Several values</translation>
    </message>
</context>
<context>
    <name>FileUtil</name>
    <message>
        <source>No path is given</source>
        <translation>No path is given</translation>
    </message>
    <message>
        <source>Not a path on a disk: %1</source>
        <translation>Not a path on a disk: %1</translation>
    </message>
    <message>
        <source>The path has characters that names on this disk cannot have: %1</source>
        <translation>The path has characters that names on this disk cannot have: %1</translation>
    </message>
    <message>
        <source>The path is too long: %1</source>
        <translation>The path is too long: %1</translation>
    </message>
    <message>
        <source>A name in the path is too long: %1</source>
        <translation>A name in the path is too long: %1</translation>
    </message>
    <message>
        <source>There is something else in the place of a folder: %1</source>
        <translation>There is something else in the place of a folder: %1</translation>
    </message>
</context>
<context>
    <name>FormatFileSize</name>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 EB</translation>
    </message>
</context>
<context>
    <name>GuideWidget</name>
    <message>
        <source>Animated picture</source>
        <translation>Animated picture</translation>
    </message>
    <message>
        <source>Playing; Space pauses it</source>
        <translation>Playing; Space pauses it</translation>
    </message>
    <message>
        <source>Paused; Space plays it</source>
        <translation>Paused; Space plays it</translation>
    </message>
</context>
<context>
    <name>Orvane::Tessel::TesselLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Select &amp;All</translation>
    </message>
</context>
<context>
    <name>PathSelectionWidget</name>
    <message>
        <source>Selected path is not readable</source>
        <translation>Selected path is not readable</translation>
    </message>
    <message>
        <source>Selected path is not writable</source>
        <translation>Selected path is not writable</translation>
    </message>
    <message>
        <source>Required: %1</source>
        <translation>Required: %1</translation>
    </message>
    <message>
        <source>Available: %1</source>
        <translation>Available: %1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
    <message>
        <source>Back to the default folder</source>
        <translation>Back to the default folder</translation>
    </message>
</context>
<context>
    <name>PointSelectorWidget</name>
    <message>
        <source>Position on the x-axis</source>
        <translation>Position on the x-axis</translation>
    </message>
    <message>
        <source>Position on the y-axis</source>
        <translation>Position on the y-axis</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>ScreenColorPortal</name>
    <message>
        <source>This desktop has no service for colours of the screen.</source>
        <translation>This desktop has no service for colours of the screen.</translation>
    </message>
    <message>
        <source>This desktop cannot pick colours from the screen for programs.</source>
        <translation>This desktop cannot pick colours from the screen for programs.</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen does not answer.</source>
        <translation>The desktop&apos;s service for colours of the screen does not answer.</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen has refused.</source>
        <translation>The desktop&apos;s service for colours of the screen has refused.</translation>
    </message>
</context>
<context>
    <name>SearchWidget</name>
    <message>
        <source>Clear the search</source>
        <translation>Clear the search</translation>
    </message>
</context>
<context>
    <name>SliderInputWidget</name>
    <message>
        <source>number</source>
        <translation>number</translation>
    </message>
</context>
<context>
    <name>WidgetColorPickerButton</name>
    <message>
        <source>Needs a mouse; without one, type the value in a colour panel</source>
        <translation>Needs a mouse; without one, type the value in a colour panel</translation>
    </message>
</context>
<context>
    <name>blendingModes</name>
    <message>
        <source>Overlay</source>
        <translation>Overlay</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Lighten</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>ColorDodge</source>
        <translation>Colour dodge</translation>
    </message>
    <message>
        <source>LinearDodge</source>
        <translation>Linear dodge</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Screen</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiply</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Darken</translation>
    </message>
    <message>
        <source>ColorBurn</source>
        <translation>Colour burn</translation>
    </message>
    <message>
        <source>HardLight</source>
        <translation>Hard light</translation>
    </message>
    <message>
        <source>SoftLight</source>
        <translation>Soft light</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Exclusion</translation>
    </message>
    <message>
        <source>SourceOver</source>
        <translation>Normal</translation>
    </message>
</context>
</TS>
