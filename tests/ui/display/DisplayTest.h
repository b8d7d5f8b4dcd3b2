#pragma once

#include "DisplayWindow.h"

#include <QTest>

/// What tests of the views share: one window serves all functions of a class, and its scene must not warn.
class DisplayTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void cleanupTestCase();

protected:
    WebcamGlobal &global()
    {
        return m_film->global();
    }
    FramesModel &frames()
    {
        return m_film->frames();
    }
    /// Whether a place of the item, from 0 to 1, gets that colour soon.
    bool shows(QQuickItem *item, const QColor &color, QPointF place = {0.3, 0.3});

    /// The states of the Capture tab's box.
    const QString live = QStringLiteral("liveViewPreviewIsOn");
    const QString captured = QStringLiteral("capturePreviewIsOn");
    const QString reference = QStringLiteral("referencePreviewIsOn");

    std::unique_ptr<DisplayWindow> m_film;
};
