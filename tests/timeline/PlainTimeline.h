#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

/// The timeline told again the plain way, to compare the model with: frames are maps in a list, a lookup is a
/// pass over it, and an undo record is two maps. Shares no code with the model.
class PlainTimeline
{
public:
    struct Record
    {
        QString action;
        QVariantMap undo;
        QVariantMap redo;
    };

    QList<QVariantMap> frames;
    QList<Record> records;
    int cursor = 0;

    static QVariantMap newFrame()
    {
        return {{"capFull", ""},     {"capTumb", ""},       {"refFull", ""},       {"refTumb", ""},
                {"mirrored", false}, {"hidden", false},     {"ingroup", false},    {"phase", 0},
                {"static", -1},      {"capfullmiss", true}, {"reffullmiss", true}, {"gotCapImg", false},
                {"gotRefImg", false}};
    }

    void append(const QVariantMap &map, int insertIndex, bool stored)
    {
        int row = stored && insertIndex >= 0 ? insertIndex + 1 : insertIndex;
        if (row < 0 || row >= count())
            row = count();
        QVariantMap frame = newFrame();
        for (const QString key :
             {"capFull", "capTumb", "refFull", "refTumb", "mirrored", "hidden", "ingroup", "phase", "static"})
            if (map.contains(key))
                write(frame, key, map.value(key));
        frame["guid"] = m_counter++;
        if (map.contains("guid") && rowOf(map.value("guid").toInt()) < 0 && isGuid(map.value("guid").toInt()))
            frame["guid"] = map.value("guid");
        frames.insert(row, frame);
        if (stored) {
            writeUndo("insert", row);
            writeRedo(row);
        }
    }

    void modify(const QVariantMap &map, int row, bool stored)
    {
        if (!isRow(row))
            return;
        if (stored)
            writeUndo("modify", row);
        for (const QString key : {"ingroup", "capFull", "capTumb", "refFull", "refTumb", "mirrored", "static",
                                  "phase", "capfullmiss", "reffullmiss", "hidden"})
            if (map.contains(key))
                write(frames[row], key, map.value(key));
        if (stored)
            writeRedo(row);
    }

    void move(int from, int to, bool stored)
    {
        const int target = to < from ? to + 1 : to;
        if (from == target || !isRow(from) || !isRow(target))
            return;
        if (stored) {
            writeUndo("move", from, target);
            writeRedo(from, target);
        }
        frames.move(from, target);
    }

    void remove(int row, bool stored)
    {
        if (!isRow(row))
            return;
        if (stored) {
            writeUndo("remove", row);
            writeRedo(row);
        }
        frames.removeAt(row);
    }

    void duplicate(int from, bool replaces, int behind, int copies)
    {
        if (!isRow(from))
            return;
        QVariantMap copy = frames.at(from);
        for (const QString key : {"phase", "static", "ingroup"})
            copy.remove(key);
        if (!isRow(behind))
            behind = from;
        for (int i = 0; i < copies; ++i) {
            if (replaces)
                modify(copy, behind + 1 + i, true);
            else
                append(copy, behind, true);
        }
    }

    void mirror(int row)
    {
        if (isRow(row))
            modify({{"mirrored", !frames.at(row).value("mirrored").toBool()}}, row, true);
    }

    void undo()
    {
        cursor = qMin(cursor, int(records.size()) - 1);
        if (cursor < 0 || cursor >= records.size())
            return;
        const Record record = records.at(cursor);
        const int row = rowOf(record.undo.value("guid").toInt());
        const int previous = rowOf(record.undo.value("prevGuid").toInt());
        const int at = previous >= count() - 1 ? -1 : previous + 1;
        if (record.action == "modify")
            modify(record.undo, row, false);
        else if (record.action == "remove")
            append(record.undo, at, false);
        else if (record.action == "insert")
            remove(row, false);
        else
            move(row, at - 1, false);
        cursor = qMax(cursor - 1, -1);
    }

    void redo()
    {
        cursor = qMax(cursor, 0);
        if (cursor >= records.size())
            return;
        const Record record = records.at(cursor);
        const int row = rowOf(record.redo.value("guid").toInt());
        const int previous = rowOf(record.redo.value("prevGuid").toInt());
        const int at = previous >= count() - 1 ? -1 : previous + 1;
        if (record.action == "modify") {
            modify(record.redo, row, false);
        } else if (record.action == "remove") {
            remove(row, false);
        } else if (record.action == "insert") {
            append(record.redo, at, false);
        } else {
            int to = rowOf(record.redo.value("cudaPrevGuid").toInt());
            if (to >= count() - 1)
                to = -1;
            move(row, to, false);
        }
        ++cursor;
    }

    int count() const
    {
        return int(frames.size());
    }

    int guidAt(int row) const
    {
        return isRow(row) ? frames.at(row).value("guid").toInt() : -1;
    }

private:
    static bool isGuid(int guid)
    {
        return guid >= 10000000 && guid <= 99999999;
    }
    bool isRow(int row) const
    {
        return row >= 0 && row < count();
    }
    int rowOf(int guid)
    {
        if (isGuid(guid))
            m_probe = guid;
        for (int row = 0; row < count(); ++row)
            if (guidAt(row) == m_probe)
                return row;
        return -1;
    }
    static void write(QVariantMap &frame, const QString &key, const QVariant &value)
    {
        frame[key] = value;
        if (key == "capFull") {
            frame["gotCapImg"] = !value.toString().isEmpty();
            frame["capfullmiss"] = value.toString().isEmpty();
        } else if (key == "refFull") {
            frame["gotRefImg"] = !value.toString().isEmpty();
            frame["reffullmiss"] = value.toString().isEmpty();
        }
    }
    QVariantMap snapshot(int row, int target) const
    {
        QVariantMap map = frames.at(row);
        map["prevGuid"] = guidAt(row - 1);
        map["ingroup"] = false;
        map["cudaPrevGuid"] = target < 0 ? -1 : guidAt(target - 1);
        return map;
    }
    void writeUndo(const QString &action, int row, int target = -1)
    {
        while (records.size() > cursor + 1)
            records.removeLast();
        records.append({action, snapshot(row, target), {}});
        if (records.size() > 300)
            records.removeFirst();
        cursor = int(records.size()) - 1;
    }
    void writeRedo(int row, int target = -1)
    {
        records.last().redo = snapshot(row, target);
    }

    int m_counter = 10000000;
    int m_probe = -1;
};
