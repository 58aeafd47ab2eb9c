<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>TitleCard::Editor</name>
    <message>
        <source>New card...</source>
        <translation>Nouveau carton...</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>Exporter l’image</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Visite</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>Nouveau carton</translation>
    </message>
    <message>
        <source>The picture cannot be saved as %1.</source>
        <translation>L’image ne peut pas être enregistrée sous %1.</translation>
    </message>
    <message>
        <source>The canvas</source>
        <translation>Le canevas</translation>
    </message>
    <message>
        <source>A click selects a card, Ctrl and a click several.</source>
        <translation>Un clic sélectionne un carton, Ctrl et un clic plusieurs.</translation>
    </message>
    <message>
        <source>The inspector</source>
        <translation>L’inspecteur</translation>
    </message>
    <message>
        <source>All selected cards get what you change. Escape takes it back.</source>
        <translation>Tous les cartons sélectionnés reçoivent ce que vous changez. Échap le reprend.</translation>
    </message>
    <message>
        <source>The folder</source>
        <translation>Le dossier</translation>
    </message>
    <message>
        <source>The canvas is saved here as a picture.</source>
        <translation>Le canevas est enregistré ici comme image.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Title cards</source>
        <translation>Cartons de titre</translation>
    </message>
    <message>
        <source>Name of a preset</source>
        <translation>Nom d’un préréglage</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Search presets</source>
        <translation>Chercher des préréglages</translation>
    </message>
    <message>
        <source>Where the picture is saved</source>
        <translation>Où l’image est enregistrée</translation>
    </message>
</context>
<context>
    <name>TitleCard::Inspector</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>What the card says. Escape brings it back.</source>
        <translation>Ce que dit le carton. Échap le ramène.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Of the letters.</source>
        <translation>Des lettres.</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Around the letters, or none.</source>
        <translation>Autour des lettres, ou aucun.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Behind the letters, or none.</source>
        <translation>Derrière les lettres, ou aucun.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Of the letters in pixels.</source>
        <translation>Des lettres, en pixels.</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Degrees, clockwise.</source>
        <translation>En degrés, dans le sens horaire.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>0 cannot be seen, and 1 hides what is below.</source>
        <translation>0 est invisible, et 1 cache ce qui est dessous.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Of the middle of the card: -1 is left and top, 1 right and bottom.</source>
        <translation>Du milieu du carton&#xa0;: -1 est à gauche et en haut, 1 à droite et en bas.</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Fusion</translation>
    </message>
    <message>
        <source>How the card is mixed with what lies below it.</source>
        <translation>La façon dont le carton se mêle à ce qui est dessous.</translation>
    </message>
</context>
<context>
    <name>TitleCard::NewCardDialog</name>
    <message>
        <source>Text of the new card</source>
        <translation>Texte du nouveau carton</translation>
    </message>
</context>
</TS>
