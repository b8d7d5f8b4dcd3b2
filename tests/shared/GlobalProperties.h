#pragma once

#include <QList>
#include <QMetaType>
#include <QVariant>

/// What the rest of the program may rely on in a WebcamGlobal: one property by name and type, what a new
/// object holds in it, and whether a project file keeps it.
struct GlobalProperty
{
    enum Keeper {
        NotKept,
        ProjectFile,
        /// Follows another property; nobody writes it.
        ReadOnly,
    };

    const char *name;
    QMetaType::Type type;
    QVariant start;
    Keeper keeper;
};

/// Every property, in groups of one type.
QList<GlobalProperty> globalProperties();
