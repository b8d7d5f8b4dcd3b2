<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>SaveConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Ok saves it, Cancel goes on without saving. Close this dialog to go back to work.</source>
        <translation>«Ok» сохраняет проект, «Отмена» продолжает без сохранения. Чтобы вернуться к работе, закройте этот вопрос.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Save Project?</source>
        <translation>Сохранить проект?</translation>
    </message>
</context>
</TS>
