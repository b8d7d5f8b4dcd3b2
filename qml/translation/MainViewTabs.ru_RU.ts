<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>MainViewTabs</name>
    <message>
        <source>Captured frame on top</source>
        <translation>Снятый кадр сверху</translation>
    </message>
    <message>
        <source>Captured</source>
        <translation>Снято</translation>
    </message>
    <message>
        <source>Live View</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>Live picture on top</source>
        <translation>Живое изображение сверху</translation>
    </message>
    <message>
        <source>Opacity of the captured frame</source>
        <translation>Непрозрачность снятого кадра</translation>
    </message>
    <message>
        <source>Opacity of the live picture</source>
        <translation>Непрозрачность живого изображения</translation>
    </message>
    <message>
        <source>Opacity of the reference frame</source>
        <translation>Непрозрачность опорного кадра</translation>
    </message>
    <message>
        <source>Reference frame on top</source>
        <translation>Опорный кадр сверху</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Опорный</translation>
    </message>
    <message>
        <source>References show with two rows in the timeline</source>
        <translation>Опорные кадры видны при двух рядах кадров</translation>
    </message>
    <message>
        <source>The onion skin hides the reference frame</source>
        <translation>Калька скрывает опорный кадр</translation>
    </message>
</context>
</TS>
