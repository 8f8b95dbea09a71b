<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>New Puzzle</source>
        <translation>Neues Rätsel</translation>
    </message>
    <message>
        <source>Fastest Times</source>
        <translation>Beste Zeiten</translation>
    </message>
    <message>
        <source>Show solution</source>
        <translation>Lösung zeigen</translation>
    </message>
    <message>
        <source>Change Pictures</source>
        <translation>Andere Bilder</translation>
    </message>
    <message>
        <source>Show Rules</source>
        <translation>Regeln zeigen</translation>
    </message>
    <message>
        <source>Select a picture</source>
        <translation>Wähle ein Bild aus</translation>
    </message>
    <message>
        <source> Time Taken</source>
        <translation>Deine Zeit</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Correct Well Done!!!</source>
        <translation>Cool, alles richtig!!!</translation>
    </message>
    <message>
        <source>Correct, Well Done!!!</source>
        <translation>Cool, alles richtig!!!</translation>
    </message>
    <message>
        <source>The Quarters are Wrong!</source>
        <translation>Die Viertel sind falsch!</translation>
    </message>
    <message>
        <source>The Diagonals are Wrong!</source>
        <translation>Die Diagonalen sind falsch!</translation>
    </message>
    <message>
        <source>Wrong, Try Again</source>
        <translation>Falsch, versuch’s noch mal</translation>
    </message>
    <message>
        <source>Pimbalo %1x%1 board</source>
        <translation>Pimbalo-Spielfeld %1x%1</translation>
    </message>
    <message>
        <source>Board command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Seconds taken</source>
        <translation>Gebrauchte Sekunden</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Row %1, column %2: </source>
        <translation>Reihe %1, Spalte %2: </translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>Given, cannot be moved</source>
        <translation>Vorgegeben, bleibt liegen</translation>
    </message>
    <message>
        <source>Grid cell</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Correct in %1 seconds!!!</source>
        <translation>Cool! In %1 Sekunden!!!</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 von %3</translation>
    </message>
    <message>
        <source>In the tray</source>
        <translation>In der Ablage</translation>
    </message>
    <message>
        <source>On row %1, column %2</source>
        <translation>In Reihe %1, Spalte %2</translation>
    </message>
    <message>
        <source>Not on a cell</source>
        <translation>Auf keinem Feld</translation>
    </message>
    <message>
        <source>Tray place %1: </source>
        <translation>Ablageplatz %1: </translation>
    </message>
    <message>
        <source>Starts a new puzzle with these pictures</source>
        <translation>Startet ein neues Rätsel mit diesen Bildern</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 Die Pimbalo-Entwickler. Alle Rechte vorbehalten.</translation>
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
        <translation>Pimbalo kann nicht weitermachen: Die Datei „%1“ ließ sich nicht laden (%2).</translation>
    </message>
    <message>
        <source>file not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>not a cursor file</source>
        <translation>keine Zeigerdatei</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4: Bestzeiten</translation>
    </message>
    <message>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5: Bestzeiten</translation>
    </message>
    <message>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6: Bestzeiten</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Stufe 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Stufe 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Stufe 3</translation>
    </message>
    <message>
        <source>Solo Play</source>
        <translation>Einzelspiel</translation>
    </message>
    <message>
        <source>Type your name in the box</source>
        <translation>Schreib deinen Namen in das Feld</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Board Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Timers On</source>
        <translation>Uhr an</translation>
    </message>
    <message>
        <source>Play Sound</source>
        <translation>Ton an</translation>
    </message>
    <message>
        <source>Hide Desktop</source>
        <translation>Nur das Spiel</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>great stellated dodecahedron</source>
        <translation>großes Sterndodekaeder</translation>
    </message>
    <message>
        <source>great icosahedron</source>
        <translation>großes Ikosaeder</translation>
    </message>
    <message>
        <source>small stellated dodecahedron</source>
        <translation>kleines Sterndodekaeder</translation>
    </message>
    <message>
        <source>ten tetrahedra</source>
        <translation>zehn Tetraeder</translation>
    </message>
    <message>
        <source>five tetrahedra</source>
        <translation>fünf Tetraeder</translation>
    </message>
    <message>
        <source>great dodecahedron</source>
        <translation>großes Dodekaeder</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>spades</source>
        <translation>Pik</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>Karo</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>Herz</translation>
    </message>
    <message>
        <source>die showing one</source>
        <translation>Würfel mit einem Auge</translation>
    </message>
    <message>
        <source>die showing two</source>
        <translation>Würfel mit zwei Augen</translation>
    </message>
    <message>
        <source>die showing three</source>
        <translation>Würfel mit drei Augen</translation>
    </message>
    <message>
        <source>die showing four</source>
        <translation>Würfel mit vier Augen</translation>
    </message>
    <message>
        <source>die showing five</source>
        <translation>Würfel mit fünf Augen</translation>
    </message>
    <message>
        <source>die showing six</source>
        <translation>Würfel mit sechs Augen</translation>
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
        <translation>Schnurrbart</translation>
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
        <translation>Flagge von Großbritannien</translation>
    </message>
    <message>
        <source>flag of the United States</source>
        <translation>Flagge der USA</translation>
    </message>
    <message>
        <source>flag of South Africa</source>
        <translation>Flagge von Südafrika</translation>
    </message>
    <message>
        <source>flag of Germany</source>
        <translation>Flagge von Deutschland</translation>
    </message>
    <message>
        <source>flag of Australia</source>
        <translation>Flagge von Australien</translation>
    </message>
    <message>
        <source>flag of France</source>
        <translation>Flagge von Frankreich</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>stripes</source>
        <translation>Streifen</translation>
    </message>
    <message>
        <source>tiles</source>
        <translation>Fliesen</translation>
    </message>
    <message>
        <source>triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>link</source>
        <translation>Kette</translation>
    </message>
    <message>
        <source>polygon</source>
        <translation>Vieleck</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>Dreieck</translation>
    </message>
    <message>
        <source>star</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>doughnut</source>
        <translation>Donut</translation>
    </message>
    <message>
        <source>ambulance</source>
        <translation>Krankenwagen</translation>
    </message>
    <message>
        <source>fire engine</source>
        <translation>Feuerwehrauto</translation>
    </message>
    <message>
        <source>police car</source>
        <translation>Polizeiauto</translation>
    </message>
    <message>
        <source>boat</source>
        <translation>Boot</translation>
    </message>
    <message>
        <source>number one</source>
        <translation>Zahl eins</translation>
    </message>
    <message>
        <source>number two</source>
        <translation>Zahl zwei</translation>
    </message>
    <message>
        <source>number three</source>
        <translation>Zahl drei</translation>
    </message>
    <message>
        <source>number four</source>
        <translation>Zahl vier</translation>
    </message>
    <message>
        <source>number five</source>
        <translation>Zahl fünf</translation>
    </message>
    <message>
        <source>number six</source>
        <translation>Zahl sechs</translation>
    </message>
    <message>
        <source>letter A</source>
        <translation>Buchstabe A</translation>
    </message>
    <message>
        <source>letter B</source>
        <translation>Buchstabe B</translation>
    </message>
    <message>
        <source>letter C</source>
        <translation>Buchstabe C</translation>
    </message>
    <message>
        <source>letter D</source>
        <translation>Buchstabe D</translation>
    </message>
    <message>
        <source>letter E</source>
        <translation>Buchstabe E</translation>
    </message>
    <message>
        <source>letter F</source>
        <translation>Buchstabe F</translation>
    </message>
    <message>
        <source>happy yellow face with a curl</source>
        <translation>fröhliches gelbes Gesicht mit Locke</translation>
    </message>
    <message>
        <source>smiling green frog</source>
        <translation>lächelnder grüner Frosch</translation>
    </message>
    <message>
        <source>face with a big moustache and a hat</source>
        <translation>Gesicht mit großem Schnurrbart und Hut</translation>
    </message>
    <message>
        <source>grumpy purple monster with spiky hair</source>
        <translation>grummeliges lila Monster mit Stachelhaaren</translation>
    </message>
    <message>
        <source>fluffy orange cat</source>
        <translation>flauschige orange Katze</translation>
    </message>
    <message>
        <source>Pictures: polyhedra</source>
        <translation>Bilder: Polyeder</translation>
    </message>
    <message>
        <source>Pictures: cards</source>
        <translation>Bilder: Spielkarten</translation>
    </message>
    <message>
        <source>Pictures: dice</source>
        <translation>Bilder: Würfel</translation>
    </message>
    <message>
        <source>Pictures: faces</source>
        <translation>Bilder: Gesichter</translation>
    </message>
    <message>
        <source>Pictures: flags</source>
        <translation>Bilder: Flaggen</translation>
    </message>
    <message>
        <source>Pictures: patterns</source>
        <translation>Bilder: Muster</translation>
    </message>
    <message>
        <source>Pictures: shapes</source>
        <translation>Bilder: Formen</translation>
    </message>
    <message>
        <source>Pictures: vehicles</source>
        <translation>Bilder: Fahrzeuge</translation>
    </message>
    <message>
        <source>Pictures: numbers</source>
        <translation>Bilder: Zahlen</translation>
    </message>
    <message>
        <source>Pictures: letters</source>
        <translation>Bilder: Buchstaben</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Zieh die Bilder in die Kästchen. In jeder Reihe, jeder Spalte, jeder Diagonale und jedem Viertel darf jedes Bild nur einmal sein.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Zieh die Bilder in die Kästchen. In jeder Reihe, jeder Spalte und jeder Diagonale darf jedes Bild nur einmal sein.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Zieh die Bilder in die Kästchen. In jeder Reihe, jeder Spalte und jedem der sechs bunten Rechtecke darf jedes Bild nur einmal sein.</translation>
    </message>
    <message>
        <source>4x4 Board</source>
        <translation>Feld 4x4</translation>
    </message>
    <message>
        <source>5x5 Board</source>
        <translation>Feld 5x5</translation>
    </message>
    <message>
        <source>6x6 Board</source>
        <translation>Feld 6x6</translation>
    </message>
    <message>
        <source>The Rules of Pimbalo</source>
        <translation>Die Pimbalo-Regeln</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Rätsel</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>Die besten Zeiten bleiben nur gespeichert, wenn Pimbalo installiert ist. Starte dazu das Setup auf der CD-ROM.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>OK</source>
        <translation>Los!</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
</context>
</TS>
