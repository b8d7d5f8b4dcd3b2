#include "DocumentText.h"
#include "project/ProjectReader.h"
#include "RandomProject.h"

#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int kills = 200;

/// Saves the two states in turn for ever; tells through the pipe when the first save is done.
[[noreturn]] void saveInALoop(const QString &path, const ProjectDocument &first,
                              const ProjectDocument &second, int pipe)
{
    bool told = false;
    for (;;) {
        for (const ProjectDocument *document : {&first, &second}) {
            if (!ProjectWriter::save(path, *document).ok)
                _exit(1);
            if (!told && write(pipe, "x", 1) == 1)
                told = true;
        }
    }
}

} // namespace

class TestProjectKill : public QObject
{
    Q_OBJECT

private slots:
    void killedWhileSavingTheProjectHoldsTheOldOrTheNewState()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"film.kzfx"_s);
        const ProjectDocument one = randomProject(1, 100);
        const ProjectDocument two = randomProject(2, 300);
        const quint32 seed = QRandomGenerator::global()->generate();
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        int sawOne = 0;
        int sawTwo = 0;
        for (int round = 0; round < kills; ++round) {
            int ends[2];
            QCOMPARE(pipe(ends), 0);
            const pid_t child = fork();
            QVERIFY(child >= 0);
            // Each state is the first in every other round, so that both are met however slow the disk is.
            const bool oneFirst = round % 2 == 0;
            QElapsedTimer timer;
            timer.start();
            if (child == 0)
                saveInALoop(path, oneFirst ? one : two, oneFirst ? two : one, ends[1]);
            close(ends[1]);
            char told = 0;
            QCOMPARE(read(ends[0], &told, 1), 1);
            // At a random moment of the next save, which takes about as long as the first.
            const qint64 saveMicroseconds = timer.nsecsElapsed() / 1000 + 1;
            usleep(static_cast<useconds_t>(random.bounded(saveMicroseconds)));
            QCOMPARE(kill(child, SIGKILL), 0);
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            QVERIFY(WIFSIGNALED(status));
            close(ends[0]);

            const ProjectReadResult result = ProjectReader::readFile(path);
            QVERIFY2(result.status == ProjectReadResult::Status::Ok, qPrintable(result.error));
            const bool isOne = result.document.frames == one.frames;
            QVERIFY(isOne || result.document.frames == two.frames);
            ++(isOne ? sawOne : sawTwo);
        }
        // Kills that always met the same state would have proved little.
        QVERIFY(sawOne > 0 && sawTwo > 0);
    }
};

QTEST_APPLESS_MAIN(TestProjectKill)
#include "tst_projectkill.moc"
