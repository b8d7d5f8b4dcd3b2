<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AtomicFile</name>
    <message>
        <source>The data could not be flushed to the disk</source>
        <translation>Данные не удалось записать на диск</translation>
    </message>
</context>
<context>
    <name>AttributeReader</name>
    <message>
        <source>The value &quot;%1&quot; of &quot;%2&quot; in the project file is refused</source>
        <translation>Значение «%1» поля «%2» в файле проекта отклонено</translation>
    </message>
</context>
<context>
    <name>FileCopy</name>
    <message>
        <source>Save project as...</source>
        <translation>Сохранение проекта...</translation>
    </message>
</context>
<context>
    <name>FrameFiles</name>
    <message>
        <source>Image file doesn&apos;t exist at %1</source>
        <translation>Нет файла изображения %1</translation>
    </message>
    <message>
        <source>Put the missing pictures back into the project&apos;s folder and open the project again, or capture their frames anew</source>
        <translation>Верните недостающие изображения в папку проекта и откройте проект снова или снимите эти кадры заново</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source> BETA</source>
        <translation> BETA</translation>
    </message>
    <message>
        <source> RC</source>
        <translation> RC</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Все файлы</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Звуковые файлы</translation>
    </message>
    <message>
        <source>Cannot find file to open %1</source>
        <translation>Не найден файл %1</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>Выбрать папку...</translation>
    </message>
    <message>
        <source>Choose an external editor...</source>
        <translation>Выбрать внешний редактор...</translation>
    </message>
    <message>
        <source>DSLR</source>
        <translation>Зеркальная камера</translation>
    </message>
    <message>
        <source>External programm not found %1</source>
        <translation>Не найдена внешняя программа %1</translation>
    </message>
    <message>
        <source>File is not readable %1</source>
        <translation>Файл нельзя прочитать: %1</translation>
    </message>
    <message>
        <source>HTML files</source>
        <translation>Файлы HTML</translation>
    </message>
    <message>
        <source>ICC profiles</source>
        <translation>Профили ICC</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Изображения</translation>
    </message>
    <message>
        <source>Initializing. Please wait...</source>
        <translation>Подготовка. Подождите...</translation>
    </message>
    <message>
        <source>Morvane project files</source>
        <translation>Проекты Morvane</translation>
    </message>
    <message>
        <source>No default image editor found</source>
        <translation>Не найден редактор изображений по умолчанию</translation>
    </message>
    <message>
        <source>Open ICC Profile...</source>
        <translation>Открыть профиль ICC...</translation>
    </message>
    <message>
        <source>Open Project...</source>
        <translation>Открыть проект...</translation>
    </message>
    <message>
        <source>Open Video...</source>
        <translation>Открыть видео...</translation>
    </message>
    <message>
        <source>Open file...</source>
        <translation>Открыть файл...</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Файлы PDF</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written. Changes last until the program ends.</source>
        <translation>Файл настроек %1 нельзя записать. Изменения действуют до выхода.</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %1, and the program starts with its defaults.</source>
        <translation>Файл настроек был повреждён. Он сохранён как %1, а программа запущена с обычными настройками.</translation>
    </message>
    <message>
        <source>This version cannot import pictures yet. A camera can play them: add them to the list of devices.</source>
        <translation>Эта версия пока не умеет импортировать изображения. Их может показывать камера: добавьте их в список устройств.</translation>
    </message>
    <message>
        <source>Unable to start %1</source>
        <translation>Не удалось запустить %1</translation>
    </message>
    <message>
        <source>Video Capture Device</source>
        <translation>Устройство видеозахвата</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Видеофайлы</translation>
    </message>
    <message>
        <source>Webcam</source>
        <translation>Веб-камера</translation>
    </message>
    <message>
        <source>camera</source>
        <extracomment>Looked for in the names that devices give themselves, which are English: keep the word as it is</extracomment>
        <translation>camera</translation>
    </message>
    <message>
        <source>device</source>
        <extracomment>Looked for in the names that devices give themselves, which are English: keep the word as it is</extracomment>
        <translation>device</translation>
    </message>
</context>
<context>
    <name>ProjectCleanup</name>
    <message>
        <source>Cleanup project dir &apos;%1&apos;</source>
        <translation>Очистка папки проекта «%1»</translation>
    </message>
</context>
<context>
    <name>ProjectLifecycle</name>
    <message numerus="yes">
        <source>%n captured picture(s) in the project&apos;s folder belong to no frame.</source>
        <translation>
            <numerusform>%n снимок в папке проекта не принадлежит ни одному кадру.</numerusform>
            <numerusform>%n снимка в папке проекта не принадлежат ни одному кадру.</numerusform>
            <numerusform>%n снимков в папке проекта не принадлежат ни одному кадру.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) could not be copied or removed. Make room on the disk, or check that the folders can be written</source>
        <translation>
            <numerusform>Не удалось скопировать или удалить %n файл. Освободите место на диске или проверьте, доступны ли папки для записи</numerusform>
            <numerusform>Не удалось скопировать или удалить %n файла. Освободите место на диске или проверьте, доступны ли папки для записи</numerusform>
            <numerusform>Не удалось скопировать или удалить %n файлов. Освободите место на диске или проверьте, доступны ли папки для записи</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; already exists. Replace it?</source>
        <translation>«%1» уже есть. Заменить?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written</source>
        <translation>«%1» нельзя записать</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was opened on %2 by the program with the number %3 on the computer &apos;%4&apos;.</source>
        <translation>«%1» открыт %2 программой с номером %3 на компьютере «%4».</translation>
    </message>
    <message>
        <source>A project of the older format cannot be imported. Open it, save it, and import what was saved</source>
        <translation>Проект старого формата нельзя импортировать. Откройте его, сохраните и импортируйте сохранённый</translation>
    </message>
    <message>
        <source>Add at the End</source>
        <translation>Добавить в конец</translation>
    </message>
    <message>
        <source>Add them at the end, or move them to the recycle folder? Cancel leaves them where they are and does not ask about them again.</source>
        <translation>Добавить их в конец или переложить в папку «recyclebin»? «Отмена» оставит их на месте, и вопроса о них больше не будет.</translation>
    </message>
    <message>
        <source>Another operation is still running. Open the project again when it has ended</source>
        <translation>Ещё идёт другая операция. Откройте проект снова, когда она закончится</translation>
    </message>
    <message>
        <source>Another project uses the same folder: its pictures were not cleaned up. Save one of the two under another name first</source>
        <translation>Той же папкой пользуется другой проект: её изображения не очищены. Сначала сохраните один из двух под другим именем</translation>
    </message>
    <message>
        <source>Cannot create a file when file already exists</source>
        <translation>Нельзя создать файл: такой уже есть</translation>
    </message>
    <message>
        <source>Cannot create a folder when folder already exists: %1</source>
        <translation>Нельзя создать папку: такая уже есть: %1</translation>
    </message>
    <message>
        <source>Cannot import project to itself</source>
        <translation>Нельзя импортировать проект в него самого</translation>
    </message>
    <message>
        <source>Close it there first.</source>
        <translation>Сначала закройте его там.</translation>
    </message>
    <message>
        <source>Copy frames...</source>
        <translation>Копирование кадров...</translation>
    </message>
    <message>
        <source>Copying was stopped. Not all pictures of the project are in &apos;%1&apos;. Open the project at its old place and save it under another name again</source>
        <translation>Копирование остановлено. В «%1» лежат не все изображения проекта. Откройте проект на прежнем месте и снова сохраните его под другим именем</translation>
    </message>
    <message>
        <source>Couldn&apos;t open &apos;%1&apos;</source>
        <translation>Не удалось открыть «%1»</translation>
    </message>
    <message>
        <source>Create New Project...</source>
        <translation>Новый проект...</translation>
    </message>
    <message>
        <source>File Already Exists</source>
        <translation>Файл уже есть</translation>
    </message>
    <message>
        <source>Folder Already Exists</source>
        <translation>Папка уже есть</translation>
    </message>
    <message>
        <source>Import Project</source>
        <translation>Импорт проекта</translation>
    </message>
    <message>
        <source>Import frames...</source>
        <translation>Импорт кадров...</translation>
    </message>
    <message>
        <source>Load Project File Problem</source>
        <translation>Ошибка чтения проекта</translation>
    </message>
    <message>
        <source>Loading Project</source>
        <translation>Загрузка проекта</translation>
    </message>
    <message>
        <source>Move to Recycle Folder</source>
        <translation>Переложить в «recyclebin»</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Всё равно открыть</translation>
    </message>
    <message>
        <source>Pictures Without a Frame</source>
        <translation>Снимки без кадра</translation>
    </message>
    <message>
        <source>Project Is Already Open</source>
        <translation>Проект уже открыт</translation>
    </message>
    <message>
        <source>Project already loaded</source>
        <translation>Проект уже загружен</translation>
    </message>
    <message>
        <source>Project file not found</source>
        <translation>Не найден файл проекта</translation>
    </message>
    <message>
        <source>Project loaded</source>
        <translation>Проект загружен</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>Сохранить проект...</translation>
    </message>
    <message>
        <source>That program has ended without closing it.</source>
        <translation>Та программа завершилась, не закрыв его.</translation>
    </message>
    <message>
        <source>The project is not loaded completely and was not saved. Open it again</source>
        <translation>Проект загружен не полностью и не сохранён. Откройте его снова</translation>
    </message>
    <message>
        <source>Whether it still runs there cannot be told from here.</source>
        <translation>Работает ли она там ещё, отсюда узнать нельзя.</translation>
    </message>
    <message>
        <source>error loading project</source>
        <translation>ошибка загрузки проекта</translation>
    </message>
</context>
<context>
    <name>ProjectMapping</name>
    <message>
        <source>The value &quot;%1&quot; in the project file is not a colour</source>
        <translation>Значение «%1» в файле проекта — не цвет</translation>
    </message>
</context>
<context>
    <name>ProjectPathCheck</name>
    <message>
        <source>Allow yourself to read the file, or copy it and its folder to a place of your own</source>
        <translation>Разрешите себе чтение файла или скопируйте его вместе с папкой в своё место</translation>
    </message>
    <message>
        <source>Cannot find project folder &apos;%1&apos;</source>
        <translation>Не найдена папка проекта «%1»</translation>
    </message>
    <message>
        <source>Choose a file whose name ends with .%1</source>
        <translation>Выберите файл, имя которого кончается на .%1</translation>
    </message>
    <message>
        <source>Look whether its disk is connected and whether it was moved, and open the project again</source>
        <translation>Проверьте, подключён ли его диск и не перемещён ли файл, и откройте проект снова</translation>
    </message>
    <message>
        <source>Project &apos;%1&apos; is not a file</source>
        <translation>Проект «%1» — не файл</translation>
    </message>
    <message>
        <source>Project file &apos;%1&apos; does not exists</source>
        <translation>Файла проекта «%1» нет</translation>
    </message>
    <message>
        <source>Project file &apos;%1&apos; has unrecognized suffix &apos;%2&apos;</source>
        <translation>Неизвестное окончание файла проекта «%1»: «%2»</translation>
    </message>
    <message>
        <source>Project file &apos;%1&apos; is not readable</source>
        <translation>Файл проекта «%1» нельзя прочитать</translation>
    </message>
    <message>
        <source>The pictures lie in that folder. Put it back beside the project file and open the project again</source>
        <translation>В этой папке лежат изображения. Верните её на место рядом с файлом проекта и откройте проект снова</translation>
    </message>
</context>
<context>
    <name>ProjectReader</name>
    <message>
        <source>A document type declaration has no place in a project file</source>
        <translation>Объявлению типа документа не место в файле проекта</translation>
    </message>
    <message>
        <source>A single piece of the file is too long</source>
        <translation>Слишком длинный кусок файла</translation>
    </message>
    <message>
        <source>An element has too many attributes</source>
        <translation>У элемента слишком много полей</translation>
    </message>
    <message>
        <source>Frame %1: the file name &quot;%2&quot; is refused</source>
        <translation>Кадр %1: имя файла «%2» отклонено</translation>
    </message>
    <message>
        <source>Frame %1: the value &quot;%2&quot; of &quot;%3&quot; is refused</source>
        <translation>Кадр %1: значение «%2» поля «%3» отклонено</translation>
    </message>
    <message>
        <source>The document type declaration of the project file is ignored</source>
        <translation>Объявление типа документа в файле проекта пропущено</translation>
    </message>
    <message>
        <source>The elements are nested too deep</source>
        <translation>Элементы вложены слишком глубоко</translation>
    </message>
    <message>
        <source>The project has too many frames</source>
        <translation>В проекте слишком много кадров</translation>
    </message>
</context>
<context>
    <name>ProjectReport</name>
    <message>
        <source>Allow yourself to read the file, or open a copy of it</source>
        <translation>Разрешите себе чтение файла или откройте его копию</translation>
    </message>
    <message>
        <source>Couldn&apos;t open &apos;%1&apos;</source>
        <translation>Не удалось открыть «%1»</translation>
    </message>
    <message>
        <source>Load XML File Problem</source>
        <translation>Ошибка чтения файла</translation>
    </message>
    <message>
        <source>The file is no project, or one of another version: open it with the program that wrote it</source>
        <translation>Файл не проект или записан другой версией: откройте его программой, которая его записала</translation>
    </message>
    <message>
        <source>The project could not be saved: %1. The file on disk is as it was. Make room on the disk, or choose a place that can be written.</source>
        <translation>Проект не удалось сохранить: %1. Файл на диске остался прежним. Освободите место на диске или выберите место, доступное для записи.</translation>
    </message>
    <message>
        <source>The project file is damaged: open a backup of it. The pictures in its folder are as they were</source>
        <translation>Файл проекта повреждён: откройте его резервную копию. Изображения в его папке остались прежними</translation>
    </message>
</context>
<context>
    <name>ProjectVersion</name>
    <message>
        <source>Legacy version (%1). Converting...</source>
        <translation>Старая версия (%1). Преобразование...</translation>
    </message>
    <message>
        <source>Unrecognized project version (%1)</source>
        <translation>Неизвестная версия проекта (%1)</translation>
    </message>
    <message>
        <source>Unrecognized project version. Version attribute not found</source>
        <translation>Неизвестная версия проекта: она в файле не указана</translation>
    </message>
    <message>
        <source>Unrecognized root tag name, unrecognized version tag or version number</source>
        <translation>Это не файл проекта, или его версия неизвестна</translation>
    </message>
    <message>
        <source>Wrong version number for legacy project (%1)</source>
        <translation>Неверная версия старого проекта (%1)</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Refusals</name>
    <message>
        <source>%1 further values of the project file were refused</source>
        <translation>Отклонено и других значений в файле проекта: %1</translation>
    </message>
</context>
<context>
    <name>SettingsFacet</name>
    <message>
        <source>Cannot open %1. Open it in a web browser yourself</source>
        <translation>Не удалось открыть %1. Откройте этот адрес в браузере сами</translation>
    </message>
</context>
</TS>
