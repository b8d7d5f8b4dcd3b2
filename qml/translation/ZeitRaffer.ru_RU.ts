<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>TimeLapse</name>
    <message>
        <source>Time-lapse photography tool stopped</source>
        <translation>Цейтраферная съёмка остановлена</translation>
    </message>
</context>
</TS>
