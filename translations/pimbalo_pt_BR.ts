<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_GB">
<context>
    <name>Board</name>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>De novo</translation>
    </message>
    <message>
        <source>New Puzzle</source>
        <translation>Novo desafio</translation>
    </message>
    <message>
        <source>Fastest Times</source>
        <translation>Os mais rápidos</translation>
    </message>
    <message>
        <source>Show solution</source>
        <translation>Ver a solução</translation>
    </message>
    <message>
        <source>Change Pictures</source>
        <translation>Outras figuras</translation>
    </message>
    <message>
        <source>Show Rules</source>
        <translation>Ver as regras</translation>
    </message>
    <message>
        <source>Select a picture</source>
        <translation>Escolha uma figura</translation>
    </message>
    <message>
        <source> Time Taken</source>
        <translation>Seu tempo</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
    <message>
        <source>Correct Well Done!!!</source>
        <translation>Certo, muito bem!!!</translation>
    </message>
    <message>
        <source>Correct, Well Done!!!</source>
        <translation>Certo, muito bem!!!</translation>
    </message>
    <message>
        <source>The Quarters are Wrong!</source>
        <translation>Quadrados errados!</translation>
    </message>
    <message>
        <source>The Diagonals are Wrong!</source>
        <translation>Diagonais erradas!</translation>
    </message>
    <message>
        <source>Wrong, Try Again</source>
        <translation>Errado, tente de novo</translation>
    </message>
    <message>
        <source>Pimbalo %1x%1 board</source>
        <translation>Tabuleiro do Pimbalo %1x%1</translation>
    </message>
    <message>
        <source>Board command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Seconds taken</source>
        <translation>Segundos gastos</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Row %1, column %2: </source>
        <translation>Linha %1, coluna %2: </translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vazia</translation>
    </message>
    <message>
        <source>Given, cannot be moved</source>
        <translation>Já colocada, não se move</translation>
    </message>
    <message>
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
        <source>Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.</source>
        <translation>Pimbalo (c) 2026 A equipe do Pimbalo. Todos os direitos reservados.</translation>
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
        <translation>O Pimbalo não pode continuar: não foi possível carregar o arquivo “%1” (%2).</translation>
    </message>
    <message>
        <source>file not found</source>
        <translation>arquivo não encontrado</translation>
    </message>
    <message>
        <source>not a cursor file</source>
        <translation>não é um arquivo de cursor</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <source>Pimbalo 4x4 Fastest Times</source>
        <translation>Pimbalo 4x4: os melhores tempos</translation>
    </message>
    <message>
        <source>Pimbalo 5x5 Fastest Times</source>
        <translation>Pimbalo 5x5: os melhores tempos</translation>
    </message>
    <message>
        <source>Pimbalo 6x6 Fastest Times</source>
        <translation>Pimbalo 6x6: os melhores tempos</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Nível 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Nível 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Nível 3</translation>
    </message>
    <message>
        <source>Solo Play</source>
        <translation>Um jogador</translation>
    </message>
    <message>
        <source>Type your name in the box</source>
        <translation>Escreva seu nome na caixa</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Board Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>The Rules</source>
        <translation>As regras</translation>
    </message>
    <message>
        <source>Timers On</source>
        <translation>Relógio</translation>
    </message>
    <message>
        <source>Play Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <source>Hide Desktop</source>
        <translation>Só o jogo</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>great stellated dodecahedron</source>
        <translation>grande dodecaedro estrelado</translation>
    </message>
    <message>
        <source>great icosahedron</source>
        <translation>grande icosaedro</translation>
    </message>
    <message>
        <source>small stellated dodecahedron</source>
        <translation>pequeno dodecaedro estrelado</translation>
    </message>
    <message>
        <source>ten tetrahedra</source>
        <translation>dez tetraedros</translation>
    </message>
    <message>
        <source>five tetrahedra</source>
        <translation>cinco tetraedros</translation>
    </message>
    <message>
        <source>great dodecahedron</source>
        <translation>grande dodecaedro</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>paus</translation>
    </message>
    <message>
        <source>spades</source>
        <translation>espadas</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>ouros</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>copas</translation>
    </message>
    <message>
        <source>die showing one</source>
        <translation>dado com um ponto</translation>
    </message>
    <message>
        <source>die showing two</source>
        <translation>dado com dois pontos</translation>
    </message>
    <message>
        <source>die showing three</source>
        <translation>dado com três pontos</translation>
    </message>
    <message>
        <source>die showing four</source>
        <translation>dado com quatro pontos</translation>
    </message>
    <message>
        <source>die showing five</source>
        <translation>dado com cinco pontos</translation>
    </message>
    <message>
        <source>die showing six</source>
        <translation>dado com seis pontos</translation>
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
        <translation>bigode</translation>
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
        <translation>bandeira do Reino Unido</translation>
    </message>
    <message>
        <source>flag of the United States</source>
        <translation>bandeira dos Estados Unidos</translation>
    </message>
    <message>
        <source>flag of South Africa</source>
        <translation>bandeira da África do Sul</translation>
    </message>
    <message>
        <source>flag of Germany</source>
        <translation>bandeira da Alemanha</translation>
    </message>
    <message>
        <source>flag of Australia</source>
        <translation>bandeira da Austrália</translation>
    </message>
    <message>
        <source>flag of France</source>
        <translation>bandeira da França</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>bolinhas</translation>
    </message>
    <message>
        <source>stripes</source>
        <translation>listras</translation>
    </message>
    <message>
        <source>tiles</source>
        <translation>azulejos</translation>
    </message>
    <message>
        <source>triangles</source>
        <translation>triângulos</translation>
    </message>
    <message>
        <source>link</source>
        <translation>corrente</translation>
    </message>
    <message>
        <source>polygon</source>
        <translation>polígono</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>triângulo</translation>
    </message>
    <message>
        <source>star</source>
        <translation>estrela</translation>
    </message>
    <message>
        <source>square</source>
        <translation>quadrado</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>retângulo</translation>
    </message>
    <message>
        <source>doughnut</source>
        <translation>rosquinha</translation>
    </message>
    <message>
        <source>ambulance</source>
        <translation>ambulância</translation>
    </message>
    <message>
        <source>fire engine</source>
        <translation>caminhão de bombeiros</translation>
    </message>
    <message>
        <source>police car</source>
        <translation>carro de polícia</translation>
    </message>
    <message>
        <source>boat</source>
        <translation>barco</translation>
    </message>
    <message>
        <source>number one</source>
        <translation>número um</translation>
    </message>
    <message>
        <source>number two</source>
        <translation>número dois</translation>
    </message>
    <message>
        <source>number three</source>
        <translation>número três</translation>
    </message>
    <message>
        <source>number four</source>
        <translation>número quatro</translation>
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
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Arraste as figuras para a grade. Em cada linha, cada coluna, cada diagonal e cada quadrado, todas as figuras são diferentes.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures along each diagonal are different.</source>
        <translation>Arraste as figuras para a grade. Em cada linha, cada coluna e cada diagonal, todas as figuras são diferentes.</translation>
    </message>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different and all the pictures in each of the six coloured rectangles are different.</source>
        <translation>Arraste as figuras para a grade. Em cada linha, cada coluna e cada um dos seis retângulos coloridos, todas as figuras são diferentes.</translation>
    </message>
    <message>
        <source>4x4 Board</source>
        <translation>Grade 4x4</translation>
    </message>
    <message>
        <source>5x5 Board</source>
        <translation>Grade 5x5</translation>
    </message>
    <message>
        <source>6x6 Board</source>
        <translation>Grade 6x6</translation>
    </message>
    <message>
        <source>The Rules of Pimbalo</source>
        <translation>As regras do Pimbalo</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Desafio</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>Resolvido</translation>
    </message>
    <message>
        <source>High scores will only be saved if Pimbalo is installed on your hard disk. To install Pimbalo run the setup program on the CD-ROM.</source>
        <translation>Os melhores tempos só são salvos se o Pimbalo estiver instalado no disco rígido. Para instalar, abra o programa de instalação do CD-ROM.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>OK</source>
        <translation>Jogar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
</context>
</TS>
