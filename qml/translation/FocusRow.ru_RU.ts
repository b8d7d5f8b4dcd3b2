<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>FocusRow</name>
    <message>
        <source>Focus a little farther</source>
        <translation>Фокус чуть дальше</translation>
    </message>
    <message>
        <source>Focus a little nearer</source>
        <translation>Фокус чуть ближе</translation>
    </message>
    <message>
        <source>Focus farther</source>
        <translation>Фокус дальше</translation>
    </message>
    <message>
        <source>Focus much farther</source>
        <translation>Фокус намного дальше</translation>
    </message>
    <message>
        <source>Focus much nearer</source>
        <translation>Фокус намного ближе</translation>
    </message>
    <message>
        <source>Focus nearer</source>
        <translation>Фокус ближе</translation>
    </message>
</context>
</TS>
