#include "app/facade/MessagesFacet.h"

#include "app/AppControllers.h"

MessagesFacet::MessagesFacet(std::unique_ptr<AppControllers> controllers)
    : VocabularyFacet(std::move(controllers))
{
    const ProgressState &progress = this->controllers().progress;
    connect(&progress, &ProgressState::progressTotalChanged, this, &MessagesFacet::progressTotalChanged);
    connect(&progress, &ProgressState::progressCurrentChanged, this, &MessagesFacet::progressCurrentChanged);
    connect(&progress, &ProgressState::progressActionChanged, this, &MessagesFacet::progressActionChanged);
    const MessageCentre &messages = this->controllers().messages;
    connect(&messages, &MessageCentre::robotErrorCountChanged, this, &MessagesFacet::robotErrorCountChanged);
    connect(&messages, &MessageCentre::errorStringChanged, this, &MessagesFacet::errorStringChanged);
    connect(&messages, &MessageCentre::appendMessage, this, &MessagesFacet::appendMessage);
}

int MessagesFacet::progressTotal() const
{
    return controllers().progress.progressTotal();
}

int MessagesFacet::progressCurrent() const
{
    return controllers().progress.progressCurrent();
}

QString MessagesFacet::progressAction() const
{
    return controllers().progress.progressAction();
}

int MessagesFacet::robotErrorCount() const
{
    return controllers().messages.robotErrorCount();
}

void MessagesFacet::setRobotErrorCount(int count)
{
    controllers().messages.setRobotErrorCount(count);
}

QString MessagesFacet::errorString() const
{
    return controllers().messages.errorString();
}

void MessagesFacet::setProgressTotal(int total)
{
    controllers().progress.setProgressTotal(total);
}

void MessagesFacet::setProgressCurrent(int current)
{
    controllers().progress.setProgressCurrent(current);
}

void MessagesFacet::increaseProgressCurrent()
{
    controllers().progress.increaseProgressCurrent();
}

void MessagesFacet::setProgressAction(const QString &action)
{
    controllers().progress.setProgressAction(action);
}

void MessagesFacet::stopProgress()
{
    controllers().progress.stopProgress();
}

void MessagesFacet::setErrorString(const QString &text, int errorLevel)
{
    controllers().messages.reportError(text, errorLevel);
}

void MessagesFacet::setErrorString(const QString &text)
{
    controllers().messages.reportError(text);
}

void MessagesFacet::playSound(int soundKey)
{
    controllers().sounds.play(soundKey);
}
