#pragma once

#include "shared/global/PreviewState.h"
#include "shared/Zum.h"

#include <QString>
#include <QVariant>

/// Shared state of the program: the video player and video import.
class PlayerState : public PreviewState
{
    Q_OBJECT

    MORVANE_PROPERTY(bool, playerPlaying, PlayerPlaying, false)
    MORVANE_PROPERTY(bool, playerPaused, PlayerPaused, false)
    MORVANE_PROPERTY(bool, playerInitialized, PlayerInitialized, false)
    MORVANE_PROPERTY(QString, playerSource, PlayerSource)
    MORVANE_PROJECT_PROPERTY(int, playerRangeStart, PlayerRangeStart, 0)
    MORVANE_PROJECT_PROPERTY(int, playerRangeEnd, PlayerRangeEnd, 0)
    MORVANE_PROPERTY(bool, startPlayerOnTabEnabled, StartPlayerOnTabEnabled, false)
    MORVANE_PROPERTY(bool, gotVideoPlaybackError, GotVideoPlaybackError, false)
    MORVANE_PROPERTY(QVariant, videoPlaybackError, VideoPlaybackError)
    MORVANE_PROPERTY(bool, videoExtractorOn, VideoExtractorOn, false)
    MORVANE_PROPERTY(bool, videoExtractorAvailale, VideoExtractorAvailale, false)
    MORVANE_PROPERTY(int, videoImportTarget, VideoImportTarget, Zum::NoTarget)
    MORVANE_PROPERTY(qreal, videoImportScale, VideoImportScale, 1.0)
    MORVANE_PROPERTY(qint64, importVideoStart, ImportVideoStart, 0)
    MORVANE_PROPERTY(qint64, importVideoEnd, ImportVideoEnd, 0)
    MORVANE_PROPERTY(qint64, importVideoFramesAmount, ImportVideoFramesAmount, 0)

public:
    using PreviewState::PreviewState;
};
