<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>Scrollbar</name>
    <message>
        <source>Scroll bar</source>
        <translation>Полоса прокрутки</translation>
    </message>
</context>
</TS>
