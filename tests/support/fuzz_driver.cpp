#include <cstdio>
#include <QByteArrayList>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);

namespace {

QByteArray mutated(QByteArray bytes, const QByteArrayList &samples, QRandomGenerator &random)
{
    static const QByteArrayList pieces{"<",       ">",     "\"", "&",          "&lt;",     "&#0;",
                                       "<Frame ", "/>",    "..", "../../",     "]]>",      "<!",
                                       "nan",     "1e999", "-1", "\xff\xfe",   "0",        "\0",
                                       "<!--a",   "<?a",   "/",  "4294967296", "<![CDATA["};
    const int changes = 1 + random.bounded(6);
    for (int i = 0; i < changes && !bytes.isEmpty(); ++i) {
        const qsizetype at = random.bounded(bytes.size());
        const qsizetype length = random.bounded(qsizetype(1), qsizetype(64));
        switch (random.bounded(6)) {
            case 0:
                bytes[at] = static_cast<char>(random.bounded(256));
                break;
            case 1:
                bytes.remove(at, length);
                break;
            case 2:
                bytes.insert(at, pieces.at(random.bounded(pieces.size())));
                break;
            case 3:
                bytes.insert(at, bytes.mid(random.bounded(bytes.size()), length * 8));
                break;
            case 4:
                bytes.truncate(at);
                break;
            default: {
                const QByteArray &other = samples.at(random.bounded(samples.size()));
                bytes.replace(at, length, other.mid(random.bounded(other.size()), length * 4));
            }
        }
    }
    return bytes;
}

int run(const QByteArray &bytes)
{
    return LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char *>(bytes.constData()),
                                  static_cast<std::size_t>(bytes.size()));
}

} // namespace

// fuzz_project_reader RUNS SEED FOLDER: the same runs for the same seed.
int main(int argc, char **argv)
{
    if (argc < 4)
        return 2;
    const int runs = QByteArray(argv[1]).toInt();
    const quint32 seed = QByteArray(argv[2]).toUInt();
    const QDir folder(QString::fromLocal8Bit(argv[3]));
    QByteArrayList samples;
    for (const QString &name : folder.entryList(QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            samples.append(file.readAll());
    }
    if (samples.isEmpty())
        return 1;
    std::printf("seed %u, %d runs over %d samples\n", seed, runs, static_cast<int>(samples.size()));
    QRandomGenerator random(seed);
    for (const QByteArray &sample : samples)
        run(sample);
    for (int i = 0; i < runs; ++i)
        run(mutated(samples.at(random.bounded(samples.size())), samples, random));
    return 0;
}
