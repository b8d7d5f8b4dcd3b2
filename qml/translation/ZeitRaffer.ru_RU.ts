<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>TimeLapse</name>
    <message>
        <source>Time-lapse photography tool stopped</source>
        <translation>Цейтраферная съёмка остановлена</translation>
    </message>
</context>
<context>
    <name>ZeitRaffer</name>
    <message>
        <source>A frame every %1 min.</source>
        <translation>Кадр каждые %1 мин.</translation>
    </message>
    <message>
        <source>A frame every %1 s</source>
        <translation>Кадр каждые %1 с</translation>
    </message>
    <message>
        <source>At most 30 a minute, 120 an hour, 720 a day</source>
        <translation>Не больше 30 в минуту, 120 в час, 720 в сутки</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>сутки</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>час</translation>
    </message>
    <message>
        <source>How many frames to shoot in that time</source>
        <translation>Сколько кадров снимать за это время</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>минуту</translation>
    </message>
    <message>
        <source>Shoot by the clock</source>
        <translation>Снимать по часам</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Начать</translation>
    </message>
    <message>
        <source>Stop shooting by the clock</source>
        <translation>Прекратить съёмку по часам</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Time to the next frame</source>
        <translation>Время до следующего кадра</translation>
    </message>
    <message>
        <source>Times per</source>
        <translation>Раз в</translation>
    </message>
    <message>
        <source>Waiting for the camera</source>
        <translation>Ожидание камеры</translation>
    </message>
</context>
</TS>
