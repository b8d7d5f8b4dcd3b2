#include "app/AppEnvironment.h"

#include "app/SystemDialogs.h"
#include "shared/LocaleChoice.h"

#include <QGuiApplication>
#include <QScreen>

AppEnvironment AppEnvironment::system(QQmlEngine &engine, std::unique_ptr<Settings> settings)
{
    AppEnvironment environment;
    environment.engine = &engine;
    environment.settings = std::move(settings);
    environment.dialogs = std::make_unique<SystemDialogs>();
    environment.desktop = morvane::makeDesktopServices();
    environment.now = [] {
        return QDateTime::currentDateTime();
    };
    environment.quit = [] {
        QCoreApplication::quit();
    };
    environment.systemLocale = LocaleChoice::systemLocaleName();
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        environment.logicalDpi = qRound(screen->logicalDotsPerInchX());
    environment.cameras = CaptureEnvironment::system();
    return environment;
}
