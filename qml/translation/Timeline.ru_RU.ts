<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>TimelineControls</name>
    <message>
        <source>Add an empty frame after the current one</source>
        <translation>Добавить пустой кадр после текущего</translation>
    </message>
    <message>
        <source>Cancel the selection</source>
        <translation>Снять выделение</translation>
    </message>
    <message>
        <source>Clear the captured picture of the selected frames</source>
        <translation>Убрать снятое изображение из выделенных кадров</translation>
    </message>
    <message>
        <source>Clear the reference picture of the selected frames</source>
        <translation>Убрать опорное изображение из выделенных кадров</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Скопировать: %1</translation>
    </message>
    <message>
        <source>Cut: %1</source>
        <translation>Вырезать: %1</translation>
    </message>
    <message>
        <source>Delete the selected frames or the current one</source>
        <translation>Удалить выделенные кадры или текущий</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>Снять выделение</translation>
    </message>
    <message>
        <source>Duplicate (%1)  </source>
        <translation>Дублировать (%1)  </translation>
    </message>
    <message>
        <source>Hide or show: hidden frames are neither played nor exported</source>
        <translation>Скрыть или показать: скрытые кадры не воспроизводятся и не выводятся</translation>
    </message>
    <message>
        <source>How many copies each frame gets</source>
        <translation>Сколько копий делать</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Отразить</translation>
    </message>
    <message>
        <source>Move the selected frames behind the current one</source>
        <translation>Поставить выделенные кадры после текущего</translation>
    </message>
    <message>
        <source>Press again to delete, right click to cancel</source>
        <translation>Нажмите ещё раз, чтобы удалить; правый щелчок отменяет</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Выделено</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Всего</translation>
    </message>
    <message>
        <source>Update static frames indication</source>
        <translation>Найти стоп-кадры заново</translation>
    </message>
</context>
<context>
    <name>TimelineStrip</name>
    <message>
        <source>Click here or press Esc to cancel selection</source>
        <translation>Щёлкните здесь или нажмите Esc, чтобы снять выделение</translation>
    </message>
    <message>
        <source>No Frames</source>
        <translation>Нет кадров</translation>
    </message>
    <message>
        <source>No project. Create or load project to capture, add, remove or modify frames</source>
        <translation>Нет проекта. Создайте или откройте проект, чтобы снимать, добавлять, удалять и изменять кадры</translation>
    </message>
</context>
</TS>
