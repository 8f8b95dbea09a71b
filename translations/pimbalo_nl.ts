<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <source>Exit</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>New Puzzle</source>
        <translation>Nieuwe puzzel</translation>
    </message>
    <message>
        <source>Fastest Times</source>
        <translation>Snelste tijden</translation>
    </message>
    <message>
        <source>Show solution</source>
        <translation>Toon oplossing</translation>
    </message>
    <message>
        <source>Change Pictures</source>
        <translation>Andere plaatjes</translation>
    </message>
    <message>
        <source>Show Rules</source>
        <translation>Toon de regels</translation>
    </message>
    <message>
        <source>Select a picture</source>
        <translation>Kies een plaatje</translation>
    </message>
    <message>
        <source> Time Taken</source>
        <translation>Jouw tijd</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>seconden</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Correct Well Done!!!</source>
        <translation>Correct, goed zo!!!</translation>
    </message>
    <message>
        <source>Correct, Well Done!!!</source>
        <translation>Correct, goed zo!!!</translation>
    </message>
    <message>
        <source>The Quarters are Wrong!</source>
        <translation>De vierkanten kloppen niet!</translation>
    </message>
    <message>
        <source>The Diagonals are Wrong!</source>
        <translation>Diagonalen kloppen niet!</translation>
    </message>
    <message>
        <source>Wrong, Try Again</source>
        <translation>Fout, probeer het nog eens</translation>
    </message>
    <message>
        <source>Pimbalo %1x%1 board</source>
        <translation>Pimbalo-speelveld %1x%1</translation>
    </message>
    <message>
        <source>Board command</source>
        <translation>Opdracht</translation>
    </message>
    <message>
        <source>Seconds taken</source>
        <translation>Gebruikte seconden</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Uitslag</translation>
    </message>
    <message>
        <source>Row %1, column %2: </source>
        <translation>Rij %1, kolom %2: </translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leeg</translation>
    </message>
    <message>
        <source>Given, cannot be moved</source>
        <translation>Staat vast, kan niet weg</translation>
    </message>
    <message>
        <source>Grid cell</source>
        <translation>Vakje</translation>
    </message>
    <message>
        <source>Correct in %1 seconds!!!</source>
        <translation>Correct in %1 seconden!!!</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 van %3</translation>
    </message>
    <message>
        <source>In the tray</source>
        <translation>In het bakje</translation>
    </message>
    <message>
        <source>On row %1, column %2</source>
        <translation>Op rij %1, kolom %2</translation>
    </message>
    <message>
        <source>Not on a cell</source>
        <translation>Niet op een vakje</translation>
    </message>
    <message>
        <source>Tray place %1: </source>
        <translation>Plek %1 in het bakje: </translation>
    </message>
    <message>
        <source>Starts a new puzzle with these pictures</source>
        <translation>Begint een nieuwe puzzel met deze plaatjes</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 De ontwikkelaars van Pimbalo. Alle rechten voorbehouden.</translation>
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
        <translation>Pimbalo kan niet verder: het bestand ‘%1’ kon niet worden geladen (%2).</translation>
    </message>
    <message>
        <source>file not found</source>
        <translation>bestand niet gevonden</translation>
    </message>
    <message>
        <source>not a cursor file</source>
        <translation>geen cursorbestand</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4: snelste tijden</translation>
    </message>
    <message>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5: snelste tijden</translation>
    </message>
    <message>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6: snelste tijden</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Verder</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Level 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Level 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Level 3</translation>
    </message>
    <message>
        <source>Solo Play</source>
        <translation>Eén speler</translation>
    </message>
    <message>
        <source>Type your name in the box</source>
        <translation>Typ je naam in het vakje</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Board Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>The Rules</source>
        <translation>De regels</translation>
    </message>
    <message>
        <source>Timers On</source>
        <translation>Klok aan</translation>
    </message>
    <message>
        <source>Play Sound</source>
        <translation>Geluid</translation>
    </message>
    <message>
        <source>Hide Desktop</source>
        <translation>Alleen spel</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Stop</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>great stellated dodecahedron</source>
        <translation>grote sterdodecaëder</translation>
    </message>
    <message>
        <source>great icosahedron</source>
        <translation>grote icosaëder</translation>
    </message>
    <message>
        <source>small stellated dodecahedron</source>
        <translation>kleine sterdodecaëder</translation>
    </message>
    <message>
        <source>ten tetrahedra</source>
        <translation>tien tetraëders</translation>
    </message>
    <message>
        <source>five tetrahedra</source>
        <translation>vijf tetraëders</translation>
    </message>
    <message>
        <source>great dodecahedron</source>
        <translation>grote dodecaëder</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>klaveren</translation>
    </message>
    <message>
        <source>spades</source>
        <translation>schoppen</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>ruiten</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>harten</translation>
    </message>
    <message>
        <source>die showing one</source>
        <translation>dobbelsteen met één oog</translation>
    </message>
    <message>
        <source>die showing two</source>
        <translation>dobbelsteen met twee ogen</translation>
    </message>
    <message>
        <source>die showing three</source>
        <translation>dobbelsteen met drie ogen</translation>
    </message>
    <message>
        <source>die showing four</source>
        <translation>dobbelsteen met vier ogen</translation>
    </message>
    <message>
        <source>die showing five</source>
        <translation>dobbelsteen met vijf ogen</translation>
    </message>
    <message>
        <source>die showing six</source>
        <translation>dobbelsteen met zes ogen</translation>
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
        <translation>snor</translation>
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
        <translation>vlag van het Verenigd Koninkrijk</translation>
    </message>
    <message>
        <source>flag of the United States</source>
        <translation>vlag van de Verenigde Staten</translation>
    </message>
    <message>
        <source>flag of South Africa</source>
        <translation>vlag van Zuid-Afrika</translation>
    </message>
    <message>
        <source>flag of Germany</source>
        <translation>vlag van Duitsland</translation>
    </message>
    <message>
        <source>flag of Australia</source>
        <translation>vlag van Australië</translation>
    </message>
    <message>
        <source>flag of France</source>
        <translation>vlag van Frankrijk</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>stippen</translation>
    </message>
    <message>
        <source>stripes</source>
        <translation>strepen</translation>
    </message>
    <message>
        <source>tiles</source>
        <translation>tegels</translation>
    </message>
    <message>
        <source>triangles</source>
        <translation>driehoeken</translation>
    </message>
    <message>
        <source>link</source>
        <translation>ketting</translation>
    </message>
    <message>
        <source>polygon</source>
        <translation>veelhoek</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>driehoek</translation>
    </message>
    <message>
        <source>star</source>
        <translation>ster</translation>
    </message>
    <message>
        <source>square</source>
        <translation>vierkant</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>rechthoek</translation>
    </message>
    <message>
        <source>doughnut</source>
        <translation>donut</translation>
    </message>
    <message>
        <source>ambulance</source>
        <translation>ambulance</translation>
    </message>
    <message>
        <source>fire engine</source>
        <translation>brandweerauto</translation>
    </message>
    <message>
        <source>police car</source>
        <translation>politieauto</translation>
    </message>
    <message>
        <source>boat</source>
        <translation>boot</translation>
    </message>
    <message>
        <source>number one</source>
        <translation>cijfer één</translation>
    </message>
    <message>
        <source>number two</source>
        <translation>cijfer twee</translation>
    </message>
    <message>
        <source>number three</source>
        <translation>cijfer drie</translation>
    </message>
    <message>
        <source>number four</source>
        <translation>cijfer vier</translation>
    </message>
    <message>
        <source>number five</source>
        <translation>cijfer vijf</translation>
    </message>
    <message>
        <source>number six</source>
        <translation>cijfer zes</translation>
    </message>
    <message>
        <source>letter A</source>
        <translation>letter A</translation>
    </message>
    <message>
        <source>letter B</source>
        <translation>letter B</translation>
    </message>
    <message>
        <source>letter C</source>
        <translation>letter C</translation>
    </message>
    <message>
        <source>letter D</source>
        <translation>letter D</translation>
    </message>
    <message>
        <source>letter E</source>
        <translation>letter E</translation>
    </message>
    <message>
        <source>letter F</source>
        <translation>letter F</translation>
    </message>
    <message>
        <source>happy yellow face with a curl</source>
        <translation>vrolijk geel gezicht met een krul</translation>
    </message>
    <message>
        <source>smiling green frog</source>
        <translation>lachende groene kikker</translation>
    </message>
    <message>
        <source>face with a big moustache and a hat</source>
        <translation>gezicht met een grote snor en een hoed</translation>
    </message>
    <message>
        <source>grumpy purple monster with spiky hair</source>
        <translation>chagrijnig paars monster met stekelhaar</translation>
    </message>
    <message>
        <source>fluffy orange cat</source>
        <translation>pluizige oranje kat</translation>
    </message>
    <message>
        <source>Pictures: polyhedra</source>
        <translation>Plaatjes: veelvlakken</translation>
    </message>
    <message>
        <source>Pictures: cards</source>
        <translation>Plaatjes: kaarten</translation>
    </message>
    <message>
        <source>Pictures: dice</source>
        <translation>Plaatjes: dobbelstenen</translation>
    </message>
    <message>
        <source>Pictures: faces</source>
        <translation>Plaatjes: gezichten</translation>
    </message>
    <message>
        <source>Pictures: flags</source>
        <translation>Plaatjes: vlaggen</translation>
    </message>
    <message>
        <source>Pictures: patterns</source>
        <translation>Plaatjes: patronen</translation>
    </message>
    <message>
        <source>Pictures: shapes</source>
        <translation>Plaatjes: vormen</translation>
    </message>
    <message>
        <source>Pictures: vehicles</source>
        <translation>Plaatjes: voertuigen</translation>
    </message>
    <message>
        <source>Pictures: numbers</source>
        <translation>Plaatjes: cijfers</translation>
    </message>
    <message>
        <source>Pictures: letters</source>
        <translation>Plaatjes: letters</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Sleep de plaatjes naar de vakjes. In elke rij, elke kolom, elke diagonaal en elk vierkant zijn alle plaatjes anders.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Sleep de plaatjes naar de vakjes. In elke rij, elke kolom en elke diagonaal zijn alle plaatjes anders.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Sleep de plaatjes naar de vakjes. In elke rij, elke kolom en elk van de zes gekleurde rechthoeken zijn alle plaatjes anders.</translation>
    </message>
    <message>
        <source>4x4 Board</source>
        <translation>Veld 4x4</translation>
    </message>
    <message>
        <source>5x5 Board</source>
        <translation>Veld 5x5</translation>
    </message>
    <message>
        <source>6x6 Board</source>
        <translation>Veld 6x6</translation>
    </message>
    <message>
        <source>The Rules of Pimbalo</source>
        <translation>Regels van Pimbalo</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Puzzel</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>Antwoord</translation>
    </message>
    <message>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>De beste tijden worden alleen bewaard als Pimbalo op de harde schijf staat. Start daarvoor het installatieprogramma op de cd-rom.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Terug</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>OK</source>
        <translation>Spelen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Stop</translation>
    </message>
</context>
</TS>
