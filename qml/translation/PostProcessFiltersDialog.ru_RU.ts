<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>PostProcessFiltersDialog</name>
    <message>
        <source>Applied to every frame of the movie</source>
        <translation>Применяется к каждому кадру фильма</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>No Effect</source>
        <translation>Без эффекта</translation>
    </message>
    <message>
        <source>Video Effects</source>
        <translation>Видеоэффекты</translation>
    </message>
</context>
</TS>
