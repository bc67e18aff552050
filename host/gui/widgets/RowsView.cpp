#include "host/gui/widgets/RowsView.h"

#include "host/gui/widgets/RowsModel.h"

#include <QEvent>
#include <QItemSelection>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>

namespace corvane::gui {

namespace {

/// Adjacent rows form one range.
QItemSelection ranges(const QAbstractItemModel& model, const std::vector<long>& positions) {
    QItemSelection selection;
    for (std::size_t first = 0, next = 0; first < positions.size(); first = next) {
        for (next = first + 1;
             next < positions.size() && positions[next] == positions[next - 1] + 1;) {
            ++next;
        }
        const auto row = [&](std::size_t at) {
            return model.index(static_cast<int>(positions[at] - 1), 0);
        };
        selection.append(QItemSelectionRange(row(first), row(next - 1)));
    }
    return selection;
}

} // namespace

RowsView::RowsView(const host::List& list, host::ControlActions& actions, QWidget* parent)
    : QListView(parent), m_list(list), m_actions(actions), m_model(new RowsModel(list, this)) {
    setModel(m_model);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(list.isMulti ? ExtendedSelection : SingleSelection);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_isShowing) {
            reportSelection();
        }
    });
}

void RowsView::showLater() {
    if (!m_isStale) {
        m_isStale = true;
        QTimer::singleShot(0, this, [this] { showNow(); });
    }
}

void RowsView::showNow() {
    if (!m_isStale) {
        return;
    }
    m_isStale = false;
    const QScopedValueRollback showing(m_isShowing, true);
    m_model->sync();
    if (selectedPositions() != m_list.selection) {
        selectionModel()->select(ranges(*m_model, m_list.selection),
                                 QItemSelectionModel::ClearAndSelect);
        if (!m_list.selection.empty()) {
            // Arrow keys and range selection start from the current row.
            selectionModel()->setCurrentIndex(
                m_model->index(static_cast<int>(m_list.selection.front() - 1), 0),
                QItemSelectionModel::NoUpdate);
        }
    }
}

std::vector<long> RowsView::selectedPositions() const {
    std::vector<long> positions;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            positions.push_back(row + 1);
        }
    }
    std::sort(positions.begin(), positions.end());
    return positions;
}

void RowsView::reportSelection() {
    m_actions.select(m_list.handle, selectedPositions());
    if (selectedPositions() != m_list.selection) {
        showLater();
    }
}

bool RowsView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        showNow(); // the click must hit the row that is meant
    }
    return QListView::viewportEvent(event);
}

void RowsView::keyPressEvent(QKeyEvent* event) {
    showNow();
    QListView::keyPressEvent(event);
}

} // namespace corvane::gui
