<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CommonCameraControlsPane</name>
    <message>
        <source>Camera Controls</source>
        <translation>Управление камерой</translation>
    </message>
    <message>
        <source>Camera is not connected. Click &apos;Connect&apos; to enable </source>
        <translation>Камера не подключена. Нажмите «Подключить», чтобы включить </translation>
    </message>
</context>
</TS>
