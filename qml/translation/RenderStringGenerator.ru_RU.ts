<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>RenderStringGenerator</name>
    <message>
        <source>%1x%2</source>
        <translation>%1x%2</translation>
    </message>
    <message>
        <source>, effects</source>
        <translation>, эффекты</translation>
    </message>
    <message>
        <source>, filters</source>
        <translation>, фильтры</translation>
    </message>
    <message>
        <source>, timecode</source>
        <translation>, таймкод</translation>
    </message>
    <message>
        <source>crop &amp; scale</source>
        <translation>обрезка и масштаб</translation>
    </message>
    <message>
        <source>crop</source>
        <translation>обрезка</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>масштаб</translation>
    </message>
</context>
</TS>
