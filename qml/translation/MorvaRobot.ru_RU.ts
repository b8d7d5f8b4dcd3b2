<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>MorvaRobot</name>
    <message>
        <source>Bitrate is too low</source>
        <translation>Слишком низкий битрейт</translation>
    </message>
    <message>
        <source>Cannot cteate dir %1</source>
        <translation>Не удалось создать папку %1</translation>
    </message>
    <message>
        <source>Cannot load %1. Skipping image</source>
        <translation>Не удалось загрузить %1. Изображение пропущено</translation>
    </message>
    <message>
        <source>Encode audio</source>
        <translation>Кодирование звука</translation>
    </message>
    <message>
        <source>Encoder error: %1</source>
        <translation>Ошибка кодировщика: %1</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Кодирование</translation>
    </message>
    <message>
        <source>Error creating video</source>
        <translation>Ошибка при создании видео</translation>
    </message>
    <message>
        <source>Error drawing timecode</source>
        <translation>Ошибка при рисовании таймкода</translation>
    </message>
    <message>
        <source>Error initializing</source>
        <translation>Ошибка при подготовке</translation>
    </message>
    <message>
        <source>Export images</source>
        <translation>Экспорт изображений</translation>
    </message>
    <message>
        <source>FPS is too low</source>
        <translation>Слишком низкая частота кадров</translation>
    </message>
    <message>
        <source>Failed to create image of size %1x%2</source>
        <translation>Не удалось создать изображение размером %1x%2</translation>
    </message>
    <message>
        <source>Frame size: %1x%2</source>
        <translation>Размер кадра: %1x%2</translation>
    </message>
    <message>
        <source>Got an error from encoder, but with no reason</source>
        <translation>Кодировщик сообщил об ошибке, но не назвал причину</translation>
    </message>
    <message>
        <source>Image #%1: Margins added (top: %2px, left: %3px)</source>
        <translation>Изображение №%1: добавлены поля (сверху: %2 пикс., слева: %3 пикс.)</translation>
    </message>
    <message>
        <source>Import images</source>
        <translation>Импорт изображений</translation>
    </message>
    <message>
        <source>Layer: %1</source>
        <translation>Слой: %1</translation>
    </message>
    <message>
        <source>Minimum frame size is %1x%2</source>
        <translation>Минимальный размер кадра — %1x%2</translation>
    </message>
    <message>
        <source>No Encoder</source>
        <translation>Нет кодировщика</translation>
    </message>
    <message>
        <source>Processing image. Robot interrupted</source>
        <translation>Обработка изображений прервана</translation>
    </message>
    <message>
        <source>Scene: %1</source>
        <translation>Сцена: %1</translation>
    </message>
    <message>
        <source>The part of the program that makes movies is missing or damaged. Install the program again. %1</source>
        <translation>Часть программы, которая создаёт фильмы, отсутствует или повреждена. Установите программу заново. %1</translation>
    </message>
    <message>
        <source>This job is not available</source>
        <translation>Это действие недоступно</translation>
    </message>
    <message>
        <source>Update images</source>
        <translation>Обновление изображений</translation>
    </message>
</context>
</TS>
