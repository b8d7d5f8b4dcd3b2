<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>RenderStarter</name>
    <message>
        <source>The render could not be started. Wait for the end of the work that runs, and try again</source>
        <translation>Не удалось начать создание фильма. Дождитесь конца идущей работы и попробуйте снова</translation>
    </message>
</context>
<context>
    <name>RenderVideoButtons</name>
    <message>
        <source>Make a movie of the frames in the range</source>
        <translation>Создать фильм из кадров диапазона</translation>
    </message>
    <message>
        <source>Minimum frame size is %1x%2</source>
        <translation>Наименьший размер кадра — %1x%2</translation>
    </message>
    <message>
        <source>Nothing to render: the range needs two frames or more. Capture more frames, or drag its ends on the timeline</source>
        <translation>Нечего создавать: в диапазоне должно быть два кадра или больше. Снимите ещё кадры или раздвиньте концы диапазона на линейке</translation>
    </message>
    <message>
        <source>Render Video</source>
        <translation>Создать фильм</translation>
    </message>
    <message>
        <source>Size must be a multiple of 8</source>
        <translation>Размер должен быть кратен 8</translation>
    </message>
    <message>
        <source>Stop after the frame that is being rendered</source>
        <translation>Остановить после текущего кадра</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
</context>
</TS>
