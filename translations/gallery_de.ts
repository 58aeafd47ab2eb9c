<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
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
        <source>A box layout takes its owner&apos;s children in the order in which they were made, or a list of items: widgets with a stretch factor, and spacers that stretch or keep their size.</source>
        <translation>Ein Kastenlayout nimmt die Kinder seines Besitzers in der Reihenfolge ihrer Entstehung auf oder eine Liste: Widgets mit einem Dehnfaktor und Abstände, die sich dehnen oder ihre Größe behalten.</translation>
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
    <name>DialogColorPicker</name>
    <message>
        <source>Pick a colour</source>
        <translation>Farbe wählen</translation>
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
</TS>
