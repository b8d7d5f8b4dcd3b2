<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>TimelineFrame</name>
    <message>
        <source>Captured image is missing </source>
        <translation>Нет снятого изображения </translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Кадр %1</translation>
    </message>
    <message>
        <source>Reference image is missing</source>
        <translation>Нет опорного изображения</translation>
    </message>
</context>
</TS>
