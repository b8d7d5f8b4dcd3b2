<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CamDisconnectConfirmDialog</name>
    <message>
        <source>Disconnect %1 camera?</source>
        <translation>Отключить камеру %1?</translation>
    </message>
</context>
</TS>
