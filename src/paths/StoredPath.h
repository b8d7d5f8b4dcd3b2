#pragma once

#include <QString>

/// The path attributes of a project file, as they stand there.
struct StoredPath
{
    QString data;          ///< Path text in base64; the only form that is written.
    QString pathData;      ///< Older form, the path text itself; read when `data` is empty.
    qreal viewportX = 0.0; ///< Width of the canvas in which the coordinates were stored; 0 for unknown.
    qreal viewportY = 0.0; ///< Height of that canvas. The pair counts only when both are above 0.
    int smooth = 300;
};
