<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
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
        <source>The file %1 does not exist</source>
        <translation>Файла %1 нет</translation>
    </message>
    <message>
        <source>The file %1 is neither a movie nor an image</source>
        <translation>Файл %1 — не фильм и не изображение</translation>
    </message>
    <message>
        <source>There are too many files in the list of cameras</source>
        <translation>В списке камер слишком много файлов</translation>
    </message>
</context>
</TS>
