<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Broken</name>
    <message>
        <source>Now it loads. Click to close.</source>
        <translation>Ahora se carga. Haga clic para cerrar.</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Discard the sequence?</source>
        <translation>¿Descartar la secuencia?</translation>
    </message>
    <message>
        <source>Its cuts and titles will be gone. The clips stay in the project.</source>
        <translation>Sus cortes y títulos se perderán. Los clips siguen en el proyecto.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>Pick a colour</source>
        <translation>Elegir un color</translation>
    </message>
</context>
<context>
    <name>FolderBrowser</name>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
</context>
<context>
    <name>Form</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Sequence 1</source>
        <translation>Secuencia 1</translation>
    </message>
    <message>
        <source>Frames a second, 1 to 240</source>
        <translation>Fotogramas por segundo, de 1 a 240</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The style sheet %1 cannot be read.</source>
        <translation>La hoja de estilo %1 no se puede leer.</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Hoja de estilo</translation>
    </message>
    <message>
        <source>Style sheets (*.qss)</source>
        <translation>Hojas de estilo (*.qss)</translation>
    </message>
    <message>
        <source>%1 – UiComponents Gallery</source>
        <translation>%1 – Galería de UiComponents</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Enabled</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inactivo</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Search title, class, keyword</source>
        <translation>Buscar título, clase, palabra clave</translation>
    </message>
    <message>
        <source>Search pages</source>
        <translation>Buscar páginas</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>PageRegistry</name>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Layout and styling</source>
        <translation>Disposición y estilo</translation>
    </message>
    <message>
        <source>Bubbles and frames</source>
        <translation>Globos y marcos</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Servicios</translation>
    </message>
    <message>
        <source>Guides and dialogs</source>
        <translation>Guías y diálogos</translation>
    </message>
    <message>
        <source>Colour button</source>
        <translation>Botón de color</translation>
    </message>
    <message>
        <source>A button whose face is a colour. A click hands over to an exchangeable picker, here the colour panel or Qt&apos;s colour dialog: every colour that is tried is on the button at once.</source>
        <translation>Un botón cuya cara es un color. Un clic cede el paso a un selector intercambiable, aquí el panel de colores o el diálogo de colores de Qt: cada color que se prueba aparece al momento en el botón.</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>color</translation>
    </message>
    <message>
        <source>picker</source>
        <translation>selector</translation>
    </message>
    <message>
        <source>dialog</source>
        <translation>diálogo</translation>
    </message>
    <message>
        <source>Colour field</source>
        <translation>Campo de color</translation>
    </message>
    <message>
        <source>A colour button in a frame, ready for a row of a form. The frame&apos;s margins belong to the style sheet; the button inside is the anchor for a pop-up picker.</source>
        <translation>Un botón de color en un marco, listo para una fila de un formulario. Los márgenes del marco son de la hoja de estilo; el botón sirve de ancla a un selector emergente.</translation>
    </message>
    <message>
        <source>form</source>
        <translation>formulario</translation>
    </message>
    <message>
        <source>row</source>
        <translation>fila</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>Panel de colores</translation>
    </message>
    <message>
        <source>The panel that a colour field opens: a palette, a hexadecimal value, the user&apos;s own colours, a selector of any colour, and opacity.</source>
        <translation>El panel que abre un campo de color: una paleta, un valor hexadecimal, los colores propios, un selector libre y la opacidad.</translation>
    </message>
    <message>
        <source>palette</source>
        <translation>paleta</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>opacidad</translation>
    </message>
    <message>
        <source>Free colour selector</source>
        <translation>Selector libre de color</translation>
    </message>
    <message>
        <source>A colour plane above a slider for its hue: one selector for any colour. A colour that code sets appears on the next turn of the event loop.</source>
        <translation>Un plano de colores sobre un deslizador de tono: un solo selector para cualquier color. Un color fijado por el código aparece en la siguiente vuelta del bucle de eventos.</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>propio</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>tono</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>deslizador</translation>
    </message>
    <message>
        <source>Colour plane</source>
        <translation>Plano de colores</translation>
    </message>
    <message>
        <source>All colours of one hue: saturation grows to the right, brightness upwards. Drag the marker, also beyond the edge, or move it with the arrow keys, by ten pixels with Shift.</source>
        <translation>Todos los colores de un tono: la saturación crece hacia la derecha y el brillo hacia arriba. Arrastre el marcador, también más allá del borde, o muévalo con las teclas de flecha, de diez en diez píxeles con Mayús.</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>saturación</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>marcador</translation>
    </message>
    <message>
        <source>Blending modes</source>
        <translation>Modos de fusión</translation>
    </message>
    <message>
        <source>How the colour of a layer is combined with what lies under it. The names are sorted in the user&apos;s language, behind the first, which is no blending at all. Here the layer is a grey ramp and three lights, on a landscape.</source>
        <translation>Cómo se combina el color de una capa con lo que tiene debajo. Los nombres se ordenan en el idioma del usuario, tras el primero, que no fusiona. Aquí la capa es un degradado de grises con tres luces, sobre un paisaje.</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>capa</translation>
    </message>
    <message>
        <source>combo box</source>
        <translation>cuadro combinado</translation>
    </message>
    <message>
        <source>composition</source>
        <translation>composición</translation>
    </message>
    <message>
        <source>Screen pipette</source>
        <translation>Cuentagotas de pantalla</translation>
    </message>
    <message>
        <source>Picks the colour of any pixel on any screen, of other applications too. A click picks, any key gives up. The loupe beside the cursor shows the pixels around it.</source>
        <translation>Toma el color de cualquier píxel de cualquier pantalla, también de otras aplicaciones. Un clic lo toma, cualquier tecla desiste. La lupa junto al puntero muestra los píxeles que lo rodean.</translation>
    </message>
    <message>
        <source>pick</source>
        <translation>tomar</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>pantalla</translation>
    </message>
    <message>
        <source>magnifier</source>
        <translation>lupa</translation>
    </message>
    <message>
        <source>eyedropper</source>
        <translation>pipeta</translation>
    </message>
    <message>
        <source>Colour from a widget</source>
        <translation>Color de un widget</translation>
    </message>
    <message>
        <source>Click a button, then into the film: the colour of that pixel is picked. Any other click or key ends it too; with the cursor elsewhere nothing is picked.</source>
        <translation>Haga clic en un botón y luego en la película: se toma el color de ese píxel. Cualquier otro clic o tecla también termina; con el puntero en otro lugar no se toma nada.</translation>
    </message>
    <message>
        <source>preview</source>
        <translation>vista previa</translation>
    </message>
    <message>
        <source>cursor</source>
        <translation>puntero</translation>
    </message>
    <message>
        <source>Slider field</source>
        <translation>Campo deslizante</translation>
    </message>
    <message>
        <source>A slider and a spin box of one whole number, kept in step. Each change is reported by both, so the signal arrives twice with the same value.</source>
        <translation>Un deslizador y un cuadro numérico de un mismo número entero, siempre acordes. Ambos informan de cada cambio, así que la señal llega dos veces con el mismo valor.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>entero</translation>
    </message>
    <message>
        <source>range</source>
        <translation>intervalo</translation>
    </message>
    <message>
        <source>spin box</source>
        <translation>cuadro numérico</translation>
    </message>
    <message>
        <source>Slider field for fractions</source>
        <translation>Campo deslizante decimal</translation>
    </message>
    <message>
        <source>A slider and a spin box of one number with a fixed count of decimals, exact to the last digit. Both the point and the comma are decimal marks while typing.</source>
        <translation>Un deslizador y un cuadro numérico de un mismo número con decimales fijos, exacto hasta la última cifra. Al escribir, tanto el punto como la coma son signo decimal.</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>decimales</translation>
    </message>
    <message>
        <source>Point plane</source>
        <translation>Plano de puntos</translation>
    </message>
    <message>
        <source>A pad on which a point is picked by clicking, dragging, also out of the window, and with the arrow keys, ten pixels at a time with Shift. Here it stands for -1 to 1 both ways.</source>
        <translation>Una superficie en la que se elige un punto: con un clic, arrastrando, incluso fuera de la ventana, y con las teclas de flecha, de diez en diez píxeles con Mayús. Aquí va de -1 a 1 en ambos sentidos.</translation>
    </message>
    <message>
        <source>point</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>position</source>
        <translation>posición</translation>
    </message>
    <message>
        <source>pad</source>
        <translation>superficie</translation>
    </message>
    <message>
        <source>drag</source>
        <translation>arrastrar</translation>
    </message>
    <message>
        <source>Point selector</source>
        <translation>Selector de punto</translation>
    </message>
    <message>
        <source>A point plane and a spin box for each coordinate, kept in step. A point that is picked is reported as it is, and then as the spin boxes round it.</source>
        <translation>Un plano de puntos y un cuadro numérico por coordenada, siempre acordes. De un punto elegido se informa tal cual, y luego tal como lo redondean los cuadros.</translation>
    </message>
    <message>
        <source>coordinates</source>
        <translation>coordenadas</translation>
    </message>
    <message>
        <source>Spin box</source>
        <translation>Cuadro numérico</translation>
    </message>
    <message>
        <source>A spin box that is safe to scroll past, since the wheel changes it only while it has the focus, and quick to type into: Enter commits the number and leaves it selected.</source>
        <translation>Un cuadro numérico por el que se puede pasar con la rueda sin riesgo, pues solo lo cambia cuando tiene el foco, y en el que se escribe rápido: Intro confirma el número y lo deja seleccionado.</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>rueda</translation>
    </message>
    <message>
        <source>Spin box for fractions</source>
        <translation>Cuadro numérico decimal</translation>
    </message>
    <message>
        <source>The spin box for fractions. On request it takes both the point and the comma as the decimal mark, whatever the language, so that nobody has to look for the right key.</source>
        <translation>El cuadro numérico con decimales. Si se le pide, acepta el punto y la coma como signo decimal en cualquier idioma, para que nadie tenga que buscar la tecla correcta.</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>coma</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Deslizador</translation>
    </message>
    <message>
        <source>A slider that goes where it is clicked: a press on the groove moves the handle there at once and the drag goes on from it. The wheel changes it only while it has the focus.</source>
        <translation>Un deslizador que va adonde se hace clic: al pulsar en la ranura, el tirador acude al momento y el arrastre sigue desde allí. La rueda solo lo cambia cuando tiene el foco.</translation>
    </message>
    <message>
        <source>groove</source>
        <translation>ranura</translation>
    </message>
    <message>
        <source>Slider for fractions</source>
        <translation>Deslizador decimal</translation>
    </message>
    <message>
        <source>A slider with a fractional value: its steps times a multiplier. A value that code sets is kept exactly, also between two steps, in whatever order multiplier, range and value come.</source>
        <translation>Un deslizador de valor fraccionario: sus pasos por un multiplicador. Un valor fijado por el código se conserva exacto, también entre dos pasos, en cualquier orden de multiplicador, intervalo y valor.</translation>
    </message>
    <message>
        <source>multiplier</source>
        <translation>multiplicador</translation>
    </message>
    <message>
        <source>step</source>
        <translation>paso</translation>
    </message>
    <message>
        <source>Slider and spin box in step</source>
        <translation>Deslizador y cuadro acordes</translation>
    </message>
    <message>
        <source>Keeps a slider and a spin box on one value, in both directions. What is typed reads back digit for digit; the handle goes to the nearest step.</source>
        <translation>Mantiene un deslizador y un cuadro numérico en un mismo valor, en ambos sentidos. Lo que se escribe se lee igual cifra por cifra; el tirador va al paso más cercano.</translation>
    </message>
    <message>
        <source>binding</source>
        <translation>enlace</translation>
    </message>
    <message>
        <source>Combo box</source>
        <translation>Cuadro combinado</translation>
    </message>
    <message>
        <source>A combo box that gives way in a narrow panel: the text is cut off with an ellipsis, while the pop-up is as wide as its widest item. The wheel changes it only while it has the focus.</source>
        <translation>Un cuadro combinado que cede en un panel estrecho: el texto se corta con puntos suspensivos, mientras que la lista es tan ancha como su elemento más ancho. La rueda solo lo cambia cuando tiene el foco.</translation>
    </message>
    <message>
        <source>list</source>
        <translation>lista</translation>
    </message>
    <message>
        <source>choice</source>
        <translation>elección</translation>
    </message>
    <message>
        <source>pop-up</source>
        <translation>emergente</translation>
    </message>
    <message>
        <source>Line edit</source>
        <translation>Cuadro de texto</translation>
    </message>
    <message>
        <source>The design system&apos;s line edit. Its context menu always has the same shape: what can do nothing at the moment is disabled, not missing.</source>
        <translation>El cuadro de texto del sistema de diseño. Su menú contextual tiene siempre la misma forma: lo que no puede hacer nada está inactivo, no ausente.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>context menu</source>
        <translation>menú contextual</translation>
    </message>
    <message>
        <source>field</source>
        <translation>campo</translation>
    </message>
    <message>
        <source>Elegant slider</source>
        <translation>Deslizador elegante</translation>
    </message>
    <message>
        <source>The design system&apos;s slider: a slim groove and a round handle. Where no style sheet speaks of its parts it draws them in the colours of its palette.</source>
        <translation>El deslizador del sistema de diseño: una ranura fina y un tirador redondo. Donde ninguna hoja de estilo habla de sus partes, las dibuja con los colores de su paleta.</translation>
    </message>
    <message>
        <source>Combo box of the design system</source>
        <translation>Cuadro combinado del sistema de diseño</translation>
    </message>
    <message>
        <source>Gives a combo box the look of the design system in place: items, index and signals stay as they are.</source>
        <translation>Da a un cuadro combinado, allí mismo, el aspecto del sistema de diseño: elementos, índice y señales siguen como estaban.</translation>
    </message>
    <message>
        <source>Folder field</source>
        <translation>Campo de carpeta</translation>
    </message>
    <message>
        <source>A field for a folder. It asks its host to browse, reports edits in bursts of a tenth of a second, and looks at the disk only when it is told to check the path. Here the host opens Qt&apos;s folder dialog and shows the space that is free where the path is.</source>
        <translation>Un campo para una carpeta. Pide a su anfitrión que explore, informa de lo escrito en ráfagas de una décima de segundo y solo mira el disco cuando se le dice que compruebe la ruta. Aquí el anfitrión abre el diálogo de carpetas de Qt y muestra el espacio libre en ese lugar.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>ruta</translation>
    </message>
    <message>
        <source>browse</source>
        <translation>explorar</translation>
    </message>
    <message>
        <source>directory</source>
        <translation>directorio</translation>
    </message>
    <message>
        <source>disk</source>
        <translation>disco</translation>
    </message>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>Search field</source>
        <translation>Campo de búsqueda</translation>
    </message>
    <message>
        <source>A field for a search: it reports each change at once, and the end of an edit by Enter or by leaving it. A text never starts with a blank. Its placeholder has three colours, which change when the mouse comes or goes.</source>
        <translation>Un campo para buscar: informa al momento de cada cambio, y del final al pulsar Intro o al salir de él. Un texto nunca empieza con un espacio. Su texto de ejemplo tiene tres colores, que cambian cuando el ratón llega o se va.</translation>
    </message>
    <message>
        <source>filter</source>
        <translation>filtrar</translation>
    </message>
    <message>
        <source>find</source>
        <translation>encontrar</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>borrar</translation>
    </message>
    <message>
        <source>placeholder</source>
        <translation>texto de ejemplo</translation>
    </message>
    <message>
        <source>Growing list</source>
        <translation>Lista que crece</translation>
    </message>
    <message>
        <source>A list that is as high as all its rows for as long as it is being loaded, and scrolls like any other once it is complete. It looks at its rows when it is told to and when it is resized, and does not watch its model.</source>
        <translation>Una lista tan alta como todas sus filas mientras se carga, y que se desplaza como cualquier otra una vez completa. Mira sus filas cuando se le dice y cuando cambia de tamaño, y no observa su modelo.</translation>
    </message>
    <message>
        <source>list view</source>
        <translation>vista de lista</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>filas</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>carga</translation>
    </message>
    <message>
        <source>height</source>
        <translation>altura</translation>
    </message>
    <message>
        <source>Properties of a clip</source>
        <translation>Propiedades de un clip</translation>
    </message>
    <message>
        <source>The value inputs in one panel, as an editor shows the properties of a clip. The panel can be scrolled past every field: the wheel changes only the one that has the keyboard.</source>
        <translation>Las entradas de valores en un panel, como un editor muestra las propiedades de un clip. Se puede pasar con la rueda por todos los campos: solo cambia el que tiene el teclado.</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>panel</translation>
    </message>
    <message>
        <source>inspector</source>
        <translation>inspector</translation>
    </message>
    <message>
        <source>editor</source>
        <translation>editor</translation>
    </message>
    <message>
        <source>Frame and layout controller</source>
        <translation>Marco y controlador de disposición</translation>
    </message>
    <message>
        <source>Components build their layouts without margins and spacing; the style sheet sets both through the layout controller. A frame is its own controller, any other widget gets one installed.</source>
        <translation>Los componentes construyen sus disposiciones sin márgenes ni espaciado; la hoja de estilo fija ambos mediante el controlador de disposición. Un marco es su propio controlador; a cualquier otro widget se le instala uno.</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>márgenes</translation>
    </message>
    <message>
        <source>spacing</source>
        <translation>espaciado</translation>
    </message>
    <message>
        <source>Box and grid layouts</source>
        <translation>Disposiciones en caja y en cuadrícula</translation>
    </message>
    <message>
        <source>A box layout takes its owner&apos;s children in the order in which they were made, or a list of items: widgets with a stretch factor, and spacers that stretch or keep their size. A grid is filled row by row.</source>
        <translation>Una disposición en caja toma los hijos de su dueño en el orden en que se crearon, o una lista: widgets con un factor de estiramiento y espacios que se estiran o conservan su tamaño. Una cuadrícula se llena fila a fila.</translation>
    </message>
    <message>
        <source>spacer</source>
        <translation>espacio</translation>
    </message>
    <message>
        <source>stretch</source>
        <translation>estiramiento</translation>
    </message>
    <message>
        <source>column</source>
        <translation>columna</translation>
    </message>
    <message>
        <source>Style hints and properties</source>
        <translation>Indicaciones de estilo y propiedades</translation>
    </message>
    <message>
        <source>Code names a variant, the style sheet gives it a look: a hint is a dynamic property that the sheet selects on. Setting it polishes the widget again, and only when it changed.</source>
        <translation>El código nombra una variante y la hoja de estilo le da un aspecto: una indicación es una propiedad dinámica por la que la hoja selecciona. Al fijarla, el widget se pule de nuevo, y solo si ha cambiado.</translation>
    </message>
    <message>
        <source>Colour variants</source>
        <translation>Variantes de color</translation>
    </message>
    <message>
        <source>The editor&apos;s eight colour variants of plain controls, by name. Anything but one of the names is ignored; the empty text drops the variant.</source>
        <translation>Las ocho variantes de color del editor para controles simples, por su nombre. Se ignora todo lo que no sea uno de los nombres; el texto vacío quita la variante.</translation>
    </message>
    <message>
        <source>variant</source>
        <translation>variante</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>indicación</translation>
    </message>
    <message>
        <source>Property provider</source>
        <translation>Proveedor de propiedades</translation>
    </message>
    <message>
        <source>A widget that paints itself takes its colours and sizes from a hidden child, which a style sheet selects by class name and writes with qproperty-.</source>
        <translation>Un widget que se dibuja a sí mismo toma sus colores y tamaños de un hijo oculto, que una hoja de estilo selecciona por su nombre de clase y escribe con qproperty-.</translation>
    </message>
    <message>
        <source>Pointing bubble</source>
        <translation>Globo con flecha</translation>
    </message>
    <message>
        <source>A bubble whose arrow touches a spot. It stays on its screen, or inside its parent, goes to the other side where there is no room, and follows the widget that it annotates.</source>
        <translation>Un globo cuya flecha toca un punto. Se queda en su pantalla, o dentro de su padre, pasa al otro lado cuando falta sitio y sigue al widget que anota.</translation>
    </message>
    <message>
        <source>bubble</source>
        <translation>globo</translation>
    </message>
    <message>
        <source>arrow</source>
        <translation>flecha</translation>
    </message>
    <message>
        <source>Rounded pop-ups</source>
        <translation>Ventanas emergentes redondeadas</translation>
    </message>
    <message>
        <source>Real rounded corners where desktops disagree about them: a widget with the property roundedEdges is translucent, and painted all the same.</source>
        <translation>Esquinas redondeadas de verdad donde los escritorios no se ponen de acuerdo: un widget con la propiedad roundedEdges es translúcido y aun así se dibuja.</translation>
    </message>
    <message>
        <source>corner</source>
        <translation>esquina</translation>
    </message>
    <message>
        <source>translucent</source>
        <translation>translúcido</translation>
    </message>
    <message>
        <source>Highlight frame</source>
        <translation>Marco de resalte</translation>
    </message>
    <message>
        <source>Outlines a widget without its notice: it follows the target through moves, resizes and hiding, lies over all its children and takes neither mouse nor focus.</source>
        <translation>Rodea un widget sin que lo note: sigue al objetivo cuando se mueve, cambia de tamaño o se oculta, está sobre todos sus hijos y no toma ni el ratón ni el foco.</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>contorno</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>superposición</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>Imagen animada</translation>
    </message>
    <message>
        <source>Plays an animated picture in the size of the widget, keeps its proportions, stays sharp on scaled screens and rests while it is hidden.</source>
        <translation>Reproduce una imagen animada al tamaño del widget, conserva sus proporciones, es nítida en pantallas escaladas y descansa mientras está oculta.</translation>
    </message>
    <message>
        <source>movie</source>
        <translation>película</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animación</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guía</translation>
    </message>
    <message>
        <source>A short piece of help: a heading, an animated picture that plays while it is seen, a description and a link to further reading. What is empty is left out.</source>
        <translation>Una ayuda breve: un encabezado, una imagen animada que se reproduce mientras se ve, una descripción y un enlace para saber más. Lo vacío se omite.</translation>
    </message>
    <message>
        <source>help</source>
        <translation>ayuda</translation>
    </message>
    <message>
        <source>link</source>
        <translation>enlace</translation>
    </message>
    <message>
        <source>Guide button</source>
        <translation>Botón de guía</translation>
    </message>
    <message>
        <source>A click opens a guide in a bubble below the button. Escape, a click elsewhere and hiding the button close it.</source>
        <translation>Un clic abre una guía en un globo bajo el botón. La cierran Escape, un clic en otro lugar y ocultar el botón.</translation>
    </message>
    <message>
        <source>Dialog guide</source>
        <translation>Guía de diálogo</translation>
    </message>
    <message>
        <source>A bubble that walks the user through a step and follows the widget that it annotates. Start the tour to see it at work.</source>
        <translation>Un globo que guía al usuario en un paso y sigue al widget que anota. Inicie el recorrido para verlo en acción.</translation>
    </message>
    <message>
        <source>tour</source>
        <translation>recorrido</translation>
    </message>
    <message>
        <source>QML dialog</source>
        <translation>Diálogo QML</translation>
    </message>
    <message>
        <source>A modal dialog whose whole content is a QML scene: a file that is loaded when the dialog first runs. The scene knows the dialog as &quot;callback&quot; and ends it. Change the source and open it.</source>
        <translation>Un diálogo modal cuya cara entera es una escena QML: un archivo que se carga cuando el diálogo se ejecuta por primera vez. La escena conoce el diálogo como «callback» y lo termina. Cambie la fuente y ábralo.</translation>
    </message>
    <message>
        <source>confirmation</source>
        <translation>confirmación</translation>
    </message>
    <message>
        <source>scene</source>
        <translation>escena</translation>
    </message>
    <message>
        <source>Platform services</source>
        <translation>Servicios de la plataforma</translation>
    </message>
    <message>
        <source>The functions and classes below the components, with their live results.</source>
        <translation>Las funciones y clases bajo los componentes, con sus resultados en vivo.</translation>
    </message>
    <message>
        <source>File sizes</source>
        <translation>Tamaños de archivo</translation>
    </message>
    <message>
        <source>Paths</source>
        <translation>Rutas</translation>
    </message>
    <message>
        <source>Own colours and folders</source>
        <translation>Colores propios y carpetas</translation>
    </message>
    <message>
        <source>Scheduler</source>
        <translation>Planificador</translation>
    </message>
    <message>
        <source>Headings</source>
        <translation>Encabezados</translation>
    </message>
    <message>
        <source>Privacy access</source>
        <translation>Acceso a la privacidad</translation>
    </message>
    <message>
        <source>Focus of hosted QML</source>
        <translation>Foco del QML alojado</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>unidad</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>carpeta</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>permission</source>
        <translation>permiso</translation>
    </message>
    <message>
        <source>validity</source>
        <translation>validez</translation>
    </message>
    <message>
        <source>store</source>
        <translation>almacén</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>equipo</translation>
    </message>
    <message>
        <source>timer</source>
        <translation>temporizador</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>retardo</translation>
    </message>
    <message>
        <source>merge</source>
        <translation>fusionar</translation>
    </message>
    <message>
        <source>burst</source>
        <translation>ráfaga</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>negrita</translation>
    </message>
    <message>
        <source>language</source>
        <translation>idioma</translation>
    </message>
    <message>
        <source>script</source>
        <translation>escritura</translation>
    </message>
    <message>
        <source>capture</source>
        <translation>captura</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>teclado</translation>
    </message>
    <message>
        <source>Arrow on top</source>
        <translation>Flecha arriba</translation>
    </message>
    <message>
        <source>on the left</source>
        <translation>a la izquierda</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>a la derecha</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>What lies behind shows through the corners.</source>
        <translation>Lo que hay detrás se ve por las esquinas.</translation>
    </message>
    <message>
        <source>Driven by the controls below</source>
        <translation>Gobernado por los controles de abajo</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Empiece aquí</translation>
    </message>
    <message>
        <source>All sides</source>
        <translation>Todos los lados</translation>
    </message>
    <message>
        <source>Side of the arrow</source>
        <translation>Lado de la flecha</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Open as a pop-up</source>
        <translation>Abrir como ventana emergente</translation>
    </message>
    <message>
        <source>A bubble of its own. It goes with the window.</source>
        <translation>Un globo propio. Va con la ventana.</translation>
    </message>
    <message>
        <source>Painted by itself: a sheet sets colours and measures through the properties, and the content&apos;s margins on the frame inside.</source>
        <translation>Se dibuja a sí mismo: una hoja fija colores y medidas mediante las propiedades, y los márgenes del contenido en el marco interior.</translation>
    </message>
    <message>
        <source>As a part of a window</source>
        <translation>Como parte de una ventana</translation>
    </message>
    <message>
        <source>Open a pop-up</source>
        <translation>Abrir una ventana emergente</translation>
    </message>
    <message>
        <source>Any widget that Workaround::Ui::apply() prepared: a rule for the property gives it background, border and border-radius.</source>
        <translation>Cualquier widget preparado por Workaround::Ui::apply(): una regla para la propiedad le da background, border y border-radius.</translation>
    </message>
    <message>
        <source>The target</source>
        <translation>El objetivo</translation>
    </message>
    <message>
        <source>Still works</source>
        <translation>Sigue funcionando</translation>
    </message>
    <message>
        <source>Highlighted</source>
        <translation>Resaltado</translation>
    </message>
    <message>
        <source>Height of the target</source>
        <translation>Altura del objetivo</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>The outline, a child of the widget that it highlights.</source>
        <translation>El contorno, un hijo del widget que resalta.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>The animation</source>
        <translation>La animación</translation>
    </message>
    <message>
        <source>A file that is not there</source>
        <translation>Un archivo que no existe</translation>
    </message>
    <message>
        <source>Border and padding of a sheet surround the picture.</source>
        <translation>El borde y el relleno de una hoja rodean la imagen.</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>Ningún color</translation>
    </message>
    <message>
        <source>The colour that it reported last</source>
        <translation>El último color del que informó</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>nada todavía</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>Un color</translation>
    </message>
    <message>
        <source>Several colours</source>
        <translation>Varios colores</translation>
    </message>
    <message>
        <source>Picking</source>
        <translation>Eligiendo</translation>
    </message>
    <message>
        <source>The face is a child of its own; the button says by dynamic properties when it has no colour, or several.</source>
        <translation>La cara es un hijo aparte; el botón dice con propiedades dinámicas cuándo no tiene color, o tiene varios.</translation>
    </message>
    <message>
        <source>Click it to pick a colour</source>
        <translation>Haga clic para elegir un color</translation>
    </message>
    <message>
        <source>A frame around one colour button.</source>
        <translation>Un marco alrededor de un botón de color.</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Elija un color</translation>
    </message>
    <message>
        <source>Opacity can be adjusted</source>
        <translation>La opacidad se puede ajustar</translation>
    </message>
    <message>
        <source>The parts are selected by their names, and the buttons of colours as children of #colorMatrixPanel and #otherColorsQueuePanel; the one for no colour has nullColor. The panel itself writes the background-color of these and of the preview, opaque: a sheet shapes it with background-clip, and lays a background-image over it. The selector is a QDialog with roundedEdges.</source>
        <translation>Las partes se seleccionan por sus nombres, y los botones de colores como hijos de #colorMatrixPanel y #otherColorsQueuePanel; el de ningún color tiene nullColor. El panel mismo escribe el background-color de estos y el de la vista previa, opaco: una hoja le da forma con background-clip y le pone encima una background-image. El selector es un QDialog con roundedEdges.</translation>
    </message>
    <message>
        <source>Choose any colour</source>
        <translation>Elija cualquier color</translation>
    </message>
    <message>
        <source>What the colour panel opens beside its own colours; internal to the library. The margins and gaps of both frames are the sheet&apos;s.</source>
        <translation>Lo que el panel de colores abre junto a sus colores propios; interno de la biblioteca. Los márgenes y huecos de ambos marcos son de la hoja.</translation>
    </message>
    <message>
        <source>Drag the marker</source>
        <translation>Arrastre el marcador</translation>
    </message>
    <message>
        <source>The square of the free colour selector, and internal to the library. It asks for no room: min-width and min-height give it some.</source>
        <translation>El cuadrado del selector libre, interno de la biblioteca. No pide espacio: min-width y min-height se lo dan.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>Elija un modo</translation>
    </message>
    <message>
        <source>Mode by its number</source>
        <translation>Modo por su número</translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation>Opacidad de la capa</translation>
    </message>
    <message>
        <source>As OvComboBox in the look of the design system, or alone by its class name; its list is #tesselComboBoxView.</source>
        <translation>Como OvComboBox con el aspecto del sistema de diseño, o solo por su nombre de clase; su lista es #tesselComboBoxView.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Eliminar y cerrar hueco</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Deletes the selected clip and closes the gap: everything behind it moves up, on &lt;b&gt;all&lt;/b&gt; tracks, so that sound and picture stay together.</source>
        <translation>Elimina el clip seleccionado y cierra el hueco: todo lo que sigue avanza, en &lt;b&gt;todas&lt;/b&gt; las pistas, para que sonido e imagen sigan juntos.</translation>
    </message>
    <message>
        <source>More about editing</source>
        <translation>Más sobre el montaje</translation>
    </message>
    <message>
        <source>Drag the end of a clip to show less or more of it. Nothing is lost.</source>
        <translation>Arrastre el extremo de un clip para mostrar más o menos de él. No se pierde nada.</translation>
    </message>
    <message>
        <source>More about trimming</source>
        <translation>Más sobre el recorte</translation>
    </message>
    <message>
        <source>Texts are measured for the width that the sheet gives the guide. Links have the colour of their label, unless their markup says another.</source>
        <translation>Los textos se miden para la anchura que la hoja da a la guía. Los enlaces tienen el color de su etiqueta, salvo que su marcado diga otro.</translation>
    </message>
    <message>
        <source>With an animated picture</source>
        <translation>Con una imagen animada</translation>
    </message>
    <message>
        <source>A title alone</source>
        <translation>Solo un título</translation>
    </message>
    <message>
        <source>Nothing more to say</source>
        <translation>Nada más que decir</translation>
    </message>
    <message>
        <source>Without an info</source>
        <translation>Sin información</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>A tool button. Its pop-up is a PointingWidget named pointingWidget, with a GuideWidget named guideWidget in it; both are below the button for a sheet.</source>
        <translation>Un botón de herramienta. Su ventana emergente es un PointingWidget llamado pointingWidget, con un GuideWidget llamado guideWidget dentro; para una hoja, ambos están bajo el botón.</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>Recortar un clip</translation>
    </message>
    <message>
        <source>Drag its end. The picture shows how; nothing is lost.</source>
        <translation>Arrastre su extremo. La imagen muestra cómo; no se pierde nada.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Iniciar el recorrido</translation>
    </message>
    <message>
        <source>Find a component</source>
        <translation>Buscar un componente</translation>
    </message>
    <message>
        <source>Type a few letters of a class, a title or a keyword.</source>
        <translation>Escriba unas letras de una clase, un título o una palabra clave.</translation>
    </message>
    <message>
        <source>Try another style</source>
        <translation>Probar otro estilo</translation>
    </message>
    <message>
        <source>Dark, light, high contrast, none at all, or a sheet of your own that reloads when you save it.</source>
        <translation>Oscuro, claro, alto contraste, ninguno, o una hoja propia que se recarga al guardarla.</translation>
    </message>
    <message>
        <source>Change it while it runs</source>
        <translation>Cambiarlo en marcha</translation>
    </message>
    <message>
        <source>The controls act on the enabled twin and the disabled one at once.</source>
        <translation>Los controles actúan a la vez sobre el gemelo activo y el inactivo.</translation>
    </message>
    <message>
        <source>See what it says</source>
        <translation>Ver lo que dice</translation>
    </message>
    <message>
        <source>Every signal of the component, newest last.</source>
        <translation>Cada señal del componente, la más reciente al final.</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Botones</translation>
    </message>
    <message>
        <source>Close button</source>
        <translation>Botón de cierre</translation>
    </message>
    <message>
        <source>Secondary button</source>
        <translation>Botón secundario</translation>
    </message>
    <message>
        <source>A PointingWidget; its bubble is painted from that one&apos;s properties.</source>
        <translation>Un PointingWidget; su globo se dibuja según las propiedades de este.</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Clip %1</translation>
    </message>
    <message>
        <source>with sound</source>
        <translation>con sonido</translation>
    </message>
    <message>
        <source>Part of a clip&apos;s name</source>
        <translation>Parte del nombre de un clip</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>Buscar clips</translation>
    </message>
    <message>
        <source>Beach, morning</source>
        <translation>Playa, mañana</translation>
    </message>
    <message>
        <source>Beach, evening</source>
        <translation>Playa, tarde</translation>
    </message>
    <message>
        <source>Harbour</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Entrevista</translation>
    </message>
    <message>
        <source>Interview, second camera</source>
        <translation>Entrevista, segunda cámara</translation>
    </message>
    <message>
        <source>Nobody would find this folder again: %1</source>
        <translation>Nadie volvería a encontrar esta carpeta: %1</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Invertido</translation>
    </message>
    <message>
        <source>Colours and sizes are those of a hidden child, selected by its class name and, where they differ for a disabled plane, with [enabled=&quot;false&quot;]. The sheet gives the plane its size.</source>
        <translation>Los colores y tamaños son los de un hijo oculto, seleccionado por su nombre de clase y, donde difieren para un plano inactivo, con [enabled=&quot;false&quot;]. La hoja da su tamaño al plano.</translation>
    </message>
    <message>
        <source>Frames around a point plane and two labelled spin boxes. The labels are empty: the sheet may give them a text, with qproperty-text, or a picture.</source>
        <translation>Marcos alrededor de un plano de puntos y dos cuadros numéricos con etiqueta. Las etiquetas están vacías: la hoja puede darles un texto, con qproperty-text, o una imagen.</translation>
    </message>
    <message>
        <source>Full HD, 1920 × 1080, 25 frames</source>
        <translation>Full HD, 1920 × 1080, 25 fotogramas</translation>
    </message>
    <message>
        <source>Ultra HD, 3840 × 2160, 60 frames</source>
        <translation>Ultra HD, 3840 × 2160, 60 fotogramas</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>Como la fuente</translation>
    </message>
    <message>
        <source>With room</source>
        <translation>Con espacio</translation>
    </message>
    <message>
        <source>In a narrow panel</source>
        <translation>En un panel estrecho</translation>
    </message>
    <message>
        <source>Width of the narrow one</source>
        <translation>Anchura del estrecho</translation>
    </message>
    <message>
        <source>As QComboBox, with its sub-controls and its view, or alone by its class name; the pop-up&apos;s state is a dynamic property.</source>
        <translation>Como QComboBox, con sus subcontroles y su vista, o solo por su nombre de clase; el estado de la lista es una propiedad dinámica.</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplicar</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Trama</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Como estaba</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>Convertido</translation>
    </message>
    <message>
        <source>Convert the first one too</source>
        <translation>Convertir también el primero</translation>
    </message>
    <message>
        <source>A combo box with the property; the view of its list has the object name tesselComboBoxView.</source>
        <translation>Un cuadro combinado con la propiedad; la vista de su lista tiene el nombre de objeto tesselComboBoxView.</translation>
    </message>
    <message>
        <source>A text</source>
        <translation>Un texto</translation>
    </message>
    <message>
        <source>Text to edit</source>
        <translation>Texto para editar</translation>
    </message>
    <message>
        <source>A placeholder</source>
        <translation>Un texto de ejemplo</translation>
    </message>
    <message>
        <source>Name of the clip</source>
        <translation>Nombre del clip</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Text to copy</source>
        <translation>Texto para copiar</translation>
    </message>
    <message>
        <source>Selected as QLineEdit or, alone, as Orvane--Tessel--TesselLineEdit; its menu as QMenu#tesselContextMenu.</source>
        <translation>Seleccionado como QLineEdit o, solo, como Orvane--Tessel--TesselLineEdit; su menú como QMenu#tesselContextMenu.</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>Por sí solo</translation>
    </message>
    <message>
        <source>Above a list that it filters</source>
        <translation>Sobre una lista que filtra</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Texto de ejemplo</translation>
    </message>
    <message>
        <source>A frame around an icon, a line edit and a button that clears it. &quot;focusHint&quot; is set from the first time that the line edit gets the keyboard.</source>
        <translation>Un marco alrededor de un icono, un cuadro de texto y un botón que lo borra. «focusHint» se fija desde la primera vez que el cuadro de texto recibe el teclado.</translation>
    </message>
    <message>
        <source>A bin of clips</source>
        <translation>Una carpeta de clips</translation>
    </message>
    <message>
        <source>Loading is finished</source>
        <translation>La carga ha terminado</translation>
    </message>
    <message>
        <source>The model</source>
        <translation>El modelo</translation>
    </message>
    <message>
        <source>Add clips: %1</source>
        <translation>Añadir clips: %1</translation>
    </message>
    <message>
        <source>Remove all clips</source>
        <translation>Quitar todos los clips</translation>
    </message>
    <message>
        <source>As QListView: it has no class of its own for a sheet. Its minimum height is its own, whatever the sheet says.</source>
        <translation>Como QListView: no tiene clase propia para una hoja. Su altura mínima es la suya, diga lo que diga la hoja.</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>Volver a la carpeta personal</translation>
    </message>
    <message>
        <source>With a default folder and space on its disk</source>
        <translation>Con una carpeta predeterminada y el espacio en su disco</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>A relative path, with its error below</source>
        <translation>Una ruta relativa, con su error debajo</translation>
    </message>
    <message>
        <source>Check the upper field</source>
        <translation>Comprobar el campo superior</translation>
    </message>
    <message>
        <source>upper</source>
        <translation>superior</translation>
    </message>
    <message>
        <source>Check the lower field</source>
        <translation>Comprobar el campo inferior</translation>
    </message>
    <message>
        <source>lower</source>
        <translation>inferior</translation>
    </message>
    <message>
        <source>The upper field&apos;s error</source>
        <translation>Error del campo superior</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>en ninguna parte</translation>
    </message>
    <message>
        <source>tool tip</source>
        <translation>información emergente</translation>
    </message>
    <message>
        <source>label</source>
        <translation>etiqueta</translation>
    </message>
    <message>
        <source>Refuse hidden folders instead</source>
        <translation>Rechazar en cambio las carpetas ocultas</translation>
    </message>
    <message>
        <source>The upper field</source>
        <translation>El campo superior</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Default path&apos;s text</source>
        <translation>Texto de la ruta predeterminada</translation>
    </message>
    <message>
        <source>Required megabytes</source>
        <translation>Megabytes necesarios</translation>
    </message>
    <message>
        <source>A frame around a line edit and its buttons, which carries the border, the hint &quot;error&quot; and, from the first time that the line edit gets the keyboard, &quot;focusHint&quot;; figures above it and a message below it.</source>
        <translation>Un marco alrededor de un cuadro de texto y sus botones, que lleva el borde, la indicación «error» y, desde la primera vez que el cuadro de texto recibe el teclado, «focusHint»; cifras encima y un mensaje debajo.</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>Buscar parámetros</translation>
    </message>
    <message>
        <source>A frame controls its own layout</source>
        <translation>Un marco controla su propia disposición</translation>
    </message>
    <message>
        <source>A group box with an installed controller</source>
        <translation>Un grupo con un controlador instalado</translation>
    </message>
    <message>
        <source>The base of composite components; a sheet sets the metrics of its layout through its properties.</source>
        <translation>La base de los componentes compuestos; una hoja fija las medidas de su disposición mediante sus propiedades.</translation>
    </message>
    <message>
        <source>Any widget with an installed controller: select the controller by its class name below the widget.</source>
        <translation>Cualquier widget con un controlador instalado: seleccione el controlador por su nombre de clase bajo el widget.</translation>
    </message>
    <message>
        <source>autoFill() and a stretch behind</source>
        <translation>autoFill() y un estiramiento detrás</translation>
    </message>
    <message>
        <source>addItems() with a spacer</source>
        <translation>addItems() con un espacio</translation>
    </message>
    <message>
        <source>A grid: one cell spans two, one is aligned right</source>
        <translation>Una cuadrícula: una celda abarca dos, otra se alinea a la derecha</translation>
    </message>
    <message>
        <source>A column</source>
        <translation>Una columna</translation>
    </message>
    <message>
        <source>The spacer behind item 1</source>
        <translation>El espacio tras el elemento 1</translation>
    </message>
    <message>
        <source>Policy</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Estirable</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fijo</translation>
    </message>
    <message>
        <source>Factor or pixels</source>
        <translation>Factor o píxeles</translation>
    </message>
    <message>
        <source>The frame around</source>
        <translation>El marco que los rodea</translation>
    </message>
    <message>
        <source>A button</source>
        <translation>Un botón</translation>
    </message>
    <message>
        <source>An edit</source>
        <translation>Un cuadro de texto</translation>
    </message>
    <message>
        <source>A slider</source>
        <translation>Un deslizador</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguna)</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Indicación</translation>
    </message>
    <message>
        <source>Member name</source>
        <translation>Nombre del miembro</translation>
    </message>
    <message>
        <source>Choose a variant below</source>
        <translation>Elija una variante abajo</translation>
    </message>
    <message>
        <source>Variant of the edit</source>
        <translation>Variante del cuadro</translation>
    </message>
    <message>
        <source>Any text</source>
        <translation>Cualquier texto</translation>
    </message>
    <message>
        <source>Any plain control: ColorHint and Util::applyStyleHint() give it one of the shared variants.</source>
        <translation>Cualquier control simple: ColorHint y Util::applyStyleHint() le dan una de las variantes comunes.</translation>
    </message>
    <message>
        <source>A dial whose hand is styled</source>
        <translation>Una esfera cuya aguja tiene estilo</translation>
    </message>
    <message>
        <source>An example: the provider is selected by its class name below the widget that it serves.</source>
        <translation>Un ejemplo: el proveedor se selecciona por su nombre de clase bajo el widget al que sirve.</translation>
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
        <translation>Valor</translation>
    </message>
    <message>
        <source>A frame around a slider and a spin box without arrows.</source>
        <translation>Un marco alrededor de un deslizador y un cuadro numérico sin flechas.</translation>
    </message>
    <message>
        <source>Two decimals</source>
        <translation>Dos decimales</translation>
    </message>
    <message>
        <source>Six decimals</source>
        <translation>Seis decimales</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>Un número</translation>
    </message>
    <message>
        <source>With a unit</source>
        <translation>Con una unidad</translation>
    </message>
    <message>
        <source>As QSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>Como QSpinBox, con sus subcontroles, o solo por su nombre de clase.</translation>
    </message>
    <message>
        <source>The language&apos;s decimal mark</source>
        <translation>El signo decimal del idioma</translation>
    </message>
    <message>
        <source>Point and comma</source>
        <translation>Punto o coma</translation>
    </message>
    <message>
        <source>As QDoubleSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>Como QDoubleSpinBox, con sus subcontroles, o solo por su nombre de clase.</translation>
    </message>
    <message>
        <source>As QSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>Como QSlider, con ::groove, ::handle, ::add-page y ::sub-page, o solo por su nombre de clase.</translation>
    </message>
    <message>
        <source>As OvCustomSlider and QSlider, or alone by its class name.</source>
        <translation>Como OvCustomSlider y QSlider, o solo por su nombre de clase.</translation>
    </message>
    <message>
        <source>As OvCustomSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>Como OvCustomSlider, con ::groove, ::handle, ::add-page y ::sub-page, o solo por su nombre de clase.</translation>
    </message>
    <message>
        <source>Whole numbers</source>
        <translation>Números enteros</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>Fracciones</translation>
    </message>
    <message>
        <source>Picked colours</source>
        <translation>Colores tomados</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>Tomar un color de la pantalla</translation>
    </message>
    <message>
        <source>What it picked, the latest first</source>
        <translation>Lo que tomó, lo último primero</translation>
    </message>
    <message>
        <source>The loupe by itself</source>
        <translation>La lupa por sí sola</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Anywhere</source>
        <translation>En cualquier lugar</translation>
    </message>
    <message>
        <source>In a corner of the desktop</source>
        <translation>En una esquina del escritorio</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>The loupe of the pipette, which carries the property roundedEdges. Its border is painted over the picture; its background must be transparent. The windows that cover the screens meanwhile are of the class PipetteScreenView: its cursorPixmap, cursorSize and cursorHotSpot are the cursor of the pick.</source>
        <translation>La lupa del cuentagotas, que lleva la propiedad roundedEdges. Su borde se dibuja sobre la imagen; su fondo debe ser transparente. Las ventanas que cubren entretanto las pantallas son de la clase PipetteScreenView: sus cursorPixmap, cursorSize y cursorHotSpot son el puntero de la toma.</translation>
    </message>
    <message>
        <source>A button that shows its colour</source>
        <translation>Un botón que lleva su color</translation>
    </message>
    <message>
        <source>Before its first pick</source>
        <translation>Antes de su primera toma</translation>
    </message>
    <message>
        <source>Pick a colour from the film</source>
        <translation>Tomar un color de la película</translation>
    </message>
    <message>
        <source>A colour button with this picker</source>
        <translation>Un botón de color con este selector</translation>
    </message>
    <message>
        <source>Target and cursor</source>
        <translation>Objetivo y puntero</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>The film</source>
        <translation>La película</translation>
    </message>
    <message>
        <source>The whole page</source>
        <translation>La página entera</translation>
    </message>
    <message>
        <source>Picking cursor</source>
        <translation>Puntero de la toma</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Cruz</translation>
    </message>
    <message>
        <source>Pointing hand</source>
        <translation>Mano que señala</translation>
    </message>
    <message>
        <source>Question mark</source>
        <translation>Signo de interrogación</translation>
    </message>
    <message>
        <source>The film runs</source>
        <translation>La película corre</translation>
    </message>
    <message>
        <source>Its background is its colour, written into its own sheet; size and border are the application&apos;s.</source>
        <translation>Su fondo es su color, escrito en su propia hoja; tamaño y borde son de la hoja de la aplicación.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>The scene&apos;s source</source>
        <translation>La fuente de la escena</translation>
    </message>
    <message>
        <source>Result of exec()</source>
        <translation>Resultado de exec()</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 no se puede escribir</translation>
    </message>
    <message>
        <source>Values of the form</source>
        <translation>Valores del formulario</translation>
    </message>
    <message>
        <source>Errors in the scene</source>
        <translation>Errores en la escena</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Escena</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Confirmación</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>One that fails to load</source>
        <translation>Una que no se carga</translation>
    </message>
    <message>
        <source>Centred on this page</source>
        <translation>Centrado en esta página</translation>
    </message>
    <message>
        <source>Open a new dialog</source>
        <translation>Abrir un diálogo nuevo</translation>
    </message>
    <message>
        <source>Open the last dialog again</source>
        <translation>Abrir otra vez el último diálogo</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>Fuente original</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>Pedido</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Decimales</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Bytes in a kilobyte</source>
        <translation>Bytes por kilobyte</translation>
    </message>
    <message>
        <source>Root folder</source>
        <translation>Carpeta raíz</translation>
    </message>
    <message>
        <source>A file in the place of a folder</source>
        <translation>Un archivo en el lugar de una carpeta</translation>
    </message>
    <message>
        <source>Empty path</source>
        <translation>Ruta vacía</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>Colores propios</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Leer de nuevo</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>Peticiones</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Llamadas</translation>
    </message>
    <message>
        <source>A call is pending</source>
        <translation>Hay una llamada pendiente</translation>
    </message>
    <message>
        <source>Delay in milliseconds</source>
        <translation>Retardo en milisegundos</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>One request</source>
        <translation>Una petición</translation>
    </message>
    <message>
        <source>A burst of %1 requests</source>
        <translation>Una ráfaga de %1 peticiones</translation>
    </message>
    <message>
        <source>Your title</source>
        <translation>Su título</translation>
    </message>
    <message>
        <source>A title of your own</source>
        <translation>Un título propio</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>granted</source>
        <translation>concedido</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>denegado</translation>
    </message>
    <message>
        <source>not available on this platform</source>
        <translation>no disponible en esta plataforma</translation>
    </message>
    <message>
        <source>Platform</source>
        <translation>Plataforma</translation>
    </message>
    <message>
        <source>Request %1</source>
        <translation>Pedir %1</translation>
    </message>
    <message>
        <source>Take the view out and put it back</source>
        <translation>Sacar la vista y devolverla</translation>
    </message>
    <message>
        <source>The view</source>
        <translation>La vista</translation>
    </message>
    <message>
        <source>no widget</source>
        <translation>ningún widget</translation>
    </message>
    <message>
        <source>Keyboard focus</source>
        <translation>Foco del teclado</translation>
    </message>
    <message>
        <source>Apply the workaround</source>
        <translation>Aplicar la solución</translation>
    </message>
    <message>
        <source>Open the dialog</source>
        <translation>Abrir el diálogo</translation>
    </message>
    <message>
        <source>Writes a number of bytes as users read it, in the current language&apos;s units and digits.</source>
        <translation>Escribe un número de bytes como lo leen los usuarios, con las unidades y cifras del idioma actual.</translation>
    </message>
    <message>
        <source>Headings are bold where both the language and the title are written in a script that has a tradition of bold type, and plain where bold would hurt legibility. Markup in a title is shown as text.</source>
        <translation>Los encabezados van en negrita cuando el idioma y el título están en una escritura con tradición de negritas, y sin ella donde dañaría la legibilidad. El marcado de un título se muestra como texto.</translation>
    </message>
    <message>
        <source>What an editor asks about a path that a user typed: whether it could be a folder, where the nearest one is, and what the program may do there.</source>
        <translation>Lo que un editor pregunta sobre una ruta escrita: si podría ser una carpeta, dónde está la más cercana y qué puede hacer allí el programa.</translation>
    </message>
    <message>
        <source>Whether the system lets the program read the screen and the input of other programs, asked without troubling the user.</source>
        <translation>Si el sistema deja que el programa lea la pantalla y la entrada de otros programas, preguntado sin molestar al usuario.</translation>
    </message>
    <message>
        <source>The user&apos;s own colours outlive the program, also when it is killed right after the write. They are kept under the host&apos;s organisation and application name, or in a store that the host hands over. A colour is added at the front, eight are kept, and neither a colour of the fixed palette nor one that is there already is taken.</source>
        <translation>Los colores propios sobreviven al programa, incluso si muere justo tras escribirlos. Se guardan bajo los nombres de organización y aplicación del anfitrión, o en un almacén que este entregue. Un color se añade delante, se conservan ocho, y no se admite ni un color de la paleta fija ni uno que ya esté.</translation>
    </message>
    <message>
        <source>Merges a burst of requests into one deferred call. Later requests do not put the call off, so a steady stream of them still gets its calls.</source>
        <translation>Reúne una ráfaga de peticiones en una sola llamada diferida. Las peticiones posteriores no aplazan la llamada, de modo que un flujo constante también recibe las suyas.</translation>
    </message>
    <message>
        <source>Qt forgets the focus of a view whose host is taken out of a window and put back. With the workaround the keyboard goes to the view; without it, to whatever comes first. A line edit stands for the view here: the workaround works for every kind.</source>
        <translation>Qt olvida el foco de una vista cuyo anfitrión se saca de una ventana y se devuelve. Con la solución, el teclado va a la vista; sin ella, a lo primero que haya. Un cuadro de texto hace aquí de vista: la solución sirve para todas.</translation>
    </message>
    <message>
        <source>One edit, one step</source>
        <translation>Una edición, un paso</translation>
    </message>
    <message>
        <source>A session tells what a user does to a field as one story, from the first change to the end of the drag, the text or the pick. Here each becomes one step of undo. Escape takes it back.</source>
        <translation>Una sesión cuenta lo que un usuario hace con un campo como una sola historia, desde el primer cambio hasta el fin del arrastre, del texto o de la elección. Aquí cada una es un paso de deshacer. Escape la retira.</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>deshacer</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>rehacer</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>varios valores</translation>
    </message>
    <message>
        <source>typing</source>
        <translation>escritura</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Drag it, hold an arrow key, type, turn the wheel</source>
        <translation>Arrástrelo, mantenga una tecla de flecha, escriba, gire la rueda</translation>
    </message>
    <message>
        <source>Drag the point</source>
        <translation>Arrastre el punto</translation>
    </message>
    <message>
        <source>Try colours, then press Escape or Enter</source>
        <translation>Pruebe colores y pulse Escape o Intro</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Several values</source>
        <translation>Varios valores</translation>
    </message>
    <message>
        <source>A field that stands for several values has multiValue, and a label #multiValueCover covers each of its line edits.</source>
        <translation>Un campo que representa varios valores tiene multiValue, y una etiqueta #multiValueCover cubre cada uno de sus cuadros de texto.</translation>
    </message>
    <message>
        <source>Title cards</source>
        <translation>Tarjetas de título</translation>
    </message>
    <message>
        <source>An application in miniature, to be read in examples/titlecard: an inspector of several cards, undo and redo of everything, presets, a tour, a QML dialog, and pictures of the canvas.</source>
        <translation>Una aplicación en miniatura, que se puede leer en examples/titlecard: un inspector de varias tarjetas, deshacer y rehacer todo, ajustes preestablecidos, un recorrido, un diálogo QML e imágenes del lienzo.</translation>
    </message>
    <message>
        <source>application</source>
        <translation>aplicación</translation>
    </message>
    <message>
        <source>export</source>
        <translation>exportar</translation>
    </message>
    <message>
        <source>First light</source>
        <translation>Primera luz</translation>
    </message>
    <message>
        <source>A film</source>
        <translation>Una película</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Idiomas</translation>
    </message>
    <message>
        <source>The languages that the library has its texts in. One call loads one of them, here by the switch of the gallery, and every component changes at once.</source>
        <translation>Los idiomas en los que la biblioteca tiene sus textos. Una llamada carga uno de ellos, aquí con el conmutador de la galería, y todos los componentes cambian al momento.</translation>
    </message>
</context>
<context>
    <name>ParameterPanel</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Part of a parameter&apos;s name</source>
        <translation>Parte del nombre de un parámetro</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>Buscar parámetros</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Fusión</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Tinte</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>Volver a la carpeta personal</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>Proxies</source>
        <translation>Proxies</translation>
    </message>
    <message>
        <source>Stabilise</source>
        <translation>Estabilizar</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Enfocar</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>Grano de película</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
</context>
<context>
    <name>PickerChoice</name>
    <message>
        <source>Picker</source>
        <translation>Selector</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>Panel de colores</translation>
    </message>
    <message>
        <source>Qt&apos;s colour dialog</source>
        <translation>Diálogo de colores de Qt</translation>
    </message>
    <message>
        <source>Panel: no colour allowed</source>
        <translation>Panel: se admite «sin color»</translation>
    </message>
    <message>
        <source>Panel: with opacity</source>
        <translation>Panel: con opacidad</translation>
    </message>
    <message>
        <source>Panel: with own colours</source>
        <translation>Panel: con colores propios</translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
</context>
<context>
    <name>SheetText</name>
    <message>
        <source>there is no property “%1”</source>
        <translation>no existe la propiedad «%1»</translation>
    </message>
    <message>
        <source>error near “%1”</source>
        <translation>error cerca de «%1»</translation>
    </message>
    <message>
        <source>the rule has no end</source>
        <translation>la regla no tiene fin</translation>
    </message>
</context>
<context>
    <name>SignalLogView</name>
    <message>
        <source>Signals</source>
        <translation>Señales</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Use the component: its signals appear here.</source>
        <translation>Use el componente: sus señales aparecen aquí.</translation>
    </message>
</context>
<context>
    <name>SwitchBar</name>
    <message>
        <source>A style sheet of your own that reloads when you save it</source>
        <translation>Una hoja de estilo propia que se recarga al guardarla</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Restarts the gallery on the same page</source>
        <translation>Reinicia la galería en la misma página</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Alto contraste</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>Archivo…</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>De izquierda a derecha</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De derecha a izquierda</translation>
    </message>
</context>
<context>
    <name>Walk</name>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>WidgetFacts</name>
    <message>
        <source>Class</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Base classes</source>
        <translation>Clases base</translation>
    </message>
    <message>
        <source>Object name</source>
        <translation>Nombre de objeto</translation>
    </message>
    <message>
        <source>Dynamic properties</source>
        <translation>Propiedades dinámicas</translation>
    </message>
    <message>
        <source>Rules, the strongest first</source>
        <translation>Reglas, la más fuerte primero</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>línea %1</translation>
    </message>
    <message>
        <source>sheet of %1</source>
        <translation>hoja de %1</translation>
    </message>
    <message>
        <source>the gallery&apos;s own</source>
        <translation>la de la galería</translation>
    </message>
    <message>
        <source>Properties that a rule can set</source>
        <translation>Propiedades que una regla puede fijar</translation>
    </message>
    <message>
        <source>Parents</source>
        <translation>Padres</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>Hijos</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>Workbench</source>
        <translation>Banco de trabajo</translation>
    </message>
    <message>
        <source>Point at a widget</source>
        <translation>Señalar un widget</translation>
    </message>
    <message>
        <source>Click any widget to see what a sheet can know of it (F12); Escape ends it</source>
        <translation>Haga clic en cualquier widget para ver lo que una hoja puede saber de él (F12); Escape lo termina</translation>
    </message>
    <message>
        <source>Copy C++</source>
        <translation>Copiar C++</translation>
    </message>
    <message>
        <source>Copies the code that builds what the page shows, with its present values</source>
        <translation>Copia el código que construye lo que muestra la página, con sus valores actuales</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Writes the sheet into its file; a built-in sheet has none</source>
        <translation>Escribe la hoja en su archivo; una hoja integrada no tiene ninguno</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>Widget</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Hoja de estilo</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copiado.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Guardado.</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>El archivo no se puede escribir.</translation>
    </message>
</context>
</TS>
