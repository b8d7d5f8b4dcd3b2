<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>NumberField</name>
    <message>
        <source>Decrease</source>
        <translation>Меньше</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Больше</translation>
    </message>
</context>
</TS>
