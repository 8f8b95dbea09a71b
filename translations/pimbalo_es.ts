<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Otra vez</translation>
    </message>
    <message>
        <source>New Puzzle</source>
        <translation>Otro puzle</translation>
    </message>
    <message>
        <source>Fastest Times</source>
        <translation>Mejores tiempos</translation>
    </message>
    <message>
        <source>Show solution</source>
        <translation>Ver la solución</translation>
    </message>
    <message>
        <source>Change Pictures</source>
        <translation>Otros dibujos</translation>
    </message>
    <message>
        <source>Show Rules</source>
        <translation>Ver las reglas</translation>
    </message>
    <message>
        <source>Select a picture</source>
        <translation>Elige un dibujo</translation>
    </message>
    <message>
        <source> Time Taken</source>
        <translation>Tu tiempo</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Correct Well Done!!!</source>
        <translation>Correcto, ¡muy bien!</translation>
    </message>
    <message>
        <source>Correct, Well Done!!!</source>
        <translation>Correcto, ¡muy bien!</translation>
    </message>
    <message>
        <source>The Quarters are Wrong!</source>
        <translation>¡Los cuadrados están mal!</translation>
    </message>
    <message>
        <source>The Diagonals are Wrong!</source>
        <translation>¡Las diagonales están mal!</translation>
    </message>
    <message>
        <source>Wrong, Try Again</source>
        <translation>Mal, inténtalo otra vez</translation>
    </message>
    <message>
        <source>Pimbalo %1x%1 board</source>
        <translation>Tablero de Pimbalo %1x%1</translation>
    </message>
    <message>
        <source>Board command</source>
        <translation>Botón del juego</translation>
    </message>
    <message>
        <source>Seconds taken</source>
        <translation>Segundos usados</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Row %1, column %2: </source>
        <translation>Fila %1, columna %2: </translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacía</translation>
    </message>
    <message>
        <source>Given, cannot be moved</source>
        <translation>Ya puesta, no se mueve</translation>
    </message>
    <message>
        <source>Grid cell</source>
        <translation>Casilla</translation>
    </message>
    <message>
        <source>Correct in %1 seconds!!!</source>
        <translation>Correcto: ¡%1 segundos!</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 de %3</translation>
    </message>
    <message>
        <source>In the tray</source>
        <translation>En la bandeja</translation>
    </message>
    <message>
        <source>On row %1, column %2</source>
        <translation>En la fila %1, columna %2</translation>
    </message>
    <message>
        <source>Not on a cell</source>
        <translation>En ninguna casilla</translation>
    </message>
    <message>
        <source>Tray place %1: </source>
        <translation>Casilla %1 de la bandeja: </translation>
    </message>
    <message>
        <source>Starts a new puzzle with these pictures</source>
        <translation>Empieza un puzle nuevo con estos dibujos</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 El equipo de Pimbalo. Todos los derechos reservados.</translation>
    </message>
</context>
<context>
    <name>Error</name>
    <message>
        <source>Pimbalo</source>
        <translation>Pimbalo</translation>
    </message>
    <message>
        <source>Pimbalo cannot go on: the file &quot;%1&quot; could not be loaded (%2).</source>
        <translation>Pimbalo no puede seguir: no se pudo cargar el archivo «%1» (%2).</translation>
    </message>
    <message>
        <source>file not found</source>
        <translation>no se encuentra el archivo</translation>
    </message>
    <message>
        <source>not a cursor file</source>
        <translation>no es un archivo de cursor</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4: los mejores tiempos</translation>
    </message>
    <message>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5: los mejores tiempos</translation>
    </message>
    <message>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6: los mejores tiempos</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Nivel 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Nivel 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Nivel 3</translation>
    </message>
    <message>
        <source>Solo Play</source>
        <translation>Un jugador</translation>
    </message>
    <message>
        <source>Type your name in the box</source>
        <translation>Escribe tu nombre en la casilla</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Board Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>The Rules</source>
        <translation>Las reglas</translation>
    </message>
    <message>
        <source>Timers On</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Play Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Hide Desktop</source>
        <translation>Solo el juego</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>great stellated dodecahedron</source>
        <translation>gran dodecaedro estrellado</translation>
    </message>
    <message>
        <source>great icosahedron</source>
        <translation>gran icosaedro</translation>
    </message>
    <message>
        <source>small stellated dodecahedron</source>
        <translation>pequeño dodecaedro estrellado</translation>
    </message>
    <message>
        <source>ten tetrahedra</source>
        <translation>diez tetraedros</translation>
    </message>
    <message>
        <source>five tetrahedra</source>
        <translation>cinco tetraedros</translation>
    </message>
    <message>
        <source>great dodecahedron</source>
        <translation>gran dodecaedro</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>trébol</translation>
    </message>
    <message>
        <source>spades</source>
        <translation>pica</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>diamante</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>corazón</translation>
    </message>
    <message>
        <source>die showing one</source>
        <translation>dado con un punto</translation>
    </message>
    <message>
        <source>die showing two</source>
        <translation>dado con dos puntos</translation>
    </message>
    <message>
        <source>die showing three</source>
        <translation>dado con tres puntos</translation>
    </message>
    <message>
        <source>die showing four</source>
        <translation>dado con cuatro puntos</translation>
    </message>
    <message>
        <source>die showing five</source>
        <translation>dado con cinco puntos</translation>
    </message>
    <message>
        <source>die showing six</source>
        <translation>dado con seis puntos</translation>
    </message>
    <message>
        <source>tovi</source>
        <translation>tovi</translation>
    </message>
    <message>
        <source>jebu</source>
        <translation>jebu</translation>
    </message>
    <message>
        <source>moustache</source>
        <translation>bigote</translation>
    </message>
    <message>
        <source>kramble</source>
        <translation>kramble</translation>
    </message>
    <message>
        <source>wuzzet</source>
        <translation>wuzzet</translation>
    </message>
    <message>
        <source>flag of the United Kingdom</source>
        <translation>bandera del Reino Unido</translation>
    </message>
    <message>
        <source>flag of the United States</source>
        <translation>bandera de Estados Unidos</translation>
    </message>
    <message>
        <source>flag of South Africa</source>
        <translation>bandera de Sudáfrica</translation>
    </message>
    <message>
        <source>flag of Germany</source>
        <translation>bandera de Alemania</translation>
    </message>
    <message>
        <source>flag of Australia</source>
        <translation>bandera de Australia</translation>
    </message>
    <message>
        <source>flag of France</source>
        <translation>bandera de Francia</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>puntos</translation>
    </message>
    <message>
        <source>stripes</source>
        <translation>rayas</translation>
    </message>
    <message>
        <source>tiles</source>
        <translation>baldosas</translation>
    </message>
    <message>
        <source>triangles</source>
        <translation>triángulos</translation>
    </message>
    <message>
        <source>link</source>
        <translation>cadena</translation>
    </message>
    <message>
        <source>polygon</source>
        <translation>polígono</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>triángulo</translation>
    </message>
    <message>
        <source>star</source>
        <translation>estrella</translation>
    </message>
    <message>
        <source>square</source>
        <translation>cuadrado</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>rectángulo</translation>
    </message>
    <message>
        <source>doughnut</source>
        <translation>dónut</translation>
    </message>
    <message>
        <source>ambulance</source>
        <translation>ambulancia</translation>
    </message>
    <message>
        <source>fire engine</source>
        <translation>camión de bomberos</translation>
    </message>
    <message>
        <source>police car</source>
        <translation>coche de policía</translation>
    </message>
    <message>
        <source>boat</source>
        <translation>barco</translation>
    </message>
    <message>
        <source>number one</source>
        <translation>número uno</translation>
    </message>
    <message>
        <source>number two</source>
        <translation>número dos</translation>
    </message>
    <message>
        <source>number three</source>
        <translation>número tres</translation>
    </message>
    <message>
        <source>number four</source>
        <translation>número cuatro</translation>
    </message>
    <message>
        <source>number five</source>
        <translation>número cinco</translation>
    </message>
    <message>
        <source>number six</source>
        <translation>número seis</translation>
    </message>
    <message>
        <source>letter A</source>
        <translation>letra A</translation>
    </message>
    <message>
        <source>letter B</source>
        <translation>letra B</translation>
    </message>
    <message>
        <source>letter C</source>
        <translation>letra C</translation>
    </message>
    <message>
        <source>letter D</source>
        <translation>letra D</translation>
    </message>
    <message>
        <source>letter E</source>
        <translation>letra E</translation>
    </message>
    <message>
        <source>letter F</source>
        <translation>letra F</translation>
    </message>
    <message>
        <source>happy yellow face with a curl</source>
        <translation>cara amarilla feliz con un rizo</translation>
    </message>
    <message>
        <source>smiling green frog</source>
        <translation>rana verde sonriente</translation>
    </message>
    <message>
        <source>face with a big moustache and a hat</source>
        <translation>cara con un gran bigote y un sombrero</translation>
    </message>
    <message>
        <source>grumpy purple monster with spiky hair</source>
        <translation>monstruo morado gruñón con el pelo de punta</translation>
    </message>
    <message>
        <source>fluffy orange cat</source>
        <translation>gato naranja peludito</translation>
    </message>
    <message>
        <source>Pictures: polyhedra</source>
        <translation>Dibujos: poliedros</translation>
    </message>
    <message>
        <source>Pictures: cards</source>
        <translation>Dibujos: cartas</translation>
    </message>
    <message>
        <source>Pictures: dice</source>
        <translation>Dibujos: dados</translation>
    </message>
    <message>
        <source>Pictures: faces</source>
        <translation>Dibujos: caras</translation>
    </message>
    <message>
        <source>Pictures: flags</source>
        <translation>Dibujos: banderas</translation>
    </message>
    <message>
        <source>Pictures: patterns</source>
        <translation>Dibujos: estampados</translation>
    </message>
    <message>
        <source>Pictures: shapes</source>
        <translation>Dibujos: formas</translation>
    </message>
    <message>
        <source>Pictures: vehicles</source>
        <translation>Dibujos: vehículos</translation>
    </message>
    <message>
        <source>Pictures: numbers</source>
        <translation>Dibujos: números</translation>
    </message>
    <message>
        <source>Pictures: letters</source>
        <translation>Dibujos: letras</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Arrastra los dibujos a la cuadrícula. En cada fila, cada columna, cada diagonal y cada cuadrado, todos los dibujos son distintos.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Arrastra los dibujos a la cuadrícula. En cada fila, cada columna y cada diagonal, todos los dibujos son distintos.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Arrastra los dibujos a la cuadrícula. En cada fila, cada columna y cada uno de los seis rectángulos de colores, todos los dibujos son distintos.</translation>
    </message>
    <message>
        <source>4x4 Board</source>
        <translation>Tablero 4x4</translation>
    </message>
    <message>
        <source>5x5 Board</source>
        <translation>Tablero 5x5</translation>
    </message>
    <message>
        <source>6x6 Board</source>
        <translation>Tablero 6x6</translation>
    </message>
    <message>
        <source>The Rules of Pimbalo</source>
        <translation>Reglas de Pimbalo</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Puzle</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>Solución</translation>
    </message>
    <message>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>Los mejores tiempos solo se guardan si Pimbalo está instalado en el disco duro. Para instalarlo, abre el programa de instalación del CD-ROM.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Volver</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>OK</source>
        <translation>Jugar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
</context>
</TS>
