#include "shared/StringText.h"

#include <QHash>
#include <QtDebug>

namespace morvane {

QString cleanStr(const QString &text, bool isFilename, bool removeSeparators)
{
    QString clean = text.simplified();
    const auto remove = [&clean](QStringView characters) {
        for (const QChar character : characters)
            clean.remove(character);
    };
    remove(u"{}#!~()+/\\$@^&?");
    if (removeSeparators)
        remove(u":*|=;");
    remove(u"[]<>`'\"\u2116,");
    if (isFilename) {
        clean.replace(QLatin1Char('-'), QLatin1Char('_'));
        clean.replace(QLatin1Char(' '), QLatin1Char('_'));
    }
    return clean;
}

namespace {

const QString keptCharacters =
    QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz1234567890-_,.()[]{}<>~!@#$%^&*+=?");

const QHash<QChar, QString> &russianLetters()
{
    static const QHash<QChar, QString> letters = [] {
        QHash<QChar, QString> table;
        const QString upper = QStringLiteral("АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЫЭЮЯ");
        const char *latin[] = {"A", "B", "V",  "G",  "D",  "E", "Jo", "Zh", "Z", "I", "J",
                               "K", "L", "M",  "N",  "O",  "P", "R",  "S",  "T", "U", "F",
                               "H", "C", "Ch", "Sh", "Sh", "I", "E",  "Ju", "Ja"};
        for (int i = 0; i < upper.size(); ++i) {
            const QString replacement = QString::fromLatin1(latin[i]);
            table.insert(upper.at(i), replacement);
            table.insert(upper.at(i).toLower(), replacement.toLower());
        }
        return table;
    }();
    return letters;
}

} // namespace

QString translit(const QString &text)
{
    QString result;
    for (const QChar character : text) {
        if (keptCharacters.contains(character))
            result += character;
        else if (character == QLatin1Char(' '))
            result += QLatin1Char('_');
        else if (const auto letter = russianLetters().constFind(character); letter != russianLetters().cend())
            result += *letter;
        else
            qWarning().noquote() << QStringLiteral("Translit error. Index of %1 is -1").arg(character);
    }
    return result;
}

} // namespace morvane
