<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>BusySign</name>
    <message>
        <source>Busy</source>
        <translation>Занято</translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>Progress</source>
        <translation>Ход работы</translation>
    </message>
</context>
</TS>
