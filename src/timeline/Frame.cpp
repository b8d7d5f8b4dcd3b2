#include "timeline/Frame.h"

#include "shared/Zum.h"

#include <limits>
#include <QDebug>

using morvane::frameKey;

namespace {

bool isString(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

Frame::Write storeBool(bool &field, const QVariant &value)
{
    if (value.typeId() != QMetaType::Bool)
        return Frame::Write::Ignored;
    field = value.toBool();
    return Frame::Write::Stored;
}

Frame::Write storeString(QString &field, const QVariant &value)
{
    if (!isString(value))
        return Frame::Write::Ignored;
    field = value.toString();
    return Frame::Write::Stored;
}

} // namespace

bool Frame::setGuid(int guid)
{
    if (!isGuid(guid))
        return false;
    m_guid = guid;
    return true;
}

void Frame::setCapFull(const QString &name)
{
    capFull = name;
    gotCapImg = !name.isEmpty();
    capfullmiss = name.isEmpty();
}

void Frame::setRefFull(const QString &name)
{
    refFull = name;
    gotRefImg = !name.isEmpty();
    reffullmiss = name.isEmpty();
}

QVariant Frame::value(int role) const
{
    switch (role) {
        case Zum::Ingroup:
            return ingroup;
        case Zum::CapFull:
            return capFull;
        case Zum::CapTumb:
            return capTumb;
        case Zum::RefFull:
            return refFull;
        case Zum::RefTumb:
            return refTumb;
        case Zum::StaticState:
            return staticState;
        case Zum::PhaseNumber:
            return phase;
        case Zum::GUID:
            return m_guid;
        case Zum::GotCapImage:
            return gotCapImg;
        case Zum::GotRefImage:
            return gotRefImg;
        case Zum::Mirrored:
            return mirrored;
        case Zum::CapFullMissing:
            return capfullmiss;
        case Zum::RefFullMissing:
            return reffullmiss;
        case Zum::Hidden:
            return hidden;
        default:
            return {};
    }
}

Frame::Write Frame::setValue(int role, const QVariant &value)
{
    bool ok = false;
    switch (role) {
        case Zum::CapFull:
            if (isString(value))
                setCapFull(value.toString());
            return isString(value) ? Write::Stored : Write::Ignored;
        case Zum::RefFull:
            if (isString(value))
                setRefFull(value.toString());
            return isString(value) ? Write::Stored : Write::Ignored;
        case Zum::CapTumb:
            return storeString(capTumb, value);
        case Zum::RefTumb:
            return storeString(refTumb, value);
        case Zum::Hidden:
            return storeBool(hidden, value);
        case Zum::Ingroup:
            return storeBool(ingroup, value);
        case Zum::Mirrored:
            return storeBool(mirrored, value);
        case Zum::CapFullMissing:
            return storeBool(capfullmiss, value);
        case Zum::RefFullMissing:
            return storeBool(reffullmiss, value);
        case Zum::StaticState:
            if (!morvane::holdsInteger(value))
                return Write::Ignored;
            staticState = morvane::toInteger(value, &ok);
            if (!ok) {
                staticState = notHeld;
                qDebug("setData: Error decoding Static number");
            }
            return Write::Stored;
        case Zum::PhaseNumber: {
            if (!morvane::holdsInteger(value))
                return Write::Ignored;
            const int number = morvane::toInteger(value, &ok);
            if (ok)
                phase = number;
            else
                qDebug("setData: Error decoding Phase number");
            return ok ? Write::Stored : Write::Ignored;
        }
        default:
            return Write::NoSuchRole;
    }
}

QVariantMap Frame::toMap(int previousGuid, bool compact) const
{
    QVariantMap map;
    for (const int role :
         {Zum::GotCapImage, Zum::GotRefImage, Zum::CapFull, Zum::CapTumb, Zum::RefFull, Zum::RefTumb,
          Zum::GUID, Zum::Mirrored, Zum::RefFullMissing, Zum::CapFullMissing, Zum::Hidden})
        map.insert(frameKey(role), value(role));
    map.insert(frameKey(Zum::PrevGUID), previousGuid);
    if (!compact)
        for (const int role : {Zum::PhaseNumber, Zum::Ingroup, Zum::StaticState})
            map.insert(frameKey(role), value(role));
    return map;
}

QVariantMap Frame::emptyMap()
{
    QVariantMap map;
    for (const int role : {Zum::CapFull, Zum::CapTumb, Zum::RefFull, Zum::RefTumb})
        map.insert(frameKey(role), QString());
    for (const int role : {Zum::GUID, Zum::PrevGUID, Zum::PhaseNumber, Zum::StaticState})
        map.insert(frameKey(role), -1);
    for (const int role : {Zum::Mirrored, Zum::Ingroup, Zum::Hidden})
        map.insert(frameKey(role), false);
    return map;
}

Frame Frame::fromMap(const QVariantMap &map)
{
    const auto text = [&map](int role) {
        return morvane::readString(map, frameKey(role)).toString();
    };
    const auto flag = [&map](int role) {
        return morvane::readBool(map, frameKey(role)).toBool();
    };
    Frame frame;
    frame.capTumb = text(Zum::CapTumb);
    frame.setCapFull(text(Zum::CapFull));
    frame.refTumb = text(Zum::RefTumb);
    frame.setRefFull(text(Zum::RefFull));
    frame.hidden = flag(Zum::Hidden);
    frame.ingroup = flag(Zum::Ingroup);
    frame.mirrored = flag(Zum::Mirrored);
    const QVariant hold = morvane::readInt(map, frameKey(Zum::StaticState));
    frame.staticState = hold.isValid() ? hold.toInt() : notHeld;
    frame.phase = morvane::readInt(map, frameKey(Zum::PhaseNumber)).toInt();
    return frame;
}

namespace morvane {

const QHash<int, QByteArray> &frameRoleNames()
{
    static const QHash<int, QByteArray> names{
        {Zum::FrameIndex, "frameIndx"},
        {Zum::KudaGUID, "cudaGuid"},
        {Zum::KudaNextGUID, "cudaNextGuid"},
        {Zum::KudaPrevGUID, "cudaPrevGuid"},
        {Zum::UndoAction, "undoAct"},
        {Zum::Ingroup, "ingroup"},
        {Zum::CapFull, "capFull"},
        {Zum::CapTumb, "capTumb"},
        {Zum::RefFull, "refFull"},
        {Zum::RefTumb, "refTumb"},
        {Zum::StaticState, "static"},
        {Zum::PhaseNumber, "phase"},
        {Zum::GUID, "guid"},
        {Zum::NextGUID, "nextGuid"},
        {Zum::PrevGUID, "prevGuid"},
        {Zum::GotCapImage, "gotCapImg"},
        {Zum::GotRefImage, "gotRefImg"},
        {Zum::Mirrored, "mirrored"},
        {Zum::CapFullMissing, "capfullmiss"},
        {Zum::RefFullMissing, "reffullmiss"},
        {Zum::Hidden, "hidden"},
    };
    return names;
}

QString frameKey(int role)
{
    // Frame maps are built thousands at a time: the keys are shared, not decoded anew.
    static const QHash<int, QString> keys = [] {
        QHash<int, QString> texts;
        for (auto name = frameRoleNames().cbegin(); name != frameRoleNames().cend(); ++name)
            texts.insert(name.key(), QString::fromLatin1(name.value()));
        return texts;
    }();
    return keys.value(role);
}

bool holdsInteger(const QVariant &value)
{
    switch (value.typeId()) {
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
            return true;
        default:
            return false;
    }
}

int toInteger(const QVariant &value, bool *ok)
{
    *ok = false;
    if (!holdsInteger(value))
        return -1;
    constexpr qlonglong smallest = std::numeric_limits<int>::min();
    constexpr qlonglong largest = std::numeric_limits<int>::max();
    if (value.typeId() == QMetaType::ULongLong && value.toULongLong() > qulonglong(largest))
        return -1;
    const qlonglong number = value.toLongLong();
    if (number < smallest || number > largest)
        return -1;
    *ok = true;
    return int(number);
}

QVariant readBool(const QVariantMap &map, const QString &key)
{
    const auto entry = map.constFind(key);
    if (entry == map.cend())
        return {};
    return entry->typeId() == QMetaType::Bool && entry->toBool();
}

QVariant readString(const QVariantMap &map, const QString &key)
{
    const auto entry = map.constFind(key);
    if (entry == map.cend())
        return {};
    return isString(*entry) ? entry->toString() : QString();
}

QVariant readInt(const QVariantMap &map, const QString &key)
{
    const auto entry = map.constFind(key);
    if (entry == map.cend())
        return {};
    bool ok = false;
    const int number = toInteger(*entry, &ok);
    return ok ? number : -1;
}

} // namespace morvane
