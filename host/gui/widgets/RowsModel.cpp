#include "host/gui/widgets/RowsModel.h"

#include "host/gui/base/QtText.h"

namespace corvane::gui {

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_count;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    const bool exists = index.isValid() && row < m_list.rows.size();
    return exists && role == Qt::DisplayRole ? QVariant(toQt(m_list.rows[row])) : QVariant();
}

void RowsModel::sync() {
    const int count = static_cast<int>(m_list.rows.size());
    const int common = qMin(count, m_count);
    if (count > m_count) {
        beginInsertRows({}, m_count, count - 1);
        m_count = count;
        endInsertRows();
    } else if (count < m_count) {
        beginRemoveRows({}, count, m_count - 1);
        m_count = count;
        endRemoveRows();
    }
    if (common > 0) {
        Q_EMIT dataChanged(index(0), index(common - 1), {Qt::DisplayRole});
    }
}

} // namespace corvane::gui
