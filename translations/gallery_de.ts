<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Broken</name>
    <message>
        <source>Now it loads. Click to close.</source>
        <translation>Jetzt lädt sie. Zum Schließen klicken.</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Discard the sequence?</source>
        <translation>Sequenz verwerfen?</translation>
    </message>
    <message>
        <source>Its cuts and titles will be gone. The clips stay in the project.</source>
        <translation>Schnitte und Titel gehen verloren. Die Clips bleiben im Projekt.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>Pick a colour</source>
        <translation>Farbe wählen</translation>
    </message>
</context>
<context>
    <name>FolderBrowser</name>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
</context>
<context>
    <name>Form</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Sequence 1</source>
        <translation>Sequenz 1</translation>
    </message>
    <message>
        <source>Frames a second, 1 to 240</source>
        <translation>Bilder pro Sekunde, 1 bis 240</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The style sheet %1 cannot be read.</source>
        <translation>Das Stylesheet %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Stylesheet</translation>
    </message>
    <message>
        <source>Style sheets (*.qss)</source>
        <translation>Stylesheets (*.qss)</translation>
    </message>
    <message>
        <source>%1 – UiComponents Gallery</source>
        <translation>%1 – UiComponents-Galerie</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Enabled</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiv</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Search title, class, keyword</source>
        <translation>Titel, Klasse, Stichwort suchen</translation>
    </message>
    <message>
        <source>Search pages</source>
        <translation>Seiten suchen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>PageRegistry</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Eingaben</translation>
    </message>
    <message>
        <source>Layout and styling</source>
        <translation>Layout und Stil</translation>
    </message>
    <message>
        <source>Bubbles and frames</source>
        <translation>Sprechblasen und Rahmen</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Dienste</translation>
    </message>
    <message>
        <source>Guides and dialogs</source>
        <translation>Hilfen und Dialoge</translation>
    </message>
    <message>
        <source>Colour button</source>
        <translation>Farbknopf</translation>
    </message>
    <message>
        <source>A button whose face is a colour. A click hands over to an exchangeable picker, here the colour panel or Qt&apos;s colour dialog: every colour that is tried is on the button at once.</source>
        <translation>Ein Knopf, dessen Fläche eine Farbe ist. Ein Klick übergibt an eine austauschbare Auswahl, hier die Farbtafel oder den Farbdialog von Qt: Jede probierte Farbe ist sofort auf dem Knopf.</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>picker</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Colour field</source>
        <translation>Farbfeld</translation>
    </message>
    <message>
        <source>A colour button in a frame, ready for a row of a form. The frame&apos;s margins belong to the style sheet; the button inside is the anchor for a pop-up picker.</source>
        <translation>Ein Farbknopf in einem Rahmen, bereit für die Zeile eines Formulars. Die Ränder des Rahmens gehören dem Stylesheet; der Knopf darin ist der Anker für eine aufklappende Auswahl.</translation>
    </message>
    <message>
        <source>form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>Farbtafel</translation>
    </message>
    <message>
        <source>The panel that a colour field opens: a palette, a hexadecimal value, the user&apos;s own colours, a selector of any colour, and opacity.</source>
        <translation>Die Tafel, die ein Farbfeld öffnet: eine Palette, ein hexadezimaler Wert, die eigenen Farben, eine freie Farbwahl und Deckkraft.</translation>
    </message>
    <message>
        <source>palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Free colour selector</source>
        <translation>Freie Farbwahl</translation>
    </message>
    <message>
        <source>A colour plane above a slider for its hue: one selector for any colour. A colour that code sets appears on the next turn of the event loop.</source>
        <translation>Eine Farbebene über einem Schieber für ihren Farbton: eine Auswahl für jede Farbe. Eine vom Code gesetzte Farbe erscheint beim nächsten Durchlauf der Ereignisschleife.</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>eigene</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>Schieber</translation>
    </message>
    <message>
        <source>Colour plane</source>
        <translation>Farbebene</translation>
    </message>
    <message>
        <source>All colours of one hue: saturation grows to the right, brightness upwards. Drag the marker, also beyond the edge, or move it with the arrow keys, by ten pixels with Shift.</source>
        <translation>Alle Farben eines Farbtons: Die Sättigung wächst nach rechts, die Helligkeit nach oben. Ziehen Sie die Marke, auch über den Rand hinaus, oder bewegen Sie sie mit den Pfeiltasten, mit Umschalt um zehn Pixel.</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>Blending modes</source>
        <translation>Mischmodi</translation>
    </message>
    <message>
        <source>How the colour of a layer is combined with what lies under it. The names are sorted in the user&apos;s language, behind the first, which is no blending at all. Here the layer is a grey ramp and three lights, on a landscape.</source>
        <translation>Wie die Farbe einer Ebene mit dem verrechnet wird, was unter ihr liegt. Die Namen sind in der Sprache des Benutzers sortiert, hinter dem ersten, der gar nicht mischt. Hier ist die Ebene ein Grauverlauf mit drei Lichtern, auf einer Landschaft.</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>combo box</source>
        <translation>Auswahlfeld</translation>
    </message>
    <message>
        <source>composition</source>
        <translation>Komposition</translation>
    </message>
    <message>
        <source>Screen pipette</source>
        <translation>Bildschirmpipette</translation>
    </message>
    <message>
        <source>Picks the colour of any pixel on any screen, of other applications too. A click picks, any key gives up. The loupe beside the cursor shows the pixels around it.</source>
        <translation>Nimmt die Farbe jedes Pixels auf jedem Bildschirm auf, auch die anderer Anwendungen. Ein Klick nimmt auf, jede Taste bricht ab. Die Lupe neben dem Mauszeiger zeigt die Pixel um ihn.</translation>
    </message>
    <message>
        <source>pick</source>
        <translation>aufnehmen</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>magnifier</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>eyedropper</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Colour from a widget</source>
        <translation>Farbe aus einem Widget</translation>
    </message>
    <message>
        <source>Click a button, then into the film: the colour of that pixel is picked. Any other click or key ends it too; with the cursor elsewhere nothing is picked.</source>
        <translation>Klicken Sie auf einen Knopf, dann in den Film: Die Farbe dieses Pixels wird aufgenommen. Jeder andere Klick und jede Taste beendet es auch; steht der Mauszeiger woanders, wird nichts aufgenommen.</translation>
    </message>
    <message>
        <source>preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>cursor</source>
        <translation>Mauszeiger</translation>
    </message>
    <message>
        <source>Slider field</source>
        <translation>Schieberfeld</translation>
    </message>
    <message>
        <source>A slider and a spin box of one whole number, kept in step. Each change is reported by both, so the signal arrives twice with the same value.</source>
        <translation>Schieber und Zahlenfeld für eine ganze Zahl, im Gleichschritt gehalten. Beide melden jede Änderung, daher kommt das Signal zweimal mit demselben Wert.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>spin box</source>
        <translation>Zahlenfeld</translation>
    </message>
    <message>
        <source>Slider field for fractions</source>
        <translation>Schieberfeld für Brüche</translation>
    </message>
    <message>
        <source>A slider and a spin box of one number with a fixed count of decimals, exact to the last digit. Both the point and the comma are decimal marks while typing.</source>
        <translation>Schieber und Zahlenfeld für eine Zahl mit fester Anzahl von Nachkommastellen, genau bis zur letzten Ziffer. Beim Tippen gelten Punkt und Komma als Dezimalzeichen.</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>Nachkommastellen</translation>
    </message>
    <message>
        <source>Point plane</source>
        <translation>Punktebene</translation>
    </message>
    <message>
        <source>A pad on which a point is picked by clicking, dragging, also out of the window, and with the arrow keys, ten pixels at a time with Shift. Here it stands for -1 to 1 both ways.</source>
        <translation>Eine Fläche, auf der man einen Punkt wählt: durch Klicken, durch Ziehen, auch aus dem Fenster hinaus, und mit den Pfeiltasten, mit Umschalt um je zehn Pixel. Hier steht sie in beiden Richtungen für -1 bis 1.</translation>
    </message>
    <message>
        <source>point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>pad</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>drag</source>
        <translation>ziehen</translation>
    </message>
    <message>
        <source>Point selector</source>
        <translation>Punktwahl</translation>
    </message>
    <message>
        <source>A point plane and a spin box for each coordinate, kept in step. A point that is picked is reported as it is, and then as the spin boxes round it.</source>
        <translation>Eine Punktebene und ein Zahlenfeld für jede Koordinate, im Gleichschritt gehalten. Ein gewählter Punkt wird gemeldet, wie er ist, und dann so, wie die Zahlenfelder ihn runden.</translation>
    </message>
    <message>
        <source>coordinates</source>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <source>Spin box</source>
        <translation>Zahlenfeld</translation>
    </message>
    <message>
        <source>A spin box that is safe to scroll past, since the wheel changes it only while it has the focus, and quick to type into: Enter commits the number and leaves it selected.</source>
        <translation>Ein Zahlenfeld, an dem man gefahrlos vorbeirollt, weil das Mausrad es nur mit Fokus ändert, und in das man schnell tippt: Die Eingabetaste übernimmt die Zahl und lässt sie ausgewählt.</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Spin box for fractions</source>
        <translation>Zahlenfeld für Brüche</translation>
    </message>
    <message>
        <source>The spin box for fractions. On request it takes both the point and the comma as the decimal mark, whatever the language, so that nobody has to look for the right key.</source>
        <translation>Das Zahlenfeld für Brüche. Auf Wunsch nimmt es in jeder Sprache Punkt und Komma als Dezimalzeichen, sodass niemand die richtige Taste suchen muss.</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Schieber</translation>
    </message>
    <message>
        <source>A slider that goes where it is clicked: a press on the groove moves the handle there at once and the drag goes on from it. The wheel changes it only while it has the focus.</source>
        <translation>Ein Schieber, der dorthin geht, wo man klickt: Ein Druck auf die Rinne bewegt den Griff sofort dorthin, und das Ziehen geht von dort weiter. Das Mausrad ändert ihn nur mit Fokus.</translation>
    </message>
    <message>
        <source>groove</source>
        <translation>Rinne</translation>
    </message>
    <message>
        <source>Slider for fractions</source>
        <translation>Schieber für Brüche</translation>
    </message>
    <message>
        <source>A slider with a fractional value: its steps times a multiplier. A value that code sets is kept exactly, also between two steps, in whatever order multiplier, range and value come.</source>
        <translation>Ein Schieber mit gebrochenem Wert: seine Schritte mal einem Multiplikator. Ein vom Code gesetzter Wert bleibt genau erhalten, auch zwischen zwei Schritten, in welcher Reihenfolge Multiplikator, Bereich und Wert auch kommen.</translation>
    </message>
    <message>
        <source>multiplier</source>
        <translation>Multiplikator</translation>
    </message>
    <message>
        <source>step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Slider and spin box in step</source>
        <translation>Schieber und Zahlenfeld im Gleichschritt</translation>
    </message>
    <message>
        <source>Keeps a slider and a spin box on one value, in both directions. What is typed reads back digit for digit; the handle goes to the nearest step.</source>
        <translation>Hält Schieber und Zahlenfeld in beiden Richtungen auf einem Wert. Was getippt wird, liest sich Ziffer für Ziffer zurück; der Griff geht zum nächsten Schritt.</translation>
    </message>
    <message>
        <source>binding</source>
        <translation>Bindung</translation>
    </message>
    <message>
        <source>Combo box</source>
        <translation>Auswahlfeld</translation>
    </message>
    <message>
        <source>A combo box that gives way in a narrow panel: the text is cut off with an ellipsis, while the pop-up is as wide as its widest item. The wheel changes it only while it has the focus.</source>
        <translation>Ein Auswahlfeld, das in schmalen Bereichen nachgibt: Der Text wird mit Auslassungspunkten gekürzt, die Liste ist so breit wie ihr breitester Eintrag. Das Mausrad ändert es nur mit Fokus.</translation>
    </message>
    <message>
        <source>list</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>choice</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>pop-up</source>
        <translation>Aufklappfenster</translation>
    </message>
    <message>
        <source>Line edit</source>
        <translation>Eingabefeld</translation>
    </message>
    <message>
        <source>The design system&apos;s line edit. Its context menu always has the same shape: what can do nothing at the moment is disabled, not missing.</source>
        <translation>Das Eingabefeld des Designsystems. Sein Kontextmenü hat immer dieselbe Gestalt: Was gerade nichts bewirkt, ist inaktiv und fehlt nicht.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>context menu</source>
        <translation>Kontextmenü</translation>
    </message>
    <message>
        <source>field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Elegant slider</source>
        <translation>Eleganter Schieber</translation>
    </message>
    <message>
        <source>The design system&apos;s slider: a slim groove and a round handle. Where no style sheet speaks of its parts it draws them in the colours of its palette.</source>
        <translation>Der Schieber des Designsystems: eine schlanke Rinne und ein runder Griff. Wo kein Stylesheet von seinen Teilen spricht, zeichnet er sie in den Farben seiner Palette.</translation>
    </message>
    <message>
        <source>Combo box of the design system</source>
        <translation>Auswahlfeld des Designsystems</translation>
    </message>
    <message>
        <source>Gives a combo box the look of the design system in place: items, index and signals stay as they are.</source>
        <translation>Gibt einem Auswahlfeld an Ort und Stelle das Aussehen des Designsystems: Einträge, Index und Signale bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Folder field</source>
        <translation>Ordnerfeld</translation>
    </message>
    <message>
        <source>A field for a folder. It asks its host to browse, reports edits in bursts of a tenth of a second, and looks at the disk only when it is told to check the path. Here the host opens Qt&apos;s folder dialog and shows the space that is free where the path is.</source>
        <translation>Ein Feld für einen Ordner. Es bittet den Wirt um die Ordnerauswahl, meldet Eingaben in Salven von einer Zehntelsekunde und sieht nur auf den Datenträger, wenn es den Pfad prüfen soll. Hier öffnet der Wirt den Ordnerdialog von Qt und zeigt, wie viel Platz am Ort des Pfads frei ist.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>browse</source>
        <translation>durchsuchen</translation>
    </message>
    <message>
        <source>directory</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Search field</source>
        <translation>Suchfeld</translation>
    </message>
    <message>
        <source>A field for a search: it reports each change at once, and the end of an edit by Enter or by leaving it. A text never starts with a blank. Its placeholder has three colours, which change when the mouse comes or goes.</source>
        <translation>Ein Feld zum Suchen: Es meldet jede Änderung sofort und das Ende einer Eingabe mit der Eingabetaste oder beim Verlassen. Ein Text beginnt nie mit einem Leerzeichen. Sein Platzhalter hat drei Farben, die wechseln, wenn die Maus kommt oder geht.</translation>
    </message>
    <message>
        <source>filter</source>
        <translation>filtern</translation>
    </message>
    <message>
        <source>find</source>
        <translation>finden</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>leeren</translation>
    </message>
    <message>
        <source>placeholder</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Growing list</source>
        <translation>Wachsende Liste</translation>
    </message>
    <message>
        <source>A list that is as high as all its rows for as long as it is being loaded, and scrolls like any other once it is complete. It looks at its rows when it is told to and when it is resized, and does not watch its model.</source>
        <translation>Eine Liste, die so hoch ist wie alle ihre Zeilen, solange sie geladen wird, und rollt wie jede andere, sobald sie vollständig ist. Sie sieht nach ihren Zeilen, wenn man es ihr sagt und wenn sich ihre Größe ändert, und beobachtet ihr Modell nicht.</translation>
    </message>
    <message>
        <source>list view</source>
        <translation>Listenansicht</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Properties of a clip</source>
        <translation>Eigenschaften eines Clips</translation>
    </message>
    <message>
        <source>The value inputs in one panel, as an editor shows the properties of a clip. The panel can be scrolled past every field: the wheel changes only the one that has the keyboard.</source>
        <translation>Die Werteingaben in einem Bedienfeld, so wie ein Editor die Eigenschaften eines Clips zeigt. Man kann an jedem Feld vorbeirollen: Das Mausrad ändert nur das eine, das die Tastatur hat.</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>Bedienfeld</translation>
    </message>
    <message>
        <source>inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Frame and layout controller</source>
        <translation>Rahmen und Layoutsteuerung</translation>
    </message>
    <message>
        <source>Components build their layouts without margins and spacing; the style sheet sets both through the layout controller. A frame is its own controller, any other widget gets one installed.</source>
        <translation>Komponenten bauen ihre Layouts ohne Ränder und Abstände; beide setzt das Stylesheet über die Layoutsteuerung. Ein Rahmen ist seine eigene Steuerung, jedes andere Widget bekommt eine eingesetzt.</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>spacing</source>
        <translation>Abstände</translation>
    </message>
    <message>
        <source>Box and grid layouts</source>
        <translation>Kasten- und Rasterlayouts</translation>
    </message>
    <message>
        <source>A box layout takes its owner&apos;s children in the order in which they were made, or a list of items: widgets with a stretch factor, and spacers that stretch or keep their size. A grid is filled row by row.</source>
        <translation>Ein Kastenlayout nimmt die Kinder seines Besitzers in der Reihenfolge ihrer Entstehung auf oder eine Liste: Widgets mit einem Dehnfaktor und Abstände, die sich dehnen oder ihre Größe behalten. Ein Raster wird Zeile für Zeile gefüllt.</translation>
    </message>
    <message>
        <source>spacer</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>stretch</source>
        <translation>Dehnung</translation>
    </message>
    <message>
        <source>column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Style hints and properties</source>
        <translation>Stilhinweise und Eigenschaften</translation>
    </message>
    <message>
        <source>Code names a variant, the style sheet gives it a look: a hint is a dynamic property that the sheet selects on. Setting it polishes the widget again, and only when it changed.</source>
        <translation>Der Code nennt eine Variante, das Stylesheet gibt ihr ein Aussehen: Ein Hinweis ist eine dynamische Eigenschaft, nach der das Stylesheet auswählt. Beim Setzen wird das Widget neu gestaltet, und nur, wenn sich etwas geändert hat.</translation>
    </message>
    <message>
        <source>Colour variants</source>
        <translation>Farbvarianten</translation>
    </message>
    <message>
        <source>The editor&apos;s eight colour variants of plain controls, by name. Anything but one of the names is ignored; the empty text drops the variant.</source>
        <translation>Die acht Farbvarianten des Editors für einfache Bedienelemente, nach Namen. Alles außer den Namen wird übergangen; der leere Text hebt die Variante auf.</translation>
    </message>
    <message>
        <source>variant</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Property provider</source>
        <translation>Eigenschaftsgeber</translation>
    </message>
    <message>
        <source>A widget that paints itself takes its colours and sizes from a hidden child, which a style sheet selects by class name and writes with qproperty-.</source>
        <translation>Ein Widget, das sich selbst zeichnet, nimmt Farben und Größen von einem verborgenen Kind, das ein Stylesheet über den Klassennamen auswählt und mit qproperty- beschreibt.</translation>
    </message>
    <message>
        <source>Pointing bubble</source>
        <translation>Sprechblase</translation>
    </message>
    <message>
        <source>A bubble whose arrow touches a spot. It stays on its screen, or inside its parent, goes to the other side where there is no room, and follows the widget that it annotates.</source>
        <translation>Eine Blase, deren Pfeil eine Stelle berührt. Sie bleibt auf ihrem Bildschirm oder in ihrem Elternteil, weicht auf die andere Seite aus, wo kein Platz ist, und folgt dem Widget, das sie erläutert.</translation>
    </message>
    <message>
        <source>bubble</source>
        <translation>Blase</translation>
    </message>
    <message>
        <source>arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Rounded pop-ups</source>
        <translation>Abgerundete Aufklappfenster</translation>
    </message>
    <message>
        <source>Real rounded corners where desktops disagree about them: a widget with the property roundedEdges is translucent, and painted all the same.</source>
        <translation>Echte runde Ecken, wo Arbeitsoberflächen sich uneins sind: Ein Widget mit der Eigenschaft roundedEdges ist durchscheinend und wird trotzdem gezeichnet.</translation>
    </message>
    <message>
        <source>corner</source>
        <translation>Ecke</translation>
    </message>
    <message>
        <source>translucent</source>
        <translation>durchscheinend</translation>
    </message>
    <message>
        <source>Highlight frame</source>
        <translation>Hervorhebung</translation>
    </message>
    <message>
        <source>Outlines a widget without its notice: it follows the target through moves, resizes and hiding, lies over all its children and takes neither mouse nor focus.</source>
        <translation>Umrandet ein Widget, ohne dass es davon merkt: Sie folgt dem Ziel beim Bewegen, Ändern der Größe und Verbergen, liegt über allen Kindern und nimmt weder Maus noch Fokus.</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>Überlagerung</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>Animiertes Bild</translation>
    </message>
    <message>
        <source>Plays an animated picture in the size of the widget, keeps its proportions, stays sharp on scaled screens and rests while it is hidden.</source>
        <translation>Spielt ein animiertes Bild in der Größe des Widgets, wahrt die Proportionen, bleibt auf skalierten Bildschirmen scharf und ruht, solange es verborgen ist.</translation>
    </message>
    <message>
        <source>movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>A short piece of help: a heading, an animated picture that plays while it is seen, a description and a link to further reading. What is empty is left out.</source>
        <translation>Eine kurze Hilfe: eine Überschrift, ein animiertes Bild, das läuft, solange man es sieht, eine Beschreibung und ein Link zum Weiterlesen. Was leer ist, entfällt.</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Guide button</source>
        <translation>Hilfeknopf</translation>
    </message>
    <message>
        <source>A click opens a guide in a bubble below the button. Escape, a click elsewhere and hiding the button close it.</source>
        <translation>Ein Klick öffnet eine Hilfe in einer Blase unter dem Knopf. Escape, ein Klick daneben und das Verbergen des Knopfs schließen sie.</translation>
    </message>
    <message>
        <source>Dialog guide</source>
        <translation>Dialoghilfe</translation>
    </message>
    <message>
        <source>A bubble that walks the user through a step and follows the widget that it annotates. Start the tour to see it at work.</source>
        <translation>Eine Blase, die durch einen Schritt führt und dem Widget folgt, das sie erläutert. Starten Sie den Rundgang, um sie bei der Arbeit zu sehen.</translation>
    </message>
    <message>
        <source>tour</source>
        <translation>Rundgang</translation>
    </message>
    <message>
        <source>QML dialog</source>
        <translation>QML-Dialog</translation>
    </message>
    <message>
        <source>A modal dialog whose whole content is a QML scene: a file that is loaded when the dialog first runs. The scene knows the dialog as &quot;callback&quot; and ends it. Change the source and open it.</source>
        <translation>Ein modaler Dialog, dessen ganze Fläche eine QML-Szene ist: eine Datei, die geladen wird, wenn der Dialog zum ersten Mal läuft. Die Szene kennt den Dialog als „callback“ und beendet ihn. Ändern Sie die Quelle und öffnen Sie ihn.</translation>
    </message>
    <message>
        <source>confirmation</source>
        <translation>Bestätigung</translation>
    </message>
    <message>
        <source>scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Platform services</source>
        <translation>Dienste der Plattform</translation>
    </message>
    <message>
        <source>The functions and classes below the components, with their live results.</source>
        <translation>Die Funktionen und Klassen unter den Komponenten, mit ihren gegenwärtigen Ergebnissen.</translation>
    </message>
    <message>
        <source>File sizes</source>
        <translation>Dateigrößen</translation>
    </message>
    <message>
        <source>Paths</source>
        <translation>Pfade</translation>
    </message>
    <message>
        <source>Own colours and folders</source>
        <translation>Eigene Farben und Ordner</translation>
    </message>
    <message>
        <source>Scheduler</source>
        <translation>Planer</translation>
    </message>
    <message>
        <source>Headings</source>
        <translation>Überschriften</translation>
    </message>
    <message>
        <source>Privacy access</source>
        <translation>Zugriff auf Privates</translation>
    </message>
    <message>
        <source>Focus of hosted QML</source>
        <translation>Fokus von eingebettetem QML</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>permission</source>
        <translation>Berechtigung</translation>
    </message>
    <message>
        <source>validity</source>
        <translation>Gültigkeit</translation>
    </message>
    <message>
        <source>store</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>timer</source>
        <translation>Zeitgeber</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>merge</source>
        <translation>zusammenfassen</translation>
    </message>
    <message>
        <source>burst</source>
        <translation>Salve</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>fett</translation>
    </message>
    <message>
        <source>language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>script</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>capture</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Arrow on top</source>
        <translation>Pfeil oben</translation>
    </message>
    <message>
        <source>on the left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>What lies behind shows through the corners.</source>
        <translation>Was dahinter liegt, scheint durch die Ecken.</translation>
    </message>
    <message>
        <source>Driven by the controls below</source>
        <translation>Von den Reglern unten gesteuert</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Hier beginnen</translation>
    </message>
    <message>
        <source>All sides</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Side of the arrow</source>
        <translation>Seite des Pfeils</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Open as a pop-up</source>
        <translation>Als Aufklappfenster öffnen</translation>
    </message>
    <message>
        <source>A bubble of its own. It goes with the window.</source>
        <translation>Eine eigene Blase. Sie geht mit dem Fenster.</translation>
    </message>
    <message>
        <source>Painted by itself: a sheet sets colours and measures through the properties, and the content&apos;s margins on the frame inside.</source>
        <translation>Zeichnet sich selbst: Ein Stylesheet setzt Farben und Maße über die Eigenschaften und die Ränder des Inhalts am Rahmen darin.</translation>
    </message>
    <message>
        <source>As a part of a window</source>
        <translation>Als Teil eines Fensters</translation>
    </message>
    <message>
        <source>Open a pop-up</source>
        <translation>Aufklappfenster öffnen</translation>
    </message>
    <message>
        <source>Any widget that Workaround::Ui::apply() prepared: a rule for the property gives it background, border and border-radius.</source>
        <translation>Jedes Widget, das Workaround::Ui::apply() vorbereitet hat: Eine Regel für die Eigenschaft gibt ihm Hintergrund, Rand und Eckenradius.</translation>
    </message>
    <message>
        <source>The target</source>
        <translation>Das Ziel</translation>
    </message>
    <message>
        <source>Still works</source>
        <translation>Geht trotzdem</translation>
    </message>
    <message>
        <source>Highlighted</source>
        <translation>Hervorgehoben</translation>
    </message>
    <message>
        <source>Height of the target</source>
        <translation>Höhe des Ziels</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>The outline, a child of the widget that it highlights.</source>
        <translation>Der Umriss, ein Kind des hervorgehobenen Widgets.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>The animation</source>
        <translation>Die Animation</translation>
    </message>
    <message>
        <source>A file that is not there</source>
        <translation>Eine Datei, die es nicht gibt</translation>
    </message>
    <message>
        <source>Border and padding of a sheet surround the picture.</source>
        <translation>Rand und Innenabstand eines Stylesheets umgeben das Bild.</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>The colour that it reported last</source>
        <translation>Die zuletzt gemeldete Farbe</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>noch nichts</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>Eine Farbe</translation>
    </message>
    <message>
        <source>Several colours</source>
        <translation>Mehrere Farben</translation>
    </message>
    <message>
        <source>Picking</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>The face is a child of its own; the button says by dynamic properties when it has no colour, or several.</source>
        <translation>Die Fläche ist ein eigenes Kind; der Knopf sagt durch dynamische Eigenschaften, wann er keine Farbe hat oder mehrere.</translation>
    </message>
    <message>
        <source>Click it to pick a colour</source>
        <translation>Klicken, um eine Farbe zu wählen</translation>
    </message>
    <message>
        <source>A frame around one colour button.</source>
        <translation>Ein Rahmen um einen Farbknopf.</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Eine Farbe wählen</translation>
    </message>
    <message>
        <source>Opacity can be adjusted</source>
        <translation>Deckkraft ist einstellbar</translation>
    </message>
    <message>
        <source>The parts are selected by their names, and the buttons of colours as children of #colorMatrixPanel and #otherColorsQueuePanel; the one for no colour has nullColor. The panel itself writes the background-color of these and of the preview, opaque: a sheet shapes it with background-clip, and lays a background-image over it. The selector is a QDialog with roundedEdges.</source>
        <translation>Die Teile werden über ihre Namen ausgewählt, die Knöpfe der Farben als Kinder von #colorMatrixPanel und #otherColorsQueuePanel; der für keine Farbe hat nullColor. Die background-color der Knöpfe und der Vorschau schreibt die Tafel selbst, deckend: Ein Stylesheet formt sie mit background-clip und legt ein background-image darüber. Die Farbwahl ist ein QDialog mit roundedEdges.</translation>
    </message>
    <message>
        <source>Choose any colour</source>
        <translation>Eine beliebige Farbe wählen</translation>
    </message>
    <message>
        <source>What the colour panel opens beside its own colours; internal to the library. The margins and gaps of both frames are the sheet&apos;s.</source>
        <translation>Was die Farbtafel neben den eigenen Farben öffnet; intern in der Bibliothek. Ränder und Abstände beider Rahmen gehören dem Stylesheet.</translation>
    </message>
    <message>
        <source>Drag the marker</source>
        <translation>Die Marke ziehen</translation>
    </message>
    <message>
        <source>The square of the free colour selector, and internal to the library. It asks for no room: min-width and min-height give it some.</source>
        <translation>Das Quadrat der Farbwahl, intern in der Bibliothek. Es verlangt keinen Platz: min-width und min-height geben ihm welchen.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>Einen Modus wählen</translation>
    </message>
    <message>
        <source>Mode by its number</source>
        <translation>Modus nach Nummer</translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation>Deckkraft der Ebene</translation>
    </message>
    <message>
        <source>As OvComboBox in the look of the design system, or alone by its class name; its list is #tesselComboBoxView.</source>
        <translation>Als OvComboBox im Aussehen des Designsystems oder allein über den Klassennamen; seine Liste ist #tesselComboBoxView.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Ripple-Löschen</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Trimmen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Deletes the selected clip and closes the gap: everything behind it moves up, on &lt;b&gt;all&lt;/b&gt; tracks, so that sound and picture stay together.</source>
        <translation>Löscht den ausgewählten Clip und schließt die Lücke: Alles dahinter rückt auf, in &lt;b&gt;allen&lt;/b&gt; Spuren, sodass Ton und Bild zusammenbleiben.</translation>
    </message>
    <message>
        <source>More about editing</source>
        <translation>Mehr über das Schneiden</translation>
    </message>
    <message>
        <source>Drag the end of a clip to show less or more of it. Nothing is lost.</source>
        <translation>Ziehen Sie am Ende eines Clips, um weniger oder mehr von ihm zu zeigen. Nichts geht verloren.</translation>
    </message>
    <message>
        <source>More about trimming</source>
        <translation>Mehr über das Trimmen</translation>
    </message>
    <message>
        <source>Texts are measured for the width that the sheet gives the guide. Links have the colour of their label, unless their markup says another.</source>
        <translation>Die Texte richten sich nach der Breite, die das Stylesheet der Hilfe gibt. Links haben die Farbe ihres Textfelds, wenn ihre Auszeichnung keine andere nennt.</translation>
    </message>
    <message>
        <source>With an animated picture</source>
        <translation>Mit animiertem Bild</translation>
    </message>
    <message>
        <source>A title alone</source>
        <translation>Nur ein Titel</translation>
    </message>
    <message>
        <source>Nothing more to say</source>
        <translation>Mehr ist nicht zu sagen</translation>
    </message>
    <message>
        <source>Without an info</source>
        <translation>Ohne Info</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>A tool button. Its pop-up is a PointingWidget named pointingWidget, with a GuideWidget named guideWidget in it; both are below the button for a sheet.</source>
        <translation>Ein QToolButton. Sein Aufklappfenster ist ein PointingWidget namens pointingWidget mit einem GuideWidget namens guideWidget darin; für ein Stylesheet liegen beide unter dem Knopf.</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>Einen Clip trimmen</translation>
    </message>
    <message>
        <source>Drag its end. The picture shows how; nothing is lost.</source>
        <translation>Ziehen Sie an seinem Ende. Das Bild zeigt, wie; nichts geht verloren.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Rundgang starten</translation>
    </message>
    <message>
        <source>Find a component</source>
        <translation>Eine Komponente finden</translation>
    </message>
    <message>
        <source>Type a few letters of a class, a title or a keyword.</source>
        <translation>Tippen Sie einige Buchstaben einer Klasse, eines Titels oder eines Stichworts.</translation>
    </message>
    <message>
        <source>Try another style</source>
        <translation>Einen anderen Stil ausprobieren</translation>
    </message>
    <message>
        <source>Dark, light, high contrast, none at all, or a sheet of your own that reloads when you save it.</source>
        <translation>Dunkel, hell, mit hohem Kontrast, gar keiner oder ein eigenes Stylesheet, das beim Speichern neu geladen wird.</translation>
    </message>
    <message>
        <source>Change it while it runs</source>
        <translation>Im laufenden Betrieb ändern</translation>
    </message>
    <message>
        <source>The controls act on the enabled twin and the disabled one at once.</source>
        <translation>Die Regler wirken zugleich auf das aktive und das inaktive Exemplar.</translation>
    </message>
    <message>
        <source>See what it says</source>
        <translation>Sehen, was sie meldet</translation>
    </message>
    <message>
        <source>Every signal of the component, newest last.</source>
        <translation>Jedes Signal der Komponente, das neueste zuletzt.</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Knöpfe</translation>
    </message>
    <message>
        <source>Close button</source>
        <translation>Schließknopf</translation>
    </message>
    <message>
        <source>Secondary button</source>
        <translation>Zweiter Knopf</translation>
    </message>
    <message>
        <source>A PointingWidget; its bubble is painted from that one&apos;s properties.</source>
        <translation>Ein PointingWidget; seine Blase wird nach dessen Eigenschaften gezeichnet.</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Clip %1</translation>
    </message>
    <message>
        <source>with sound</source>
        <translation>mit Ton</translation>
    </message>
    <message>
        <source>Part of a clip&apos;s name</source>
        <translation>Teil eines Clipnamens</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>Clips suchen</translation>
    </message>
    <message>
        <source>Beach, morning</source>
        <translation>Strand, morgens</translation>
    </message>
    <message>
        <source>Beach, evening</source>
        <translation>Strand, abends</translation>
    </message>
    <message>
        <source>Harbour</source>
        <translation>Hafen</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Interview</translation>
    </message>
    <message>
        <source>Interview, second camera</source>
        <translation>Interview, zweite Kamera</translation>
    </message>
    <message>
        <source>Nobody would find this folder again: %1</source>
        <translation>Diesen Ordner fände niemand wieder: %1</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Auf dem Kopf</translation>
    </message>
    <message>
        <source>Colours and sizes are those of a hidden child, selected by its class name and, where they differ for a disabled plane, with [enabled=&quot;false&quot;]. The sheet gives the plane its size.</source>
        <translation>Farben und Größen sind die eines verborgenen Kindes, ausgewählt über den Klassennamen und, wo sie für eine inaktive Ebene anders sind, mit [enabled=&quot;false&quot;]. Die Größe der Ebene gibt das Stylesheet.</translation>
    </message>
    <message>
        <source>Frames around a point plane and two labelled spin boxes. The labels are empty: the sheet may give them a text, with qproperty-text, or a picture.</source>
        <translation>Rahmen um eine Punktebene und zwei beschriftete Zahlenfelder. Die Beschriftungen sind leer: Das Stylesheet kann ihnen mit qproperty-text einen Text geben oder ein Bild.</translation>
    </message>
    <message>
        <source>Full HD, 1920 × 1080, 25 frames</source>
        <translation>Full HD, 1920 × 1080, 25 Bilder</translation>
    </message>
    <message>
        <source>Ultra HD, 3840 × 2160, 60 frames</source>
        <translation>Ultra HD, 3840 × 2160, 60 Bilder</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>Wie die Quelle</translation>
    </message>
    <message>
        <source>With room</source>
        <translation>Mit Platz</translation>
    </message>
    <message>
        <source>In a narrow panel</source>
        <translation>In einem schmalen Bereich</translation>
    </message>
    <message>
        <source>Width of the narrow one</source>
        <translation>Breite des schmalen</translation>
    </message>
    <message>
        <source>As QComboBox, with its sub-controls and its view, or alone by its class name; the pop-up&apos;s state is a dynamic property.</source>
        <translation>Wie QComboBox mit Unterelementen und Ansicht oder allein über den Klassennamen; der Zustand der Liste ist eine dynamische Eigenschaft.</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Negativ multiplizieren</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Wie zuvor</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>Umgewandelt</translation>
    </message>
    <message>
        <source>Convert the first one too</source>
        <translation>Auch das erste umwandeln</translation>
    </message>
    <message>
        <source>A combo box with the property; the view of its list has the object name tesselComboBoxView.</source>
        <translation>Ein Auswahlfeld mit der Eigenschaft; die Ansicht seiner Liste hat den Objektnamen tesselComboBoxView.</translation>
    </message>
    <message>
        <source>A text</source>
        <translation>Ein Text</translation>
    </message>
    <message>
        <source>Text to edit</source>
        <translation>Text zum Bearbeiten</translation>
    </message>
    <message>
        <source>A placeholder</source>
        <translation>Ein Platzhalter</translation>
    </message>
    <message>
        <source>Name of the clip</source>
        <translation>Name des Clips</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Nur lesen</translation>
    </message>
    <message>
        <source>Text to copy</source>
        <translation>Text zum Kopieren</translation>
    </message>
    <message>
        <source>Selected as QLineEdit or, alone, as Orvane--Tessel--TesselLineEdit; its menu as QMenu#tesselContextMenu.</source>
        <translation>Ausgewählt als QLineEdit oder, allein, als Orvane--Tessel--TesselLineEdit; das Menü als QMenu#tesselContextMenu.</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>Für sich</translation>
    </message>
    <message>
        <source>Above a list that it filters</source>
        <translation>Über einer Liste, die es filtert</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>A frame around an icon, a line edit and a button that clears it. &quot;focusHint&quot; is set from the first time that the line edit gets the keyboard.</source>
        <translation>Ein Rahmen um ein Symbol, ein Eingabefeld und einen Knopf, der es leert. „focusHint“ ist gesetzt, sobald das Eingabefeld zum ersten Mal die Tastatur hat.</translation>
    </message>
    <message>
        <source>A bin of clips</source>
        <translation>Eine Ablage mit Clips</translation>
    </message>
    <message>
        <source>Loading is finished</source>
        <translation>Das Laden ist beendet</translation>
    </message>
    <message>
        <source>The model</source>
        <translation>Das Modell</translation>
    </message>
    <message>
        <source>Add clips: %1</source>
        <translation>Clips hinzufügen: %1</translation>
    </message>
    <message>
        <source>Remove all clips</source>
        <translation>Alle Clips entfernen</translation>
    </message>
    <message>
        <source>As QListView: it has no class of its own for a sheet. Its minimum height is its own, whatever the sheet says.</source>
        <translation>Wie QListView: Für ein Stylesheet hat sie keine eigene Klasse. Ihre Mindesthöhe bestimmt sie selbst, was auch immer das Stylesheet sagt.</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>Zurück zum persönlichen Ordner</translation>
    </message>
    <message>
        <source>With a default folder and space on its disk</source>
        <translation>Mit Standardordner und Platz auf dessen Datenträger</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>A relative path, with its error below</source>
        <translation>Ein relativer Pfad mit seinem Fehler darunter</translation>
    </message>
    <message>
        <source>Check the upper field</source>
        <translation>Oberes Feld prüfen</translation>
    </message>
    <message>
        <source>upper</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>Check the lower field</source>
        <translation>Unteres Feld prüfen</translation>
    </message>
    <message>
        <source>lower</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>The upper field&apos;s error</source>
        <translation>Fehler des oberen Felds</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>nirgends</translation>
    </message>
    <message>
        <source>tool tip</source>
        <translation>Kurzinfo</translation>
    </message>
    <message>
        <source>label</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Refuse hidden folders instead</source>
        <translation>Stattdessen verborgene Ordner ablehnen</translation>
    </message>
    <message>
        <source>The upper field</source>
        <translation>Das obere Feld</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Default path&apos;s text</source>
        <translation>Text des Standardpfads</translation>
    </message>
    <message>
        <source>Required megabytes</source>
        <translation>Benötigte Megabytes</translation>
    </message>
    <message>
        <source>A frame around a line edit and its buttons, which carries the border, the hint &quot;error&quot; and, from the first time that the line edit gets the keyboard, &quot;focusHint&quot;; figures above it and a message below it.</source>
        <translation>Ein Rahmen um ein Eingabefeld und seine Knöpfe, der den Rand trägt, den Hinweis „error“ und, sobald das Eingabefeld zum ersten Mal die Tastatur hat, „focusHint“; Zahlen darüber und eine Meldung darunter.</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>Parameter suchen</translation>
    </message>
    <message>
        <source>A frame controls its own layout</source>
        <translation>Ein Rahmen steuert sein eigenes Layout</translation>
    </message>
    <message>
        <source>A group box with an installed controller</source>
        <translation>Ein Gruppenfeld mit eingesetzter Steuerung</translation>
    </message>
    <message>
        <source>The base of composite components; a sheet sets the metrics of its layout through its properties.</source>
        <translation>Die Basis zusammengesetzter Komponenten; ein Stylesheet setzt die Maße des Layouts über die Eigenschaften.</translation>
    </message>
    <message>
        <source>Any widget with an installed controller: select the controller by its class name below the widget.</source>
        <translation>Jedes Widget mit eingesetzter Steuerung: Die Steuerung wird über ihren Klassennamen unter dem Widget ausgewählt.</translation>
    </message>
    <message>
        <source>autoFill() and a stretch behind</source>
        <translation>autoFill() und Dehnung dahinter</translation>
    </message>
    <message>
        <source>addItems() with a spacer</source>
        <translation>addItems() mit einem Abstand</translation>
    </message>
    <message>
        <source>A grid: one cell spans two, one is aligned right</source>
        <translation>Ein Raster: Eine Zelle reicht über zwei, eine steht rechts</translation>
    </message>
    <message>
        <source>A column</source>
        <translation>Eine Spalte</translation>
    </message>
    <message>
        <source>The spacer behind item 1</source>
        <translation>Der Abstand hinter Element 1</translation>
    </message>
    <message>
        <source>Policy</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Dehnbar</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Factor or pixels</source>
        <translation>Faktor oder Pixel</translation>
    </message>
    <message>
        <source>The frame around</source>
        <translation>Der Rahmen darum</translation>
    </message>
    <message>
        <source>A button</source>
        <translation>Ein Knopf</translation>
    </message>
    <message>
        <source>An edit</source>
        <translation>Ein Eingabefeld</translation>
    </message>
    <message>
        <source>A slider</source>
        <translation>Ein Schieber</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keiner)</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Member name</source>
        <translation>Name des Mitglieds</translation>
    </message>
    <message>
        <source>Choose a variant below</source>
        <translation>Wählen Sie unten eine Variante</translation>
    </message>
    <message>
        <source>Variant of the edit</source>
        <translation>Variante des Feldes</translation>
    </message>
    <message>
        <source>Any text</source>
        <translation>Beliebiger Text</translation>
    </message>
    <message>
        <source>Any plain control: ColorHint and Util::applyStyleHint() give it one of the shared variants.</source>
        <translation>Jedes einfache Bedienelement: ColorHint und Util::applyStyleHint() geben ihm eine der gemeinsamen Varianten.</translation>
    </message>
    <message>
        <source>A dial whose hand is styled</source>
        <translation>Eine Anzeige, deren Zeiger gestaltet ist</translation>
    </message>
    <message>
        <source>An example: the provider is selected by its class name below the widget that it serves.</source>
        <translation>Ein Beispiel: Der Eigenschaftsgeber wird über seinen Klassennamen unter dem Widget ausgewählt, dem er dient.</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>A frame around a slider and a spin box without arrows.</source>
        <translation>Ein Rahmen um einen Schieber und ein Zahlenfeld ohne Pfeile.</translation>
    </message>
    <message>
        <source>Two decimals</source>
        <translation>Zwei Nachkommastellen</translation>
    </message>
    <message>
        <source>Six decimals</source>
        <translation>Sechs Nachkommastellen</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>Eine Zahl</translation>
    </message>
    <message>
        <source>With a unit</source>
        <translation>Mit Einheit</translation>
    </message>
    <message>
        <source>As QSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>Wie QSpinBox mit seinen Unterelementen oder allein über den Klassennamen.</translation>
    </message>
    <message>
        <source>The language&apos;s decimal mark</source>
        <translation>Das Dezimalzeichen der Sprache</translation>
    </message>
    <message>
        <source>Point and comma</source>
        <translation>Punkt und Komma</translation>
    </message>
    <message>
        <source>As QDoubleSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>Wie QDoubleSpinBox mit seinen Unterelementen oder allein über den Klassennamen.</translation>
    </message>
    <message>
        <source>As QSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>Wie QSlider mit ::groove, ::handle, ::add-page und ::sub-page oder allein über den Klassennamen.</translation>
    </message>
    <message>
        <source>As OvCustomSlider and QSlider, or alone by its class name.</source>
        <translation>Wie OvCustomSlider und QSlider oder allein über den Klassennamen.</translation>
    </message>
    <message>
        <source>As OvCustomSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>Wie OvCustomSlider mit ::groove, ::handle, ::add-page und ::sub-page oder allein über den Klassennamen.</translation>
    </message>
    <message>
        <source>Whole numbers</source>
        <translation>Ganze Zahlen</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>Brüche</translation>
    </message>
    <message>
        <source>Picked colours</source>
        <translation>Gewählte Farben</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>Farbe vom Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>What it picked, the latest first</source>
        <translation>Was sie aufnahm, das Neueste zuerst</translation>
    </message>
    <message>
        <source>The loupe by itself</source>
        <translation>Die Lupe für sich</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Anywhere</source>
        <translation>Irgendwo</translation>
    </message>
    <message>
        <source>In a corner of the desktop</source>
        <translation>In einer Ecke der Arbeitsfläche</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>The loupe of the pipette, which carries the property roundedEdges. Its border is painted over the picture; its background must be transparent. The windows that cover the screens meanwhile are of the class PipetteScreenView: its cursorPixmap, cursorSize and cursorHotSpot are the cursor of the pick.</source>
        <translation>Die Lupe der Pipette, mit der Eigenschaft roundedEdges. Ihr Rand wird über das Bild gezeichnet; ihr Hintergrund muss durchsichtig sein. Die Fenster, die währenddessen die Bildschirme bedecken, sind von der Klasse PipetteScreenView: Deren cursorPixmap, cursorSize und cursorHotSpot sind der Mauszeiger beim Aufnehmen.</translation>
    </message>
    <message>
        <source>A button that shows its colour</source>
        <translation>Ein Knopf, der seine Farbe trägt</translation>
    </message>
    <message>
        <source>Before its first pick</source>
        <translation>Vor der ersten Aufnahme</translation>
    </message>
    <message>
        <source>Pick a colour from the film</source>
        <translation>Farbe aus dem Film aufnehmen</translation>
    </message>
    <message>
        <source>A colour button with this picker</source>
        <translation>Ein Farbknopf mit dieser Auswahl</translation>
    </message>
    <message>
        <source>Target and cursor</source>
        <translation>Ziel und Mauszeiger</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>The film</source>
        <translation>Der Film</translation>
    </message>
    <message>
        <source>The whole page</source>
        <translation>Die ganze Seite</translation>
    </message>
    <message>
        <source>Picking cursor</source>
        <translation>Mauszeiger beim Aufnehmen</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>Pointing hand</source>
        <translation>Zeigende Hand</translation>
    </message>
    <message>
        <source>Question mark</source>
        <translation>Fragezeichen</translation>
    </message>
    <message>
        <source>The film runs</source>
        <translation>Der Film läuft</translation>
    </message>
    <message>
        <source>Its background is its colour, written into its own sheet; size and border are the application&apos;s.</source>
        <translation>Sein Hintergrund ist seine Farbe, ins eigene Stylesheet geschrieben; Größe und Rand gehören der Anwendung.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>The scene&apos;s source</source>
        <translation>Quelle der Szene</translation>
    </message>
    <message>
        <source>Result of exec()</source>
        <translation>Ergebnis von exec()</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Values of the form</source>
        <translation>Werte des Formulars</translation>
    </message>
    <message>
        <source>Errors in the scene</source>
        <translation>Fehler in der Szene</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Bestätigung</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>One that fails to load</source>
        <translation>Eine, die sich nicht laden lässt</translation>
    </message>
    <message>
        <source>Centred on this page</source>
        <translation>Auf dieser Seite zentriert</translation>
    </message>
    <message>
        <source>Open a new dialog</source>
        <translation>Neuen Dialog öffnen</translation>
    </message>
    <message>
        <source>Open the last dialog again</source>
        <translation>Letzten Dialog erneut öffnen</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>Ursprüngliche Quelle</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>Gefragt</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Nachkommastellen</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Bytes in a kilobyte</source>
        <translation>Bytes je Kilobyte</translation>
    </message>
    <message>
        <source>Root folder</source>
        <translation>Wurzelordner</translation>
    </message>
    <message>
        <source>A file in the place of a folder</source>
        <translation>Eine Datei anstelle eines Ordners</translation>
    </message>
    <message>
        <source>Empty path</source>
        <translation>Leerer Pfad</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>Eigene Farben</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Neu lesen</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>Anforderungen</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Aufrufe</translation>
    </message>
    <message>
        <source>A call is pending</source>
        <translation>Ein Aufruf steht aus</translation>
    </message>
    <message>
        <source>Delay in milliseconds</source>
        <translation>Verzögerung in Millisekunden</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>One request</source>
        <translation>Eine Anforderung</translation>
    </message>
    <message>
        <source>A burst of %1 requests</source>
        <translation>Eine Salve von %1 Anforderungen</translation>
    </message>
    <message>
        <source>Your title</source>
        <translation>Ihr Titel</translation>
    </message>
    <message>
        <source>A title of your own</source>
        <translation>Ein eigener Titel</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>granted</source>
        <translation>erlaubt</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>verweigert</translation>
    </message>
    <message>
        <source>not available on this platform</source>
        <translation>auf dieser Plattform nicht verfügbar</translation>
    </message>
    <message>
        <source>Platform</source>
        <translation>Plattform</translation>
    </message>
    <message>
        <source>Request %1</source>
        <translation>%1 anfordern</translation>
    </message>
    <message>
        <source>Take the view out and put it back</source>
        <translation>Ansicht herausnehmen und zurücklegen</translation>
    </message>
    <message>
        <source>The view</source>
        <translation>Die Ansicht</translation>
    </message>
    <message>
        <source>no widget</source>
        <translation>kein Widget</translation>
    </message>
    <message>
        <source>Keyboard focus</source>
        <translation>Tastaturfokus</translation>
    </message>
    <message>
        <source>Apply the workaround</source>
        <translation>Umgehung anwenden</translation>
    </message>
    <message>
        <source>Open the dialog</source>
        <translation>Dialog öffnen</translation>
    </message>
    <message>
        <source>Writes a number of bytes as users read it, in the current language&apos;s units and digits.</source>
        <translation>Schreibt eine Anzahl Bytes so, wie man sie liest, in Einheiten und Ziffern der gegenwärtigen Sprache.</translation>
    </message>
    <message>
        <source>Headings are bold where both the language and the title are written in a script that has a tradition of bold type, and plain where bold would hurt legibility. Markup in a title is shown as text.</source>
        <translation>Überschriften sind fett, wo Sprache und Titel in einer Schrift stehen, die Fettdruck kennt, und schlicht, wo Fettdruck die Lesbarkeit stört. Auszeichnungen im Titel erscheinen als Text.</translation>
    </message>
    <message>
        <source>What an editor asks about a path that a user typed: whether it could be a folder, where the nearest one is, and what the program may do there.</source>
        <translation>Was ein Editor über einen eingetippten Pfad wissen will: ob er ein Ordner sein könnte, wo der nächstgelegene ist und was das Programm dort darf.</translation>
    </message>
    <message>
        <source>Whether the system lets the program read the screen and the input of other programs, asked without troubling the user.</source>
        <translation>Ob das System das Programm den Bildschirm und die Eingaben anderer Programme lesen lässt, gefragt, ohne den Benutzer zu stören.</translation>
    </message>
    <message>
        <source>The user&apos;s own colours outlive the program, also when it is killed right after the write. They are kept under the host&apos;s organisation and application name, or in a store that the host hands over. A colour is added at the front, eight are kept, and neither a colour of the fixed palette nor one that is there already is taken.</source>
        <translation>Die eigenen Farben überleben das Programm, auch wenn es gleich nach dem Schreiben beendet wird. Sie liegen unter dem Organisations- und Anwendungsnamen des Wirts oder in einem Speicher, den der Wirt übergibt. Eine Farbe kommt vorn hinzu, acht bleiben, und weder eine Farbe der festen Palette noch eine, die schon da ist, wird aufgenommen.</translation>
    </message>
    <message>
        <source>Merges a burst of requests into one deferred call. Later requests do not put the call off, so a steady stream of them still gets its calls.</source>
        <translation>Fasst eine Salve von Anforderungen zu einem verzögerten Aufruf zusammen. Spätere Anforderungen schieben den Aufruf nicht auf, sodass auch ein stetiger Strom seine Aufrufe bekommt.</translation>
    </message>
    <message>
        <source>Qt forgets the focus of a view whose host is taken out of a window and put back. With the workaround the keyboard goes to the view; without it, to whatever comes first. A line edit stands for the view here: the workaround works for every kind.</source>
        <translation>Qt vergisst den Fokus einer Ansicht, deren Träger aus einem Fenster genommen und zurückgelegt wird. Mit der Umgehung geht die Tastatur an die Ansicht, ohne sie an das, was zuerst kommt. Ein Eingabefeld steht hier für die Ansicht: Die Umgehung wirkt bei jeder Art.</translation>
    </message>
    <message>
        <source>One edit, one step</source>
        <translation>Eine Bearbeitung, ein Schritt</translation>
    </message>
    <message>
        <source>A session tells what a user does to a field as one story, from the first change to the end of the drag, the text or the pick. Here each becomes one step of undo. Escape takes it back.</source>
        <translation>Eine Sitzung erzählt, was jemand mit einem Feld tut, als eine Geschichte, von der ersten Änderung bis zum Ende des Ziehens, des Texts oder der Wahl. Hier wird jede ein Schritt zum Rückgängigmachen. Escape nimmt sie zurück.</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>rückgängig</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>wiederholen</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>mehrere Werte</translation>
    </message>
    <message>
        <source>typing</source>
        <translation>Tippen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Drag it, hold an arrow key, type, turn the wheel</source>
        <translation>Ziehen, eine Pfeiltaste halten, tippen, das Rad drehen</translation>
    </message>
    <message>
        <source>Drag the point</source>
        <translation>Den Punkt ziehen</translation>
    </message>
    <message>
        <source>Try colours, then press Escape or Enter</source>
        <translation>Farben ausprobieren, dann Escape- oder Eingabetaste drücken</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Several values</source>
        <translation>Mehrere Werte</translation>
    </message>
    <message>
        <source>A field that stands for several values has multiValue, and a label #multiValueCover covers each of its line edits.</source>
        <translation>Ein Feld, das für mehrere Werte steht, hat multiValue, und ein Label #multiValueCover verdeckt jedes seiner Eingabefelder.</translation>
    </message>
    <message>
        <source>Title cards</source>
        <translation>Titelkarten</translation>
    </message>
    <message>
        <source>An application in miniature, to be read in examples/titlecard: an inspector of several cards, undo and redo of everything, presets, a tour, a QML dialog, and pictures of the canvas.</source>
        <translation>Eine Anwendung im Kleinen, nachzulesen in examples/titlecard: Eigenschaften mehrerer Karten, Rückgängig und Wiederholen für alles, Vorlagen, ein Rundgang, ein QML-Dialog und Bilder der Leinwand.</translation>
    </message>
    <message>
        <source>application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>First light</source>
        <translation>Erstes Licht</translation>
    </message>
    <message>
        <source>A film</source>
        <translation>Ein Film</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>The languages that the library has its texts in. One call loads one of them, here by the switch of the gallery, and every component changes at once.</source>
        <translation>Die Sprachen, in denen die Bibliothek ihre Texte hat. Ein Aufruf lädt eine davon, hier durch den Umschalter der Galerie, und jede Komponente wechselt sofort.</translation>
    </message>
</context>
<context>
    <name>ParameterPanel</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Part of a parameter&apos;s name</source>
        <translation>Teil eines Parameternamens</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>Parameter suchen</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Mischmodus</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Tönung</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>Zurück zum persönlichen Ordner</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Proxies</source>
        <translation>Proxys</translation>
    </message>
    <message>
        <source>Stabilise</source>
        <translation>Stabilisieren</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Filmkorn</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
</context>
<context>
    <name>PickerChoice</name>
    <message>
        <source>Picker</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>Farbtafel</translation>
    </message>
    <message>
        <source>Qt&apos;s colour dialog</source>
        <translation>Farbdialog von Qt</translation>
    </message>
    <message>
        <source>Panel: no colour allowed</source>
        <translation>Tafel: keine Farbe erlaubt</translation>
    </message>
    <message>
        <source>Panel: with opacity</source>
        <translation>Tafel: mit Deckkraft</translation>
    </message>
    <message>
        <source>Panel: with own colours</source>
        <translation>Tafel: mit eigenen Farben</translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
</context>
<context>
    <name>SheetText</name>
    <message>
        <source>there is no property “%1”</source>
        <translation>es gibt keine Eigenschaft „%1“</translation>
    </message>
    <message>
        <source>error near “%1”</source>
        <translation>Fehler bei „%1“</translation>
    </message>
    <message>
        <source>the rule has no end</source>
        <translation>die Regel hat kein Ende</translation>
    </message>
</context>
<context>
    <name>SignalLogView</name>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Use the component: its signals appear here.</source>
        <translation>Bedienen Sie die Komponente: Ihre Signale erscheinen hier.</translation>
    </message>
</context>
<context>
    <name>SwitchBar</name>
    <message>
        <source>A style sheet of your own that reloads when you save it</source>
        <translation>Ein eigenes Stylesheet, das beim Speichern neu geladen wird</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Restarts the gallery on the same page</source>
        <translation>Startet die Galerie auf derselben Seite neu</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>Datei …</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Von links nach rechts</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
</context>
<context>
    <name>Walk</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>WidgetFacts</name>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Base classes</source>
        <translation>Basisklassen</translation>
    </message>
    <message>
        <source>Object name</source>
        <translation>Objektname</translation>
    </message>
    <message>
        <source>Dynamic properties</source>
        <translation>Dynamische Eigenschaften</translation>
    </message>
    <message>
        <source>Rules, the strongest first</source>
        <translation>Regeln, die stärkste zuerst</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>sheet of %1</source>
        <translation>Stylesheet von %1</translation>
    </message>
    <message>
        <source>the gallery&apos;s own</source>
        <translation>das der Galerie</translation>
    </message>
    <message>
        <source>Properties that a rule can set</source>
        <translation>Eigenschaften, die eine Regel setzen kann</translation>
    </message>
    <message>
        <source>Parents</source>
        <translation>Übergeordnete Widgets</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>Untergeordnete Widgets</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>Workbench</source>
        <translation>Werkbank</translation>
    </message>
    <message>
        <source>Point at a widget</source>
        <translation>Auf ein Widget zeigen</translation>
    </message>
    <message>
        <source>Click any widget to see what a sheet can know of it (F12); Escape ends it</source>
        <translation>Ein beliebiges Widget anklicken und sehen, was ein Stylesheet von ihm wissen kann (F12); Escape beendet es</translation>
    </message>
    <message>
        <source>Copy C++</source>
        <translation>C++ kopieren</translation>
    </message>
    <message>
        <source>Copies the code that builds what the page shows, with its present values</source>
        <translation>Kopiert den Code, der baut, was die Seite zeigt, mit den gegenwärtigen Werten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Writes the sheet into its file; a built-in sheet has none</source>
        <translation>Schreibt das Stylesheet in seine Datei; ein eingebautes hat keine</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>Widget</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Stylesheet</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Kopiert.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Die Datei kann nicht geschrieben werden.</translation>
    </message>
</context>
</TS>
