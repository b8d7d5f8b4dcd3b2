#include "app/Translations.h"

#include <memory>
#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QTranslator>

namespace translations {

const QStringList &names()
{
    static const QStringList list =
        QStringLiteral(
            "Main MorvaneRoot Timeline Display ZeitRaffer FlipFlop HistogramBox MainWindow VideoPreview "
            "LastProjects RenderPane ButtonDropPanel About Morva MorvaRobot FramesModel Scrollbar "
            "QRamPreview SizeControl LoadDialog ConfirmDialog QVideoEncoder MessagesBox PropertiesDialog "
            "QOpenCVWidget VideoPane CaptureControlsPane AboutAndProperties ScreenControls AreaSelector "
            "TextPropertyInput KeyShortcuts LightboxWindow FileInfoItem FramePropertiesDialog "
            "CamDisconnectConfirmDialog CamReconnectConfirmDialog SaveConfirmDialog NumberInput4 "
            "WebCameraConnectBox AddProjectButtons TimelineFrame RenderVideoButtons RangeWarnerButton "
            "MultiplierWatcherButton ButtonShowVideoDir AlignGrid ImageQualityDialog CanonCameraControls "
            "CanonCameraWindow CaptureDeviceSwitch ChangesWillTakeEffect SequenceExportBox ConnectionsBox "
            "CamReloadDeviceConfirmDialog PreviewWindow_old ButtonRowDropPanel PowerFactor "
            "FramePropertiesPanel ProjectBrowser NewWebCameraWindow NewWebCameraControls QCanonCamWindow "
            "QCanonCamLiveViewThread WebCamWindow WebCamLiveViewThread SimpleDisplayDisconnector "
            "DeviceSelectionDialog RamBox SliderNew FiltersControls Empty ChromaBox ProjectPresets "
            "ProjectPresetsButton ZoomSidePanel VectorBox LayersSettings GuidesTools LayersListItem "
            "ConfirmImagesImportDialog PrintPDF Onionskin ExportPolicy CaptureFeaturesTabs BlendModesBox "
            "AppWindow MainViewTabs FrameMetaDataDisplay CameraTabs VideoVillageWindow "
            "OpenWithExternalEditor ContextMenu CurrentFrameInfoBtn DigitalExposureCompensationCtrl "
            "WebCameraSettings TimelineScale PlayPauseButton FocusRow VideoExtractorWarning Oscilloscope "
            "WaveFormBox ImageScaleDropPanel NumberInput5 PostProcessValue AddRemoveFramesPanel ExportSize "
            "ColorChooser ExportBox ExportPolicyDialog ExportPolicyDialog_Video ExportPolicyDialog_Sequence "
            "RenderStringGenerator CopyPasteButton CapmodesTab CommonCameraControlsPane "
            "PostProcessFiltersDialog MaskBox FlickerBox PostProcessBackground PostProcessChromaControl "
            "RemoveVideoEffectBtn ExposureControlBox ExposureControl ExpandBtn VideoEffects FolderItem "
            "VideoFormatsButtonsRow WebpSettingsBox AnimationExporter WebcamGlobal VideoPreviewExample "
            "VideoPreviewSlider VectorBoxLineEditor ")
            .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return list;
}

namespace {

/// The words of the toolkit's own dialogs, where the system has them.
void installToolkitWords(const QString &locale, QObject *owner)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QStringLiteral("qtbase_") + locale.section(QLatin1Char('_'), 0, 0),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return;
    translator->setParent(owner);
    QCoreApplication::installTranslator(translator.release());
}

} // namespace

int install(const QString &locale, QObject *owner)
{
    const QString folder = QStringLiteral(":/translation/");
    int installed = 0;
    for (const QString &name : names()) {
        const QString file = folder + name + QLatin1Char('.') + locale + QStringLiteral(".qm");
        if (!QFile::exists(file))
            continue;
        auto *translator = new QTranslator(owner);
        if (translator->load(file) && QCoreApplication::installTranslator(translator))
            ++installed;
    }
    if (installed > 0)
        installToolkitWords(locale, owner);
    return installed;
}

} // namespace translations
