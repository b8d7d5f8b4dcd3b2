#include "CaptureWindow.h"

#include "project/ProjectReader.h"

#include <QTest>

ShellWindow::Options CaptureWindow::options(int kind)
{
    Options options;
    options.settings.insert(QStringLiteral("currentCapturingDevice"), kind);
    return options;
}

CaptureWindow::CaptureWindow(const ShellWindow::Options &options) : ShellWindow(options)
{
    demo().setForcedSize({320, 180});
    if (!createProject())
        qWarning("the project could not be made");
}

bool CaptureWindow::connectCamera()
{
    press(Qt::Key_F5);
    return QTest::qWaitFor([this] { return global().connected(); }, 10000);
}

bool CaptureWindow::disconnectCamera()
{
    emit global().capturingDeviceDisconnect();
    return QTest::qWaitFor([this] { return !global().connected(); }, 10000);
}

bool CaptureWindow::shoot()
{
    const int before = framesNow();
    press(Qt::Key_Return);
    return QTest::qWaitFor(
        [this, before] { return framesNow() > before && global().capturingInprogress() == -1; });
}

QQuickItem *CaptureWindow::control(const QString &objectName) const
{
    return findItem("objectName", objectName);
}

QStringList CaptureWindow::capturedFiles()
{
    return QDir(capturedFolder()).entryList(QDir::Files | QDir::Hidden);
}

QString CaptureWindow::pictureOf(int row)
{
    return capturedFolder() + frames().get(row, false).value(QStringLiteral("capFull")).toString();
}

int CaptureWindow::framesInProjectFile()
{
    const ProjectReadResult read = ProjectReader::readFile(window().projPath());
    return read.status == ProjectReadResult::Status::Ok ? int(read.document.frames.size()) : -1;
}

int CaptureWindow::told(const QString &text) const
{
    return int(messages().filter(text).size());
}

void CaptureWindow::trigger(const char *objectName)
{
    QQuickItem *item = control(QString::fromLatin1(objectName));
    QVERIFY2(item != nullptr, objectName);
    QVERIFY(QMetaObject::invokeMethod(item, "clicked"));
}
