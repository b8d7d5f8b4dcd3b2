<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>WebcamGlobal</name>
    <message>
        <source>Color Burn</source>
        <translation>Затемнение основы</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Осветление основы</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Замена тёмным</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Разница</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Исключение</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Жёсткий свет</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Замена светлым</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Умножение</translation>
    </message>
    <message>
        <source>No Blend</source>
        <translation>Без смешения</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Перекрытие</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Сложение</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Мягкий свет</translation>
    </message>
    <message>
        <source>Xor</source>
        <translation>Исключающее «или»</translation>
    </message>
</context>
</TS>
