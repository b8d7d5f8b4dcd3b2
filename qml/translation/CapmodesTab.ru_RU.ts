<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CapmodesTab</name>
    <message>
        <source>Append</source>
        <translation>Добавлять</translation>
    </message>
    <message>
        <source>Frames per shot</source>
        <translation>Кадров за снимок</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Put the shot behind the last frame, or in place of the current one</source>
        <translation>Поставить снимок после последнего кадра или вместо текущего</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменять</translation>
    </message>
    <message>
        <source>Shots taken</source>
        <translation>Сделано снимков</translation>
    </message>
</context>
<context>
    <name>CaptureButton</name>
    <message>
        <source>Capture Frame</source>
        <translation>Снять кадр</translation>
    </message>
    <message>
        <source>Capture a frame</source>
        <translation>Снять кадр</translation>
    </message>
    <message>
        <source>Replace Frame</source>
        <translation>Заменить кадр</translation>
    </message>
</context>
</TS>
