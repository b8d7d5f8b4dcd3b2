<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>Display</name>
    <message>
        <source>No camera: the captured frame shows</source>
        <translation>Нет камеры: показан снятый кадр</translation>
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
