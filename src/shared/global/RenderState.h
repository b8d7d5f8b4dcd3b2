#pragma once

#include "shared/global/PlayerState.h"
#include "shared/Zum.h"

#include <QSize>
#include <QString>
#include <QVariantMap>

/// Shared state of the program: movie rendering and frame export.
class RenderState : public PlayerState
{
    Q_OBJECT

    MORVANE_PROPERTY(QString, renderFormatNameStr, RenderFormatNameStr, QStringLiteral("avi"))
    MORVANE_PROPERTY(QString, renderExt, RenderExt, QStringLiteral("avi"))
    MORVANE_PROJECT_PROPERTY(QString, renderFileName, RenderFileName, QStringLiteral("videotest"))
    /// Bits a second. Only old projects bring another; a render refuses to start below 1000.
    MORVANE_PROJECT_PROPERTY(int, renderBitrate, RenderBitrate, 8000000)
    MORVANE_PROPERTY(int, renderQmax, RenderQmax, 2)
    MORVANE_PROJECT_PROPERTY(bool, renderTimecode, RenderTimecode, false)
    MORVANE_PROJECT_PROPERTY(int, videoExportPolicy, VideoExportPolicy, Zum::ExportPolicyCropped)
    MORVANE_PROPERTY(QString, exportPolicyText, ExportPolicyText)
    MORVANE_PROPERTY(QString, videoRenderSettsStr, VideoRenderSettsStr)
    MORVANE_PROPERTY(QString, lastRenderedPath, LastRenderedPath)
    /// Follows exportSizeW and exportSizeH.
    MORVANE_PROPERTY(QSize, exportSize, ExportSize, 1920, 1080)
    MORVANE_PROJECT_PROPERTY(int, exportSizeW, ExportSizeW, 1920)
    MORVANE_PROJECT_PROPERTY(int, exportSizeH, ExportSizeH, 1080)
    /// Follows sequenceExportSizeW and sequenceExportSizeH.
    MORVANE_PROPERTY(QSize, sequenceExportSize, SequenceExportSize, 1920, 1080)
    MORVANE_PROJECT_PROPERTY(int, sequenceExportSizeW, SequenceExportSizeW, 1920)
    MORVANE_PROJECT_PROPERTY(int, sequenceExportSizeH, SequenceExportSizeH, 1080)
    MORVANE_PROJECT_PROPERTY(int, exportPicFormat, ExportPicFormat, Zum::ExportPNG)
    MORVANE_PROJECT_PROPERTY(bool, exportFramesInRangeOnly, ExportFramesInRangeOnly, true)
    MORVANE_PROJECT_PROPERTY(QString, exportPath, ExportPath)
    MORVANE_PROJECT_PROPERTY(bool, translitOn, TranslitOn, false)
    MORVANE_PROJECT_PROPERTY(QVariantMap, webpSettings, WebpSettings)

public:
    using PlayerState::PlayerState;
};
