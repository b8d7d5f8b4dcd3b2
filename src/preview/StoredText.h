#pragma once

#include <QString>

/// The numbers that every kept picture carries as the text "store": six of them with six significant digits
/// each, joined by ";".
struct StoredText
{
    static inline const QString key = QStringLiteral("store");

    /// Size of the picture over the size of its file.
    double scale = 1;
    /// Share of the width that the crop has left.
    double coefficient = 1;
    double sourceWidth = 100;
    double sourceHeight = 100;
    double targetWidth = 0;
    double targetHeight = 0;

    QString toString() const;
    /// False when there are not six parts. A missing number, one that cannot be read and one of practically 0
    /// leaves the default.
    static bool read(const QString &text, StoredText &result);
};
