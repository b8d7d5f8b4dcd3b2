#pragma once

#include "app/facade/VocabularyFacet.h"
#include "shared/PropertyMacros.h"

/// Messages to the user, the progress bar and the event sounds.
class MessagesFacet : public VocabularyFacet
{
    Q_OBJECT
    Q_PROPERTY(int progressTotal READ progressTotal WRITE setProgressTotal NOTIFY progressTotalChanged)
    Q_PROPERTY(
        int progressCurrent READ progressCurrent WRITE setProgressCurrent NOTIFY progressCurrentChanged)
    Q_PROPERTY(
        QString progressAction READ progressAction WRITE setProgressAction NOTIFY progressActionChanged)
    Q_PROPERTY(
        int robotErrorCount READ robotErrorCount WRITE setRobotErrorCount NOTIFY robotErrorCountChanged)
    Q_PROPERTY(QString errorString READ errorString NOTIFY errorStringChanged)

public:
    enum EventSounds {
        EventSoundWarning,
        EventSoundBigWarning,
        EventSoundsNotify,
        EventSoundsError,
        EventSoundsAppear,
    };
    Q_ENUM(EventSounds)

    explicit MessagesFacet(std::unique_ptr<AppControllers> controllers);

    int progressTotal() const;
    int progressCurrent() const;
    QString progressAction() const;
    int robotErrorCount() const;
    void setRobotErrorCount(int count);
    QString errorString() const;

public slots:
    void setProgressTotal(int total);
    void setProgressCurrent(int current);
    void increaseProgressCurrent();
    void setProgressAction(const QString &action);
    void stopProgress();
    void setErrorString(const QString &text, int errorLevel);
    void setErrorString(const QString &text);
    void playSound(int soundKey);

signals:
    void progressTotalChanged();
    void progressCurrentChanged();
    void progressActionChanged();
    void robotErrorCountChanged();
    void errorStringChanged();
    /// Sender from Zum::MessageSources, type from Zum::MessageTypes.
    void appendMessage(int msgSender, int msgType, const QString &msgText);
};
