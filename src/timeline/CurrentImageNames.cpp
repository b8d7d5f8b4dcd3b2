#include "timeline/CurrentImageNames.h"

#include <mutex>

namespace {

struct Names
{
    std::mutex mutex;
    QString captured;
    QString reference;
};

Names &names()
{
    static Names instance;
    return instance;
}

QString read(QString Names::*name)
{
    const std::lock_guard lock(names().mutex);
    return names().*name;
}

void write(QString Names::*name, const QString &value)
{
    const std::lock_guard lock(names().mutex);
    names().*name = value;
}

} // namespace

QString CurrentImageNames::captured()
{
    return read(&Names::captured);
}

QString CurrentImageNames::reference()
{
    return read(&Names::reference);
}

void CurrentImageNames::setCaptured(const QString &name)
{
    write(&Names::captured, name);
}

void CurrentImageNames::setReference(const QString &name)
{
    write(&Names::reference, name);
}
