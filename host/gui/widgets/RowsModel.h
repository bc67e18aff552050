// The rows of a list of an add-on, for Qt's views.
#pragma once

#include "host/core/controls/Control.h"

#include <QAbstractListModel>

namespace corvane::gui {

/// Reads the rows where they are. Views learn of changes at sync() only, so that an add-on that
/// fills a list row by row costs one update.
class RowsModel : public QAbstractListModel {
public:
    RowsModel(const host::List& list, QObject* parent) : QAbstractListModel(parent), m_list(list) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Rows come and go at the end, and all others may have changed: the view stays where it is.
    void sync();

private:
    const host::List& m_list;
    int m_count = 0;
};

} // namespace corvane::gui
