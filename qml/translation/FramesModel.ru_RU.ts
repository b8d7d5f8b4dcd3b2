<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>FramesModel</name>
    <message>
        <source>Delete</source>
        <translation>Удаление</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Снятие выделения</translation>
    </message>
    <message>
        <source>Duplicate and move</source>
        <translation>Дублирование и перемещение</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Дублирование</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Перемещение</translation>
    </message>
    <message>
        <source>Preparing playback</source>
        <translation>Подготовка воспроизведения</translation>
    </message>
    <message>
        <source>Search for staticness</source>
        <translation>Поиск стоп-кадров</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выделение</translation>
    </message>
</context>
</TS>
