<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <location filename="../tables/texts.h" line="72"/>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="72"/>
        <source>Start again</source>
        <translation>De novo</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="73"/>
        <source>New Puzzle</source>
        <translation>Novo desafio</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="73"/>
        <source>Fastest Times</source>
        <translation>Os mais rápidos</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="74"/>
        <source>Show solution</source>
        <translation>Ver a solução</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="74"/>
        <source>Change Pictures</source>
        <translation>Outras figuras</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="76"/>
        <source>Show Rules</source>
        <translation>Ver as regras</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="77"/>
        <source>Select a picture</source>
        <translation>Escolha uma figura</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="78"/>
        <source> Time Taken</source>
        <translation>Seu tempo</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="79"/>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="80"/>
        <location filename="../tables/texts.h" line="97"/>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="82"/>
        <source>Correct Well Done!!!</source>
        <translation>Certo, muito bem!!!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="86"/>
        <source>Correct, Well Done!!!</source>
        <translation>Certo, muito bem!!!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="88"/>
        <source>Correct in </source>
        <translation>Certo em </translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="89"/>
        <source> seconds!!!</source>
        <translation> segundos!!!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="90"/>
        <source>The Quarters are Wrong!</source>
        <translation>Quadrados errados!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="91"/>
        <source>The Diagonals are Wrong!</source>
        <translation>Diagonais erradas!</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="92"/>
        <source>Wrong, Try Again</source>
        <translation>Errado, tente de novo</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="95"/>
        <source>Pimbalo %1x%1 board</source>
        <translation>Tabuleiro do Pimbalo %1x%1</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="96"/>
        <source>Board command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="98"/>
        <source>Seconds taken</source>
        <translation>Segundos gastos</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="99"/>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="101"/>
        <source>Row %1, column %2: </source>
        <translation>Linha %1, coluna %2: </translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="102"/>
        <source>empty</source>
        <translation>vazia</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="103"/>
        <source>Given, cannot be moved</source>
        <translation>Já colocada, não se move</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="104"/>
        <source>Grid cell</source>
        <translation>Casa</translation>
    </message>
    <message>
        <source>Correct in %1 seconds!!!</source>
        <translation>Certo em %1 segundos!!!</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 de %3</translation>
    </message>
    <message>
        <source>In the tray</source>
        <translation>Na bandeja</translation>
    </message>
    <message>
        <source>On row %1, column %2</source>
        <translation>Na linha %1, coluna %2</translation>
    </message>
    <message>
        <source>Not on a cell</source>
        <translation>Fora das casas</translation>
    </message>
    <message>
        <source>Tray place %1: </source>
        <translation>Casa %1 da bandeja: </translation>
    </message>
    <message>
        <source>Starts a new puzzle with these pictures</source>
        <translation>Começa um novo desafio com estas figuras</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <location filename="../tables/texts.h" line="31"/>
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 A equipe do Pimbalo. Todos os direitos reservados.</translation>
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
        <translation>O Pimbalo não pode continuar: não foi possível carregar o arquivo “%1” (%2).</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="130"/>
        <source>file not found</source>
        <translation>arquivo não encontrado</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="131"/>
        <source>not a cursor file</source>
        <translation>não é um arquivo de cursor</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <location filename="../tables/texts.h" line="109"/>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4: os melhores tempos</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="110"/>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5: os melhores tempos</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="111"/>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6: os melhores tempos</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="112"/>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="113"/>
        <source>Level 1</source>
        <translation>Nível 1</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="114"/>
        <source>Level 2</source>
        <translation>Nível 2</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="115"/>
        <source>Level 3</source>
        <translation>Nível 3</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="117"/>
        <source>Solo Play</source>
        <translation>Um jogador</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="120"/>
        <source>Type your name in the box</source>
        <translation>Escreva seu nome na caixa</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <location filename="../tables/texts.h" line="43"/>
        <source>Board Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="45"/>
        <source>The Rules</source>
        <translation>As regras</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="46"/>
        <source>Timers On</source>
        <translation>Relógio</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="47"/>
        <source>Play Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="48"/>
        <source>Hide Desktop</source>
        <translation>Só o jogo</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="49"/>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="51"/>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <location filename="../tables/pictures.cpp" line="96"/>
        <source>great stellated dodecahedron</source>
        <translation>grande dodecaedro estrelado</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="97"/>
        <source>great icosahedron</source>
        <translation>grande icosaedro</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="98"/>
        <source>small stellated dodecahedron</source>
        <translation>pequeno dodecaedro estrelado</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="99"/>
        <source>ten tetrahedra</source>
        <translation>dez tetraedros</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="100"/>
        <source>five tetrahedra</source>
        <translation>cinco tetraedros</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="101"/>
        <source>great dodecahedron</source>
        <translation>grande dodecaedro</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="103"/>
        <source>clubs</source>
        <translation>paus</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="103"/>
        <source>spades</source>
        <translation>espadas</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="104"/>
        <source>diamonds</source>
        <translation>ouros</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="104"/>
        <source>hearts</source>
        <translation>copas</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="105"/>
        <source>die showing one</source>
        <translation>dado com um ponto</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="106"/>
        <source>die showing two</source>
        <translation>dado com dois pontos</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="107"/>
        <source>die showing three</source>
        <translation>dado com três pontos</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="108"/>
        <source>die showing four</source>
        <translation>dado com quatro pontos</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="109"/>
        <source>die showing five</source>
        <translation>dado com cinco pontos</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="110"/>
        <source>die showing six</source>
        <translation>dado com seis pontos</translation>
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
        <translation>bigode</translation>
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
        <translation>bandeira do Reino Unido</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="116"/>
        <source>flag of the United States</source>
        <translation>bandeira dos Estados Unidos</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="117"/>
        <source>flag of South Africa</source>
        <translation>bandeira da África do Sul</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="118"/>
        <source>flag of Germany</source>
        <translation>bandeira da Alemanha</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="119"/>
        <source>flag of Australia</source>
        <translation>bandeira da Austrália</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="120"/>
        <source>flag of France</source>
        <translation>bandeira da França</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="122"/>
        <source>dots</source>
        <translation>bolinhas</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="122"/>
        <source>stripes</source>
        <translation>listras</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="123"/>
        <source>tiles</source>
        <translation>azulejos</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="123"/>
        <source>triangles</source>
        <translation>triângulos</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="124"/>
        <source>link</source>
        <translation>corrente</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="126"/>
        <source>polygon</source>
        <translation>polígono</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="126"/>
        <source>triangle</source>
        <translation>triângulo</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="127"/>
        <source>star</source>
        <translation>estrela</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="127"/>
        <source>square</source>
        <translation>quadrado</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="128"/>
        <source>rectangle</source>
        <translation>retângulo</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="128"/>
        <source>doughnut</source>
        <translation>rosquinha</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="130"/>
        <source>ambulance</source>
        <translation>ambulância</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="130"/>
        <source>fire engine</source>
        <translation>caminhão de bombeiros</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="131"/>
        <source>police car</source>
        <translation>carro de polícia</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="131"/>
        <source>boat</source>
        <translation>barco</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="133"/>
        <source>number one</source>
        <translation>número um</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="133"/>
        <source>number two</source>
        <translation>número dois</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="134"/>
        <source>number three</source>
        <translation>número três</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="134"/>
        <source>number four</source>
        <translation>número quatro</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="135"/>
        <source>number five</source>
        <translation>número cinco</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="135"/>
        <source>number six</source>
        <translation>número seis</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="137"/>
        <source>letter A</source>
        <translation>letra A</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="137"/>
        <source>letter B</source>
        <translation>letra B</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="138"/>
        <source>letter C</source>
        <translation>letra C</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="138"/>
        <source>letter D</source>
        <translation>letra D</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="139"/>
        <source>letter E</source>
        <translation>letra E</translation>
    </message>
    <message>
        <location filename="../tables/pictures.cpp" line="139"/>
        <source>letter F</source>
        <translation>letra F</translation>
    </message>
    <message>
        <source>happy yellow face with a curl</source>
        <translation>rosto amarelo feliz com um cachinho</translation>
    </message>
    <message>
        <source>smiling green frog</source>
        <translation>sapo verde sorridente</translation>
    </message>
    <message>
        <source>face with a big moustache and a hat</source>
        <translation>rosto com um bigodão e um chapéu</translation>
    </message>
    <message>
        <source>grumpy purple monster with spiky hair</source>
        <translation>monstro roxo rabugento de cabelo espetado</translation>
    </message>
    <message>
        <source>fluffy orange cat</source>
        <translation>gato laranja fofinho</translation>
    </message>
    <message>
        <source>Pictures: polyhedra</source>
        <translation>Figuras: poliedros</translation>
    </message>
    <message>
        <source>Pictures: cards</source>
        <translation>Figuras: cartas</translation>
    </message>
    <message>
        <source>Pictures: dice</source>
        <translation>Figuras: dados</translation>
    </message>
    <message>
        <source>Pictures: faces</source>
        <translation>Figuras: rostos</translation>
    </message>
    <message>
        <source>Pictures: flags</source>
        <translation>Figuras: bandeiras</translation>
    </message>
    <message>
        <source>Pictures: patterns</source>
        <translation>Figuras: padrões</translation>
    </message>
    <message>
        <source>Pictures: shapes</source>
        <translation>Figuras: formas</translation>
    </message>
    <message>
        <source>Pictures: vehicles</source>
        <translation>Figuras: veículos</translation>
    </message>
    <message>
        <source>Pictures: numbers</source>
        <translation>Figuras: números</translation>
    </message>
    <message>
        <source>Pictures: letters</source>
        <translation>Figuras: letras</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <location filename="../tables/texts.h" line="12"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Arraste as figuras para a grade. Em cada linha, cada coluna, cada diagonal e cada quadrado, todas as figuras são diferentes.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="17"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Arraste as figuras para a grade. Em cada linha, cada coluna e cada diagonal, todas as figuras são diferentes.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="22"/>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Arraste as figuras para a grade. Em cada linha, cada coluna e cada um dos seis retângulos coloridos, todas as figuras são diferentes.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="56"/>
        <source>4x4 Board</source>
        <translation>Grade 4x4</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="57"/>
        <source>5x5 Board</source>
        <translation>Grade 5x5</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="58"/>
        <source>6x6 Board</source>
        <translation>Grade 6x6</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="59"/>
        <source>The Rules of Pimbalo</source>
        <translation>As regras do Pimbalo</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="60"/>
        <source>Puzzle</source>
        <translation>Desafio</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="61"/>
        <source>Solution</source>
        <translation>Solução</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="62"/>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>Os melhores tempos só são salvos se o Pimbalo estiver instalado no disco rígido. Para instalar, abra o programa de instalação do CD-ROM.</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="66"/>
        <source>Exit</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <location filename="../tables/texts.h" line="36"/>
        <source>OK</source>
        <translation>Jogar</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="38"/>
        <source>Cancel</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <location filename="../tables/texts.h" line="39"/>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
</context>
</TS>
