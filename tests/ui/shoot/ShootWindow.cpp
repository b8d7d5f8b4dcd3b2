#include "ui/shoot/ShootWindow.h"

#include "app/SystemDialogs.h"
#include "app/Translations.h"
#include "shared/LocaleChoice.h"

#include <QAccessible>
#include <QApplication>
#include <QLocale>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

/// The first item, in depth-first order, that shows and for which `wanted` holds.
QQuickItem *firstShown(QQuickItem *item, const std::function<bool(QQuickItem *)> &wanted)
{
    if (!item->isVisible())
        return nullptr;
    if (wanted(item))
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = firstShown(child, wanted))
            return found;
    }
    return nullptr;
}

bool isUsable(const QQuickItem *item)
{
    const QVariant usable = item->property("usable");
    return item->isEnabled() && (!usable.isValid() || usable.toBool());
}

bool hasValue(const QQuickItem *item, const char *property, const QString &value)
{
    const QVariant found = item->property(property);
    if (found.typeId() != QMetaType::QString)
        return false;
    return qstrcmp(property, "toolTip") == 0 ? found.toString().startsWith(value) : found.toString() == value;
}

QPointF middleOf(const QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
}

} // namespace

ShootWindow::ShootWindow(const QString &home) : m_home(home)
{
}

ShootWindow::~ShootWindow()
{
    end();
}

void ShootWindow::start()
{
    const QString system = u"en_US"_s;
    const QString locale = LocaleChoice::startLocale(Settings(settingsPath()), system);
    QLocale::setDefault(QLocale(locale));
    m_translators = std::make_unique<QObject>();
    translations::install(locale, m_translators.get());

    ShellWindow::Options options;
    options.locale = system;
    options.settingsPath = settingsPath();
    // Wide enough to have the whole film in sight.
    options.size = {1560, 900};
    options.dialogs = [] {
        return std::make_unique<SystemDialogs>();
    };
    m_shell = std::make_unique<ShellWindow>(options);
}

void ShootWindow::end()
{
    m_shell.reset();
    m_translators.reset();
}

QQuickItem *ShootWindow::shown(const char *property, const QString &value) const
{
    // What opened last lies over all else, and other screens may offer the same words.
    const QList<QQuickItem *> layers = m_shell->window().contentItem()->childItems();
    for (auto layer = layers.crbegin(); layer != layers.crend(); ++layer) {
        QQuickItem *found = firstShown(
            *layer, [&](QQuickItem *item) { return isUsable(item) && hasValue(item, property, value); });
        if (found != nullptr)
            return found;
    }
    return nullptr;
}

QQuickItem *ShootWindow::find(const char *property, const QString &value, int patience)
{
    QQuickItem *found = nullptr;
    const bool came = QTest::qWaitFor(
        [&] {
            found = shown(property, value);
            return found != nullptr;
        },
        patience);
    if (!came)
        QTest::qFail(qPrintable(u"nothing usable shows with %1 \"%2\""_s.arg(QLatin1String(property), value)),
                     __FILE__, __LINE__);
    return found;
}

QQuickItem *ShootWindow::named(const QString &accessibleName) const
{
    return firstShown(m_shell->window().contentItem(), [&](QQuickItem *item) {
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(item);
        return face != nullptr && face->text(QAccessible::Name) == accessibleName;
    });
}

QQuickItem *ShootWindow::frame(int row) const
{
    return firstShown(m_shell->window().contentItem(), [row](QQuickItem *item) {
        return QByteArray(item->metaObject()->className()).startsWith("TimelineFrame_QML")
               && item->property("index") == row;
    });
}

QPoint ShootWindow::restingMiddle(QQuickItem *item)
{
    QPoint before(-1, -1);
    QPoint now = middleOf(item).toPoint();
    for (int i = 0; i < 100 && now != before && m_shell->settle(); ++i) {
        before = now;
        now = middleOf(item).toPoint();
    }
    return now;
}

void ShootWindow::press(int key, Qt::KeyboardModifiers modifiers)
{
    m_shell->press(key, modifiers);
}

// Turns the wheel over the panel that holds the item until its middle can be seen there.
void ShootWindow::bringIntoSight(QQuickItem *item)
{
    for (QQuickItem *above = item->parentItem(); above != nullptr; above = above->parentItem()) {
        if (!above->inherits("QQuickFlickable") || above->height() <= 0
            || above->property("contentHeight").toReal() <= above->height())
            continue;
        const auto hidden = [&] {
            const qreal y = above->mapFromItem(item, QPointF(0, item->height() / 2)).y();
            return y < 0 ? 1 : y > above->height() ? -1 : 0;
        };
        // Near the edge, where no control takes the wheel for itself.
        const QPointF place = above->mapToScene(QPointF(2, above->height() / 2));
        for (int turns = 0; turns < 200 && hidden() != 0; ++turns) {
            QWheelEvent event(place, window().mapToGlobal(place), {}, {0, 120 * hidden()}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&window(), &event);
            QVERIFY(m_shell->settle());
        }
        QVERIFY2(hidden() == 0, "the wheel does not bring the control into sight");
        // A press on a panel that still moves only stops it.
        SHOOT_WAIT(!above->property("moving").toBool());
    }
}

void ShootWindow::click(QQuickItem *item, Qt::KeyboardModifiers modifiers, Qt::MouseButton button)
{
    QVERIFY(item != nullptr);
    SHOOT_DO(bringIntoSight(item));
    const QPoint place = restingMiddle(item);
    QVERIFY2(QRect(QPoint(0, 0), window().size()).contains(place), "the control lies outside of the window");
    QTest::mouseClick(&window(), button, modifiers, place);
}

void ShootWindow::clickTip(const QString &toolTip)
{
    click(find("toolTip", toolTip));
}

void ShootWindow::clickText(const QString &text)
{
    click(find("text", text));
}

void ShootWindow::clickName(const QString &objectName)
{
    click(find("objectName", objectName));
}

void ShootWindow::clickFrame(int row, Qt::KeyboardModifiers modifiers, Qt::MouseButton button)
{
    QQuickItem *item = frame(row);
    QVERIFY2(item != nullptr, qPrintable(u"row %1 is not in sight"_s.arg(row)));
    click(item, modifiers, button);
}

void ShootWindow::goTo(int row)
{
    press(Qt::Key_Home);
    for (int i = 0; i < row; ++i)
        press(Qt::Key_Right);
    SHOOT_WAIT_FOR(frames().currentIndex(), row);
}

void ShootWindow::pullRight(QQuickItem *item, const std::function<bool()> &done)
{
    QVERIFY(item != nullptr);
    QPoint place = restingMiddle(item);
    QTest::mousePress(&window(), Qt::LeftButton, Qt::NoModifier, place);
    while (!done() && place.x() < window().width() - 1) {
        place.rx() += 1;
        QTest::mouseMove(&window(), place);
    }
    QTest::mouseRelease(&window(), Qt::LeftButton, Qt::NoModifier, place);
    QVERIFY2(done(), "pulling it does not lead there");
}

void ShootWindow::typeInto(const QString &toolTip, const QString &text)
{
    QQuickItem *field = find("toolTip", toolTip);
    QVERIFY(field != nullptr);
    QQuickItem *editor =
        firstShown(field, [](QQuickItem *item) { return item->inherits("QQuickTextInput"); });
    SHOOT_DO(click(editor));
    SHOOT_WAIT(editor->hasActiveFocus());
    press(Qt::Key_A, Qt::ControlModifier);
    for (const QChar letter : text)
        QTest::keyClick(&window(), letter.toLatin1());
    press(Qt::Key_Return);
}

void ShootWindow::answerDialog(const std::function<void()> &action,
                               const std::function<void(QDialog &)> &answer)
{
    bool answered = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (answered || dialog == nullptr || !dialog->isVisible() || dialog->windowHandle() == nullptr
            || !dialog->windowHandle()->isExposed())
            return;
        answered = true;
        answer(*dialog);
        if (dialog->isVisible()) {
            QTest::qFail("the dialog did not take the answer", __FILE__, __LINE__);
            dialog->reject();
        }
    });
    look.start(20);
    action();
    const bool came = QTest::qWaitFor([&] { return answered; }, patienceMs);
    QVERIFY2(came, "no dialog came");
}

void ShootWindow::rest()
{
    const auto resting = [this] {
        bool goesToLastSoon = false;
        const QList<QObject *> all = window().rootObject()->findChildren<QObject *>();
        for (const QObject *object : all) {
            goesToLastSoon = goesToLastSoon
                             || (object->inherits("QQmlTimer") && object->property("interval") == 500
                                 && object->property("running").toBool());
        }
        return !goesToLastSoon && frames().currentAction() == Zum::ActNoAction
               && m_shell->controllers().operation.isFree();
    };
    // What ends one action may start the next one in the same turn.
    const bool rests = QTest::qWaitFor(
        [&] {
            if (!resting())
                return false;
            QCoreApplication::processEvents();
            return resting();
        },
        patienceMs);
    QVERIFY2(rests, "the program does not come to rest");
}

QImage ShootWindow::look(QQuickItem *item)
{
    if (item == nullptr)
        return {};
    const QImage screen = window().grabWindow();
    const QRectF place = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    return screen.copy(place.toAlignedRect().intersected(screen.rect()));
}

void ShootWindow::putPointerAway()
{
    QTest::mouseMove(&window(), QPoint(window().width() / 2, window().height() - 2));
}

void ShootWindow::keepScreen(const QString &folder, const QString &name) const
{
    if (m_shell)
        m_shell->window().grabWindow().save(folder + u'/' + name + u".png"_s);
    if (QWidget *dialog = QApplication::activeModalWidget())
        dialog->grab().save(folder + u'/' + name + u"-dialog.png"_s);
}
