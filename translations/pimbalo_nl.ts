<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <location filename="../tables/texts.h" line="72"/>
        <source>Exit</source>
        <translation>Stop</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="72"/>
        <source>Start again</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="73"/>
        <source>New Puzzle</source>
        <translation>Nieuwe puzzel</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="73"/>
        <source>Fastest Times</source>
        <translation>Snelste tijden</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="74"/>
        <source>Show solution</source>
        <translation>Toon oplossing</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="74"/>
        <source>Change Pictures</source>
        <translation>Andere plaatjes</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="76"/>
        <source>Show Rules</source>
        <translation>Toon de regels</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="77"/>
        <source>Select a picture</source>
        <translation>Kies een plaatje</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="78"/>
        <source> Time Taken</source>
        <translation>Jouw tijd</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="79"/>
        <source>seconds</source>
        <translation>seconden</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="80"/>
        <location filename="../tables/texts.h" line="97"/>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="82"/>
        <source>Correct Well Done!!!</source>
        <translation>Correct, goed zo!!!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="86"/>
        <source>Correct, Well Done!!!</source>
        <translation>Correct, goed zo!!!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="88"/>
        <source>Correct in </source>
        <translation>Correct in </translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="89"/>
        <source> seconds!!!</source>
        <translation> seconden!!!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="90"/>
        <source>The Quarters are Wrong!</source>
        <translation>De vierkanten kloppen niet!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="91"/>
        <source>The Diagonals are Wrong!</source>
        <translation>Diagonalen kloppen niet!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="92"/>
        <source>Wrong, Try Again</source>
        <translation>Fout, probeer het nog eens</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="95"/>
        <source>Pimbalo %1x%1 board</source>
        <translation>Pimbalo-speelveld %1x%1</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="96"/>
        <source>Board command</source>
        <translation>Opdracht</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="98"/>
        <source>Seconds taken</source>
        <translation>Gebruikte seconden</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="99"/>
        <source>Result</source>
        <translation>Uitslag</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="101"/>
        <source>Row %1, column %2: </source>
        <translation>Rij %1, kolom %2: </translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="102"/>
        <source>empty</source>
        <translation>leeg</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="103"/>
        <source>Given, cannot be moved</source>
        <translation>Staat vast, kan niet weg</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="104"/>
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
        <location filename="../tables/texts.h" line="31"/>
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 De ontwikkelaars van Pimbalo. Alle rechten voorbehouden.</translation>
    </message>
</context>
<context>
    <name>Error</name>
    <message>
        <location filename="../tables/texts.h" line="127"/>
        <source>Pimbalo</source>
        <translation>Pimbalo</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="129"/>
        <source>Pimbalo cannot go on: the file &quot;%1&quot; could not be loaded (%2).</source>
        <translation>Pimbalo kan niet verder: het bestand ‘%1’ kon niet worden geladen (%2).</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="130"/>
        <source>file not found</source>
        <translation>bestand niet gevonden</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="131"/>
        <source>not a cursor file</source>
        <translation>geen cursorbestand</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <location filename="../tables/texts.h" line="109"/>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4: snelste tijden</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="110"/>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5: snelste tijden</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="111"/>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6: snelste tijden</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="112"/>
        <source>Continue</source>
        <translation>Verder</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="113"/>
        <source>Level 1</source>
        <translation>Level 1</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="114"/>
        <source>Level 2</source>
        <translation>Level 2</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="115"/>
        <source>Level 3</source>
        <translation>Level 3</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="117"/>
        <source>Solo Play</source>
        <translation>Eén speler</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="120"/>
        <source>Type your name in the box</source>
        <translation>Typ je naam in het vakje</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <location filename="../tables/texts.h" line="43"/>
        <source>Board Size</source>
        <translation>Speelveld</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="45"/>
        <source>The Rules</source>
        <translation>De regels</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="46"/>
        <source>Timers On</source>
        <translation>Klok aan</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="47"/>
        <source>Play Sound</source>
        <translation>Geluid</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="48"/>
        <source>Hide Desktop</source>
        <translation>Alleen spel</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="49"/>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="51"/>
        <source>Exit</source>
        <translation>Stop</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <location filename="../tables/pictures.cpp" line="96"/>
        <source>great stellated dodecahedron</source>
        <translation>grote sterdodecaëder</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="97"/>
        <source>great icosahedron</source>
        <translation>grote icosaëder</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="98"/>
        <source>small stellated dodecahedron</source>
        <translation>kleine sterdodecaëder</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="99"/>
        <source>ten tetrahedra</source>
        <translation>tien tetraëders</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="100"/>
        <source>five tetrahedra</source>
        <translation>vijf tetraëders</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="101"/>
        <source>great dodecahedron</source>
        <translation>grote dodecaëder</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="103"/>
        <source>clubs</source>
        <translation>klaveren</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="103"/>
        <source>spades</source>
        <translation>schoppen</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="104"/>
        <source>diamonds</source>
        <translation>ruiten</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="104"/>
        <source>hearts</source>
        <translation>harten</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="105"/>
        <source>die showing one</source>
        <translation>dobbelsteen met één oog</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="106"/>
        <source>die showing two</source>
        <translation>dobbelsteen met twee ogen</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="107"/>
        <source>die showing three</source>
        <translation>dobbelsteen met drie ogen</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="108"/>
        <source>die showing four</source>
        <translation>dobbelsteen met vier ogen</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="109"/>
        <source>die showing five</source>
        <translation>dobbelsteen met vijf ogen</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="110"/>
        <source>die showing six</source>
        <translation>dobbelsteen met zes ogen</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="112"/>
        <source>tovi</source>
        <translation>tovi</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="112"/>
        <source>jebu</source>
        <translation>jebu</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="113"/>
        <source>moustache</source>
        <translation>snor</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="113"/>
        <source>kramble</source>
        <translation>kramble</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="114"/>
        <source>wuzzet</source>
        <translation>wuzzet</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="115"/>
        <source>flag of the United Kingdom</source>
        <translation>vlag van het Verenigd Koninkrijk</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="116"/>
        <source>flag of the United States</source>
        <translation>vlag van de Verenigde Staten</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="117"/>
        <source>flag of South Africa</source>
        <translation>vlag van Zuid-Afrika</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="118"/>
        <source>flag of Germany</source>
        <translation>vlag van Duitsland</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="119"/>
        <source>flag of Australia</source>
        <translation>vlag van Australië</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="120"/>
        <source>flag of France</source>
        <translation>vlag van Frankrijk</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="122"/>
        <source>dots</source>
        <translation>stippen</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="122"/>
        <source>stripes</source>
        <translation>strepen</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="123"/>
        <source>tiles</source>
        <translation>tegels</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="123"/>
        <source>triangles</source>
        <translation>driehoeken</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="124"/>
        <source>link</source>
        <translation>ketting</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="126"/>
        <source>polygon</source>
        <translation>veelhoek</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="126"/>
        <source>triangle</source>
        <translation>driehoek</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="127"/>
        <source>star</source>
        <translation>ster</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="127"/>
        <source>square</source>
        <translation>vierkant</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="128"/>
        <source>rectangle</source>
        <translation>rechthoek</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="128"/>
        <source>doughnut</source>
        <translation>donut</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="130"/>
        <source>ambulance</source>
        <translation>ambulance</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="130"/>
        <source>fire engine</source>
        <translation>brandweerauto</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="131"/>
        <source>police car</source>
        <translation>politieauto</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="131"/>
        <source>boat</source>
        <translation>boot</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="133"/>
        <source>number one</source>
        <translation>cijfer één</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="133"/>
        <source>number two</source>
        <translation>cijfer twee</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="134"/>
        <source>number three</source>
        <translation>cijfer drie</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="134"/>
        <source>number four</source>
        <translation>cijfer vier</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="135"/>
        <source>number five</source>
        <translation>cijfer vijf</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="135"/>
        <source>number six</source>
        <translation>cijfer zes</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="137"/>
        <source>letter A</source>
        <translation>letter A</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="137"/>
        <source>letter B</source>
        <translation>letter B</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="138"/>
        <source>letter C</source>
        <translation>letter C</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="138"/>
        <source>letter D</source>
        <translation>letter D</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="139"/>
        <source>letter E</source>
        <translation>letter E</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="139"/>
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
        <location filename="../tables/texts.h" line="12"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Sleep de plaatjes naar de vakjes. In elke rij, elke kolom, elke diagonaal en elk vierkant zijn alle plaatjes anders.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="17"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Sleep de plaatjes naar de vakjes. In elke rij, elke kolom en elke diagonaal zijn alle plaatjes anders.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="22"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Sleep de plaatjes naar de vakjes. In elke rij, elke kolom en elk van de zes gekleurde rechthoeken zijn alle plaatjes anders.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="56"/>
        <source>4x4 Board</source>
        <translation>Veld 4x4</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="57"/>
        <source>5x5 Board</source>
        <translation>Veld 5x5</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="58"/>
        <source>6x6 Board</source>
        <translation>Veld 6x6</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="59"/>
        <source>The Rules of Pimbalo</source>
        <translation>Regels van Pimbalo</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="60"/>
        <source>Puzzle</source>
        <translation>Puzzel</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="61"/>
        <source>Solution</source>
        <translation>Oplossing</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="62"/>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>De beste tijden worden alleen bewaard als Pimbalo op de harde schijf staat. Start daarvoor het installatieprogramma op de cd-rom.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="66"/>
        <source>Exit</source>
        <translation>Terug</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <location filename="../tables/texts.h" line="36"/>
        <source>OK</source>
        <translation>Spelen</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="38"/>
        <source>Cancel</source>
        <translation>Terug</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="39"/>
        <source>Exit</source>
        <translation>Stop</translation>
    </message>
</context>
</TS>
