#include "shared/Zum.h"

#include <cmath>
#include <memory>
#include <QJSValue>
#include <QMetaEnum>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

namespace {

struct Vocabulary
{
    const char *enumeration;
    /// In the order of their numbers, from 0 without a gap.
    QList<QByteArray> keys;
};

const QList<Vocabulary> vocabulary{
    {"BufferPlayerMode", {"FullScaleImage", "WaveformImage", "VectorscopeImage", "HistogramImage"}},
    {"WebcamProperties",
     {"WebcamBrightness", "WebcamContrast", "WebcamSaturation", "WebcamHue", "WebcamGain", "WebcamExposure",
      "WebcamAutoExposure", "WebcamSharpness", "WebcamZoom", "WebcamFocus", "WebcamAutofocus"}},
    {"ExportPolicy",
     {"ExportPolicyCropped", "ExportPolicyFitByWidth", "ExportPolicyFitByHeight",
      "ExportPolicyCroppedAndResized"}},
    {"BlendType",
     {"NoBlend", "BlendDarken", "BlendMultiply", "BlendColorBurn", "BlendLighten", "BlendScreen",
      "BlendColorDodge", "BlendOverlay", "BlendSoftLight", "BlendHardLight", "BlendDifference",
      "BlendExclusion", "BlendPlus", "BlendXor"}},
    {"CapturingDevice",
     {"NoCapturingDevice", "CapturingDeviceWebcam", "CapturingDeviceCanonEOS", "CapturingDeviceSony",
      "CapturingDeviceHDMITethering"}},
    {"AfterConfirmAction",
     {"NoAfterConfirmAction", "QuitAfterConfirm", "OpenProjectAfterConfirm", "CreateProjectAfterConfirm"}},
    {"UndoRedoTypes", {"ActionMove", "ActionInsert", "ActionRemove", "ActionModify", "NoUndoAction"}},
    {"ImportTargets", {"CapturedImages", "ReferenceImages", "CapturedAndReferenceImages", "NoTarget"}},
    {"PrintTypes", {"PrintToPDF", "PrintToPrinter", "NoPrint"}},
    {"OnOffState", {"Enable", "Disable"}},
    {"NumericDirection", {"Increase", "Decrease"}},
    {"Orientation", {"Vertical", "Horizontal"}},
    {"ButtonToggleTypes", {"NoToggle", "ToggleAsButton", "ToggleAsTab"}},
    {"AppTabs", {"CaptureTab", "TimingTab", "VideoTab", "DocsTab"}},
    {"AbstractDirections", {"Forward", "Backward", "NoDirection"}},
    {"StackDirections", {"NoStack", "StackFuture", "StackPast"}},
    {"FlipFlopTypes", {"FadeFlipFlop", "FlashFlipFlop", "NoFlipFlop"}},
    {"RobotJobTypes",
     {"RenderVideo", "SplitVideo", "GenThumbnails", "ExportFrames", "NoJob", "UpdateFromRAWs"}},
    {"UpdateRAWJobTypes", {"UpdateRAWCurrentOnly", "UpdateRAWAll", "UpdateRAWInRange", "UpdateRAWNone"}},
    {"TimelineInRangePosition", {"FirstInRange", "LastInRange", "InRange", "NotInRange"}},
    {"FilesFilterTypes",
     {"ProjectFilesFilter", "NewProjectFilesFilter", "VideoFilesFilter", "ImageFilesFilter",
      "IccProfilesFilter", "ExecudablesFilter", "ExpoImagesFilter"}},
    {"MessageTypes", {"FatalError", "Error", "Warning", "Info"}},
    {"MessageSources",
     {"CommonMessage", "CameraMessage", "RobotMessage", "FileMessage", "ZeitRafferMessage",
      "VideoPlayerMessage"}},
    {"OpenFileEvents",
     {"FileIsOk", "FilePathEmpty", "FileDoesntExists", "FileAlreadyOpened", "FileXMLunparseble",
      "FileSelectionCanceled", "NotMorvaneFile", "LegacyFile"}},
    {"AdditionalWindows",
     {"PreviewWindow", "HelpWindow", "VideoPlayerWindow", "LightboxWindow", "VideoVillageWindow",
      "Oscilloscope"}},
    {"LightboxMode", {"LightboxModeColor", "LightboxModePicture"}},
    {"RenderPositions", {"OnTop", "OnRight", "OnBottom", "OnLeft"}},
    {"SaveMode",
     {"SaveProjectAs", "SaveProject", "SaveProjectAndCleanup", "SaveProjectXMLonly", "NewProject"}},
    {"ActTypes",
     {"ActNoAction", "ActDelete", "ActClearCaptured", "ActClearReference", "ActClearFrameContents",
      "ActSelect", "ActDeselect", "ActDismiss", "ActDuplicateAndMoveFrames", "ActDuplicateFrames",
      "ActMoveFrames", "ActSetGUID", "ActSetMirrored", "ActUnsetMirrored", "ActSearchStaticness",
      "ActSearchHiddenFrames", "ActCheckImageMissing", "ActInsert", "ActHideFrames"}},
    {"MorvaRoles",
     {"FrameIndex",  "KudaGUID",    "KudaNextGUID",   "KudaPrevGUID",   "UndoAction", "Ingroup",
      "CapFull",     "CapTIFF",     "CapRAW",         "CapTumb",        "RefFull",    "RefTumb",
      "StaticState", "PhaseNumber", "GUID",           "NextGUID",       "PrevGUID",   "GotCapImage",
      "GotRefImage", "Mirrored",    "CapFullMissing", "RefFullMissing", "Hidden",     "BackgroundFull"}},
    {"FrameWrappers", {"NoFrameWrapper", "StaticFrameWrapper", "FileInfoFrameWrapper"}},
    {"RunningOS", {"WindowsOS", "LinuxOS", "MacOS"}},
    {"RangePositions",
     {"ReachedStart", "ReachedEnd", "ReachedRangeStart", "ReachedRangeEnd", "UndefinedPosition"}},
    {"FeaturesList", {"CameraCapture", "CameraConnect", "ZeitRafferEnable", "ProjectAccess"}},
    {"CurrentThreadOperations",
     {"OCopyFrames", "OAddFrames", "OCopyFramesOnSaveAs", "OCleanupProject", "OMakeExpolist",
      "ONoOperation"}},
    {"ExportPicFormats", {"ExportPNG", "ExportJPG", "ExportTIFF", "ExportWEBP", "ExportBMP"}},
    {"CaptureMode", {"CaptureModeNone", "CaptureModeAppend", "CaptureModeReplace"}},
    {"PostProcessingTypes", {"NoProcessing", "RealtimeProcessing", "NonRealtimeProcessing"}},
    {"ScalePolicy", {"ScaleToFit", "ScaleByWidth", "ScaleByHeight"}},
};

} // namespace

class TestZum : public QObject
{
    Q_OBJECT

private slots:
    void enumerationHasItsNamesAndNumbers_data();
    void enumerationHasItsNamesAndNumbers();
    void hasNoOtherEnumeration();
    void hasOneSignalAndNoSlot();
    void sceneReadsEveryName_data();
    void sceneReadsEveryName();
    void keepsTheScaleSetAtStart();
    void keepsTheFoldersOfTheProject();
    void channelsGoToLinearLight_data();
    void channelsGoToLinearLight();
    void everyChannelComesBackFromLinearLight();
    void luminance_data();
    void luminance();
};

void TestZum::enumerationHasItsNamesAndNumbers_data()
{
    QTest::addColumn<QList<QByteArray>>("keys");
    for (const Vocabulary &row : vocabulary)
        QTest::newRow(row.enumeration) << row.keys;
}

void TestZum::enumerationHasItsNamesAndNumbers()
{
    QFETCH(QList<QByteArray>, keys);
    const QMetaObject &meta = Zum::staticMetaObject;
    const int index = meta.indexOfEnumerator(QTest::currentDataTag());
    QVERIFY(index >= 0);
    const QMetaEnum enumeration = meta.enumerator(index);
    QVERIFY(!enumeration.isScoped());
    QCOMPARE(enumeration.keyCount(), static_cast<int>(keys.size()));
    for (int i = 0; i < keys.size(); ++i) {
        QCOMPARE(QByteArray(enumeration.key(i)), keys.at(i));
        QCOMPARE(enumeration.value(i), i);
    }
}

void TestZum::hasNoOtherEnumeration()
{
    QCOMPARE(Zum::staticMetaObject.enumeratorCount() - QObject::staticMetaObject.enumeratorCount(),
             static_cast<int>(vocabulary.size()));
}

void TestZum::hasOneSignalAndNoSlot()
{
    const QMetaObject &meta = Zum::staticMetaObject;
    QCOMPARE(meta.methodCount() - QObject::staticMetaObject.methodCount(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("bookmarksGroupNameChanged()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
}

void TestZum::sceneReadsEveryName_data()
{
    enumerationHasItsNamesAndNumbers_data();
}

void TestZum::sceneReadsEveryName()
{
    QFETCH(QList<QByteArray>, keys);
    qmlRegisterType<Zum>("Zum", 1, 0, "Zum");
    QByteArray list;
    for (const QByteArray &key : keys)
        list += "Zum." + key + ", ";
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Zum 1.0\nQtObject { property var values: [" + list + "] }",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    const QVariantList values = object->property("values").value<QJSValue>().toVariant().toList();
    QCOMPARE(values.size(), keys.size());
    for (int i = 0; i < values.size(); ++i)
        QCOMPARE(values.at(i), QVariant(i));
}

void TestZum::keepsTheScaleSetAtStart()
{
    QCOMPARE(Zum::dpiScale(), 1.0);
    Zum::setDpiScale(18 / 13.0);
    QCOMPARE(Zum::dpiScale(), 18 / 13.0);
    Zum::setDpiScale(1.0);
}

void TestZum::keepsTheFoldersOfTheProject()
{
    QCOMPARE(Zum::projectFolders().projContntDirPath, QString());
    Zum::setProjectFolders({QStringLiteral("a/"), QStringLiteral("b/"), QStringLiteral("c/"),
                            QStringLiteral("d/"), QStringLiteral("e/")});
    const Zum::ProjectFolders folders = Zum::projectFolders();
    QCOMPARE(folders.projContntDirPath, QStringLiteral("a/"));
    QCOMPARE(folders.capFullDirPath, QStringLiteral("b/"));
    QCOMPARE(folders.refFullDirPath, QStringLiteral("c/"));
    QCOMPARE(folders.backgroundDirPath, QStringLiteral("d/"));
    QCOMPARE(folders.extractedDirPath, QStringLiteral("e/"));
    Zum::setProjectFolders({});
}

void TestZum::channelsGoToLinearLight_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<double>("light");
    QTest::newRow("black") << 0 << 0.0;
    QTest::newRow("last of the straight part") << 10 << 10 / 255.0 / 12.92;
    QTest::newRow("first of the curve") << 11 << std::pow((11 / 255.0 + 0.055) / 1.055, 2.4);
    QTest::newRow("middle") << 128 << 0.21586050011389926;
    QTest::newRow("white") << 255 << 1.0;
}

void TestZum::channelsGoToLinearLight()
{
    QFETCH(int, channel);
    QFETCH(double, light);
    QVERIFY(std::abs(Zum::srgbToLinear(channel) - light) < 1e-15);
}

void TestZum::everyChannelComesBackFromLinearLight()
{
    for (int channel = 0; channel < 256; ++channel)
        QCOMPARE(Zum::linearToSrgb(Zum::srgbToLinear(channel)), channel);
}

void TestZum::luminance_data()
{
    QTest::addColumn<int>("red");
    QTest::addColumn<int>("green");
    QTest::addColumn<int>("blue");
    QTest::addColumn<int>("luminance");
    QTest::newRow("black") << 0 << 0 << 0 << 0;
    QTest::newRow("white") << 255 << 255 << 255 << 255;
    QTest::newRow("grey is itself") << 77 << 77 << 77 << 77;
    QTest::newRow("red") << 255 << 0 << 0 << 127;
    QTest::newRow("green") << 0 << 255 << 0 << 220;
    QTest::newRow("blue") << 0 << 0 << 255 << 76;
}

void TestZum::luminance()
{
    QFETCH(int, red);
    QFETCH(int, green);
    QFETCH(int, blue);
    QTEST(Zum::luminance(red, green, blue), "luminance");
}

QTEST_GUILESS_MAIN(TestZum)

#include "tst_zum.moc"
