<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- A made-up language whose texts are too long for their controls: the
     text-fit test must name each of them. "Show solution" is short enough. -->
<TS version="2.1" language="de">
<context>
    <name>Title</name>
    <message>
        <source>OK</source>
        <translation>OK OK OK OK OK OK OK OK</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Timers On</source>
        <translation>Timers On Timers On Timers On</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different.</source>
        <translation>Drag and drop the pictures into the grid so that all the pictures in each row are different, all the pictures in each column are different, all the pictures in each diagonal are different and all the pictures in each quarter are different. Drag and drop the pictures into the grid so that all the pictures in each row are different.</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Exit</source>
        <translation>Exit Exit Exit Exit</translation>
    </message>
    <message>
        <source>Show solution</source>
        <translation>Solution</translation>
    </message>
    <message>
        <source>Correct in %1 seconds!!!</source>
        <translation>Correct in only %1 seconds, well done!!!</translation>
    </message>
</context>
<context>
    <name>FastestTimes</name>
    <message>
        <source>Continue</source>
        <translation>Continue Continue Continue</translation>
    </message>
</context>
</TS>
