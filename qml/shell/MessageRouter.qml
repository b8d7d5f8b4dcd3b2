import QtQuick
import Zum 1.0

// Sorts messages into the two lists of the scene, the newest on top.
Item {
    id: router

    readonly property int messagesLimit: 23
    readonly property alias robotMessgModel: robotMessages
    readonly property alias messagesModel: messages

    function senderLabel(sender) {
        switch (sender) {
        case Zum.CameraMessage:
            return qsTr("Camera");
        case Zum.RobotMessage:
            return qsTr("Robot");
        case Zum.FileMessage:
            return qsTr("File");
        case Zum.ZeitRafferMessage:
            return qsTr("Time-Lapse Photography");
        case Zum.VideoPlayerMessage:
            return qsTr("VideoPlayer");
        default:
            return "";
        }
    }

    function route(sender, type, text) {
        const known = [Zum.FatalError, Zum.Error, Zum.Warning, Zum.Info].includes(type);
        if (text.length === 0 || !known)
            return;
        const entry = { sender: sender, type: type, text: senderLabel(sender) + ": " + text };
        if (sender === Zum.RobotMessage) {
            robotMessages.insert(0, entry);
        } else {
            messages.insert(0, entry);
            if (messages.count > messagesLimit)
                messages.remove(messagesLimit, messages.count - messagesLimit);
        }
        if (sender === Zum.CameraMessage)
            WebcamGlobal.cameraMessageText = text;
        playSoundFor(type);
    }

    function playSoundFor(type) {
        if (!WebcamGlobal.soundsOn)
            return;
        if (type === Zum.FatalError || type === Zum.Error)
            MainWindow.playSound(3);
        else if (type === Zum.Warning)
            MainWindow.playSound(0);
    }

    visible: false

    ListModel {
        id: robotMessages
    }

    ListModel {
        id: messages
    }

    Connections {
        target: WebcamGlobal

        function onAppendMessage(msgSender, msgType, msgText) {
            router.route(msgSender, msgType, msgText);
        }
    }
}
