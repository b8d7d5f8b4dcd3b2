#pragma once

#include "shared/PropertyMacros.h"

/// A property that the scene only reads; the class and its descendants write it, with a signal on a real
/// change. Leaves the class in a private section.
#define MORVANE_OBSERVED_PROPERTY(Type, name, Name, ...)              \
    Q_PROPERTY(Type name READ name NOTIFY name##Changed STORED false) \
public:                                                               \
    Type name() const                                                 \
    {                                                                 \
        return m_##name;                                              \
    }                                                                 \
    Q_SIGNAL void name##Changed();                                    \
                                                                      \
protected:                                                            \
    void set##Name(const Type &value)                                 \
    {                                                                 \
        if (morvane::sameValue(m_##name, value))                      \
            return;                                                   \
        m_##name = value;                                             \
        Q_EMIT name##Changed();                                       \
    }                                                                 \
                                                                      \
private:                                                              \
    Type m_##name{__VA_ARGS__};
