// The rows of a list of an add-on, as an item model.
#pragma once

#include "host/core/controls/Control.h"

#include <QAbstractListModel>

namespace corvane::gui {

/// Refers to the rows of the list without a copy. Views are notified in sync() only, so that
/// filling a list row by row costs one update.
class RowsModel : public QAbstractListModel {
public:
    RowsModel(const host::List& list, QObject* parent) : QAbstractListModel(parent), m_list(list) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Inserts or removes rows at the end, and updates all others: the view keeps its position.
    void sync();

private:
    const host::List& m_list;
    int m_count = 0;
};

} // namespace corvane::gui
