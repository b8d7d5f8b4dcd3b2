#pragma once

#include <functional>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace morvane {

/// Starts another program that goes on by itself; false when it could not be started. Injected, so that a
/// test starts nothing.
using ProcessStarter = std::function<bool(const QString &program, const QStringList &arguments)>;

inline bool startDetached(const QString &program, const QStringList &arguments)
{
    return QProcess::startDetached(program, arguments);
}

} // namespace morvane
