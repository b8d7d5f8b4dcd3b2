#pragma once

#include "shared/global/RenderState.h"

#include <QString>
#include <QVariant>

/// Shared state of the program: the video effect of the project, and the way between a catalogue's entries
/// and the text that the project keeps.
class EffectState : public RenderState
{
    Q_OBJECT
    /// The effect as text, empty for none. Writing cleans the text and puts the effect into force.
    Q_PROPERTY(QString videoEffectsString READ videoEffectsString WRITE setVideoEffectsString NOTIFY
                   videoEffectsStringChanged STORED true)
    Q_PROPERTY(bool applyPostProcessEffects READ applyPostProcessEffects NOTIFY applyPostProcessEffectsChanged
                   STORED false)

    /// The effect in force, which a render takes.
    MORVANE_PROPERTY(QString, videoEffectsStringParsed, VideoEffectsStringParsed)

public:
    using RenderState::RenderState;

    QString videoEffectsString() const
    {
        return m_videoEffectsString;
    }
    void setVideoEffectsString(const QString &text);
    bool applyPostProcessEffects() const
    {
        return m_applyPostProcessEffects;
    }

    /// The current effect's value of a key, converted to a QMetaType; invalid when it has no such key.
    Q_INVOKABLE QVariant videoEffectValue(const QString &key, int type) const;

public slots:
    /// Fills a catalogue entry's template and gives the map of the effect. With `updateEffectsString` it
    /// becomes the project's effect; without `fireUpdateSignal` silently and not yet in force, as while a
    /// slider moves.
    QVariantMap parseAndApplySingleVideoEffect(const QVariantMap &obj, bool fireUpdateSignal = true,
                                               bool updateEffectsString = true);
    /// The map of the current effect, found among catalogue entries; empty when none of them fits.
    QVariantMap parseCurrentVideoEffect(const QVariantList &obj, bool fireUpdateEvent = false);
    QString getFilterName(const QString &str) const;
    /// Puts into force what was stored silently.
    void setVideoEffectsStringParsed();

signals:
    void videoEffectsStringChanged();
    void applyPostProcessEffectsChanged();

private:
    void setApplyPostProcessEffects(bool apply);

    QString m_videoEffectsString;
    /// Stored, but not told yet.
    bool m_untold = false;
    bool m_applyPostProcessEffects = false;
};
