<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>MessageRouter</name>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>Задание</translation>
    </message>
    <message>
        <source>Time-Lapse Photography</source>
        <translation>Цейтраферная съёмка</translation>
    </message>
    <message>
        <source>VideoPlayer</source>
        <translation>Видеоплеер</translation>
    </message>
</context>
<context>
    <name>MessagesBox</name>
    <message>
        <source>Clean messages</source>
        <translation>Очистить сообщения</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Сообщения</translation>
    </message>
</context>
</TS>
