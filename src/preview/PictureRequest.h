#pragma once

#include "shared/Zum.h"

#include <QList>
#include <QSize>
#include <QString>
#include <QVariantMap>

/// What a preview wants to see: one frame's picture, and at which size. A plain value.
struct PictureRequest
{
    static constexpr int fromBackgrounds = -1;
    static constexpr int fromReference = 0;
    static constexpr int fromCaptured = 1;
    /// What the keys of filtered pictures begin with.
    static inline const QString filteredPrefix = QStringLiteral("filter_");

    /// File name without a folder.
    QString name;
    /// Size of the picture over the size of its file; 0 and below fits it into `target`.
    double scale = 1.0;
    /// What lies outside of this is cut off, evenly on both sides.
    QSize cropLimit{12000, 12000};
    QSize target{100, 100};
    /// Run the filters, if there are settings for them.
    bool filtered = false;
    int source = fromReference;
    /// Go around memory and disk copy.
    bool forced = false;
    /// A Zum::ScalePolicy.
    int policy = Zum::ScaleToFit;
    /// As ImLightEq takes them.
    QVariantMap settings;

    /// The name, behind a prefix when the picture is a filtered one.
    QString key() const;
    bool wantsFilters() const
    {
        return filtered && !settings.isEmpty();
    }
    /// Whether pictures made for both have the same scale, crop and target.
    bool hasSizesOf(const PictureRequest &other) const;
    /// Equal in everything but `forced`.
    bool wantsSameAs(const PictureRequest &other) const;

    /// The row of ten numbers in which a request travels to the worker: 0, crop width and height, 0,
    /// filtered, source, target width and height, forced, policy.
    QList<int> parameters() const;
    static PictureRequest of(const QString &name, double scale, const QList<int> &parameters,
                             const QVariantMap &settings);
};
