#pragma once

#include "preview/BackgroundLayer.h"
#include "preview/ChromaKey.h"

#include <memory>
#include <QColor>
#include <QImage>
#include <QObject>
#include <QString>
#include <QVariantMap>

/// The chain of picture filters that a map of settings drives: contrast, saturation, noise, detail, chroma
/// key and a background behind the picture, in this order.
///
/// Keys of the map; one that is absent or cannot be read leaves its filter out:
///   "contrast"    number, 0 to 40; 0 is off
///   "saturation"  integer, 0 to 100; 50 leaves the colours alone
///   "denoise"     number, 0 to 100; 0 is off
///   "enhance"     text "sigmaS;sigmaR"
///   "chromakey"   text "similarity;smoothness;colour", both numbers above 0
///   "drawpoints"  its presence alone lets the background through without a key
///   "background"  text "on;scale;image;isReference", `image` a name in the background folder
///
/// Works on any thread, on one at a time: an instance keeps the key colour and the scaled background between
/// runs, so each worker has its own. OpenCV shares one pool of threads between all instances. What OpenCV
/// cannot do is logged, and that step leaves the picture as it was.
///
/// Every result that a step has touched is in Format_ARGB32.
class ImLightEq : public QObject
{
    Q_OBJECT

public:
    static constexpr int neutralSaturation = 50;

    /// The folder of background pictures, with a trailing "/".
    explicit ImLightEq(QString backgroundFolder = {}, QObject *parent = nullptr);

    QString backgroundFolder() const
    {
        return m_backgroundFolder;
    }
    void setBackgroundFolder(const QString &folder);

    /// Runs the chain. An empty picture or an empty map gives the picture back as it is; every other run
    /// gives Format_ARGB32. `strength` scales noise and detail.
    QImage process(QImage image, const QVariantMap &settings, double strength);

    /// Evens out the lightness in tiles (CLAHE); `clip` is limited to 0.001 to 4. The result is opaque.
    QImage changeContrast(const QImage &image, double clip) const;
    /// Scales the saturation by value / 50; `value` is limited to 0 to 100. The result is opaque.
    QImage saturate(const QImage &image, int value) const;
    /// Bilateral filter of diameter 10; `sigma` is limited to 10 to 100. The result is opaque.
    QImage denoise(const QImage &image, double sigma) const;
    /// Brings out detail; `sigmaS` is limited to 0 to 200, `sigmaR` to at least 0. The result is opaque.
    QImage enhance(const QImage &image, double sigmaS, double sigmaR) const;
    /// Makes transparent what is near to the key colour, by the current colour, similarity and smoothness.
    /// Writes alpha only. The picture's red is taken for blue and its blue for red, the key's are not.
    QImage chromakey(QImage image) const;

    /// The key, its parts 0 to 255.
    QColor color() const
    {
        return QColor(m_red, m_green, m_blue, m_alpha);
    }
    qint16 keyCb() const
    {
        return m_keyCb;
    }
    qint16 keyCr() const
    {
        return m_keyCr;
    }
    /// Both from 0 to 1.
    double similarity() const
    {
        return m_similarity;
    }
    double smoothness() const
    {
        return m_smoothness;
    }
    /// Limits both to that range.
    void setKeyRange(double similarity, double smoothness);

public slots:
    void setColor(QColor color);

private:
    QImage filtered(QImage image, const QVariantMap &settings, double strength) const;
    QImage keyed(QImage image, const QString &text);
    QImage overBackground(QImage image, const QString &text);

    QString m_backgroundFolder;
    BackgroundLayer m_background;
    int m_red = 0;
    int m_green = 0;
    int m_blue = 0;
    int m_alpha = 0;
    double m_similarity = 0;
    double m_smoothness = 0;
    std::unique_ptr<const chroma::AlphaTable> m_alphaTable;
    qint16 m_keyCb = 128;
    qint16 m_keyCr = 128;
};
