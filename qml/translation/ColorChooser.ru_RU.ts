<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ColorChooser</name>
    <message>
        <source>Color code</source>
        <translation>Код цвета</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Оттенок</translation>
    </message>
    <message>
        <source>Saturation and brightness</source>
        <translation>Насыщенность и яркость</translation>
    </message>
</context>
</TS>
