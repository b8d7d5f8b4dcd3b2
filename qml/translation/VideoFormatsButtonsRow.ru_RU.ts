<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>VideoFormatsButtonsRow</name>
    <message>
        <source>HTML5 Video - OGG/OGV video format</source>
        <translation>Видео HTML5 - формат OGG/OGV</translation>
    </message>
    <message>
        <source>HTML5 Video - WebM video format</source>
        <translation>Видео HTML5 - формат WebM</translation>
    </message>
    <message>
        <source>Matroska Multimedia Container</source>
        <translation>Мультимедийный контейнер Matroska</translation>
    </message>
    <message>
        <source>Movie format</source>
        <translation>Формат фильма</translation>
    </message>
    <message>
        <source>No compression, large file</source>
        <translation>Без сжатия, большой файл</translation>
    </message>
</context>
</TS>
