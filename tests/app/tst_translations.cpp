#include "app/Translations.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {

/// A text of the program with its translation, as a .ts file has it.
struct Text
{
    QString source;
    QString comment;
    /// More than one where the translation follows a number.
    QStringList forms;
    /// Empty, "unfinished", "obsolete" or "vanished".
    QString state;
    bool counted = false;

    QString key() const
    {
        return source + QLatin1Char('\x02') + comment + (counted ? QStringLiteral("\x02%n") : QString());
    }
};

using Contexts = QMap<QString, QList<Text>>;

Text readMessage(QXmlStreamReader &xml)
{
    Text text;
    text.counted = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            text.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            text.state = xml.attributes().value(QLatin1String("type")).toString();
            if (!text.counted) {
                text.forms.append(xml.readElementText());
                continue;
            }
            while (xml.readNextStartElement())
                text.forms.append(xml.readElementText());
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

Contexts readTexts(const QString &path)
{
    Contexts contexts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return contexts;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            contexts[context].append(readMessage(xml));
    }
    return contexts;
}

QStringList matches(const QString &text, const QString &pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator it = QRegularExpression(pattern).globalMatch(text);
    while (it.hasNext())
        found.append(it.next().captured());
    found.sort();
    return found;
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyFileBearsAListedName();
    void everyContextHasItsOneFile();
    void theTableOfContextsHasNothingNeedless();
    void everyTextIsTranslated();
    void noTextIsLeftFromFormerVersions();
    void translationsKeepPlaceholdersShortcutsAndEnds();
    void translationsAreRussian();
    void countedTextsHaveThreeForms();
    void updatingFindsTheFilesUpToDate();
    void updatingKeepsWhatIsTranslatedAndDropsWhatIsGone();

    void everyTranslationReachesTheProgram();
    void russianIsSpokenAsLongAsItsOwnerLives();
    void countedTextsFollowTheNumber();
    void theToolkitsButtonsSpeakRussianToo();
    void aLanguageWithoutFilesIsSilentEnglish();

private:
    /// The file that the texts of a context belong to; empty when nobody said so.
    QString fileOf(const QString &context) const;
    bool update(const QString &folder, QString *report = nullptr) const;
    /// Calls `check` with each committed text and gathers what it says, as "file, context, text: ...".
    template <typename Check>
    QStringList complaints(Check check) const;

    const QString m_folder = QStringLiteral(MORVANE_SOURCE_DIR "/qml/translation");
    const QString m_ending = QStringLiteral(".ru_RU.ts");
    /// What the program's sources hold now.
    Contexts m_sources;
    /// By name of the file.
    QMap<QString, Contexts> m_files;
    QMap<QString, QString> m_table;
};

void TestTranslations::initTestCase()
{
    QTemporaryDir folder;
    const QString fresh = folder.filePath(QStringLiteral("fresh.ts"));
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(MORVANE_SOURCE_DIR));
    lupdate.start(QStringLiteral(LUPDATE), {"-silent", "-locations", "none", "src", "qml", "-ts", fresh});
    QVERIFY2(lupdate.waitForFinished(), qPrintable(lupdate.errorString()));
    QCOMPARE(lupdate.readAllStandardError(), QByteArray());
    m_sources = readTexts(fresh);
    QVERIFY(!m_sources.isEmpty());

    const QStringList names = QDir(m_folder).entryList({QLatin1Char('*') + m_ending}, QDir::Files);
    for (const QString &name : names)
        m_files.insert(name.chopped(m_ending.size()), readTexts(m_folder + QLatin1Char('/') + name));
    QVERIFY(!m_files.isEmpty());

    QFile table(m_folder + QStringLiteral("/contexts.txt"));
    QVERIFY(table.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(table.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList words = line.simplified().split(QLatin1Char(' '));
        QVERIFY2(words.size() == 2, qPrintable(line));
        QVERIFY2(!m_table.contains(words[0]), qPrintable(line));
        m_table.insert(words[0], words[1]);
    }
}

QString TestTranslations::fileOf(const QString &context) const
{
    return translations::names().contains(context) ? context : m_table.value(context);
}

bool TestTranslations::update(const QString &folder, QString *report) const
{
    QProcess script;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_TOOLS"), QFileInfo(QStringLiteral(LUPDATE)).path());
    script.setProcessEnvironment(environment);
    script.start(m_folder + QStringLiteral("/update"), {folder});
    const bool good = script.waitForFinished() && script.exitCode() == 0;
    if (report != nullptr)
        *report = QString::fromUtf8(script.readAllStandardOutput());
    return good;
}

template <typename Check>
QStringList TestTranslations::complaints(Check check) const
{
    QStringList all;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        for (auto context = file->cbegin(); context != file->cend(); ++context) {
            for (const Text &text : *context) {
                const QString complaint = check(context.key(), text);
                if (!complaint.isEmpty())
                    all.append(QStringLiteral("%1, %2, \"%3\": %4")
                                   .arg(file.key(), context.key(), text.source, complaint));
            }
        }
    }
    return all;
}

void TestTranslations::everyFileBearsAListedName()
{
    const QStringList files = m_files.keys();
    for (const QString &name : files)
        QVERIFY2(translations::names().contains(name), qPrintable(name + " is never loaded"));
}

void TestTranslations::everyContextHasItsOneFile()
{
    const QStringList contexts = m_sources.keys();
    for (const QString &context : contexts) {
        const QString own = fileOf(context);
        QVERIFY2(!own.isEmpty(), qPrintable(context + " has no file: give it one in contexts.txt"));
        QStringList holders;
        for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
            if (file->contains(context))
                holders.append(file.key());
        }
        QVERIFY2(holders == QStringList(own),
                 qPrintable(context + " stands in: " + holders.join(", ") + "; it belongs into " + own));
    }
}

void TestTranslations::theTableOfContextsHasNothingNeedless()
{
    for (auto it = m_table.cbegin(); it != m_table.cend(); ++it) {
        QVERIFY2(m_sources.contains(it.key()), qPrintable(it.key() + " has no texts"));
        QVERIFY2(!translations::names().contains(it.key()), qPrintable(it.key() + " has a file of its own"));
        QVERIFY2(translations::names().contains(it.value()), qPrintable(it.value() + " is never loaded"));
    }
}

void TestTranslations::everyTextIsTranslated()
{
    QStringList missing;
    for (auto context = m_sources.cbegin(); context != m_sources.cend(); ++context) {
        QSet<QString> present;
        for (const Text &text : m_files.value(fileOf(context.key())).value(context.key()))
            present.insert(text.key());
        for (const Text &text : *context) {
            if (!present.contains(text.key()))
                missing.append(context.key() + QStringLiteral(", \"") + text.source
                               + QStringLiteral("\": missing"));
        }
    }
    missing += complaints([](const QString &, const Text &text) -> QString {
        if (text.state == QLatin1String("unfinished"))
            return text.state;
        for (const QString &form : text.forms) {
            if (form.trimmed().isEmpty())
                return QStringLiteral("empty");
        }
        return text.forms.isEmpty() ? QStringLiteral("empty") : QString();
    });
    QVERIFY2(missing.isEmpty(),
             qPrintable("run qml/translation/update and translate\n" + missing.join('\n')));
}

void TestTranslations::noTextIsLeftFromFormerVersions()
{
    QMap<QString, QSet<QString>> known;
    for (auto context = m_sources.cbegin(); context != m_sources.cend(); ++context) {
        for (const Text &text : *context)
            known[context.key()].insert(text.key());
    }
    const QStringList left = complaints([&](const QString &context, const Text &text) -> QString {
        if (!known.value(context).contains(text.key()))
            return QStringLiteral("the program has no such text");
        return text.state == QLatin1String("unfinished") ? QString() : text.state;
    });
    QVERIFY2(left.isEmpty(), qPrintable("run qml/translation/update\n" + left.join('\n')));
}

void TestTranslations::translationsKeepPlaceholdersShortcutsAndEnds()
{
    const QList<QPair<QString, QString>> kept{
        {"placeholder", "%L?\\d+|%n"},
        {"shortcut", "&(?=\\w)|\\[[^\\]]*\\]|\\b(Esc|Ctrl|Shift|Alt|F\\d+)\\b"},
        {"blank at the start", "^\\s*"},
        {"end", "(\\.\\.\\.|[.:;?!…])?\\s*$"}};
    const QStringList lost = complaints([&](const QString &, const Text &text) -> QString {
        for (const QString &form : text.forms) {
            if (form.isEmpty())
                continue;
            for (const auto &[what, pattern] : kept) {
                if (matches(text.source, pattern) != matches(form, pattern))
                    return QStringLiteral("\"%1\" has another %2").arg(form, what);
            }
        }
        return QString();
    });
    QVERIFY2(lost.isEmpty(), qPrintable(lost.join('\n')));
}

void TestTranslations::translationsAreRussian()
{
    const QSet<QString> sameInRussian{" BETA", " RC",    "#",   "OK",       "Ok",
                                      "Qt",    "OpenCV", "Esc", "Ctrl + D", "%1x%2"};
    const QSet<QString> partsOfDeviceNames{"device", "camera"};
    const QStringList english = complaints([&](const QString &, const Text &text) -> QString {
        if (sameInRussian.contains(text.source) || partsOfDeviceNames.contains(text.source))
            return text.forms == QStringList(text.source) ? QString()
                                                          : QStringLiteral("has to stay as it is");
        for (const QString &form : text.forms) {
            if (!form.isEmpty() && matches(form, QStringLiteral("\\p{Cyrillic}")).isEmpty())
                return form;
        }
        return QString();
    });
    QVERIFY2(english.isEmpty(), qPrintable(english.join('\n')));
}

void TestTranslations::countedTextsHaveThreeForms()
{
    const QStringList wrong = complaints([](const QString &, const Text &text) {
        const qsizetype expected = text.counted ? 3 : 1;
        return text.forms.size() == expected ? QString() : QString::number(text.forms.size());
    });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

void TestTranslations::updatingFindsTheFilesUpToDate()
{
    QTemporaryDir folder;
    const QStringList names = QDir(m_folder).entryList({QLatin1Char('*') + m_ending}, QDir::Files);
    for (const QString &name : names)
        QVERIFY(QFile::copy(m_folder + '/' + name, folder.filePath(name)));
    QVERIFY(update(folder.path()));

    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), names);
    for (const QString &name : names) {
        QFile before(m_folder + '/' + name);
        QFile after(folder.filePath(name));
        QVERIFY(before.open(QIODevice::ReadOnly) && after.open(QIODevice::ReadOnly));
        QVERIFY2(before.readAll() == after.readAll(), qPrintable("run qml/translation/update: " + name));
    }
}

void TestTranslations::updatingKeepsWhatIsTranslatedAndDropsWhatIsGone()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("About.ru_RU.ts")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"ru_RU\">\n"
        "<context>\n    <name>TopLine</name>\n"
        "    <message>\n        <source>Capture</source>\n"
        "        <translation>Kept</translation>\n    </message>\n"
        "    <message>\n        <source>Of a former version</source>\n"
        "        <translation>Gone</translation>\n    </message>\n"
        "</context>\n<context>\n    <name>FormerScreen</name>\n"
        "    <message>\n        <source>Of a former screen</source>\n"
        "        <translation>Gone</translation>\n    </message>\n</context>\n</TS>\n");
    file.close();
    QString report;
    QVERIFY(update(folder.path(), &report));

    const QList<Text> texts = readTexts(folder.filePath(fileOf(QStringLiteral("TopLine")) + m_ending))
                                  .value(QStringLiteral("TopLine"));
    QVERIFY(texts.size() > 1);
    QCOMPARE(texts.size(), m_sources.value(QStringLiteral("TopLine")).size());
    for (const Text &text : texts) {
        const bool kept = text.source == QLatin1String("Capture");
        QCOMPARE(text.state, kept ? QString() : QStringLiteral("unfinished"));
        QCOMPARE(text.forms, QStringList(kept ? QStringLiteral("Kept") : QString()));
    }
    Contexts others = readTexts(file.fileName());
    QVERIFY(!others.contains(QStringLiteral("TopLine")));
    QVERIFY(!others.contains(QStringLiteral("FormerScreen")));
    QVERIFY2(report.contains(QLatin1String(" unfinished")), qPrintable(report));
}

void TestTranslations::everyTranslationReachesTheProgram()
{
    QObject owner;
    QCOMPARE(translations::install(QStringLiteral("ru_RU"), &owner), int(m_files.size()));
    const QStringList lost = complaints([](const QString &context, const Text &text) -> QString {
        const QByteArray comment = text.comment.toUtf8();
        QString expected = text.forms.value(0);
        if (text.counted)
            expected.replace(QLatin1String("%n"), QLatin1String("1"));
        const QString shown = QCoreApplication::translate(
            context.toUtf8().constData(), text.source.toUtf8().constData(),
            comment.isEmpty() ? nullptr : comment.constData(), text.counted ? 1 : -1);
        return shown == expected ? QString() : shown;
    });
    QVERIFY2(lost.isEmpty(), qPrintable(lost.join('\n')));
}

void TestTranslations::russianIsSpokenAsLongAsItsOwnerLives()
{
    const auto tab = [] {
        return QCoreApplication::translate("TopLine", "Capture");
    };
    QCOMPARE(tab(), QStringLiteral("Capture"));
    {
        QObject owner;
        QVERIFY(translations::install(QStringLiteral("ru_RU"), &owner) > 0);
        QCOMPARE(tab(), QStringLiteral("Съёмка"));
    }
    QCOMPARE(tab(), QStringLiteral("Capture"));
}

void TestTranslations::countedTextsFollowTheNumber()
{
    QObject owner;
    QVERIFY(translations::install(QStringLiteral("ru_RU"), &owner) > 0);
    const auto failed = [](int files) {
        return QCoreApplication::translate(
            "ProjectLifecycle",
            "%n file(s) could not be copied or removed. Make room on the disk, "
            "or check that the folders can be written",
            nullptr, files);
    };
    QVERIFY(failed(1).startsWith(QStringLiteral("Не удалось скопировать или удалить 1 файл.")));
    QVERIFY(failed(22).startsWith(QStringLiteral("Не удалось скопировать или удалить 22 файла.")));
    QVERIFY(failed(11).startsWith(QStringLiteral("Не удалось скопировать или удалить 11 файлов.")));
}

void TestTranslations::theToolkitsButtonsSpeakRussianToo()
{
    QObject owner;
    QVERIFY(translations::install(QStringLiteral("ru_RU"), &owner) > 0);
    const QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QCOMPARE(box.button(QDialogButtonBox::Ok)->text(), QStringLiteral("OK"));
    QCOMPARE(box.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Отмена"));
}

void TestTranslations::aLanguageWithoutFilesIsSilentEnglish()
{
    static int said = 0;
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++said; });
    QObject owner;
    const int german = translations::install(QStringLiteral("de_DE"), &owner);
    const int english = translations::install(QStringLiteral("en_US"), &owner);
    qInstallMessageHandler(before);

    QCOMPARE(german, 0);
    QCOMPARE(english, 0);
    QCOMPARE(said, 0);
    QVERIFY(owner.children().isEmpty());
    QCOMPARE(QCoreApplication::translate("TopLine", "Capture"), QStringLiteral("Capture"));
}

QTEST_MAIN(TestTranslations)

#include "tst_translations.moc"
