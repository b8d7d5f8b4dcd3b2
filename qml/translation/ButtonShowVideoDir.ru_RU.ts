<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ButtonShowVideoDir</name>
    <message>
        <source>Show the folder of the movies</source>
        <translation>Показать папку с фильмами</translation>
    </message>
</context>
</TS>
