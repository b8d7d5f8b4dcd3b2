<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>BusySign</name>
    <message>
        <source>Busy</source>
        <translation>Занято</translation>
    </message>
</context>
<context>
    <name>LoadDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Remaining time:</source>
        <translation>Осталось:</translation>
    </message>
    <message>
        <source>Stop this work</source>
        <translation>Прервать эту работу</translation>
    </message>
    <message>
        <source>View Exported Frames</source>
        <translation>Показать кадры</translation>
    </message>
    <message>
        <source>View Video</source>
        <translation>Показать видео</translation>
    </message>
    <message>
        <source>hrs</source>
        <translation>ч</translation>
    </message>
    <message>
        <source>min</source>
        <translation>мин</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>с</translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>Progress</source>
        <translation>Ход работы</translation>
    </message>
</context>
</TS>
