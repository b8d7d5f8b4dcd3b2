<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>FrameSaver</name>
    <message>
        <source>Applying grayscale...</source>
        <translation>Перевод в чёрно-белое...</translation>
    </message>
    <message>
        <source>Error saving file...</source>
        <translation>Ошибка сохранения файла...</translation>
    </message>
    <message>
        <source>Error: Failed to make dir to save TIFF image</source>
        <translation>Ошибка: не удалось создать папку для снимка TIFF</translation>
    </message>
    <message>
        <source>Error: Failed to save TIFF image</source>
        <translation>Ошибка: не удалось сохранить снимок TIFF</translation>
    </message>
    <message>
        <source>Error: Failed to save processed image</source>
        <translation>Ошибка: не удалось сохранить обработанный снимок</translation>
    </message>
    <message>
        <source>Error: Failed to save thumb</source>
        <translation>Ошибка: не удалось сохранить миниатюру</translation>
    </message>
    <message>
        <source>Saving %1 file...</source>
        <translation>Сохранение файла %1...</translation>
    </message>
    <message>
        <source>Saving TIFF file...</source>
        <translation>Сохранение файла TIFF...</translation>
    </message>
    <message>
        <source>There is a file of this name</source>
        <translation>Файл с таким именем уже есть</translation>
    </message>
    <message>
        <source>Transfer image...</source>
        <translation>Передача снимка...</translation>
    </message>
</context>
<context>
    <name>SafeImageFile</name>
    <message>
        <source>The disk is full or does not take the data</source>
        <translation>Диск заполнен или не принимает данные</translation>
    </message>
</context>
<context>
    <name>WebCamLiveViewThread</name>
    <message>
        <source>Taking a picture. Please wait</source>
        <translation>Идёт съёмка. Подождите</translation>
    </message>
    <message>
        <source>The picture could not be saved: %1. Make room on the disk, or check that the project&apos;s folder can be written, and capture the frame again</source>
        <translation>Изображение не удалось сохранить: %1. Освободите место на диске или проверьте, доступна ли папка проекта для записи, и снимите кадр снова</translation>
    </message>
    <message>
        <source>The thumbnail could not be saved: %1. Make room on the disk, or check that the project&apos;s folder can be written, and capture the frame again</source>
        <translation>Миниатюру не удалось сохранить: %1. Освободите место на диске или проверьте, доступна ли папка проекта для записи, и снимите кадр снова</translation>
    </message>
</context>
</TS>
