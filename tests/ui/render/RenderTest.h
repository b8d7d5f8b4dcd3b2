#pragma once

#include "ui/render/RenderWindow.h"

#include <QTest>

/// What tests of the render pane and its dialogs share: one window serves all functions of a class, without a
/// dialog at the end of each, and its scene must not warn.
class RenderTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void cleanupTestCase();

protected:
    std::unique_ptr<RenderWindow> w;
};
