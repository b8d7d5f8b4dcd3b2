#include "project/FileFacts.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestFileFacts : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString at(const QString &name) const
    {
        return m_folder->path() + u'/' + name;
    }
    void touch(const QString &name, const QByteArray &bytes = "x") const
    {
        QDir().mkpath(QFileInfo(at(name)).path());
        QFile file(at(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void factsOfAFile()
    {
        touch(u"a.b.txt"_s, QByteArray(2048, 'x'));
        const QVariantMap facts = morvane::fileInfo(at(u"a.b.txt"_s));
        QCOMPARE(facts.value(u"exists"_s).toBool(), true);
        QCOMPARE(facts.value(u"path"_s).toString(), at(u"a.b.txt"_s));
        QCOMPARE(facts.value(u"fileName"_s).toString(), u"a.b.txt"_s);
        QCOMPARE(facts.value(u"baseName"_s).toString(), u"a"_s);
        QCOMPARE(facts.value(u"suffix"_s).toString(), u"txt"_s);
        QCOMPARE(facts.value(u"size"_s).toLongLong(), 2048);
        QVERIFY(!facts.value(u"sizeText"_s).toString().isEmpty());
        for (const QString &key : {u"lastModifiedDate"_s, u"lastModifiedTime"_s, u"created"_s})
            QVERIFY2(!facts.value(key).toString().isEmpty(), qPrintable(key));
        QVERIFY(!facts.contains(u"width"_s));
    }

    void factsOfAMissingFileAreEmpty()
    {
        const QVariantMap facts = morvane::fileInfo(at(u"gone.png"_s), true);
        QCOMPARE(facts.value(u"exists"_s).toBool(), false);
        QVERIFY(facts.value(u"created"_s).toString().isEmpty());
        QCOMPARE(facts.value(u"width"_s).toInt(), 0);
    }

    void imageSizeIsReadWhenAsked()
    {
        QImage(32, 20, QImage::Format_RGB32).save(at(u"a.png"_s));
        const QVariantMap facts = morvane::fileInfo(u"file://"_s + at(u"a.png"_s), true);
        QCOMPARE(facts.value(u"width"_s).toInt(), 32);
        QCOMPARE(facts.value(u"height"_s).toInt(), 20);
    }

    void urlOfALocalFile()
    {
        touch(u"a b.txt"_s);
        QVERIFY(morvane::urlInfo(u"file://"_s + at(u"a%20b.txt"_s)).value(u"exists"_s).toBool());
        QVERIFY(!morvane::urlInfo(u"http://example.org/a.txt"_s).value(u"exists"_s).toBool());
    }

    void listsOneKindOfFilesByName()
    {
        for (const QString &name :
             {u"b.mp4"_s, u"a.avi"_s, u"c.png"_s, u"d.meta"_s, u"e.txt"_s, u"sub/f.avi"_s})
            touch(name);
        const auto names = [this](int type) {
            QStringList list;
            for (const QVariant &file : morvane::listDir(m_folder->path(), type))
                list.append(file.toMap().value(u"fileName"_s).toString());
            return list;
        };
        QCOMPARE(names(morvane::ListVideoFiles), QStringList({u"a.avi"_s, u"b.mp4"_s}));
        QCOMPARE(names(morvane::ListImageFiles), QStringList({u"c.png"_s}));
        QCOMPARE(names(morvane::ListMetasFiles), QStringList({u"d.meta"_s}));
        QVERIFY(morvane::listDir(at(u"gone"_s)).isEmpty());
        QVERIFY(morvane::listDir(QString()).isEmpty());
    }

    void deletesWithAndWithoutPrefix()
    {
        touch(u"a.txt"_s);
        touch(u"b.txt"_s);
        QVERIFY(morvane::deleteFile(at(u"a.txt"_s)));
        QVERIFY(morvane::deleteFile(u"file:///"_s + at(u"b.txt"_s)));
        QVERIFY(!QFileInfo::exists(at(u"a.txt"_s)));
        QVERIFY(!QFileInfo::exists(at(u"b.txt"_s)));
        QVERIFY(!morvane::deleteFile(at(u"a.txt"_s)));
    }

    void projectFactsCountEachKind()
    {
        const QString files = u"p_files/"_s;
        for (const QString &name :
             {u"cap/a.jpg"_s, u"cap/b.cr2"_s, u"cap/c.txt"_s, u"cap/tiff/a.tif"_s, u"cap/tiff/a.tiff"_s,
              u"cap/raw/a.crw"_s, u"cap/raw/b.raw"_s, u"cap/raw/c.cr2"_s, u"cap/raw/d.jpg"_s, u"ref/a.webp"_s,
              u"video/a.mkv"_s, u"video/b.webp"_s, u"video/c.mp3"_s})
            touch(files + name);
        const QVariantMap facts = morvane::projectDirInfo(ProjectTree::of(at(u"p.kzfx"_s), {}));
        const QString root = at(files);
        QCOMPARE(facts.value(u"projectname"_s).toString(), u"p"_s);
        QCOMPARE(facts.value(u"root"_s).toString(), root);
        QCOMPARE(facts.value(u"rootOn"_s).toBool(), true);
        QCOMPARE(facts.value(u"capThumbs"_s).toString(), root + u"cap/tmb/"_s);
        const auto check = [&](const QString &key, const QString &folder, int count) {
            QCOMPARE(facts.value(key).toString(), root + folder);
            QCOMPARE(facts.value(key + u"Count"_s).toInt(), count);
            QCOMPARE(facts.value(key + u"On"_s).toBool(), count > 0);
        };
        check(u"cap"_s, u"cap/"_s, 2);
        check(u"tif"_s, u"cap/tiff/"_s, 2);
        check(u"raw"_s, u"cap/raw/"_s, 3);
        check(u"ref"_s, u"ref/"_s, 1);
        check(u"vid"_s, u"video/"_s, 2);
        check(u"bg"_s, u"bg/"_s, 0);
        QCOMPARE(facts.size(), 4 + 6 * 3);
    }

    void projectFactsWithoutFolders()
    {
        const QVariantMap facts = morvane::projectDirInfo(ProjectTree::of(at(u"p.kzfx"_s), {}));
        QCOMPARE(facts.value(u"rootOn"_s).toBool(), false);
        QCOMPARE(facts.value(u"capOn"_s).toBool(), false);
    }
};

QTEST_GUILESS_MAIN(TestFileFacts)
#include "tst_filefacts.moc"
