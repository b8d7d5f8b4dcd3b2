#pragma once

#include "preview/PictureRequest.h"
#include "preview/PreviewThread.h"
#include "preview/RamPreviewReport.h"
#include "timeline/FramesModel.h"

#include <memory>
#include <optional>
#include <QBitArray>
#include <QImage>
#include <QPointer>
#include <QTimer>

class MaskOverlay;
class TimelineReadAhead;

/// Shows one frame from the image cache. Its name in QML is "CRamPreview".
///
/// It owns a worker on a thread of its own, which loads, scales and keeps the pictures. One request is under
/// way at a time; what changes meanwhile does not queue up. When the answer comes and something else is
/// wanted by then, that is asked for, so the item comes to rest on what it was last told. Every failure
/// leaves the last picture on screen and ends the request, so that the item goes on.
///
/// Folders are those of the open project (Zum::projectFolders); the scene gives none.
///
/// After a delivery the item lies at (0, 0) and has the picture's size: it wants a parent that places it.
class RamPreview : public RamPreviewReport
{
    Q_OBJECT
    /// File name without a folder; empty shows nothing. A change is asked for at once.
    Q_PROPERTY(QString imageName READ imageName WRITE setImageName NOTIFY imageNameChanged)
    /// Where the picture is cropped, in pixels of the display. 9 and less is ignored.
    Q_PROPERTY(int imageWidth READ imageWidth WRITE setImageWidth NOTIFY imageWidthChanged)
    Q_PROPERTY(int imageHeight READ imageHeight WRITE setImageHeight NOTIFY imageHeightChanged)
    /// Size of the picture over the size of its file; 0 fits it into the target size.
    Q_PROPERTY(qreal scaleFactor READ scaleFactor WRITE setScaleFactor NOTIFY scaleFactorChanged)
    /// A Zum::PostProcessingTypes, anything else is refused. A change is asked for 800 ms later.
    Q_PROPERTY(int postProcessing READ postProcessing WRITE setPostProcessing NOTIFY postProcessingChanged)
    /// Settings of the filters, as ImLightEq takes them.
    Q_PROPERTY(QVariantMap settings READ settings WRITE setSettings NOTIFY settingsChanged)
    Q_PROPERTY(bool hasSettings READ hasSettings NOTIFY settingsChanged STORED false)
    /// While false nothing is asked for or painted.
    Q_PROPERTY(bool renderAllowed READ renderAllowed WRITE setRenderAllowed NOTIFY renderAllowedChanged)
    /// The worker is loading. Told at once when it begins and within a second when it has ended.
    Q_PROPERTY(bool caching READ caching NOTIFY cachingChanged STORED false)
    Q_PROPERTY(
        int cacheMaxInBytes READ cacheMaxInBytes WRITE setCacheMaxInBytes NOTIFY cacheMaxInBytesChanged)
    /// Whose play range is loaded ahead of the cursor while nothing else is wanted; null for none.
    Q_PROPERTY(FramesModel *timeline READ timeline WRITE setTimeline NOTIFY timelineChanged)

public:
    explicit RamPreview(QQuickItem *parent = nullptr);
    ~RamPreview() override;

    /// The picture on screen, before mirroring; null for none.
    const QImage &image() const;

    QString imageName() const;
    void setImageName(const QString &name);
    int imageWidth() const;
    void setImageWidth(int width);
    int imageHeight() const;
    void setImageHeight(int height);
    qreal scaleFactor() const;
    void setScaleFactor(qreal factor);
    int postProcessing() const;
    void setPostProcessing(int type);
    QVariantMap settings() const;
    void setSettings(const QVariantMap &settings);
    bool hasSettings() const;
    bool renderAllowed() const;
    void setRenderAllowed(bool allowed);
    bool caching() const;
    int cacheMaxInBytes() const;
    FramesModel *timeline() const;
    void setTimeline(FramesModel *timeline);

public slots:
    /// Asks for the current name in `delay` milliseconds, unless a request is under way.
    void requestImage(int delay);
    void requestImage();
    void actuallyRequestImage();
    void reload();
    /// The same in a second, around the caches.
    void forceUpdateCurrentImage();
    /// Forgets the current picture, and has the next load read the frame's own file and renew its copy.
    void clearCurrentInCache();
    /// Forgets the filtered pictures and the one of this key; with an empty key every picture.
    void clearCache(const QString &remkeys);
    void clearCache();
    void updateRendered();
    void repaint();
    /// A dab of the mask's brush, in pixels of the item.
    void addDrawablePoint(QPoint point);
    /// What a click on the item does, for what lies over it: button 1 is the left, 2 the right one.
    void evokeMousePressEvent(int button, int x, int y);

    // The worker calls these.
    void setCaching(bool caching);
    void setProportion(qreal proportion);
    void imageSizeChanged(int width, int height);
    void setCacheUsedPercent(qreal percent);
    void finishedInThread();
    void setCacheMaxInBytes(int bytes);
    /// The request has ended without a picture.
    void endedInThread();
    void setDiskCacheUsedPercent(qreal percent);
    /// Which pictures of the read-ahead plan of that number lie in memory, by position.
    void setReadyPictures(int plan, const QBitArray &ready);

signals:
    void imageNameChanged();
    void imageWidthChanged();
    void imageHeightChanged();
    void scaleFactorChanged();
    void postProcessingChanged();
    void settingsChanged();
    void renderAllowedChanged();
    void cachingChanged();
    void cacheMaxInBytesChanged();
    void timelineChanged();

    void requestImage(QString name, QString key, qreal scale, int policy, bool forced, qreal width,
                      qreal height, int cropWidth, int cropHeight, int source);
    void cacheMaxInBytes(int bytes, bool sendSignal);
    /// The pixel under the mouse, in coordinates of the scene; (-1, -1) and black when it has left.
    void setEyedropper(QPoint mouse, QColor colour);
    void mousePressed(QPoint mouse);
    void rightClick(QPoint mouse);
    /// Another picture has been painted.
    void newPicRendered();
    /// Clears the cache.
    void cleanCache();

protected:
    void componentComplete() override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    PictureRequest wish() const;
    void becomeWished();
    void endRequest();
    bool takeDelivered();
    void forgetAndAsk();
    void updateReadAhead();
    bool shows() const;
    void readStoredText();
    void pick();
    void press(Qt::MouseButton button, QPointF point);
    void connectOverlay();
    void updateOverlay();

    PreviewThread m_thread;
    /// What the worker was asked for last.
    PictureRequest m_asked;
    QString m_imageName;
    QSize m_cropLimit{12000, 12000};
    qreal m_scaleFactor = 1.0;
    QVariantMap m_settings;
    QImage m_image;
    /// Of the mask, in pixels of the frame's file.
    QList<QPointF> m_maskPoints;
    MaskOverlay *m_overlay = nullptr;
    QPointer<FramesModel> m_timeline;
    std::unique_ptr<TimelineReadAhead> m_readAhead;
    QTimer m_cachingNotice;
    QTimer m_processingDelay;
    /// Where the colour is wanted of, in pixels of the item.
    std::optional<QPointF> m_pick;
    int m_postProcessing = Zum::NoProcessing;
    int m_cacheMaxInBytes = 0;
    bool m_renderAllowed = true;
    bool m_caching = false;
    /// A request is on its way; only its end clears it.
    bool m_requesting = false;
    bool m_processingPending = false;
    /// The next request goes around the caches.
    bool m_forceNext = false;
    /// That next request is due as soon as the running one has ended.
    bool m_forceLater = false;
    /// The picture's text has not been read yet.
    bool m_textPending = false;
    /// The scene graph still has an older picture.
    bool m_textureStale = false;
};
