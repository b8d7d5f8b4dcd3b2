<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ZoomSidePanel</name>
    <message>
        <source>Double click</source>
        <translation>Двойной щелчок</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Показать всё изображение</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Колесо</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить</translation>
    </message>
</context>
</TS>
