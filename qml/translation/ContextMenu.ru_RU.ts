<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>FrameMenu</name>
    <message>
        <source>Begin the range here</source>
        <translation>Начать диапазон здесь</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Delete now</source>
        <translation>Удалить сейчас</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Дублировать</translation>
    </message>
    <message>
        <source>End the range here</source>
        <translation>Закончить диапазон здесь</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Кадр</translation>
    </message>
    <message>
        <source>Hide or show</source>
        <translation>Скрыть или показать</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Отразить</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить все</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выделить</translation>
    </message>
</context>
</TS>
