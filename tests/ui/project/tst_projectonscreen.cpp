#include "ui/project/FilmWindow.h"

#include <QTest>

/// A project from its making to its return in another run of the program, by mouse and keys alone.
class TestProjectOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void menuMakesAProjectOnTheDisk();
    void capturedFramesAreSavedAtOnceAndShown();
    void controlClickSelectsSingleFrames();
    void shiftClickSelectsUpToTheCurrentFrame();
    void dragSelectsTheRowsBetween();
    void escapeAndAClickElsewhereDeselect();
    void hideButtonHidesTheSelection();
    void mirrorButtonMirrorsTheSelection();
    void duplicateMakesAsManyAsAsked();
    void moveButtonPutsTheSelectionBehindTheCurrentFrame();
    void copyAndPasteByKeys();
    void cutAndPasteByKeys();
    void deletionTakesTwoPresses();
    void copyAfterADeletionTakesTheFrameThatIsCurrent();
    void rightClickDisarmsTheDeletion();
    void undoAndRedoByKeys();
    void presetSetsFrameSizeAndRate();
    void sizeRateAndTitleAreTyped();
    void savedProjectComesBackFromTheRecentList();
    void nextProjectBeginsWithAPathOfItsOwn();
    void saveAsCopiesThePicturesAndLeavesTheOldProject();
    void importAddsFramesWithCopiesOfTheirPictures();
    void importOfTheOpenProjectIsRefused();
    void cleanUpRemovesOnlyWhatNoFrameNames();
    void cleanUpRefusedRemovesNothing();

private:
    /// A film of that many pictures, saved.
    void makeFilm(int frames);
    bool saveIsLit()
    {
        return d->shell().global().projectChanged();
    }

    std::unique_ptr<FilmWindow> d;
};

void TestProjectOnScreen::init()
{
    d = std::make_unique<FilmWindow>();
}

void TestProjectOnScreen::cleanup()
{
    const QStringList warnings = d->sceneWarnings();
    d.reset();
    QCOMPARE(warnings, QStringList());
}

void TestProjectOnScreen::makeFilm(int frames)
{
    QVERIFY(d->create("film"));
    d->shoot("film", 0, frames);
    QCOMPARE(d->frames().framesCount(), frames);
    QVERIFY(!saveIsLit());
}

void TestProjectOnScreen::menuMakesAProjectOnTheDisk()
{
    QVERIFY(d->create("film"));
    QCOMPARE(d->dialogs().asked.constFirst().caption, QString("Create New Project..."));
    const QStringList made = d->listing().keys();
    QVERIFY(made.contains(d->path("film.kzfx")));
    QVERIFY(made.contains(d->path("film_files/cap/tmb")));
    QVERIFY(d->shell().findItem("text", "No Frames") != nullptr);
    QVERIFY(d->shell().window().title().contains("film"));
}

void TestProjectOnScreen::capturedFramesAreSavedAtOnceAndShown()
{
    QVERIFY(d->create("film"));
    d->shoot("film", 0, 3);
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2"}));
    QCOMPARE(d->rowsOnDisk("film"), d->rows());
    QCOMPARE(d->frames().currentIndex(), 2);
    QVERIFY(!saveIsLit());
    QTRY_COMPARE(d->thumbnailsOnStrip(), 3);
}

void TestProjectOnScreen::controlClickSelectsSingleFrames()
{
    makeFilm(5);
    d->clickFrame(1, Qt::ControlModifier);
    d->clickFrame(3, Qt::ControlModifier);
    QCOMPARE(d->selectedOnStrip(), (QStringList{"1", "3"}));
    d->clickFrame(1, Qt::ControlModifier);
    QCOMPARE(d->selectedOnStrip(), QStringList{"3"});
    QCOMPARE(d->frames().currentIndex(), 4);
}

void TestProjectOnScreen::shiftClickSelectsUpToTheCurrentFrame()
{
    makeFilm(5);
    d->clickFrame(1);
    QCOMPARE(d->frames().currentIndex(), 1);
    d->clickFrame(3, Qt::ShiftModifier);
    QCOMPARE(d->selectedOnStrip(), (QStringList{"1", "2", "3"}));
}

void TestProjectOnScreen::dragSelectsTheRowsBetween()
{
    makeFilm(5);
    d->dragOverFrames(3, 1);
    QCOMPARE(d->selectedOnStrip(), (QStringList{"1", "2", "3"}));
    d->dragOverFrames(2, 2);
    QCOMPARE(d->frames().currentIndex(), 2);
}

void TestProjectOnScreen::escapeAndAClickElsewhereDeselect()
{
    makeFilm(4);
    d->dragOverFrames(0, 2);
    QCOMPARE(d->frames().selectedCount(), 3);
    d->press(Qt::Key_Escape);
    QCOMPARE(d->selectedOnStrip(), QStringList());
    d->dragOverFrames(0, 2);
    d->clickText("Click here or press Esc to cancel selection");
    QCOMPARE(d->selectedOnStrip(), QStringList());
    QCOMPARE(d->frames().selectedCount(), 0);
}

void TestProjectOnScreen::hideButtonHidesTheSelection()
{
    makeFilm(4);
    d->dragOverFrames(1, 2);
    d->clickTip("Hide or show: hidden frames are neither played nor exported");
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "1h", "2h", "3"}));
    QVERIFY(saveIsLit());
    d->clickFrame(2);
    d->clickTip("Hide or show: hidden frames are neither played nor exported");
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "1h", "2", "3"}));
}

void TestProjectOnScreen::mirrorButtonMirrorsTheSelection()
{
    makeFilm(4);
    d->dragOverFrames(0, 1);
    d->clickTip("Mirror");
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0m", "1m", "2", "3"}));
    QVERIFY(saveIsLit());
    d->clickFrame(3);
    d->clickTip("Mirror");
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0m", "1m", "2", "3m"}));
}

void TestProjectOnScreen::duplicateMakesAsManyAsAsked()
{
    makeFilm(3);
    d->clickFrame(1);
    d->clickTip("How many copies each frame gets");
    d->clickTip("Copies: 3");
    QCOMPARE(d->frames().duplicateQuantity(), 3);
    d->clickTip("Duplicate (3)  ");
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "1", "1", "1", "1", "2"}));
    QCOMPARE(d->frames().selectedCount(), 0);
    QVERIFY(saveIsLit());
    QTRY_COMPARE(d->thumbnailsOnStrip(), 6);
}

void TestProjectOnScreen::moveButtonPutsTheSelectionBehindTheCurrentFrame()
{
    makeFilm(6);
    d->clickFrame(4);
    d->clickFrame(0, Qt::ControlModifier);
    d->clickFrame(1, Qt::ControlModifier);
    d->clickTip("Move the selected frames behind the current one");
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"2", "3", "4", "0", "1", "5"}));
    QVERIFY(saveIsLit());
}

void TestProjectOnScreen::copyAndPasteByKeys()
{
    makeFilm(4);
    d->clickFrame(0);
    d->press(Qt::Key_C, Qt::ControlModifier);
    d->clickFrame(2);
    d->press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2", "0", "3"}));
}

void TestProjectOnScreen::cutAndPasteByKeys()
{
    makeFilm(4);
    d->clickFrame(0);
    d->press(Qt::Key_X, Qt::ControlModifier);
    d->press(Qt::Key_End);
    d->press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"1", "2", "3", "0"}));
    QVERIFY(saveIsLit());
}

void TestProjectOnScreen::deletionTakesTwoPresses()
{
    makeFilm(4);
    d->clickFrame(1);
    d->press(Qt::Key_Delete);
    QCOMPARE(d->frames().framesCount(), 4);
    d->press(Qt::Key_Delete);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "2", "3"}));
    d->dragOverFrames(1, 2);
    d->clickText("Delete");
    QVERIFY(d->waitIdle());
    QCOMPARE(d->frames().framesCount(), 3);
    d->clickText("Delete");
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), QStringList{"0"});
    QVERIFY(saveIsLit());
    // The pictures of frames that undo may bring back stay.
    for (int number = 0; number < 4; ++number)
        QVERIFY(QFile::exists(d->capturedFolder("film") + FilmWindow::pictureName(number)));
}

void TestProjectOnScreen::copyAfterADeletionTakesTheFrameThatIsCurrent()
{
    makeFilm(4);
    d->clickFrame(1);
    d->press(Qt::Key_Delete);
    d->press(Qt::Key_Delete);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->frames().currentIndex(), 1);
    d->press(Qt::Key_C, Qt::ControlModifier);
    d->press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "2", "2", "3"}));
}

void TestProjectOnScreen::rightClickDisarmsTheDeletion()
{
    makeFilm(3);
    d->clickText("Delete");
    QVERIFY(d->frames().deletionConfirmed());
    d->shell().click(d->shell().findItem("text", "Delete"), Qt::RightButton);
    QVERIFY(!d->frames().deletionConfirmed());
    QCOMPARE(d->frames().framesCount(), 3);
}

void TestProjectOnScreen::undoAndRedoByKeys()
{
    makeFilm(5);
    d->clickFrame(1);
    d->clickTip("Mirror");
    QVERIFY(d->waitIdle());
    d->dragOverFrames(2, 3);
    d->clickText("Delete");
    d->clickText("Delete");
    QVERIFY(d->waitIdle());
    const QStringList edited{"0", "1m", "4"};
    QCOMPARE(d->rows(), edited);
    for (int i = 0; i < 3; ++i) {
        d->press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(d->waitIdle());
    }
    QCOMPARE(d->rows(), (QStringList{"0", "1", "2", "3", "4"}));
    // Further back, the captures themselves are undone; only from the very start does redo replay them all.
    while (d->frames().undoCurrent() >= 0) {
        d->press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(d->waitIdle());
    }
    for (int i = 0; i < d->frames().undoCount(); ++i) {
        d->press(Qt::Key_Y, Qt::ControlModifier);
        QVERIFY(d->waitIdle());
    }
    QCOMPARE(d->rows(), edited);
}

void TestProjectOnScreen::presetSetsFrameSizeAndRate()
{
    makeFilm(1);
    d->clickText("Presets");
    QCOMPARE(d->dialogFile(), QString("ProjectPresets.qml"));
    d->clickLabel("7296x4104, 24 fps");
    QTRY_COMPARE(d->dialogFile(), QString());
    QCOMPARE(d->shell().global().cropAreaW(), 7296);
    QCOMPARE(d->shell().global().cropAreaH(), 4104);
    QCOMPARE(d->frames().timelineFps(), 24.0);
    QVERIFY(saveIsLit());
}

void TestProjectOnScreen::sizeRateAndTitleAreTyped()
{
    makeFilm(1);
    d->typeInto("Frame width", "1920");
    d->typeInto("Frame height", "1080");
    d->typeInto("Frames per second", "15");
    d->typeInto("Title", "Snow");
    QCOMPARE(d->shell().global().cropAreaW(), 1920);
    QCOMPARE(d->shell().global().cropAreaH(), 1080);
    QCOMPARE(d->frames().timelineFps(), 15.0);
    QCOMPARE(d->shell().global().movieTitle(), QString("Snow"));
    QVERIFY(saveIsLit());
}

void TestProjectOnScreen::savedProjectComesBackFromTheRecentList()
{
    makeFilm(5);
    d->clickFrame(1);
    d->clickTip("Mirror");
    QVERIFY(d->waitIdle());
    d->clickFrame(3);
    d->clickTip("Hide or show: hidden frames are neither played nor exported");
    QVERIFY(d->waitIdle());
    d->clickFrame(0);
    d->press(Qt::Key_C, Qt::ControlModifier);
    d->press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(d->waitIdle());
    d->typeInto("Frame width", "2048");
    d->typeInto("Frames per second", "12");
    d->typeInto("Title", "Snow");
    const QStringList edited{"0", "0", "1m", "2", "3h", "4"};
    QCOMPARE(d->rows(), edited);
    d->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!saveIsLit());
    QCOMPARE(d->rowsOnDisk("film"), edited);
    const auto saved = d->listing();

    d->restart();
    QVERIFY(!d->shell().window().projectLoaded());
    d->press(Qt::Key_F3);
    QTRY_VERIFY(d->shell().findItem("label", "film") != nullptr);
    d->clickLabel("film");
    QTRY_VERIFY(d->shell().window().projectLoaded());
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), edited);
    QCOMPARE(d->shell().global().cropAreaW(), 2048);
    QCOMPARE(d->frames().timelineFps(), 12.0);
    QCOMPARE(d->shell().global().movieTitle(), QString("Snow"));
    QVERIFY(!saveIsLit());
    QTRY_COMPARE(d->thumbnailsOnStrip(), 6);
    QCOMPARE(d->listing(), saved);
    d->press(Qt::Key_C, Qt::ControlModifier);
    d->press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), edited + QStringList{"4"});
}

void TestProjectOnScreen::nextProjectBeginsWithAPathOfItsOwn()
{
    makeFilm(1);
    Curves &path = d->shell().controllers().curves;
    path.newPoint(MPathPoint::Move, 10, 10);
    path.newPoint(MPathPoint::Line, 20, 20);
    path.setSmoothValue(90);
    path.setLocked(true);
    d->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(d->create("other"));
    QCOMPARE(path.count(), 0);
    QCOMPARE(path.smoothValue(), 300);
    QVERIFY(!path.locked());
    path.undo();
    QCOMPARE(path.count(), 0);
    QVERIFY(d->open("film"));
    QCOMPARE(path.count(), 2);
    QCOMPARE(path.smoothValue(), 90);
}

void TestProjectOnScreen::saveAsCopiesThePicturesAndLeavesTheOldProject()
{
    makeFilm(3);
    const auto before = d->listing();
    d->clickFrame(0);
    d->clickTip("Mirror");
    QVERIFY(d->waitIdle());
    d->dialogs().pathAnswers.append(d->path("second.kzfx"));
    d->clickText("Save Project As");
    QTRY_COMPARE(d->shell().window().projName(), QString("second"));
    QVERIFY(d->waitIdle());
    QVERIFY(!saveIsLit());
    const auto after = d->listing();
    for (auto it = before.cbegin(); it != before.cend(); ++it)
        QCOMPARE(after.value(it.key(), "gone"), it.value());
    for (int number = 0; number < 3; ++number) {
        const QString name = FilmWindow::pictureName(number);
        QCOMPARE(after.value(d->capturedFolder("second") + name, "gone"),
                 before.value(d->capturedFolder("film") + name));
    }
    QCOMPARE(d->rowsOnDisk("second"), (QStringList{"0m", "1", "2"}));
    QCOMPARE(d->rowsOnDisk("film"), (QStringList{"0", "1", "2"}));
}

void TestProjectOnScreen::importAddsFramesWithCopiesOfTheirPictures()
{
    QVERIFY(d->create("other"));
    d->shoot("other", 10, 2);
    makeFilm(2);
    const auto before = d->listing();
    d->dialogs().pathAnswers.append(d->path("other.kzfx"));
    d->clickText("Import Project");
    QTRY_COMPARE(d->frames().framesCount(), 4);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "1", "10", "11"}));
    const auto after = d->listing();
    for (const int number : {10, 11}) {
        const QString name = FilmWindow::pictureName(number);
        QCOMPARE(after.value(d->capturedFolder("film") + name, "gone"),
                 before.value(d->capturedFolder("other") + name));
    }
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (it.key() != d->path("film.kzfx"))
            QCOMPARE(after.value(it.key(), "gone"), it.value());
    }
    QVERIFY(saveIsLit());
    d->press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(d->rowsOnDisk("film"), d->rows());
    QTRY_COMPARE(d->thumbnailsOnStrip(), 4);
}

void TestProjectOnScreen::importOfTheOpenProjectIsRefused()
{
    makeFilm(2);
    const auto before = d->listing();
    d->dialogs().pathAnswers.append(d->path("film.kzfx"));
    d->clickText("Import Project");
    QCOMPARE(d->dialogs().asked.constLast().start, QString("Cannot import project to itself"));
    QVERIFY(d->waitIdle());
    QCOMPARE(d->frames().framesCount(), 2);
    QCOMPARE(d->listing(), before);
}

void TestProjectOnScreen::cleanUpRemovesOnlyWhatNoFrameNames()
{
    makeFilm(4);
    d->dragOverFrames(1, 2);
    d->clickText("Delete");
    d->clickText("Delete");
    QVERIFY(d->waitIdle());
    auto expected = d->listing();
    d->clickText("Clean Up");
    QCOMPARE(d->dialogFile(), QString("CleanupConfirmDialog.qml"));
    d->clickText("OK");
    QTRY_VERIFY(!saveIsLit());
    QVERIFY(d->waitIdle());
    for (const int number : {1, 2})
        QCOMPARE(expected.remove(d->capturedFolder("film") + FilmWindow::pictureName(number)), 1);
    expected.remove(d->path("film.kzfx"));
    auto after = d->listing();
    after.remove(d->path("film.kzfx"));
    QCOMPARE(after, expected);
    QCOMPARE(d->rowsOnDisk("film"), (QStringList{"0", "3"}));
}

void TestProjectOnScreen::cleanUpRefusedRemovesNothing()
{
    makeFilm(3);
    d->press(Qt::Key_Delete);
    d->press(Qt::Key_Delete);
    QVERIFY(d->waitIdle());
    QCOMPARE(d->rows(), (QStringList{"0", "1"}));
    const auto before = d->listing();
    d->clickText("Clean Up");
    d->clickText("Cancel");
    QTRY_COMPARE(d->dialogFile(), QString());
    d->clickText("Clean Up");
    d->press(Qt::Key_Escape);
    QTRY_COMPARE(d->dialogFile(), QString());
    QVERIFY(d->waitIdle());
    QCOMPARE(d->listing(), before);
}

QTEST_MAIN(TestProjectOnScreen)
#include "tst_projectonscreen.moc"
