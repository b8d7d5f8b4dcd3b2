<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>Dialog</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>FirstStep</name>
    <message>
        <source>done</source>
        <translation>сделано</translation>
    </message>
    <message>
        <source>later</source>
        <translation>позже</translation>
    </message>
    <message>
        <source>now</source>
        <translation>сейчас</translation>
    </message>
</context>
<context>
    <name>FirstStepCamera</name>
    <message>
        <source>A web camera, or the built-in demo camera.</source>
        <translation>Веб-камера или встроенная демонстрационная.</translation>
    </message>
    <message>
        <source>Available devices</source>
        <translation>Доступные устройства</translation>
    </message>
    <message>
        <source>Change the kind of device to web cameras and connect the first one</source>
        <translation>Сменить тип устройства на веб-камеры и подключить первую</translation>
    </message>
    <message>
        <source>Choose a Camera</source>
        <translation>Выбрать камеру</translation>
    </message>
    <message>
        <source>Close other programs that use it, choose another camera, or take the demo camera.</source>
        <translation>Закройте другие программы, занявшие её, выберите другую камеру или возьмите демонстрационную.</translation>
    </message>
    <message>
        <source>Connect %1</source>
        <translation>Подключить: %1</translation>
    </message>
    <message>
        <source>Connect a Web Camera</source>
        <translation>Подключить веб-камеру</translation>
    </message>
    <message>
        <source>Connect a camera</source>
        <translation>Подключите камеру</translation>
    </message>
    <message>
        <source>Connect the built-in camera, which shows a puppet on a stage</source>
        <translation>Подключить встроенную камеру: она показывает куклу на сцене</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>Demo Camera</source>
        <translation>Демонстрационная</translation>
    </message>
    <message>
        <source>This version has no driver for DSLR cameras. Shoot with a web camera or with the built-in demo camera.</source>
        <translation>В этой версии нет драйвера зеркальных камер. Снимайте веб-камерой или встроенной демонстрационной.</translation>
    </message>
</context>
<context>
    <name>FirstStepProject</name>
    <message>
        <source>Choose a name and a place for the project</source>
        <translation>Выбрать имя и место проекта</translation>
    </message>
    <message>
        <source>Create New Project</source>
        <translation>Новый проект</translation>
    </message>
    <message>
        <source>Create or open a project</source>
        <translation>Создайте или откройте проект</translation>
    </message>
    <message>
        <source>Frames go into a project: one file and a folder beside it.</source>
        <translation>Кадры ложатся в проект: это файл и папка рядом с ним.</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Открыть проект</translation>
    </message>
    <message>
        <source>Open a project file</source>
        <translation>Открыть файл проекта</translation>
    </message>
    <message>
        <source>Opened last</source>
        <translation>Открывались недавно</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Недавние проекты</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>A film in three steps</source>
        <translation>Фильм в три шага</translation>
    </message>
    <message>
        <source>Pose the puppet and press Enter for each frame.</source>
        <translation>Ставьте куклу и нажимайте Enter для каждого кадра.</translation>
    </message>
    <message>
        <source>Shoot</source>
        <translation>Снимайте</translation>
    </message>
</context>
<context>
    <name>MainControlBox</name>
    <message>
        <source>About the program</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Application settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Новый проект</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Открыть проект</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Недавние проекты</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Сохранить проект</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
</context>
<context>
    <name>MenuList</name>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
</context>
<context>
    <name>MenuListBox</name>
    <message>
        <source>Clear Settings</source>
        <translation>Сбросить настройки</translation>
    </message>
    <message>
        <source>Create New Project</source>
        <translation>Новый проект</translation>
    </message>
    <message>
        <source>Main menu</source>
        <translation>Главное меню</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Открыть проект</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Недавние проекты</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Сохранить проект как</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Сохранить проект</translation>
    </message>
</context>
<context>
    <name>MorvaneRoot</name>
    <message>
        <source>Hide the titles</source>
        <translation>Спрятать заголовки</translation>
    </message>
    <message>
        <source>No documents</source>
        <translation>Нет документов</translation>
    </message>
    <message>
        <source>Open in the web browser</source>
        <translation>Открыть в браузере</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Прочитать заново</translation>
    </message>
    <message>
        <source>Read the documents again</source>
        <translation>Прочитать документы заново</translation>
    </message>
    <message>
        <source>Return to normal state</source>
        <translation>Вернуть обычный вид</translation>
    </message>
    <message>
        <source>Show the titles</source>
        <translation>Показать заголовки</translation>
    </message>
    <message>
        <source>The file with the documents was not found or could not be read.</source>
        <translation>Файл с документами не найден, или его нельзя прочитать.</translation>
    </message>
    <message>
        <source>This version cannot import pictures yet. A camera can play them: add them to the list of devices.</source>
        <translation>Эта версия пока не умеет импортировать изображения. Их может показывать камера: добавьте их в список устройств.</translation>
    </message>
    <message>
        <source>This version has no preview window yet. F6 shows only the picture.</source>
        <translation>В этой версии пока нет окна просмотра. F6 оставляет одно изображение.</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Заголовки</translation>
    </message>
</context>
<context>
    <name>NoProject</name>
    <message>
        <source>Create New Project</source>
        <translation>Новый проект</translation>
    </message>
    <message>
        <source>No project</source>
        <translation>Нет проекта</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Открыть проект</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Недавние проекты</translation>
    </message>
</context>
<context>
    <name>ProjectPane</name>
    <message>
        <source>Add the frames of another project at the end, with copies of their pictures</source>
        <translation>Добавить в конец кадры другого проекта с копиями их снимков</translation>
    </message>
    <message>
        <source>Animator&apos;s name</source>
        <translation>Имя аниматора</translation>
    </message>
    <message>
        <source>Animator&apos;s surname</source>
        <translation>Фамилия аниматора</translation>
    </message>
    <message>
        <source>Choose a frame size and rate from a list</source>
        <translation>Выбрать обычный размер кадра и скорость</translation>
    </message>
    <message>
        <source>Clean Up</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Close Project</source>
        <translation>Закрыть проект</translation>
    </message>
    <message>
        <source>Close the project</source>
        <translation>Закрыть проект</translation>
    </message>
    <message>
        <source>Director</source>
        <translation>Режиссёр</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Фильм</translation>
    </message>
    <message>
        <source>Frame height</source>
        <translation>Высота кадра</translation>
    </message>
    <message>
        <source>Frame width</source>
        <translation>Ширина кадра</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Кадров в секунду</translation>
    </message>
    <message>
        <source>Import Project</source>
        <translation>Импорт проекта</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Слой</translation>
    </message>
    <message>
        <source>Number of the first frame</source>
        <translation>Номер первого кадра</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Заготовки</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Сохранить проект как</translation>
    </message>
    <message>
        <source>Save the project before it is closed</source>
        <translation>Сначала сохраните проект</translation>
    </message>
    <message>
        <source>Save under another name, pictures and all</source>
        <translation>Сохранить под другим именем вместе со снимками</translation>
    </message>
    <message>
        <source>Save, and remove pictures that no frame uses any more</source>
        <translation>Сохранить и удалить снимки, которые не использует ни один кадр</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Сцена</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
</context>
<context>
    <name>ProjectStatus</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 к/с</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>Кадров: %1</translation>
    </message>
    <message>
        <source>No project</source>
        <translation>Нет проекта</translation>
    </message>
    <message>
        <source>cache %1 %</source>
        <translation>кэш %1 %</translation>
    </message>
</context>
<context>
    <name>ScreenArea</name>
    <message>
        <source>No video</source>
        <translation>Нет видео</translation>
    </message>
    <message>
        <source>The timing of frames is set in a project.</source>
        <translation>Порядок и длительность кадров задают в проекте.</translation>
    </message>
    <message>
        <source>This version cannot play videos yet.</source>
        <translation>Воспроизводить видео эта версия пока не умеет.</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Alt + drag</source>
        <translation>Alt + тянуть</translation>
    </message>
    <message>
        <source>Ctrl + D</source>
        <translation>Ctrl + D</translation>
    </message>
    <message>
        <source>Ctrl + Left click</source>
        <translation>Ctrl + щелчок</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Middle mouse button + drag</source>
        <translation>Средняя кнопка</translation>
    </message>
    <message>
        <source>Shift + Left click</source>
        <translation>Shift + щелчок</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>отменить</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>дублировать</translation>
    </message>
    <message>
        <source>move frames</source>
        <translation>переместить кадры</translation>
    </message>
    <message>
        <source>move the view</source>
        <translation>сдвинуть вид</translation>
    </message>
    <message>
        <source>select a frame</source>
        <translation>выделить кадр</translation>
    </message>
    <message>
        <source>select up to here</source>
        <translation>выделить ряд</translation>
    </message>
</context>
<context>
    <name>StepHint</name>
    <message>
        <source>Capture Frame</source>
        <translation>Снять кадр</translation>
    </message>
    <message>
        <source>Capture the first frame</source>
        <translation>Снять первый кадр</translation>
    </message>
    <message>
        <source>Capture the next frame</source>
        <translation>Снять следующий кадр</translation>
    </message>
    <message>
        <source>Go to the Timing tab and play. Space plays there</source>
        <translation>Перейти на вкладку «Тайминг» и воспроизвести. Там это делает пробел</translation>
    </message>
    <message>
        <source>Go to the button that makes the movie, on the Timing tab</source>
        <translation>Перейти к кнопке, которая создаёт фильм, на вкладке «Тайминг»</translation>
    </message>
    <message>
        <source>Make a movie of it</source>
        <translation>Соберите кадры в фильм</translation>
    </message>
    <message>
        <source>Move the puppet a little and press Enter again</source>
        <translation>Немного сдвиньте куклу и снова нажмите Enter</translation>
    </message>
    <message>
        <source>No more hints. The settings bring them back</source>
        <translation>Больше не подсказывать. Вернуть подсказки можно в настройках</translation>
    </message>
    <message>
        <source>Play the range</source>
        <translation>Воспроизвести диапазон</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Pose the puppet and press Enter</source>
        <translation>Поставьте куклу и нажмите Enter</translation>
    </message>
    <message>
        <source>Render Video</source>
        <translation>Создать фильм</translation>
    </message>
    <message>
        <source>See it move: the Timing tab plays the frames</source>
        <translation>Смотрите движение на вкладке «Тайминг»</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
    </message>
</context>
<context>
    <name>TopLine</name>
    <message>
        <source>Capture</source>
        <translation>Съёмка</translation>
    </message>
    <message>
        <source>Docs</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Полный экран</translation>
    </message>
    <message>
        <source>Hide the right panel</source>
        <translation>Спрятать правую панель</translation>
    </message>
    <message>
        <source>Leave full screen</source>
        <translation>Выйти из полного экрана</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Только изображение</translation>
    </message>
    <message>
        <source>Return to normal state</source>
        <translation>Вернуть обычный вид</translation>
    </message>
    <message>
        <source>Show the right panel</source>
        <translation>Показать правую панель</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>Тайминг</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
</context>
</TS>
