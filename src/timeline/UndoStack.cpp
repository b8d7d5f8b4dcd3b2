#include "timeline/UndoStack.h"

#include "timeline/Frame.h"

#include "shared/Zum.h"

#include <QDebug>

namespace {

const QString undoSection = QStringLiteral("undo");
const QString redoSection = QStringLiteral("redo");

bool hasGuid(const QVariantMap &snapshot)
{
    if (snapshot.contains(morvane::frameKey(Zum::GUID)))
        return true;
    qDebug().noquote() << QStringLiteral("Error. Frame has no guid. Current action = %1")
                              .arg(snapshot.value(morvane::frameKey(Zum::UndoAction)).toInt());
    return false;
}

/// Stands for a number that could not be read; no action, GUID or missing neighbour has this value.
constexpr int unreadable = -7;

int readNumber(const QVariantMap &section, int role)
{
    bool ok = false;
    const int number = morvane::toInteger(section.value(morvane::frameKey(role)), &ok);
    return ok ? number : unreadable;
}

} // namespace

void UndoStack::writeUndo(const QVariantMap &snapshot)
{
    if (!hasGuid(snapshot))
        return;
    if (m_current < qMax(last(), 0)) {
        m_records.resize(qBound(0, m_current + 1, count()));
        emit countChanged();
    }
    m_records.append(QVariantMap{{undoSection, snapshot}});
    if (count() > capacity)
        m_records.removeFirst();
    emit countChanged();
    m_current = qMax(last(), 0);
    emit currentChanged();
}

void UndoStack::writeRedo(const QVariantMap &snapshot)
{
    if (hasGuid(snapshot) && !m_records.isEmpty())
        m_records.last().insert(redoSection, snapshot);
}

void UndoStack::clear()
{
    m_records.clear();
    emit countChanged();
}

void UndoStack::aimAtUndo()
{
    setCurrent(qMin(m_current, last()));
}

void UndoStack::aimAtRedo()
{
    setCurrent(qMax(m_current, 0));
}

void UndoStack::passUndone()
{
    m_current = qMax(m_current - 1, -1);
    emit currentChanged();
}

void UndoStack::passRedone()
{
    ++m_current;
    emit currentChanged();
}

UndoStack::Entry UndoStack::entry(const QString &sectionName) const
{
    if (m_current < 0 || m_current >= count()) {
        qDebug("Undo not allowed");
        return {};
    }
    const QVariantMap &record = m_records.at(m_current);
    if (!record.contains(sectionName)) {
        qDebug().noquote() << QStringLiteral("Error: %1 section not found").arg(sectionName);
        return {};
    }
    Entry entry;
    entry.section = record.value(sectionName).toMap();
    if (!entry.section.contains(morvane::frameKey(Zum::UndoAction))) {
        qDebug("Error: Undo object has no undo type");
        return {};
    }
    if (!entry.section.contains(morvane::frameKey(Zum::GUID))) {
        qDebug("Error: Undo object has no guid");
        return {};
    }
    entry.action = readNumber(entry.section, Zum::UndoAction);
    entry.guid = readNumber(entry.section, Zum::GUID);
    entry.previousGuid = readNumber(entry.section, Zum::PrevGUID);
    entry.valid = entry.action != unreadable && entry.guid != unreadable && entry.previousGuid != unreadable;
    if (!entry.valid)
        qDebug("Error converting variant to int");
    return entry;
}

void UndoStack::setCurrent(int current)
{
    if (current == m_current)
        return;
    m_current = current;
    emit currentChanged();
}
