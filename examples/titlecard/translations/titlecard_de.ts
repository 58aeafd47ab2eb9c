<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>TitleCard::Editor</name>
    <message>
        <source>New card...</source>
        <translation>Neue Karte...</translation>
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
        <source>Save as preset</source>
        <translation>Als Vorlage speichern</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>Bild exportieren</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Rundgang</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>The picture cannot be saved as %1.</source>
        <translation>Das Bild kann nicht als %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>The canvas</source>
        <translation>Die Leinwand</translation>
    </message>
    <message>
        <source>A click selects a card, Ctrl and a click several.</source>
        <translation>Ein Klick wählt eine Karte aus, Strg und ein Klick mehrere.</translation>
    </message>
    <message>
        <source>The inspector</source>
        <translation>Der Inspektor</translation>
    </message>
    <message>
        <source>All selected cards get what you change. Escape takes it back.</source>
        <translation>Alle ausgewählten Karten erhalten, was Sie ändern. Escape nimmt es zurück.</translation>
    </message>
    <message>
        <source>The folder</source>
        <translation>Der Ordner</translation>
    </message>
    <message>
        <source>The canvas is saved here as a picture.</source>
        <translation>Hier wird die Leinwand als Bild gespeichert.</translation>
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
        <source>Title cards</source>
        <translation>Titelkarten</translation>
    </message>
    <message>
        <source>Name of a preset</source>
        <translation>Name einer Vorlage</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Search presets</source>
        <translation>Vorlagen suchen</translation>
    </message>
    <message>
        <source>Where the picture is saved</source>
        <translation>Wo das Bild gespeichert wird</translation>
    </message>
</context>
<context>
    <name>TitleCard::Inspector</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>What the card says. Escape brings it back.</source>
        <translation>Was auf der Karte steht. Escape holt es zurück.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Of the letters.</source>
        <translation>Der Buchstaben.</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Around the letters, or none.</source>
        <translation>Um die Buchstaben, oder keine.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Behind the letters, or none.</source>
        <translation>Hinter den Buchstaben, oder keiner.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Of the letters in pixels.</source>
        <translation>Der Buchstaben in Pixeln.</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Degrees, clockwise.</source>
        <translation>Grad, im Uhrzeigersinn.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>0 cannot be seen, and 1 hides what is below.</source>
        <translation>0 ist unsichtbar, und 1 verdeckt, was darunter liegt.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Of the middle of the card: -1 is left and top, 1 right and bottom.</source>
        <translation>Der Mitte der Karte: -1 ist links und oben, 1 rechts und unten.</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Mischmodus</translation>
    </message>
    <message>
        <source>How the card is mixed with what lies below it.</source>
        <translation>Wie die Karte mit dem gemischt wird, was unter ihr liegt.</translation>
    </message>
</context>
<context>
    <name>TitleCard::NewCardDialog</name>
    <message>
        <source>Text of the new card</source>
        <translation>Text der neuen Karte</translation>
    </message>
</context>
</TS>
