<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Ricomincia</translation>
    </message>
    <message>
        <source>New Puzzle</source>
        <translation>Nuovo gioco</translation>
    </message>
    <message>
        <source>Fastest Times</source>
        <translation>Tempi migliori</translation>
    </message>
    <message>
        <source>Show solution</source>
        <translation>Vedi soluzione</translation>
    </message>
    <message>
        <source>Change Pictures</source>
        <translation>Altre figure</translation>
    </message>
    <message>
        <source>Show Rules</source>
        <translation>Vedi le regole</translation>
    </message>
    <message>
        <source>Select a picture</source>
        <translation>Scegli una figura</translation>
    </message>
    <message>
        <source> Time Taken</source>
        <translation>Il tuo tempo</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondi</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>Correct Well Done!!!</source>
        <translation>Corretto, bravo!!!</translation>
    </message>
    <message>
        <source>Correct, Well Done!!!</source>
        <translation>Corretto, bravo!!!</translation>
    </message>
    <message>
        <source>The Quarters are Wrong!</source>
        <translation>I quadrati sono sbagliati!</translation>
    </message>
    <message>
        <source>The Diagonals are Wrong!</source>
        <translation>Diagonali sbagliate!</translation>
    </message>
    <message>
        <source>Wrong, Try Again</source>
        <translation>Sbagliato, riprova</translation>
    </message>
    <message>
        <source>Pimbalo %1x%1 board</source>
        <translation>Griglia di Pimbalo %1x%1</translation>
    </message>
    <message>
        <source>Board command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Seconds taken</source>
        <translation>Secondi impiegati</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>Row %1, column %2: </source>
        <translation>Riga %1, colonna %2: </translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vuota</translation>
    </message>
    <message>
        <source>Given, cannot be moved</source>
        <translation>Già messa, non si sposta</translation>
    </message>
    <message>
        <source>Grid cell</source>
        <translation>Casella</translation>
    </message>
    <message>
        <source>Correct in %1 seconds!!!</source>
        <translation>Corretto in %1 secondi!!!</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 di %3</translation>
    </message>
    <message>
        <source>In the tray</source>
        <translation>Nel vassoio</translation>
    </message>
    <message>
        <source>On row %1, column %2</source>
        <translation>Nella riga %1, colonna %2</translation>
    </message>
    <message>
        <source>Not on a cell</source>
        <translation>Su nessuna casella</translation>
    </message>
    <message>
        <source>Tray place %1: </source>
        <translation>Casella %1 del vassoio: </translation>
    </message>
    <message>
        <source>Starts a new puzzle with these pictures</source>
        <translation>Inizia un nuovo gioco con queste figure</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 Gli sviluppatori di Pimbalo. Tutti i diritti riservati.</translation>
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
        <translation>Pimbalo non può continuare: impossibile caricare il file «%1» (%2).</translation>
    </message>
    <message>
        <source>file not found</source>
        <translation>file non trovato</translation>
    </message>
    <message>
        <source>not a cursor file</source>
        <translation>non è un file di cursore</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4: i tempi migliori</translation>
    </message>
    <message>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5: i tempi migliori</translation>
    </message>
    <message>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6: i tempi migliori</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Livello 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Livello 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Livello 3</translation>
    </message>
    <message>
        <source>Solo Play</source>
        <translation>Giocatore singolo</translation>
    </message>
    <message>
        <source>Type your name in the box</source>
        <translation>Scrivi il tuo nome nella casella</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Board Size</source>
        <translation>Grandezza</translation>
    </message>
    <message>
        <source>The Rules</source>
        <translation>Le regole</translation>
    </message>
    <message>
        <source>Timers On</source>
        <translation>Orologio</translation>
    </message>
    <message>
        <source>Play Sound</source>
        <translation>Suoni</translation>
    </message>
    <message>
        <source>Hide Desktop</source>
        <translation>Solo il gioco</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>great stellated dodecahedron</source>
        <translation>grande dodecaedro stellato</translation>
    </message>
    <message>
        <source>great icosahedron</source>
        <translation>grande icosaedro</translation>
    </message>
    <message>
        <source>small stellated dodecahedron</source>
        <translation>piccolo dodecaedro stellato</translation>
    </message>
    <message>
        <source>ten tetrahedra</source>
        <translation>dieci tetraedri</translation>
    </message>
    <message>
        <source>five tetrahedra</source>
        <translation>cinque tetraedri</translation>
    </message>
    <message>
        <source>great dodecahedron</source>
        <translation>grande dodecaedro</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>fiori</translation>
    </message>
    <message>
        <source>spades</source>
        <translation>picche</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>quadri</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>cuori</translation>
    </message>
    <message>
        <source>die showing one</source>
        <translation>dado con un punto</translation>
    </message>
    <message>
        <source>die showing two</source>
        <translation>dado con due punti</translation>
    </message>
    <message>
        <source>die showing three</source>
        <translation>dado con tre punti</translation>
    </message>
    <message>
        <source>die showing four</source>
        <translation>dado con quattro punti</translation>
    </message>
    <message>
        <source>die showing five</source>
        <translation>dado con cinque punti</translation>
    </message>
    <message>
        <source>die showing six</source>
        <translation>dado con sei punti</translation>
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
        <translation>baffi</translation>
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
        <translation>bandiera del Regno Unito</translation>
    </message>
    <message>
        <source>flag of the United States</source>
        <translation>bandiera degli Stati Uniti</translation>
    </message>
    <message>
        <source>flag of South Africa</source>
        <translation>bandiera del Sudafrica</translation>
    </message>
    <message>
        <source>flag of Germany</source>
        <translation>bandiera della Germania</translation>
    </message>
    <message>
        <source>flag of Australia</source>
        <translation>bandiera dell’Australia</translation>
    </message>
    <message>
        <source>flag of France</source>
        <translation>bandiera della Francia</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>puntini</translation>
    </message>
    <message>
        <source>stripes</source>
        <translation>strisce</translation>
    </message>
    <message>
        <source>tiles</source>
        <translation>piastrelle</translation>
    </message>
    <message>
        <source>triangles</source>
        <translation>triangoli</translation>
    </message>
    <message>
        <source>link</source>
        <translation>catena</translation>
    </message>
    <message>
        <source>polygon</source>
        <translation>poligono</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>triangolo</translation>
    </message>
    <message>
        <source>star</source>
        <translation>stella</translation>
    </message>
    <message>
        <source>square</source>
        <translation>quadrato</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>rettangolo</translation>
    </message>
    <message>
        <source>doughnut</source>
        <translation>ciambella</translation>
    </message>
    <message>
        <source>ambulance</source>
        <translation>ambulanza</translation>
    </message>
    <message>
        <source>fire engine</source>
        <translation>camion dei pompieri</translation>
    </message>
    <message>
        <source>police car</source>
        <translation>auto della polizia</translation>
    </message>
    <message>
        <source>boat</source>
        <translation>barca</translation>
    </message>
    <message>
        <source>number one</source>
        <translation>numero uno</translation>
    </message>
    <message>
        <source>number two</source>
        <translation>numero due</translation>
    </message>
    <message>
        <source>number three</source>
        <translation>numero tre</translation>
    </message>
    <message>
        <source>number four</source>
        <translation>numero quattro</translation>
    </message>
    <message>
        <source>number five</source>
        <translation>numero cinque</translation>
    </message>
    <message>
        <source>number six</source>
        <translation>numero sei</translation>
    </message>
    <message>
        <source>letter A</source>
        <translation>lettera A</translation>
    </message>
    <message>
        <source>letter B</source>
        <translation>lettera B</translation>
    </message>
    <message>
        <source>letter C</source>
        <translation>lettera C</translation>
    </message>
    <message>
        <source>letter D</source>
        <translation>lettera D</translation>
    </message>
    <message>
        <source>letter E</source>
        <translation>lettera E</translation>
    </message>
    <message>
        <source>letter F</source>
        <translation>lettera F</translation>
    </message>
    <message>
        <source>happy yellow face with a curl</source>
        <translation>faccina gialla felice con un ricciolo</translation>
    </message>
    <message>
        <source>smiling green frog</source>
        <translation>rana verde sorridente</translation>
    </message>
    <message>
        <source>face with a big moustache and a hat</source>
        <translation>faccia con grandi baffi e un cappello</translation>
    </message>
    <message>
        <source>grumpy purple monster with spiky hair</source>
        <translation>mostro viola brontolone con i capelli a punta</translation>
    </message>
    <message>
        <source>fluffy orange cat</source>
        <translation>gatto arancione morbidoso</translation>
    </message>
    <message>
        <source>Pictures: polyhedra</source>
        <translation>Figure: poliedri</translation>
    </message>
    <message>
        <source>Pictures: cards</source>
        <translation>Figure: carte</translation>
    </message>
    <message>
        <source>Pictures: dice</source>
        <translation>Figure: dadi</translation>
    </message>
    <message>
        <source>Pictures: faces</source>
        <translation>Figure: facce</translation>
    </message>
    <message>
        <source>Pictures: flags</source>
        <translation>Figure: bandiere</translation>
    </message>
    <message>
        <source>Pictures: patterns</source>
        <translation>Figure: motivi</translation>
    </message>
    <message>
        <source>Pictures: shapes</source>
        <translation>Figure: forme</translation>
    </message>
    <message>
        <source>Pictures: vehicles</source>
        <translation>Figure: veicoli</translation>
    </message>
    <message>
        <source>Pictures: numbers</source>
        <translation>Figure: numeri</translation>
    </message>
    <message>
        <source>Pictures: letters</source>
        <translation>Figure: lettere</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Trascina le figure nella griglia. In ogni riga, ogni colonna, ogni diagonale e ogni quadrato, tutte le figure sono diverse.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Trascina le figure nella griglia. In ogni riga, ogni colonna e ogni diagonale, tutte le figure sono diverse.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Trascina le figure nella griglia. In ogni riga, ogni colonna e ognuno dei sei rettangoli colorati, tutte le figure sono diverse.</translation>
    </message>
    <message>
        <source>4x4 Board</source>
        <translation>Griglia 4x4</translation>
    </message>
    <message>
        <source>5x5 Board</source>
        <translation>Griglia 5x5</translation>
    </message>
    <message>
        <source>6x6 Board</source>
        <translation>Griglia 6x6</translation>
    </message>
    <message>
        <source>The Rules of Pimbalo</source>
        <translation>Le regole di Pimbalo</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Gioco</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>Soluzione</translation>
    </message>
    <message>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>I tempi migliori si salvano solo se Pimbalo è installato sul disco fisso. Per installarlo, avvia il programma di installazione dal CD-ROM.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>OK</source>
        <translation>Gioca</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Torna</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
</context>
</TS>
