#include "ui/dialogs/DialogHost.h"

#include "support/ShownItems.h"

#include <QQmlContext>
#include <QtTest>

namespace {

const char *const scene = R"(
SceneProject {
    id: appWindow

    readonly property alias robotMessgModel: messages.robotMessgModel
    readonly property alias dialog: dialogLayer

    function rescale() {}
    function repaint() {}
    function projectIsLoaded() {}
    function reloadCapturingDevice() {}

    anchors.fill: parent
    Component.onCompleted: {
        FocusHome.home = keyHandler
        keyHandler.forceActiveFocus()
    }

    MessageRouter { id: messages }
    RootConnections { scene: appWindow; keyHandler: keyHandler }
    Dialog { id: dialogLayer; objectName: "dialogLayer"; anchors.fill: parent }
    KeyShortcuts { id: keyHandler; objectName: "keyHandler"; scene: appWindow }
}
)";

} // namespace

LongTexts::LongTexts(bool wanted)
{
    if (wanted)
        QCoreApplication::installTranslator(this);
}

bool LongTexts::isEmpty() const
{
    return false;
}

QString LongTexts::translate(const char *, const char *sourceText, const char *, int) const
{
    const QString text = QString::fromUtf8(sourceText);
    // The longest word grows, as it does in languages that put words together.
    QStringList words = text.split(' ');
    qsizetype longest = 0;
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (words[i].size() > words[longest].size() && !words[i].contains('%'))
            longest = i;
    }
    const qsizetype wanted = (text.size() + 2) / 3;
    words[longest] += QStringLiteral("ывающийсянаряду").left(wanted);
    return words.join(' ');
}

DialogHost::DialogHost(int fontRow, QSize windowSize)
    : host(fontRow, windowSize), window(filePath("settings.ini"), host.global())
{
    QQmlContext *context = host.window().rootContext();
    context->setContextProperty("MainWindow", &window);
    context->setContextProperty("FramesModel", &frames);
    context->setContextProperty("CurvesModel", &curves);
    host.load(scene);
}

DialogHost::~DialogHost()
{
    host.window().setSource(QUrl());
}

QQuickItem *DialogHost::open(const QString &fileName)
{
    window.setQmlDialogUrl(fileName);
    QQuickItem *opened = dialog();
    if (opened)
        QCoreApplication::processEvents();
    return opened;
}

void DialogHost::close()
{
    QMetaObject::invokeMethod(host.item("dialogLayer"), "close");
}

QQuickItem *DialogHost::dialog() const
{
    const QQuickItem *layer = host.item("dialogLayer");
    return layer ? layer->property("item").value<QQuickItem *>() : nullptr;
}

bool DialogHost::isOpen() const
{
    return dialog() != nullptr;
}

QQuickItem *DialogHost::part(const QString &objectName) const
{
    return parts(objectName).value(0);
}

QList<QQuickItem *> DialogHost::parts(const QString &objectName) const
{
    QList<QQuickItem *> found;
    shownItems::visit(dialog(), [&](QQuickItem *item) {
        if (item->objectName() == objectName)
            found.append(item);
    });
    return found;
}

QQuickItem *DialogHost::editor(const QString &partName) const
{
    QQuickItem *found = nullptr;
    shownItems::visit(part(partName), [&](QQuickItem *item) {
        if (item->inherits("QQuickTextInput"))
            found = item;
    });
    return found;
}

QStringList DialogHost::texts() const
{
    return shownItems::texts(dialog());
}

void DialogHost::scrollTo(QQuickItem *item)
{
    QMetaObject::invokeMethod(dialog(), "reveal", Q_ARG(QVariant, QVariant::fromValue(item)));
}

void DialogHost::click(QQuickItem *item)
{
    QVERIFY(item);
    scrollTo(item);
    host.click(item);
}

void DialogHost::click(const QString &objectName)
{
    QQuickItem *item = part(objectName);
    QVERIFY2(item, qPrintable("No part " + objectName));
    click(item);
}

QQuickItem *DialogHost::textItem(const QString &text, const QString &partName) const
{
    QQuickItem *found = nullptr;
    shownItems::visit(partName.isEmpty() ? dialog() : part(partName), [&](QQuickItem *item) {
        if (!found && shownItems::isText(item) && item->property("text").toString() == text)
            found = item;
    });
    return found;
}

void DialogHost::clickText(const QString &text)
{
    QQuickItem *item = textItem(text);
    QVERIFY2(item, qPrintable("No text " + text));
    click(item);
}

QStringList DialogHost::textsOutside() const
{
    QStringList outside = shownItems::textsOutside(dialog());
    const QRectF box = dialog()->mapRectToScene(dialog()->boundingRect());
    if (!QRectF(QPointF(0, 0), host.root()->size()).contains(box))
        outside.prepend(dialog()->property("heading").toString());
    return outside;
}

QString DialogHost::filePath(const QString &name) const
{
    return m_folder.filePath(name);
}
