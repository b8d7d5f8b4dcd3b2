#include "timeline/ModelSupport.h"
#include "timeline/PlainTimeline.h"

#include <QRandomGenerator>

namespace {

QVariantMap shownBy(const FramesModel &model, int row)
{
    QVariantMap map = model.get(row, false);
    map.remove("prevGuid");
    return map;
}

/// Makes the same random edit on both.
class Editor
{
public:
    Editor(TestModel &model, PlainTimeline &plain, quint32 seed)
        : m_model(model), m_plain(plain), m_random(seed)
    {
    }

    QString edit()
    {
        switch (below(11)) {
            case 0:
            case 1:
                return append();
            case 2:
                return modify();
            case 3:
            case 4:
                return move();
            case 5:
                return remove();
            case 6:
                return duplicate();
            case 7:
                return mirror();
            case 8:
                return hide();
            default:
                return undoOrRedo();
        }
    }

private:
    int below(int limit)
    {
        return int(m_random.bounded(limit));
    }
    /// Mostly a row, sometimes a little outside.
    int row()
    {
        return below(m_plain.count() + 3) - 1;
    }
    QVariantMap values()
    {
        QVariantMap map;
        const auto name = [this](const QString &kind) {
            const int number = below(6);
            return number == 0 ? QString() : kind + QString::number(number);
        };
        for (const QString key : {"capFull", "capTumb", "refFull", "refTumb"})
            if (below(2))
                map.insert(key, name(key));
        for (const QString key : {"mirrored", "hidden", "ingroup", "capfullmiss", "reffullmiss"})
            if (below(4) == 0)
                map.insert(key, below(2) == 1);
        for (const QString key : {"phase", "static"})
            if (below(4) == 0)
                map.insert(key, below(3));
        if (below(8) == 0)
            map.insert("guid", 10000000 + below(200));
        return map;
    }
    QString append()
    {
        const QVariantMap map = values();
        const int at = row();
        m_model.appendFrame(map, false, at);
        m_plain.append(map, at, true);
        return QStringLiteral("append at %1").arg(at);
    }
    QString modify()
    {
        const QVariantMap map = values();
        const int at = row();
        m_model.modifyFrame(map, at);
        m_plain.modify(map, at, true);
        return QStringLiteral("modify %1").arg(at);
    }
    QString move()
    {
        const int from = row();
        const int to = row();
        m_model.moveSingleFrame(from, to);
        m_plain.move(from, to, true);
        return QStringLiteral("move %1 behind %2").arg(from).arg(to);
    }
    QString remove()
    {
        const int at = below(m_plain.count() + 1);
        m_model.removeSingleFrame(at);
        m_plain.remove(at, true);
        return QStringLiteral("remove %1").arg(at);
    }
    QString duplicate()
    {
        const int from = row();
        const int behind = row();
        const int copies = below(4);
        const bool replaces = below(2) == 1;
        m_model.duplicateSingleFrame(from, replaces ? Zum::CaptureModeReplace : Zum::CaptureModeAppend,
                                     behind, false, copies);
        m_plain.duplicate(from, replaces, behind, copies);
        return QStringLiteral("duplicate %1 behind %2, %3 times").arg(from).arg(behind).arg(copies);
    }
    QString mirror()
    {
        const int at = row();
        m_model.switchMirroredOnSingleFrame(at, false);
        m_plain.mirror(at);
        return QStringLiteral("mirror %1").arg(at);
    }
    QString hide()
    {
        const int at = below(m_plain.count() + 1);
        if (at < m_plain.count()) {
            const bool hidden = !m_plain.frames.at(at).value("hidden").toBool();
            m_model.setValue(at, Zum::Hidden, hidden);
            m_plain.modify({{"hidden", hidden}}, at, false);
        }
        return QStringLiteral("hide %1").arg(at);
    }
    QString undoOrRedo()
    {
        const bool undoes = below(2) == 1;
        QString said;
        // Now and then all the way to an end and a step beyond it.
        const int times = below(12) == 0 ? 310 : 1 + below(4);
        for (int i = 0; i < times; ++i) {
            if (undoes) {
                m_model.undo();
                m_plain.undo();
            } else {
                m_model.redo();
                m_plain.redo();
            }
        }
        return QStringLiteral("%1 %2 times").arg(undoes ? "undo" : "redo").arg(times);
    }

    TestModel &m_model;
    PlainTimeline &m_plain;
    QRandomGenerator m_random;
};

} // namespace

class tst_RandomEdits : public QObject
{
    Q_OBJECT

private slots:
    void leaveTheSameFramesAsAPlainList_data();
    void leaveTheSameFramesAsAPlainList();
};

void tst_RandomEdits::leaveTheSameFramesAsAPlainList_data()
{
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("edits");
    QTest::newRow("from nothing") << 0 << 700;
    QTest::newRow("a short film") << 30 << 700;
    QTest::newRow("several blocks of rows") << 900 << 80;
}

void tst_RandomEdits::leaveTheSameFramesAsAPlainList()
{
    QFETCH(int, frames);
    QFETCH(int, edits);
    const quint32 seed = qEnvironmentVariableIsSet("MORVANE_TEST_SEED")
                             ? qEnvironmentVariable("MORVANE_TEST_SEED").toUInt()
                             : QRandomGenerator::global()->generate();
    qInfo("seed %u (MORVANE_TEST_SEED repeats it)", seed);
    const LogLines quiet;
    TestModel model(0);
    PlainTimeline plain;
    for (int i = 0; i < frames; ++i) {
        const QVariantMap map{{"capFull", QString::number(i)}};
        model.appendFrame(map);
        plain.append(map, -1, true);
    }
    Editor editor(model, plain, seed);
    for (int i = 0; i < edits; ++i) {
        const QByteArray what = editor.edit().toUtf8();
        QVERIFY2(model.undoCount() == plain.records.size(), what.constData());
        QVERIFY2(model.undoCurrent() == plain.cursor, what.constData());
        QVERIFY2(model.framesCount() == plain.count(), what.constData());
        for (int row = 0; row < plain.count(); ++row)
            QVERIFY2(model.guidAt(row) == plain.guidAt(row), what.constData());
        const bool looksClosely = i % 10 == 0 || i + 1 == edits;
        for (int row = 0; looksClosely && row < plain.count(); ++row)
            QVERIFY2(shownBy(model, row) == plain.frames.at(row), what.constData());
    }
}

QTEST_GUILESS_MAIN(tst_RandomEdits)
#include "tst_randomedits.moc"
