#include "ui/project/FilmWindow.h"

#include "project/ProjectReader.h"
#include "support/ShownItems.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString rowText(const QString &picture, bool mirrored, bool hidden)
{
    const QString number = picture.isEmpty() ? u"-"_s : QString::number(picture.section(u'_', 2, 2).toInt());
    return number + (mirrored ? u"m"_s : QString()) + (hidden ? u"h"_s : QString());
}

bool isOfType(const QObject *object, const char *type)
{
    return QByteArray(object->metaObject()->className()).startsWith(QByteArray(type) + "_QMLTYPE");
}

} // namespace

FilmWindow::FilmWindow()
{
    QDir(m_folder.path()).mkdir(u"films"_s);
    start();
}

void FilmWindow::start()
{
    ShellWindow::Options options;
    options.settingsPath = m_folder.filePath(u"settings.ini"_s);
    m_shell = std::make_unique<ShellWindow>(options);
    frames().setShootMultipleFrames(0);
}

void FilmWindow::restart()
{
    m_shell.reset();
    start();
}

QString FilmWindow::pictureName(int number, const QString &label)
{
    return u"frame_%1_%2_260314150926.jpg"_s.arg(label).arg(number, 6, 10, QLatin1Char('0'));
}

bool FilmWindow::writePicture(const QString &project, int number) const
{
    QImage image(64, 36, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(number * 37 % 360, 200, 200));
    const QString folder = capturedFolder(project);
    return image.save(folder + pictureName(number))
           && image.scaled(32, 18).save(folder + u"tmb/"_s + pictureName(number, u"mini"_s));
}

QMap<QString, QByteArray> FilmWindow::listing() const
{
    QMap<QString, QByteArray> found;
    QDirIterator it(path({}), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        if (file.fileName().endsWith(u".lock"))
            continue;
        const bool readable = it.fileInfo().isFile() && file.open(QIODevice::ReadOnly);
        found.insert(file.fileName(), readable
                                          ? QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha1)
                                          : QByteArray());
    }
    return found;
}

QStringList FilmWindow::rowsOnDisk(const QString &project) const
{
    QStringList texts;
    const ProjectReadResult result = ProjectReader::readFile(path(project + u".kzfx"_s));
    for (const ProjectFrame &frame : result.document.frames)
        texts.append(rowText(frame.capFull, frame.mirrored, frame.hidden));
    return texts;
}

void FilmWindow::chooseInMenu(const QString &text)
{
    clickTip(u"Main menu"_s);
    QQuickItem *entry = nullptr;
    shownItems::visit(m_shell->window().contentItem(), [&](QQuickItem *item) {
        if (isOfType(item, "MenuRow") && item->property("text") == text)
            entry = item;
    });
    m_shell->click(entry);
}

bool FilmWindow::create(const QString &project)
{
    dialogs().pathAnswers.append(path(project + u".kzfx"_s));
    chooseInMenu(u"Create New Project"_s);
    return QTest::qWaitFor(
        [&] { return m_shell->window().projectLoaded() && m_shell->window().projName() == project; });
}

bool FilmWindow::open(const QString &project)
{
    dialogs().pathAnswers.append(path(project + u".kzfx"_s));
    press(Qt::Key_O, Qt::ControlModifier);
    return QTest::qWaitFor([&] { return m_shell->window().projectLoaded(); }) && waitIdle();
}

void FilmWindow::shoot(const QString &project, int first, int count)
{
    for (int number = first; number < first + count; ++number) {
        QVERIFY(writePicture(project, number));
        frames().appendFrame(
            {{u"capFull"_s, pictureName(number)}, {u"capTumb"_s, pictureName(number, u"mini"_s)}}, true);
    }
    QVERIFY(waitIdle());
    // Half a second after a shot the last frame becomes the current one once more.
    const QObject *pause = m_shell->timer(500);
    QVERIFY(pause != nullptr);
    QVERIFY(QTest::qWaitFor([pause] { return !pause->property("running").toBool(); }));
    m_shell->controllers().lifecycle.finishSaves();
}

QStringList FilmWindow::rows()
{
    QStringList texts;
    for (int row = 0; row < frames().framesCount(); ++row) {
        const QVariantMap frame = frames().get(row, false);
        texts.append(rowText(frame.value(u"capFull"_s).toString(), frame.value(u"mirrored"_s).toBool(),
                             frame.value(u"hidden"_s).toBool()));
    }
    return texts;
}

QStringList FilmWindow::selectedOnStrip()
{
    QStringList found;
    for (int row = 0; row < frames().framesCount(); ++row) {
        QQuickItem *item = frameItem(row);
        if (item != nullptr && item->childItems().constFirst()->property("color") == QColor("#75797E"))
            found.append(QString::number(row));
    }
    return found;
}

int FilmWindow::thumbnailsOnStrip()
{
    int shown = 0;
    shownItems::visit(m_shell->window().contentItem(), [&](QQuickItem *item) {
        if (!isOfType(item, "TimelineFrame"))
            return;
        shownItems::visit(item, [&](QQuickItem *child) {
            constexpr int ready = 1;
            if (child->inherits("QQuickImage") && child->property("status").toInt() == ready
                && child->property("source").toUrl().isLocalFile())
                ++shown;
        });
    });
    return shown;
}

bool FilmWindow::waitIdle()
{
    const auto resting = [this] {
        return frames().currentAction() == Zum::ActNoAction && m_shell->controllers().operation.isFree();
    };
    // What ends one action may start the next one in the same turn.
    const auto restsForATurn = [&] {
        if (!resting())
            return false;
        QCoreApplication::processEvents();
        return resting();
    };
    return QTest::qWaitFor(restsForATurn);
}

void FilmWindow::press(int key, Qt::KeyboardModifiers modifiers)
{
    m_shell->press(key, modifiers);
}

void FilmWindow::clickText(const QString &text)
{
    clickItem("text", text);
}

void FilmWindow::clickTip(const QString &toolTip)
{
    clickItem("toolTip", toolTip);
}

void FilmWindow::clickLabel(const QString &label)
{
    clickItem("label", label);
}

void FilmWindow::clickItem(const char *property, const QString &value)
{
    QQuickItem *item = m_shell->findItem(property, value);
    QVERIFY2(item != nullptr, qPrintable(value));
    shownItems::bringIntoSight(item);
    m_shell->click(item);
}

QQuickItem *FilmWindow::frameItem(int row)
{
    return shownItems::find(m_shell->window().contentItem(), [row](QQuickItem *item) {
        return isOfType(item, "TimelineFrame") && item->property("index") == row;
    });
}

QPoint FilmWindow::middleOf(QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

void FilmWindow::clickFrame(int row, Qt::KeyboardModifiers modifiers)
{
    QVERIFY(m_shell->settle());
    QQuickItem *item = frameItem(row);
    QVERIFY2(item != nullptr, qPrintable(QString::number(row)));
    QTest::mouseClick(&m_shell->window(), Qt::LeftButton, modifiers, middleOf(item));
}

void FilmWindow::dragOverFrames(int from, int to)
{
    QVERIFY(m_shell->settle());
    QQuickItem *first = frameItem(from);
    QQuickItem *last = frameItem(to);
    QVERIFY(first != nullptr && last != nullptr);
    const QPoint start = middleOf(first);
    const QPoint end = middleOf(last);
    QTest::mousePress(&m_shell->window(), Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(&m_shell->window(), (start + end) / 2);
    QTest::mouseMove(&m_shell->window(), end);
    QTest::mouseRelease(&m_shell->window(), Qt::LeftButton, Qt::NoModifier, end);
}

void FilmWindow::typeInto(const QString &label, const QString &text)
{
    QQuickItem *field = m_shell->findItem("label", label);
    QVERIFY2(field != nullptr, qPrintable(label));
    shownItems::bringIntoSight(field);
    QQuickItem *editor =
        shownItems::find(field, [](QQuickItem *item) { return item->inherits("QQuickTextInput"); });
    QVERIFY(editor != nullptr);
    m_shell->click(editor);
    QTRY_VERIFY(editor->hasActiveFocus());
    press(Qt::Key_A, Qt::ControlModifier);
    for (const QChar letter : text)
        QTest::keyClick(&m_shell->window(), letter.toLatin1());
    press(Qt::Key_Return);
}

QString FilmWindow::dialogFile()
{
    return m_shell->window().qmlDialogUrl();
}
