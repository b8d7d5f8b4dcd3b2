<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CameraList</name>
    <message>
        <source>Device #%1</source>
        <translation>Устройство #%1</translation>
    </message>
    <message>
        <source>FireWire Device</source>
        <translation>Устройство FireWire</translation>
    </message>
</context>
</TS>
