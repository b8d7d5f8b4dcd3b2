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
<context>
    <name>WebCameraConnectBox</name>
    <message>
        <source>Available devices</source>
        <translation>Доступные устройства</translation>
    </message>
    <message>
        <source>Click to choose another kind of device</source>
        <translation>Нажмите, чтобы выбрать другой тип устройства</translation>
    </message>
    <message>
        <source>Connect device</source>
        <translation>Подключить устройство</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Disconnect device</source>
        <translation>Отключить устройство</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Отключить</translation>
    </message>
</context>
</TS>
