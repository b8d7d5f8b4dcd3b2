#pragma once

#include <QIdentityProxyModel>

/// A model without its values. The role numbers of the program's models start at 0 and overlap the toolkit's
/// own, whose types the model tester checks: this shows it the rows alone.
class RowsOnly : public QIdentityProxyModel
{
public:
    QVariant data(const QModelIndex &, int) const override
    {
        return {};
    }
};
