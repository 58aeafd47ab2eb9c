<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
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
        <translation>rose</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rouge</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
    <message>
        <source>brown</source>
        <translation>brun</translation>
    </message>
    <message>
        <source>golden yellow</source>
        <translation>jaune d’or</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>jaune</translation>
    </message>
    <message>
        <source>olive</source>
        <translation>olive</translation>
    </message>
    <message>
        <source>yellow green</source>
        <translation>vert-jaune</translation>
    </message>
    <message>
        <source>green</source>
        <translation>vert</translation>
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
        <translation>azur</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>bleu</translation>
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
        <translation>noir</translation>
    </message>
    <message>
        <source>very dark grey</source>
        <translation>gris très foncé</translation>
    </message>
    <message>
        <source>dark grey</source>
        <translation>gris foncé</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>light grey</source>
        <translation>gris clair</translation>
    </message>
    <message>
        <source>very light grey</source>
        <translation>gris très clair</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanc</translation>
    </message>
    <message>
        <source>very dark %1</source>
        <translation>%1 très foncé</translation>
    </message>
    <message>
        <source>very light %1</source>
        <translation>%1 très clair</translation>
    </message>
    <message>
        <source>greyish %1</source>
        <translation>%1 grisâtre</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>%1 foncé</translation>
    </message>
    <message>
        <source>light %1</source>
        <translation>%1 clair</translation>
    </message>
    <message>
        <source>several colours</source>
        <translation>plusieurs couleurs</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>aucune couleur</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <translation>%1, %2&#xa0;%</translation>
    </message>
</context>
<context>
    <name>ColorPickerWidget</name>
    <message>
        <source>Other:</source>
        <translation>Autres&#xa0;:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Opacité&#xa0;:</translation>
    </message>
    <message>
        <source>Colour value</source>
        <translation>Valeur de la couleur</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>Prélever une couleur à l’écran</translation>
    </message>
    <message>
        <source>Choose another colour</source>
        <translation>Choisir une autre couleur</translation>
    </message>
    <message>
        <source>Current colour</source>
        <translation>Couleur actuelle</translation>
    </message>
    <message>
        <source>Needs a mouse; without one, type the colour value</source>
        <translation>Demande une souris&#xa0;; sans souris, saisissez la valeur de la couleur</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>Couleurs personnelles</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Opacity in percent</source>
        <translation>Opacité en pour cent</translation>
    </message>
    <message>
        <source>Empty place</source>
        <translation>Emplacement libre</translation>
    </message>
</context>
<context>
    <name>CustomColorSelectWidget</name>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Saturation and brightness</source>
        <translation>Saturation et luminosité</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
</context>
<context>
    <name>DialogGuideWidget</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>Image animée</translation>
    </message>
</context>
<context>
    <name>EditSessionCover</name>
    <message>
        <source>Several values</source>
        <translation>Plusieurs valeurs</translation>
    </message>
</context>
<context>
    <name>FileUtil</name>
    <message>
        <source>No path is given</source>
        <translation>Aucun chemin n’est indiqué</translation>
    </message>
    <message>
        <source>Not a path on a disk: %1</source>
        <translation>Ce n’est pas un chemin sur un disque&#xa0;: %1</translation>
    </message>
    <message>
        <source>The path has characters that names on this disk cannot have: %1</source>
        <translation>Le chemin contient des caractères interdits dans les noms de ce disque&#xa0;: %1</translation>
    </message>
    <message>
        <source>The path is too long: %1</source>
        <translation>Le chemin est trop long&#xa0;: %1</translation>
    </message>
    <message>
        <source>A name in the path is too long: %1</source>
        <translation>Un nom du chemin est trop long&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is something else in the place of a folder: %1</source>
        <translation>Autre chose se trouve à la place d’un dossier&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>FormatFileSize</name>
    <message>
        <source>%1 B</source>
        <translation>%1 o</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 To</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 Po</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 Eo</translation>
    </message>
</context>
<context>
    <name>GuideWidget</name>
    <message>
        <source>Animated picture</source>
        <translation>Image animée</translation>
    </message>
    <message>
        <source>Playing; Space pauses it</source>
        <translation>Lecture en cours&#xa0;; la barre d’espace la suspend</translation>
    </message>
    <message>
        <source>Paused; Space plays it</source>
        <translation>En pause&#xa0;; la barre d’espace lance la lecture</translation>
    </message>
</context>
<context>
    <name>Orvane::Tessel::TesselLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>PathSelectionWidget</name>
    <message>
        <source>Selected path is not readable</source>
        <translation>Le chemin choisi n’est pas accessible en lecture</translation>
    </message>
    <message>
        <source>Selected path is not writable</source>
        <translation>Le chemin choisi n’est pas accessible en écriture</translation>
    </message>
    <message>
        <source>Required: %1</source>
        <translation>Requis&#xa0;: %1</translation>
    </message>
    <message>
        <source>Available: %1</source>
        <translation>Disponible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Back to the default folder</source>
        <translation>Revenir au dossier par défaut</translation>
    </message>
</context>
<context>
    <name>PointSelectorWidget</name>
    <message>
        <source>Position on the x-axis</source>
        <translation>Position sur l’axe x</translation>
    </message>
    <message>
        <source>Position on the y-axis</source>
        <translation>Position sur l’axe y</translation>
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
        <translation>Ce bureau n’a pas de service pour les couleurs de l’écran.</translation>
    </message>
    <message>
        <source>This desktop cannot pick colours from the screen for programs.</source>
        <translation>Ce bureau ne peut pas prélever de couleurs à l’écran pour les programmes.</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen does not answer.</source>
        <translation>Le service du bureau pour les couleurs de l’écran ne répond pas.</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen has refused.</source>
        <translation>Le service du bureau pour les couleurs de l’écran a refusé.</translation>
    </message>
</context>
<context>
    <name>SearchWidget</name>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>SliderInputWidget</name>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
</context>
<context>
    <name>WidgetColorPickerButton</name>
    <message>
        <source>Needs a mouse; without one, type the value in a colour panel</source>
        <translation>Demande une souris&#xa0;; sans souris, saisissez la valeur dans un panneau de couleurs</translation>
    </message>
</context>
<context>
    <name>blendingModes</name>
    <message>
        <source>Overlay</source>
        <translation>Incrustation</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Éclaircir</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>ColorDodge</source>
        <translation>Densité couleur −</translation>
    </message>
    <message>
        <source>LinearDodge</source>
        <translation>Densité linéaire −</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Superposition</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Produit</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Obscurcir</translation>
    </message>
    <message>
        <source>ColorBurn</source>
        <translation>Densité couleur +</translation>
    </message>
    <message>
        <source>HardLight</source>
        <translation>Lumière crue</translation>
    </message>
    <message>
        <source>SoftLight</source>
        <translation>Lumière tamisée</translation>
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
