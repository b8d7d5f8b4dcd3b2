<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>RemoveVideoEffectBtn</name>
    <message>
        <source>Remove the video effect</source>
        <translation>Убрать видеоэффект</translation>
    </message>
</context>
</TS>
