<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <location filename="../tables/texts.h" line="72"/>
        <source>Exit</source>
        <translation>Wyjdź</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="72"/>
        <source>Start again</source>
        <translation>Od nowa</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="73"/>
        <source>New Puzzle</source>
        <translation>Nowa zagadka</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="73"/>
        <source>Fastest Times</source>
        <translation>Rekordy</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="74"/>
        <source>Show solution</source>
        <translation>Pokaż rozwiązanie</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="74"/>
        <source>Change Pictures</source>
        <translation>Inne obrazki</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="76"/>
        <source>Show Rules</source>
        <translation>Pokaż zasady</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="77"/>
        <source>Select a picture</source>
        <translation>Wybierz obrazek</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="78"/>
        <source> Time Taken</source>
        <translation>Twój czas</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="79"/>
        <source>seconds</source>
        <translation>sekund</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="80"/>
        <location filename="../tables/texts.h" line="97"/>
        <source>Level</source>
        <translation>Etap</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="82"/>
        <source>Correct Well Done!!!</source>
        <translation>Cudownie, brawo!!!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="86"/>
        <source>Correct, Well Done!!!</source>
        <translation>Cudownie, brawo!!!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="88"/>
        <source>Correct in </source>
        <translation>Cudownie! Czas: </translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="89"/>
        <source> seconds!!!</source>
        <translation> sek.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="90"/>
        <source>The Quarters are Wrong!</source>
        <translation>Popraw kwadraty!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="91"/>
        <source>The Diagonals are Wrong!</source>
        <translation>Popraw przekątne!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="92"/>
        <source>Wrong, Try Again</source>
        <translation>Źle, spróbuj jeszcze raz</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="95"/>
        <source>Pimbalo %1x%1 board</source>
        <translation>Plansza Pimbalo %1x%1</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="96"/>
        <source>Board command</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="98"/>
        <source>Seconds taken</source>
        <translation>Czas w sekundach</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="99"/>
        <source>Result</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="101"/>
        <source>Row %1, column %2: </source>
        <translation>Wiersz %1, kolumna %2: </translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="102"/>
        <source>empty</source>
        <translation>puste</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="103"/>
        <source>Given, cannot be moved</source>
        <translation>Stały, nie da się przesunąć</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="104"/>
        <source>Grid cell</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Correct in %1 seconds!!!</source>
        <translation>Cudownie! Czas: %1 sek.</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 z %3</translation>
    </message>
    <message>
        <source>In the tray</source>
        <translation>Na tacce</translation>
    </message>
    <message>
        <source>On row %1, column %2</source>
        <translation>W wierszu %1, kolumnie %2</translation>
    </message>
    <message>
        <source>Not on a cell</source>
        <translation>Poza polami</translation>
    </message>
    <message>
        <source>Tray place %1: </source>
        <translation>Miejsce %1 na tacce: </translation>
    </message>
    <message>
        <source>Starts a new puzzle with these pictures</source>
        <translation>Zaczyna nową zagadkę z tymi obrazkami</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <location filename="../tables/texts.h" line="31"/>
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 Twórcy Pimbalo. Wszelkie prawa zastrzeżone.</translation>
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
        <translation>Pimbalo nie może działać dalej: nie udało się wczytać pliku „%1” (%2).</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="130"/>
        <source>file not found</source>
        <translation>nie znaleziono pliku</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="131"/>
        <source>not a cursor file</source>
        <translation>to nie jest plik kursora</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <location filename="../tables/texts.h" line="109"/>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4: najlepsze czasy</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="110"/>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5: najlepsze czasy</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="111"/>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6: najlepsze czasy</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="112"/>
        <source>Continue</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="113"/>
        <source>Level 1</source>
        <translation>Etap 1</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="114"/>
        <source>Level 2</source>
        <translation>Etap 2</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="115"/>
        <source>Level 3</source>
        <translation>Etap 3</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="117"/>
        <source>Solo Play</source>
        <translation>Jeden gracz</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="120"/>
        <source>Type your name in the box</source>
        <translation>Wpisz swoje imię w okienku</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <location filename="../tables/texts.h" line="43"/>
        <source>Board Size</source>
        <translation>Plansza</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="45"/>
        <source>The Rules</source>
        <translation>Zasady</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="46"/>
        <source>Timers On</source>
        <translation>Zegar</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="47"/>
        <source>Play Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="48"/>
        <source>Hide Desktop</source>
        <translation>Ukryj pulpit</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="49"/>
        <source>Level</source>
        <translation>Etap</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="51"/>
        <source>Exit</source>
        <translation>Wróć</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <location filename="../tables/pictures.cpp" line="96"/>
        <source>great stellated dodecahedron</source>
        <translation>wielki dwunastościan gwiaździsty</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="97"/>
        <source>great icosahedron</source>
        <translation>wielki dwudziestościan</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="98"/>
        <source>small stellated dodecahedron</source>
        <translation>mały dwunastościan gwiaździsty</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="99"/>
        <source>ten tetrahedra</source>
        <translation>dziesięć czworościanów</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="100"/>
        <source>five tetrahedra</source>
        <translation>pięć czworościanów</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="101"/>
        <source>great dodecahedron</source>
        <translation>wielki dwunastościan</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="103"/>
        <source>clubs</source>
        <translation>trefl</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="103"/>
        <source>spades</source>
        <translation>pik</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="104"/>
        <source>diamonds</source>
        <translation>karo</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="104"/>
        <source>hearts</source>
        <translation>kier</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="105"/>
        <source>die showing one</source>
        <translation>kostka z jednym oczkiem</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="106"/>
        <source>die showing two</source>
        <translation>kostka z dwoma oczkami</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="107"/>
        <source>die showing three</source>
        <translation>kostka z trzema oczkami</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="108"/>
        <source>die showing four</source>
        <translation>kostka z czterema oczkami</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="109"/>
        <source>die showing five</source>
        <translation>kostka z pięcioma oczkami</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="110"/>
        <source>die showing six</source>
        <translation>kostka z sześcioma oczkami</translation>
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
        <translation>wąsy</translation>
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
        <translation>flaga Wielkiej Brytanii</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="116"/>
        <source>flag of the United States</source>
        <translation>flaga Stanów Zjednoczonych</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="117"/>
        <source>flag of South Africa</source>
        <translation>flaga Republiki Południowej Afryki</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="118"/>
        <source>flag of Germany</source>
        <translation>flaga Niemiec</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="119"/>
        <source>flag of Australia</source>
        <translation>flaga Australii</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="120"/>
        <source>flag of France</source>
        <translation>flaga Francji</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="122"/>
        <source>dots</source>
        <translation>kropki</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="122"/>
        <source>stripes</source>
        <translation>paski</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="123"/>
        <source>tiles</source>
        <translation>kafelki</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="123"/>
        <source>triangles</source>
        <translation>trójkąty</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="124"/>
        <source>link</source>
        <translation>łańcuch</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="126"/>
        <source>polygon</source>
        <translation>wielokąt</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="126"/>
        <source>triangle</source>
        <translation>trójkąt</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="127"/>
        <source>star</source>
        <translation>gwiazda</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="127"/>
        <source>square</source>
        <translation>kwadrat</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="128"/>
        <source>rectangle</source>
        <translation>prostokąt</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="128"/>
        <source>doughnut</source>
        <translation>pączek z dziurką</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="130"/>
        <source>ambulance</source>
        <translation>karetka</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="130"/>
        <source>fire engine</source>
        <translation>wóz strażacki</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="131"/>
        <source>police car</source>
        <translation>radiowóz</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="131"/>
        <source>boat</source>
        <translation>łódka</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="133"/>
        <source>number one</source>
        <translation>cyfra jeden</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="133"/>
        <source>number two</source>
        <translation>cyfra dwa</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="134"/>
        <source>number three</source>
        <translation>cyfra trzy</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="134"/>
        <source>number four</source>
        <translation>cyfra cztery</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="135"/>
        <source>number five</source>
        <translation>cyfra pięć</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="135"/>
        <source>number six</source>
        <translation>cyfra sześć</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="137"/>
        <source>letter A</source>
        <translation>litera A</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="137"/>
        <source>letter B</source>
        <translation>litera B</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="138"/>
        <source>letter C</source>
        <translation>litera C</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="138"/>
        <source>letter D</source>
        <translation>litera D</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="139"/>
        <source>letter E</source>
        <translation>litera E</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="139"/>
        <source>letter F</source>
        <translation>litera F</translation>
    </message>
    <message>
        <source>happy yellow face with a curl</source>
        <translation>wesoła żółta buzia z lokiem</translation>
    </message>
    <message>
        <source>smiling green frog</source>
        <translation>uśmiechnięta zielona żabka</translation>
    </message>
    <message>
        <source>face with a big moustache and a hat</source>
        <translation>twarz z dużymi wąsami i kapeluszem</translation>
    </message>
    <message>
        <source>grumpy purple monster with spiky hair</source>
        <translation>marudny fioletowy potworek z nastroszonymi włosami</translation>
    </message>
    <message>
        <source>fluffy orange cat</source>
        <translation>puszysty rudy kotek</translation>
    </message>
    <message>
        <source>Pictures: polyhedra</source>
        <translation>Obrazki: wielościany</translation>
    </message>
    <message>
        <source>Pictures: cards</source>
        <translation>Obrazki: karty</translation>
    </message>
    <message>
        <source>Pictures: dice</source>
        <translation>Obrazki: kostki</translation>
    </message>
    <message>
        <source>Pictures: faces</source>
        <translation>Obrazki: buzie</translation>
    </message>
    <message>
        <source>Pictures: flags</source>
        <translation>Obrazki: flagi</translation>
    </message>
    <message>
        <source>Pictures: patterns</source>
        <translation>Obrazki: wzory</translation>
    </message>
    <message>
        <source>Pictures: shapes</source>
        <translation>Obrazki: kształty</translation>
    </message>
    <message>
        <source>Pictures: vehicles</source>
        <translation>Obrazki: pojazdy</translation>
    </message>
    <message>
        <source>Pictures: numbers</source>
        <translation>Obrazki: cyfry</translation>
    </message>
    <message>
        <source>Pictures: letters</source>
        <translation>Obrazki: litery</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <location filename="../tables/texts.h" line="12"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Przeciągnij obrazki do kratek. W każdym wierszu, każdej kolumnie, każdej przekątnej i każdym kwadracie wszystkie obrazki są różne.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="17"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Przeciągnij obrazki do kratek. W każdym wierszu, każdej kolumnie i każdej przekątnej wszystkie obrazki są różne.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="22"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Przeciągnij obrazki do kratek. W każdym wierszu, każdej kolumnie i każdym z sześciu kolorowych prostokątów wszystkie obrazki są różne.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="56"/>
        <source>4x4 Board</source>
        <translation>Plansza 4x4</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="57"/>
        <source>5x5 Board</source>
        <translation>Plansza 5x5</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="58"/>
        <source>6x6 Board</source>
        <translation>Plansza 6x6</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="59"/>
        <source>The Rules of Pimbalo</source>
        <translation>Zasady gry Pimbalo</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="60"/>
        <source>Puzzle</source>
        <translation>Zagadka</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="61"/>
        <source>Solution</source>
        <translation>Rozwiązanie</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="62"/>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>Najlepsze czasy zapisują się tylko wtedy, gdy Pimbalo jest zainstalowane na dysku. Aby je zainstalować, uruchom instalator z płyty CD-ROM.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="66"/>
        <source>Exit</source>
        <translation>Wróć</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <location filename="../tables/texts.h" line="36"/>
        <source>OK</source>
        <translation>Graj</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="38"/>
        <source>Cancel</source>
        <translation>Wróć</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="39"/>
        <source>Exit</source>
        <translation>Koniec</translation>
    </message>
</context>
</TS>
