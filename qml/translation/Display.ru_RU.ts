<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>Display</name>
    <message>
        <source>Connect %1</source>
        <translation>Подключить: %1</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>No camera: the captured frame shows</source>
        <translation>Нет камеры: показан снятый кадр</translation>
    </message>
    <message>
        <source>The project is ready. Connect a camera, pose the puppet and press Enter for each frame.</source>
        <translation>Проект готов. Подключите камеру, поставьте куклу в позу и нажимайте Enter для каждого кадра.</translation>
    </message>
</context>
<context>
    <name>DisplayRules</name>
    <message>
        <source>Flip-Flop OFF</source>
        <translation>Мигание выключено</translation>
    </message>
    <message>
        <source>Onion-skin OFF</source>
        <translation>Калька выключена</translation>
    </message>
</context>
</TS>
