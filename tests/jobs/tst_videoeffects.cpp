#include "MovieProbe.h"

#include "jobs/QVideoEncoder.h"
#include "jobs/render/EffectValues.h"
#include "shared/VideoEffect.h"
#include "shared/WebcamGlobal.h"

#include <QDir>
#include <QFile>
#include <QJSEngine>
#include <QTemporaryDir>
#include <QTest>

/// The catalogue's script, and what its effects do to a movie.
class TestVideoEffects : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void sevenEntriesInTheirOrder();
    void templatesAreExact();
    void variablesOfEachEntry();
    void stepIsATenthWhateverIsAskedFor();
    void choicesOfFrameAmounts();
    void longestAmountIsTheFilm();
    void everyEffectRendersWithItsDefaults_data();
    void everyEffectRendersWithItsDefaults();
    void everyEffectRendersWithItsLimits_data();
    void everyEffectRendersWithItsLimits();
    void effectThatLooksAheadKeepsEveryFrameAtItsTime();
    void effectsKeepTransparencyWhereTheyCan();
    void effectsOutsideOfThePictureAreRefused_data();
    void effectsOutsideOfThePictureAreRefused();
    void wrongValueGivesTheMessage();

private:
    QVariantList catalogue(int frameCount = 100);
    QString render(const QString &format, const QString &effect, const QList<int> &marks);

    QJSEngine engine;
    std::unique_ptr<QTemporaryDir> folder;
    QString reason;
};

void TestVideoEffects::initTestCase()
{
    engine.installExtensions(QJSEngine::TranslationExtension);
    QFile script(QStringLiteral(MORVANE_SOURCE_DIR "/qml/render/VideoEffects.js"));
    QVERIFY(script.open(QIODevice::ReadOnly));
    const QJSValue result = engine.evaluate(QString::fromUtf8(script.readAll()), script.fileName());
    QVERIFY2(!result.isError(), qPrintable(result.toString()));
}

void TestVideoEffects::init()
{
    folder = std::make_unique<QTemporaryDir>();
}

QVariantList TestVideoEffects::catalogue(int frameCount)
{
    return engine.globalObject().property("effects").call({frameCount}).toVariant().toList();
}

QString TestVideoEffects::render(const QString &format, const QString &effect, const QList<int> &marks)
{
    WebcamGlobal global;
    global.setVideoEffectsString(effect);
    QVideoEncoder encoder;
    const QVariantMap result = encoder.createFile(
        folder->filePath("film"), 64, 48, 2, 25, format, global.applyPostProcessEffects(),
        effectvalues::adapted(global.videoEffectsStringParsed()), static_cast<int>(marks.size()) - 1, false);
    reason = result.value("reason").toString();
    for (const int mark : marks) {
        if (encoder.encodeImage(markedPicture({64, 48}, mark)) < 0)
            reason = "a picture was not taken";
    }
    const QString path = encoder.closeFile();
    if (!encoder.writeError().isEmpty())
        reason = encoder.writeError();
    return path;
}

void TestVideoEffects::sevenEntriesInTheirOrder()
{
    QStringList names;
    for (const QVariant &entry : catalogue())
        names.append(entry.toMap().value("comment").toString());
    QCOMPARE(names, (QStringList{"Normalize", "Colorize", "Antiflicker", "Sharpen", "Average Blur",
                                 "Gaussian Blur", "Spatial Smoothing"}));
}

void TestVideoEffects::templatesAreExact()
{
    QStringList templates;
    for (const QVariant &entry : catalogue())
        templates.append(entry.toMap().value("filter").toString());
    QCOMPARE(
        templates,
        (QStringList{
            "normalize=blackpt=#000000:whitept=#ffffff:smoothing=[smoothing]:independence=1.0:strength=1.0",
            "colorize=hue=200:saturation=0.5:lightness=0.5:mix=1.0", "deflicker=mode=[mode]:size=[size]",
            "cas=strength=[strength]", "avgblur=sizeX=[sizeX]", "gblur=sigma=0.5:steps=1",
            "bilateral=sigmaS=[sigmaS]:sigmaR=[sigmaR]:"}));
}

void TestVideoEffects::variablesOfEachEntry()
{
    QStringList found;
    for (const QVariant &entry : catalogue()) {
        for (const QVariant &variable : entry.toMap().value("variables").toList()) {
            const QVariantMap map = variable.toMap();
            QVERIFY(!map.value("displayname").toString().isEmpty());
            QVERIFY(!map.value("proptip").toString().isEmpty());
            QVERIFY(!map.value("prop").toList().isEmpty());
            found.append(map.value("propname").toString());
        }
    }
    QCOMPARE(found, (QStringList{"blackpt", "whitept", "smoothing", "independence", "strength", "hue",
                                 "saturation", "lightness", "mix", "mode", "size", "strength", "sizeX",
                                 "sigma", "steps", "sigmaS", "sigmaR"}));
}

void TestVideoEffects::stepIsATenthWhateverIsAskedFor()
{
    const QVariantList rows = engine.globalObject().property("dump").call({-1, 1, 0.5}).toVariant().toList();
    QCOMPARE(rows.size(), 21);
    QCOMPARE(rows.at(0).toMap().value("value").toString(), "-1.0");
    QCOMPARE(rows.at(13).toMap().value("name").toString(), "0.3");
    QCOMPARE(rows.at(20).toMap().value("value").toString(), "1.0");
}

void TestVideoEffects::choicesOfFrameAmounts()
{
    QStringList names;
    QStringList values;
    for (const QVariant &row : engine.globalObject().property("framesAmount").call().toVariant().toList()) {
        names.append(row.toMap().value("name").toString());
        values.append(row.toMap().value("value").toString());
    }
    QCOMPARE(names, (QStringList{"Min", "4", "8", "16", "32", "64", "Max"}));
    QCOMPARE(values, (QStringList{"2", "4", "8", "16", "32", "64", "129"}));
}

void TestVideoEffects::longestAmountIsTheFilm()
{
    const QVariantMap size = catalogue(77).at(2).toMap().value("variables").toList().at(1).toMap();
    QCOMPARE(size.value("minvalue").toInt(), 2);
    QCOMPARE(size.value("maxvalue").toInt(), 77);
}

void TestVideoEffects::everyEffectRendersWithItsDefaults_data()
{
    QTest::addColumn<QVariantMap>("entry");
    for (const QVariant &entry : catalogue()) {
        for (const char *format : {"avi", "webm", "raw"})
            QTest::addRow("%s %s", format, qPrintable(entry.toMap().value("comment").toString()))
                << entry.toMap();
    }
}

void TestVideoEffects::everyEffectRendersWithItsDefaults()
{
    QFETCH(QVariantMap, entry);
    const QString effect = morvane::effect::fromEntry(entry).value("filter").toString();
    QVERIFY(!effect.contains('['));
    const QString format = QString::fromLatin1(QTest::currentDataTag()).section(' ', 0, 0);
    const QString path = render(format, effect, QList<int>(12, 1));
    QCOMPARE(reason, QString());
    QCOMPARE(MovieProbe(path).frames().size(), 12);
}

void TestVideoEffects::everyEffectRendersWithItsLimits_data()
{
    QTest::addColumn<QVariantMap>("entry");
    QTest::addColumn<bool>("last");
    for (const QVariant &entry : catalogue()) {
        const QString name = entry.toMap().value("comment").toString();
        QTest::addRow("%s, first choices", qPrintable(name)) << entry.toMap() << false;
        QTest::addRow("%s, last choices", qPrintable(name)) << entry.toMap() << true;
    }
}

void TestVideoEffects::everyEffectRendersWithItsLimits()
{
    QFETCH(QVariantMap, entry);
    QFETCH(bool, last);
    QVariantList variables = entry.value("variables").toList();
    for (QVariant &variable : variables) {
        QVariantMap map = variable.toMap();
        const QVariantList choices = map.value("prop").toList();
        map.insert("selected", (last ? choices.last() : choices.first()).toMap().value("value"));
        variable = map;
    }
    entry.insert("variables", variables);
    const QString path =
        render("avi", morvane::effect::fromEntry(entry).value("filter").toString(), QList<int>(6, 2));
    QCOMPARE(reason, QString());
    QCOMPARE(MovieProbe(path).frames().size(), 6);
}

void TestVideoEffects::effectThatLooksAheadKeepsEveryFrameAtItsTime()
{
    const QList<int> marks{0, 1, 2, 3, 0, 1, 2, 3, 2, 2, 2, 2};
    const MovieProbe probe(render("avi", "deflicker=mode=median:size=5", marks));
    QCOMPARE(reason, QString());
    const QList<QImage> frames = probe.frames();
    QCOMPARE(frames.size(), marks.size());
    QCOMPARE(probe.duration(), 12 / 25.0);
    // Brightness changes, the colour's own kind stays.
    for (int i = 0; i < marks.size(); ++i) {
        const QColor colour = frames.at(i).pixelColor(32, 24);
        const QColor wanted = markColour(marks.at(i));
        const int difference = std::abs(colour.hsvHue() - wanted.hsvHue());
        QVERIFY2(std::min(difference, 360 - difference) < 25, qPrintable(QString::number(i)));
    }
}

void TestVideoEffects::effectsKeepTransparencyWhereTheyCan()
{
    QVideoEncoder encoder;
    QVERIFY(encoder
                .createFile(folder->filePath("film"), 64, 48, 2, 25, "webm", true, "gblur=sigma=0.5:steps=1",
                            4, false)["ok"]
                .toBool());
    QImage picture(64, 48, QImage::Format_ARGB32);
    picture.fill(QColor(200, 40, 40, 0));
    for (int i = 0; i < 4; ++i)
        QVERIFY(encoder.encodeImage(picture) >= 0);
    const QList<QImage> frames = MovieProbe(encoder.closeFile(), "libvpx").frames();
    QCOMPARE(frames.size(), 4);
    QVERIFY(qAlpha(frames.last().pixel(30, 30)) < 8);
}

void TestVideoEffects::effectsOutsideOfThePictureAreRefused_data()
{
    QTest::addColumn<QString>("effect");
    QTest::newRow("writes a file") << "metadata=mode=print:file=made.txt";
    QTest::newRow("writes a file, by place") << "metadata=print:a:b:same_str:1:made.txt";
    QTest::newRow("reads a file") << "lut3d=file=made.txt";
    QTest::newRow("reads a picture") << "movie=made.png";
    QTest::newRow("draws a text") << "drawtext=text=hello";
    QTest::newRow("several filters") << "gblur=sigma=1,metadata=mode=print:file=made.txt";
    QTest::newRow("a graph") << "[in]gblur=sigma=1[out]";
    QTest::newRow("two pictures in") << "blend=all_mode=addition";
    QTest::newRow("sound") << "volume=volume=2";
}

void TestVideoEffects::effectsOutsideOfThePictureAreRefused()
{
    QFETCH(QString, effect);
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder->path());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Filter did not pass the test: .+"));
    QVideoEncoder encoder;
    const QVariantMap result =
        encoder.createFile(folder->filePath("film"), 64, 48, 2, 25, "avi", true, effect, 4, false);
    encoder.closeFile();
    QDir::setCurrent(before);
    QCOMPARE(result.value("reason").toString(), "Cannot apply post-process effects");
    QVERIFY(QDir(folder->path()).isEmpty());
}

void TestVideoEffects::wrongValueGivesTheMessage()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^FFmpeg: .*"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Filter did not pass the test: .+"));
    QCOMPARE(render("avi", "gblur=sigma=wide", {}), QString());
    QCOMPARE(reason, "Cannot apply post-process effects");
}

QTEST_GUILESS_MAIN(TestVideoEffects)
#include "tst_videoeffects.moc"
