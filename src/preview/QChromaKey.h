#pragma once

#include "shared/Zum.h"

#include <QObject>
#include <QPainter>

/// How one layer of the view is put over what lies below it: a blend type or grayscale, and what a painter or
/// a shader makes of them. Grayscale comes first: with it the blend type does not count.
class QChromaKey : public QObject
{
    Q_OBJECT
    /// A Zum::BlendType; one without a composition mode of its own is drawn as it is.
    Q_PROPERTY(int blend READ blend WRITE setBlend NOTIFY blendChanged)
    Q_PROPERTY(bool grayscale READ grayscale WRITE setGrayscale NOTIFY grayscaleChanged)
    /// The painter's composition mode: source-over when nothing blends.
    Q_PROPERTY(int compositionMode READ compositionMode NOTIFY effectChanged)
    /// Whether the result depends on what lies below in another way than plain drawing does.
    Q_PROPERTY(bool blending READ blending NOTIFY effectChanged)
    /// Whether there is anything to do: blending or grayscale.
    Q_PROPERTY(bool active READ active NOTIFY effectChanged)

public:
    using QObject::QObject;

    static QPainter::CompositionMode compositionModeOf(int blend);

    int blend() const
    {
        return m_blend;
    }
    void setBlend(int blend);

    bool grayscale() const
    {
        return m_grayscale;
    }
    void setGrayscale(bool grayscale);

    int compositionMode() const;
    bool blending() const;
    bool active() const;

signals:
    void blendChanged();
    void grayscaleChanged();
    void effectChanged();

private:
    int m_blend = Zum::NoBlend;
    bool m_grayscale = false;
};
