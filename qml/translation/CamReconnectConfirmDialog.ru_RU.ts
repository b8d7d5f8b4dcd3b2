<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CamReconnectConfirmDialog</name>
    <message>
        <source>Camera %1 is already connected. Reconnect camera?</source>
        <translation>Камера %1 уже подключена. Подключить её заново?</translation>
    </message>
</context>
</TS>
