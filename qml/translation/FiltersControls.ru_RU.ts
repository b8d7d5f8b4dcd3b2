<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>FiltersControls</name>
    <message>
        <source>Adjust Contrast</source>
        <translation>Контраст</translation>
    </message>
    <message>
        <source>Adjust Saturation</source>
        <translation>Насыщенность</translation>
    </message>
    <message>
        <source>Even out light and dark parts; 0 is off</source>
        <translation>Выравнивает светлые и тёмные места; 0 — выключено</translation>
    </message>
    <message>
        <source>Filters preview</source>
        <translation>Просмотр с фильтрами</translation>
    </message>
    <message>
        <source>From gray at 0 to twice the strength of colors at 100; 50 leaves them alone</source>
        <translation>От серого при 0 до двойной насыщенности при 100; 50 не меняет цвета</translation>
    </message>
    <message>
        <source>Processing, please wait...</source>
        <translation>Обработка, подождите...</translation>
    </message>
    <message>
        <source>Remove Noise</source>
        <translation>Удаление шума</translation>
    </message>
    <message>
        <source>Show pictures with the filters, or as they are</source>
        <translation>Показывать кадры с фильтрами или без них</translation>
    </message>
    <message>
        <source>Smooth the grain of the picture and keep its edges; 0 is off</source>
        <translation>Сглаживает зерно, сохраняя контуры; 0 — выключено</translation>
    </message>
</context>
<context>
    <name>FiltersDialog</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Фильтры</translation>
    </message>
</context>
</TS>
