<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CleanupConfirmDialog</name>
    <message>
        <source>Save the project and remove the pictures that no frame uses any more? They cannot be brought back, and undo will not find them.</source>
        <translation>Сохранить проект и удалить снимки, которые не использует ни один кадр? Вернуть их будет нельзя, отмена их не найдёт.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
