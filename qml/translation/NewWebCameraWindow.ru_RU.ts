<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>NewWebCameraWindow</name>
    <message>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Отключено</translation>
    </message>
</context>
<context>
    <name>SceneCapture</name>
    <message>
        <source>The camera is gone, and the last shot with it. Everything shot before is in the project. Connect the camera again to go on</source>
        <translation>Камера пропала, а с ней и последний снимок. Всё снятое раньше сохранено в проекте. Подключите камеру снова, чтобы продолжить</translation>
    </message>
    <message>
        <source>The camera is gone. Everything shot so far is in the project. Connect the camera again to go on</source>
        <translation>Камера пропала. Всё снятое сохранено в проекте. Подключите камеру снова, чтобы продолжить</translation>
    </message>
</context>
</TS>
