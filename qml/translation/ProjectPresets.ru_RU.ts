<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ProjectPresets</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 к/с</translation>
    </message>
    <message>
        <source>Project Presets</source>
        <translation>Заготовки проекта</translation>
    </message>
</context>
</TS>
