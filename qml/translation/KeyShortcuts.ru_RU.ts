<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>KeyShortcuts</name>
    <message>
        <source>Cannot enable Time-lapse photography tool. Flip-Flop is running</source>
        <translation>Цейтраферную съёмку включить нельзя: идёт перелистывание</translation>
    </message>
    <message>
        <source>MorvaRobot is running. Cannot close dialog</source>
        <translation>Идёт задание. Диалог закрыть нельзя</translation>
    </message>
</context>
</TS>
