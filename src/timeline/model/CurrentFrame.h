#pragma once

#include "timeline/model/ActionState.h"

/// Fourth layer of FramesModel: which frame is current, which one the user points at, and the names of the
/// current frame's images, which the display follows.
class CurrentFrame : public ActionState
{
    Q_OBJECT
    Q_PROPERTY(
        int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged STORED false)
    Q_PROPERTY(int pointedGuid READ pointedGuid WRITE setPointedGuid NOTIFY currentGuidChanged STORED false)
    Q_PROPERTY(QString currentCapturedThumb READ currentCapturedThumb NOTIFY currentCapturedThumbChanged)
    Q_PROPERTY(QString currentCaptured READ currentCaptured NOTIFY currentCapturedChanged)
    Q_PROPERTY(QString currentReferenceThumb READ currentReferenceThumb NOTIFY currentReferenceThumbChanged)
    Q_PROPERTY(QString currentReference READ currentReference NOTIFY currentReferenceChanged)
    Q_PROPERTY(bool currentMirrored READ currentMirrored NOTIFY currentMirroredChanged)
    Q_PROPERTY(bool hasCaptured READ hasCaptured NOTIFY hasCapturedChanged)
    Q_PROPERTY(bool hasReference READ hasReference NOTIFY hasReferenceChanged)

    /// Row of the last edit, where the timeline scrolls to.
    MORVANE_READ_ONLY_PROPERTY(int, lastAccessedIndex, LastAccessedIndex, -1)

public:
    explicit CurrentFrame(QObject *parent = nullptr);

    int currentIndex() const
    {
        return m_currentIndex;
    }
    /// Taken only while loaded and when the row exists. The pointed GUID follows unless an action or a
    /// playback runs.
    void setCurrentIndex(int row);
    int pointedGuid() const
    {
        return m_pointedGuid;
    }
    void setPointedGuid(int guid);
    QString currentCapturedThumb() const
    {
        return m_currentCapturedThumb;
    }
    QString currentCaptured() const
    {
        return m_currentCaptured;
    }
    QString currentReferenceThumb() const
    {
        return m_currentReferenceThumb;
    }
    QString currentReference() const
    {
        return m_currentReference;
    }
    bool currentMirrored() const
    {
        return m_currentMirrored;
    }
    bool hasCaptured() const
    {
        return m_hasCaptured;
    }
    bool hasReference() const
    {
        return m_hasReference;
    }

    /// True once the project's frames are in: makes the last row current, and clears selection and undo.
    /// Both directions emit loadedChanged.
    void setLoaded(bool loaded);

    Q_INVOKABLE void setCurrentImages();
    Q_INVOKABLE void calculateRange(const QModelIndex &parent, int first, int last);
    Q_INVOKABLE void selectLastFrame(const QModelIndex &parent, int first, int last);

signals:
    void currentIndexChanged();
    void currentGuidChanged();
    void currentCapturedThumbChanged();
    void currentCapturedChanged();
    void currentReferenceThumbChanged();
    void currentReferenceChanged();
    void currentMirroredChanged();
    void hasCapturedChanged();
    void hasReferenceChanged();

    void aboutToGoToNetFrame();
    /// The current frame's image was rewritten on disk.
    void currentShouldBeUpdated();
    void accessedIndex(int indx);
    void lastImageInserted(int indx);
    void calcContentWidth();
    void contentWidthChanged();

protected:
    /// Playback's way to the current row: no check, no signal, the pointed GUID stays.
    void storeCurrentIndex(int row)
    {
        m_currentIndex = row;
    }
    void refreshCurrentMirrored();
    /// Reads the current frame's names again when its row lies between the two.
    void refreshCurrentWithin(int a, int b);

private:
    void refreshCurrent(Frame frame);
    void forgetImagesOfNoFrame();

    QString m_currentCapturedThumb;
    QString m_currentCaptured;
    QString m_currentReferenceThumb;
    QString m_currentReference;
    int m_currentIndex = 0;
    int m_pointedGuid = Frame::noGuid;
    bool m_currentMirrored = false;
    bool m_hasCaptured = false;
    bool m_hasReference = false;
};
