#include "timeline/ModelSupport.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

/// The model under a real list view: what its delegates show must be what stands in the rows.
class tst_FramesInView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsAppendedFrames();
    void showsMovedFrames_data();
    void showsMovedFrames();
    void showsDuplicates();
    void showsFramesWithoutTheRemovedOnes();
    void showsUndoneEdits();
    void showsFramesAfterABatchOfDuplicates();
    void keepsTheDelegatesOfRowsThatOnlyWereRefreshed();

private:
    QStringList shown() const;
    QQuickItem *delegateAt(int row) const;

    std::unique_ptr<TestModel> m_model;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QQuickItem *m_view = nullptr;
};

void tst_FramesInView::init()
{
    m_model = std::make_unique<TestModel>(6);
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->rootContext()->setContextProperty("FramesModel", m_model.get());
    QQmlComponent component(m_engine.get());
    component.setData(R"(
        import QtQuick
        ListView {
            id: list
            width: 2000
            height: 50
            orientation: ListView.Horizontal
            model: FramesModel
            delegate: Item { width: 20; height: 50; property string shown: model.capFull + (model.static > -1 ? "h" : "") }
            Connections {
                target: FramesModel
                function onDisconnectModel() { list.model = undefined }
                function onConnectModel() { list.model = FramesModel }
            }
        })",
                      QUrl());
    m_window = std::make_unique<QQuickWindow>();
    m_view = qobject_cast<QQuickItem *>(component.create());
    QVERIFY2(m_view, qPrintable(component.errorString()));
    m_view->setParentItem(m_window->contentItem());
    m_view->setParent(m_window.get());
    QCOMPARE(shown(), m_model->names());
}

void tst_FramesInView::cleanup()
{
    m_window.reset();
    m_engine.reset();
    m_model.reset();
}

QQuickItem *tst_FramesInView::delegateAt(int row) const
{
    QQuickItem *item = nullptr;
    QMetaObject::invokeMethod(m_view, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, item), Q_ARG(int, row));
    return item;
}

QStringList tst_FramesInView::shown() const
{
    QMetaObject::invokeMethod(m_view, "forceLayout");
    QStringList shown;
    for (int row = 0; row < m_view->property("count").toInt(); ++row) {
        const QQuickItem *item = delegateAt(row);
        shown.append(item ? item->property("shown").toString() : QStringLiteral("?"));
    }
    return shown;
}

void tst_FramesInView::showsAppendedFrames()
{
    m_model->appendFrame({{"capFull", "x"}}, false, 1);
    m_model->appendFrame({{"capFull", "y"}}, true);
    QCOMPARE(shown(), QStringList({"c0", "c1", "x", "c2", "c3", "c4", "c5", "y", "y"}));
}

void tst_FramesInView::showsMovedFrames_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("down") << 0 << 3;
    QTest::newRow("to the end") << 1 << 5;
    QTest::newRow("up") << 5 << 1;
    QTest::newRow("neighbour down") << 2 << 3;
    QTest::newRow("neighbour up") << 3 << 1;
}

void tst_FramesInView::showsMovedFrames()
{
    QFETCH(int, from);
    QFETCH(int, to);
    m_model->moveSingleFrame(from, to, true);
    QCOMPARE(shown(), m_model->names());
    m_model->undo();
    QCOMPARE(shown(), m_model->names());
}

void tst_FramesInView::showsDuplicates()
{
    m_model->duplicateSingleFrame(1, Zum::CaptureModeAppend, 3, true, 3);
    QCOMPARE(m_model->framesCount(), 9);
    QCOMPARE(shown(), m_model->names());
    m_model->duplicateSingleFrame(0, Zum::CaptureModeReplace, 0, true, 2);
    QCOMPARE(shown(), m_model->names());
}

void tst_FramesInView::showsFramesWithoutTheRemovedOnes()
{
    m_model->addRangeToGroup(1, 3);
    m_model->actionOnSelectedFrames(Zum::ActDelete);
    QVERIFY(m_model->settle());
    QCOMPARE(shown(), QStringList({"c0", "c4", "c5"}));
}

void tst_FramesInView::showsUndoneEdits()
{
    m_model->removeSingleFrame(2);
    m_model->duplicateSingleFrame(0, Zum::CaptureModeAppend, 0, true, 2);
    for (int i = 0; i < 3; ++i) {
        m_model->undo();
        QCOMPARE(shown(), m_model->names());
    }
    for (int i = 0; i < 3; ++i) {
        m_model->redo();
        QCOMPARE(shown(), m_model->names());
    }
}

void tst_FramesInView::showsFramesAfterABatchOfDuplicates()
{
    m_model->addRangeToGroup(0, 2);
    m_model->actionOnSelectedFrames(Zum::ActDuplicateFrames);
    QVERIFY(m_model->settle());
    QCOMPARE(m_model->framesCount(), 9);
    QCOMPARE(shown(), m_model->names());
    m_model->searchStaticness(0, 0);
    QVERIFY(m_model->settle());
    QCOMPARE(shown().first(), QString("c0h"));
}

void tst_FramesInView::keepsTheDelegatesOfRowsThatOnlyWereRefreshed()
{
    const QQuickItem *third = delegateAt(3);
    m_model->refresh(0, 5);
    m_model->removeSingleFrame(5);
    m_model->moveSingleFrame(0, 1);
    shown();
    QCOMPARE(delegateAt(3), third);
}

QTEST_MAIN(tst_FramesInView)
#include "tst_framesinview.moc"
