<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <source>Exit</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>New Puzzle</source>
        <translation>Nouveau jeu</translation>
    </message>
    <message>
        <source>Fastest Times</source>
        <translation>Les plus rapides</translation>
    </message>
    <message>
        <source>Show solution</source>
        <translation>Voir la solution</translation>
    </message>
    <message>
        <source>Change Pictures</source>
        <translation>Autres images</translation>
    </message>
    <message>
        <source>Show Rules</source>
        <translation>Voir les règles</translation>
    </message>
    <message>
        <source>Select a picture</source>
        <translation>Choisis une image</translation>
    </message>
    <message>
        <source> Time Taken</source>
        <translation>Ton temps</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Correct Well Done!!!</source>
        <translation>C’est gagné, bravo&#xa0;!!!</translation>
    </message>
    <message>
        <source>Correct, Well Done!!!</source>
        <translation>C’est gagné, bravo&#xa0;!!!</translation>
    </message>
    <message>
        <source>The Quarters are Wrong!</source>
        <translation>Les carrés sont faux&#xa0;!</translation>
    </message>
    <message>
        <source>The Diagonals are Wrong!</source>
        <translation>Diagonales fausses&#xa0;!</translation>
    </message>
    <message>
        <source>Wrong, Try Again</source>
        <translation>Raté, essaie encore</translation>
    </message>
    <message>
        <source>Pimbalo %1x%1 board</source>
        <translation>Grille Pimbalo %1x%1</translation>
    </message>
    <message>
        <source>Board command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Seconds taken</source>
        <translation>Secondes passées</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Row %1, column %2: </source>
        <translation>Ligne %1, colonne %2&#xa0;: </translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>Given, cannot be moved</source>
        <translation>Déjà posée, ne bouge pas</translation>
    </message>
    <message>
        <source>Grid cell</source>
        <translation>Case</translation>
    </message>
    <message>
        <source>Correct in %1 seconds!!!</source>
        <translation>C’est fini&#xa0;: %1 secondes&#xa0;!</translation>
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
        <translation>Place %1 de la réserve&#xa0;: </translation>
    </message>
    <message>
        <source>Starts a new puzzle with these pictures</source>
        <translation>Commence un nouveau jeu avec ces images</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 Les développeurs de Pimbalo. Tous droits réservés.</translation>
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
        <translation>Pimbalo ne peut pas continuer&#xa0;: le fichier «&#xa0;%1&#xa0;» n’a pas pu être chargé (%2).</translation>
    </message>
    <message>
        <source>file not found</source>
        <translation>fichier introuvable</translation>
    </message>
    <message>
        <source>not a cursor file</source>
        <translation>pas un fichier de curseur</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4&#xa0;: les meilleurs temps</translation>
    </message>
    <message>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5&#xa0;: les meilleurs temps</translation>
    </message>
    <message>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6&#xa0;: les meilleurs temps</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Niveau 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Niveau 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Niveau 3</translation>
    </message>
    <message>
        <source>Solo Play</source>
        <translation>Joueur seul</translation>
    </message>
    <message>
        <source>Type your name in the box</source>
        <translation>Mets ton nom dans la case</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Board Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>The Rules</source>
        <translation>Les règles</translation>
    </message>
    <message>
        <source>Timers On</source>
        <translation>Chrono</translation>
    </message>
    <message>
        <source>Play Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Hide Desktop</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Fin</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>great stellated dodecahedron</source>
        <translation>grand dodécaèdre étoilé</translation>
    </message>
    <message>
        <source>great icosahedron</source>
        <translation>grand icosaèdre</translation>
    </message>
    <message>
        <source>small stellated dodecahedron</source>
        <translation>petit dodécaèdre étoilé</translation>
    </message>
    <message>
        <source>ten tetrahedra</source>
        <translation>dix tétraèdres</translation>
    </message>
    <message>
        <source>five tetrahedra</source>
        <translation>cinq tétraèdres</translation>
    </message>
    <message>
        <source>great dodecahedron</source>
        <translation>grand dodécaèdre</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>trèfle</translation>
    </message>
    <message>
        <source>spades</source>
        <translation>pique</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>carreau</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>cœur</translation>
    </message>
    <message>
        <source>die showing one</source>
        <translation>dé avec un point</translation>
    </message>
    <message>
        <source>die showing two</source>
        <translation>dé avec deux points</translation>
    </message>
    <message>
        <source>die showing three</source>
        <translation>dé avec trois points</translation>
    </message>
    <message>
        <source>die showing four</source>
        <translation>dé avec quatre points</translation>
    </message>
    <message>
        <source>die showing five</source>
        <translation>dé avec cinq points</translation>
    </message>
    <message>
        <source>die showing six</source>
        <translation>dé avec six points</translation>
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
        <translation>moustache</translation>
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
        <translation>drapeau du Royaume-Uni</translation>
    </message>
    <message>
        <source>flag of the United States</source>
        <translation>drapeau des États-Unis</translation>
    </message>
    <message>
        <source>flag of South Africa</source>
        <translation>drapeau de l’Afrique du Sud</translation>
    </message>
    <message>
        <source>flag of Germany</source>
        <translation>drapeau de l’Allemagne</translation>
    </message>
    <message>
        <source>flag of Australia</source>
        <translation>drapeau de l’Australie</translation>
    </message>
    <message>
        <source>flag of France</source>
        <translation>drapeau de la France</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>points</translation>
    </message>
    <message>
        <source>stripes</source>
        <translation>rayures</translation>
    </message>
    <message>
        <source>tiles</source>
        <translation>carreaux</translation>
    </message>
    <message>
        <source>triangles</source>
        <translation>triangles</translation>
    </message>
    <message>
        <source>link</source>
        <translation>chaîne</translation>
    </message>
    <message>
        <source>polygon</source>
        <translation>polygone</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>triangle</translation>
    </message>
    <message>
        <source>star</source>
        <translation>étoile</translation>
    </message>
    <message>
        <source>square</source>
        <translation>carré</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>rectangle</translation>
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
        <translation>camion de pompiers</translation>
    </message>
    <message>
        <source>police car</source>
        <translation>voiture de police</translation>
    </message>
    <message>
        <source>boat</source>
        <translation>bateau</translation>
    </message>
    <message>
        <source>number one</source>
        <translation>chiffre un</translation>
    </message>
    <message>
        <source>number two</source>
        <translation>chiffre deux</translation>
    </message>
    <message>
        <source>number three</source>
        <translation>chiffre trois</translation>
    </message>
    <message>
        <source>number four</source>
        <translation>chiffre quatre</translation>
    </message>
    <message>
        <source>number five</source>
        <translation>chiffre cinq</translation>
    </message>
    <message>
        <source>number six</source>
        <translation>chiffre six</translation>
    </message>
    <message>
        <source>letter A</source>
        <translation>lettre A</translation>
    </message>
    <message>
        <source>letter B</source>
        <translation>lettre B</translation>
    </message>
    <message>
        <source>letter C</source>
        <translation>lettre C</translation>
    </message>
    <message>
        <source>letter D</source>
        <translation>lettre D</translation>
    </message>
    <message>
        <source>letter E</source>
        <translation>lettre E</translation>
    </message>
    <message>
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
        <translation>Images&#xa0;: polyèdres</translation>
    </message>
    <message>
        <source>Pictures: cards</source>
        <translation>Images&#xa0;: cartes</translation>
    </message>
    <message>
        <source>Pictures: dice</source>
        <translation>Images&#xa0;: dés</translation>
    </message>
    <message>
        <source>Pictures: faces</source>
        <translation>Images&#xa0;: visages</translation>
    </message>
    <message>
        <source>Pictures: flags</source>
        <translation>Images&#xa0;: drapeaux</translation>
    </message>
    <message>
        <source>Pictures: patterns</source>
        <translation>Images&#xa0;: motifs</translation>
    </message>
    <message>
        <source>Pictures: shapes</source>
        <translation>Images&#xa0;: formes</translation>
    </message>
    <message>
        <source>Pictures: vehicles</source>
        <translation>Images&#xa0;: véhicules</translation>
    </message>
    <message>
        <source>Pictures: numbers</source>
        <translation>Images&#xa0;: chiffres</translation>
    </message>
    <message>
        <source>Pictures: letters</source>
        <translation>Images&#xa0;: lettres</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Glisse les images dans la grille. Dans chaque ligne, chaque colonne, chaque diagonale et chaque carré, toutes les images sont différentes.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Glisse les images dans la grille. Dans chaque ligne, chaque colonne et chaque diagonale, toutes les images sont différentes.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Glisse les images dans la grille. Dans chaque ligne, chaque colonne et chacun des six rectangles de couleur, toutes les images sont différentes.</translation>
    </message>
    <message>
        <source>4x4 Board</source>
        <translation>Grille 4x4</translation>
    </message>
    <message>
        <source>5x5 Board</source>
        <translation>Grille 5x5</translation>
    </message>
    <message>
        <source>6x6 Board</source>
        <translation>Grille 6x6</translation>
    </message>
    <message>
        <source>The Rules of Pimbalo</source>
        <translation>Règles de Pimbalo</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Le défi</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>La solution</translation>
    </message>
    <message>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>Les meilleurs temps ne sont gardés que si Pimbalo est installé sur le disque dur. Pour l’installer, lance le programme d’installation du CD-ROM.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>OK</source>
        <translation>Jouer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
</context>
</TS>
