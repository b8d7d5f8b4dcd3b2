#pragma once

#include "shared/vocabulary/TimelineVocabulary.h"

/// The words of capturing devices and of what is shown of their pictures.
/// Part of Zum, and used by that name.
class PictureVocabulary : public TimelineVocabulary
{
    Q_OBJECT

public:
    using TimelineVocabulary::TimelineVocabulary;

    enum CapturingDevice {
        NoCapturingDevice,
        CapturingDeviceWebcam,
        CapturingDeviceCanonEOS,
        CapturingDeviceSony,
        CapturingDeviceHDMITethering
    };
    Q_ENUM(CapturingDevice)

    enum CaptureMode { CaptureModeNone, CaptureModeAppend, CaptureModeReplace };
    Q_ENUM(CaptureMode)

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
        WebcamAutofocus
    };
    Q_ENUM(WebcamProperties)

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
        BlendXor
    };
    Q_ENUM(BlendType)

    enum StackDirections { NoStack, StackFuture, StackPast };
    Q_ENUM(StackDirections)

    enum FlipFlopTypes { FadeFlipFlop, FlashFlipFlop, NoFlipFlop };
    Q_ENUM(FlipFlopTypes)

    enum PostProcessingTypes { NoProcessing, RealtimeProcessing, NonRealtimeProcessing };
    Q_ENUM(PostProcessingTypes)

    enum BufferPlayerMode { FullScaleImage, WaveformImage, VectorscopeImage, HistogramImage };
    Q_ENUM(BufferPlayerMode)

    enum ScalePolicy { ScaleToFit, ScaleByWidth, ScaleByHeight };
    Q_ENUM(ScalePolicy)
};
