<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CanonCameraControls</name>
    <message>
        <source>Change the kind of device to web cameras</source>
        <translation>Перейти на веб-камеры</translation>
    </message>
    <message>
        <source>Shoot with a web camera</source>
        <translation>Снимать веб-камерой</translation>
    </message>
    <message>
        <source>This version has no driver for DSLR cameras. Web cameras, video capture adapters and the built-in demo camera can be used.</source>
        <translation>В этой версии нет драйвера зеркальных камер. Можно снимать веб-камерами, устройствами видеозахвата и встроенной демонстрационной камерой.</translation>
    </message>
</context>
</TS>
