<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>BlendTool</name>
    <message>
        <source>Black and white</source>
        <translation>Чёрно-белое</translation>
    </message>
    <message>
        <source>The live picture without its colours</source>
        <translation>Живое изображение без цвета</translation>
    </message>
</context>
<context>
    <name>OnionskinTool</name>
    <message>
        <source>Frames after</source>
        <translation>Следующие</translation>
    </message>
    <message>
        <source>Frames before</source>
        <translation>Предыдущие</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Кадров</translation>
    </message>
    <message>
        <source>How many frames shine through</source>
        <translation>Сколько кадров просвечивает</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Onion skin</source>
        <translation>Калька</translation>
    </message>
</context>
<context>
    <name>OverlayRow</name>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
</context>
<context>
    <name>OverlayTools</name>
    <message>
        <source>A cross in the middle of the picture</source>
        <translation>Крест в середине изображения</translation>
    </message>
    <message>
        <source>A grid with a line in the middle</source>
        <translation>Сетка с линией посередине</translation>
    </message>
    <message>
        <source>As wide as the picture</source>
        <translation>На всю ширину</translation>
    </message>
    <message>
        <source>Darkens what lies outside of the frame</source>
        <translation>Затемняет всё, что вне кадра</translation>
    </message>
    <message>
        <source>Frame border</source>
        <translation>Граница кадра</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Сетка</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Поля</translation>
    </message>
    <message>
        <source>Rule of thirds</source>
        <translation>Правило третей</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Безопасные зоны</translation>
    </message>
    <message>
        <source>Sight</source>
        <translation>Перекрестие</translation>
    </message>
    <message>
        <source>Sizes and warnings</source>
        <translation>Размеры и предупреждения</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Шаг</translation>
    </message>
    <message>
        <source>The arms of the sight reach the edges</source>
        <translation>Линии перекрестия доходят до краёв</translation>
    </message>
    <message>
        <source>The edge of the film&apos;s frame</source>
        <translation>Край кадра фильма</translation>
    </message>
    <message>
        <source>The frame&apos;s size at its edge, and a sign on pictures that are cut</source>
        <translation>Размер кадра у его края и знак на обрезанных изображениях</translation>
    </message>
    <message>
        <source>Two lines in each direction that part the frame in thirds</source>
        <translation>По две линии в каждом направлении, делящие кадр на трети</translation>
    </message>
    <message>
        <source>Where action and titles are safe from the edges of a screen</source>
        <translation>Где действие и титры не срежет край экрана</translation>
    </message>
    <message>
        <source>Width of a cell in pixels of the frame</source>
        <translation>Ширина ячейки в пикселях кадра</translation>
    </message>
</context>
<context>
    <name>ReferenceSizeTool</name>
    <message>
        <source>Size of the reference frame, in per cent</source>
        <translation>Размер опорного кадра в процентах</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
</context>
<context>
    <name>ScreenControls</name>
    <message>
        <source>Blend: %1</source>
        <translation>Наложение: %1</translation>
    </message>
    <message>
        <source>Flip-flop: blinks the frame against the live picture</source>
        <translation>Флип-флоп: кадр мигает поверх живого изображения</translation>
    </message>
    <message>
        <source>Flip-flop</source>
        <translation>Флип-флоп</translation>
    </message>
    <message>
        <source>Helper lines over the picture</source>
        <translation>Вспомогательные линии поверх изображения</translation>
    </message>
    <message>
        <source>Helper lines</source>
        <translation>Вспомогательные линии</translation>
    </message>
    <message>
        <source>How the layers blend</source>
        <translation>Как накладываются слои</translation>
    </message>
    <message>
        <source>Onion skin: frames that shine through</source>
        <translation>Калька: просвечивающие кадры</translation>
    </message>
    <message>
        <source>Onion skin</source>
        <translation>Калька</translation>
    </message>
    <message>
        <source>Size and opacity of the picture</source>
        <translation>Размер и непрозрачность изображения</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Размер изображения</translation>
    </message>
    <message>
        <source>Size of the reference frame</source>
        <translation>Размер опорного кадра</translation>
    </message>
    <message>
        <source>Size of the reference</source>
        <translation>Размер опорного кадра</translation>
    </message>
    <message>
        <source>Tools of the picture</source>
        <translation>Инструменты изображения</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Колесо</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
</context>
<context>
    <name>ScreenSwitches</name>
    <message>
        <source>Filters of the picture</source>
        <translation>Фильтры изображения</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Гистограмма</translation>
    </message>
    <message>
        <source>Mirror the current frame</source>
        <translation>Отразить текущий кадр</translation>
    </message>
    <message>
        <source>Show pictures as they are</source>
        <translation>Показать изображения как есть</translation>
    </message>
    <message>
        <source>Show pictures with the filters</source>
        <translation>Показать изображения с фильтрами</translation>
    </message>
</context>
<context>
    <name>SizeTool</name>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Opacity of the frame</source>
        <translation>Непрозрачность кадра</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>Part of the room&apos;s height</source>
        <translation>Доля высоты области</translation>
    </message>
    <message>
        <source>Part of the room&apos;s width</source>
        <translation>Доля ширины области</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
</context>
<context>
    <name>ZoomTool</name>
    <message>
        <source>A pixel of the frame as a pixel of the screen</source>
        <translation>Пиксель кадра как пиксель экрана</translation>
    </message>
    <message>
        <source>Drag with the middle button to move the picture.</source>
        <translation>Перетаскивайте изображение средней кнопкой мыши.</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Пиксели</translation>
    </message>
    <message>
        <source>Shown at %1 % of the frame&apos;s size</source>
        <translation>Показано в %1 % размера кадра</translation>
    </message>
</context>
</TS>
