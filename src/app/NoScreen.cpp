#include "app/NoScreen.h"

#include <cstdio>
#include <cstdlib>
#include <QDebug>
#include <QStringList>

namespace {

QtMessageHandler usualHandler = nullptr;
QStringList heldBack;

void handle(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtFatalMsg) {
        heldBack.append(text);
        return;
    }
    std::fputs(
        "Morvane Capture has found no screen for its window. Start it in a desktop session, or\n"
        "set DISPLAY to one. Without a screen, \"morvane --render\" makes the movie of a project;\n"
        "\"morvane --help\" tells how.\n",
        stderr);
    for (const QString &reason : std::as_const(heldBack))
        std::fprintf(stderr, "  %s\n", qPrintable(reason));
    std::fflush(stderr);
    // The application object is half made: nothing may be taken down.
    std::_Exit(EXIT_FAILURE);
}

} // namespace

NoScreen::NoScreen()
{
    usualHandler = qInstallMessageHandler(handle);
}

NoScreen::~NoScreen()
{
    qInstallMessageHandler(usualHandler);
    const QStringList texts = std::exchange(heldBack, {});
    for (const QString &text : texts)
        qWarning().noquote() << text;
}
