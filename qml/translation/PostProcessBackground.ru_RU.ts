<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>PostProcessBackground</name>
    <message>
        <source>Background scale</source>
        <translation>Масштаб фона</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>Выбрать картинку</translation>
    </message>
    <message>
        <source>Copy a picture into the project and show it as the background</source>
        <translation>Скопировать картинку в проект и показать её как фон</translation>
    </message>
    <message>
        <source>No background picture</source>
        <translation>Без фоновой картинки</translation>
    </message>
    <message>
        <source>Show a picture behind what the chroma key makes transparent</source>
        <translation>Показывать картинку за тем, что хромакей сделал прозрачным</translation>
    </message>
    <message>
        <source>Size of the background, as a share of the frame</source>
        <translation>Размер фона относительно кадра</translation>
    </message>
</context>
</TS>
