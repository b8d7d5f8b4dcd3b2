<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ExportPolicyDialog</name>
    <message>
        <source>Crop and scale to %1x%2</source>
        <translation>Обрезать и масштабировать до %1x%2</translation>
    </message>
    <message>
        <source>Crop to %1x%2</source>
        <translation>Обрезать до %1x%2</translation>
    </message>
    <message>
        <source>Fit by height</source>
        <translation>Вписать по высоте</translation>
    </message>
    <message>
        <source>Fit by width</source>
        <translation>Вписать по ширине</translation>
    </message>
    <message>
        <source>How pictures come to the size of the movie</source>
        <translation>Как изображения приводятся к размеру фильма</translation>
    </message>
    <message>
        <source>The same, then made smaller or larger</source>
        <translation>То же, затем уменьшить или увеличить</translation>
    </message>
    <message>
        <source>The whole picture, as high as the frame</source>
        <translation>Изображение целиком, по высоте кадра</translation>
    </message>
    <message>
        <source>The whole picture, as wide as the frame</source>
        <translation>Изображение целиком, по ширине кадра</translation>
    </message>
    <message>
        <source>What reaches out of the frame is cut off, what is missing becomes a margin</source>
        <translation>Лишнее обрезается, недостающее становится полями</translation>
    </message>
</context>
</TS>
