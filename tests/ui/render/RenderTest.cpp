#include "RenderTest.h"

void RenderTest::cleanup()
{
    w->window().setQmlDialogUrl({});
    QCOMPARE(w->shell().sceneWarnings(), QStringList());
}

void RenderTest::cleanupTestCase()
{
    w.reset();
}
