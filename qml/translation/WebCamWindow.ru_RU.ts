<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CaptureWorkflow</name>
    <message>
        <source>Taking a picture. Please wait</source>
        <translation>Идёт съёмка. Подождите</translation>
    </message>
</context>
<context>
    <name>WebCamWindow</name>
    <message>
        <source>Camera not present, not connected or not supported. Check hardware connection</source>
        <translation>Камеры нет, она не подключена или не поддерживается. Проверьте подключение</translation>
    </message>
    <message>
        <source>Close other programs that use the camera, choose another one in the list of devices, or take the Demo Webcam</source>
        <translation>Закройте другие программы, занявшие камеру, выберите в списке устройств другую или возьмите Demo Webcam</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>Failed to initialize LiveView. Probably your camera does not support this feature</source>
        <translation>Не удалось включить живой вид. Возможно, камера её не поддерживает</translation>
    </message>
    <message>
        <source>Failed to receive image from camera</source>
        <translation>Не удалось получить снимок с камеры</translation>
    </message>
    <message>
        <source>No connection with camera</source>
        <translation>Нет связи с камерой</translation>
    </message>
    <message>
        <source>The camera is gone. Everything shot so far is in the project. Connect again to go on where it stopped</source>
        <translation>Камера пропала. Всё снятое осталось в проекте. Подключите её снова, чтобы продолжить с того же места</translation>
    </message>
    <message>
        <source>The part of the program that reads cameras and movies is missing or damaged. Install the program again. %1</source>
        <translation>Часть программы, которая читает камеры и фильмы, отсутствует или повреждена. Установите программу заново. %1</translation>
    </message>
</context>
</TS>
