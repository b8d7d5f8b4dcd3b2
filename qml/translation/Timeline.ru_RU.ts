<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>DuplicateButton</name>
    <message>
        <source>Copies: %1</source>
        <translation>Копий: %1</translation>
    </message>
    <message>
        <source>Duplicate (%1)  </source>
        <translation>Дублировать (%1)  </translation>
    </message>
    <message>
        <source>How many copies each frame gets</source>
        <translation>Сколько копий делать</translation>
    </message>
</context>
<context>
    <name>FrameListView</name>
    <message>
        <source>Frames</source>
        <translation>Кадры</translation>
    </message>
</context>
<context>
    <name>ProgressControl</name>
    <message>
        <source>Current frame</source>
        <translation>Текущий кадр</translation>
    </message>
    <message>
        <source>First frame of the range</source>
        <translation>Начало диапазона</translation>
    </message>
    <message>
        <source>In memory: %1 %</source>
        <translation>В памяти: %1 %</translation>
    </message>
    <message>
        <source>Last frame of the range</source>
        <translation>Конец диапазона</translation>
    </message>
</context>
<context>
    <name>StripArrows</name>
    <message>
        <source>Earlier frames</source>
        <translation>Предыдущие кадры</translation>
    </message>
    <message>
        <source>Later frames</source>
        <translation>Следующие кадры</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Scroll the timeline</source>
        <translation>Прокрутить линейку</translation>
    </message>
</context>
<context>
    <name>TimelineControls</name>
    <message>
        <source>Add frames after the current one</source>
        <translation>Добавить кадры после текущего</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Cancel the selection</source>
        <translation>Снять выделение</translation>
    </message>
    <message>
        <source>Captured</source>
        <translation>Снятый</translation>
    </message>
    <message>
        <source>Cleanup All</source>
        <translation>Очистить всё</translation>
    </message>
    <message>
        <source>Clear both pictures</source>
        <translation>Убрать оба изображения</translation>
    </message>
    <message>
        <source>Clear the captured picture</source>
        <translation>Убрать снятое изображение</translation>
    </message>
    <message>
        <source>Clear the reference picture</source>
        <translation>Убрать опорное изображение</translation>
    </message>
    <message>
        <source>Clear what is in the selected frames or the current one</source>
        <translation>Убрать изображения из выделенных кадров или текущего</translation>
    </message>
    <message>
        <source>Delete the selected frames or the current one</source>
        <translation>Удалить выделенные кадры или текущий</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>Снять выделение</translation>
    </message>
    <message>
        <source>Hide or show: hidden frames are neither played nor exported</source>
        <translation>Скрыть или показать: скрытые кадры не воспроизводятся и не выводятся</translation>
    </message>
    <message>
        <source>Move the selected frames behind the current one</source>
        <translation>Поставить выделенные кадры после текущего</translation>
    </message>
    <message>
        <source>Press again to delete, right click to cancel</source>
        <translation>Нажмите ещё раз, чтобы удалить; правый щелчок отменяет</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Опорный</translation>
    </message>
    <message>
        <source>Replace what is in the current frame</source>
        <translation>Заменить содержимое текущего кадра</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
</context>
<context>
    <name>TimelineCounters</name>
    <message>
        <source>Copied frames: %1. Click to paste them, right click to forget them</source>
        <translation>Скопировано кадров: %1. Щелчок вставляет их, правый щелчок отменяет</translation>
    </message>
    <message>
        <source>Cut frames: %1. Click to paste them, right click to forget them</source>
        <translation>Вырезано кадров: %1. Щелчок вставляет их, правый щелчок отменяет</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Отразить</translation>
    </message>
    <message>
        <source>Number of the current frame</source>
        <translation>Номер текущего кадра</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Выделено</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Всего</translation>
    </message>
</context>
<context>
    <name>TimelineIndicatorRow</name>
    <message>
        <source>Holds, hidden frames and the selection over the whole timeline</source>
        <translation>Стоп-кадры, скрытые кадры и выделение по всей линейке</translation>
    </message>
</context>
<context>
    <name>TimelineLeftColumn</name>
    <message>
        <source>Reference row</source>
        <translation>Ряд опорных кадров</translation>
    </message>
    <message>
        <source>Show the captured frames only</source>
        <translation>Показать только снятые кадры</translation>
    </message>
    <message>
        <source>Show the reference frames below the captured ones</source>
        <translation>Показать опорные кадры под снятыми</translation>
    </message>
    <message>
        <source>Update static frames indication</source>
        <translation>Найти стоп-кадры заново</translation>
    </message>
</context>
<context>
    <name>TimelineMessages</name>
    <message>
        <source>Click here or press Esc to cancel selection</source>
        <translation>Щёлкните здесь или нажмите Esc, чтобы снять выделение</translation>
    </message>
    <message>
        <source>No Frames</source>
        <translation>Нет кадров</translation>
    </message>
    <message>
        <source>No project. Create or load project to capture, add, remove or modify frames</source>
        <translation>Нет проекта. Создайте или откройте проект, чтобы снимать, добавлять, удалять и изменять кадры</translation>
    </message>
</context>
</TS>
