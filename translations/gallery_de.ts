<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>BindWidgetsPage</name>
    <message>
        <source>Slider and spin box in step</source>
        <translation>Schieber und Zahlenfeld im Gleichschritt</translation>
    </message>
    <message>
        <source>binding</source>
        <translation>Bindung</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>Nachkommastellen</translation>
    </message>
    <message>
        <source>Keeps a slider and a spin box on one value, in both directions. What is typed reads back digit for digit; the handle goes to the nearest step.</source>
        <translation>Hält Schieber und Zahlenfeld in beiden Richtungen auf einem Wert. Was getippt wird, liest sich Ziffer für Ziffer zurück; der Griff geht zum nächsten Schritt.</translation>
    </message>
    <message>
        <source>Whole numbers</source>
        <translation>Ganze Zahlen</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>Brüche</translation>
    </message>
</context>
<context>
    <name>BlendingModesPage</name>
    <message>
        <source>Blending modes</source>
        <translation>Mischmodi</translation>
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
        <source>How the colour of a layer is combined with what lies under it. The names are sorted in the user&apos;s language, behind the first, which is no blending at all. Here the layer is a grey ramp and three lights, on a landscape.</source>
        <translation>Wie die Farbe einer Ebene mit dem verrechnet wird, was unter ihr liegt. Die Namen sind in der Sprache des Benutzers sortiert, hinter dem ersten, der gar nicht mischt. Hier ist die Ebene ein Grauverlauf mit drei Lichtern, auf einer Landschaft.</translation>
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
</context>
<context>
    <name>BoxLayoutPage</name>
    <message>
        <source>Box and grid layouts</source>
        <translation>Kasten- und Rasterlayouts</translation>
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
        <source>row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>column</source>
        <translation>Spalte</translation>
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
        <source>A box layout takes its owner&apos;s children in the order in which they were made, or a list of items: widgets with a stretch factor, and spacers that stretch or keep their size. A grid is filled row by row.</source>
        <translation>Ein Kastenlayout nimmt die Kinder seines Besitzers in der Reihenfolge ihrer Entstehung auf oder eine Liste: Widgets mit einem Dehnfaktor und Abstände, die sich dehnen oder ihre Größe behalten. Ein Raster wird Zeile für Zeile gefüllt.</translation>
    </message>
    <message>
        <source>A grid: one cell spans two, one is aligned right</source>
        <translation>Ein Raster: Eine Zelle reicht über zwei, eine steht rechts</translation>
    </message>
</context>
<context>
    <name>ColorHintPage</name>
    <message>
        <source>Colour variants</source>
        <translation>Farbvarianten</translation>
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
        <source>The editor&apos;s eight colour variants of plain controls, by name. Anything but one of the names is ignored; the empty text drops the variant.</source>
        <translation>Die acht Farbvarianten des Editors für einfache Bedienelemente, nach Namen. Alles außer den Namen wird übergangen; der leere Text hebt die Variante auf.</translation>
    </message>
    <message>
        <source>An edit</source>
        <translation>Ein Eingabefeld</translation>
    </message>
    <message>
        <source>Choose a variant below</source>
        <translation>Wählen Sie unten eine Variante</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keiner)</translation>
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
</context>
<context>
    <name>ColorInputPage</name>
    <message>
        <source>Colour field</source>
        <translation>Farbfeld</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>Farbe</translation>
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
        <source>picker</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>A colour button in a frame, ready for a row of a form. The frame&apos;s margins belong to the style sheet; the button inside is the anchor for a pop-up picker.</source>
        <translation>Ein Farbknopf in einem Rahmen, bereit für die Zeile eines Formulars. Die Ränder des Rahmens gehören dem Stylesheet; der Knopf darin ist der Anker für eine aufklappende Auswahl.</translation>
    </message>
    <message>
        <source>Click it to pick a colour</source>
        <translation>Klicken, um eine Farbe zu wählen</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>A frame around one colour button.</source>
        <translation>Ein Rahmen um einen Farbknopf.</translation>
    </message>
</context>
<context>
    <name>ColorPickerButtonPage</name>
    <message>
        <source>Colour button</source>
        <translation>Farbknopf</translation>
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
        <source>A button whose face is a colour. A click hands over to an exchangeable picker, here Qt&apos;s colour dialog: every colour that is tried is on the button at once, and Cancel brings the old one back.</source>
        <translation>Ein Knopf, dessen Fläche eine Farbe ist. Ein Klick übergibt an eine austauschbare Auswahl, hier den Farbdialog von Qt: Jede probierte Farbe ist sofort auf dem Knopf, und Abbrechen bringt die alte zurück.</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>Eine Farbe</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>Several colours</source>
        <translation>Mehrere Farben</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Picking</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>The face is a child of its own; the button says by dynamic properties when it has no colour, or several.</source>
        <translation>Die Fläche ist ein eigenes Kind; der Knopf sagt durch dynamische Eigenschaften, wann er keine Farbe hat oder mehrere.</translation>
    </message>
</context>
<context>
    <name>ComboBoxPage</name>
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
        <source>Combo box</source>
        <translation>Auswahlfeld</translation>
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
        <source>wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>A combo box that gives way in a narrow panel: the text is cut off with an ellipsis, while the pop-up is as wide as its widest item. The wheel changes it only while it has the focus.</source>
        <translation>Ein Auswahlfeld, das in schmalen Bereichen nachgibt: Der Text wird mit Auslassungspunkten gekürzt, die Liste ist so breit wie ihr breitester Eintrag. Das Mausrad ändert es nur mit Fokus.</translation>
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
</context>
<context>
    <name>CustomSliderPage</name>
    <message>
        <source>Slider</source>
        <translation>Schieber</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>groove</source>
        <translation>Rinne</translation>
    </message>
    <message>
        <source>A slider that goes where it is clicked: a press on the groove moves the handle there at once and the drag goes on from it. The wheel changes it only while it has the focus.</source>
        <translation>Ein Schieber, der dorthin geht, wo man klickt: Ein Druck auf die Rinne bewegt den Griff sofort dorthin, und das Ziehen geht von dort weiter. Das Mausrad ändert ihn nur mit Fokus.</translation>
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
        <source>As QSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>Wie QSlider mit ::groove, ::handle, ::add-page und ::sub-page oder allein über den Klassennamen.</translation>
    </message>
</context>
<context>
    <name>CustomizationPage</name>
    <message>
        <source>Headings</source>
        <translation>Überschriften</translation>
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
        <source>Headings are bold where both the language and the title are written in a script that has a tradition of bold type, and plain where bold would hurt legibility. Markup in a title is shown as text.</source>
        <translation>Überschriften sind fett, wo Sprache und Titel in einer Schrift stehen, die Fettdruck kennt, und schlicht, wo Fettdruck die Lesbarkeit stört. Auszeichnungen im Titel erscheinen als Text.</translation>
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
        <source>As the present language shows them</source>
        <translation>Wie die gegenwärtige Sprache sie zeigt</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
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
    <name>DoubleSliderPage</name>
    <message>
        <source>Slider for fractions</source>
        <translation>Schieber für Brüche</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
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
        <source>A slider with a fractional value: its steps times a multiplier. A value that code sets is kept exactly, also between two steps, in whatever order multiplier, range and value come.</source>
        <translation>Ein Schieber mit gebrochenem Wert: seine Schritte mal einem Multiplikator. Ein vom Code gesetzter Wert bleibt genau erhalten, auch zwischen zwei Schritten, in welcher Reihenfolge Multiplikator, Bereich und Wert auch kommen.</translation>
    </message>
    <message>
        <source>As OvCustomSlider and QSlider, or alone by its class name.</source>
        <translation>Wie OvCustomSlider und QSlider oder allein über den Klassennamen.</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBoxPage</name>
    <message>
        <source>Spin box for fractions</source>
        <translation>Zahlenfeld für Brüche</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>Nachkommastellen</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>The spin box for fractions. On request it takes both the point and the comma as the decimal mark, whatever the language, so that nobody has to look for the right key.</source>
        <translation>Das Zahlenfeld für Brüche. Auf Wunsch nimmt es in jeder Sprache Punkt und Komma als Dezimalzeichen, sodass niemand die richtige Taste suchen muss.</translation>
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
</context>
<context>
    <name>FormatFileSizePage</name>
    <message>
        <source>File sizes</source>
        <translation>Dateigrößen</translation>
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
        <source>Writes a number of bytes as users read it, in the current language&apos;s units and digits, exact for every 64-bit value.</source>
        <translation>Schreibt eine Anzahl Bytes so, wie man sie liest, in Einheiten und Ziffern der gegenwärtigen Sprache, genau für jeden 64-Bit-Wert.</translation>
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
</context>
<context>
    <name>FramePage</name>
    <message>
        <source>Frame and layout controller</source>
        <translation>Rahmen und Layoutsteuerung</translation>
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
        <source>Components build their layouts without margins and spacing; the style sheet sets both through the layout controller. A frame is its own controller, any other widget gets one installed.</source>
        <translation>Komponenten bauen ihre Layouts ohne Ränder und Abstände; beide setzt das Stylesheet über die Layoutsteuerung. Ein Rahmen ist seine eigene Steuerung, jedes andere Widget bekommt eine eingesetzt.</translation>
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
</context>
<context>
    <name>HighlightFramePage</name>
    <message>
        <source>The target</source>
        <translation>Das Ziel</translation>
    </message>
    <message>
        <source>Still works</source>
        <translation>Geht trotzdem</translation>
    </message>
    <message>
        <source>Highlight frame</source>
        <translation>Hervorhebung</translation>
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
        <source>Outlines a widget without its notice: it follows the target through moves, resizes and hiding, lies over all its children and takes neither mouse nor focus.</source>
        <translation>Umrandet ein Widget, ohne dass es davon merkt: Sie folgt dem Ziel beim Bewegen, Ändern der Größe und Verbergen, liegt über allen Kindern und nimmt weder Maus noch Fokus.</translation>
    </message>
    <message>
        <source>The outline, a child of the widget that it highlights.</source>
        <translation>Der Umriss, ein Kind des hervorgehobenen Widgets.</translation>
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
</context>
<context>
    <name>PathPage</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Paths</source>
        <translation>Pfade</translation>
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
        <source>What an editor asks about a path that a user typed: whether it could be a folder, where the nearest one is, and what the program may do there.</source>
        <translation>Was ein Editor über einen eingetippten Pfad wissen will: ob er ein Ordner sein könnte, wo der nächstgelegene ist und was das Programm dort darf.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Persönlicher Ordner</translation>
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
</context>
<context>
    <name>PixmapWidgetPage</name>
    <message>
        <source>Animated image</source>
        <translation>Animiertes Bild</translation>
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
        <source>Plays an animated image in the size of the widget, keeps its proportions, stays sharp on scaled screens and rests while it is hidden.</source>
        <translation>Spielt ein animiertes Bild in der Größe des Widgets, wahrt die Proportionen, bleibt auf skalierten Bildschirmen scharf und ruht, solange es verborgen ist.</translation>
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
        <source>Visible</source>
        <translation>Sichtbar</translation>
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
</context>
<context>
    <name>PointingPage</name>
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
        <source>Pointing bubble</source>
        <translation>Sprechblase</translation>
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
        <source>hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>pop-up</source>
        <translation>Aufklappfenster</translation>
    </message>
    <message>
        <source>A bubble whose arrow touches a spot. It stays on its screen, or inside its parent, goes to the other side where there is no room, and follows the widget that it annotates.</source>
        <translation>Eine Blase, deren Pfeil eine Stelle berührt. Sie bleibt auf ihrem Bildschirm oder in ihrem Elternteil, weicht auf die andere Seite aus, wo kein Platz ist, und folgt dem Widget, das sie erläutert.</translation>
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
        <source>A bubble of its own. It goes with the window.</source>
        <translation>Eine eigene Blase. Sie geht mit dem Fenster.</translation>
    </message>
    <message>
        <source>Open as a pop-up</source>
        <translation>Als Aufklappfenster öffnen</translation>
    </message>
    <message>
        <source>Painted by itself: a sheet sets colours and measures through the properties, and the content&apos;s margins on the frame inside.</source>
        <translation>Zeichnet sich selbst: Ein Stylesheet setzt Farben und Maße über die Eigenschaften und die Ränder des Inhalts am Rahmen darin.</translation>
    </message>
</context>
<context>
    <name>PrivacyAccessPage</name>
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
        <source>Privacy access</source>
        <translation>Zugriff auf Privates</translation>
    </message>
    <message>
        <source>permission</source>
        <translation>Berechtigung</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>capture</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Whether the system lets the program read the screen and the input of other programs, asked without troubling the user.</source>
        <translation>Ob das System das Programm den Bildschirm und die Eingaben anderer Programme lesen lässt, gefragt, ohne den Benutzer zu stören.</translation>
    </message>
    <message>
        <source>Platform</source>
        <translation>Plattform</translation>
    </message>
    <message>
        <source>Request %1</source>
        <translation>%1 anfordern</translation>
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
    <name>PropertyProviderPage</name>
    <message>
        <source>Property provider</source>
        <translation>Eigenschaftsgeber</translation>
    </message>
    <message>
        <source>A widget that paints itself takes its colours and sizes from a hidden child, which a style sheet selects by class name and writes with qproperty-.</source>
        <translation>Ein Widget, das sich selbst zeichnet, nimmt Farben und Größen von einem verborgenen Kind, das ein Stylesheet über den Klassennamen auswählt und mit qproperty- beschreibt.</translation>
    </message>
    <message>
        <source>A dial whose hand is styled</source>
        <translation>Eine Anzeige, deren Zeiger gestaltet ist</translation>
    </message>
    <message>
        <source>An example: the provider is selected by its class name below the widget that it serves.</source>
        <translation>Ein Beispiel: Der Eigenschaftsgeber wird über seinen Klassennamen unter dem Widget ausgewählt, dem er dient.</translation>
    </message>
</context>
<context>
    <name>QmlFocusPage</name>
    <message>
        <source>Focus of hosted QML</source>
        <translation>Fokus von eingebettetem QML</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Qt forgets the focus of a view whose host is taken out of a window and put back. With the workaround the keyboard goes to the view; without it, to whatever comes first.</source>
        <translation>Qt vergisst den Fokus einer Ansicht, deren Träger aus einem Fenster genommen und zurückgelegt wird. Mit der Umgehung geht die Tastatur an die Ansicht, ohne sie an das, was zuerst kommt.</translation>
    </message>
    <message>
        <source>A line edit stands for the view here: the workaround works for every kind</source>
        <translation>Ein Eingabefeld steht hier für die Ansicht: Die Umgehung wirkt bei jeder Art</translation>
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
</context>
<context>
    <name>SchedulerPage</name>
    <message>
        <source>Scheduler</source>
        <translation>Planer</translation>
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
        <source>Merges a burst of requests into one deferred call. Later requests do not put the call off, so a steady stream of them still gets its calls.</source>
        <translation>Fasst eine Salve von Anforderungen zu einem verzögerten Aufruf zusammen. Spätere Anforderungen schieben den Aufruf nicht auf, sodass auch ein stetiger Strom seine Aufrufe bekommt.</translation>
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
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Custom colours and folders</source>
        <translation>Eigene Farben und Ordner</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>Farbe</translation>
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
        <source>Custom colours</source>
        <translation>Eigene Farben</translation>
    </message>
    <message>
        <source>Standard folders</source>
        <translation>Standardordner</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
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
        <source>The user&apos;s own colours outlive the program, also when it is killed right after the write. They are kept under the host&apos;s organisation and application name, or in a store that the host hands over. A colour is added at the front, eight are kept, and neither a colour of the fixed palette nor one that is there already is taken.</source>
        <translation>Die eigenen Farben überleben das Programm, auch wenn es gleich nach dem Schreiben beendet wird. Sie liegen unter dem Organisations- und Anwendungsnamen des Wirts oder in einem Speicher, den der Wirt übergibt. Eine Farbe kommt vorn hinzu, acht bleiben, und weder eine Farbe der festen Palette noch eine, die schon da ist, wird aufgenommen.</translation>
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
    <name>SpinBoxPage</name>
    <message>
        <source>Spin box</source>
        <translation>Zahlenfeld</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>A spin box that is safe to scroll past, since the wheel changes it only while it has the focus, and quick to type into: Enter commits the number and leaves it selected.</source>
        <translation>Ein Zahlenfeld, an dem man gefahrlos vorbeirollt, weil das Mausrad es nur mit Fokus ändert, und in das man schnell tippt: Die Eingabetaste übernimmt die Zahl und lässt sie ausgewählt.</translation>
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
</context>
<context>
    <name>StyleHintsPage</name>
    <message>
        <source>Style hints and properties</source>
        <translation>Stilhinweise und Eigenschaften</translation>
    </message>
    <message>
        <source>Code names a variant, the style sheet gives it a look: a hint is a dynamic property that the sheet selects on. Setting it polishes the widget again, and only when it changed.</source>
        <translation>Der Code nennt eine Variante, das Stylesheet gibt ihr ein Aussehen: Ein Hinweis ist eine dynamische Eigenschaft, nach der das Stylesheet auswählt. Beim Setzen wird das Widget neu gestaltet, und nur, wenn sich etwas geändert hat.</translation>
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
    <name>TesselComboBoxPage</name>
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
        <source>Combo box of the design system</source>
        <translation>Auswahlfeld des Designsystems</translation>
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
        <source>Gives a combo box the look of the design system in place: items, index and signals stay as they are.</source>
        <translation>Gibt einem Auswahlfeld an Ort und Stelle das Aussehen des Designsystems: Einträge, Index und Signale bleiben, wie sie sind.</translation>
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
</context>
<context>
    <name>TesselElegantSliderPage</name>
    <message>
        <source>Elegant slider</source>
        <translation>Eleganter Schieber</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>groove</source>
        <translation>Rinne</translation>
    </message>
    <message>
        <source>The design system&apos;s slider: a slim groove and a round handle. Where no style sheet speaks of its parts it draws them in the colours of its palette.</source>
        <translation>Der Schieber des Designsystems: eine schlanke Rinne und ein runder Griff. Wo kein Stylesheet von seinen Teilen spricht, zeichnet er sie in den Farben seiner Palette.</translation>
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
        <source>As OvCustomSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>Wie OvCustomSlider mit ::groove, ::handle, ::add-page und ::sub-page oder allein über den Klassennamen.</translation>
    </message>
</context>
<context>
    <name>TesselLineEditPage</name>
    <message>
        <source>Line edit</source>
        <translation>Eingabefeld</translation>
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
        <source>The design system&apos;s line edit. Its context menu always has the same shape: what can do nothing at the moment is disabled, not missing.</source>
        <translation>Das Eingabefeld des Designsystems. Sein Kontextmenü hat immer dieselbe Gestalt: Was gerade nichts bewirkt, ist inaktiv und fehlt nicht.</translation>
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
</context>
<context>
    <name>WorkaroundPage</name>
    <message>
        <source>What lies behind shows through the corners.</source>
        <translation>Was dahinter liegt, scheint durch die Ecken.</translation>
    </message>
    <message>
        <source>Rounded pop-ups</source>
        <translation>Abgerundete Aufklappfenster</translation>
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
        <source>Real rounded corners where desktops disagree about them: a widget with the property roundedEdges is translucent, and painted all the same.</source>
        <translation>Echte runde Ecken, wo Arbeitsoberflächen sich uneins sind: Ein Widget mit der Eigenschaft roundedEdges ist durchscheinend und wird trotzdem gezeichnet.</translation>
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
</context>
</TS>
