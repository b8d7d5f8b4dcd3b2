#include "MadeMovie.h"
#include "support/FullDisk.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

/// Where movies come to lie on the disk, also when something goes wrong.
class TestMovieOutput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void folderThatCannotBeWritten();
    void movieThatCannotBeReplacedGetsAnotherName();
    void growsUnderATemporaryName();
    void earlierMovieStaysUntilTheNewOneIsWhole();
    void interruptedMovieDoesNotReplaceAnEarlierOne();
    void interruptedMovieCanBePlayed_data();
    void interruptedMovieCanBePlayed();
    void diskThatFillsUpIsToldAndWhatThereIsStays_data();
    void diskThatFillsUpIsToldAndWhatThereIsStays();
    void destroyedWithoutCloseKeepsNothingOpen();

private:
    QString base() const
    {
        return folder->filePath("film");
    }
    Made make(const QString &format, const QList<int> &marks)
    {
        return makeMovie(base(), format, marks);
    }

    std::unique_ptr<QTemporaryDir> folder;
};

void TestMovieOutput::init()
{
    folder = std::make_unique<QTemporaryDir>();
}

void TestMovieOutput::folderThatCannotBeWritten()
{
    QVideoEncoder encoder;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^try to avio_open2 Unknown error -2 .*"));
    const QVariantMap result =
        encoder.createFile(folder->filePath("none/film"), 64, 48, 2, 25, "webm", false, {}, 10, false);
    QCOMPARE(result.value("ok").toBool(), false);
    QVERIFY(result.value("reason").toString().startsWith("Unknown error -2 (No such file"));
}

void TestMovieOutput::movieThatCannotBeReplacedGetsAnotherName()
{
#ifdef Q_OS_UNIX
    QFile locked(folder->filePath("film-uncompressed.avi"));
    QVERIFY(locked.open(QIODevice::WriteOnly));
    locked.setPermissions(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    // The folder may be written by anybody, the movie by nobody.
    QVERIFY(QFile::setPermissions(folder->path(), QFile::Permissions(0x7777)));
    const OrdinaryUser user(folder->path());
    const QString path = make("raw", {0, 1}).path;
    QVERIFY2(QRegularExpression("/film.+-uncompressed\\.avi$").match(path).hasMatch(), qPrintable(path));
#endif
}

void TestMovieOutput::growsUnderATemporaryName()
{
    QVideoEncoder encoder;
    QVERIFY(encoder.createFile(base(), 64, 48, 2, 25, "avi", false, {}, 10, false)["ok"].toBool());
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files), QStringList{"film.avi.part"});
    encoder.encodeImage(markedPicture(smallSize, 0));
    QCOMPARE(encoder.closeFile(), folder->filePath("film.avi"));
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files), QStringList{"film.avi"});
}

void TestMovieOutput::earlierMovieStaysUntilTheNewOneIsWhole()
{
    make("avi", {0, 0, 0});
    QVideoEncoder encoder;
    QVERIFY(encoder.createFile(base(), 64, 48, 2, 25, "avi", false, {}, 10, false)["ok"].toBool());
    encoder.encodeImage(markedPicture(smallSize, 1));
    QCOMPARE(MovieProbe(folder->filePath("film.avi")).frames().size(), 3);
    encoder.closeFile();
    QCOMPARE(MovieProbe(folder->filePath("film.avi")).frames().size(), 1);
}

void TestMovieOutput::interruptedMovieDoesNotReplaceAnEarlierOne()
{
    make("avi", {0, 0, 0});
    QVideoEncoder encoder;
    QVERIFY(encoder.createFile(base(), 64, 48, 2, 25, "avi", false, {}, 10, false)["ok"].toBool());
    encoder.encodeImage(markedPicture(smallSize, 1));
    encoder.markInterrupted();
    const QString path = encoder.closeFile();
    QVERIFY(path != folder->filePath("film.avi"));
    QCOMPARE(MovieProbe(path).frames().size(), 1);
    QCOMPARE(MovieProbe(folder->filePath("film.avi")).frames().size(), 3);
}

void TestMovieOutput::interruptedMovieCanBePlayed_data()
{
    addEveryFormat();
}

void TestMovieOutput::interruptedMovieCanBePlayed()
{
    QVideoEncoder encoder;
    QVERIFY(encoder.createFile(base(), 64, 48, 2, 25, QTest::currentDataTag(), false, {}, 100, false)["ok"]
                .toBool());
    for (int i = 0; i < 30; ++i)
        QVERIFY(encoder.encodeImage(markedPicture(smallSize, i)) >= 0);
    encoder.markInterrupted();
    const MovieProbe probe(encoder.closeFile());
    QCOMPARE(encoder.writeError(), QString());
    QCOMPARE(probe.frames().size(), 30);
    QCOMPARE(markOf(probe.frames().last()), 29 % 7);
}

void TestMovieOutput::diskThatFillsUpIsToldAndWhatThereIsStays_data()
{
    addFormats({"avi", "webm", "raw"});
}

void TestMovieOutput::diskThatFillsUpIsToldAndWhatThereIsStays()
{
#ifdef Q_OS_UNIX
    make(QTest::currentDataTag(), {4});
    const QString earlier = QDir(folder->path()).entryInfoList(QDir::Files).first().filePath();
    QVideoEncoder encoder;
    QVERIFY(encoder.createFile(base(), 64, 48, 2, 25, QTest::currentDataTag(), false, {}, 900, false)["ok"]
                .toBool());
    int written = 0;
    QString path;
    {
        const FullDisk disk(90000);
        while (written < 900) {
            QImage picture = markedPicture(smallSize, written);
            for (int i = 0; i < 700; ++i)
                picture.setPixel((i * 37 + written) % 64, (i * 11) % 48, qRgb(i * 7 & 255, i * 13 & 255, 90));
            if (encoder.encodeImage(picture) < 0)
                break;
            ++written;
        }
        path = encoder.closeFile();
    }
    QVERIFY2(written > 0 && written < 900, qPrintable(QString::number(written)));
    QVERIFY2(encoder.writeError().contains("File too large"), qPrintable(encoder.writeError()));
    QVERIFY(path != earlier);
    QVERIFY(MovieProbe(path).frames().size() > 0);
    QCOMPARE(MovieProbe(earlier).frames().size(), 1);
#endif
}

void TestMovieOutput::destroyedWithoutCloseKeepsNothingOpen()
{
    {
        QVideoEncoder encoder;
        QVERIFY(encoder.createFile(base(), 64, 48, 2, 25, "avi", false, {}, 10, false)["ok"].toBool());
        encoder.encodeImage(markedPicture(smallSize, 0));
    }
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files), QStringList{"film.avi"});
}

QTEST_GUILESS_MAIN(TestMovieOutput)
#include "tst_movieoutput.moc"
