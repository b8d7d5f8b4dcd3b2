<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ExportSize</name>
    <message>
        <source>Black margins may occur</source>
        <translation>Возможны чёрные поля</translation>
    </message>
    <message>
        <source>Height: %1</source>
        <translation>Высота: %1</translation>
    </message>
    <message>
        <source>Size must be a multiple of 8</source>
        <translation>Размер должен быть кратен 8</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
</context>
</TS>
