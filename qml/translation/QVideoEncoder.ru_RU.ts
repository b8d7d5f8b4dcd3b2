<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>QVideoEncoder</name>
    <message>
        <source>Audio codec not found</source>
        <translation>Аудиокодек не найден</translation>
    </message>
    <message>
        <source>Cannot apply post-process effects</source>
        <translation>Не удалось применить эффекты</translation>
    </message>
    <message>
        <source>Could not find encoder for %1</source>
        <translation>Не найден кодировщик для %1</translation>
    </message>
    <message>
        <source>Could not open audio codec</source>
        <translation>Не удалось открыть аудиокодек</translation>
    </message>
    <message>
        <source>Could not open video codec</source>
        <translation>Не удалось открыть видеокодек</translation>
    </message>
    <message>
        <source>Error allocating format context</source>
        <translation>Не удалось подготовить файл этого формата</translation>
    </message>
    <message>
        <source>Error occurred when opening output file</source>
        <translation>Ошибка при открытии выходного файла</translation>
    </message>
    <message>
        <source>Invalid size. Size must be a multiple of 8</source>
        <translation>Неверный размер. Размер должен быть кратен 8</translation>
    </message>
    <message>
        <source>Unknown output format. Try to restart encoding</source>
        <translation>Неизвестный выходной формат. Попробуйте начать кодирование заново</translation>
    </message>
</context>
</TS>
