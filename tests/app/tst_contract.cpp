#include "app/MainWindow.h"

#include <QColor>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QRect>
#include <QSizeF>
#include <QTest>

/// The names that the scene and the other parts of the program rely on when they talk to the window: what
/// they are called, what they take and what they give.
class TestContract : public QObject
{
    Q_OBJECT

private slots:
    void property_data();
    void property();
    void constantProperty_data();
    void constantProperty();
    void slot_data();
    void slot();
    void signal_data();
    void signal();
    void enumeration_data();
    void enumeration();
    void everyPropertyIsInAList();
    void nameThatIsStillToComeIsNotThereYet_data();
    void nameThatIsStillToComeIsNotThereYet();

private:
    static const QMetaObject &meta()
    {
        return MainWindow::staticMetaObject;
    }
    static QMetaProperty propertyOf(const char *name)
    {
        return meta().property(meta().indexOfProperty(name));
    }
};

namespace {

struct Property
{
    const char *name;
    QMetaType::Type type;
    bool writable;
    /// The signal that tells of a change; "" for the property's own name and "Changed()".
    const char *notify = "";
};

/// What changes while the program runs.
const QList<Property> changing{
    {"closing", QMetaType::Bool, false},
    {"closeAttempts", QMetaType::Int, false},
    {"loadingProject", QMetaType::Bool, false},
    {"progressTotal", QMetaType::Int, true},
    {"progressCurrent", QMetaType::Int, true},
    {"progressAction", QMetaType::QString, true},
    {"robotErrorCount", QMetaType::Int, true},
    {"errorString", QMetaType::QString, false},
    {"allowQuietExit", QMetaType::Bool, true},
    {"projectLoaded", QMetaType::Bool, false, "projLoadedChanged()"},
    {"currentThreadOperation", QMetaType::Int, false},
    {"currentRobotJob", QMetaType::Int, false},
    {"morvaRobotThreadStarted", QMetaType::Bool, false},
    {"qmlDialogUrl", QMetaType::QString, true},
    {"qmlDialogVisible", QMetaType::Bool, true},
    {"localeName", QMetaType::QString, true},
    {"currentDpi", QMetaType::Int, false},
    {"dpiScale", QMetaType::Double, false},
    {"scaledThumbSize", QMetaType::QSizeF, false},
    {"timelineH", QMetaType::Int, true},
    {"windowSize", QMetaType::QSize, false},
    {"isFullscreen", QMetaType::Bool, false},
    {"docs", QMetaType::QVariantList, false},
    // the chosen capturing device
    {"capturingDeviceObject", QMetaType::QVariant, true},
    {"cameraQML", QMetaType::QVariant, true},
    {"currentCapturingDevice", QMetaType::Int, true},
    {"currentDeviceType", QMetaType::Int, false},
    {"currentCapturingDeviceIcon", QMetaType::QString, false},
    {"currentCapturingDeviceType", QMetaType::QString, false, "currentCapturingDeviceChanged()"},
    // settings
    {"externalEditor", QMetaType::QString, false},
    {"externalEditorName", QMetaType::QString, false},
    {"lightboxMode", QMetaType::Int, true},
    {"lightboxColor", QMetaType::QColor, true},
    // the open project
    {"projPath", QMetaType::QString, false, "projPathChanged(bool)"},
    {"projName", QMetaType::QString, false},
    {"projDirPath", QMetaType::QString, false},
    {"projContntDirPath", QMetaType::QString, false},
    {"capFullDirPath", QMetaType::QString, false},
    {"capTumbDirPath", QMetaType::QString, false},
    {"refFullDirPath", QMetaType::QString, false},
    {"refTumbDirPath", QMetaType::QString, false},
    {"videoDirPath", QMetaType::QString, false},
    {"extractedDirPath", QMetaType::QString, false},
    {"legacyProject", QMetaType::Bool, false},
    {"performAutosave", QMetaType::Bool, true},
    {"pauseAutosave", QMetaType::Bool, true},
    {"autosaveDelay", QMetaType::Int, true},
};

/// What is known when the scene loads and stays so.
const QList<Property> constant{
    {"appInfo", QMetaType::QVariantMap, false},
    {"idealThreads", QMetaType::Int, false},
    {"openPrevWndwOnStart", QMetaType::Bool, false},
    {"openLightboxWndwOnStart", QMetaType::Bool, false},
    {"openOscilloscopyWndwOnStart", QMetaType::Bool, false},
    {"openVillageWndwOnStart", QMetaType::Bool, false},
    {"autosaveDelayMin", QMetaType::Int, false},
    {"autosaveDelayMax", QMetaType::Int, false},
    {"proportions", QMetaType::QVariantList, false},
    {"presetsWidths", QMetaType::QVariantList, false},
    {"projectPresets", QMetaType::QVariantList, false},
};

struct Method
{
    const char *signature;
    const char *result = "void";
};

const QList<Method> slotsOfTheWindow{
    {"quitApplication(bool)"},
    {"quitApplication()"},
    {"quit(bool)"},
    {"quit()"},
    {"normal()"},
    {"fullscreen()"},
    {"screenCount()", "int"},
    {"refresh()"},
    {"redrawing()"},
    {"repaintMe(QRect)"},
    {"setTitle()"},
    {"setErrorString(QString,int)"},
    {"setErrorString(QString)"},
    {"setProgressTotal(int)"},
    {"setProgressCurrent(int)"},
    {"increaseProgressCurrent()"},
    {"setProgressAction(QString)"},
    {"stopProgress()"},
    {"playSound(int)"},
    {"openUrlExternally(QString)"},
    {"openInDefaultBrowser(QString)"},
    {"loadDocs()"},
    // numbers, texts and files
    {"formatNumber(int,int)", "QString"},
    {"formatNumber(int)", "QString"},
    {"formatSetOfNumbers(QVariantList,QString,int)", "QString"},
    {"cleanStr(QString,bool,bool)", "QString"},
    {"cleanStr(QString,bool)", "QString"},
    {"cleanStr(QString)", "QString"},
    {"strContains(QString,QString)", "bool"},
    {"stringEndsWith(QString,QString)", "bool"},
    {"openFileDialog(int)", "QString"},
    {"openFileDialog()", "QString"},
    // settings
    {"getSetting(QString,QVariant)", "QVariant"},
    {"addSetting(QString,QVariant)"},
    {"clearSetting(QString)"},
    {"clearSettings()"},
    {"setGroupSetting(QString,QString,QVariant)"},
    {"getGroupSetting(QString)", "QVariantMap"},
    {"clearGroupSetting(QString)"},
    {"setSpecialColor(QColor)"},
    {"resetSpecialColor()"},
    {"setExternalEditor()"},
    {"removeExternalEditor()"},
    {"setDefExternalEditor()"},
    {"startWithExternalEditor(QString)"},
    {"showInGraphicalShell(QString)"},
    {"clipboardChanged()"},
    {"countClipboardFrames()", "int"},
    {"clearClipboardFrames()"},
    {"setLocaleName(QString)"},
    {"getSystemLocale()", "QString"},
    {"getFontsize()", "int"},
    // the open project
    {"openProject(QString)", "int"},
    {"projectFileOpen(QString)", "int"},
    {"projectFileOpen()", "int"},
    {"readProjectXmlFile()", "int"},
    {"saveProjectXmlFile(int)", "bool"},
    {"projectChanged()"},
    {"projectSaved()"},
    {"closeProject()"},
    {"renameProject(QString)"},
    {"stopLoadingProject()"},
    {"importFrames()", "bool"},
    {"setProjectDirPath(bool)", "bool"},
    {"buildImagePath(int,QString,bool)", "QString"},
    {"buildImagePath(int,QString)", "QString"},
    {"buildMediaPath(QString)", "QString"},
    {"projectName(bool)", "QString"},
    {"projectName()", "QString"},
    {"projectBaseName()", "QString"},
    {"projectDirInfo(QString)", "QVariantMap"},
    {"projectDirInfo()", "QVariantMap"},
    {"fileInfo(QString,bool)", "QVariantMap"},
    {"fileInfo(QString)", "QVariantMap"},
    {"urlInfo(QString,bool)", "QVariantMap"},
    {"urlInfo(QString)", "QVariantMap"},
    {"listDir(QString,int)", "QVariantList"},
    {"listDir(QString)", "QVariantList"},
    {"fileExists(QString)", "bool"},
    {"deleteFile(QString)", "bool"},
    {"selectFolderDialog()", "QString"},
    {"cleanExtractedDir()"},
    {"cleanCacheDirs()"},
    // the capturing device and the jobs
    {"getDeviceTypeByName(QString)", "int"},
    {"getIconByDeviceName(QString)", "QString"},
    {"updateCurrentDeviceType()"},
    {"updateCurrentCapturingDeviceIcon()"},
    {"cameraConnected()"},
    {"runMorvaRobot(int,QStringList,int)", "bool"},
    {"runMorvaRobot(int,QStringList)", "bool"},
    {"runMorvaRobot(int)", "bool"},
    {"breakMorvaRobot(QString)"},
    {"stopMorvaRobot(QString,QStringList)"},
    {"stopMorvaRobot(QString)"},
    {"stopMorvaRobot()"},
    {"stop_MorvaRobot()"},
    {"beginRobotJob(int,int)"},
};

struct Signal
{
    const char *signature;
    /// The names under which a handler in the scene finds the arguments.
    QList<QByteArray> arguments = {};
};

const QList<Signal> signalsOfTheWindow{
    {"confirmClose()"},
    {"aboutToCloseApp()"},
    {"appendMessage(int,int,QString)", {"msgSender", "msgType", "msgText"}},
    {"redrawWindow()"},
    {"userIsActive()"},
    {"externalEditorChanged()"},
    {"externalEditorNameChanged()"},
    {"weHaveClipboardFrames()"},
    {"stopRobot()"},
    {"robotRenderThumbs(QStringList,WebcamGlobal*,FramesModel*,int,int)"},
    {"robotUpdFromRAWs(QStringList,WebcamGlobal*,FramesModel*,int,int)"},
    {"robotRenderVideo(WebcamGlobal*,FramesModel*)"},
    {"robotImportVideo(WebcamGlobal*,FramesModel*)"},
    {"robotExportFrames(WebcamGlobal*,FramesModel*)"},
    {"currentRobotJobChanged()"},
    {"morvaRobotThreadStartedChanged()"},
    {"startProjectLoad()"},
    {"beginLoadProject()"},
    {"connectModel()"},
    {"disconnectModel()"},
    {"projPathChanged(bool)"},
    {"projLoadedChanged()"},
    {"projContntDirPathChanged()"},
    {"currentDeviceTypeChanged()"},
    {"currentCapturingDeviceChanged()"},
    {"currentCapturingDeviceIconChanged()"},
    {"capturingDeviceObjectChanged()"},
};

void addPropertyRows(const QList<Property> &properties)
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("writable");
    QTest::addColumn<QByteArray>("notify");
    for (const Property &row : properties)
        QTest::newRow(row.name) << int(row.type) << row.writable
                                << (*row.notify != '\0' ? QByteArray(row.notify)
                                                        : QByteArray(row.name) + "Changed()");
}

} // namespace

void TestContract::property_data()
{
    addPropertyRows(changing);
}

void TestContract::property()
{
    QFETCH(int, type);
    QFETCH(bool, writable);
    QFETCH(QByteArray, notify);
    const QMetaProperty found = propertyOf(QTest::currentDataTag());
    QVERIFY(found.isValid());
    QCOMPARE(found.userType(), type);
    QCOMPARE(found.isWritable(), writable);
    QVERIFY(found.hasNotifySignal());
    QCOMPARE(found.notifySignal().methodSignature(), notify);
}

void TestContract::constantProperty_data()
{
    addPropertyRows(constant);
}

void TestContract::constantProperty()
{
    QFETCH(int, type);
    const QMetaProperty found = propertyOf(QTest::currentDataTag());
    QVERIFY(found.isValid());
    QCOMPARE(found.userType(), type);
    QVERIFY(found.isConstant());
    QVERIFY(!found.isWritable());
}

void TestContract::slot_data()
{
    QTest::addColumn<QByteArray>("result");
    for (const Method &row : slotsOfTheWindow)
        QTest::newRow(row.signature) << QByteArray(row.result);
}

void TestContract::slot()
{
    QFETCH(QByteArray, result);
    const int index = meta().indexOfSlot(QTest::currentDataTag());
    QVERIFY(index >= 0);
    QCOMPARE(QByteArray(meta().method(index).typeName()), result);
    QCOMPARE(meta().method(index).access(), QMetaMethod::Public);
}

void TestContract::signal_data()
{
    QTest::addColumn<QList<QByteArray>>("arguments");
    for (const Signal &row : signalsOfTheWindow)
        QTest::newRow(row.signature) << row.arguments;
}

void TestContract::signal()
{
    QFETCH(QList<QByteArray>, arguments);
    const int index = meta().indexOfSignal(QTest::currentDataTag());
    QVERIFY(index >= 0);
    if (!arguments.isEmpty())
        QCOMPARE(meta().method(index).parameterNames(), arguments);
}

void TestContract::enumeration_data()
{
    QTest::addColumn<QList<QByteArray>>("keys");
    QTest::newRow("ExportDialogs") << QList<QByteArray>{"ExportVideoDialog", "ExportSequenceDialog"};
    QTest::newRow("EventSounds") << QList<QByteArray>{"EventSoundWarning", "EventSoundBigWarning",
                                                      "EventSoundsNotify", "EventSoundsError",
                                                      "EventSoundsAppear"};
    QTest::newRow("ListFileTypes") << QList<QByteArray>{"ListVideoFiles", "ListImageFiles", "ListMetasFiles"};
}

void TestContract::enumeration()
{
    QFETCH(QList<QByteArray>, keys);
    const int index = meta().indexOfEnumerator(QTest::currentDataTag());
    QVERIFY(index >= 0);
    const QMetaEnum found = meta().enumerator(index);
    QCOMPARE(found.keyCount(), int(keys.size()));
    for (int value = 0; value < keys.size(); ++value) {
        QCOMPARE(QByteArray(found.key(value)), keys.at(value));
        QCOMPARE(found.value(value), value);
    }
}

void TestContract::everyPropertyIsInAList()
{
    QStringList listed;
    for (const Property &row : changing + constant)
        listed.append(QString::fromLatin1(row.name));
    const int ofTheToolkit = QQuickView::staticMetaObject.propertyCount();
    for (int i = ofTheToolkit; i < meta().propertyCount(); ++i) {
        const QString name = QString::fromLatin1(meta().property(i).name());
        QVERIFY2(listed.contains(name), qPrintable(name));
        QCOMPARE(listed.count(name), 1);
    }
}

void TestContract::nameThatIsStillToComeIsNotThereYet_data()
{
    QTest::addColumn<QString>("reason");
    const QString windows = QStringLiteral("the further windows do not exist yet");
    for (const char *name : {"subWindow(int)", "prevWndwVisible", "helpWndwVisible", "lightboxWndwVisible",
                             "videoPlayerWndwVisible", "videoVillageWndwVisible", "oscilloscopeWndwVisible"})
        QTest::newRow(name) << windows;
    const QString jobs = QStringLiteral("needs a job of the background worker");
    for (const char *name : {"importClipboardFrames(int)", "importPictures(int,bool)", "importVideo()"})
        QTest::newRow(name) << jobs;
    QTest::newRow("camPresetsFullDirPath") << QStringLiteral("comes with the camera presets");
    QTest::newRow("threadedOperationFinished()")
        << QStringLiteral("each file operation goes on by itself and reports only its end to the project");
}

void TestContract::nameThatIsStillToComeIsNotThereYet()
{
    // One that has come is to be moved to its list above.
    QCOMPARE(meta().indexOfProperty(QTest::currentDataTag()), -1);
    QCOMPARE(meta().indexOfMethod(QTest::currentDataTag()), -1);
}

QTEST_APPLESS_MAIN(TestContract)
#include "tst_contract.moc"
