#include "RandomProject.h"

#include "project/ProjectFields.h"
#include "project/WebpDefaults.h"

using namespace Qt::StringLiterals;
using namespace morvane::fields;

namespace {

class RandomFiller
{
public:
    explicit RandomFiller(QRandomGenerator &random) : m_random(random)
    {
    }

    void operator()(const char *, std::optional<bool> &value)
    {
        value = m_random.bounded(2) == 1;
    }
    void operator()(const char *, std::optional<int> &value, const IntegerRule &rule)
    {
        const auto span = static_cast<double>(rule.highest) - rule.lowest;
        value = static_cast<int>(rule.lowest + m_random.generateDouble() * span);
    }
    void operator()(const char *, std::optional<double> &value, const RealRule &rule)
    {
        value = rule.lowest + m_random.generateDouble() * (rule.highest - rule.lowest);
    }
    void operator()(const char *, std::optional<QString> &value, const TextRule &rule)
    {
        value = rule.kind == TextRule::Kind::ProfilePath ? u"/usr/share/profile.icc"_s
                : rule.kind == TextRule::Kind::FileName  ? fileName()
                                                         : text();
    }

    QString fileName()
    {
        return u"frame_norm_%1_<&'\"> ж %2.jpg"_s.arg(m_random.bounded(1000000), 6, 10, QChar(u'0'))
            .arg(m_random.generate());
    }

    QString text()
    {
        static const QString letters = u"abc XYZ 019 <>&\"'\t\n;:=()[]{}Жя€漢\U0001F3AC"_s;
        QString text;
        const int length = m_random.bounded(40);
        for (int i = 0; i < length; ++i) {
            const QChar letter = letters.at(m_random.bounded(letters.size()));
            if (!letter.isSurrogate())
                text += letter;
        }
        return m_random.bounded(3) == 0 ? text + u"\U0001F3AC"_s : text;
    }

private:
    QRandomGenerator &m_random;
};

ProjectFrame randomFrame(QRandomGenerator &random, RandomFiller &fill)
{
    const auto name = [&] {
        return random.bounded(4) == 0 ? QString() : fill.fileName();
    };
    ProjectFrame frame;
    frame.capTumb = name();
    frame.capFull = name();
    frame.refTumb = name();
    frame.refFull = name();
    frame.staticState = random.bounded(-1, 3);
    frame.phase = random.bounded(2) == 0 ? 0 : random.bounded(1000000);
    frame.mirrored = random.bounded(2) == 1;
    frame.hidden = random.bounded(2) == 1;
    return frame;
}

} // namespace

ProjectDocument randomProject(quint32 seed, int frames)
{
    QRandomGenerator random(seed);
    RandomFiller fill(random);
    ProjectDocument document;
    visitBackground(document.background.emplace(), fill);
    document.videoEffectsString = fill.text();
    document.animation.emplace();
    for (const morvane::WebpSetting &setting : morvane::webpSettingDefaults)
        document.animation->insert(setting.key, random.bounded(setting.lowest, setting.highest + 1));
    visitFrameSettings(document.frameSettings.emplace(), fill);
    visitCamera(document.camera.emplace(), fill, fill);
    visitPath(document.path.emplace(), fill);
    visitRender(document.render.emplace(), fill);
    visitInfo(document.info.emplace(), fill);
    document.filters = ProjectDocument::Filters{random.bounded(3),
                                                {{u"contrast"_s, QString::number(random.bounded(40))},
                                                 {u"denoise"_s, QString::number(random.bounded(100))},
                                                 {u"saturation"_s, QString::number(random.bounded(100))},
                                                 {u"chromakey"_s, u"0.3;0.1;#00ff01"_s}}};
    for (int i = 0; i < frames; ++i)
        document.frames.append(randomFrame(random, fill));
    return document;
}
