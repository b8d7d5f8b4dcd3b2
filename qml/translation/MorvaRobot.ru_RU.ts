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
        <source>Check that the disk is not full and that the project&apos;s folder can be written, and render again</source>
        <translation>Проверьте, есть ли место на диске и доступна ли папка проекта для записи, и создайте фильм снова</translation>
    </message>
    <message>
        <source>Choose another format or quality, or switch the video effects off, and render again</source>
        <translation>Выберите другой формат или качество либо отключите видеоэффекты и создайте фильм снова</translation>
    </message>
    <message>
        <source>Choose another format</source>
        <translation>Выберите другой формат</translation>
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
        <source>Put the picture back into the project&apos;s folder, or capture the frame again in its place</source>
        <translation>Верните изображение в папку проекта или снимите кадр заново на его месте</translation>
    </message>
    <message>
        <source>Scene: %1</source>
        <translation>Сцена: %1</translation>
    </message>
    <message>
        <source>Set a larger frame width and height in the Project panel</source>
        <translation>Задайте большие ширину и высоту кадра на панели «Проект»</translation>
    </message>
    <message>
        <source>Set the frames per second in the Project panel</source>
        <translation>Задайте число кадров в секунду на панели «Проект»</translation>
    </message>
    <message>
        <source>The bit rate comes with the project&apos;s file: change it there, or import the frames into a new project</source>
        <translation>Битрейт записан в файле проекта: измените его там или импортируйте кадры в новый проект</translation>
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
