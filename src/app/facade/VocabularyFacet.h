#pragma once

#include "app/facade/FacetRoot.h"

#include <QVariantList>

/// Stateless helpers for the scene: numbers, strings and paths.
class VocabularyFacet : public FacetRoot
{
    Q_OBJECT

public:
    using FacetRoot::FacetRoot;

public slots:
    QString formatNumber(int value, int size) const;
    QString formatNumber(int value) const;
    QString formatSetOfNumbers(const QVariantList &vlist, const QString &separator, int size) const;
    QString cleanStr(const QString &str, bool isFilename, bool removeSeparators) const;
    QString cleanStr(const QString &str, bool isFilename) const;
    QString cleanStr(const QString &str) const;
    bool strContains(const QString &str, const QString &part) const;
    bool stringEndsWith(const QString &str, const QString &end) const;
};
