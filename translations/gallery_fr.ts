<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Broken</name>
    <message>
        <source>Now it loads. Click to close.</source>
        <translation>Maintenant, elle se charge. Cliquez pour fermer.</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Discard the sequence?</source>
        <translation>Abandonner la séquence&#xa0;?</translation>
    </message>
    <message>
        <source>Its cuts and titles will be gone. The clips stay in the project.</source>
        <translation>Ses coupes et ses titres seront perdus. Les clips restent dans le projet.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>Pick a colour</source>
        <translation>Choisir une couleur</translation>
    </message>
</context>
<context>
    <name>FolderBrowser</name>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
</context>
<context>
    <name>Form</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Sequence 1</source>
        <translation>Séquence 1</translation>
    </message>
    <message>
        <source>Frames a second, 1 to 240</source>
        <translation>Images par seconde, de 1 à 240</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The style sheet %1 cannot be read.</source>
        <translation>La feuille de style %1 est illisible.</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Feuille de style</translation>
    </message>
    <message>
        <source>Style sheets (*.qss)</source>
        <translation>Feuilles de style (*.qss)</translation>
    </message>
    <message>
        <source>%1 – UiComponents Gallery</source>
        <translation>%1 – Galerie UiComponents</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Enabled</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inactif</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Search title, class, keyword</source>
        <translation>Chercher titre, classe, mot-clé</translation>
    </message>
    <message>
        <source>Search pages</source>
        <translation>Chercher des pages</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>PageRegistry</name>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Saisie</translation>
    </message>
    <message>
        <source>Layout and styling</source>
        <translation>Mise en page et style</translation>
    </message>
    <message>
        <source>Bubbles and frames</source>
        <translation>Bulles et cadres</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>Guides and dialogs</source>
        <translation>Aides et dialogues</translation>
    </message>
    <message>
        <source>Colour button</source>
        <translation>Bouton de couleur</translation>
    </message>
    <message>
        <source>A button whose face is a colour. A click hands over to an exchangeable picker, here the colour panel or Qt&apos;s colour dialog: every colour that is tried is on the button at once.</source>
        <translation>Un bouton dont la face est une couleur. Un clic passe la main à un sélecteur interchangeable, ici le panneau de couleurs ou le dialogue de couleurs de Qt&#xa0;: chaque couleur essayée paraît aussitôt sur le bouton.</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>couleur</translation>
    </message>
    <message>
        <source>picker</source>
        <translation>sélecteur</translation>
    </message>
    <message>
        <source>dialog</source>
        <translation>dialogue</translation>
    </message>
    <message>
        <source>Colour field</source>
        <translation>Champ de couleur</translation>
    </message>
    <message>
        <source>A colour button in a frame, ready for a row of a form. The frame&apos;s margins belong to the style sheet; the button inside is the anchor for a pop-up picker.</source>
        <translation>Un bouton de couleur dans un cadre, prêt pour une ligne de formulaire. Les marges du cadre reviennent à la feuille de style&#xa0;; le bouton sert d’ancre à un sélecteur surgissant.</translation>
    </message>
    <message>
        <source>form</source>
        <translation>formulaire</translation>
    </message>
    <message>
        <source>row</source>
        <translation>ligne</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>Panneau de couleurs</translation>
    </message>
    <message>
        <source>The panel that a colour field opens: a palette, a hexadecimal value, the user&apos;s own colours, a selector of any colour, and opacity.</source>
        <translation>Le panneau qu’ouvre un champ de couleur&#xa0;: une palette, une valeur hexadécimale, les couleurs personnelles, un sélecteur libre et l’opacité.</translation>
    </message>
    <message>
        <source>palette</source>
        <translation>palette</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>opacité</translation>
    </message>
    <message>
        <source>Free colour selector</source>
        <translation>Sélecteur libre</translation>
    </message>
    <message>
        <source>A colour plane above a slider for its hue: one selector for any colour. A colour that code sets appears on the next turn of the event loop.</source>
        <translation>Un plan de couleurs au-dessus d’un curseur de teinte&#xa0;: un seul sélecteur pour toutes les couleurs. Une couleur fixée par le code apparaît au tour suivant de la boucle d’événements.</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>personnel</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>teinte</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>curseur</translation>
    </message>
    <message>
        <source>Colour plane</source>
        <translation>Plan de couleurs</translation>
    </message>
    <message>
        <source>All colours of one hue: saturation grows to the right, brightness upwards. Drag the marker, also beyond the edge, or move it with the arrow keys, by ten pixels with Shift.</source>
        <translation>Toutes les couleurs d’une teinte&#xa0;: la saturation croît vers la droite, la luminosité vers le haut. Faites glisser le repère, même au-delà du bord, ou déplacez-le avec les touches fléchées, de dix pixels avec Maj.</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>saturation</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>repère</translation>
    </message>
    <message>
        <source>Blending modes</source>
        <translation>Modes de fusion</translation>
    </message>
    <message>
        <source>How the colour of a layer is combined with what lies under it. The names are sorted in the user&apos;s language, behind the first, which is no blending at all. Here the layer is a grey ramp and three lights, on a landscape.</source>
        <translation>La façon de combiner la couleur d’un calque avec ce qu’il recouvre. Les noms sont triés dans la langue de l’utilisateur, après le premier, qui ne fusionne pas. Ici, le calque est un dégradé de gris avec trois lumières, sur un paysage.</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>calque</translation>
    </message>
    <message>
        <source>combo box</source>
        <translation>liste déroulante</translation>
    </message>
    <message>
        <source>composition</source>
        <translation>composition</translation>
    </message>
    <message>
        <source>Screen pipette</source>
        <translation>Pipette d’écran</translation>
    </message>
    <message>
        <source>Picks the colour of any pixel on any screen, of other applications too. A click picks, any key gives up. The loupe beside the cursor shows the pixels around it.</source>
        <translation>Prélève la couleur de n’importe quel pixel de n’importe quel écran, même dans d’autres applications. Un clic prélève, toute touche abandonne. La loupe près du pointeur montre les pixels voisins.</translation>
    </message>
    <message>
        <source>pick</source>
        <translation>prélever</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>écran</translation>
    </message>
    <message>
        <source>magnifier</source>
        <translation>loupe</translation>
    </message>
    <message>
        <source>eyedropper</source>
        <translation>compte-gouttes</translation>
    </message>
    <message>
        <source>Colour from a widget</source>
        <translation>Couleur d’un widget</translation>
    </message>
    <message>
        <source>Click a button, then into the film: the colour of that pixel is picked. Any other click or key ends it too; with the cursor elsewhere nothing is picked.</source>
        <translation>Cliquez sur un bouton, puis dans le film&#xa0;: la couleur de ce pixel est prélevée. Tout autre clic ou touche met fin au prélèvement&#xa0;; si le pointeur est ailleurs, rien n’est prélevé.</translation>
    </message>
    <message>
        <source>preview</source>
        <translation>aperçu</translation>
    </message>
    <message>
        <source>cursor</source>
        <translation>pointeur</translation>
    </message>
    <message>
        <source>Slider field</source>
        <translation>Champ à curseur</translation>
    </message>
    <message>
        <source>A slider and a spin box of one whole number, kept in step. Each change is reported by both, so the signal arrives twice with the same value.</source>
        <translation>Un curseur et un champ numérique pour un même nombre entier, toujours accordés. Les deux annoncent chaque changement&#xa0;: le signal arrive donc deux fois avec la même valeur.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>entier</translation>
    </message>
    <message>
        <source>range</source>
        <translation>plage</translation>
    </message>
    <message>
        <source>spin box</source>
        <translation>champ numérique</translation>
    </message>
    <message>
        <source>Slider field for fractions</source>
        <translation>Champ à curseur décimal</translation>
    </message>
    <message>
        <source>A slider and a spin box of one number with a fixed count of decimals, exact to the last digit. Both the point and the comma are decimal marks while typing.</source>
        <translation>Un curseur et un champ numérique pour un même nombre à nombre fixe de décimales, exact au dernier chiffre. À la saisie, le point et la virgule valent tous deux séparateur décimal.</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>décimales</translation>
    </message>
    <message>
        <source>Point plane</source>
        <translation>Plan de points</translation>
    </message>
    <message>
        <source>A pad on which a point is picked by clicking, dragging, also out of the window, and with the arrow keys, ten pixels at a time with Shift. Here it stands for -1 to 1 both ways.</source>
        <translation>Une surface où l’on choisit un point&#xa0;: en cliquant, en faisant glisser, même hors de la fenêtre, et avec les touches fléchées, de dix en dix pixels avec Maj. Ici, elle va de -1 à 1 dans les deux sens.</translation>
    </message>
    <message>
        <source>point</source>
        <translation>point</translation>
    </message>
    <message>
        <source>position</source>
        <translation>position</translation>
    </message>
    <message>
        <source>pad</source>
        <translation>surface</translation>
    </message>
    <message>
        <source>drag</source>
        <translation>glisser</translation>
    </message>
    <message>
        <source>Point selector</source>
        <translation>Sélecteur de point</translation>
    </message>
    <message>
        <source>A point plane and a spin box for each coordinate, kept in step. A point that is picked is reported as it is, and then as the spin boxes round it.</source>
        <translation>Un plan de points et un champ numérique par coordonnée, toujours accordés. Un point choisi est annoncé tel quel, puis tel que les champs l’arrondissent.</translation>
    </message>
    <message>
        <source>coordinates</source>
        <translation>coordonnées</translation>
    </message>
    <message>
        <source>Spin box</source>
        <translation>Champ numérique</translation>
    </message>
    <message>
        <source>A spin box that is safe to scroll past, since the wheel changes it only while it has the focus, and quick to type into: Enter commits the number and leaves it selected.</source>
        <translation>Un champ numérique que l’on fait défiler sans risque, car la molette ne le modifie que s’il a le focus, et où l’on saisit vite&#xa0;: Entrée valide le nombre et le laisse sélectionné.</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>molette</translation>
    </message>
    <message>
        <source>Spin box for fractions</source>
        <translation>Champ numérique décimal</translation>
    </message>
    <message>
        <source>The spin box for fractions. On request it takes both the point and the comma as the decimal mark, whatever the language, so that nobody has to look for the right key.</source>
        <translation>Le champ numérique pour les décimaux. Sur demande, il accepte le point et la virgule comme séparateur décimal, quelle que soit la langue, pour que personne n’ait à chercher la bonne touche.</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>virgule</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Curseur</translation>
    </message>
    <message>
        <source>A slider that goes where it is clicked: a press on the groove moves the handle there at once and the drag goes on from it. The wheel changes it only while it has the focus.</source>
        <translation>Un curseur qui va là où l’on clique&#xa0;: une pression sur la rainure y amène aussitôt la poignée, et le glissement part de là. La molette ne le modifie que s’il a le focus.</translation>
    </message>
    <message>
        <source>groove</source>
        <translation>rainure</translation>
    </message>
    <message>
        <source>Slider for fractions</source>
        <translation>Curseur décimal</translation>
    </message>
    <message>
        <source>A slider with a fractional value: its steps times a multiplier. A value that code sets is kept exactly, also between two steps, in whatever order multiplier, range and value come.</source>
        <translation>Un curseur à valeur fractionnaire&#xa0;: ses pas multipliés par un facteur. Une valeur fixée par le code est gardée exactement, même entre deux pas, quel que soit l’ordre du facteur, de la plage et de la valeur.</translation>
    </message>
    <message>
        <source>multiplier</source>
        <translation>facteur</translation>
    </message>
    <message>
        <source>step</source>
        <translation>pas</translation>
    </message>
    <message>
        <source>Slider and spin box in step</source>
        <translation>Curseur et champ accordés</translation>
    </message>
    <message>
        <source>Keeps a slider and a spin box on one value, in both directions. What is typed reads back digit for digit; the handle goes to the nearest step.</source>
        <translation>Garde un curseur et un champ numérique sur une même valeur, dans les deux sens. Ce qui est saisi se relit chiffre pour chiffre&#xa0;; la poignée va au pas le plus proche.</translation>
    </message>
    <message>
        <source>binding</source>
        <translation>liaison</translation>
    </message>
    <message>
        <source>Combo box</source>
        <translation>Liste déroulante</translation>
    </message>
    <message>
        <source>A combo box that gives way in a narrow panel: the text is cut off with an ellipsis, while the pop-up is as wide as its widest item. The wheel changes it only while it has the focus.</source>
        <translation>Une liste déroulante qui cède dans un panneau étroit&#xa0;: le texte est coupé par des points de suspension, tandis que la liste a la largeur de son plus large élément. La molette ne la modifie que si elle a le focus.</translation>
    </message>
    <message>
        <source>list</source>
        <translation>liste</translation>
    </message>
    <message>
        <source>choice</source>
        <translation>choix</translation>
    </message>
    <message>
        <source>pop-up</source>
        <translation>surgissant</translation>
    </message>
    <message>
        <source>Line edit</source>
        <translation>Zone de texte</translation>
    </message>
    <message>
        <source>The design system&apos;s line edit. Its context menu always has the same shape: what can do nothing at the moment is disabled, not missing.</source>
        <translation>La zone de texte du système de conception. Son menu contextuel garde toujours la même forme&#xa0;: ce qui est sans effet est inactif, non absent.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>context menu</source>
        <translation>menu contextuel</translation>
    </message>
    <message>
        <source>field</source>
        <translation>champ</translation>
    </message>
    <message>
        <source>Elegant slider</source>
        <translation>Curseur élégant</translation>
    </message>
    <message>
        <source>The design system&apos;s slider: a slim groove and a round handle. Where no style sheet speaks of its parts it draws them in the colours of its palette.</source>
        <translation>Le curseur du système de conception&#xa0;: une fine rainure et une poignée ronde. Quand aucune feuille de style ne parle de ses parties, il les dessine aux couleurs de sa palette.</translation>
    </message>
    <message>
        <source>Combo box of the design system</source>
        <translation>Liste du système de conception</translation>
    </message>
    <message>
        <source>Gives a combo box the look of the design system in place: items, index and signals stay as they are.</source>
        <translation>Donne à une liste déroulante, sur place, l’aspect du système de conception&#xa0;: éléments, index et signaux restent inchangés.</translation>
    </message>
    <message>
        <source>Folder field</source>
        <translation>Champ de dossier</translation>
    </message>
    <message>
        <source>A field for a folder. It asks its host to browse, reports edits in bursts of a tenth of a second, and looks at the disk only when it is told to check the path. Here the host opens Qt&apos;s folder dialog and shows the space that is free where the path is.</source>
        <translation>Un champ pour un dossier. Il demande à son hôte de parcourir, annonce les saisies par rafales d’un dixième de seconde et ne consulte le disque que si on lui dit de vérifier le chemin. Ici, l’hôte ouvre le dialogue de dossiers de Qt et montre la place libre à cet endroit.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>chemin</translation>
    </message>
    <message>
        <source>browse</source>
        <translation>parcourir</translation>
    </message>
    <message>
        <source>directory</source>
        <translation>répertoire</translation>
    </message>
    <message>
        <source>disk</source>
        <translation>disque</translation>
    </message>
    <message>
        <source>error</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>Search field</source>
        <translation>Champ de recherche</translation>
    </message>
    <message>
        <source>A field for a search: it reports each change at once, and the end of an edit by Enter or by leaving it. A text never starts with a blank. Its placeholder has three colours, which change when the mouse comes or goes.</source>
        <translation>Un champ pour chercher&#xa0;: il annonce aussitôt chaque changement, et la fin de la saisie par Entrée ou quand on le quitte. Un texte ne commence jamais par une espace. Son texte indicatif a trois couleurs, qui changent quand la souris arrive ou s’en va.</translation>
    </message>
    <message>
        <source>filter</source>
        <translation>filtrer</translation>
    </message>
    <message>
        <source>find</source>
        <translation>trouver</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>effacer</translation>
    </message>
    <message>
        <source>placeholder</source>
        <translation>texte indicatif</translation>
    </message>
    <message>
        <source>Growing list</source>
        <translation>Liste extensible</translation>
    </message>
    <message>
        <source>A list that is as high as all its rows for as long as it is being loaded, and scrolls like any other once it is complete. It looks at its rows when it is told to and when it is resized, and does not watch its model.</source>
        <translation>Une liste aussi haute que toutes ses lignes tant qu’elle se charge, et qui défile comme les autres une fois complète. Elle regarde ses lignes quand on le lui dit et quand on la redimensionne, et n’observe pas son modèle.</translation>
    </message>
    <message>
        <source>list view</source>
        <translation>vue en liste</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>lignes</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>chargement</translation>
    </message>
    <message>
        <source>height</source>
        <translation>hauteur</translation>
    </message>
    <message>
        <source>Properties of a clip</source>
        <translation>Propriétés d’un clip</translation>
    </message>
    <message>
        <source>The value inputs in one panel, as an editor shows the properties of a clip. The panel can be scrolled past every field: the wheel changes only the one that has the keyboard.</source>
        <translation>Les champs de valeur dans un panneau, comme un éditeur montre les propriétés d’un clip. Le panneau défile sous tous les champs&#xa0;: la molette ne modifie que celui qui a le clavier.</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>panneau</translation>
    </message>
    <message>
        <source>inspector</source>
        <translation>inspecteur</translation>
    </message>
    <message>
        <source>editor</source>
        <translation>éditeur</translation>
    </message>
    <message>
        <source>Frame and layout controller</source>
        <translation>Cadre et contrôleur de mise en page</translation>
    </message>
    <message>
        <source>Components build their layouts without margins and spacing; the style sheet sets both through the layout controller. A frame is its own controller, any other widget gets one installed.</source>
        <translation>Les composants construisent leurs mises en page sans marges ni espacement&#xa0;; la feuille de style fixe les deux par le contrôleur de mise en page. Un cadre est son propre contrôleur, tout autre widget s’en voit attribuer un.</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>marges</translation>
    </message>
    <message>
        <source>spacing</source>
        <translation>espacement</translation>
    </message>
    <message>
        <source>Box and grid layouts</source>
        <translation>Mises en page en boîte et en grille</translation>
    </message>
    <message>
        <source>A box layout takes its owner&apos;s children in the order in which they were made, or a list of items: widgets with a stretch factor, and spacers that stretch or keep their size. A grid is filled row by row.</source>
        <translation>Une mise en page en boîte prend les enfants de son propriétaire dans l’ordre de leur création, ou une liste&#xa0;: des widgets avec un facteur d’étirement, et des espaces qui s’étirent ou gardent leur taille. Une grille se remplit ligne par ligne.</translation>
    </message>
    <message>
        <source>spacer</source>
        <translation>espace</translation>
    </message>
    <message>
        <source>stretch</source>
        <translation>étirement</translation>
    </message>
    <message>
        <source>column</source>
        <translation>colonne</translation>
    </message>
    <message>
        <source>Style hints and properties</source>
        <translation>Indices de style et propriétés</translation>
    </message>
    <message>
        <source>Code names a variant, the style sheet gives it a look: a hint is a dynamic property that the sheet selects on. Setting it polishes the widget again, and only when it changed.</source>
        <translation>Le code nomme une variante, la feuille de style lui donne un aspect&#xa0;: un indice est une propriété dynamique sur laquelle la feuille sélectionne. Le fixer repolit le widget, et seulement s’il a changé.</translation>
    </message>
    <message>
        <source>Colour variants</source>
        <translation>Variantes de couleur</translation>
    </message>
    <message>
        <source>The editor&apos;s eight colour variants of plain controls, by name. Anything but one of the names is ignored; the empty text drops the variant.</source>
        <translation>Les huit variantes de couleur de l’éditeur pour les contrôles simples, par leur nom. Tout autre nom est ignoré&#xa0;; le texte vide retire la variante.</translation>
    </message>
    <message>
        <source>variant</source>
        <translation>variante</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>indice</translation>
    </message>
    <message>
        <source>Property provider</source>
        <translation>Fournisseur de propriétés</translation>
    </message>
    <message>
        <source>A widget that paints itself takes its colours and sizes from a hidden child, which a style sheet selects by class name and writes with qproperty-.</source>
        <translation>Un widget qui se dessine lui-même prend ses couleurs et ses tailles d’un enfant caché, qu’une feuille de style sélectionne par son nom de classe et renseigne avec qproperty-.</translation>
    </message>
    <message>
        <source>Pointing bubble</source>
        <translation>Bulle fléchée</translation>
    </message>
    <message>
        <source>A bubble whose arrow touches a spot. It stays on its screen, or inside its parent, goes to the other side where there is no room, and follows the widget that it annotates.</source>
        <translation>Une bulle dont la flèche touche un point. Elle reste sur son écran, ou dans son parent, passe de l’autre côté quand la place manque et suit le widget qu’elle annote.</translation>
    </message>
    <message>
        <source>bubble</source>
        <translation>bulle</translation>
    </message>
    <message>
        <source>arrow</source>
        <translation>flèche</translation>
    </message>
    <message>
        <source>Rounded pop-ups</source>
        <translation>Fenêtres arrondies</translation>
    </message>
    <message>
        <source>Real rounded corners where desktops disagree about them: a widget with the property roundedEdges is translucent, and painted all the same.</source>
        <translation>De vrais coins arrondis là où les bureaux ne s’accordent pas&#xa0;: un widget avec la propriété roundedEdges est translucide, et dessiné tout de même.</translation>
    </message>
    <message>
        <source>corner</source>
        <translation>coin</translation>
    </message>
    <message>
        <source>translucent</source>
        <translation>translucide</translation>
    </message>
    <message>
        <source>Highlight frame</source>
        <translation>Cadre de mise en évidence</translation>
    </message>
    <message>
        <source>Outlines a widget without its notice: it follows the target through moves, resizes and hiding, lies over all its children and takes neither mouse nor focus.</source>
        <translation>Entoure un widget à son insu&#xa0;: il suit la cible quand elle bouge, change de taille ou se cache, couvre tous ses enfants et ne prend ni la souris ni le focus.</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>contour</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>superposition</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>Image animée</translation>
    </message>
    <message>
        <source>Plays an animated picture in the size of the widget, keeps its proportions, stays sharp on scaled screens and rests while it is hidden.</source>
        <translation>Joue une image animée à la taille du widget, garde ses proportions, reste nette sur les écrans à l’échelle et se repose quand elle est cachée.</translation>
    </message>
    <message>
        <source>movie</source>
        <translation>film</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animation</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>A short piece of help: a heading, an animated picture that plays while it is seen, a description and a link to further reading. What is empty is left out.</source>
        <translation>Une courte aide&#xa0;: un intitulé, une image animée qui joue tant qu’on la voit, une description et un lien pour en savoir plus. Ce qui est vide est omis.</translation>
    </message>
    <message>
        <source>help</source>
        <translation>aide</translation>
    </message>
    <message>
        <source>link</source>
        <translation>lien</translation>
    </message>
    <message>
        <source>Guide button</source>
        <translation>Bouton d’aide</translation>
    </message>
    <message>
        <source>A click opens a guide in a bubble below the button. Escape, a click elsewhere and hiding the button close it.</source>
        <translation>Un clic ouvre une aide dans une bulle sous le bouton. Échap, un clic ailleurs ou cacher le bouton la ferment.</translation>
    </message>
    <message>
        <source>Dialog guide</source>
        <translation>Aide de dialogue</translation>
    </message>
    <message>
        <source>A bubble that walks the user through a step and follows the widget that it annotates. Start the tour to see it at work.</source>
        <translation>Une bulle qui guide l’utilisateur dans une étape et suit le widget qu’elle annote. Lancez la visite pour la voir à l’œuvre.</translation>
    </message>
    <message>
        <source>tour</source>
        <translation>visite</translation>
    </message>
    <message>
        <source>QML dialog</source>
        <translation>Dialogue QML</translation>
    </message>
    <message>
        <source>A modal dialog whose whole content is a QML scene: a file that is loaded when the dialog first runs. The scene knows the dialog as &quot;callback&quot; and ends it. Change the source and open it.</source>
        <translation>Un dialogue modal dont toute la face est une scène QML&#xa0;: un fichier chargé à la première exécution. La scène connaît le dialogue sous le nom de «&#xa0;callback&#xa0;» et y met fin. Modifiez la source et ouvrez-le.</translation>
    </message>
    <message>
        <source>confirmation</source>
        <translation>confirmation</translation>
    </message>
    <message>
        <source>scene</source>
        <translation>scène</translation>
    </message>
    <message>
        <source>Platform services</source>
        <translation>Services de plateforme</translation>
    </message>
    <message>
        <source>The functions and classes below the components, with their live results.</source>
        <translation>Les fonctions et les classes sous les composants, avec leurs résultats en direct.</translation>
    </message>
    <message>
        <source>File sizes</source>
        <translation>Tailles de fichiers</translation>
    </message>
    <message>
        <source>Paths</source>
        <translation>Chemins</translation>
    </message>
    <message>
        <source>Own colours and folders</source>
        <translation>Couleurs personnelles et dossiers</translation>
    </message>
    <message>
        <source>Scheduler</source>
        <translation>Ordonnanceur</translation>
    </message>
    <message>
        <source>Headings</source>
        <translation>Intitulés</translation>
    </message>
    <message>
        <source>Privacy access</source>
        <translation>Accès à la vie privée</translation>
    </message>
    <message>
        <source>Focus of hosted QML</source>
        <translation>Focus du QML hébergé</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>unité</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>permission</source>
        <translation>permission</translation>
    </message>
    <message>
        <source>validity</source>
        <translation>validité</translation>
    </message>
    <message>
        <source>store</source>
        <translation>réserve</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>ordinateur</translation>
    </message>
    <message>
        <source>timer</source>
        <translation>minuterie</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>délai</translation>
    </message>
    <message>
        <source>merge</source>
        <translation>fusionner</translation>
    </message>
    <message>
        <source>burst</source>
        <translation>rafale</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>gras</translation>
    </message>
    <message>
        <source>language</source>
        <translation>langue</translation>
    </message>
    <message>
        <source>script</source>
        <translation>écriture</translation>
    </message>
    <message>
        <source>capture</source>
        <translation>capture</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>clavier</translation>
    </message>
    <message>
        <source>Arrow on top</source>
        <translation>Flèche en haut</translation>
    </message>
    <message>
        <source>on the left</source>
        <translation>à gauche</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>à droite</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>en bas</translation>
    </message>
    <message>
        <source>What lies behind shows through the corners.</source>
        <translation>Ce qui est derrière transparaît dans les coins.</translation>
    </message>
    <message>
        <source>Driven by the controls below</source>
        <translation>Piloté par les contrôles ci-dessous</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Commencez ici</translation>
    </message>
    <message>
        <source>All sides</source>
        <translation>Tous les côtés</translation>
    </message>
    <message>
        <source>Side of the arrow</source>
        <translation>Côté de la flèche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Open as a pop-up</source>
        <translation>Ouvrir comme fenêtre surgissante</translation>
    </message>
    <message>
        <source>A bubble of its own. It goes with the window.</source>
        <translation>Une bulle à part entière. Elle suit la fenêtre.</translation>
    </message>
    <message>
        <source>Painted by itself: a sheet sets colours and measures through the properties, and the content&apos;s margins on the frame inside.</source>
        <translation>Dessinée par elle-même&#xa0;: une feuille fixe couleurs et mesures par les propriétés, et les marges du contenu sur le cadre intérieur.</translation>
    </message>
    <message>
        <source>As a part of a window</source>
        <translation>Comme partie d’une fenêtre</translation>
    </message>
    <message>
        <source>Open a pop-up</source>
        <translation>Ouvrir une fenêtre surgissante</translation>
    </message>
    <message>
        <source>Any widget that Workaround::Ui::apply() prepared: a rule for the property gives it background, border and border-radius.</source>
        <translation>Tout widget préparé par Workaround::Ui::apply()&#xa0;: une règle pour la propriété lui donne background, border et border-radius.</translation>
    </message>
    <message>
        <source>The target</source>
        <translation>La cible</translation>
    </message>
    <message>
        <source>Still works</source>
        <translation>Fonctionne toujours</translation>
    </message>
    <message>
        <source>Highlighted</source>
        <translation>Mise en évidence</translation>
    </message>
    <message>
        <source>Height of the target</source>
        <translation>Hauteur de la cible</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>The outline, a child of the widget that it highlights.</source>
        <translation>Le contour, un enfant du widget qu’il met en évidence.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>The animation</source>
        <translation>L’animation</translation>
    </message>
    <message>
        <source>A file that is not there</source>
        <translation>Un fichier qui n’existe pas</translation>
    </message>
    <message>
        <source>Border and padding of a sheet surround the picture.</source>
        <translation>La bordure et le remplissage d’une feuille entourent l’image.</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>Aucune couleur</translation>
    </message>
    <message>
        <source>The colour that it reported last</source>
        <translation>La dernière couleur annoncée</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>rien encore</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>Une couleur</translation>
    </message>
    <message>
        <source>Several colours</source>
        <translation>Plusieurs couleurs</translation>
    </message>
    <message>
        <source>Picking</source>
        <translation>Choix en cours</translation>
    </message>
    <message>
        <source>The face is a child of its own; the button says by dynamic properties when it has no colour, or several.</source>
        <translation>La face est un enfant à part&#xa0;; le bouton dit par des propriétés dynamiques qu’il n’a aucune couleur, ou plusieurs.</translation>
    </message>
    <message>
        <source>Click it to pick a colour</source>
        <translation>Cliquez pour choisir une couleur</translation>
    </message>
    <message>
        <source>A frame around one colour button.</source>
        <translation>Un cadre autour d’un bouton de couleur.</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Choisissez une couleur</translation>
    </message>
    <message>
        <source>Opacity can be adjusted</source>
        <translation>L’opacité est réglable</translation>
    </message>
    <message>
        <source>The parts are selected by their names, and the buttons of colours as children of #colorMatrixPanel and #otherColorsQueuePanel; the one for no colour has nullColor. The panel itself writes the background-color of these and of the preview, opaque: a sheet shapes it with background-clip, and lays a background-image over it. The selector is a QDialog with roundedEdges.</source>
        <translation>Les parties se sélectionnent par leurs noms, et les boutons de couleurs comme enfants de #colorMatrixPanel et #otherColorsQueuePanel&#xa0;; celui de l’absence de couleur a nullColor. Le panneau écrit lui-même leur background-color et celui de l’aperçu, opaque&#xa0;: une feuille le façonne avec background-clip et pose une background-image dessus. Le sélecteur est un QDialog avec roundedEdges.</translation>
    </message>
    <message>
        <source>Choose any colour</source>
        <translation>Choisissez n’importe quelle couleur</translation>
    </message>
    <message>
        <source>What the colour panel opens beside its own colours; internal to the library. The margins and gaps of both frames are the sheet&apos;s.</source>
        <translation>Ce que le panneau de couleurs ouvre à côté de ses couleurs personnelles&#xa0;; interne à la bibliothèque. Les marges et les écarts des deux cadres reviennent à la feuille.</translation>
    </message>
    <message>
        <source>Drag the marker</source>
        <translation>Faites glisser le repère</translation>
    </message>
    <message>
        <source>The square of the free colour selector, and internal to the library. It asks for no room: min-width and min-height give it some.</source>
        <translation>Le carré du sélecteur libre, interne à la bibliothèque. Il ne demande pas de place&#xa0;: min-width et min-height lui en donnent.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>Choisissez un mode</translation>
    </message>
    <message>
        <source>Mode by its number</source>
        <translation>Mode par son numéro</translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation>Opacité du calque</translation>
    </message>
    <message>
        <source>As OvComboBox in the look of the design system, or alone by its class name; its list is #tesselComboBoxView.</source>
        <translation>Comme OvComboBox dans l’aspect du système de conception, ou seul par son nom de classe&#xa0;; sa liste est #tesselComboBoxView.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Suppression avec raccord</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Raccourcir</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Deletes the selected clip and closes the gap: everything behind it moves up, on &lt;b&gt;all&lt;/b&gt; tracks, so that sound and picture stay together.</source>
        <translation>Supprime le clip sélectionné et referme le trou&#xa0;: tout ce qui suit avance, sur &lt;b&gt;toutes&lt;/b&gt; les pistes, pour que son et image restent ensemble.</translation>
    </message>
    <message>
        <source>More about editing</source>
        <translation>En savoir plus sur le montage</translation>
    </message>
    <message>
        <source>Drag the end of a clip to show less or more of it. Nothing is lost.</source>
        <translation>Faites glisser l’extrémité d’un clip pour en montrer plus ou moins. Rien n’est perdu.</translation>
    </message>
    <message>
        <source>More about trimming</source>
        <translation>En savoir plus sur le raccourcissement</translation>
    </message>
    <message>
        <source>Texts are measured for the width that the sheet gives the guide. Links have the colour of their label, unless their markup says another.</source>
        <translation>Les textes sont mesurés pour la largeur que la feuille donne à l’aide. Les liens ont la couleur de leur étiquette, sauf si leur balisage en dit une autre.</translation>
    </message>
    <message>
        <source>With an animated picture</source>
        <translation>Avec une image animée</translation>
    </message>
    <message>
        <source>A title alone</source>
        <translation>Un titre seul</translation>
    </message>
    <message>
        <source>Nothing more to say</source>
        <translation>Rien de plus à dire</translation>
    </message>
    <message>
        <source>Without an info</source>
        <translation>Sans information</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>A tool button. Its pop-up is a PointingWidget named pointingWidget, with a GuideWidget named guideWidget in it; both are below the button for a sheet.</source>
        <translation>Un bouton d’outil. Sa fenêtre est un PointingWidget nommé pointingWidget, contenant un GuideWidget nommé guideWidget&#xa0;; pour une feuille, les deux sont sous le bouton.</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>Raccourcir un clip</translation>
    </message>
    <message>
        <source>Drag its end. The picture shows how; nothing is lost.</source>
        <translation>Faites glisser son extrémité. L’image montre comment&#xa0;; rien n’est perdu.</translation>
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
        <source>Start the tour</source>
        <translation>Lancer la visite</translation>
    </message>
    <message>
        <source>Find a component</source>
        <translation>Trouver un composant</translation>
    </message>
    <message>
        <source>Type a few letters of a class, a title or a keyword.</source>
        <translation>Saisissez quelques lettres d’une classe, d’un titre ou d’un mot-clé.</translation>
    </message>
    <message>
        <source>Try another style</source>
        <translation>Essayer un autre style</translation>
    </message>
    <message>
        <source>Dark, light, high contrast, none at all, or a sheet of your own that reloads when you save it.</source>
        <translation>Sombre, clair, contraste élevé, aucun, ou votre propre feuille, rechargée quand vous l’enregistrez.</translation>
    </message>
    <message>
        <source>Change it while it runs</source>
        <translation>Le modifier en marche</translation>
    </message>
    <message>
        <source>The controls act on the enabled twin and the disabled one at once.</source>
        <translation>Les contrôles agissent à la fois sur le jumeau actif et sur l’inactif.</translation>
    </message>
    <message>
        <source>See what it says</source>
        <translation>Voir ce qu’il annonce</translation>
    </message>
    <message>
        <source>Every signal of the component, newest last.</source>
        <translation>Chaque signal du composant, le plus récent en dernier.</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Boutons</translation>
    </message>
    <message>
        <source>Close button</source>
        <translation>Bouton de fermeture</translation>
    </message>
    <message>
        <source>Secondary button</source>
        <translation>Bouton secondaire</translation>
    </message>
    <message>
        <source>A PointingWidget; its bubble is painted from that one&apos;s properties.</source>
        <translation>Un PointingWidget&#xa0;; sa bulle est dessinée d’après les propriétés de celui-ci.</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Clip %1</translation>
    </message>
    <message>
        <source>with sound</source>
        <translation>avec son</translation>
    </message>
    <message>
        <source>Part of a clip&apos;s name</source>
        <translation>Partie du nom d’un clip</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>Chercher des clips</translation>
    </message>
    <message>
        <source>Beach, morning</source>
        <translation>Plage, matin</translation>
    </message>
    <message>
        <source>Beach, evening</source>
        <translation>Plage, soir</translation>
    </message>
    <message>
        <source>Harbour</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Interview</translation>
    </message>
    <message>
        <source>Interview, second camera</source>
        <translation>Interview, deuxième caméra</translation>
    </message>
    <message>
        <source>Nobody would find this folder again: %1</source>
        <translation>Personne ne retrouverait ce dossier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>À l’envers</translation>
    </message>
    <message>
        <source>Colours and sizes are those of a hidden child, selected by its class name and, where they differ for a disabled plane, with [enabled=&quot;false&quot;]. The sheet gives the plane its size.</source>
        <translation>Couleurs et tailles sont celles d’un enfant caché, sélectionné par son nom de classe et, si elles diffèrent pour un plan inactif, avec [enabled=&quot;false&quot;]. La feuille donne sa taille au plan.</translation>
    </message>
    <message>
        <source>Frames around a point plane and two labelled spin boxes. The labels are empty: the sheet may give them a text, with qproperty-text, or a picture.</source>
        <translation>Des cadres autour d’un plan de points et de deux champs numériques étiquetés. Les étiquettes sont vides&#xa0;: la feuille peut leur donner un texte, avec qproperty-text, ou une image.</translation>
    </message>
    <message>
        <source>Full HD, 1920 × 1080, 25 frames</source>
        <translation>Full HD, 1920 × 1080, 25 images</translation>
    </message>
    <message>
        <source>Ultra HD, 3840 × 2160, 60 frames</source>
        <translation>Ultra HD, 3840 × 2160, 60 images</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>Comme la source</translation>
    </message>
    <message>
        <source>With room</source>
        <translation>Avec de la place</translation>
    </message>
    <message>
        <source>In a narrow panel</source>
        <translation>Dans un panneau étroit</translation>
    </message>
    <message>
        <source>Width of the narrow one</source>
        <translation>Largeur de l’étroite</translation>
    </message>
    <message>
        <source>As QComboBox, with its sub-controls and its view, or alone by its class name; the pop-up&apos;s state is a dynamic property.</source>
        <translation>Comme QComboBox, avec ses sous-contrôles et sa vue, ou seul par son nom de classe&#xa0;; l’état de la liste est une propriété dynamique.</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Produit</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Superposition</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Comme avant</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>Convertie</translation>
    </message>
    <message>
        <source>Convert the first one too</source>
        <translation>Convertir aussi la première</translation>
    </message>
    <message>
        <source>A combo box with the property; the view of its list has the object name tesselComboBoxView.</source>
        <translation>Une liste déroulante avec la propriété&#xa0;; la vue de sa liste a le nom d’objet tesselComboBoxView.</translation>
    </message>
    <message>
        <source>A text</source>
        <translation>Un texte</translation>
    </message>
    <message>
        <source>Text to edit</source>
        <translation>Texte à modifier</translation>
    </message>
    <message>
        <source>A placeholder</source>
        <translation>Un texte indicatif</translation>
    </message>
    <message>
        <source>Name of the clip</source>
        <translation>Nom du clip</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Text to copy</source>
        <translation>Texte à copier</translation>
    </message>
    <message>
        <source>Selected as QLineEdit or, alone, as Orvane--Tessel--TesselLineEdit; its menu as QMenu#tesselContextMenu.</source>
        <translation>Sélectionné comme QLineEdit ou, seul, comme Orvane--Tessel--TesselLineEdit&#xa0;; son menu comme QMenu#tesselContextMenu.</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>Seul</translation>
    </message>
    <message>
        <source>Above a list that it filters</source>
        <translation>Au-dessus d’une liste qu’il filtre</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Texte indicatif</translation>
    </message>
    <message>
        <source>A frame around an icon, a line edit and a button that clears it. &quot;focusHint&quot; is set from the first time that the line edit gets the keyboard.</source>
        <translation>Un cadre autour d’une icône, d’une zone de texte et d’un bouton qui l’efface. «&#xa0;focusHint&#xa0;» est fixé dès que la zone de texte reçoit le clavier pour la première fois.</translation>
    </message>
    <message>
        <source>A bin of clips</source>
        <translation>Un chutier de clips</translation>
    </message>
    <message>
        <source>Loading is finished</source>
        <translation>Le chargement est fini</translation>
    </message>
    <message>
        <source>The model</source>
        <translation>Le modèle</translation>
    </message>
    <message>
        <source>Add clips: %1</source>
        <translation>Ajouter des clips&#xa0;: %1</translation>
    </message>
    <message>
        <source>Remove all clips</source>
        <translation>Retirer tous les clips</translation>
    </message>
    <message>
        <source>As QListView: it has no class of its own for a sheet. Its minimum height is its own, whatever the sheet says.</source>
        <translation>Comme QListView&#xa0;: elle n’a pas de classe propre pour une feuille. Sa hauteur minimale lui est propre, quoi que dise la feuille.</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>Revenir au dossier personnel</translation>
    </message>
    <message>
        <source>With a default folder and space on its disk</source>
        <translation>Avec un dossier par défaut et la place sur son disque</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>A relative path, with its error below</source>
        <translation>Un chemin relatif, avec son erreur dessous</translation>
    </message>
    <message>
        <source>Check the upper field</source>
        <translation>Vérifier le champ du haut</translation>
    </message>
    <message>
        <source>upper</source>
        <translation>haut</translation>
    </message>
    <message>
        <source>Check the lower field</source>
        <translation>Vérifier le champ du bas</translation>
    </message>
    <message>
        <source>lower</source>
        <translation>bas</translation>
    </message>
    <message>
        <source>The upper field&apos;s error</source>
        <translation>Erreur du champ du haut</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>nulle part</translation>
    </message>
    <message>
        <source>tool tip</source>
        <translation>infobulle</translation>
    </message>
    <message>
        <source>label</source>
        <translation>étiquette</translation>
    </message>
    <message>
        <source>Refuse hidden folders instead</source>
        <translation>Refuser plutôt les dossiers cachés</translation>
    </message>
    <message>
        <source>The upper field</source>
        <translation>Le champ du haut</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Default path&apos;s text</source>
        <translation>Texte du chemin par défaut</translation>
    </message>
    <message>
        <source>Required megabytes</source>
        <translation>Mégaoctets requis</translation>
    </message>
    <message>
        <source>A frame around a line edit and its buttons, which carries the border, the hint &quot;error&quot; and, from the first time that the line edit gets the keyboard, &quot;focusHint&quot;; figures above it and a message below it.</source>
        <translation>Un cadre autour d’une zone de texte et de ses boutons, qui porte la bordure, l’indice «&#xa0;error&#xa0;» et, dès que la zone de texte reçoit le clavier pour la première fois, «&#xa0;focusHint&#xa0;»&#xa0;; des chiffres au-dessus et un message au-dessous.</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>Chercher des paramètres</translation>
    </message>
    <message>
        <source>A frame controls its own layout</source>
        <translation>Un cadre contrôle sa propre mise en page</translation>
    </message>
    <message>
        <source>A group box with an installed controller</source>
        <translation>Un groupe avec un contrôleur installé</translation>
    </message>
    <message>
        <source>The base of composite components; a sheet sets the metrics of its layout through its properties.</source>
        <translation>La base des composants composés&#xa0;; une feuille fixe les mesures de sa mise en page par ses propriétés.</translation>
    </message>
    <message>
        <source>Any widget with an installed controller: select the controller by its class name below the widget.</source>
        <translation>Tout widget avec un contrôleur installé&#xa0;: sélectionnez le contrôleur par son nom de classe sous le widget.</translation>
    </message>
    <message>
        <source>autoFill() and a stretch behind</source>
        <translation>autoFill() et un étirement derrière</translation>
    </message>
    <message>
        <source>addItems() with a spacer</source>
        <translation>addItems() avec une espace</translation>
    </message>
    <message>
        <source>A grid: one cell spans two, one is aligned right</source>
        <translation>Une grille&#xa0;: une cellule en couvre deux, une est alignée à droite</translation>
    </message>
    <message>
        <source>A column</source>
        <translation>Une colonne</translation>
    </message>
    <message>
        <source>The spacer behind item 1</source>
        <translation>L’espace derrière l’élément 1</translation>
    </message>
    <message>
        <source>Policy</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Étirable</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>Factor or pixels</source>
        <translation>Facteur ou pixels</translation>
    </message>
    <message>
        <source>The frame around</source>
        <translation>Le cadre autour</translation>
    </message>
    <message>
        <source>A button</source>
        <translation>Un bouton</translation>
    </message>
    <message>
        <source>An edit</source>
        <translation>Une zone de texte</translation>
    </message>
    <message>
        <source>A slider</source>
        <translation>Un curseur</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>Member name</source>
        <translation>Nom du membre</translation>
    </message>
    <message>
        <source>Choose a variant below</source>
        <translation>Choisissez une variante ci-dessous</translation>
    </message>
    <message>
        <source>Variant of the edit</source>
        <translation>Variante de la zone</translation>
    </message>
    <message>
        <source>Any text</source>
        <translation>Un texte quelconque</translation>
    </message>
    <message>
        <source>Any plain control: ColorHint and Util::applyStyleHint() give it one of the shared variants.</source>
        <translation>Tout contrôle simple&#xa0;: ColorHint et Util::applyStyleHint() lui donnent une des variantes communes.</translation>
    </message>
    <message>
        <source>A dial whose hand is styled</source>
        <translation>Un cadran dont l’aiguille a un style</translation>
    </message>
    <message>
        <source>An example: the provider is selected by its class name below the widget that it serves.</source>
        <translation>Un exemple&#xa0;: le fournisseur se sélectionne par son nom de classe sous le widget qu’il sert.</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>A frame around a slider and a spin box without arrows.</source>
        <translation>Un cadre autour d’un curseur et d’un champ numérique sans flèches.</translation>
    </message>
    <message>
        <source>Two decimals</source>
        <translation>Deux décimales</translation>
    </message>
    <message>
        <source>Six decimals</source>
        <translation>Six décimales</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>Un nombre</translation>
    </message>
    <message>
        <source>With a unit</source>
        <translation>Avec une unité</translation>
    </message>
    <message>
        <source>As QSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>Comme QSpinBox, avec ses sous-contrôles, ou seul par son nom de classe.</translation>
    </message>
    <message>
        <source>The language&apos;s decimal mark</source>
        <translation>Le séparateur décimal de la langue</translation>
    </message>
    <message>
        <source>Point and comma</source>
        <translation>Point et virgule</translation>
    </message>
    <message>
        <source>As QDoubleSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>Comme QDoubleSpinBox, avec ses sous-contrôles, ou seul par son nom de classe.</translation>
    </message>
    <message>
        <source>As QSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>Comme QSlider, avec ::groove, ::handle, ::add-page et ::sub-page, ou seul par son nom de classe.</translation>
    </message>
    <message>
        <source>As OvCustomSlider and QSlider, or alone by its class name.</source>
        <translation>Comme OvCustomSlider et QSlider, ou seul par son nom de classe.</translation>
    </message>
    <message>
        <source>As OvCustomSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>Comme OvCustomSlider, avec ::groove, ::handle, ::add-page et ::sub-page, ou seul par son nom de classe.</translation>
    </message>
    <message>
        <source>Whole numbers</source>
        <translation>Nombres entiers</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>Fractions</translation>
    </message>
    <message>
        <source>Picked colours</source>
        <translation>Couleurs prélevées</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>Prélever une couleur à l’écran</translation>
    </message>
    <message>
        <source>What it picked, the latest first</source>
        <translation>Ce qu’elle a prélevé, le plus récent d’abord</translation>
    </message>
    <message>
        <source>The loupe by itself</source>
        <translation>La loupe seule</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Anywhere</source>
        <translation>N’importe où</translation>
    </message>
    <message>
        <source>In a corner of the desktop</source>
        <translation>Dans un coin du bureau</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>The loupe of the pipette, which carries the property roundedEdges. Its border is painted over the picture; its background must be transparent. The windows that cover the screens meanwhile are of the class PipetteScreenView: its cursorPixmap, cursorSize and cursorHotSpot are the cursor of the pick.</source>
        <translation>La loupe de la pipette, qui porte la propriété roundedEdges. Sa bordure est dessinée par-dessus l’image&#xa0;; son fond doit être transparent. Les fenêtres qui couvrent alors les écrans sont de la classe PipetteScreenView&#xa0;: ses cursorPixmap, cursorSize et cursorHotSpot sont le pointeur du prélèvement.</translation>
    </message>
    <message>
        <source>A button that shows its colour</source>
        <translation>Un bouton qui porte sa couleur</translation>
    </message>
    <message>
        <source>Before its first pick</source>
        <translation>Avant son premier prélèvement</translation>
    </message>
    <message>
        <source>Pick a colour from the film</source>
        <translation>Prélever une couleur dans le film</translation>
    </message>
    <message>
        <source>A colour button with this picker</source>
        <translation>Un bouton de couleur avec ce sélecteur</translation>
    </message>
    <message>
        <source>Target and cursor</source>
        <translation>Cible et pointeur</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Cible</translation>
    </message>
    <message>
        <source>The film</source>
        <translation>Le film</translation>
    </message>
    <message>
        <source>The whole page</source>
        <translation>Toute la page</translation>
    </message>
    <message>
        <source>Picking cursor</source>
        <translation>Pointeur du prélèvement</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Croix</translation>
    </message>
    <message>
        <source>Pointing hand</source>
        <translation>Main pointée</translation>
    </message>
    <message>
        <source>Question mark</source>
        <translation>Point d’interrogation</translation>
    </message>
    <message>
        <source>The film runs</source>
        <translation>Le film défile</translation>
    </message>
    <message>
        <source>Its background is its colour, written into its own sheet; size and border are the application&apos;s.</source>
        <translation>Son fond est sa couleur, écrite dans sa propre feuille&#xa0;; taille et bordure reviennent à celle de l’application.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>The scene&apos;s source</source>
        <translation>La source de la scène</translation>
    </message>
    <message>
        <source>Result of exec()</source>
        <translation>Résultat de exec()</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 ne peut pas être écrit</translation>
    </message>
    <message>
        <source>Values of the form</source>
        <translation>Valeurs du formulaire</translation>
    </message>
    <message>
        <source>Errors in the scene</source>
        <translation>Erreurs dans la scène</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>One that fails to load</source>
        <translation>Une qui ne se charge pas</translation>
    </message>
    <message>
        <source>Centred on this page</source>
        <translation>Centré sur cette page</translation>
    </message>
    <message>
        <source>Open a new dialog</source>
        <translation>Ouvrir un nouveau dialogue</translation>
    </message>
    <message>
        <source>Open the last dialog again</source>
        <translation>Rouvrir le dernier dialogue</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>Source d’origine</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>Demandé</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Décimales</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Bytes in a kilobyte</source>
        <translation>Octets par kilooctet</translation>
    </message>
    <message>
        <source>Root folder</source>
        <translation>Dossier racine</translation>
    </message>
    <message>
        <source>A file in the place of a folder</source>
        <translation>Un fichier à la place d’un dossier</translation>
    </message>
    <message>
        <source>Empty path</source>
        <translation>Chemin vide</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>Couleurs personnelles</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Relire</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>Demandes</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Appels</translation>
    </message>
    <message>
        <source>A call is pending</source>
        <translation>Un appel est en attente</translation>
    </message>
    <message>
        <source>Delay in milliseconds</source>
        <translation>Délai en millisecondes</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>One request</source>
        <translation>Une demande</translation>
    </message>
    <message>
        <source>A burst of %1 requests</source>
        <translation>Une rafale de %1 demandes</translation>
    </message>
    <message>
        <source>Your title</source>
        <translation>Votre titre</translation>
    </message>
    <message>
        <source>A title of your own</source>
        <translation>Un titre de votre choix</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>granted</source>
        <translation>accordé</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>not available on this platform</source>
        <translation>indisponible sur cette plateforme</translation>
    </message>
    <message>
        <source>Platform</source>
        <translation>Plateforme</translation>
    </message>
    <message>
        <source>Request %1</source>
        <translation>Demander %1</translation>
    </message>
    <message>
        <source>Take the view out and put it back</source>
        <translation>Retirer la vue et la remettre</translation>
    </message>
    <message>
        <source>The view</source>
        <translation>La vue</translation>
    </message>
    <message>
        <source>no widget</source>
        <translation>aucun widget</translation>
    </message>
    <message>
        <source>Keyboard focus</source>
        <translation>Focus du clavier</translation>
    </message>
    <message>
        <source>Apply the workaround</source>
        <translation>Appliquer le contournement</translation>
    </message>
    <message>
        <source>Open the dialog</source>
        <translation>Ouvrir le dialogue</translation>
    </message>
    <message>
        <source>Writes a number of bytes as users read it, in the current language&apos;s units and digits.</source>
        <translation>Écrit un nombre d’octets comme l’utilisateur le lit, avec les unités et les chiffres de la langue actuelle.</translation>
    </message>
    <message>
        <source>Headings are bold where both the language and the title are written in a script that has a tradition of bold type, and plain where bold would hurt legibility. Markup in a title is shown as text.</source>
        <translation>Les intitulés sont gras si la langue et le titre sont dans une écriture qui connaît le gras, et maigres si le gras nuirait à la lisibilité. Le balisage d’un titre est montré comme du texte.</translation>
    </message>
    <message>
        <source>What an editor asks about a path that a user typed: whether it could be a folder, where the nearest one is, and what the program may do there.</source>
        <translation>Ce qu’un éditeur demande au sujet d’un chemin saisi&#xa0;: s’il pourrait être un dossier, où est le plus proche et ce que le programme peut y faire.</translation>
    </message>
    <message>
        <source>Whether the system lets the program read the screen and the input of other programs, asked without troubling the user.</source>
        <translation>Si le système laisse le programme lire l’écran et les saisies d’autres programmes, demandé sans déranger l’utilisateur.</translation>
    </message>
    <message>
        <source>The user&apos;s own colours outlive the program, also when it is killed right after the write. They are kept under the host&apos;s organisation and application name, or in a store that the host hands over. A colour is added at the front, eight are kept, and neither a colour of the fixed palette nor one that is there already is taken.</source>
        <translation>Les couleurs personnelles survivent au programme, même s’il est tué juste après l’écriture. Elles sont gardées sous les noms d’organisation et d’application de l’hôte, ou dans une réserve que l’hôte fournit. Une couleur s’ajoute devant, huit sont gardées, et ni une couleur de la palette fixe ni une déjà présente n’est prise.</translation>
    </message>
    <message>
        <source>Merges a burst of requests into one deferred call. Later requests do not put the call off, so a steady stream of them still gets its calls.</source>
        <translation>Réunit une rafale de demandes en un seul appel différé. Les demandes suivantes ne repoussent pas l’appel&#xa0;: un flot continu obtient donc ses appels.</translation>
    </message>
    <message>
        <source>Qt forgets the focus of a view whose host is taken out of a window and put back. With the workaround the keyboard goes to the view; without it, to whatever comes first. A line edit stands for the view here: the workaround works for every kind.</source>
        <translation>Qt oublie le focus d’une vue dont l’hôte est retiré d’une fenêtre puis remis. Avec le contournement, le clavier va à la vue&#xa0;; sans lui, au premier venu. Une zone de texte tient ici lieu de vue&#xa0;: le contournement vaut pour toutes.</translation>
    </message>
    <message>
        <source>One edit, one step</source>
        <translation>Une édition, une étape</translation>
    </message>
    <message>
        <source>A session tells what a user does to a field as one story, from the first change to the end of the drag, the text or the pick. Here each becomes one step of undo. Escape takes it back.</source>
        <translation>Une session raconte ce qu’un utilisateur fait d’un champ comme une seule histoire, du premier changement à la fin du glissement, de la saisie ou du choix. Ici, chacune devient une étape d’annulation. Échap la reprend.</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>annuler</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>rétablir</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>plusieurs valeurs</translation>
    </message>
    <message>
        <source>typing</source>
        <translation>saisie</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Éditer</translation>
    </message>
    <message>
        <source>Drag it, hold an arrow key, type, turn the wheel</source>
        <translation>Faites glisser, tenez une touche fléchée, saisissez, tournez la molette</translation>
    </message>
    <message>
        <source>Drag the point</source>
        <translation>Faites glisser le point</translation>
    </message>
    <message>
        <source>Try colours, then press Escape or Enter</source>
        <translation>Essayez des couleurs, puis appuyez sur Échap ou Entrée</translation>
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
        <source>Several values</source>
        <translation>Plusieurs valeurs</translation>
    </message>
    <message>
        <source>A field that stands for several values has multiValue, and a label #multiValueCover covers each of its line edits.</source>
        <translation>Un champ qui vaut pour plusieurs valeurs a multiValue, et une étiquette #multiValueCover couvre chacune de ses zones de texte.</translation>
    </message>
    <message>
        <source>Title cards</source>
        <translation>Cartons de titre</translation>
    </message>
    <message>
        <source>An application in miniature, to be read in examples/titlecard: an inspector of several cards, undo and redo of everything, presets, a tour, a QML dialog, and pictures of the canvas.</source>
        <translation>Une application en miniature, à lire dans examples/titlecard&#xa0;: un inspecteur de plusieurs cartons, l’annulation et le rétablissement de tout, des préréglages, une visite, un dialogue QML et des images du canevas.</translation>
    </message>
    <message>
        <source>application</source>
        <translation>application</translation>
    </message>
    <message>
        <source>export</source>
        <translation>exporter</translation>
    </message>
    <message>
        <source>First light</source>
        <translation>Première lumière</translation>
    </message>
    <message>
        <source>A film</source>
        <translation>Un film</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Langues</translation>
    </message>
    <message>
        <source>The languages that the library has its texts in. One call loads one of them, here by the switch of the gallery, and every component changes at once.</source>
        <translation>Les langues dans lesquelles la bibliothèque a ses textes. Un appel charge l’une d’elles, ici par le commutateur de la galerie, et chaque composant change aussitôt.</translation>
    </message>
</context>
<context>
    <name>ParameterPanel</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Part of a parameter&apos;s name</source>
        <translation>Partie du nom d’un paramètre</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>Chercher des paramètres</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Fusion</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Nuance</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>Revenir au dossier personnel</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>Proxies</source>
        <translation>Proxys</translation>
    </message>
    <message>
        <source>Stabilise</source>
        <translation>Stabiliser</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Grain de film</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
</context>
<context>
    <name>PickerChoice</name>
    <message>
        <source>Picker</source>
        <translation>Sélecteur</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>Panneau de couleurs</translation>
    </message>
    <message>
        <source>Qt&apos;s colour dialog</source>
        <translation>Dialogue de couleurs de Qt</translation>
    </message>
    <message>
        <source>Panel: no colour allowed</source>
        <translation>Panneau&#xa0;: absence de couleur permise</translation>
    </message>
    <message>
        <source>Panel: with opacity</source>
        <translation>Panneau&#xa0;: avec opacité</translation>
    </message>
    <message>
        <source>Panel: with own colours</source>
        <translation>Panneau&#xa0;: avec couleurs personnelles</translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
</context>
<context>
    <name>SheetText</name>
    <message>
        <source>there is no property “%1”</source>
        <translation>il n’y a pas de propriété «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>error near “%1”</source>
        <translation>erreur près de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the rule has no end</source>
        <translation>la règle n’a pas de fin</translation>
    </message>
</context>
<context>
    <name>SignalLogView</name>
    <message>
        <source>Signals</source>
        <translation>Signaux</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Use the component: its signals appear here.</source>
        <translation>Utilisez le composant&#xa0;: ses signaux apparaissent ici.</translation>
    </message>
</context>
<context>
    <name>SwitchBar</name>
    <message>
        <source>A style sheet of your own that reloads when you save it</source>
        <translation>Votre propre feuille de style, rechargée quand vous l’enregistrez</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Restarts the gallery on the same page</source>
        <translation>Relance la galerie sur la même page</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>Fichier…</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>De gauche à droite</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De droite à gauche</translation>
    </message>
</context>
<context>
    <name>Walk</name>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
</context>
<context>
    <name>WidgetFacts</name>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Base classes</source>
        <translation>Classes de base</translation>
    </message>
    <message>
        <source>Object name</source>
        <translation>Nom d’objet</translation>
    </message>
    <message>
        <source>Dynamic properties</source>
        <translation>Propriétés dynamiques</translation>
    </message>
    <message>
        <source>Rules, the strongest first</source>
        <translation>Règles, la plus forte d’abord</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>sheet of %1</source>
        <translation>feuille de %1</translation>
    </message>
    <message>
        <source>the gallery&apos;s own</source>
        <translation>celle de la galerie</translation>
    </message>
    <message>
        <source>Properties that a rule can set</source>
        <translation>Propriétés qu’une règle peut fixer</translation>
    </message>
    <message>
        <source>Parents</source>
        <translation>Parents</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>Enfants</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>Workbench</source>
        <translation>Établi</translation>
    </message>
    <message>
        <source>Point at a widget</source>
        <translation>Montrer un widget</translation>
    </message>
    <message>
        <source>Click any widget to see what a sheet can know of it (F12); Escape ends it</source>
        <translation>Cliquez sur un widget pour voir ce qu’une feuille peut en savoir (F12)&#xa0;; Échap y met fin</translation>
    </message>
    <message>
        <source>Copy C++</source>
        <translation>Copier le C++</translation>
    </message>
    <message>
        <source>Copies the code that builds what the page shows, with its present values</source>
        <translation>Copie le code qui construit ce que montre la page, avec ses valeurs actuelles</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Writes the sheet into its file; a built-in sheet has none</source>
        <translation>Écrit la feuille dans son fichier&#xa0;; une feuille intégrée n’en a pas</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>Widget</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Feuille de style</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copié.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Enregistré.</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Le fichier ne peut pas être écrit.</translation>
    </message>
</context>
</TS>
