<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>PropertiesDialog</name>
    <message>
        <source>A sound for every captured frame</source>
        <translation>Звук на каждый снятый кадр</translation>
    </message>
    <message>
        <source>Application Settings</source>
        <translation>Настройки программы</translation>
    </message>
    <message>
        <source>Auto jump to last frame</source>
        <translation>Переходить к последнему кадру</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>Autosave</source>
        <translation>Автосохранение</translation>
    </message>
    <message>
        <source>Beep on capture</source>
        <translation>Сигнал при съёмке</translation>
    </message>
    <message>
        <source>Choose an external editor...</source>
        <translation>Выбрать внешний редактор...</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Выбрать...</translation>
    </message>
    <message>
        <source>Clear Settings</source>
        <translation>Сбросить настройки</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Color of the light</source>
        <translation>Цвет света</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>DSLR Cameras</source>
        <translation>Зеркальные камеры</translation>
    </message>
    <message>
        <source>Device Type</source>
        <translation>Тип устройства</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Английский</translation>
    </message>
    <message>
        <source>External Editor</source>
        <translation>Внешний редактор</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Размер шрифта</translation>
    </message>
    <message>
        <source>Go to the new frame after each shot</source>
        <translation>После съёмки новый кадр становится текущим</translation>
    </message>
    <message>
        <source>Hints at first steps</source>
        <translation>Подсказки первых шагов</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Интервал</translation>
    </message>
    <message>
        <source>Language of the interface</source>
        <translation>Язык программы</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Lead anew through the first capture, playback and render</source>
        <translation>Снова провести через первую съёмку, просмотр и сборку фильма</translation>
    </message>
    <message>
        <source>Lightbox Shows</source>
        <translation>Световой экран показывает</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Не выбран</translation>
    </message>
    <message>
        <source>Notes such as this one</source>
        <translation>Слова, как эти, при задержке указателя</translation>
    </message>
    <message>
        <source>Pause live view after</source>
        <translation>Пауза живого вида через</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Опорное изображение</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>Save and Close</source>
        <translation>Сохранить и закрыть</translation>
    </message>
    <message>
        <source>Save the project now and then while it changes</source>
        <translation>Время от времени сохранять изменённый проект</translation>
    </message>
    <message>
        <source>Set default external editor</source>
        <translation>Взять редактор системы</translation>
    </message>
    <message>
        <source>Size of letters and controls</source>
        <translation>Размер всех надписей и кнопок</translation>
    </message>
    <message>
        <source>Sounds of warnings and errors</source>
        <translation>Звуки предупреждений и ошибок</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Звуки</translation>
    </message>
    <message>
        <source>Spares the camera when nobody works with it</source>
        <translation>Бережёт камеру, когда с ней никто не работает</translation>
    </message>
    <message>
        <source>Take the program that opens pictures on this computer</source>
        <translation>Взять программу, которая открывает изображения на этом компьютере</translation>
    </message>
    <message>
        <source>Tooltips</source>
        <translation>Подсказки</translation>
    </message>
    <message>
        <source>Use no external editor</source>
        <translation>Обходиться без внешнего редактора</translation>
    </message>
    <message>
        <source>Video Capture</source>
        <translation>Видеозахват</translation>
    </message>
    <message>
        <source>Warning. Will remove all settings, including recent projects list</source>
        <translation>Внимание. Будут забыты все настройки и список недавних проектов</translation>
    </message>
    <message>
        <source>Web Cameras</source>
        <translation>Веб-камеры</translation>
    </message>
    <message>
        <source>What lights the scene from a second screen</source>
        <translation>Чем второй экран освещает сцену</translation>
    </message>
    <message>
        <source>What the frames are captured with</source>
        <translation>Чем снимаются кадры</translation>
    </message>
    <message>
        <source>min.</source>
        <translation>мин.</translation>
    </message>
</context>
</TS>
