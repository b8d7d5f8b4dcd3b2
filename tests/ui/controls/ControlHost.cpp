#include "ui/controls/ControlHost.h"

#include "app/ASlider.h"
#include "app/ContextValues.h"
#include "app/CursorShapeArea.h"
#include "app/QNumImput.h"
#include "app/WheelArea.h"
#include "shared/Zum.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QtTest>

namespace {

QStringList seenWarnings;
QtMessageHandler formerHandler = nullptr;

void collectWarning(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool missingPicture = text.contains("svgicons/") && text.contains("Cannot open");
    if (type != QtDebugMsg && type != QtInfoMsg && !missingPicture)
        seenWarnings.append(text);
    if (!missingPicture)
        formerHandler(type, context, text);
}

void registerTypes()
{
    static const bool once = [] {
        qmlRegisterType<Zum>("Zum", 1, 0, "Zum");
        qmlRegisterType<WheelArea>("WheelArea", 1, 0, "WheelArea");
        qmlRegisterType<CursorShapeArea>("CursorShapeArea", 1, 0, "CursorShapeArea");
        qmlRegisterType<ASlider>("Aslider", 1, 0, "Aslider");
        qmlRegisterType<QNumImput>("QNumImput", 1, 0, "QNumImput");
        return true;
    }();
    Q_UNUSED(once)
}

QQuickItem *findBelow(QQuickItem *item, const QString &objectName)
{
    if (item->objectName() == objectName)
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findBelow(child, objectName))
            return found;
    }
    return nullptr;
}

void collectCutTexts(const QQuickItem *item, QStringList &cut)
{
    if (!item->isVisible())
        return;
    const bool isText = item->inherits("QQuickText");
    if (isText && item->property("truncated").toBool())
        cut.append(item->property("text").toString());
    const QList<QQuickItem *> children = item->childItems();
    for (const QQuickItem *child : children)
        collectCutTexts(child, cut);
}

} // namespace

ControlHost::ControlHost(int fontRow, QSize windowSize) : m_view(std::make_unique<QQuickView>())
{
    registerTypes();
    seenWarnings.clear();
    formerHandler = qInstallMessageHandler(collectWarning);
    QQmlContext *context = m_view->rootContext();
    context->setContextProperty("WebcamGlobal", &m_global);
    const morvane::FontSizes sizes = morvane::fontSizesOfRow(fontRow);
    context->setContextProperties(
        morvane::contextValues({{fontRow, fontRow, sizes}, morvane::dpiScaleOf(sizes), 100, false}));
    m_view->resize(windowSize);
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
}

ControlHost::~ControlHost()
{
    m_view.reset();
    qInstallMessageHandler(formerHandler);
}

QQuickItem *ControlHost::load(const QString &qml)
{
    const QString scene =
        QStringLiteral(
            "import QtQuick\nimport Zum 1.0\nimport Aslider 1.0\nimport WheelArea 1.0\n"
            "import CursorShapeArea 1.0\nimport QNumImput 1.0\n"
            "Rectangle { id: root; color: globalFonColor\n"
            "Item { anchors.fill: parent\n%1\n}\n%2 }")
            .arg(qml, QFile::exists(":/ToolTip.qml") ? "ToolTip { objectName: \"toolTip\" }" : "");
    auto *component = new QQmlComponent(m_view->engine(), m_view.get());
    component->setData(scene.toUtf8(), QUrl("qrc:/Test.qml"));
    QObject *object = component->create();
    const QList<QQmlError> errors = component->errors();
    for (const QQmlError &error : errors)
        qWarning().noquote() << error.toString();
    auto *root = qobject_cast<QQuickItem *>(object);
    if (!root)
        return nullptr;
    m_view->setContent(QUrl("qrc:/Test.qml"), component, root);
    m_view->show();
    m_view->requestActivate();
    if (!QTest::qWaitForWindowActive(m_view.get()))
        qWarning("The window does not get active");
    return root->childItems().constFirst()->childItems().value(0);
}

QQuickView &ControlHost::window()
{
    return *m_view;
}

QQuickItem *ControlHost::root() const
{
    return m_view->rootObject();
}

WebcamGlobal &ControlHost::global()
{
    return m_global;
}

QStringList ControlHost::warnings() const
{
    return seenWarnings;
}

QQuickItem *ControlHost::item(const QString &objectName) const
{
    return findBelow(m_view->contentItem(), objectName);
}

QVariant ControlHost::evaluate(const QString &expression)
{
    QQmlExpression evaluated(qmlContext(root()), root(), expression);
    const QVariant result = evaluated.evaluate();
    if (evaluated.hasError())
        qWarning().noquote() << evaluated.error().toString();
    return result;
}

QPoint ControlHost::centreOf(const QQuickItem *item) const
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

void ControlHost::click(const QQuickItem *item, Qt::MouseButton button)
{
    QTest::mouseClick(m_view.get(), button, Qt::NoModifier, centreOf(item));
}

void ControlHost::hover(const QQuickItem *item)
{
    QTest::mouseMove(m_view.get(), centreOf(item) + QPoint(1, 0));
    QTest::mouseMove(m_view.get(), centreOf(item));
}

void ControlHost::wheel(const QQuickItem *item, int steps)
{
    const QPointF at = centreOf(item);
    QWheelEvent event(at, m_view->mapToGlobal(at), QPoint(),
                      QPoint(0, steps * QWheelEvent::DefaultDeltasPerStep), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_view.get(), &event);
}

void ControlHost::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_view.get(), key, modifiers);
}

void ControlHost::type(const QString &text)
{
    for (const QChar letter : text)
        QTest::keyClick(m_view.get(), letter.toLatin1());
}

void ControlHost::focus(QQuickItem *item)
{
    item->forceActiveFocus(Qt::TabFocusReason);
}

QQuickItem *accessiblePart(QQuickItem *item)
{
    const QAccessibleInterface *face = QAccessible::queryAccessibleInterface(item);
    if (face && face->role() != QAccessible::NoRole && face->role() != QAccessible::Client
        && !face->text(QAccessible::Name).isEmpty())
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *part = accessiblePart(child))
            return part;
    }
    return nullptr;
}

AccessibleFacts accessibleFacts(QQuickItem *item)
{
    QQuickItem *part = accessiblePart(item);
    QAccessibleInterface *face = part ? QAccessible::queryAccessibleInterface(part) : nullptr;
    if (!face)
        return {};
    const QAccessible::State state = face->state();
    return {face->text(QAccessible::Name),
            face->text(QAccessible::Description),
            face->role(),
            !part->isEnabled(),
            state.checked != 0,
            state.focusable != 0};
}

QStringList cutTexts(const QQuickItem *item)
{
    QStringList cut;
    collectCutTexts(item, cut);
    return cut;
}

QRectF sceneRect(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(QPointF(), item->size()));
}

void addCorners()
{
    QTest::addColumn<QString>("anchors");
    QTest::addColumn<int>("row");
    for (const int row : {0, 8}) {
        for (const char *vertical : {"top", "bottom"}) {
            for (const char *side : {"left", "right"})
                QTest::addRow("%s %s, font index %d", vertical, side, row)
                    << QString("anchors.%1: parent.%1; anchors.%2: parent.%2").arg(vertical, side) << row;
        }
    }
}
