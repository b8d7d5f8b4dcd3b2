#include "app/EventSounds.h"

#include <QDir>
#include <QFile>
#include <QSoundEffect>
#include <QStandardPaths>
#include <QUrl>

namespace {

constexpr std::array<const char *, EventSounds::count> files{"warning", "big-warning", "notify", "error",
                                                             "appear"};

} // namespace

bool EventSounds::available()
{
#ifdef Q_OS_LINUX
    // Asking the multimedia library would connect to a sound server and hold up the start.
    const QDir runtime(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    return QFile::exists(QStringLiteral("/proc/asound/pcm")) || runtime.exists(QStringLiteral("pulse/native"))
           || runtime.exists(QStringLiteral("pipewire-0"));
#else
    return true;
#endif
}

void EventSounds::play(int soundKey)
{
    if (soundKey < 0 || soundKey >= count || !available())
        return;
    QSoundEffect *&effect = m_effects.at(static_cast<std::size_t>(soundKey));
    if (effect == nullptr) {
        effect = new QSoundEffect(this);
        effect->setSource(QUrl(QStringLiteral("qrc:/sounds/%1.wav")
                                   .arg(QLatin1String(files.at(static_cast<std::size_t>(soundKey))))));
    }
    effect->play();
}
