#pragma once

#include "shared/PropertyMacros.h"
#include "shared/Zum.h"

#include <QString>

/// Where every part of the program reports what the user must see. Main thread only; a worker reports
/// through a queued signal of its owner.
class MessageCentre : public QObject
{
    Q_OBJECT

    /// The last error text.
    MORVANE_PROPERTY(QString, errorString, ErrorString)
    /// Errors since the screen last cleared them.
    MORVANE_PROPERTY(int, robotErrorCount, RobotErrorCount, 0)

public:
    using QObject::QObject;

    /// Stores the text, counts it, and sends it on as a message of the robot. `level` is a Zum::MessageTypes.
    void reportError(const QString &text, int level = Zum::Error)
    {
        setErrorString(text);
        setRobotErrorCount(robotErrorCount() + 1);
        emit appendMessage(Zum::RobotMessage, level, text);
    }

    /// Says what to do about the error that is reported next: the lists show the newest message on top, so
    /// the advice comes to stand below it.
    void advise(int sender, const QString &text)
    {
        post(sender, Zum::Info, text);
    }

    /// Sends a message on without counting it as an error.
    void post(int sender, int type, const QString &text)
    {
        emit appendMessage(sender, type, text);
    }

signals:
    /// `msgSender` is one of Zum::MessageSources, `msgType` one of Zum::MessageTypes.
    void appendMessage(int msgSender, int msgType, const QString &msgText);
};
