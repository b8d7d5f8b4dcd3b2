<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>PowerFactor</name>
    <message>
        <source>FPS</source>
        <translation>Кадр/с</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Много</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Средне</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Мало</translation>
    </message>
    <message>
        <source>Set FPS to Min to reduce CPU usage</source>
        <translation>Выберите «Мало», чтобы меньше нагружать процессор</translation>
    </message>
</context>
</TS>
