#include "app/AppControllers.h"
#include "app/CommandLine.h"
#include "app/DemoCommand.h"
#include "app/FirstFrame.h"
#include "app/MainWindow.h"
#include "app/NoScreen.h"
#include "app/RenderCommand.h"
#include "app/SplashScreen.h"
#include "app/Translations.h"
#include "app/TypeRegistry.h"
#include "shared/LocaleChoice.h"
#include "shared/Names.h"
#include "shared/ScreenDensity.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <QApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QScreen>
#include <QTextStream>
#include <QTimer>

namespace {

/// Renders as the command line says, with fonts but without a screen.
int render(int argc, char *argv[], const QStringList &given)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(morvane::applicationName);
    QCoreApplication::addLibraryPath(QCoreApplication::applicationDirPath());
    const Settings settings;
    translations::install(LocaleChoice::startLocale(settings, LocaleChoice::systemLocaleName()), &app);
    return rendercommand::execute(given);
}

/// Starts the program in its window, and in `demoFolder`, unless that is empty, its demo.
int showWindow(int argc, char *argv[], const QString &demoFolder)
{
    auto noScreen = std::make_unique<NoScreen>();
    QApplication app(argc, argv);
    noScreen.reset();
    QApplication::setQuitOnLastWindowClosed(true);
    QApplication::setApplicationName(morvane::applicationName);
    QApplication::setDesktopFileName(QStringLiteral("morvane-capture"));

    QTextStream out(stdout);
    QTextStream err(stderr);
    std::optional<DemoCommand> demo;
    if (!demoFolder.isEmpty() && !demo.emplace(out, err).makeFolder(demoFolder))
        return DemoCommand::Failed;

    auto settings = std::make_unique<Settings>();
    const QString locale = LocaleChoice::startLocale(*settings, LocaleChoice::systemLocaleName());
    typeregistry::registerTypes();
    // The scene's files are read and resolved in the engine's own thread while the rest of the start goes on;
    // the window then finds them ready.
    QQmlEngine engine;
    const QQmlComponent scene(&engine, QUrl(MainWindow::sceneUrl), QQmlComponent::Asynchronous);

    AppEnvironment environment = AppEnvironment::system(engine, std::move(settings));
    if (demo)
        demo->adapt(environment);
    SplashScreen splash(ScreenDensity::snapped(environment.logicalDpi));
    splash.show();
    QCoreApplication::processEvents();

    // The program's own folder comes first; the system's stays, for the image formats and the platform.
    QCoreApplication::addLibraryPath(QCoreApplication::applicationDirPath());
    QCoreApplication::processEvents();
    QLocale::setDefault(QLocale(locale));
    translations::install(locale, &app);

    int result = 0;
    {
        const QStringList arguments = QCoreApplication::arguments();
        MainWindow window(std::make_unique<AppControllers>(std::move(environment)),
                          demo ? arguments.mid(0, 1) : arguments);
        firstframe::endAfter(window);
        if (demo)
            demo->start(window);
        window.show();
        QTimer::singleShot(1500, &splash, &QWidget::close);
        result = QApplication::exec();
    }
    return demo ? demo->finish() : result;
}

/// Starts the demo that the command line asks for.
int showDemo(int argc, char *argv[], const QStringList &given)
{
    QString error;
    const std::optional<QString> folder = DemoCommand::parentFolder(given, error);
    if (!folder) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return DemoCommand::WrongUsage;
    }
    DemoCommand::choosePlatform();
    return showWindow(argc, argv, *folder);
}

} // namespace

int main(int argc, char *argv[])
{
    // Asked for in words alone, the program needs no screen.
    const QStringList given(argv, argv + argc);
    if (const QString text = commandline::informationText(given); !text.isEmpty()) {
        std::puts(qPrintable(text));
        return 0;
    }
    if (rendercommand::isAsked(given))
        return render(argc, argv, given);
    if (DemoCommand::isAsked(given))
        return showDemo(argc, argv, given);
    return showWindow(argc, argv, {});
}
