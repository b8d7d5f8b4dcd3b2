<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>VideoEffects</name>
    <message>
        <source>Amount of frames</source>
        <translation>Количество кадров</translation>
    </message>
    <message>
        <source>Antiflicker</source>
        <translation>Устранение мерцания</translation>
    </message>
    <message>
        <source>Arithmetic mean</source>
        <translation>Среднее арифметическое</translation>
    </message>
    <message>
        <source>Average Blur</source>
        <translation>Усредняющее размытие</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Тонирование</translation>
    </message>
    <message>
        <source>Cubic mean</source>
        <translation>Среднее кубическое</translation>
    </message>
    <message>
        <source>Earlier frames that the range is taken from</source>
        <translation>Предыдущие кадры, по которым определяется диапазон</translation>
    </message>
    <message>
        <source>Frames that are compared</source>
        <translation>Кадры, которые сравниваются</translation>
    </message>
    <message>
        <source>Gaussian Blur</source>
        <translation>Размытие по Гауссу</translation>
    </message>
    <message>
        <source>Geometric mean</source>
        <translation>Среднее геометрическое</translation>
    </message>
    <message>
        <source>Harmonic mean</source>
        <translation>Среднее гармоническое</translation>
    </message>
    <message>
        <source>How far the blur reaches, in pixels</source>
        <translation>Насколько далеко распространяется размытие, в пикселях</translation>
    </message>
    <message>
        <source>How far the colour channels go their own ways</source>
        <translation>Насколько независимы цветовые каналы</translation>
    </message>
    <message>
        <source>How far the smoothing reaches</source>
        <translation>Насколько далеко распространяется сглаживание</translation>
    </message>
    <message>
        <source>How large a difference is smoothed away</source>
        <translation>Какая разница сглаживается</translation>
    </message>
    <message>
        <source>How light the colour is</source>
        <translation>Насколько светлый цвет</translation>
    </message>
    <message>
        <source>How much of the effect is applied</source>
        <translation>Сила действия эффекта</translation>
    </message>
    <message>
        <source>How much of the picture&apos;s own brightness stays</source>
        <translation>Сколько остаётся от яркости самого изображения</translation>
    </message>
    <message>
        <source>How often the blur is repeated</source>
        <translation>Сколько раз повторяется размытие</translation>
    </message>
    <message>
        <source>How strong the colour is</source>
        <translation>Насколько насыщенный цвет</translation>
    </message>
    <message>
        <source>How the brightness of several frames becomes one</source>
        <translation>Как яркость нескольких кадров сводится к одной</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Тон</translation>
    </message>
    <message>
        <source>Independence</source>
        <translation>Независимость</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Светлота</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Макс</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Максимум</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Медиана</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Мин</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Минимум</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Смешивание</translation>
    </message>
    <message>
        <source>Normalize</source>
        <translation>Нормализация</translation>
    </message>
    <message>
        <source>Power mean</source>
        <translation>Среднее степенное</translation>
    </message>
    <message>
        <source>Quadratic mean</source>
        <translation>Среднее квадратическое</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Радиус</translation>
    </message>
    <message>
        <source>Range weight</source>
        <translation>Вес по диапазону</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Насыщенность</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Резкость</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Сглаживание</translation>
    </message>
    <message>
        <source>Spatial Smoothing</source>
        <translation>Пространственное сглаживание</translation>
    </message>
    <message>
        <source>Spatial weight</source>
        <translation>Пространственный вес</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Шаги</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Сила</translation>
    </message>
    <message>
        <source>The colour&apos;s place on the colour circle</source>
        <translation>Место цвета на цветовом круге</translation>
    </message>
    <message>
        <source>The grey that the brightest point becomes</source>
        <translation>Серый цвет, которым становится самая светлая точка</translation>
    </message>
    <message>
        <source>The grey that the darkest point becomes</source>
        <translation>Серый цвет, которым становится самая тёмная точка</translation>
    </message>
</context>
</TS>
