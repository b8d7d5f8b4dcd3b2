#include "app/QNumImput.h"

#include "app/PageSteps.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr int mostDecimals = 9;

/// A point or a comma may stand before the decimals, and blanks between the digits.
std::optional<qreal> numberOf(const QString &text)
{
    QString plain = text;
    plain.remove(QLatin1Char(' ')).remove(QChar(QChar::Nbsp)).replace(QLatin1Char(','), QLatin1Char('.'));
    bool ok = false;
    const qreal number = plain.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    return number;
}

} // namespace

QNumImput::QNumImput(QQuickItem *parent) : QQuickItem(parent)
{
    connect(this, &QNumImput::valueChanged, this, &QNumImput::showValue);
    connect(this, &QNumImput::decimalsChanged, this, &QNumImput::showValue);
}

QString QNumImput::text() const
{
    return m_text;
}

void QNumImput::setText(const QString &text)
{
    m_typed = text != textOf(value());
    if (m_text == text)
        return;
    m_text = text;
    emit textChanged();
}

QString QNumImput::textOf(qreal value) const
{
    return QString::number(rounded(value), 'f', std::clamp(decimals(), 0, mostDecimals));
}

void QNumImput::commit()
{
    if (!m_typed)
        return;
    const std::optional<qreal> number = numberOf(m_text);
    revert();
    if (number)
        give(*number);
}

void QNumImput::revert()
{
    m_typed = false;
    showValue();
}

void QNumImput::stepBy(int steps)
{
    commit();
    give(value() + steps * step());
}

void QNumImput::showValue()
{
    if (!m_typed)
        setText(textOf(value()));
}

void QNumImput::give(qreal newValue)
{
    const qreal limited = std::min(std::max(rounded(newValue), minimum()), maximum());
    if (limited == value())
        return;
    setValue(limited);
    emit edited(limited);
}

qreal QNumImput::rounded(qreal value) const
{
    const qreal factor = std::pow(10.0, std::clamp(decimals(), 0, mostDecimals));
    return std::round(value * factor) / factor;
}

void QNumImput::keyPressEvent(QKeyEvent *event)
{
    constexpr Qt::KeyboardModifiers commandKeys = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    event->setAccepted(!(event->modifiers() & commandKeys));
    if (!event->isAccepted())
        return;
    switch (event->key()) {
        case Qt::Key_Up:
            return stepBy(1);
        case Qt::Key_Down:
            return stepBy(-1);
        case Qt::Key_PageUp:
            return stepBy(morvane::pageSteps);
        case Qt::Key_PageDown:
            return stepBy(-morvane::pageSteps);
        default:
            event->ignore();
    }
}

void QNumImput::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(wheelEnabled());
    if (!wheelEnabled())
        return;
    if (const int steps = m_wheelSteps.take(*event); steps != 0)
        stepBy(steps);
}
