<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ExportBox</name>
    <message>
        <source>Choose a video effect and its values</source>
        <translation>Выбрать видеоэффект и его параметры</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Format &amp; Quality</source>
        <translation>Формат и качество</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Высокое</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Низкое</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Наилучшее</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Среднее</translation>
    </message>
    <message>
        <source>Name of the movie&apos;s file; a movie of the same name is replaced</source>
        <translation>Имя файла фильма; фильм с тем же именем будет заменён</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Quality of the movie; a better one makes a larger file</source>
        <translation>Качество фильма: чем лучше, тем больше файл</translation>
    </message>
    <message>
        <source>Size &amp; Options</source>
        <translation>Размер и параметры</translation>
    </message>
    <message>
        <source>Timecode</source>
        <translation>Таймкод</translation>
    </message>
    <message>
        <source>Video Effects</source>
        <translation>Видеоэффекты</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Write scene, layer, frame and time into the picture</source>
        <translation>Вписать в изображение сцену, слой, кадр и время</translation>
    </message>
</context>
</TS>
