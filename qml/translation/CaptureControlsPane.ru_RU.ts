<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>DisplayOverlay</name>
    <message>
        <source>Go on with the live view</source>
        <translation>Возобновить живое изображение</translation>
    </message>
</context>
</TS>
