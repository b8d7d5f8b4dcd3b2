#pragma once

#include "shared/vocabulary/ProgramVocabulary.h"

/// The words of the frames and of the jobs that work on them.
/// Part of Zum, and used by that name.
class TimelineVocabulary : public ProgramVocabulary
{
    Q_OBJECT

public:
    using ProgramVocabulary::ProgramVocabulary;

    enum MorvaRoles {
        FrameIndex,
        KudaGUID,
        KudaNextGUID,
        KudaPrevGUID,
        UndoAction,
        Ingroup,
        CapFull,
        CapTIFF,
        CapRAW,
        CapTumb,
        RefFull,
        RefTumb,
        StaticState,
        PhaseNumber,
        GUID,
        NextGUID,
        PrevGUID,
        GotCapImage,
        GotRefImage,
        Mirrored,
        CapFullMissing,
        RefFullMissing,
        Hidden,
        BackgroundFull
    };
    Q_ENUM(MorvaRoles)

    enum ActTypes {
        ActNoAction,
        ActDelete,
        ActClearCaptured,
        ActClearReference,
        ActClearFrameContents,
        ActSelect,
        ActDeselect,
        ActDismiss,
        ActDuplicateAndMoveFrames,
        ActDuplicateFrames,
        ActMoveFrames,
        ActSetGUID,
        ActSetMirrored,
        ActUnsetMirrored,
        ActSearchStaticness,
        ActSearchHiddenFrames,
        ActCheckImageMissing,
        ActInsert,
        ActHideFrames
    };
    Q_ENUM(ActTypes)

    enum UndoRedoTypes { ActionMove, ActionInsert, ActionRemove, ActionModify, NoUndoAction };
    Q_ENUM(UndoRedoTypes)

    enum ImportTargets { CapturedImages, ReferenceImages, CapturedAndReferenceImages, NoTarget };
    Q_ENUM(ImportTargets)

    enum TimelineInRangePosition { FirstInRange, LastInRange, InRange, NotInRange };
    Q_ENUM(TimelineInRangePosition)

    enum RangePositions { ReachedStart, ReachedEnd, ReachedRangeStart, ReachedRangeEnd, UndefinedPosition };
    Q_ENUM(RangePositions)

    enum FrameWrappers { NoFrameWrapper, StaticFrameWrapper, FileInfoFrameWrapper };
    Q_ENUM(FrameWrappers)

    enum RobotJobTypes { RenderVideo, SplitVideo, GenThumbnails, ExportFrames, NoJob, UpdateFromRAWs };
    Q_ENUM(RobotJobTypes)

    enum UpdateRAWJobTypes { UpdateRAWCurrentOnly, UpdateRAWAll, UpdateRAWInRange, UpdateRAWNone };
    Q_ENUM(UpdateRAWJobTypes)

    enum ExportPicFormats { ExportPNG, ExportJPG, ExportTIFF, ExportWEBP, ExportBMP };
    Q_ENUM(ExportPicFormats)

    enum ExportPolicy {
        ExportPolicyCropped,
        ExportPolicyFitByWidth,
        ExportPolicyFitByHeight,
        ExportPolicyCroppedAndResized
    };
    Q_ENUM(ExportPolicy)
};
