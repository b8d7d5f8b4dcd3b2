#include "shared/Names.h"

#include <QTest>

class TestNames : public QObject
{
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
    void limits();
    void suffixesAreFoundInAFilterList_data();
    void suffixesAreFoundInAFilterList();
};

void TestNames::texts_data()
{
    QTest::addColumn<QString>("constant");
    QTest::addColumn<QString>("text");
    QTest::newRow("images") << morvane::imageFilters << "*.png *.jpg *.bmp";
    QTest::newRow("imported images") << morvane::importImageFilters
                                     << " *.png *.jpg *.jpeg *.webp *.crw *.cr2 *.jfif";
    QTest::newRow("exported images") << morvane::exportImageFilters << "*.png *.jpg *.webp *.tiff";
    QTest::newRow("videos") << morvane::videoFilters
                            << " *.avi *.ogg *.ogv *.webm *.mp4 *.mpeg *.mov *.wmv *.mp4 *.mkv";
    QTest::newRow("colour profiles") << morvane::iccFilters << "*.icc *.icm";
    QTest::newRow("meta extension") << morvane::metaExtension << "meta";
    QTest::newRow("meta pattern") << morvane::metaFilter << "*.meta";
    QTest::newRow("project path token") << morvane::projectPathToken << "($ProjectDir)";
    QTest::newRow("older project extension") << morvane::legacyProjectExtension << "kzf";
    QTest::newRow("project extension") << morvane::projectExtension << "kzfx";
    QTest::newRow("time stamp") << morvane::timeStampFormat << "yyMMddhhmmss";
    QTest::newRow("file address") << morvane::fileUrlPrefix << "file:///";
    QTest::newRow("empty frame") << morvane::emptyFrameImage << "images/empty_96.png";
    QTest::newRow("avi") << morvane::formatAvi << "avi";
    QTest::newRow("ogv") << morvane::formatOgv << "ogv";
    QTest::newRow("raw") << morvane::formatRaw << "raw";
    QTest::newRow("webm") << morvane::formatWebm << "webm";
    QTest::newRow("apng") << morvane::formatApng << "apng";
    QTest::newRow("webp") << morvane::formatWebp << "webp";
    QTest::newRow("mkv") << morvane::formatMkv << "mkv";
    QTest::newRow("mjpg") << morvane::formatMjpg << "mjpg";
    QTest::newRow("recent projects") << morvane::lastProjectsKey << "lastprojects";
    QTest::newRow("bookmarks") << morvane::bookmarksKey << "bookmarks";
    QTest::newRow("external editor") << morvane::externalEditorKey << "exteditorpath";
    QTest::newRow("language") << morvane::localeKey << "localename";
    QTest::newRow("application") << morvane::applicationName << "Morvane Capture";
}

void TestNames::texts()
{
    QFETCH(QString, constant);
    QTEST(constant, "text");
}

void TestNames::limits()
{
    QCOMPARE(morvane::maxFrameWidth, 1200000);
    QCOMPARE(morvane::maxFrameHeight, 1200000);
    QCOMPARE(morvane::exportVideoMinFrameWidth, 320);
    QCOMPARE(morvane::exportVideoMinFrameHeight, 280);
    QCOMPARE(morvane::autosaveDelayMinMinutes, 3);
    QCOMPARE(morvane::autosaveDelayMaxMinutes, 60);
}

void TestNames::suffixesAreFoundInAFilterList_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("filters");
    QTest::addColumn<bool>("found");
    QTest::newRow("first, behind a blank") << "png" << morvane::importImageFilters << true;
    QTest::newRow("last") << "jfif" << morvane::importImageFilters << true;
    QTest::newRow("absent") << "tiff" << morvane::importImageFilters << false;
    QTest::newRow("part of another") << "jp" << morvane::importImageFilters << false;
    QTest::newRow("empty") << "" << morvane::importImageFilters << false;
    QTest::newRow("video") << "mkv" << morvane::videoFilters << true;
}

void TestNames::suffixesAreFoundInAFilterList()
{
    QFETCH(QString, suffix);
    QFETCH(QString, filters);
    QTEST(morvane::suffixInFilters(suffix, filters), "found");
}

QTEST_APPLESS_MAIN(TestNames)

#include "tst_names.moc"
