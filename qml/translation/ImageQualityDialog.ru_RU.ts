<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ImageQualityDialog</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>The camera takes pictures of a reduced size. Choose the size L in the camera&apos;s settings, or the frames will be smaller than they could be.</source>
        <translation>Камера снимает в уменьшенном размере. Выберите в настройках камеры размер L, иначе кадры будут меньше, чем могли бы быть.</translation>
    </message>
</context>
</TS>
