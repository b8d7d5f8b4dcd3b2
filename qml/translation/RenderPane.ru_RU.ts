<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CurrentFilterName</name>
    <message>
        <source>No Effect</source>
        <translation>Без эффекта</translation>
    </message>
</context>
<context>
    <name>FrameInfoBox</name>
    <message>
        <source>Captured: %1</source>
        <translation>Снятый: %1</translation>
    </message>
    <message>
        <source>Frame Info</source>
        <translation>О кадре</translation>
    </message>
    <message>
        <source>No frame</source>
        <translation>Нет кадра</translation>
    </message>
    <message>
        <source>Number: %1</source>
        <translation>Номер: %1</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Образец: %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Время: %1</translation>
    </message>
    <message>
        <source>hidden, not in the movie</source>
        <translation>скрыт, не войдёт в фильм</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>отражён</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>the picture&apos;s file is missing</source>
        <translation>файл изображения не найден</translation>
    </message>
</context>
<context>
    <name>RenderPane</name>
    <message>
        <source>All filters, with the key color and the background</source>
        <translation>Все фильтры, с ключевым цветом и фоном</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Фильтры</translation>
    </message>
    <message>
        <source>More Filters</source>
        <translation>Другие фильтры</translation>
    </message>
</context>
</TS>
