#pragma once

#include "shared/PropertyMacros.h"

#include <QObject>

/// Root of the shared state: carries the one signal that every project property emits beside its own.
class GlobalStateBase : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    /// A value that the project file keeps has changed.
    void changed();
};
