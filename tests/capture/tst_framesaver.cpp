#include "capture/CaptureNaming.h"
#include "capture/SafeImageFile.h"
#include "capture/webcam/FrameSaver.h"
#include "shared/Zum.h"

#include <cstdio>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Heard : SaveObserver
{
    QStringList actions;
    QList<int> stations;
    QStringList saved;
    QStringList thumbnailReasons;
    QStringList imageReasons;

    void progressTotal(int) override
    {
    }
    void progressCurrent(int current) override
    {
        stations.append(current);
    }
    void progressAction(const QString &action) override
    {
        actions.append(action);
    }
    void frameSaved(const QString &fullPath, const QString &tumbPath) override
    {
        saved = {fullPath, tumbPath};
    }
    void thumbnailFailed(const QString &reason) override
    {
        thumbnailReasons.append(reason);
    }
    void imageFailed(const QString &reason) override
    {
        imageReasons.append(reason);
    }
};

QImage colourful(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x * 5 % 256, y * 7 % 256, (x + y) * 3 % 256));
    }
    return image;
}

const QString shootArgument = QStringLiteral("--shoot");

/// The program that is killed: saves one shot after the other and says so.
int shootUntilKilled(const QString &folder)
{
    Heard heard;
    FrameSaver saver(heard);
    const QImage picture = colourful(640, 480);
    for (int i = 0; i < 1000; ++i) {
        CaptureRequest request;
        const QString tail = QStringLiteral("_%1_260101120000.jpg").arg(i, 6, 10, QLatin1Char('0'));
        request.fullPath = folder + QStringLiteral("/frame_norm") + tail;
        request.tumbPath = folder + QStringLiteral("/frame_mini") + tail;
        saver.save(picture, request);
        std::fputs("shot\n", stdout);
        std::fflush(stdout);
    }
    return 0;
}

} // namespace

class TestFrameSaver : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void cropIsTheMiddle();
    void aCropLargerThanTheImageDegradesInThatDimensionAlone_data();
    void aCropLargerThanTheImageDegradesInThatDimensionAlone();
    void withoutCropNothingIsCut();
    void grayIsTheLuminanceInLinearLight();
    void turnedBy180Degrees();
    void jpegAndPngByTheSuffixInAnyCase();
    void jpegHasFullQuality();
    void aPictureWithoutSizeSavesNothing();
    void thumbnailsGrowWithTheirScale();
    void tiffGoesIntoItsFolder();
    void aTiffThatFailsDoesNotStopTheRest();
    void aFullDiskIsTold();
    void anExistingFileIsNeverOverwritten();
    void leftoversOfKilledProgramsGo();
    void nothingIsLeftOfAFileThatWasNotPlaced();
    void aKilledProgramLeavesNoDamagedImage();
    void namesAndTimeStamps();
    void theNextSecondCarriesOver_data();
    void theNextSecondCarriesOver();

private:
    CaptureRequest request(const QString &name = "frame_norm_000001_260101120000.png") const
    {
        CaptureRequest request;
        request.fullPath = folder->filePath(name);
        request.tumbPath = folder->filePath("frame_mini_000001_260101120000.jpg");
        return request;
    }
    std::unique_ptr<QTemporaryDir> folder;
    Heard heard;
};

void TestFrameSaver::init()
{
    folder = std::make_unique<QTemporaryDir>();
    heard = Heard();
}

void TestFrameSaver::cropIsTheMiddle()
{
    const QImage picture = colourful(31, 20);
    const QImage cut = FrameSaver::cropped(picture, 10, 5);
    QCOMPARE(cut.size(), QSize(10, 5));
    // (31 - 10) / 2 and (20 - 5) / 2, cut to integers.
    QCOMPARE(cut, picture.copy(10, 7, 10, 5));
}

void TestFrameSaver::aCropLargerThanTheImageDegradesInThatDimensionAlone_data()
{
    QTest::addColumn<QSize>("asked");
    QTest::addColumn<QSize>("cut");
    QTest::newRow("wider") << QSize(100, 10) << QSize(40, 10);
    QTest::newRow("higher") << QSize(10, 100) << QSize(10, 30);
    QTest::newRow("no size") << QSize(0, -3) << QSize(40, 30);
}

void TestFrameSaver::aCropLargerThanTheImageDegradesInThatDimensionAlone()
{
    QFETCH(QSize, asked);
    QFETCH(QSize, cut);
    QCOMPARE(FrameSaver::cropped(colourful(40, 30), asked.width(), asked.height()).size(), cut);
}

void TestFrameSaver::withoutCropNothingIsCut()
{
    CaptureRequest shot = request();
    shot.frameWidth = 5;
    shot.frameHeight = 5;
    FrameSaver(heard).save(colourful(40, 30), shot);
    QCOMPARE(QImage(shot.fullPath).convertToFormat(QImage::Format_RGB32), colourful(40, 30));
    QVERIFY(!heard.stations.contains(40));
}

void TestFrameSaver::grayIsTheLuminanceInLinearLight()
{
    QImage colours(64, 64, QImage::Format_RGB32);
    for (int i = 0; i < 64 * 64; ++i)
        colours.setPixel(i % 64, i / 64, qRgb(i % 16 * 17, i / 16 % 16 * 17, i / 256 * 17));
    const QImage gray = FrameSaver::grayscale(colours);
    for (int i = 0; i < 64 * 64; ++i) {
        const QRgb from = colours.pixel(i % 64, i / 64);
        const int value = Zum::luminance(qRed(from), qGreen(from), qBlue(from));
        QCOMPARE(gray.pixel(i % 64, i / 64), qRgb(value, value, value));
    }
    // Not the usual sum of the coded values, which is 76 for red.
    QImage red(1, 1, QImage::Format_RGB32);
    red.fill(Qt::red);
    QCOMPARE(qRed(FrameSaver::grayscale(red).pixel(0, 0)), 127);
}

void TestFrameSaver::turnedBy180Degrees()
{
    CaptureRequest shot = request();
    shot.rotate = true;
    FrameSaver(heard).save(colourful(40, 30), shot);
    QCOMPARE(QImage(shot.fullPath).convertToFormat(QImage::Format_RGB32),
             colourful(40, 30).mirrored(true, true));
}

void TestFrameSaver::jpegAndPngByTheSuffixInAnyCase()
{
    for (const QString suffix : {"jpg", "JPEG", "png"}) {
        heard = Heard();
        FrameSaver(heard).save(colourful(40, 30), request("frame_norm_000001_260101120000." + suffix));
        QCOMPARE(heard.saved.size(), 2);
        const QByteArray format = QImageReader::imageFormat(heard.saved.first());
        QCOMPARE(format, suffix == "png" ? QByteArray("png") : QByteArray("jpeg"));
        QVERIFY(heard.actions.contains(QString("Saving %1 file...").arg(suffix.toUpper())));
    }
}

void TestFrameSaver::jpegHasFullQuality()
{
    FrameSaver(heard).save(colourful(40, 30), request("frame_norm_000001_260101120000.jpg"));
    const QString best = folder->filePath("best.jpg");
    QVERIFY(colourful(40, 30).save(best, "JPEG", 100));
    QCOMPARE(QImage(heard.saved.first()), QImage(best));
    QCOMPARE(QFileInfo(heard.saved.first()).size(), QFileInfo(best).size());
    const QString small = folder->filePath("small.jpg");
    QVERIFY(colourful(40, 30).scaled(90, 60, Qt::KeepAspectRatio).save(small, "jpg", 67));
    QCOMPARE(QFileInfo(heard.saved.last()).size(), QFileInfo(small).size());
}

void TestFrameSaver::aPictureWithoutSizeSavesNothing()
{
    FrameSaver(heard).save(QImage(), request());
    QCOMPARE(heard.stations, (QList<int>{3, 100, 0}));
    QVERIFY(heard.saved.isEmpty() && heard.imageReasons.isEmpty());
}

void TestFrameSaver::thumbnailsGrowWithTheirScale()
{
    FrameSaver saver(heard);
    saver.setThumbnailScale(2);
    saver.save(colourful(400, 100), request());
    QCOMPARE(QImage(heard.saved.last()).size(), QSize(180, 45));
}

void TestFrameSaver::tiffGoesIntoItsFolder()
{
    FrameSaver saver(heard);
    saver.setSaveTiffToo(true);
    saver.save(colourful(40, 30), request());
    QVERIFY(heard.actions.contains("Saving TIFF file..."));
    QVERIFY(!QImage(folder->filePath("tiff/frame_norm_000001_260101120000.tiff")).isNull());
    QCOMPARE(heard.saved.size(), 2);
}

void TestFrameSaver::aTiffThatFailsDoesNotStopTheRest()
{
    FrameSaver saver(heard);
    saver.setSaveTiffToo(true);
    QFile inTheWay(folder->filePath("tiff"));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    saver.save(colourful(40, 30), request());
    QVERIFY(heard.actions.contains("Error: Failed to make dir to save TIFF image"));
    QCOMPARE(heard.saved.size(), 2);
    QVERIFY(inTheWay.remove());
    QVERIFY(QDir(folder->path()).mkpath("tiff/frame_norm_000001_260101120001.tiff"));
    CaptureRequest next = request("frame_norm_000001_260101120001.png");
    next.tumbPath = folder->filePath("frame_mini_000001_260101120001.jpg");
    saver.save(colourful(40, 30), next);
    QVERIFY(heard.actions.contains("Error: Failed to save TIFF image"));
    QCOMPARE(heard.saved.first(), next.fullPath);
}

void TestFrameSaver::aFullDiskIsTold()
{
    QVERIFY2(QFileInfo::exists("/dev/full"), "the device that is always full is missing");
    // What is written under the temporary name goes to a device that is always full.
    const QString hidden =
        folder->filePath(QString(".frame_norm_000001_260101120000.png.%1.part").arg(qApp->applicationPid()));
    QVERIFY(QFile::link("/dev/full", hidden));
    FrameSaver(heard).save(colourful(40, 30), request());
    QCOMPARE(heard.imageReasons, QStringList{"No space left on device"});
    QVERIFY(heard.actions.contains("Error: Failed to save processed image"));
    QVERIFY(heard.saved.isEmpty());
    QVERIFY(!QFileInfo::exists(request().fullPath) && !QFileInfo::exists(request().tumbPath));
    QVERIFY(!QFileInfo(hidden).isSymLink());
}

void TestFrameSaver::anExistingFileIsNeverOverwritten()
{
    QFile old(folder->filePath("a.png"));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    SafeImageFile file(old.fileName());
    QVERIFY(file.write("new"));
    QCOMPARE(file.placeAs(old.fileName()), SafeImageFile::Placed::NameTaken);
    QCOMPARE(QFileInfo(old.fileName()).size(), 3);
    QCOMPARE(file.placeAs(folder->filePath("b.png")), SafeImageFile::Placed::Done);
    QVERIFY(QFileInfo::exists(folder->filePath("b.png")));
    QCOMPARE(file.placeAs(folder->filePath("c.png")), SafeImageFile::Placed::Failed);
    QVERIFY(!file.reason().isEmpty());
}

void TestFrameSaver::leftoversOfKilledProgramsGo()
{
    const auto leave = [&](const QString &name, int secondsAgo) {
        QFile file(folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-secondsAgo),
                                 QFileDevice::FileModificationTime));
    };
    leave(".frame_norm_000001_260101120000.png.123.part", 4000);
    leave(".frame_norm_000002_260101120000.png.124.part", 60);
    leave("visible.part", 4000);
    FrameSaver(heard).save(colourful(40, 30), request());
    const QStringList left = QDir(folder->path()).entryList({"*.part"}, QDir::Files | QDir::Hidden);
    QCOMPARE(left.size(), 2);
    QVERIFY(!left.contains(".frame_norm_000001_260101120000.png.123.part"));
}

void TestFrameSaver::nothingIsLeftOfAFileThatWasNotPlaced()
{
    {
        SafeImageFile file(folder->filePath("a.png"));
        QVERIFY(file.write("bytes"));
        QCOMPARE(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
        QVERIFY(QDir(folder->path()).entryList(QDir::Files).isEmpty());
    }
    QVERIFY(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void TestFrameSaver::aKilledProgramLeavesNoDamagedImage()
{
    const QDir dir(folder->path());
    int whole = 0;
    for (int round = 0; round < 8; ++round) {
        QProcess shooter;
        shooter.start(QCoreApplication::applicationFilePath(), {shootArgument, folder->path()});
        QVERIFY(shooter.waitForStarted());
        QVERIFY(shooter.waitForReadyRead());
        // Another moment of the saving in each round.
        QTest::qWait(3 + round * 3);
        shooter.kill();
        shooter.waitForFinished();
        const QStringList names = dir.entryList({"*.jpg"}, QDir::Files);
        for (const QString &name : names) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray bytes = file.readAll();
            // A JPEG that was cut off lacks its end, and is decoded all the same.
            QVERIFY2(bytes.endsWith(QByteArray("\xff\xd9")), qPrintable(name));
            QVERIFY2(!QImage::fromData(bytes).isNull(), qPrintable(name));
            ++whole;
        }
    }
    QVERIFY(whole > 8);
}

void TestFrameSaver::namesAndTimeStamps()
{
    capturenaming::Rules rules{false, "scene7", "_norm_", "_mini_", "jpg", "png"};
    QCOMPARE(
        capturenaming::namesOf(rules, "000012", "260304050607"),
        (capturenaming::Names{"frame_norm_000012_260304050607.jpg", "frame_mini_000012_260304050607.png"}));
    rules.useMask = true;
    QCOMPARE(capturenaming::namesOf(rules, "000012", "260304050607"),
             (capturenaming::Names{"scene7_000012_260304050607.jpg", "scene7_mini_000012_260304050607.png"}));
}

void TestFrameSaver::theNextSecondCarriesOver_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("next");
    QTest::newRow("second") << "/a/frame_norm_000001_260101120000.jpg"
                            << "/a/frame_norm_000001_260101120001.jpg";
    QTest::newRow("year") << "/a/x_000001_261231235959.jpg"
                          << "/a/x_000001_270101000000.jpg";
    QTest::newRow("no stamp") << "/a/x.jpg"
                              << "/a/x_1.jpg";
    QTest::newRow("counted") << "/a/x_1.jpg"
                             << "/a/x_2.jpg";
    QTest::newRow("no moment") << "/a/x_999999999999.jpg"
                               << "/a/x_999999999999_1.jpg";
    QTest::newRow("dotted folder") << "/a.b/x"
                                   << "/a.b/x_1";
}

void TestFrameSaver::theNextSecondCarriesOver()
{
    QFETCH(QString, path);
    QFETCH(QString, next);
    QCOMPARE(capturenaming::nextSecond(path), next);
}

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    if (app.arguments().contains(shootArgument))
        return shootUntilKilled(app.arguments().last());
    TestFrameSaver test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_framesaver.moc"
