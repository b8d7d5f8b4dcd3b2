<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AutoFocusButton</name>
    <message>
        <source>Auto Focus</source>
        <translation>Автофокус</translation>
    </message>
    <message>
        <source>Let the camera focus by itself</source>
        <translation>Пусть камера фокусируется сама</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>ВЫКЛ</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ВКЛ</translation>
    </message>
    <message>
        <source>This camera has no auto focus to switch</source>
        <translation>У этой камеры нет переключаемого автофокуса</translation>
    </message>
</context>
<context>
    <name>NewWebCameraControls</name>
    <message>
        <source>Camera Controls</source>
        <translation>Управление камерой</translation>
    </message>
    <message>
        <source>Camera Settings</source>
        <translation>Настройки камеры</translation>
    </message>
    <message>
        <source>Draw the frame of the film on the live view</source>
        <translation>Нарисовать кадр фильма на живом изображении</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Show or hide the sliders of the camera</source>
        <translation>Показать или скрыть ползунки камеры</translation>
    </message>
    <message>
        <source>Show the colour under the pointer</source>
        <translation>Показывать цвет под указателем</translation>
    </message>
    <message>
        <source>Size of the camera&apos;s picture</source>
        <translation>Размер изображения камеры</translation>
    </message>
    <message>
        <source>The settings dialog of the camera&apos;s driver</source>
        <translation>Окно настроек драйвера камеры</translation>
    </message>
</context>
<context>
    <name>ReadSettingsButton</name>
    <message>
        <source>Read camera settings</source>
        <translation>Прочитать настройки камеры</translation>
    </message>
</context>
<context>
    <name>ResolutionButton</name>
    <message>
        <source>Ask the camera for pictures of this size</source>
        <translation>Запросить у камеры изображения этого размера</translation>
    </message>
</context>
<context>
    <name>WebcamFlags</name>
    <message>
        <source>Anti-Alias</source>
        <translation>Сглаживание</translation>
    </message>
    <message>
        <source>B/W</source>
        <translation>Ч/Б</translation>
    </message>
    <message>
        <source>Crop captured image to specified frame size</source>
        <translation>Обрезать снятое изображение до заданного размера кадра</translation>
    </message>
    <message>
        <source>Live view and captured frames without colours</source>
        <translation>Живое изображение и снятые кадры без цвета</translation>
    </message>
    <message>
        <source>Rotate 180</source>
        <translation>Поворот 180</translation>
    </message>
    <message>
        <source>Save Cropped</source>
        <translation>Сохранять обрезанным</translation>
    </message>
    <message>
        <source>Smooth live view; takes more of the processor</source>
        <translation>Гладкое живое изображение; больше нагружает процессор</translation>
    </message>
    <message>
        <source>Turn the live view and the captured frames upside down</source>
        <translation>Перевернуть живое изображение и снятые кадры</translation>
    </message>
</context>
<context>
    <name>WebcamSliders</name>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Контраст</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Фокус</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Усиление</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Насыщенность</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Резкость</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Зум</translation>
    </message>
</context>
</TS>
