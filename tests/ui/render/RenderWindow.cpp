#include "ui/render/RenderWindow.h"

#include "support/ShownItems.h"

#include <QDir>
#include <QImage>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

RenderWindow::RenderWindow() : RenderWindow(Options())
{
}

RenderWindow::RenderWindow(const Options &options) : m_options(options)
{
    start();
}

void RenderWindow::start()
{
    ShellWindow::Options options;
    options.settingsPath = m_folder.filePath(u"settings.ini"_s);
    options.size = m_options.size;
    options.locale = m_options.locale;
    options.settings = m_options.settings;
    options.settings.insert(u"fontsize"_s, m_options.fontRow);
    m_shell = std::make_unique<ShellWindow>(options);
    global().setSoundsOn(false);
    QVERIFY(m_shell->createProject(u"film%1"_s.arg(++m_films)));
    m_shell->addFrames(m_options.frames);
    frames().setTimelineRangeStart(0);
    frames().setTimelineRangeEnd(qMax(0, m_options.frames - 1));
    global().setMainTabsState(u"timingUIisOn"_s);
    QVERIFY(m_shell->settle());
}

void RenderWindow::restart()
{
    m_shell.reset();
    m_options.settings.clear();
    start();
}

void RenderWindow::writePictures(QSize size)
{
    const QString folder = window().capFullDirPath();
    for (int row = 0; row < frames().framesCount(); ++row) {
        const QString path = folder + frames().get(row).value(u"capFull"_s).toString();
        // A view may be reading those that are there.
        if (QFile::exists(path))
            continue;
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(row * 37 % 360, 200, 200));
        QVERIFY(image.save(path));
    }
}

QQuickItem *RenderWindow::part(const QString &objectName) const
{
    return shownItems::find(m_shell->window().contentItem(),
                            [&](QQuickItem *item) { return item->objectName() == objectName; });
}

QQuickItem *RenderWindow::text(const QString &text) const
{
    return shownItems::find(m_shell->window().contentItem(), [&](QQuickItem *item) {
        return shownItems::isText(item) && item->property("text").toString() == text;
    });
}

QQuickItem *RenderWindow::entry(const QString &text) const
{
    return shownItems::find(m_shell->window().contentItem(), [&](QQuickItem *item) {
        return item->property("shortcut").isValid() && item->property("text").toString() == text;
    });
}

QString RenderWindow::textOf(const QString &objectName) const
{
    const QQuickItem *item = part(objectName);
    return item != nullptr ? item->property("text").toString() : QString();
}

QQuickItem *RenderWindow::choice(const QString &rowName, int index) const
{
    QQuickItem *row = part(rowName);
    return row == nullptr ? nullptr : shownItems::find(row, [index](QQuickItem *item) {
        return item->property("modelData").isValid() && item->property("index") == index;
    });
}

void RenderWindow::click(QQuickItem *item)
{
    QVERIFY(item != nullptr);
    QVERIFY(m_shell->settle());
    shownItems::bringIntoSight(item);
    m_shell->click(item);
}

void RenderWindow::click(const QString &objectName)
{
    click(part(objectName));
}

void RenderWindow::clickText(const QString &shown)
{
    click(text(shown));
}

void RenderWindow::type(const QString &objectName, const QString &typed)
{
    QQuickItem *field = part(objectName);
    QVERIFY(field != nullptr);
    QQuickItem *editor =
        shownItems::find(field, [](QQuickItem *item) { return item->inherits("QQuickTextInput"); });
    click(editor);
    QTRY_VERIFY(editor->hasActiveFocus());
    m_shell->press(Qt::Key_A, Qt::ControlModifier);
    for (const QChar letter : typed)
        QTest::keyClick(&m_shell->window(), letter.toLatin1());
    m_shell->press(Qt::Key_Return);
}

void RenderWindow::keepPicture(const QString &name) const
{
    const QString folder = qEnvironmentVariable("MORVANE_TEST_PICTURES");
    if (!folder.isEmpty())
        m_shell->window().grabWindow().save(folder + u'/' + name + u".png"_s);
}

void RenderWindow::reset()
{
    WebcamGlobal &g = global();
    g.setMainTabsState(u"timingUIisOn"_s);
    g.setRenderFormatNameStr(u"avi"_s);
    g.setRenderQmax(2);
    g.setVideoExportPolicy(Zum::ExportPolicyCropped);
    g.setCropAreaW(1280);
    g.setCropAreaH(720);
    g.setExportSizeW(1920);
    g.setExportSizeH(1080);
    g.setRenderTimecode(false);
    g.setPostProcessing(Zum::NoProcessing);
    g.setPostProcessSettings({});
    g.setVideoEffectsString({});
    g.setRenderFileName(u"videotest"_s);
    g.setExportPicFormat(Zum::ExportPNG);
    frames().setTimelineRangeStart(0);
    frames().setTimelineRangeEnd(11);
    frames().setCurrentIndex(0);
    QVERIFY(shell().settle());
}
