#include "GlobalProperties.h"
#include "shared/WebcamGlobal.h"

#include <QColor>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPoint>
#include <QSet>
#include <QSignalSpy>
#include <QSize>
#include <QTest>

/// The names, types, start values and signals that the scene and the other subsystems rely on.
class TestWebcamGlobalContract : public QObject
{
    Q_OBJECT

private slots:
    void propertyIsThere_data();
    void propertyIsThere();
    void startValue_data();
    void startValue();
    void signalsOnlyARealChange_data();
    void signalsOnlyARealChange();
    void onlyWhatAProjectKeepsMakesItDirty_data();
    void onlyWhatAProjectKeepsMakesItDirty();
    void everyPropertyIsInTheList();
    void commandSignalIsThere_data();
    void commandSignalIsThere();
    void slotIsThere_data();
    void slotIsThere();
    void sizePart();
    void notANumberSignalsOnce();
    void copyTakesProjectPropertiesOnly();
    void copyOfEqualValuesSignalsNothing();

private:
    static QMetaProperty property(const char *name);
    static QVariant otherValue(const QVariant &value, QMetaType::Type type);
    enum class Which { All, Writable };
    static void addPropertyRows(Which which = Which::All);
};

QMetaProperty TestWebcamGlobalContract::property(const char *name)
{
    const QMetaObject &meta = WebcamGlobal::staticMetaObject;
    return meta.property(meta.indexOfProperty(name));
}

QVariant TestWebcamGlobalContract::otherValue(const QVariant &value, QMetaType::Type type)
{
    switch (type) {
        case QMetaType::Bool:
            return !value.toBool();
        case QMetaType::Int:
            return value.toInt() + 1;
        case QMetaType::LongLong:
            return value.toLongLong() + 1;
        case QMetaType::Double:
            return value.toDouble() + 0.25;
        case QMetaType::Float:
            return value.toFloat() + 0.25F;
        case QMetaType::QString:
            return value.toString() + QLatin1Char('x');
        case QMetaType::QPoint:
            return value.toPoint() + QPoint(1, 0);
        case QMetaType::QSize:
            return value.toSize() + QSize(0, 1);
        case QMetaType::QColor:
            return value.value<QColor>() == QColor(Qt::red) ? QColor(Qt::green) : QColor(Qt::red);
        case QMetaType::QVariantMap:
            return QVariantMap{{QStringLiteral("key"), value.toMap().size()}};
        default:
            return QVariant(QStringLiteral("something"));
    }
}

void TestWebcamGlobalContract::addPropertyRows(Which which)
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("start");
    QTest::addColumn<bool>("kept");
    QTest::addColumn<bool>("writable");
    for (const GlobalProperty &row : globalProperties()) {
        const bool writable = row.keeper != GlobalProperty::ReadOnly;
        if (writable || which == Which::All)
            QTest::newRow(row.name) << static_cast<int>(row.type) << row.start
                                    << (row.keeper == GlobalProperty::ProjectFile) << writable;
    }
}

void TestWebcamGlobalContract::propertyIsThere_data()
{
    addPropertyRows();
}

void TestWebcamGlobalContract::propertyIsThere()
{
    QFETCH(int, type);
    QFETCH(bool, kept);
    const QMetaProperty found = property(QTest::currentDataTag());
    QVERIFY(found.isValid());
    QCOMPARE(found.userType(), type);
    QFETCH(bool, writable);
    QCOMPARE(found.isWritable(), writable);
    QVERIFY(found.hasNotifySignal());
    QCOMPARE(found.notifySignal().methodSignature(), QByteArray(QTest::currentDataTag()) + "Changed()");
    QCOMPARE(found.isStored(), kept);
}

void TestWebcamGlobalContract::startValue_data()
{
    addPropertyRows();
}

void TestWebcamGlobalContract::startValue()
{
    QFETCH(QVariant, start);
    const WebcamGlobal global;
    const QVariant value = property(QTest::currentDataTag()).read(&global);
    QCOMPARE(value.typeId(), start.typeId());
    QCOMPARE(value, start);
}

void TestWebcamGlobalContract::signalsOnlyARealChange_data()
{
    addPropertyRows(Which::Writable);
}

void TestWebcamGlobalContract::signalsOnlyARealChange()
{
    QFETCH(int, type);
    WebcamGlobal global;
    const QMetaProperty changing = property(QTest::currentDataTag());
    QSignalSpy changes(&global, changing.notifySignal());
    const QVariant start = changing.read(&global);
    const QVariant other = otherValue(start, static_cast<QMetaType::Type>(type));

    QVERIFY(changing.write(&global, start));
    QCOMPARE(changes.count(), 0);
    QVERIFY(changing.write(&global, other));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changing.read(&global), other);
    QVERIFY(changing.write(&global, other));
    QCOMPARE(changes.count(), 1);
    QVERIFY(changing.write(&global, start));
    QCOMPARE(changes.count(), 2);
}

void TestWebcamGlobalContract::onlyWhatAProjectKeepsMakesItDirty_data()
{
    addPropertyRows(Which::Writable);
}

void TestWebcamGlobalContract::onlyWhatAProjectKeepsMakesItDirty()
{
    QFETCH(int, type);
    QFETCH(bool, kept);
    WebcamGlobal global;
    const QMetaProperty changing = property(QTest::currentDataTag());
    QSignalSpy dirty(&global, &WebcamGlobal::changed);
    const QVariant start = changing.read(&global);

    QVERIFY(changing.write(&global, start));
    QCOMPARE(dirty.count(), 0);
    QVERIFY(changing.write(&global, otherValue(start, static_cast<QMetaType::Type>(type))));
    QCOMPARE(dirty.count(), kept ? 1 : 0);
}

void TestWebcamGlobalContract::everyPropertyIsInTheList()
{
    QSet<QByteArray> listed{"objectName", "chromakeyColors", "blendModes"};
    for (const GlobalProperty &row : globalProperties())
        listed.insert(row.name);
    const QMetaObject &meta = WebcamGlobal::staticMetaObject;
    for (int i = 0; i < meta.propertyCount(); ++i)
        QVERIFY2(listed.contains(meta.property(i).name()), meta.property(i).name());
    QCOMPARE(listed.size(), meta.propertyCount());
}

void TestWebcamGlobalContract::commandSignalIsThere_data()
{
    QTest::addColumn<QByteArray>("signature");
    const QByteArray commands =
        "globalDismiss globalConfirm globalSave dialogClosing tab changed saved autosave saveProject "
        "saveAndCleanup projectCreateNew doCaptureFrame timelineGotoStart timelineGotoEnd timelinePrevFrame "
        "timelineNextFrame timelineSelectFrame timelineDeleteFrames timelineFrameDuplicate "
        "timelineShowAddBox timelineHideAddBox timelineDismiss switchDisplayTab displayTabShowCaptiured "
        "displayTabShowLiveView togglePlayerPlayPause videoPlayerStepLeft videoPlayerStepRight key_Shift "
        "key_Control key_ControlShift key_Alt key_Backspace keysReleased focusNear2 focusFar2 webPaneReload "
        "webPaneExpand capturingDeviceConnect reloadCapturingDevice getCapturingDevicesList "
        "showCameraPresets showProjectPresets imageQualityError launchVideoImport "
        "showVideoExtractorWarningDialog disconnectModel connectModel";
    for (const QByteArray &command : commands.split(' '))
        QTest::newRow(command.constData()) << command + "()";
    QTest::newRow("appendMessage") << QByteArray("appendMessage(int,int,QString)");
    QTest::newRow("captureFrame") << QByteArray("captureFrame(QString,QString,QString)");
}

void TestWebcamGlobalContract::commandSignalIsThere()
{
    QFETCH(QByteArray, signature);
    const QMetaObject &meta = WebcamGlobal::staticMetaObject;
    QVERIFY(meta.indexOfSignal(signature.constData()) >= 0);
}

void TestWebcamGlobalContract::slotIsThere_data()
{
    QTest::addColumn<QByteArray>("signature");
    for (const char *signature : {"calculateDisplayAndCoordSystemScale(int,int)",
                                  "updateCropAreaScale(qreal,qreal)",
                                  "updateExportSizes()",
                                  "setPostProcessSetting(QString,QVariant)",
                                  "removePostProcessSetting(QString)",
                                  "getPostProcessSetting(QString,QVariant)",
                                  "checkUserInactivity()",
                                  "ensureDirSeparator(QString)",
                                  "timeStamp()",
                                  "millisecondsToHHMMSS(int)",
                                  "roundUp(int)",
                                  "stringIconName(int)",
                                  "getBlendName(int)",
                                  "videoExportPolicyIcon(int)",
                                  "hueShift(QColor,qreal)",
                                  "saturationShift(QColor,qreal)",
                                  "hsla(QColor)",
                                  "colorToRgb(QColor)",
                                  "lighterColor(QColor,qreal)",
                                  "yCbCrToRgb(qreal,qreal,qreal,qreal)",
                                  "yCbCrToRgb(qreal,qreal,qreal)",
                                  "colorNameToHue(QString)",
                                  "parseAndApplySingleVideoEffect(QVariantMap,bool,bool)",
                                  "parseAndApplySingleVideoEffect(QVariantMap,bool)",
                                  "parseAndApplySingleVideoEffect(QVariantMap)",
                                  "parseCurrentVideoEffect(QVariantList,bool)",
                                  "parseCurrentVideoEffect(QVariantList)",
                                  "getFilterName(QString)",
                                  "setVideoEffectsStringParsed()"})
        QTest::newRow(signature) << QMetaObject::normalizedSignature(signature);
}

void TestWebcamGlobalContract::slotIsThere()
{
    QFETCH(QByteArray, signature);
    QVERIFY(WebcamGlobal::staticMetaObject.indexOfSlot(signature.constData()) >= 0);
}

void TestWebcamGlobalContract::sizePart()
{
    const QMetaEnum parts = QMetaEnum::fromType<WebcamGlobal::SizePart>();
    QCOMPARE(parts.keyCount(), 2);
    QCOMPARE(parts.keyToValue("IsWidth"), 0);
    QCOMPARE(parts.keyToValue("IsHeight"), 1);
}

void TestWebcamGlobalContract::notANumberSignalsOnce()
{
    WebcamGlobal global;
    QSignalSpy changes(&global, &WebcamGlobal::fpsChanged);
    global.setFps(qQNaN());
    global.setFps(qQNaN());
    QCOMPARE(changes.count(), 1);
}

void TestWebcamGlobalContract::copyTakesProjectPropertiesOnly()
{
    WebcamGlobal live;
    const QList<GlobalProperty> rows = globalProperties();
    for (const GlobalProperty &row : rows) {
        const QMetaProperty changing = property(row.name);
        changing.write(&live, otherValue(changing.read(&live), row.type));
    }
    const WebcamGlobal fresh;
    live.copyProjectPropertiesFrom(fresh);
    for (const GlobalProperty &row : rows) {
        // The two sizes follow their parts, what is in force of the effect follows the effect.
        if (row.type == QMetaType::QSize || row.keeper == GlobalProperty::ReadOnly
            || QByteArray(row.name) == "videoEffectsStringParsed")
            continue;
        const QMetaProperty copied = property(row.name);
        const bool same = copied.read(&live) == copied.read(&fresh);
        QVERIFY2(same == (row.keeper == GlobalProperty::ProjectFile), row.name);
    }
    QCOMPARE(live.exportSize(), QSize(1920, 1080));
    QCOMPARE(live.sequenceExportSize(), QSize(1920, 1080));
}

void TestWebcamGlobalContract::copyOfEqualValuesSignalsNothing()
{
    WebcamGlobal live;
    QSignalSpy dirty(&live, &WebcamGlobal::changed);
    live.copyProjectPropertiesFrom(WebcamGlobal());
    QCOMPARE(dirty.count(), 0);
}

QTEST_GUILESS_MAIN(TestWebcamGlobalContract)

#include "tst_webcamglobalcontract.moc"
