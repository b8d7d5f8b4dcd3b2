#pragma once

#include <QImageReader>
#include <QPixmap>
#include <QSplashScreen>

/// The card shown while the program starts. There is a picture for the densities 96, 120, 144 and 192; at
/// another the card is empty.
class SplashScreen : public QSplashScreen
{
    Q_OBJECT

public:
    explicit SplashScreen(int density) : QSplashScreen(picture(density), Qt::WindowStaysOnTopHint)
    {
    }

private:
    static QPixmap picture(int density)
    {
        QImageReader reader(QStringLiteral(":/images/capture/splash_%1.png").arg(density), "png");
        // To find the format out, it would load the plug-ins of all formats.
        reader.setAutoDetectImageFormat(false);
        return QPixmap::fromImageReader(&reader);
    }
};
