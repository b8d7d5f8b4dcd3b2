#pragma once

#include <functional>
#include <QImage>
#include <QObject>
#include <QString>
#include <QVariantMap>

/// Turns pictures into one file. Lives on the thread of one job, for one file: createFile, encodeImage for
/// each picture, closeFile, in this order.
///
/// An encoder may come from a module. So there is no Q_OBJECT: it would be another one on either side.
class EncoderBase : public QObject
{
public:
    using QObject::QObject;

    /// Begins a file. `basePath` has no extension; sizes are pixels; `qualityIndex` is 0 to 3;
    /// `formatName` is one of the program's render formats. `filter` describes one effect and counts only
    /// with `applyEffects`. `frameCount` is the number of frames expected.
    ///
    /// The map holds "ok" (bool) and, when that is false, "reason" (QString).
    virtual QVariantMap createFile(const QString &basePath, int width, int height, int qualityIndex,
                                   double fps, const QString &formatName, bool applyEffects,
                                   const QString &filter, int frameCount, bool reserved) = 0;
    /// Finishes the file, also one that was cut short, and gives its path; empty when none was begun.
    virtual QString closeFile() = 0;
    /// Takes the next picture, of the file's size and in Format_ARGB32. Negative on failure.
    virtual int encodeImage(const QImage &image) = 0;
    /// True between a createFile that succeeded and closeFile.
    virtual bool isOk() const = 0;
    /// Stored, and read by createFile.
    virtual void setWebpSettings(const QVariantMap &settings) = 0;

    /// After closeFile: why the file is not whole; empty when everything handed in was written.
    virtual QString writeError() const = 0;

    /// Says before closeFile that not all pictures came. The file is finished all the same, but does not take
    /// the place of an earlier one.
    void markInterrupted()
    {
        m_interrupted = true;
    }
    bool isInterrupted() const
    {
        return m_interrupted;
    }

    /// What the encoder has to say beside its results; `level` is one of Zum::MessageTypes. Called on the
    /// encoder's thread.
    using Feedback = std::function<void(const QString &text, int level)>;
    void setFeedback(Feedback feedback)
    {
        m_feedback = std::move(feedback);
    }

protected:
    void tell(const QString &text, int level) const
    {
        if (m_feedback)
            m_feedback(text, level);
    }

private:
    Feedback m_feedback;
    bool m_interrupted = false;
};
