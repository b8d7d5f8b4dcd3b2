<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>HistogramBox</name>
    <message>
        <source>Live</source>
        <translation>Живая</translation>
    </message>
    <message>
        <source>Measure the live view, once a second</source>
        <translation>Измерять живое изображение раз в секунду</translation>
    </message>
</context>
<context>
    <name>HistogramPane</name>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Height of the bars</source>
        <translation>Высота столбцов</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Гистограмма</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Show the channel: %1</source>
        <translation>Показывать канал: %1</translation>
    </message>
</context>
</TS>
