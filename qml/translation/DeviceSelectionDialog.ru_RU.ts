<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>DeviceItem</name>
    <message>
        <source>Battery</source>
        <translation>Батарея</translation>
    </message>
    <message>
        <source>Remove from the list; the file stays</source>
        <translation>Убрать из списка; файл останется</translation>
    </message>
    <message>
        <source>Use this device</source>
        <translation>Выбрать это устройство</translation>
    </message>
</context>
<context>
    <name>DeviceSelectionDialog</name>
    <message>
        <source>Add file as camera...</source>
        <translation>Файл как камера...</translation>
    </message>
    <message>
        <source>Available %1</source>
        <translation>Доступные %1</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>камеры</translation>
    </message>
    <message>
        <source>Device index</source>
        <translation>Номер устройства</translation>
    </message>
    <message>
        <source>No Devices</source>
        <translation>Нет устройств</translation>
    </message>
    <message>
        <source>Shoot from a video file or from numbered images</source>
        <translation>Снимать из видеофайла или из пронумерованных изображений</translation>
    </message>
    <message>
        <source>This version has no driver for DSLR cameras. Choose web cameras as the device type in the settings.</source>
        <translation>В этой версии нет драйвера зеркальных камер. Выберите в настройках тип устройства «Веб-камеры».</translation>
    </message>
    <message>
        <source>Try to set device index manually</source>
        <translation>Попробуйте указать номер устройства вручную</translation>
    </message>
    <message>
        <source>Web Cameras and USB Video Capture Devices</source>
        <translation>веб-камеры и USB-устройства видеозахвата</translation>
    </message>
</context>
<context>
    <name>FileCameras</name>
    <message>
        <source>Add file as camera...</source>
        <translation>Добавить файл как камеру...</translation>
    </message>
    <message>
        <source>Movies and numbered images</source>
        <translation>Фильмы и нумерованные изображения</translation>
    </message>
    <message>
        <source>The file %1 does not exist. Choose it again in the list of devices</source>
        <translation>Файла %1 нет. Выберите его заново в списке устройств</translation>
    </message>
    <message>
        <source>The file %1 is neither a movie nor an image. Choose a movie, or one picture of a numbered sequence</source>
        <translation>Файл %1 — не фильм и не изображение. Выберите фильм или одну картинку из пронумерованного ряда</translation>
    </message>
    <message>
        <source>There are too many files in the list of cameras. Remove one of them first</source>
        <translation>В списке камер слишком много файлов. Сначала удалите один из них</translation>
    </message>
</context>
</TS>
