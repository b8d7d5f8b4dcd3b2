#pragma once

#include "app/WheelArea.h"
#include "shared/PropertyMacros.h"

#include <QQuickItem>
#include <QString>

/// The behaviour of a field for numbers: `text` is what stands in it, `value` the number it means. The scene
/// lays a text editor inside, hands over each change of the text by the user, and calls commit() at the end.
///
/// A value set by the owner is shown as it is, also outside the limits, and sends no edited(). What the user
/// types counts on commit(): a text that is no number gives way to the last value, any other is rounded to
/// `decimals` and brought within the limits. Up, Down and the wheel change by one step, PageUp and PageDown
/// by ten.
class QNumImput : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    MORVANE_PROPERTY(qreal, value, Value, 0.0)
    MORVANE_PROPERTY(qreal, minimum, Minimum, 0.0)
    MORVANE_PROPERTY(qreal, maximum, Maximum, 100.0)
    MORVANE_PROPERTY(qreal, step, Step, 1.0)
    /// Digits behind the point, 0 .. 9.
    MORVANE_PROPERTY(int, decimals, Decimals, 0)
    /// Off, the wheel goes to what lies behind: a field should not change while a panel scrolls under the
    /// pointer.
    MORVANE_PROPERTY(bool, wheelEnabled, WheelEnabled, true)

public:
    explicit QNumImput(QQuickItem *parent = nullptr);

    QString text() const;
    /// What the user has typed so far. It stays, whatever the owner sets, until commit() or revert().
    void setText(const QString &text);

    /// A value as this field writes it.
    QString textOf(qreal value) const;

public slots:
    void commit();
    /// Drops what was typed.
    void revert();
    /// Commits first; counts as the user's change.
    void stepBy(int steps);

signals:
    /// The user has given another value.
    void edited(qreal value);
    void textChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void showValue();
    void give(qreal value);
    qreal rounded(qreal value) const;

    WheelSteps m_wheelSteps;
    QString m_text = QStringLiteral("0");
    bool m_typed = false;
};
