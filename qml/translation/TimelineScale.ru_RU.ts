<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>TimelineScale</name>
    <message>
        <source>Scale</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Size of the frames on the timeline</source>
        <translation>Размер кадров на линейке</translation>
    </message>
</context>
</TS>
