#include "app/UserDocs.h"
#include "shared/WebcamGlobal.h"
#include "ui/controls/ControlHost.h"

#include <QQmlContext>
#include <QtTest>

namespace {

/// What the view asks of the window.
class FakeWindow : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList docs READ docs CONSTANT)
    Q_PROPERTY(bool qmlDialogVisible MEMBER m_qmlDialogVisible NOTIFY qmlDialogVisibleChanged)

public:
    explicit FakeWindow(const QString &locale)
        : m_docs("capture", locale, {MORVANE_SOURCE_DIR "/docs/userdocs"})
    {
    }

    QVariantList docs()
    {
        ++reads;
        return missing ? QVariantList() : m_docs.docs();
    }
    Q_INVOKABLE void loadDocs()
    {
        ++loads;
    }
    Q_INVOKABLE void openUrlExternally(const QString &url)
    {
        opened.append(url);
    }

    int reads = 0;
    int loads = 0;
    bool missing = false;
    QStringList opened;

signals:
    void qmlDialogVisibleChanged();

private:
    UserDocs m_docs;
    bool m_qmlDialogVisible = false;
};

QQuickItem *visibleBelow(QQuickItem *item, const QString &objectName)
{
    if (item->objectName() == objectName && item->isVisible())
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = visibleBelow(child, objectName))
            return found;
    }
    return nullptr;
}

} // namespace

class TestDocsView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void loadsNothingBeforeItIsActive();
    void showsTheFirstPage();
    void clickOnATitleShowsItsPage();
    void arrowKeysTurnPagesAndStopAtTheEnds();
    void pageKeysScroll();
    void anotherPageStartsAtItsTop();
    void keysRestWhileADialogIsOpenAndWhenNotActive();
    void reloadReadsAgainAndKeepsThePage();
    void expandHidesAndShowsTheTitles();
    void commandsAreIgnoredWhenNotActive();
    void linkOpensOutside();
    void withoutDocumentsSaysSoAndReadsAgain();
    void fitsAtEveryFontSize();
    void fitsAtEveryFontSize_data();

private:
    QQuickItem *show(bool active = true);
    QString heading() const;
    int currentPage() const;

    std::unique_ptr<FakeWindow> m_window;
    std::unique_ptr<ControlHost> m_host;
    QQuickItem *m_view = nullptr;
};

void TestDocsView::init()
{
    m_window = std::make_unique<FakeWindow>("en_US");
    m_host = std::make_unique<ControlHost>();
}

void TestDocsView::cleanup()
{
    const QStringList warnings = m_host ? m_host->warnings() : QStringList();
    m_host.reset();
    m_window.reset();
    QCOMPARE(warnings, QStringList());
}

QQuickItem *TestDocsView::show(bool active)
{
    m_host->window().rootContext()->setContextProperty("MainWindow", m_window.get());
    m_view = m_host->load(
        QStringLiteral("DocsView { anchors.fill: parent; active: %1 }").arg(active ? "true" : "false"));
    return m_view;
}

QString TestDocsView::heading() const
{
    const QQuickItem *item = m_host->item("docsHeading");
    return item ? item->property("text").toString() : QString();
}

int TestDocsView::currentPage() const
{
    return m_view->property("currentPage").toInt();
}

void TestDocsView::loadsNothingBeforeItIsActive()
{
    QVERIFY(show(false));
    QCOMPARE(m_window->reads, 0);
    QVERIFY(!m_host->item("docsHeading"));
    QVERIFY(!m_view->isVisible());
    m_view->setProperty("active", true);
    const int reads = m_window->reads;
    QVERIFY(reads > 0);
    QVERIFY(m_host->item("docsHeading"));
    m_view->setProperty("active", false);
    QVERIFY(!m_view->isVisible());
    m_view->setProperty("active", true);
    m_host->key(Qt::Key_Down);
    QCOMPARE(m_window->reads, reads);
}

void TestDocsView::showsTheFirstPage()
{
    QVERIFY(show());
    QCOMPARE(heading(), QString("Welcome"));
    QQuickItem *title = m_host->item("docsTitle0");
    QVERIFY(title);
    const AccessibleFacts facts = accessibleFacts(title);
    QCOMPARE(facts.name, QString("Welcome"));
    QVERIFY(m_host->item("docsCover")->isVisible());
}

void TestDocsView::clickOnATitleShowsItsPage()
{
    QVERIFY(show());
    m_host->click(m_host->item("docsTitle2"));
    QCOMPARE(currentPage(), 2);
    QCOMPARE(heading(), QString("Shooting"));
}

void TestDocsView::arrowKeysTurnPagesAndStopAtTheEnds()
{
    QVERIFY(show());
    m_host->key(Qt::Key_Up);
    QCOMPARE(currentPage(), 0);
    m_host->key(Qt::Key_Down);
    QCOMPARE(currentPage(), 1);
    QCOMPARE(heading(), QString("Projects"));
    const int last = m_view->property("pages").toList().size() - 1;
    for (int i = 0; i < last + 2; ++i)
        m_host->key(Qt::Key_Down);
    QCOMPARE(currentPage(), last);
    m_host->key(Qt::Key_Up);
    QCOMPARE(currentPage(), last - 1);
}

void TestDocsView::pageKeysScroll()
{
    QVERIFY(show());
    const QQuickItem *flickable = m_host->item("docsFlickable");
    QTRY_VERIFY(flickable->property("contentHeight").toReal() > flickable->height());
    m_host->key(Qt::Key_PageDown);
    QVERIFY(flickable->property("contentY").toReal() > 0);
    m_host->key(Qt::Key_PageUp);
    QCOMPARE(flickable->property("contentY").toReal(), 0.0);
}

void TestDocsView::anotherPageStartsAtItsTop()
{
    QVERIFY(show());
    m_host->key(Qt::Key_PageDown);
    m_host->key(Qt::Key_Down);
    QCOMPARE(m_host->item("docsFlickable")->property("contentY").toReal(), 0.0);
}

void TestDocsView::keysRestWhileADialogIsOpenAndWhenNotActive()
{
    QVERIFY(show());
    m_window->setProperty("qmlDialogVisible", true);
    m_host->key(Qt::Key_Down);
    QCOMPARE(currentPage(), 0);
    m_window->setProperty("qmlDialogVisible", false);
    m_view->setProperty("active", false);
    m_host->key(Qt::Key_Down);
    QCOMPARE(currentPage(), 0);
}

void TestDocsView::reloadReadsAgainAndKeepsThePage()
{
    QVERIFY(show());
    m_host->key(Qt::Key_Down);
    emit m_host->global().webPaneReload();
    QCOMPARE(m_window->loads, 1);
    QCOMPARE(currentPage(), 1);
    m_host->click(m_host->item("reloadButton"));
    QCOMPARE(m_window->loads, 2);
}

void TestDocsView::expandHidesAndShowsTheTitles()
{
    QVERIFY(show());
    QVERIFY(m_host->item("docsTitle0")->isVisible());
    emit m_host->global().webPaneExpand();
    QVERIFY(!m_host->item("docsTitle0")->isVisible());
    m_host->click(m_host->item("expandButton"));
    QVERIFY(m_host->item("docsTitle0")->isVisible());
}

void TestDocsView::commandsAreIgnoredWhenNotActive()
{
    QVERIFY(show(false));
    emit m_host->global().webPaneReload();
    emit m_host->global().webPaneExpand();
    QCOMPARE(m_window->loads, 0);
    QVERIFY(m_view->property("titlesShown").toBool());
}

void TestDocsView::linkOpensOutside()
{
    QVERIFY(show());
    QQuickItem *shown = visibleBelow(m_view, "docsLink");
    QVERIFY(shown);
    const QString address = shown->property("label").toString();
    QVERIFY(QMetaObject::invokeMethod(shown, "press"));
    QCOMPARE(m_window->opened, QStringList(address));
}

void TestDocsView::withoutDocumentsSaysSoAndReadsAgain()
{
    m_window->missing = true;
    QVERIFY(show());
    QVERIFY(!m_host->item("docsHeading")->isVisible());
    QVERIFY(!m_host->item("reloadButton")->isVisible());
    m_window->missing = false;
    emit m_host->global().webPaneReload();
    QCOMPARE(heading(), QString("Welcome"));
    QVERIFY(m_host->item("docsHeading")->isVisible());
}

void TestDocsView::fitsAtEveryFontSize_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("locale");
    for (const char *locale : {"en_US", "ru_RU"}) {
        for (const int row : {1, 5, 8})
            QTest::addRow("%s, row %d", locale, row) << row << locale;
    }
}

void TestDocsView::fitsAtEveryFontSize()
{
    QFETCH(int, row);
    QFETCH(QString, locale);
    m_window = std::make_unique<FakeWindow>(locale);
    m_host.reset();
    m_host = std::make_unique<ControlHost>(row, QSize(1024, 600));
    QVERIFY(show());
    const int pages = m_view->property("pages").toList().size();
    for (int i = 0; i < pages; ++i) {
        m_view->setProperty("currentPage", i);
        QCOMPARE(cutTexts(m_view), QStringList());
        const QString folder = qEnvironmentVariable("MORVANE_SCREENSHOTS");
        if (!folder.isEmpty())
            m_host->window().grabWindow().save(
                QStringLiteral("%1/docs-%2-%3-%4.png").arg(folder, locale).arg(row).arg(i));
    }
}

QTEST_MAIN(TestDocsView)

#include "tst_docsview.moc"
