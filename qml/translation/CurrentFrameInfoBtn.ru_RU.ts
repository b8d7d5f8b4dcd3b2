<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CurrentFrameInfoBtn</name>
    <message>
        <source>%1: the file is missing</source>
        <translation>%1: файла нет</translation>
    </message>
    <message>
        <source>About the current frame</source>
        <translation>О текущем кадре</translation>
    </message>
    <message>
        <source>Captured</source>
        <translation>Снятый</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Нет изображения</translation>
    </message>
    <message>
        <source>Number of the phase, shown in the exposure sheet</source>
        <translation>Номер фазы, стоит в экспозиционном листе</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Фаза</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Опорный</translation>
    </message>
</context>
</TS>
