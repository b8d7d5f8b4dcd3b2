<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ConnectionsBox</name>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
</context>
</TS>
