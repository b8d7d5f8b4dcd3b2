<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>QRamPreview</name>
    <message>
        <source>Frame of the timeline</source>
        <translation>Кадр фильма</translation>
    </message>
</context>
<context>
    <name>TimingDisplay</name>
    <message>
        <source>Frames play here once the timeline has some.</source>
        <translation>Здесь воспроизводятся кадры, как только они появятся.</translation>
    </message>
</context>
</TS>
