#pragma once

#include <cmath>
#include <QObject>
#include <type_traits>

/// Properties in one row each. A setter stores and signals only on a real change.
///
/// Q_OBJECT must stand on a line of its own in the class, and each row leaves the class in a private section.

namespace morvane {

/// Whether two property values are the same. Of reals a difference of any size is a change, but one "not a
/// number" is the same as another, or it would signal for ever.
template <typename T>
bool sameValue(const T &a, const T &b)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(a) && std::isnan(b))
            return true;
    }
    return a == b;
}

} // namespace morvane

/// The accessors, the signal and the field behind a stored property. The variadic part is the start value,
/// as written between the braces of an initialiser.
#define MORVANE_PROPERTY_BODY(Type, name, Name, onChange, ...) \
public:                                                        \
    Type name() const                                          \
    {                                                          \
        return m_##name;                                       \
    }                                                          \
    void set##Name(const Type &value)                          \
    {                                                          \
        if (morvane::sameValue(m_##name, value))               \
            return;                                            \
        m_##name = value;                                      \
        Q_EMIT name##Changed();                                \
        onChange                                               \
    }                                                          \
    Q_SIGNAL void name##Changed();                             \
                                                               \
private:                                                       \
    Type m_##name{__VA_ARGS__};

/// State of this run or of the user's settings: not part of a project.
#define MORVANE_PROPERTY(Type, name, Name, ...)                                       \
    Q_PROPERTY(Type name READ name WRITE set##Name NOTIFY name##Changed STORED false) \
    MORVANE_PROPERTY_BODY(Type, name, Name, , __VA_ARGS__)

/// State that the project file keeps: a change also emits the class's changed(), which makes the project
/// dirty.
#define MORVANE_PROJECT_PROPERTY(Type, name, Name, ...)                              \
    Q_PROPERTY(Type name READ name WRITE set##Name NOTIFY name##Changed STORED true) \
    MORVANE_PROPERTY_BODY(Type, name, Name, Q_EMIT changed();, __VA_ARGS__)

/// A value that the class itself stores and the scene may only read: the setter is protected.
#define MORVANE_READ_ONLY_PROPERTY(Type, name, Name, ...)             \
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

/// A facade's property that another object holds: `holder` is an expression giving that object. The owner
/// connects the holder's signal to this one's.
#define MORVANE_FORWARDED_PROPERTY(Type, name, Name, holder)             \
    Q_PROPERTY(Type name READ name WRITE set##Name NOTIFY name##Changed) \
public:                                                                  \
    Type name() const                                                    \
    {                                                                    \
        return (holder).name();                                          \
    }                                                                    \
    void set##Name(const Type &value)                                    \
    {                                                                    \
        (holder).set##Name(value);                                       \
    }                                                                    \
    Q_SIGNAL void name##Changed();                                       \
                                                                         \
private:

/// The same for a value that the scene may only read.
#define MORVANE_FORWARDED_READ_ONLY(Type, name, holder)  \
    Q_PROPERTY(Type name READ name NOTIFY name##Changed) \
public:                                                  \
    Type name() const                                    \
    {                                                    \
        return (holder).name();                          \
    }                                                    \
    Q_SIGNAL void name##Changed();                       \
                                                         \
private:
