#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVariantMap>

/// One frame of the timeline. Files are bare names relative to the project's folders.
///
/// Two frames are the same frame when their GUIDs are equal; nothing else is compared.
struct Frame
{
    static constexpr int noGuid = -1;
    static constexpr int firstGuid = 10000000;
    static constexpr int lastGuid = 99999999;
    /// Hold markers: a frame of its own, or the first, an inner or the last frame of a hold.
    static constexpr int notHeld = -1;
    static constexpr int holdFirst = 0;
    static constexpr int holdInside = 1;
    static constexpr int holdLast = 2;

    /// Neither played nor exported.
    bool hidden = false;
    /// Belongs to the selection.
    bool ingroup = false;
    bool mirrored = false;
    bool gotCapImg = false;
    bool gotRefImg = false;
    /// The file is not on disk, or there is no name.
    bool capfullmiss = false;
    bool reffullmiss = false;
    int phase = 0;
    int staticState = notHeld;
    QString capFull;
    QString capTumb;
    QString refFull;
    QString refTumb;

    /// Identity, stable across moves and saves; noGuid until one is given.
    int guid() const
    {
        return m_guid;
    }
    /// Keeps the old value and answers false when the new one is not a GUID.
    bool setGuid(int guid);
    static bool isGuid(int value)
    {
        return value >= firstGuid && value <= lastGuid;
    }

    bool operator==(const Frame &other) const
    {
        return m_guid == other.m_guid;
    }

    /// Store a name together with the two flags that follow from it.
    void setCapFull(const QString &name);
    void setRefFull(const QString &name);

    /// The value of a Zum::MorvaRoles role; invalid for a role that no frame serves.
    QVariant value(int role) const;
    /// What became of a value offered for a role.
    enum class Write {
        NoSuchRole,
        Ignored,
        Stored,
    };
    /// Takes the value only when it is of the role's kind; a number that does not fit is logged.
    /// Zum::GUID is not among the roles written here: the list that indexes the frames does it.
    Write setValue(int role, const QVariant &value);

    /// The frame map of this frame standing behind the frame with previousGuid. The full form also holds
    /// "phase", "ingroup" and "static".
    QVariantMap toMap(int previousGuid, bool compact) const;
    /// The map of no frame.
    static QVariantMap emptyMap();
    /// A frame with everything but the GUID taken from a frame map.
    static Frame fromMap(const QVariantMap &map);

private:
    int m_guid = noGuid;
};

namespace morvane {

/// Role names by Zum::MorvaRoles; they are also the keys of frame maps.
const QHash<int, QByteArray> &frameRoleNames();
/// The same as text, empty when the role has no name.
QString frameKey(int role);

/// Whether a variant holds a whole number of any width.
bool holdsInteger(const QVariant &value);
/// The number as an int; ok is false when the variant holds no whole number or one too large.
int toInteger(const QVariant &value, bool *ok);

/// Reads from a frame map that came from outside. A missing key gives an invalid variant; a value of another
/// type gives false, an empty string or -1.
QVariant readBool(const QVariantMap &map, const QString &key);
QVariant readString(const QVariantMap &map, const QString &key);
QVariant readInt(const QVariantMap &map, const QString &key);

} // namespace morvane
