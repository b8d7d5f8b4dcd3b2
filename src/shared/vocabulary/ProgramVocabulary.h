#pragma once

#include <QObject>

/// The words of the program as a whole: windows, dialogs, messages, project files.
/// Part of Zum, and used by that name.
class ProgramVocabulary : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    enum OnOffState { Enable, Disable };
    Q_ENUM(OnOffState)

    enum NumericDirection { Increase, Decrease };
    Q_ENUM(NumericDirection)

    enum Orientation { Vertical, Horizontal };
    Q_ENUM(Orientation)

    enum AbstractDirections { Forward, Backward, NoDirection };
    Q_ENUM(AbstractDirections)

    enum ButtonToggleTypes { NoToggle, ToggleAsButton, ToggleAsTab };
    Q_ENUM(ButtonToggleTypes)

    enum AppTabs { CaptureTab, TimingTab, VideoTab, DocsTab };
    Q_ENUM(AppTabs)

    enum AdditionalWindows {
        PreviewWindow,
        HelpWindow,
        VideoPlayerWindow,
        LightboxWindow,
        VideoVillageWindow,
        Oscilloscope
    };
    Q_ENUM(AdditionalWindows)

    enum LightboxMode { LightboxModeColor, LightboxModePicture };
    Q_ENUM(LightboxMode)

    enum RenderPositions { OnTop, OnRight, OnBottom, OnLeft };
    Q_ENUM(RenderPositions)

    enum RunningOS { WindowsOS, LinuxOS, MacOS };
    Q_ENUM(RunningOS)

    enum FeaturesList { CameraCapture, CameraConnect, ZeitRafferEnable, ProjectAccess };
    Q_ENUM(FeaturesList)

    enum MessageTypes { FatalError, Error, Warning, Info };
    Q_ENUM(MessageTypes)

    enum MessageSources {
        CommonMessage,
        CameraMessage,
        RobotMessage,
        FileMessage,
        ZeitRafferMessage,
        VideoPlayerMessage
    };
    Q_ENUM(MessageSources)

    enum FilesFilterTypes {
        ProjectFilesFilter,
        NewProjectFilesFilter,
        VideoFilesFilter,
        ImageFilesFilter,
        IccProfilesFilter,
        ExecudablesFilter,
        ExpoImagesFilter
    };
    Q_ENUM(FilesFilterTypes)

    enum OpenFileEvents {
        FileIsOk,
        FilePathEmpty,
        FileDoesntExists,
        FileAlreadyOpened,
        FileXMLunparseble,
        FileSelectionCanceled,
        NotMorvaneFile,
        LegacyFile
    };
    Q_ENUM(OpenFileEvents)

    enum SaveMode { SaveProjectAs, SaveProject, SaveProjectAndCleanup, SaveProjectXMLonly, NewProject };
    Q_ENUM(SaveMode)

    enum AfterConfirmAction {
        NoAfterConfirmAction,
        QuitAfterConfirm,
        OpenProjectAfterConfirm,
        CreateProjectAfterConfirm
    };
    Q_ENUM(AfterConfirmAction)

    enum PrintTypes { PrintToPDF, PrintToPrinter, NoPrint };
    Q_ENUM(PrintTypes)

    enum CurrentThreadOperations {
        OCopyFrames,
        OAddFrames,
        OCopyFramesOnSaveAs,
        OCleanupProject,
        OMakeExpolist,
        ONoOperation
    };
    Q_ENUM(CurrentThreadOperations)
};
