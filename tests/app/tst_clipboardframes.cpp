#include "app/ClipboardFrames.h"

#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

class TestClipboardFrames : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        data = std::make_unique<QMimeData>();
        data->setUrls({QUrl::fromLocalFile("/a/1.png"), QUrl::fromLocalFile("/a/2.png")});
    }

    void filesAreKeptAndTold()
    {
        ClipboardFrames frames;
        QSignalSpy told(&frames, &ClipboardFrames::weHaveClipboardFrames);
        frames.clipboardChanged(data.get(), true);
        QCOMPARE(told.size(), 1);
        QCOMPARE(frames.countClipboardFrames(), 2);
        QCOMPARE(frames.paths(), (QStringList{"/a/1.png", "/a/2.png"}));
        frames.clearClipboardFrames();
        QCOMPARE(frames.countClipboardFrames(), 0);
    }

    void withoutAProjectNothingIsKept()
    {
        ClipboardFrames frames;
        QSignalSpy told(&frames, &ClipboardFrames::weHaveClipboardFrames);
        frames.clipboardChanged(data.get(), false);
        QCOMPARE(told.size(), 0);
        QCOMPARE(frames.countClipboardFrames(), 0);
    }

    void textIsNoFile()
    {
        ClipboardFrames frames;
        QSignalSpy told(&frames, &ClipboardFrames::weHaveClipboardFrames);
        QMimeData text;
        text.setText("hello");
        frames.clipboardChanged(&text, true);
        frames.clipboardChanged(nullptr, true);
        QCOMPARE(told.size(), 0);
    }

    void newFilesReplaceTheOldOnes()
    {
        ClipboardFrames frames;
        frames.clipboardChanged(data.get(), true);
        data->setUrls({QUrl::fromLocalFile("/b/3.png")});
        frames.clipboardChanged(data.get(), true);
        QCOMPARE(frames.paths(), QStringList{"/b/3.png"});
    }

private:
    std::unique_ptr<QMimeData> data;
};

QTEST_GUILESS_MAIN(TestClipboardFrames)
#include "tst_clipboardframes.moc"
