<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CameraTabs</name>
    <message>
        <source>Auto Capture</source>
        <translation>Автосъёмка</translation>
    </message>
    <message>
        <source>Capture frames one by one</source>
        <translation>Снимать кадры по одному</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Съёмка</translation>
    </message>
    <message>
        <source>Names of the captured files</source>
        <translation>Имена снятых файлов</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Префикс</translation>
    </message>
    <message>
        <source>Time-lapse</source>
        <translation>Таймлапс</translation>
    </message>
    <message>
        <source>Ways to capture</source>
        <translation>Способы съёмки</translation>
    </message>
</context>
<context>
    <name>PrefixTab</name>
    <message>
        <source>Begin the names of captured files with a text of your own</source>
        <translation>Начинать имена снятых файлов со своего текста</translation>
    </message>
    <message>
        <source>Frame name prefix. Signs that files cannot have in their names are left out</source>
        <translation>Префикс имени кадра. Знаки, недопустимые в именах файлов, опускаются</translation>
    </message>
    <message>
        <source>Own prefix</source>
        <translation>Свой префикс</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Префикс</translation>
    </message>
</context>
</TS>
