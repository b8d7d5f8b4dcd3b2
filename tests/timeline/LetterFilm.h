#pragma once

#include "timeline/ModelSupport.h"

inline QStringList namesFrom(const QString &letters)
{
    QStringList names;
    for (const QChar letter : letters)
        names.append(letter);
    return names;
}

/// A loaded model with one frame per letter.
inline std::unique_ptr<TestModel> modelOf(const QString &letters)
{
    auto model = std::make_unique<TestModel>(0, false);
    for (const QString &name : namesFrom(letters))
        model->appendFrame({{"capFull", name}, {"capTumb", name + "t"}});
    model->setLoaded(true);
    return model;
}

inline QString lettersOf(const TestModel &model)
{
    return model.names().join(QString());
}
