<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
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
        <translation>rosa</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rojo</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>naranja</translation>
    </message>
    <message>
        <source>brown</source>
        <translation>marrón</translation>
    </message>
    <message>
        <source>golden yellow</source>
        <translation>amarillo dorado</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>amarillo</translation>
    </message>
    <message>
        <source>olive</source>
        <translation>oliva</translation>
    </message>
    <message>
        <source>yellow green</source>
        <translation>verde amarillento</translation>
    </message>
    <message>
        <source>green</source>
        <translation>verde</translation>
    </message>
    <message>
        <source>turquoise</source>
        <translation>turquesa</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>cian</translation>
    </message>
    <message>
        <source>azure</source>
        <translation>azur</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>azul</translation>
    </message>
    <message>
        <source>violet</source>
        <translation>violeta</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>black</source>
        <translation>negro</translation>
    </message>
    <message>
        <source>very dark grey</source>
        <translation>gris muy oscuro</translation>
    </message>
    <message>
        <source>dark grey</source>
        <translation>gris oscuro</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>light grey</source>
        <translation>gris claro</translation>
    </message>
    <message>
        <source>very light grey</source>
        <translation>gris muy claro</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanco</translation>
    </message>
    <message>
        <source>very dark %1</source>
        <translation>%1 muy oscuro</translation>
    </message>
    <message>
        <source>very light %1</source>
        <translation>%1 muy claro</translation>
    </message>
    <message>
        <source>greyish %1</source>
        <translation>%1 grisáceo</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>%1 oscuro</translation>
    </message>
    <message>
        <source>light %1</source>
        <translation>%1 claro</translation>
    </message>
    <message>
        <source>several colours</source>
        <translation>varios colores</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>ningún color</translation>
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
        <translation>Otros:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Opacidad:</translation>
    </message>
    <message>
        <source>Colour value</source>
        <translation>Valor del color</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>Tomar un color de la pantalla</translation>
    </message>
    <message>
        <source>Choose another colour</source>
        <translation>Elegir otro color</translation>
    </message>
    <message>
        <source>Current colour</source>
        <translation>Color actual</translation>
    </message>
    <message>
        <source>Needs a mouse; without one, type the colour value</source>
        <translation>Necesita un ratón; sin él, escriba el valor del color</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>Colores propios</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Opacity in percent</source>
        <translation>Opacidad en porcentaje</translation>
    </message>
    <message>
        <source>Empty place</source>
        <translation>Lugar vacío</translation>
    </message>
</context>
<context>
    <name>CustomColorSelectWidget</name>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Saturation and brightness</source>
        <translation>Saturación y brillo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
</context>
<context>
    <name>DialogGuideWidget</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>Imagen animada</translation>
    </message>
</context>
<context>
    <name>EditSessionCover</name>
    <message>
        <source>Several values</source>
        <translation>Varios valores</translation>
    </message>
</context>
<context>
    <name>FileUtil</name>
    <message>
        <source>No path is given</source>
        <translation>No se ha indicado ninguna ruta</translation>
    </message>
    <message>
        <source>Not a path on a disk: %1</source>
        <translation>No es una ruta de un disco: %1</translation>
    </message>
    <message>
        <source>The path has characters that names on this disk cannot have: %1</source>
        <translation>La ruta tiene caracteres que los nombres de este disco no admiten: %1</translation>
    </message>
    <message>
        <source>The path is too long: %1</source>
        <translation>La ruta es demasiado larga: %1</translation>
    </message>
    <message>
        <source>A name in the path is too long: %1</source>
        <translation>Un nombre de la ruta es demasiado largo: %1</translation>
    </message>
    <message>
        <source>There is something else in the place of a folder: %1</source>
        <translation>Hay otra cosa en el lugar de una carpeta: %1</translation>
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
        <translation>Imagen animada</translation>
    </message>
    <message>
        <source>Playing; Space pauses it</source>
        <translation>Reproduciendo; Espacio lo pausa</translation>
    </message>
    <message>
        <source>Paused; Space plays it</source>
        <translation>En pausa; Espacio lo reproduce</translation>
    </message>
</context>
<context>
    <name>Orvane::Tessel::TesselLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>PathSelectionWidget</name>
    <message>
        <source>Selected path is not readable</source>
        <translation>La ruta elegida no se puede leer</translation>
    </message>
    <message>
        <source>Selected path is not writable</source>
        <translation>En la ruta elegida no se puede escribir</translation>
    </message>
    <message>
        <source>Required: %1</source>
        <translation>Necesario: %1</translation>
    </message>
    <message>
        <source>Available: %1</source>
        <translation>Disponible: %1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Back to the default folder</source>
        <translation>Volver a la carpeta predeterminada</translation>
    </message>
</context>
<context>
    <name>PointSelectorWidget</name>
    <message>
        <source>Position on the x-axis</source>
        <translation>Posición en el eje x</translation>
    </message>
    <message>
        <source>Position on the y-axis</source>
        <translation>Posición en el eje y</translation>
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
        <translation>Este escritorio no tiene un servicio de colores de la pantalla.</translation>
    </message>
    <message>
        <source>This desktop cannot pick colours from the screen for programs.</source>
        <translation>Este escritorio no puede tomar colores de la pantalla para los programas.</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen does not answer.</source>
        <translation>El servicio de colores de la pantalla del escritorio no responde.</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen has refused.</source>
        <translation>El servicio de colores de la pantalla del escritorio se ha negado.</translation>
    </message>
</context>
<context>
    <name>SearchWidget</name>
    <message>
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
</context>
<context>
    <name>SliderInputWidget</name>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
</context>
<context>
    <name>WidgetColorPickerButton</name>
    <message>
        <source>Needs a mouse; without one, type the value in a colour panel</source>
        <translation>Necesita un ratón; sin él, escriba el valor en un panel de colores</translation>
    </message>
</context>
<context>
    <name>blendingModes</name>
    <message>
        <source>Overlay</source>
        <translation>Superponer</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aclarar</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>ColorDodge</source>
        <translation>Sobreexponer color</translation>
    </message>
    <message>
        <source>LinearDodge</source>
        <translation>Sobreexposición lineal</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Trama</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplicar</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Oscurecer</translation>
    </message>
    <message>
        <source>ColorBurn</source>
        <translation>Subexponer color</translation>
    </message>
    <message>
        <source>HardLight</source>
        <translation>Luz fuerte</translation>
    </message>
    <message>
        <source>SoftLight</source>
        <translation>Luz suave</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Exclusión</translation>
    </message>
    <message>
        <source>SourceOver</source>
        <translation>Normal</translation>
    </message>
</context>
</TS>
