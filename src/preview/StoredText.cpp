#include "preview/StoredText.h"

#include <array>
#include <cmath>
#include <QStringList>

QString StoredText::toString() const
{
    QStringList parts;
    for (const double number : {scale, coefficient, sourceWidth, sourceHeight, targetWidth, targetHeight})
        parts.append(QString::number(number, 'g', 6));
    return parts.join(u';');
}

bool StoredText::read(const QString &text, StoredText &result)
{
    const QStringList parts = text.split(u';');
    const std::array<double *, 6> numbers{&result.scale,        &result.coefficient, &result.sourceWidth,
                                          &result.sourceHeight, &result.targetWidth, &result.targetHeight};
    if (parts.size() != qsizetype(numbers.size()))
        return false;
    for (size_t i = 0; i < numbers.size(); ++i) {
        bool isNumber = false;
        const double number = parts.at(qsizetype(i)).toDouble(&isNumber);
        constexpr double practicallyNothing = 1e-12;
        if (isNumber && std::isfinite(number) && std::abs(number) >= practicallyNothing)
            *numbers[i] = number;
    }
    return true;
}
