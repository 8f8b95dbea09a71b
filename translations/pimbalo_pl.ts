<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <source>Exit</source>
        <translation>Wyjdź</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Od nowa</translation>
    </message>
    <message>
        <source>New Puzzle</source>
        <translation>Nowa zagadka</translation>
    </message>
    <message>
        <source>Fastest Times</source>
        <translation>Rekordy</translation>
    </message>
    <message>
        <source>Show solution</source>
        <translation>Pokaż rozwiązanie</translation>
    </message>
    <message>
        <source>Change Pictures</source>
        <translation>Inne obrazki</translation>
    </message>
    <message>
        <source>Show Rules</source>
        <translation>Pokaż zasady</translation>
    </message>
    <message>
        <source>Select a picture</source>
        <translation>Wybierz obrazek</translation>
    </message>
    <message>
        <source> Time Taken</source>
        <translation>Twój czas</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekund</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Correct Well Done!!!</source>
        <translation>Cudownie, brawo!!!</translation>
    </message>
    <message>
        <source>Correct, Well Done!!!</source>
        <translation>Cudownie, brawo!!!</translation>
    </message>
    <message>
        <source>The Quarters are Wrong!</source>
        <translation>Popraw kwadraty!</translation>
    </message>
    <message>
        <source>The Diagonals are Wrong!</source>
        <translation>Popraw przekątne!</translation>
    </message>
    <message>
        <source>Wrong, Try Again</source>
        <translation>Źle, spróbuj jeszcze raz</translation>
    </message>
    <message>
        <source>Pimbalo %1x%1 board</source>
        <translation>Plansza Pimbalo %1x%1</translation>
    </message>
    <message>
        <source>Board command</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <source>Seconds taken</source>
        <translation>Czas w sekundach</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>Row %1, column %2: </source>
        <translation>Wiersz %1, kolumna %2: </translation>
    </message>
    <message>
        <source>empty</source>
        <translation>puste</translation>
    </message>
    <message>
        <source>Given, cannot be moved</source>
        <translation>Stały, nie da się przesunąć</translation>
    </message>
    <message>
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
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 Twórcy Pimbalo. Wszelkie prawa zastrzeżone.</translation>
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
        <translation>Pimbalo nie może działać dalej: nie udało się wczytać pliku „%1” (%2).</translation>
    </message>
    <message>
        <source>file not found</source>
        <translation>nie znaleziono pliku</translation>
    </message>
    <message>
        <source>not a cursor file</source>
        <translation>to nie jest plik kursora</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4: najlepsze czasy</translation>
    </message>
    <message>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5: najlepsze czasy</translation>
    </message>
    <message>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6: najlepsze czasy</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Poziom 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Poziom 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Poziom 3</translation>
    </message>
    <message>
        <source>Solo Play</source>
        <translation>Jeden gracz</translation>
    </message>
    <message>
        <source>Type your name in the box</source>
        <translation>Wpisz swoje imię w okienku</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Board Size</source>
        <translation>Plansza</translation>
    </message>
    <message>
        <source>The Rules</source>
        <translation>Zasady</translation>
    </message>
    <message>
        <source>Timers On</source>
        <translation>Zegar</translation>
    </message>
    <message>
        <source>Play Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Hide Desktop</source>
        <translation>Ukryj pulpit</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Poziom</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Wróć</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>great stellated dodecahedron</source>
        <translation>wielki dwunastościan gwiaździsty</translation>
    </message>
    <message>
        <source>great icosahedron</source>
        <translation>wielki dwudziestościan</translation>
    </message>
    <message>
        <source>small stellated dodecahedron</source>
        <translation>mały dwunastościan gwiaździsty</translation>
    </message>
    <message>
        <source>ten tetrahedra</source>
        <translation>dziesięć czworościanów</translation>
    </message>
    <message>
        <source>five tetrahedra</source>
        <translation>pięć czworościanów</translation>
    </message>
    <message>
        <source>great dodecahedron</source>
        <translation>wielki dwunastościan</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>trefl</translation>
    </message>
    <message>
        <source>spades</source>
        <translation>pik</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>karo</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>kier</translation>
    </message>
    <message>
        <source>die showing one</source>
        <translation>kostka z jednym oczkiem</translation>
    </message>
    <message>
        <source>die showing two</source>
        <translation>kostka z dwoma oczkami</translation>
    </message>
    <message>
        <source>die showing three</source>
        <translation>kostka z trzema oczkami</translation>
    </message>
    <message>
        <source>die showing four</source>
        <translation>kostka z czterema oczkami</translation>
    </message>
    <message>
        <source>die showing five</source>
        <translation>kostka z pięcioma oczkami</translation>
    </message>
    <message>
        <source>die showing six</source>
        <translation>kostka z sześcioma oczkami</translation>
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
        <translation>wąsy</translation>
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
        <translation>flaga Wielkiej Brytanii</translation>
    </message>
    <message>
        <source>flag of the United States</source>
        <translation>flaga Stanów Zjednoczonych</translation>
    </message>
    <message>
        <source>flag of South Africa</source>
        <translation>flaga Republiki Południowej Afryki</translation>
    </message>
    <message>
        <source>flag of Germany</source>
        <translation>flaga Niemiec</translation>
    </message>
    <message>
        <source>flag of Australia</source>
        <translation>flaga Australii</translation>
    </message>
    <message>
        <source>flag of France</source>
        <translation>flaga Francji</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>kropki</translation>
    </message>
    <message>
        <source>stripes</source>
        <translation>paski</translation>
    </message>
    <message>
        <source>tiles</source>
        <translation>kafelki</translation>
    </message>
    <message>
        <source>triangles</source>
        <translation>trójkąty</translation>
    </message>
    <message>
        <source>link</source>
        <translation>łańcuch</translation>
    </message>
    <message>
        <source>polygon</source>
        <translation>wielokąt</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>trójkąt</translation>
    </message>
    <message>
        <source>star</source>
        <translation>gwiazda</translation>
    </message>
    <message>
        <source>square</source>
        <translation>kwadrat</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>prostokąt</translation>
    </message>
    <message>
        <source>doughnut</source>
        <translation>pączek z dziurką</translation>
    </message>
    <message>
        <source>ambulance</source>
        <translation>karetka</translation>
    </message>
    <message>
        <source>fire engine</source>
        <translation>wóz strażacki</translation>
    </message>
    <message>
        <source>police car</source>
        <translation>radiowóz</translation>
    </message>
    <message>
        <source>boat</source>
        <translation>łódka</translation>
    </message>
    <message>
        <source>number one</source>
        <translation>cyfra jeden</translation>
    </message>
    <message>
        <source>number two</source>
        <translation>cyfra dwa</translation>
    </message>
    <message>
        <source>number three</source>
        <translation>cyfra trzy</translation>
    </message>
    <message>
        <source>number four</source>
        <translation>cyfra cztery</translation>
    </message>
    <message>
        <source>number five</source>
        <translation>cyfra pięć</translation>
    </message>
    <message>
        <source>number six</source>
        <translation>cyfra sześć</translation>
    </message>
    <message>
        <source>letter A</source>
        <translation>litera A</translation>
    </message>
    <message>
        <source>letter B</source>
        <translation>litera B</translation>
    </message>
    <message>
        <source>letter C</source>
        <translation>litera C</translation>
    </message>
    <message>
        <source>letter D</source>
        <translation>litera D</translation>
    </message>
    <message>
        <source>letter E</source>
        <translation>litera E</translation>
    </message>
    <message>
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
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Przeciągnij obrazki do kratek. W każdym wierszu, każdej kolumnie, każdej przekątnej i każdym kwadracie wszystkie obrazki są różne.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Przeciągnij obrazki do kratek. W każdym wierszu, każdej kolumnie i każdej przekątnej wszystkie obrazki są różne.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Przeciągnij obrazki do kratek. W każdym wierszu, każdej kolumnie i każdym z sześciu kolorowych prostokątów wszystkie obrazki są różne.</translation>
    </message>
    <message>
        <source>4x4 Board</source>
        <translation>Plansza 4x4</translation>
    </message>
    <message>
        <source>5x5 Board</source>
        <translation>Plansza 5x5</translation>
    </message>
    <message>
        <source>6x6 Board</source>
        <translation>Plansza 6x6</translation>
    </message>
    <message>
        <source>The Rules of Pimbalo</source>
        <translation>Zasady gry Pimbalo</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Zadanie</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>Ułożone</translation>
    </message>
    <message>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>Najlepsze czasy zapisują się tylko wtedy, gdy Pimbalo jest zainstalowane na dysku. Aby je zainstalować, uruchom instalator z płyty CD-ROM.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Wróć</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>OK</source>
        <translation>Graj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Wróć</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Koniec</translation>
    </message>
</context>
</TS>
