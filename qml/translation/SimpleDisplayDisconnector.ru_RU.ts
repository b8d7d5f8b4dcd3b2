<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>SimpleDisplayDisconnector</name>
    <message>
        <source>Disconnect Camera</source>
        <translation>Отключить камеру</translation>
    </message>
    <message>
        <source>Disconnect device</source>
        <translation>Отключить устройство</translation>
    </message>
</context>
</TS>
