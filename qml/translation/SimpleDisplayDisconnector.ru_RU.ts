<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>SimpleDisplayDisconnector</name>
    <message>
        <source>Disconnect Camera</source>
        <translation>Отключить камеру</translation>
    </message>
</context>
</TS>
