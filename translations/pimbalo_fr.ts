<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <location filename="../tables/texts.h" line="72"/>
        <source>Exit</source>
        <translation>Fin</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="72"/>
        <source>Start again</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="73"/>
        <source>New Puzzle</source>
        <translation>Nouveau jeu</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="73"/>
        <source>Fastest Times</source>
        <translation>Les plus rapides</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="74"/>
        <source>Show solution</source>
        <translation>Voir la solution</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="74"/>
        <source>Change Pictures</source>
        <translation>Autres images</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="76"/>
        <source>Show Rules</source>
        <translation>Voir les règles</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="77"/>
        <source>Select a picture</source>
        <translation>Choisis une image</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="78"/>
        <source> Time Taken</source>
        <translation>Ton temps</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="79"/>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="80"/>
        <location filename="../tables/texts.h" line="97"/>
        <source>Level</source>
        <translation>Étape</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="82"/>
        <source>Correct Well Done!!!</source>
        <translation>C’est gagné, bravo !!!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="86"/>
        <source>Correct, Well Done!!!</source>
        <translation>C’est gagné, bravo !!!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="88"/>
        <source>Correct in </source>
        <translation>C’est fini : </translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="89"/>
        <source> seconds!!!</source>
        <translation> secondes !</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="90"/>
        <source>The Quarters are Wrong!</source>
        <translation>Les carrés sont faux !</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="91"/>
        <source>The Diagonals are Wrong!</source>
        <translation>Diagonales fausses !</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="92"/>
        <source>Wrong, Try Again</source>
        <translation>Raté, essaie encore</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="95"/>
        <source>Pimbalo %1x%1 board</source>
        <translation>Grille Pimbalo %1x%1</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="96"/>
        <source>Board command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="98"/>
        <source>Seconds taken</source>
        <translation>Secondes passées</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="99"/>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="101"/>
        <source>Row %1, column %2: </source>
        <translation>Ligne %1, colonne %2 : </translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="102"/>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="103"/>
        <source>Given, cannot be moved</source>
        <translation>Déjà posée, ne bouge pas</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="104"/>
        <source>Grid cell</source>
        <translation>Case</translation>
    </message>
    <message>
        <source>Correct in %1 seconds!!!</source>
        <translation>C’est fini : %1 secondes !</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 sur %3</translation>
    </message>
    <message>
        <source>In the tray</source>
        <translation>Dans la réserve</translation>
    </message>
    <message>
        <source>On row %1, column %2</source>
        <translation>Sur la ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>Not on a cell</source>
        <translation>Sur aucune case</translation>
    </message>
    <message>
        <source>Tray place %1: </source>
        <translation>Place %1 de la réserve : </translation>
    </message>
    <message>
        <source>Starts a new puzzle with these pictures</source>
        <translation>Commence un nouveau jeu avec ces images</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <location filename="../tables/texts.h" line="31"/>
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 Les développeurs de Pimbalo. Tous droits réservés.</translation>
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
        <translation>Pimbalo ne peut pas continuer : le fichier « %1 » n’a pas pu être chargé (%2).</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="130"/>
        <source>file not found</source>
        <translation>fichier introuvable</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="131"/>
        <source>not a cursor file</source>
        <translation>pas un fichier de curseur</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <location filename="../tables/texts.h" line="109"/>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4 : les meilleurs temps</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="110"/>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5 : les meilleurs temps</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="111"/>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6 : les meilleurs temps</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="112"/>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="113"/>
        <source>Level 1</source>
        <translation>Étape 1</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="114"/>
        <source>Level 2</source>
        <translation>Étape 2</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="115"/>
        <source>Level 3</source>
        <translation>Étape 3</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="117"/>
        <source>Solo Play</source>
        <translation>Joueur seul</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="120"/>
        <source>Type your name in the box</source>
        <translation>Écris ton nom dans la case</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <location filename="../tables/texts.h" line="43"/>
        <source>Board Size</source>
        <translation>La grille</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="45"/>
        <source>The Rules</source>
        <translation>Les règles</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="46"/>
        <source>Timers On</source>
        <translation>Chrono</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="47"/>
        <source>Play Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="48"/>
        <source>Hide Desktop</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="49"/>
        <source>Level</source>
        <translation>Étape</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="51"/>
        <source>Exit</source>
        <translation>Fin</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <location filename="../tables/pictures.cpp" line="96"/>
        <source>great stellated dodecahedron</source>
        <translation>grand dodécaèdre étoilé</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="97"/>
        <source>great icosahedron</source>
        <translation>grand icosaèdre</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="98"/>
        <source>small stellated dodecahedron</source>
        <translation>petit dodécaèdre étoilé</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="99"/>
        <source>ten tetrahedra</source>
        <translation>dix tétraèdres</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="100"/>
        <source>five tetrahedra</source>
        <translation>cinq tétraèdres</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="101"/>
        <source>great dodecahedron</source>
        <translation>grand dodécaèdre</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="103"/>
        <source>clubs</source>
        <translation>trèfle</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="103"/>
        <source>spades</source>
        <translation>pique</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="104"/>
        <source>diamonds</source>
        <translation>carreau</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="104"/>
        <source>hearts</source>
        <translation>cœur</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="105"/>
        <source>die showing one</source>
        <translation>dé avec un point</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="106"/>
        <source>die showing two</source>
        <translation>dé avec deux points</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="107"/>
        <source>die showing three</source>
        <translation>dé avec trois points</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="108"/>
        <source>die showing four</source>
        <translation>dé avec quatre points</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="109"/>
        <source>die showing five</source>
        <translation>dé avec cinq points</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="110"/>
        <source>die showing six</source>
        <translation>dé avec six points</translation>
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
        <translation>moustache</translation>
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
        <translation>drapeau du Royaume-Uni</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="116"/>
        <source>flag of the United States</source>
        <translation>drapeau des États-Unis</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="117"/>
        <source>flag of South Africa</source>
        <translation>drapeau de l’Afrique du Sud</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="118"/>
        <source>flag of Germany</source>
        <translation>drapeau de l’Allemagne</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="119"/>
        <source>flag of Australia</source>
        <translation>drapeau de l’Australie</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="120"/>
        <source>flag of France</source>
        <translation>drapeau de la France</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="122"/>
        <source>dots</source>
        <translation>points</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="122"/>
        <source>stripes</source>
        <translation>rayures</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="123"/>
        <source>tiles</source>
        <translation>carreaux</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="123"/>
        <source>triangles</source>
        <translation>triangles</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="124"/>
        <source>link</source>
        <translation>chaîne</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="126"/>
        <source>polygon</source>
        <translation>polygone</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="126"/>
        <source>triangle</source>
        <translation>triangle</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="127"/>
        <source>star</source>
        <translation>étoile</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="127"/>
        <source>square</source>
        <translation>carré</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="128"/>
        <source>rectangle</source>
        <translation>rectangle</translation>
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
        <translation>camion de pompiers</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="131"/>
        <source>police car</source>
        <translation>voiture de police</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="131"/>
        <source>boat</source>
        <translation>bateau</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="133"/>
        <source>number one</source>
        <translation>chiffre un</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="133"/>
        <source>number two</source>
        <translation>chiffre deux</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="134"/>
        <source>number three</source>
        <translation>chiffre trois</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="134"/>
        <source>number four</source>
        <translation>chiffre quatre</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="135"/>
        <source>number five</source>
        <translation>chiffre cinq</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="135"/>
        <source>number six</source>
        <translation>chiffre six</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="137"/>
        <source>letter A</source>
        <translation>lettre A</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="137"/>
        <source>letter B</source>
        <translation>lettre B</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="138"/>
        <source>letter C</source>
        <translation>lettre C</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="138"/>
        <source>letter D</source>
        <translation>lettre D</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="139"/>
        <source>letter E</source>
        <translation>lettre E</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="139"/>
        <source>letter F</source>
        <translation>lettre F</translation>
    </message>
    <message>
        <source>happy yellow face with a curl</source>
        <translation>visage jaune joyeux avec une boucle</translation>
    </message>
    <message>
        <source>smiling green frog</source>
        <translation>grenouille verte qui sourit</translation>
    </message>
    <message>
        <source>face with a big moustache and a hat</source>
        <translation>visage avec une grosse moustache et un chapeau</translation>
    </message>
    <message>
        <source>grumpy purple monster with spiky hair</source>
        <translation>monstre violet grognon aux cheveux en pointes</translation>
    </message>
    <message>
        <source>fluffy orange cat</source>
        <translation>chat orange tout doux</translation>
    </message>
    <message>
        <source>Pictures: polyhedra</source>
        <translation>Images : polyèdres</translation>
    </message>
    <message>
        <source>Pictures: cards</source>
        <translation>Images : cartes</translation>
    </message>
    <message>
        <source>Pictures: dice</source>
        <translation>Images : dés</translation>
    </message>
    <message>
        <source>Pictures: faces</source>
        <translation>Images : visages</translation>
    </message>
    <message>
        <source>Pictures: flags</source>
        <translation>Images : drapeaux</translation>
    </message>
    <message>
        <source>Pictures: patterns</source>
        <translation>Images : motifs</translation>
    </message>
    <message>
        <source>Pictures: shapes</source>
        <translation>Images : formes</translation>
    </message>
    <message>
        <source>Pictures: vehicles</source>
        <translation>Images : véhicules</translation>
    </message>
    <message>
        <source>Pictures: numbers</source>
        <translation>Images : chiffres</translation>
    </message>
    <message>
        <source>Pictures: letters</source>
        <translation>Images : lettres</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <location filename="../tables/texts.h" line="12"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Glisse les images dans la grille. Dans chaque ligne, chaque colonne, chaque diagonale et chaque carré, toutes les images sont différentes.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="17"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Glisse les images dans la grille. Dans chaque ligne, chaque colonne et chaque diagonale, toutes les images sont différentes.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="22"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Glisse les images dans la grille. Dans chaque ligne, chaque colonne et chacun des six rectangles de couleur, toutes les images sont différentes.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="56"/>
        <source>4x4 Board</source>
        <translation>Grille 4x4</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="57"/>
        <source>5x5 Board</source>
        <translation>Grille 5x5</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="58"/>
        <source>6x6 Board</source>
        <translation>Grille 6x6</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="59"/>
        <source>The Rules of Pimbalo</source>
        <translation>Règles de Pimbalo</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="60"/>
        <source>Puzzle</source>
        <translation>Le jeu</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="61"/>
        <source>Solution</source>
        <translation>La solution</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="62"/>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>Les meilleurs temps ne sont gardés que si Pimbalo est installé sur le disque dur. Pour l’installer, lance le programme d’installation du CD-ROM.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="66"/>
        <source>Exit</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <location filename="../tables/texts.h" line="36"/>
        <source>OK</source>
        <translation>Jouer</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="38"/>
        <source>Cancel</source>
        <translation>Retour</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="39"/>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
</context>
</TS>
