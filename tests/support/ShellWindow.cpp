#include "support/ShellWindow.h"

#include "app/TypeRegistry.h"

#include <atomic>
#include <memory>
#include <QFile>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QSignalSpy>
#include <QTest>

namespace {

/// Keeps the warnings of the scene, which also come from loading it, before there is an engine to listen to.
QStringList *s_warnings = nullptr;
QtMessageHandler s_before = nullptr;

void keepSceneWarnings(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (s_warnings != nullptr && type == QtWarningMsg && text.contains(QLatin1String("qrc:/")))
        s_warnings->append(text);
    s_before(type, context, text);
}

QVariant evaluated(QQuickItem *scope, const QString &expression)
{
    QQmlExpression asked(qmlContext(scope), scope, expression);
    const QVariant value = asked.evaluate();
    if (asked.hasError())
        QTest::qFail(qPrintable(asked.error().toString()), __FILE__, __LINE__);
    return value;
}

} // namespace

ShellWindow::ShellWindow()
{
    build({});
}

ShellWindow::ShellWindow(const Options &options)
{
    build(options);
}

ShellWindow::~ShellWindow()
{
    m_window.reset();
    if (s_warnings == &m_warnings)
        s_warnings = nullptr;
}

void ShellWindow::build(const Options &options)
{
    static const bool registered = [] {
        typeregistry::registerTypes();
        return true;
    }();
    Q_UNUSED(registered)
    // Each test function brings the test library's own handler back, so ours goes in front of it each time.
    if (const QtMessageHandler before = qInstallMessageHandler(keepSceneWarnings);
        before != keepSceneWarnings)
        s_before = before;
    s_warnings = &m_warnings;

    AppEnvironment environment;
    environment.engine = &m_engine;
    const QString path = options.settingsPath.isEmpty() ? m_folder.filePath(QStringLiteral("settings.ini"))
                                                        : options.settingsPath;
    environment.settings = std::make_unique<Settings>(path);
    for (auto it = options.settings.cbegin(); it != options.settings.cend(); ++it)
        environment.settings->setValue(it.key(), it.value());
    if (options.dialogs) {
        environment.dialogs = options.dialogs();
    } else {
        auto dialogs = std::make_unique<FakeDialogs>();
        m_dialogs = dialogs.get();
        environment.dialogs = std::move(dialogs);
    }
    auto desktop = std::make_unique<FakeDesktopServices>();
    m_desktop = desktop.get();
    environment.desktop = std::move(desktop);
    environment.now = options.now;
    if (!environment.now)
        environment.now = [] {
            return QDateTime(QDate(2026, 3, 14), QTime(15, 9, 26));
        };
    environment.quit = [this] {
        ++m_quits;
    };
    environment.systemLocale = options.locale;
    environment.logicalDpi = options.logicalDpi;
    if (options.cameras)
        environment.cameras = options.cameras();
    else
        environment.cameras.clock = std::make_shared<SystemCaptureClock>();
    if (options.timeLapseTicker)
        environment.timeLapseTicker = options.timeLapseTicker();

    m_window = std::make_unique<MainWindow>(std::make_unique<AppControllers>(std::move(environment)),
                                            options.arguments);
    if (options.size.isValid())
        m_window->resize(options.size);
    if (!options.shown)
        return;
    m_window->show();
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

bool ShellWindow::createProject(const QString &name)
{
    m_dialogs->pathAnswers.append(m_folder.filePath(name + QStringLiteral(".kzfx")));
    return m_window->saveProjectXmlFile(Zum::NewProject)
           && QTest::qWaitFor([this] { return m_window->projectLoaded(); });
}

void ShellWindow::addFrames(int count)
{
    for (int i = 0; i < count; ++i)
        frames().appendFrame({{QStringLiteral("capFull"), QStringLiteral("frame_%1.jpg").arg(i)}});
}

QQuickItem *ShellWindow::findItem(const char *property, const QVariant &value, QQuickItem *from) const
{
    QQuickItem *start = from != nullptr ? from : m_window->contentItem();
    if (start->property(property) == value && start->isVisible())
        return start;
    const QList<QQuickItem *> children = start->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findItem(property, value, child))
            return found;
    }
    return nullptr;
}

QVariant ShellWindow::evaluate(const QString &expression) const
{
    return evaluated(m_window->rootObject(), expression);
}

QVariant ShellWindow::evaluateInside(QQuickItem *item, const QString &expression) const
{
    return evaluated(item->childItems().constFirst(), expression);
}

QQuickItem *ShellWindow::item(const QString &id) const
{
    return evaluate(id).value<QQuickItem *>();
}

QObject *ShellWindow::timer(int intervalMs) const
{
    QList<QObject *> found;
    const QList<QObject *> all = m_window->rootObject()->findChildren<QObject *>();
    for (QObject *object : all) {
        if (object->inherits("QQmlTimer") && object->property("interval") == intervalMs)
            found.append(object);
    }
    return found.size() == 1 ? found.constFirst() : nullptr;
}

QStringList ShellWindow::messages() const
{
    return evaluate(QStringLiteral("Array.from({length: messagesModel.count}, "
                                   "(_, i) => messagesModel.get(i).text)"))
        .toStringList();
}

bool ShellWindow::hasKeyboard() const
{
    return m_window->activeFocusItem() == item(QStringLiteral("keyHandler"));
}

QByteArray ShellWindow::projectFileText() const
{
    QFile file(m_window->projPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool ShellWindow::settle() const
{
    // The renderer may still be at a frame of before the change: only one taken over from here on counts.
    struct Frame
    {
        std::atomic_bool taken = false;
        std::atomic_bool shown = false;
    };
    const auto frame = std::make_shared<Frame>();
    const QObject renderer;
    QObject::connect(
        m_window.get(), &QQuickWindow::afterSynchronizing, &renderer, [frame] { frame->taken = true; },
        Qt::DirectConnection);
    QObject::connect(
        m_window.get(), &QQuickWindow::frameSwapped, &renderer,
        [frame] { frame->shown = frame->taken.load(); }, Qt::DirectConnection);
    QSignalSpy frames(m_window.get(), &QQuickWindow::frameSwapped);
    m_window->update();
    while (!frame->shown) {
        if (!frames.wait(10000))
            return frame->shown;
    }
    return true;
}

void ShellWindow::click(QQuickItem *item, Qt::MouseButton button)
{
    QVERIFY(item != nullptr);
    QVERIFY(settle());
    const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(m_window.get(), button, Qt::NoModifier, middle.toPoint());
}

void ShellWindow::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_window.get(), static_cast<Qt::Key>(key), modifiers);
}
