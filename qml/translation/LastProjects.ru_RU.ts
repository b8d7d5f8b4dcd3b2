<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>LastProjects</name>
    <message>
        <source>Frames: %1</source>
        <translation>Кадров: %1</translation>
    </message>
    <message>
        <source>No recent projects</source>
        <translation>Нет недавних проектов</translation>
    </message>
    <message>
        <source>Not available:</source>
        <translation>Недоступен:</translation>
    </message>
    <message>
        <source>Projects that you create or open are listed here.</source>
        <translation>Здесь появятся проекты, которые вы создали или открыли.</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Недавние проекты</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Убрать из списка</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
</context>
</TS>
