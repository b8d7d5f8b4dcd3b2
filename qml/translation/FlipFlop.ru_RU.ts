<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>FlipFlop</name>
    <message>
        <source>Blink the captured frame over the live view</source>
        <translation>Мигать снятым кадром поверх живого изображения</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Плавно</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Вспышка</translation>
    </message>
    <message>
        <source>Flip-Flop</source>
        <translation>Флип-флоп</translation>
    </message>
    <message>
        <source>How long one half of the blinking takes</source>
        <translation>Сколько длится половина мигания</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>sec.</source>
        <translation>сек.</translation>
    </message>
</context>
</TS>
