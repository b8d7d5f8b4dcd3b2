<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>PlayPauseButton</name>
    <message>
        <source>Play the range</source>
        <translation>Воспроизвести диапазон</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
</context>
<context>
    <name>PlaybackControls</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 к/с</translation>
    </message>
    <message>
        <source>Back to the beginning of the range</source>
        <translation>К началу диапазона</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Кадров в секунду</translation>
    </message>
    <message>
        <source>Frames shown in the last second</source>
        <translation>Показано кадров за последнюю секунду</translation>
    </message>
    <message>
        <source>Length of the range: hours, minutes, seconds, frames</source>
        <translation>Длительность диапазона: часы, минуты, секунды, кадры</translation>
    </message>
    <message>
        <source>Play again and again</source>
        <translation>Повторять по кругу</translation>
    </message>
    <message>
        <source>Plays backward</source>
        <translation>Воспроизводится назад</translation>
    </message>
    <message>
        <source>Plays forward</source>
        <translation>Воспроизводится вперёд</translation>
    </message>
    <message>
        <source>Turn round at the ends</source>
        <translation>Разворачиваться на концах</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>к/с</translation>
    </message>
</context>
<context>
    <name>PlaybackSettings</name>
    <message>
        <source>Captured frames extend the range</source>
        <translation>Снятые кадры расширяют диапазон</translation>
    </message>
    <message>
        <source>First frame of the range</source>
        <translation>Начало диапазона</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Кадров в секунду</translation>
    </message>
    <message>
        <source>Last frame of the range</source>
        <translation>Конец диапазона</translation>
    </message>
    <message>
        <source>Play again and again</source>
        <translation>Повторять по кругу</translation>
    </message>
    <message>
        <source>Play all frames</source>
        <translation>Воспроизводить все кадры</translation>
    </message>
    <message>
        <source>Play backward</source>
        <translation>Воспроизводить назад</translation>
    </message>
    <message>
        <source>Play the reference frames</source>
        <translation>Воспроизводить опорные кадры</translation>
    </message>
    <message>
        <source>Playback and its range</source>
        <translation>Воспроизведение и его диапазон</translation>
    </message>
    <message>
        <source>Turn round at the ends</source>
        <translation>Разворачиваться на концах</translation>
    </message>
    <message>
        <source>Whole timeline</source>
        <translation>Вся линейка</translation>
    </message>
</context>
</TS>
