<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CamReloadDeviceConfirmDialog</name>
    <message>
        <source>Reload device connection subsystem?</source>
        <translation>Перезапустить подключение устройств?</translation>
    </message>
</context>
</TS>
