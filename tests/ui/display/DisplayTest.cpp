#include "DisplayTest.h"

void DisplayTest::cleanup()
{
    QCOMPARE(m_film->warnings(), QStringList());
}

void DisplayTest::cleanupTestCase()
{
    m_film.reset();
}

bool DisplayTest::shows(QQuickItem *item, const QColor &color, QPointF place)
{
    return QTest::qWaitFor([&] { return DisplayWindow::near(m_film->colorAt(item, place), color); }, 3000);
}
