#pragma once

#include <QPixmap>
#include <QSplashScreen>

/// The card shown while the program starts. There is a picture for the densities 96, 120, 144 and 192; at
/// another the card is empty.
class SplashScreen : public QSplashScreen
{
    Q_OBJECT

public:
    explicit SplashScreen(int density)
        : QSplashScreen(QPixmap(QStringLiteral(":/images/capture/splash_%1.png").arg(density)),
                        Qt::WindowStaysOnTopHint)
    {
    }
};
