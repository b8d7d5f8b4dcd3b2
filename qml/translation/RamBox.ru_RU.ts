<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>OversizeSign</name>
    <message>
        <source>The frame size is larger than the camera resolution</source>
        <translation>Размер кадра больше разрешения камеры</translation>
    </message>
</context>
<context>
    <name>RamBox</name>
    <message>
        <source>Captured frame</source>
        <translation>Снятый кадр</translation>
    </message>
    <message>
        <source>Reference frame</source>
        <translation>Опорный кадр</translation>
    </message>
</context>
</TS>
