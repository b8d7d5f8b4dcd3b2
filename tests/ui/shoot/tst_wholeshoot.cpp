#include "jobs/MovieProbe.h"
#include "ui/shoot/FilmOnDisk.h"
#include "ui/shoot/Pictures.h"
#include "ui/shoot/PlayedRows.h"
#include "ui/shoot/ShootWindow.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>

using namespace Qt::StringLiterals;

/// A whole shoot from empty settings to two movies, by keys and mouse alone. The functions are its steps, in
/// order: each goes on where the one before ended, and after one that fails the others are skipped. A failed
/// step leaves a picture of the screen and everything on the disk.
class TestWholeShoot : public QObject
{
    Q_OBJECT

public:
    static void initMain();

private slots:
    void init();
    void cleanup();
    void cleanupTestCase();

    void startsWithNothing();
    void fileDialogMakesTheProject();
    void cameraConnects();
    void twelveFramesAreShot();
    void oneFrameIsReplaced();
    void twoFramesAreDeletedAndComeBack();
    void oneFrameIsHeldForFour();
    void oneFrameIsHidden();
    void oneFrameIsMirrored();
    void onionSkinGoesOnAndOff();
    void rangeIsSet();
    void rangePlaysOnce();
    void rangePlaysAgainAndAgain();
    void timelineZooms();
    void languageIsChosen();
    void projectIsSaved();
    void quittingAsksForTheLastChange();
    void nextStartSpeaksRussian();
    void projectComesBackFromTheRecentList();
    void aviIsRendered();
    void webmIsRendered();
    void folderOfTheMovieOpens();
    void programEnds();

private:
    static constexpr int shots = 12;
    static constexpr int rows = 15;
    static constexpr int replacedRow = 4;
    static constexpr int heldRow = 2;
    static constexpr int hiddenRow = 8;
    static constexpr int mirroredRow = 10;
    static constexpr int rangeStart = 1;
    static constexpr int rangeEnd = 13;
    static constexpr double rate = 12;

    FramesModel &frames()
    {
        return m_person->frames();
    }
    WebcamGlobal &global()
    {
        return m_person->shell().global();
    }
    /// File names of the captured pictures, by row.
    QStringList pictureNames();
    /// The picture of a row as it shows in a film.
    QImage pictureOfRow(int row);
    void checkProjectFile();
    void shoot();
    void render(const QString &format, const QString &extension);
    void checkMovie(const QString &path);

    static inline std::unique_ptr<QTemporaryDir> s_home;
    QString m_home;
    FilmOnDisk m_film;
    std::unique_ptr<ShootWindow> m_person;
    bool m_broken = false;
    /// What became of the pictures: by row, and the one that was replaced.
    QStringList m_pictures;
    QString m_replaced;
};

/// The program finds an empty home, and its file dialogs are the toolkit's own.
void TestWholeShoot::initMain()
{
    s_home = std::make_unique<QTemporaryDir>();
    qputenv("HOME", s_home->path().toLocal8Bit());
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qunsetenv(name);
    // The toolkit's watch would take several short steps for one long one.
    qputenv("QTEST_FUNCTION_TIMEOUT", "900000");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestWholeShoot::init()
{
    if (m_broken)
        QSKIP("an earlier step has failed");
    if (m_person)
        return;
    m_home = s_home->path();
    QVERIFY(QDir(m_home).mkdir(u"Films"_s));
    m_film = FilmOnDisk(m_home + u"/Films"_s, u"walk"_s);
    m_person = std::make_unique<ShootWindow>(m_home);
}

void TestWholeShoot::cleanup()
{
    if (m_person && m_person->runs() && !QTest::currentTestFailed())
        QCOMPARE(m_person->shell().sceneWarnings(), QStringList());
    if (!QTest::currentTestFailed() || m_broken)
        return;
    m_broken = true;
    s_home->setAutoRemove(false);
    if (m_person)
        m_person->keepScreen(m_home, QString::fromLatin1(QTest::currentTestFunction()));
    qWarning("what was on the screen and on the disk stays in %s", qPrintable(m_home));
}

void TestWholeShoot::cleanupTestCase()
{
    m_person.reset();
    s_home.reset();
}

QStringList TestWholeShoot::pictureNames()
{
    QStringList names;
    for (int row = 0; row < frames().framesCount(); ++row)
        names.append(frames().frameAt(row).capFull);
    return names;
}

QImage TestWholeShoot::pictureOfRow(int row)
{
    const QImage picture = m_film.picture(frames().frameAt(row).capFull);
    return frames().frameAt(row).mirrored ? picture.mirrored(true, false) : picture;
}

void TestWholeShoot::startsWithNothing()
{
    QVERIFY(!QFile::exists(m_person->settingsPath()));
    m_person->start();
    QVERIFY(!m_person->window().projectLoaded());
    QVERIFY(m_person->find("text", u"Capture"_s) != nullptr);
}

void TestWholeShoot::fileDialogMakesTheProject()
{
    const auto answer = [](QDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Create New Project..."_s);
        // The field for the name has the keyboard from the start.
        QVERIFY(qobject_cast<QLineEdit *>(dialog.focusWidget()) != nullptr);
        QTest::keyClicks(dialog.focusWidget(), u"Films/walk"_s);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    };
    SHOOT_DO(m_person->answerDialog([this] { m_person->press(Qt::Key_N, Qt::ControlModifier); }, answer));
    SHOOT_WAIT(m_person->window().projectLoaded());
    QCOMPARE(m_person->window().projPath(), m_film.projectPath());
    QCOMPARE(m_film.elements(u"Version"_s).size(), 1);
    QCOMPARE(m_film.elements(u"Frame"_s).size(), 0);
    QVERIFY(QDir(m_film.picturePath(u"tmb"_s)).exists());
    QVERIFY(m_person->window().title().contains(u"walk"_s));
    QVERIFY(m_person->find("text", u"No Frames"_s) != nullptr);
}

void TestWholeShoot::cameraConnects()
{
    // Where no camera can be had the panel leads to those that can.
    if (m_person->shown("objectName", u"useWebCameras"_s) != nullptr)
        SHOOT_DO(m_person->clickName(u"useWebCameras"_s));
    SHOOT_WAIT_FOR(global().cameraName(), u"Demo Webcam #301"_s);
    SHOOT_DO(m_person->clickName(u"connectButton"_s));
    SHOOT_WAIT(global().connected());
    auto *live = m_person->window().capturingDeviceObject().value<QQuickItem *>();
    QVERIFY(live != nullptr);
    SHOOT_WAIT(pictures::contrast(m_person->look(live)) > 10);
}

void TestWholeShoot::shoot()
{
    SHOOT_WAIT(global().ready() && !global().savingFrame() && global().capturingInprogress() == -1);
    const QStringList before = pictureNames();
    m_person->press(Qt::Key_Return);
    SHOOT_WAIT(pictureNames() != before && global().capturingInprogress() == -1);
}

void TestWholeShoot::twelveFramesAreShot()
{
    SHOOT_DO(m_person->clickName(u"captureButton"_s));
    SHOOT_WAIT_FOR(frames().framesCount(), 1);
    while (frames().framesCount() < shots) {
        const int before = frames().framesCount();
        SHOOT_DO(shoot());
        QCOMPARE(frames().framesCount(), before + 1);
        QTRY_COMPARE(m_film.elements(u"Frame"_s).size(), before + 1);
    }
    m_pictures = pictureNames();
    QCOMPARE(QSet<QString>(m_pictures.begin(), m_pictures.end()).size(), shots);
    QImage last;
    for (const QString &name : std::as_const(m_pictures)) {
        const QImage picture = m_film.picture(name);
        QCOMPARE(picture.size(), QSize(1280, 720));
        QVERIFY2(pictures::contrast(picture) > 10, qPrintable(name));
        QVERIFY2(last.isNull() || pictures::difference(picture, last) > 0.02, qPrintable(name));
        last = picture;
    }
    QVERIFY(m_person->find("text", u"Total 12"_s) != nullptr);
}

void TestWholeShoot::oneFrameIsReplaced()
{
    SHOOT_DO(m_person->rest());
    SHOOT_DO(m_person->goTo(replacedRow));
    m_replaced = m_pictures.at(replacedRow);
    QFile old(m_film.picturePath(m_replaced));
    QVERIFY(old.open(QIODevice::ReadOnly));
    const QByteArray bytes = old.readAll();
    old.close();

    SHOOT_DO(m_person->clickText(u"Replace"_s));
    SHOOT_WAIT_FOR(frames().captureMode(), int(Zum::CaptureModeReplace));
    SHOOT_DO(shoot());
    SHOOT_DO(m_person->clickText(u"Append"_s));
    QCOMPARE(frames().framesCount(), shots);
    const QString fresh = frames().frameAt(replacedRow).capFull;
    m_pictures[replacedRow] = fresh;
    QCOMPARE(pictureNames(), m_pictures);
    QVERIFY(pictures::difference(m_film.picture(fresh), m_film.picture(m_replaced)) > 0.02);
    // Nothing that was shot is written over.
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), bytes);
    SHOOT_WAIT_FOR(m_film.elements(u"Frame"_s).value(replacedRow).value(u"capFull"_s), fresh);
}

void TestWholeShoot::twoFramesAreDeletedAndComeBack()
{
    SHOOT_DO(m_person->rest());
    SHOOT_DO(m_person->clickFrame(6, Qt::ControlModifier));
    SHOOT_DO(m_person->clickFrame(7, Qt::ControlModifier));
    QVERIFY(m_person->find("text", u"Selected 2"_s) != nullptr);
    m_person->press(Qt::Key_Delete);
    QVERIFY(m_person->find("toolTip", u"Press again to delete"_s) != nullptr);
    QCOMPARE(frames().framesCount(), shots);
    m_person->press(Qt::Key_Delete);
    SHOOT_WAIT_FOR(frames().framesCount(), shots - 2);
    SHOOT_DO(m_person->rest());
    QStringList left = m_pictures;
    left.remove(6, 2);
    QCOMPARE(pictureNames(), left);

    for (int i = 0; i < 2; ++i) {
        m_person->press(Qt::Key_Z, Qt::ControlModifier);
        SHOOT_DO(m_person->rest());
    }
    QCOMPARE(pictureNames(), m_pictures);
    for (const QString &name : std::as_const(m_pictures))
        QVERIFY2(QFile::exists(m_film.picturePath(name)), qPrintable(name));
}

void TestWholeShoot::oneFrameIsHeldForFour()
{
    SHOOT_DO(m_person->clickFrame(heldRow));
    SHOOT_WAIT_FOR(frames().currentIndex(), heldRow);
    SHOOT_DO(m_person->clickTip(u"How many copies each frame gets"_s));
    SHOOT_DO(m_person->clickTip(u"Copies: 3"_s));
    SHOOT_DO(m_person->clickTip(u"Duplicate (3)"_s));
    SHOOT_WAIT_FOR(frames().framesCount(), rows);
    SHOOT_DO(m_person->rest());
    for (int i = 0; i < 3; ++i)
        m_pictures.insert(heldRow, m_pictures.at(heldRow));
    QCOMPARE(pictureNames(), m_pictures);
    const QList<int> marks{0, 1, 1, 2};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(frames().frameAt(heldRow + i).staticState, marks.at(i));
    // The strip shows the four as one block.
    const QColor ofHolds(0x18, 0x54, 0xdd);
    m_person->putPointerAway();
    for (int row = heldRow - 1; row <= heldRow + 4; ++row) {
        const bool held = row >= heldRow && row < heldRow + 4;
        SHOOT_WAIT_FOR(pictures::has(m_person->look(m_person->frame(row)), ofHolds), held);
    }
}

void TestWholeShoot::oneFrameIsHidden()
{
    SHOOT_DO(m_person->clickFrame(hiddenRow));
    SHOOT_DO(m_person->clickTip(u"Hide or show"_s));
    SHOOT_WAIT(frames().frameAt(hiddenRow).hidden);
    SHOOT_DO(m_person->rest());
    m_person->putPointerAway();
    const QColor ofHidden(0x93, 0xe3, 0x08);
    SHOOT_WAIT(pictures::has(m_person->look(m_person->frame(hiddenRow)), ofHidden));
    QVERIFY(!pictures::has(m_person->look(m_person->frame(hiddenRow + 1)), ofHidden));
}

void TestWholeShoot::oneFrameIsMirrored()
{
    SHOOT_DO(m_person->clickFrame(mirroredRow));
    SHOOT_WAIT_FOR(frames().currentIndex(), mirroredRow);
    // The captured frame comes to the top.
    SHOOT_DO(m_person->clickText(u"Captured"_s));
    m_person->putPointerAway();
    QQuickItem *view = m_person->named(u"Captured frame"_s);
    QVERIFY(view != nullptr);
    const QImage picture = m_film.picture(m_pictures.at(mirroredRow));
    const QImage turned = picture.mirrored(true, false);
    const double apart = pictures::difference(picture, turned);
    SHOOT_WAIT(pictures::difference(m_person->look(view), picture) < apart / 4);

    SHOOT_DO(m_person->clickTip(u"Mirror"_s));
    m_person->putPointerAway();
    SHOOT_WAIT(pictures::difference(m_person->look(view), turned) < apart / 4);
    QVERIFY(frames().frameAt(mirroredRow).mirrored);
    SHOOT_DO(m_person->rest());
}

void TestWholeShoot::onionSkinGoesOnAndOff()
{
    QQuickItem *view = m_person->named(u"Captured frame"_s);
    QVERIFY(view != nullptr);
    const QImage without = m_person->look(view);
    const auto changes = [&] {
        return pictures::difference(m_person->look(view), without);
    };
    SHOOT_DO(m_person->clickTip(u"Onion skin"_s));
    SHOOT_DO(m_person->clickText(u"Frames before"_s));
    m_person->press(Qt::Key_Escape);
    m_person->putPointerAway();
    SHOOT_WAIT(changes() > 1);
    SHOOT_WAIT(global().ready());

    SHOOT_DO(m_person->clickTip(u"Onion skin"_s));
    SHOOT_DO(m_person->clickText(u"Off"_s));
    m_person->press(Qt::Key_Escape);
    m_person->putPointerAway();
    SHOOT_WAIT(changes() < 0.1);
}

void TestWholeShoot::rangeIsSet()
{
    SHOOT_DO(m_person->clickText(u"Timing"_s));
    QQuickItem *handle = m_person->find("toolTip", u"First frame of the range"_s);
    SHOOT_DO(m_person->pullRight(handle, [&] { return frames().timelineRangeStart() == rangeStart; }));
    QCOMPARE(handle->property("text").toString(), QString::number(rangeStart));

    SHOOT_DO(m_person->clickFrame(rangeEnd, Qt::NoModifier, Qt::RightButton));
    SHOOT_DO(m_person->clickText(u"End the range here"_s));
    SHOOT_WAIT_FOR(frames().timelineRangeEnd(), rangeEnd);
    QCOMPARE(frames().timelineRangeStart(), rangeStart);
}

void TestWholeShoot::rangePlaysOnce()
{
    SHOOT_DO(m_person->rest());
    QVERIFY(frames().loop());
    SHOOT_DO(m_person->clickTip(u"Play again and again"_s));
    QVERIFY(!frames().loop());
    PlayedRows played(frames());
    m_person->press(Qt::Key_Space);
    SHOOT_WAIT(!played.rows().isEmpty() && played.rows().constLast() == rangeEnd && !frames().playing());
    QList<int> wanted;
    for (int row = rangeStart; row <= rangeEnd; ++row) {
        if (row != hiddenRow)
            wanted.append(row);
    }
    QCOMPARE(played.rows(), wanted);
}

void TestWholeShoot::rangePlaysAgainAndAgain()
{
    SHOOT_DO(m_person->clickTip(u"Play again and again"_s));
    QVERIFY(frames().loop());
    m_person->putPointerAway();
    QQuickItem *view = m_person->named(u"Frame of the timeline"_s);
    QVERIFY(view != nullptr);
    QList<QImage> sources;
    for (int row = 0; row < rows; ++row)
        sources.append(pictures::small(pictureOfRow(row)));

    PlayedRows played(frames());
    m_person->press(Qt::Key_Space);
    QSet<int> seen;
    const auto hasBegunAnew = [&] {
        // A look takes long on a busy machine, and no frame comes meanwhile.
        if (seen.size() <= 3)
            seen.insert(pictures::nearest(m_person->look(view), sources));
        return seen.size() > 3 && played.rows().count(rangeStart) > 1;
    };
    const bool plays = QTest::qWaitFor(hasBegunAnew, 3 * ShootWindow::patienceMs);
    QVERIFY2(plays,
             qPrintable(u"%1 rows played, %2 pictures seen"_s.arg(played.rows().size()).arg(seen.size())));
    QVERIFY(frames().playing());
    m_person->press(Qt::Key_Space);
    SHOOT_WAIT(!frames().playing());
    const QList<int> all = played.rows();
    for (int i = 1; i < all.size(); ++i) {
        const int step = all.at(i - 1) + 1 == hiddenRow ? 2 : 1;
        QCOMPARE(all.at(i), all.at(i - 1) == rangeEnd ? rangeStart : all.at(i - 1) + step);
    }
}

void TestWholeShoot::timelineZooms()
{
    const qreal wide = m_person->frame(rangeStart)->width();
    SHOOT_DO(m_person->clickTip(u"Size of the frames on the timeline"_s));
    // The slider of the panel lies over the button by now.
    SHOOT_DO(m_person->clickTip(u"Size of the frames on the timeline"_s));
    m_person->press(Qt::Key_Escape);
    SHOOT_WAIT(m_person->frame(rangeStart) != nullptr && m_person->frame(rangeStart)->width() < 0.8 * wide);
}

void TestWholeShoot::languageIsChosen()
{
    m_person->press(Qt::Key_P);
    SHOOT_DO(m_person->clickText(u"Russian"_s));
    QVERIFY(m_person->find("objectName", u"languageNote"_s) != nullptr);
    SHOOT_DO(m_person->clickName(u"saveAndClose"_s));
    SHOOT_WAIT_FOR(m_person->window().qmlDialogUrl(), QString());
    QVERIFY(m_person->find("text", u"Timing"_s) != nullptr);
}

void TestWholeShoot::checkProjectFile()
{
    const QList<FilmOnDisk::Attributes> saved = m_film.elements(u"Frame"_s);
    QCOMPARE(saved.size(), rows);
    for (int row = 0; row < rows; ++row) {
        const FilmOnDisk::Attributes &frame = saved.at(row);
        const QString where = u"row %1"_s.arg(row);
        QCOMPARE(frame.value(u"capFull"_s), m_pictures.at(row));
        QVERIFY2(QFile::exists(m_film.picturePath(u"tmb/"_s + frame.value(u"capTumb"_s))), qPrintable(where));
        const bool held = row >= heldRow && row < heldRow + 4;
        const int mark = !held ? -1 : row == heldRow ? 0 : row == heldRow + 3 ? 2 : 1;
        QVERIFY2(frame.value(u"static"_s) == QString::number(mark), qPrintable(where));
        QVERIFY2((frame.value(u"hidden"_s) == u"1"_s) == (row == hiddenRow), qPrintable(where));
        QVERIFY2((frame.value(u"mirrored"_s) == u"1"_s) == (row == mirroredRow), qPrintable(where));
    }
    const FilmOnDisk::Attributes settings = m_film.elements(u"FrameSettings"_s).value(0);
    QCOMPARE(settings.value(u"timelineRangeStart"_s), QString::number(rangeStart));
    QCOMPARE(settings.value(u"timelineRangeEnd"_s), QString::number(rangeEnd));
    QCOMPARE(settings.value(u"ramPreviewLoop"_s), u"1"_s);
    QCOMPARE(settings.value(u"frameWidth"_s), u"1280"_s);
    QCOMPARE(settings.value(u"frameHeight"_s), u"720"_s);
}

void TestWholeShoot::projectIsSaved()
{
    QVERIFY(global().projectChanged());
    m_person->press(Qt::Key_S, Qt::ControlModifier);
    SHOOT_WAIT(!global().projectChanged());
    SHOOT_DO(checkProjectFile());
}

void TestWholeShoot::quittingAsksForTheLastChange()
{
    SHOOT_DO(m_person->typeInto(u"Frames per second"_s, QString::number(rate)));
    SHOOT_WAIT_FOR(frames().timelineFps(), rate);
    QVERIFY(global().projectChanged());
    QTest::ignoreMessage(QtDebugMsg, "Camera disconnected while having Quit request");
    m_person->press(Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(m_person->find("text", u"Save Project?"_s) != nullptr);
    QCOMPARE(m_person->shell().quits(), 0);
    SHOOT_DO(m_person->clickText(u"Ok"_s));
    SHOOT_WAIT_FOR(m_person->shell().quits(), 1);
    QVERIFY(!global().connected());
    QCOMPARE(m_person->shell().sceneWarnings(), QStringList());
    m_person->end();
    SHOOT_DO(checkProjectFile());
    QCOMPARE(m_film.elements(u"RenderVideoSettings"_s).value(0).value(u"fps"_s).toDouble(), rate);
    // All that was shot is there, and nothing says that the project is still open.
    QCOMPARE(m_film.pictures().size(), shots + 1);
    QCOMPARE(m_film.filesBeside(), QStringList{u"walk.kzfx"_s});
}

void TestWholeShoot::nextStartSpeaksRussian()
{
    m_person->start();
    for (const char16_t *text : {u"Съёмка", u"Тайминг", u"Справка"})
        QVERIFY(m_person->find("text", QString::fromUtf16(text)) != nullptr);
    QVERIFY(m_person->shown("text", u"Timing"_s) == nullptr);
}

void TestWholeShoot::projectComesBackFromTheRecentList()
{
    // The replaced picture belongs to no frame any more.
    const auto answer = [](QDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Снимки без кадра"_s);
        const auto *box = qobject_cast<QMessageBox *>(&dialog);
        QVERIFY(box != nullptr);
        const QList<QAbstractButton *> buttons = box->buttons();
        for (QAbstractButton *button : buttons) {
            if (button->text() == u"Переложить в «recyclebin»"_s)
                QTest::mouseClick(button, Qt::LeftButton);
        }
    };
    const auto choose = [this] {
        SHOOT_DO(m_person->clickTip(u"Недавние проекты"_s));
        // As it was left.
        QVERIFY(m_person->find("text", u"Кадров: 15, 1280 x 720"_s) != nullptr);
        SHOOT_DO(m_person->clickTip(m_film.projectPath()));
    };
    SHOOT_DO(m_person->answerDialog(choose, answer));
    SHOOT_WAIT(m_person->window().projectLoaded());
    SHOOT_DO(m_person->rest());
    QVERIFY(m_person->find("text", u"Всего 15"_s) != nullptr);
    QCOMPARE(pictureNames(), m_pictures);
    QVERIFY(!QFile::exists(m_film.picturePath(m_replaced)));
    QVERIFY(!m_film.picture(u"tmb/recyclebin/"_s + m_replaced).isNull());
    QCOMPARE(m_film.pictures().size(), shots);
    QCOMPARE(frames().timelineRangeStart(), rangeStart);
    QCOMPARE(frames().timelineRangeEnd(), rangeEnd);
    QCOMPARE(frames().timelineFps(), rate);
}

void TestWholeShoot::render(const QString &format, const QString &extension)
{
    SHOOT_DO(m_person->clickText(format));
    SHOOT_DO(m_person->clickName(u"startRender"_s));
    // An encoder that shares the machine with others takes minutes.
    QVERIFY(m_person->find("objectName", u"viewVideo"_s, 5 * ShootWindow::patienceMs) != nullptr);
    QVERIFY(m_person->find("text", u"Готово"_s) != nullptr);
    const QString path = m_film.moviePath(extension);
    QVERIFY2(QFile::exists(path), qPrintable(path));
    SHOOT_DO(checkMovie(path));
}

void TestWholeShoot::checkMovie(const QString &path)
{
    QList<QImage> expected;
    for (int row = rangeStart; row <= rangeEnd; ++row) {
        if (row != hiddenRow)
            expected.append(pictures::small(pictureOfRow(row)));
    }
    const MovieProbe movie(path);
    QVERIFY2(movie.complaints().isEmpty(), qPrintable(movie.complaints()));
    const QList<QImage> shown = movie.frames();
    QCOMPARE(shown.size(), expected.size());
    QCOMPARE(shown.constFirst().size(), QSize(1280, 720));
    QCOMPARE(movie.rate(), rate);
    const double seconds = double(expected.size()) / rate;
    QVERIFY2(qAbs(movie.duration() - seconds) < 0.5 / rate, qPrintable(QString::number(movie.duration())));
    for (int i = 0; i < shown.size(); ++i) {
        const QString where =
            u"frame %1 differs by %2"_s.arg(i).arg(pictures::difference(shown.at(i), expected.at(i)));
        QVERIFY2(pictures::difference(shown.at(i), expected.at(i)) < 3, qPrintable(where));
        QVERIFY2(expected.at(pictures::nearest(shown.at(i), expected)) == expected.at(i), qPrintable(where));
    }
}

void TestWholeShoot::aviIsRendered()
{
    SHOOT_DO(m_person->clickText(u"Тайминг"_s));
    SHOOT_DO(render(u"AVI"_s, u"avi"_s));
    SHOOT_DO(m_person->clickName(u"close"_s));
    SHOOT_WAIT_FOR(m_person->window().qmlDialogUrl(), QString());
}

void TestWholeShoot::webmIsRendered()
{
    SHOOT_DO(render(u"WebM"_s, u"webm"_s));
}

void TestWholeShoot::folderOfTheMovieOpens()
{
    const QString movie = m_film.moviePath(u"webm"_s);
    FakeDesktopServices &desktop = m_person->shell().desktop();
    SHOOT_DO(m_person->clickName(u"viewVideo"_s));
    QCOMPARE(desktop.shown, QStringList{movie});
    SHOOT_DO(m_person->clickName(u"close"_s));
    SHOOT_WAIT_FOR(m_person->window().qmlDialogUrl(), QString());
    SHOOT_DO(m_person->clickTip(u"Показать папку с фильмами"_s));
    QCOMPARE(desktop.shown, (QStringList{movie, movie}));
}

void TestWholeShoot::programEnds()
{
    if (global().projectChanged()) {
        m_person->press(Qt::Key_S, Qt::ControlModifier);
        SHOOT_WAIT(!global().projectChanged());
    }
    m_person->press(Qt::Key_Q, Qt::ControlModifier);
    SHOOT_WAIT_FOR(m_person->shell().quits(), 1);
    m_person->end();
    SHOOT_DO(checkProjectFile());
}

QTEST_MAIN(TestWholeShoot)
#include "tst_wholeshoot.moc"
