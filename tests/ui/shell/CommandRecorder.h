#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QStringList>
#include <utility>

/// Keeps the names of the commands that an object's signals give, in order. Signals that only tell of a
/// changed property stay out.
class CommandRecorder : public QObject
{
    Q_OBJECT

public:
    explicit CommandRecorder(QObject &source)
    {
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("record()"));
        const QMetaObject *meta = source.metaObject();
        for (int i = QObject::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            const QByteArray name = method.name();
            if (method.methodType() == QMetaMethod::Signal && !name.endsWith("Changed") && name != "changed")
                connect(&source, method, this, slot);
        }
    }

    QStringList take()
    {
        return std::exchange(m_names, {});
    }

private slots:
    void record()
    {
        m_names.append(QString::fromLatin1(sender()->metaObject()->method(senderSignalIndex()).name()));
    }

private:
    QStringList m_names;
};
