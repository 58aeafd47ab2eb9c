<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>TitleCard::Editor</name>
    <message>
        <source>New card...</source>
        <translation>Nueva tarjeta...</translation>
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
        <source>Save as preset</source>
        <translation>Guardar como ajuste</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>Exportar imagen</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Recorrido</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>Nueva tarjeta</translation>
    </message>
    <message>
        <source>The picture cannot be saved as %1.</source>
        <translation>La imagen no se puede guardar como %1.</translation>
    </message>
    <message>
        <source>The canvas</source>
        <translation>El lienzo</translation>
    </message>
    <message>
        <source>A click selects a card, Ctrl and a click several.</source>
        <translation>Un clic selecciona una tarjeta; Ctrl y un clic, varias.</translation>
    </message>
    <message>
        <source>The inspector</source>
        <translation>El inspector</translation>
    </message>
    <message>
        <source>All selected cards get what you change. Escape takes it back.</source>
        <translation>Todas las tarjetas seleccionadas reciben lo que cambie. Escape lo retira.</translation>
    </message>
    <message>
        <source>The folder</source>
        <translation>La carpeta</translation>
    </message>
    <message>
        <source>The canvas is saved here as a picture.</source>
        <translation>El lienzo se guarda aquí como imagen.</translation>
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
        <source>Title cards</source>
        <translation>Tarjetas de título</translation>
    </message>
    <message>
        <source>Name of a preset</source>
        <translation>Nombre de un ajuste</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Search presets</source>
        <translation>Buscar ajustes</translation>
    </message>
    <message>
        <source>Where the picture is saved</source>
        <translation>Dónde se guarda la imagen</translation>
    </message>
</context>
<context>
    <name>TitleCard::Inspector</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>What the card says. Escape brings it back.</source>
        <translation>Lo que dice la tarjeta. Escape lo recupera.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Of the letters.</source>
        <translation>De las letras.</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Around the letters, or none.</source>
        <translation>Alrededor de las letras, o ninguno.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Behind the letters, or none.</source>
        <translation>Detrás de las letras, o ninguno.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Of the letters in pixels.</source>
        <translation>De las letras, en píxeles.</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>Degrees, clockwise.</source>
        <translation>En grados, en el sentido horario.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>0 cannot be seen, and 1 hides what is below.</source>
        <translation>0 no se ve, y 1 tapa lo que hay debajo.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Of the middle of the card: -1 is left and top, 1 right and bottom.</source>
        <translation>Del centro de la tarjeta: -1 es izquierda y arriba; 1, derecha y abajo.</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Fusión</translation>
    </message>
    <message>
        <source>How the card is mixed with what lies below it.</source>
        <translation>Cómo se mezcla la tarjeta con lo que hay debajo.</translation>
    </message>
</context>
<context>
    <name>TitleCard::NewCardDialog</name>
    <message>
        <source>Text of the new card</source>
        <translation>Texto de la nueva tarjeta</translation>
    </message>
</context>
</TS>
