#pragma once

#include <array>
#include <QObject>

class QSoundEffect;

/// The five short sounds of the program, each loaded when it is first played. Main thread only.
class EventSounds : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether this machine has something that sounds come out of; looked up without opening it.
    static bool available();

    /// `soundKey` is one of the window's EventSounds; an unknown one is silent.
    void play(int soundKey);

    static constexpr int count = 5;

private:
    std::array<QSoundEffect *, count> m_effects{};
};
