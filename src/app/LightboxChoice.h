#pragma once

#include "shared/PropertyMacros.h"
#include "shared/Zum.h"

#include <QColor>

/// What the light box on a second screen shows. Both values belong to the project. Main thread only.
class LightboxChoice : public QObject
{
    Q_OBJECT

    /// One of Zum::LightboxMode.
    MORVANE_PROPERTY(int, lightboxMode, LightboxMode, Zum::LightboxModeColor)
    MORVANE_PROPERTY(QColor, lightboxColor, LightboxColor, Qt::green)

public:
    using QObject::QObject;
};
