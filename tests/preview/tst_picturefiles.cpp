#include "preview/FileEnd.h"
#include "preview/PictureGeometry.h"
#include "preview/PreviewWorld.h"
#include "preview/SourcePicture.h"

#include <QBuffer>

namespace {

/// 6 by 4 pixels; the toolkit reads the format but does not write it.
QByteArray gifBytes()
{
    return QByteArray::fromBase64("R0lGODlhBgAEAPAAAP8AAAAAACH5BAAAAAAALAAAAAAGAAQAAAIFhI+py1gAOw==");
}

QByteArray bytesOf(const QString &format, const QImage &image)
{
    if (format == "gif")
        return gifBytes();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format.toLatin1());
    return writer.write(image) ? bytes : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QImage noisy(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    quint32 value = 1;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, value = value * 1664525 + 1013904223);
    return image;
}

QImage readFrom(const QByteArray &bytes, const QString &suffix, QSize least = {})
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("picture." + suffix);
    write(path, bytes);
    SourcePicture picture(path);
    return picture.size().isEmpty() ? QImage() : picture.read(least.isValid() ? least : picture.size());
}

void littleEndian(QByteArray &bytes, int offset, quint32 value)
{
    for (int i = 0; i < 4; ++i)
        bytes[offset + i] = char(value >> (8 * i));
}

const QStringList formats{"jpg", "png", "webp", "tiff", "bmp", "gif"};

} // namespace

/// Picture files of every kind, whole and damaged, and the sizes that they go through.
class TestPictureFiles : public QObject
{
    Q_OBJECT

private slots:
    void everyFormatIsRead_data();
    void everyFormatIsRead();
    void cutOffFileIsRefused_data();
    void cutOffFileIsRefused();
    void damagedHeadIsRefused_data();
    void damagedHeadIsRefused();
    void changedBytesNeverCrash_data();
    void changedBytesNeverCrash();
    void wrongSuffixDoesNotMatter();
    void endMarkOfAnEmbeddedThumbnailIsNotTheEnd();
    void bytesBehindTheEndDoNoHarm();
    void endMarkFarFromTheEndIsFound();
    void hugeHeaderIsRefusedBeforeAnythingIsMade();
    void emptyMissingAndFolderAreRefused();
    void jpegIsDecodedReduced();
    void pictureOfOnePixel();
    void pictureLikeALine();
    void fileThatDisappearsKeepsTheLastPicture();
    void copyOfAWidePictureHasItsNumbersWithSixDigits();
    void sizeInACopysName_data();
    void sizeInACopysName();
    void copyByPolicy_data();
    void copyByPolicy();
    void storedTextIsRead_data();
    void storedTextIsRead();
};

void TestPictureFiles::everyFormatIsRead_data()
{
    QTest::addColumn<QString>("format");
    for (const QString &format : formats)
        QTest::addRow("%s", qPrintable(format)) << format;
}

void TestPictureFiles::everyFormatIsRead()
{
    QFETCH(QString, format);
    const QImage image = readFrom(bytesOf(format, PreviewWorld::plain({6, 4}, Qt::red)), format);
    QCOMPARE(image.size(), QSize(6, 4));
    QVERIFY(image.pixelColor(3, 2).red() > 240 && image.pixelColor(3, 2).green() < 10);
}

void TestPictureFiles::cutOffFileIsRefused_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<double>("part");
    for (const QString &format : formats)
        for (const double part : {0.97, 0.9, 0.5, 0.1, 0.02})
            QTest::addRow("%s to %g", qPrintable(format), part) << format << part;
}

void TestPictureFiles::cutOffFileIsRefused()
{
    QFETCH(QString, format);
    QFETCH(double, part);
    const LogLines decodersTalk;
    const QByteArray whole = bytesOf(format, noisy({300, 200}));
    const QByteArray bytes = whole.left(qsizetype(double(whole.size()) * part));
    QVERIFY(!readFrom(whole, format).isNull());
    QVERIFY(readFrom(bytes, format).isNull());
}

void TestPictureFiles::damagedHeadIsRefused_data()
{
    everyFormatIsRead_data();
}

void TestPictureFiles::damagedHeadIsRefused()
{
    QFETCH(QString, format);
    QByteArray bytes = bytesOf(format, noisy({30, 20}));
    for (int i = 0; i < 16; ++i)
        bytes[i] = char(~bytes[i]);
    QVERIFY(readFrom(bytes, format).isNull());
}

void TestPictureFiles::changedBytesNeverCrash_data()
{
    everyFormatIsRead_data();
}

void TestPictureFiles::changedBytesNeverCrash()
{
    QFETCH(QString, format);
    const LogLines decodersTalk;
    const QByteArray whole = bytesOf(format, noisy({30, 20}));
    quint32 value = 7;
    const auto next = [&value](qsizetype below) {
        value = value * 1664525 + 1013904223;
        return qsizetype(value >> 8) % below;
    };
    for (int turn = 0; turn < 40; ++turn) {
        QByteArray bytes = whole;
        for (int i = 0; i < 3; ++i)
            bytes[next(bytes.size())] = char(next(256));
        const QImage image = readFrom(bytes, format);
        QVERIFY(image.isNull() || image.sizeInBytes() <= 256 * 1024 * 1024);
    }
}

void TestPictureFiles::wrongSuffixDoesNotMatter()
{
    QCOMPARE(readFrom(bytesOf("png", noisy({30, 20})), "jpg"), noisy({30, 20}));
}

/// A header segment with a small JPEG in it, as cameras write.
QByteArray withThumbnail(const QByteArray &jpeg)
{
    const QByteArray thumbnail = bytesOf("jpg", PreviewWorld::plain({8, 8}, Qt::green));
    QByteArray segment("\xff\xe1");
    const qsizetype length = thumbnail.size() + 2;
    segment.append(char(length >> 8)).append(char(length & 0xff)).append(thumbnail);
    return jpeg.left(2) + segment + jpeg.mid(2);
}

void TestPictureFiles::endMarkOfAnEmbeddedThumbnailIsNotTheEnd()
{
    const LogLines decodersTalk;
    const QByteArray whole = withThumbnail(bytesOf("jpg", noisy({300, 200})));
    QVERIFY(!readFrom(whole, "jpg").isNull());
    QVERIFY(readFrom(whole.left(whole.size() / 2), "jpg").isNull());
}

void TestPictureFiles::bytesBehindTheEndDoNoHarm()
{
    const QByteArray rest(5000, '\0');
    for (const QString &format : {QString("jpg"), QString("gif"), QString("bmp")})
        QVERIFY2(!readFrom(bytesOf(format, noisy({30, 20})) + rest, format).isNull(), qPrintable(format));
}

void TestPictureFiles::endMarkFarFromTheEndIsFound()
{
    QByteArray bytes = bytesOf("jpg", noisy({30, 20}));
    // So that the mark lies across the border of what is read at a time.
    bytes.append(QByteArray(65535, 'x'));
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    buffer.seek(17);
    QVERIFY(FileEnd::isThere(buffer));
    QCOMPARE(buffer.pos(), 17);
}

void TestPictureFiles::hugeHeaderIsRefusedBeforeAnythingIsMade()
{
    const LogLines decodersTalk;
    const PreviewWorld world;
    QByteArray png = bytesOf("png", noisy({30, 20}));
    // 60000 by 60000: 14 gigabytes.
    for (const int offset : {16, 20})
        png.replace(offset, 4, QByteArray("\x00\x00\xea\x60", 4));
    QByteArray bmp = bytesOf("bmp", noisy({30, 20}));
    littleEndian(bmp, 18, 60000);
    littleEndian(bmp, 22, 60000);
    write(world.captured() + "bomb.png", png);
    write(world.captured() + "bomb.bmp", bmp);
    StoreUnderTest test(world);
    for (const char *name : {"bomb.png", "bomb.bmp"}) {
        QVERIFY(test.show(PreviewWorld::request(name)).isNull());
        QCOMPARE(test.told.last(), QString("ended"));
    }
}

void TestPictureFiles::emptyMissingAndFolderAreRefused()
{
    QVERIFY(readFrom({}, "jpg").isNull());
    SourcePicture missing("/nowhere/a.jpg");
    QVERIFY(missing.size().isEmpty());
    QVERIFY(missing.read({1, 1}).isNull());
    const QTemporaryDir folder;
    SourcePicture none(folder.path());
    QVERIFY(none.size().isEmpty());
}

void TestPictureFiles::jpegIsDecodedReduced()
{
    const QByteArray bytes = bytesOf("jpg", PreviewWorld::halves({1601, 801}));
    QCOMPARE(readFrom(bytes, "jpg", {300, 100}).size(), QSize(401, 201));
    QCOMPARE(readFrom(bytes, "jpg", {401, 201}).size(), QSize(401, 201));
    QCOMPARE(readFrom(bytes, "jpg", {402, 201}).size(), QSize(801, 401));
    QCOMPARE(readFrom(bytes, "jpg", {802, 401}).size(), QSize(1601, 801));
    QCOMPARE(readFrom(bytes, "jpg", {1601, 801}).size(), QSize(1601, 801));
    const QByteArray png = bytesOf("png", PreviewWorld::halves({160, 80}));
    QCOMPARE(readFrom(png, "png", {20, 10}).size(), QSize(160, 80));
}

void TestPictureFiles::pictureOfOnePixel()
{
    const PreviewWorld world;
    for (const QString &format : formats) {
        if (format == "gif")
            continue;
        world.addCaptured("a." + format, {1, 1});
        StoreUnderTest test(world);
        QCOMPARE(test.show(PreviewWorld::request("a." + format)).size(), QSize(100, 100));
    }
}

void TestPictureFiles::pictureLikeALine()
{
    const PreviewWorld world;
    for (const QString &format : {QString("jpg"), QString("png")}) {
        const QString name = "a." + format;
        world.addCaptured(name, {20000, 10});
        StoreUnderTest test(world);
        QCOMPARE(test.show(PreviewWorld::request(name, {1000, 500})).size(), QSize(1000, 1));
        test.workToTheEnd();
        QCOMPARE(world.copyNames().last(), name + "_@20000x10.jpg");
        test.store.clear({});
        QCOMPARE(test.show(PreviewWorld::request(name, {1000, 500})).size(), QSize(1000, 1));
        QCOMPARE(test.text().sourceWidth, 20000.0);
        QCOMPARE(test.text().sourceHeight, 10.0);
    }
}

void TestPictureFiles::fileThatDisappearsKeepsTheLastPicture()
{
    const PreviewWorld world;
    world.addCaptured("a.jpg", {20, 10});
    world.addCaptured("b.jpg", {20, 10});
    StoreUnderTest test(world);
    const QImage last = test.show(PreviewWorld::request("a.jpg"));
    QVERIFY(QFile::remove(world.captured() + "b.jpg"));
    const LogLines log;
    QCOMPARE(test.show(PreviewWorld::request("b.jpg")), last);
    QCOMPARE(log.lines(), QStringList("RamPreview: Failed to load image " + world.captured() + "b.jpg"));
}

void TestPictureFiles::copyOfAWidePictureHasItsNumbersWithSixDigits()
{
    QCOMPARE(DiskCopies::fileName("a.jpg", {1536, 864}), QString("a.jpg_@1536x864.jpg"));
    QCOMPARE(DiskCopies::fileName("a.jpg", {1234567, 100000}), QString("a.jpg_@1.23457e+06x100000.jpg"));
}

void TestPictureFiles::sizeInACopysName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("plain") << "a.jpg_@6000x4000.jpg" << QSize(6000, 4000);
    QTest::newRow("with exponent") << "a.jpg_@1.23457e+06x10.jpg" << QSize(1234570, 10);
    QTest::newRow("mark in the frame's name") << "me@home_@12x34.jpg" << QSize(12, 34);
    QTest::newRow("one side of nothing") << "a.jpg_@0x4000.jpg" << QSize(7, 4000);
    QTest::newRow("one side unreadable") << "a.jpg_@6000xhigh.jpg" << QSize(6000, 8);
    QTest::newRow("three parts") << "a.jpg_@6000x4000x2.jpg" << QSize(7, 8);
    QTest::newRow("no mark") << "a.jpg" << QSize(7, 8);
}

void TestPictureFiles::sizeInACopysName()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QCOMPARE(DiskCopies::sourceSize(name, {7, 8}), size);
}

void TestPictureFiles::copyByPolicy_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<QSize>("source");
    QTest::addColumn<QSize>("reduced");
    QTest::newRow("fit, wide") << int(Zum::ScaleToFit) << QSize(3072, 864) << QSize(1536, 432);
    QTest::newRow("fit, high") << int(Zum::ScaleToFit) << QSize(1536, 1728) << QSize(768, 864);
    QTest::newRow("by width") << int(Zum::ScaleByWidth) << QSize(1536, 1728) << QSize(1536, 1728);
    QTest::newRow("by height") << int(Zum::ScaleByHeight) << QSize(3072, 1728) << QSize(1536, 864);
    QTest::newRow("one pixel too wide") << int(Zum::ScaleToFit) << QSize(1537, 10) << QSize(1536, 9);
    QTest::newRow("fits") << int(Zum::ScaleToFit) << QSize(1536, 864) << QSize(1536, 864);
}

void TestPictureFiles::copyByPolicy()
{
    QFETCH(int, policy);
    QFETCH(QSize, source);
    QFETCH(QSize, reduced);
    PictureRequest request;
    request.policy = policy;
    const PictureGeometry geometry = PictureGeometry::of(source, source, false, request);
    QCOMPARE(geometry.reduced, reduced);
    QCOMPARE(geometry.needsCopy, source.width() > 1536 || source.height() > 864);
    QVERIFY(!PictureGeometry::of(source, source, true, request).needsCopy);
}

void TestPictureFiles::storedTextIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("taken");
    QTest::addColumn<QList<double>>("numbers");
    QTest::newRow("all six") << "0.5;0.25;600;400;300;200" << true << QList<double>{0.5, 0.25, 600, 400};
    QTest::newRow("missing ones") << ";;;;;" << true << QList<double>{1, 1, 100, 100};
    QTest::newRow("no numbers") << "a;b;nan;inf;x;y" << true << QList<double>{1, 1, 100, 100};
    QTest::newRow("practically nothing") << "1e-13;-1e-13;0;0;0;0" << true << QList<double>{1, 1, 100, 100};
    QTest::newRow("minus one") << "-1;-1;-1;-1;0;0" << true << QList<double>{-1, -1, -1, -1};
    QTest::newRow("five parts") << "1;1;1;1;1" << false << QList<double>{};
    QTest::newRow("nothing") << "" << false << QList<double>{};
}

void TestPictureFiles::storedTextIsRead()
{
    QFETCH(QString, text);
    QFETCH(bool, taken);
    QFETCH(QList<double>, numbers);
    StoredText result;
    QCOMPARE(StoredText::read(text, result), taken);
    if (taken)
        QCOMPARE(QList<double>({result.scale, result.coefficient, result.sourceWidth, result.sourceHeight}),
                 numbers);
}

QTEST_GUILESS_MAIN(TestPictureFiles)
#include "tst_picturefiles.moc"
