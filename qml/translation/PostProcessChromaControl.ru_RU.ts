<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>PostProcessChromaControl</name>
    <message>
        <source>Another key color</source>
        <translation>Другой цвет ключа</translation>
    </message>
    <message>
        <source>Chroma Key</source>
        <translation>Хромакей</translation>
    </message>
    <message>
        <source>How near to the key color becomes transparent; 0 is off</source>
        <translation>Насколько близкие к ключу цвета становятся прозрачными; 0 — выключено</translation>
    </message>
    <message>
        <source>How softly the transparent part ends</source>
        <translation>Насколько мягко кончается прозрачная часть</translation>
    </message>
    <message>
        <source>Key color %1</source>
        <translation>Цвет ключа %1</translation>
    </message>
    <message>
        <source>Smoothness</source>
        <translation>Мягкость края</translation>
    </message>
    <message>
        <source>The color that the eyedropper has picked</source>
        <translation>Цвет, взятый пипеткой</translation>
    </message>
</context>
</TS>
