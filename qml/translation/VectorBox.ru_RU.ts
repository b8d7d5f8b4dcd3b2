<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>Curves</name>
    <message>
        <source>The vector path has too many nodes and was not read</source>
        <translation>В векторном пути слишком много точек, он не прочитан</translation>
    </message>
    <message>
        <source>The vector path is damaged and was not read</source>
        <translation>Векторный путь повреждён и не прочитан</translation>
    </message>
    <message>
        <source>The vector path is damaged: nodes left out: %1</source>
        <translation>Векторный путь повреждён: пропущено точек: %1</translation>
    </message>
    <message>
        <source>The vector path is too long and was not read</source>
        <translation>Векторный путь слишком длинный и не прочитан</translation>
    </message>
</context>
</TS>
