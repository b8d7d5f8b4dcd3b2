<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AddRemoveEntries</name>
    <message>
        <source>Add a frame without pictures after the current one</source>
        <translation>Добавить кадр без изображений после текущего</translation>
    </message>
    <message>
        <source>Add the frames of another project at the end, with copies of their pictures</source>
        <translation>Добавить в конец кадры другого проекта с копиями их изображений</translation>
    </message>
    <message>
        <source>Captured</source>
        <translation>Снятый</translation>
    </message>
    <message>
        <source>Empty Frame</source>
        <translation>Пустой кадр</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Опорный</translation>
    </message>
    <message>
        <source>Take the pictures out of the current frame</source>
        <translation>Убрать изображения из текущего кадра</translation>
    </message>
</context>
</TS>
