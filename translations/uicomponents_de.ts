<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
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
        <translation>Pink</translation>
    </message>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>golden yellow</source>
        <translation>Goldgelb</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>olive</source>
        <translation>Oliv</translation>
    </message>
    <message>
        <source>yellow green</source>
        <translation>Gelbgrün</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>turquoise</source>
        <translation>Türkis</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>azure</source>
        <translation>Azurblau</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>very dark grey</source>
        <translation>sehr dunkles Grau</translation>
    </message>
    <message>
        <source>dark grey</source>
        <translation>dunkles Grau</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>light grey</source>
        <translation>helles Grau</translation>
    </message>
    <message>
        <source>very light grey</source>
        <translation>sehr helles Grau</translation>
    </message>
    <message>
        <source>white</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>very dark %1</source>
        <translation>sehr dunkles %1</translation>
    </message>
    <message>
        <source>very light %1</source>
        <translation>sehr helles %1</translation>
    </message>
    <message>
        <source>greyish %1</source>
        <translation>gräuliches %1</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>dunkles %1</translation>
    </message>
    <message>
        <source>light %1</source>
        <translation>helles %1</translation>
    </message>
    <message>
        <source>several colours</source>
        <translation>mehrere Farben</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>keine Farbe</translation>
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
        <translation>Weitere:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Deckkraft:</translation>
    </message>
    <message>
        <source>Colour value</source>
        <translation>Farbwert</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>Farbe vom Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Choose another colour</source>
        <translation>Andere Farbe wählen</translation>
    </message>
    <message>
        <source>Current colour</source>
        <translation>Aktuelle Farbe</translation>
    </message>
    <message>
        <source>Needs a mouse; without one, type the colour value</source>
        <translation>Braucht eine Maus; ohne Maus den Farbwert eingeben</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>Eigene Farben</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Opacity in percent</source>
        <translation>Deckkraft in Prozent</translation>
    </message>
    <message>
        <source>Empty place</source>
        <translation>Leerer Platz</translation>
    </message>
</context>
<context>
    <name>CustomColorSelectWidget</name>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation and brightness</source>
        <translation>Sättigung und Helligkeit</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
</context>
<context>
    <name>DialogGuideWidget</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>Animiertes Bild</translation>
    </message>
</context>
<context>
    <name>EditSessionCover</name>
    <message>
        <source>Several values</source>
        <translation>Mehrere Werte</translation>
    </message>
</context>
<context>
    <name>FileUtil</name>
    <message>
        <source>No path is given</source>
        <translation>Es ist kein Pfad angegeben</translation>
    </message>
    <message>
        <source>Not a path on a disk: %1</source>
        <translation>Kein Pfad auf einem Datenträger: %1</translation>
    </message>
    <message>
        <source>The path has characters that names on this disk cannot have: %1</source>
        <translation>Der Pfad enthält Zeichen, die Namen auf diesem Datenträger nicht haben können: %1</translation>
    </message>
    <message>
        <source>The path is too long: %1</source>
        <translation>Der Pfad ist zu lang: %1</translation>
    </message>
    <message>
        <source>A name in the path is too long: %1</source>
        <translation>Ein Name im Pfad ist zu lang: %1</translation>
    </message>
    <message>
        <source>There is something else in the place of a folder: %1</source>
        <translation>Anstelle eines Ordners steht etwas anderes: %1</translation>
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
        <translation>Animiertes Bild</translation>
    </message>
    <message>
        <source>Playing; Space pauses it</source>
        <translation>Wird abgespielt; Leertaste hält an</translation>
    </message>
    <message>
        <source>Paused; Space plays it</source>
        <translation>Angehalten; Leertaste spielt ab</translation>
    </message>
</context>
<context>
    <name>Orvane::Tessel::TesselLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alle&amp;s auswählen</translation>
    </message>
</context>
<context>
    <name>PathSelectionWidget</name>
    <message>
        <source>Selected path is not readable</source>
        <translation>Der gewählte Pfad ist nicht lesbar</translation>
    </message>
    <message>
        <source>Selected path is not writable</source>
        <translation>Der gewählte Pfad ist nicht beschreibbar</translation>
    </message>
    <message>
        <source>Required: %1</source>
        <translation>Benötigt: %1</translation>
    </message>
    <message>
        <source>Available: %1</source>
        <translation>Verfügbar: %1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Back to the default folder</source>
        <translation>Zurück zum Standardordner</translation>
    </message>
</context>
<context>
    <name>PointSelectorWidget</name>
    <message>
        <source>Position on the x-axis</source>
        <translation>Position auf der x-Achse</translation>
    </message>
    <message>
        <source>Position on the y-axis</source>
        <translation>Position auf der y-Achse</translation>
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
        <translation>Dieser Desktop hat keinen Dienst für Farben vom Bildschirm.</translation>
    </message>
    <message>
        <source>This desktop cannot pick colours from the screen for programs.</source>
        <translation>Dieser Desktop kann für Programme keine Farben vom Bildschirm aufnehmen.</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen does not answer.</source>
        <translation>Der Dienst des Desktops für Farben vom Bildschirm antwortet nicht.</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen has refused.</source>
        <translation>Der Dienst des Desktops für Farben vom Bildschirm hat abgelehnt.</translation>
    </message>
</context>
<context>
    <name>SearchWidget</name>
    <message>
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>SliderInputWidget</name>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
</context>
<context>
    <name>WidgetColorPickerButton</name>
    <message>
        <source>Needs a mouse; without one, type the value in a colour panel</source>
        <translation>Braucht eine Maus; ohne sie lässt sich der Wert in einer Farbtafel eingeben</translation>
    </message>
</context>
<context>
    <name>blendingModes</name>
    <message>
        <source>Overlay</source>
        <translation>Ineinanderkopieren</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aufhellen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>ColorDodge</source>
        <translation>Farbig abwedeln</translation>
    </message>
    <message>
        <source>LinearDodge</source>
        <translation>Linear abwedeln</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Negativ multiplizieren</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Abdunkeln</translation>
    </message>
    <message>
        <source>ColorBurn</source>
        <translation>Farbig nachbelichten</translation>
    </message>
    <message>
        <source>HardLight</source>
        <translation>Hartes Licht</translation>
    </message>
    <message>
        <source>SoftLight</source>
        <translation>Weiches Licht</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Ausschluss</translation>
    </message>
    <message>
        <source>SourceOver</source>
        <translation>Normal</translation>
    </message>
</context>
</TS>
