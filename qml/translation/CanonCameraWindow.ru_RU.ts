<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CanonCameraWindow</name>
    <message>
        <source>Camera not present, not connected or not supported. Check hardware connection</source>
        <translation>Камера отсутствует, не подключена или не поддерживается. Проверьте подключение</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>This version has no driver for DSLR cameras. Choose web cameras as the device type in the settings</source>
        <translation>В этой версии нет драйвера зеркальных камер. Выберите в настройках тип устройства «Веб-камеры»</translation>
    </message>
</context>
</TS>
