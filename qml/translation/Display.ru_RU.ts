<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>Display</name>
    <message>
        <source>The project is ready. This version cannot connect a camera yet.</source>
        <translation>Проект готов. Подключать камеру эта версия пока не умеет.</translation>
    </message>
</context>
<context>
    <name>DisplayRules</name>
    <message>
        <source>Flip-Flop OFF</source>
        <translation>Мигание выключено</translation>
    </message>
    <message>
        <source>Onion-skin OFF</source>
        <translation>Калька выключена</translation>
    </message>
</context>
</TS>
