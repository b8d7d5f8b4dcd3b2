#pragma once

#include <QObject>
#include <QString>

/// The program's shared vocabulary. Every enumeration that the scene and native code both name lives
/// here; the numbers stand in project files and settings, so they may never be renumbered.
///
/// Registered in QML as the type "Zum" of the module "Zum" 1.0. Has no state of its own beyond two
/// process-wide values that are set once at start, on the main thread, before anything reads them, and the
/// folders of the open project.
class Zum : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    enum BufferPlayerMode {
        FullScaleImage,
        WaveformImage,
        VectorscopeImage,
        HistogramImage,
    };
    Q_ENUM(BufferPlayerMode)

    enum WebcamProperties {
        WebcamBrightness,
        WebcamContrast,
        WebcamSaturation,
        WebcamHue,
        WebcamGain,
        WebcamExposure,
        WebcamAutoExposure,
        WebcamSharpness,
        WebcamZoom,
        WebcamFocus,
        WebcamAutofocus,
    };
    Q_ENUM(WebcamProperties)

    enum ExportPolicy {
        ExportPolicyCropped,
        ExportPolicyFitByWidth,
        ExportPolicyFitByHeight,
        ExportPolicyCroppedAndResized,
    };
    Q_ENUM(ExportPolicy)

    enum BlendType {
        NoBlend,
        BlendDarken,
        BlendMultiply,
        BlendColorBurn,
        BlendLighten,
        BlendScreen,
        BlendColorDodge,
        BlendOverlay,
        BlendSoftLight,
        BlendHardLight,
        BlendDifference,
        BlendExclusion,
        BlendPlus,
        BlendXor,
    };
    Q_ENUM(BlendType)

    enum CapturingDevice {
        NoCapturingDevice,
        CapturingDeviceWebcam,
        CapturingDeviceCanonEOS,
        CapturingDeviceSony,
        CapturingDeviceHDMITethering,
    };
    Q_ENUM(CapturingDevice)

    enum AfterConfirmAction {
        NoAfterConfirmAction,
        QuitAfterConfirm,
        OpenProjectAfterConfirm,
        CreateProjectAfterConfirm,
    };
    Q_ENUM(AfterConfirmAction)

    enum UndoRedoTypes {
        ActionMove,
        ActionInsert,
        ActionRemove,
        ActionModify,
        NoUndoAction,
    };
    Q_ENUM(UndoRedoTypes)

    enum ImportTargets {
        CapturedImages,
        ReferenceImages,
        CapturedAndReferenceImages,
        NoTarget,
    };
    Q_ENUM(ImportTargets)

    enum PrintTypes {
        PrintToPDF,
        PrintToPrinter,
        NoPrint,
    };
    Q_ENUM(PrintTypes)

    enum OnOffState {
        Enable,
        Disable,
    };
    Q_ENUM(OnOffState)

    enum NumericDirection {
        Increase,
        Decrease,
    };
    Q_ENUM(NumericDirection)

    enum Orientation {
        Vertical,
        Horizontal,
    };
    Q_ENUM(Orientation)

    enum ButtonToggleTypes {
        NoToggle,
        ToggleAsButton,
        ToggleAsTab,
    };
    Q_ENUM(ButtonToggleTypes)

    enum AppTabs {
        CaptureTab,
        TimingTab,
        VideoTab,
        DocsTab,
    };
    Q_ENUM(AppTabs)

    enum AbstractDirections {
        Forward,
        Backward,
        NoDirection,
    };
    Q_ENUM(AbstractDirections)

    enum StackDirections {
        NoStack,
        StackFuture,
        StackPast,
    };
    Q_ENUM(StackDirections)

    enum FlipFlopTypes {
        FadeFlipFlop,
        FlashFlipFlop,
        NoFlipFlop,
    };
    Q_ENUM(FlipFlopTypes)

    enum RobotJobTypes {
        RenderVideo,
        SplitVideo,
        GenThumbnails,
        ExportFrames,
        NoJob,
        UpdateFromRAWs,
    };
    Q_ENUM(RobotJobTypes)

    enum UpdateRAWJobTypes {
        UpdateRAWCurrentOnly,
        UpdateRAWAll,
        UpdateRAWInRange,
        UpdateRAWNone,
    };
    Q_ENUM(UpdateRAWJobTypes)

    enum TimelineInRangePosition {
        FirstInRange,
        LastInRange,
        InRange,
        NotInRange,
    };
    Q_ENUM(TimelineInRangePosition)

    enum FilesFilterTypes {
        ProjectFilesFilter,
        NewProjectFilesFilter,
        VideoFilesFilter,
        ImageFilesFilter,
        IccProfilesFilter,
        ExecudablesFilter,
        ExpoImagesFilter,
    };
    Q_ENUM(FilesFilterTypes)

    enum MessageTypes {
        FatalError,
        Error,
        Warning,
        Info,
    };
    Q_ENUM(MessageTypes)

    enum MessageSources {
        CommonMessage,
        CameraMessage,
        RobotMessage,
        FileMessage,
        ZeitRafferMessage,
        VideoPlayerMessage,
    };
    Q_ENUM(MessageSources)

    enum OpenFileEvents {
        FileIsOk,
        FilePathEmpty,
        FileDoesntExists,
        FileAlreadyOpened,
        FileXMLunparseble,
        FileSelectionCanceled,
        NotMorvaneFile,
        LegacyFile,
    };
    Q_ENUM(OpenFileEvents)

    enum AdditionalWindows {
        PreviewWindow,
        HelpWindow,
        VideoPlayerWindow,
        LightboxWindow,
        VideoVillageWindow,
        Oscilloscope,
    };
    Q_ENUM(AdditionalWindows)

    enum LightboxMode {
        LightboxModeColor,
        LightboxModePicture,
    };
    Q_ENUM(LightboxMode)

    enum RenderPositions {
        OnTop,
        OnRight,
        OnBottom,
        OnLeft,
    };
    Q_ENUM(RenderPositions)

    enum SaveMode {
        SaveProjectAs,
        SaveProject,
        SaveProjectAndCleanup,
        SaveProjectXMLonly,
        NewProject,
    };
    Q_ENUM(SaveMode)

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
        ActHideFrames,
    };
    Q_ENUM(ActTypes)

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
        BackgroundFull,
    };
    Q_ENUM(MorvaRoles)

    enum FrameWrappers {
        NoFrameWrapper,
        StaticFrameWrapper,
        FileInfoFrameWrapper,
    };
    Q_ENUM(FrameWrappers)

    enum RunningOS {
        WindowsOS,
        LinuxOS,
        MacOS,
    };
    Q_ENUM(RunningOS)

    enum RangePositions {
        ReachedStart,
        ReachedEnd,
        ReachedRangeStart,
        ReachedRangeEnd,
        UndefinedPosition,
    };
    Q_ENUM(RangePositions)

    enum FeaturesList {
        CameraCapture,
        CameraConnect,
        ZeitRafferEnable,
        ProjectAccess,
    };
    Q_ENUM(FeaturesList)

    enum CurrentThreadOperations {
        OCopyFrames,
        OAddFrames,
        OCopyFramesOnSaveAs,
        OCleanupProject,
        OMakeExpolist,
        ONoOperation,
    };
    Q_ENUM(CurrentThreadOperations)

    enum ExportPicFormats {
        ExportPNG,
        ExportJPG,
        ExportTIFF,
        ExportWEBP,
        ExportBMP,
    };
    Q_ENUM(ExportPicFormats)

    enum CaptureMode {
        CaptureModeNone,
        CaptureModeAppend,
        CaptureModeReplace,
    };
    Q_ENUM(CaptureMode)

    enum PostProcessingTypes {
        NoProcessing,
        RealtimeProcessing,
        NonRealtimeProcessing,
    };
    Q_ENUM(PostProcessingTypes)

    enum ScalePolicy {
        ScaleToFit,
        ScaleByWidth,
        ScaleByHeight,
    };
    Q_ENUM(ScalePolicy)

    /// Scale of everything drawn in pixels, 1.0 at the smallest font row.
    static double dpiScale();
    static void setDpiScale(double scale);

    /// Whether the program runs without a screen of its own (a batch run); false for the window.
    static bool headless();
    static void setHeadless(bool headless);

    /// Folders of the open project, each ending in "/"; all empty before the first one.
    struct ProjectFolders
    {
        QString projContntDirPath;
        QString capFullDirPath;
        QString refFullDirPath;
        QString backgroundDirPath;
        QString extractedDirPath;
    };
    /// A copy for code that has no way to the project's paths. Any thread; all five belong to one project.
    static ProjectFolders projectFolders();
    static void setProjectFolders(const ProjectFolders &folders);

    /// One sRGB channel, 0 .. 255, to linear light, 0.0 .. 1.0, and back.
    static double srgbToLinear(int channel);
    static int linearToSrgb(double light);
    /// Luminance of an sRGB colour, worked out in linear light and encoded back to 0 .. 255.
    static int luminance(int red, int green, int blue);

signals:
    void bookmarksGroupNameChanged();
};
