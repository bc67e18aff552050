// A list of an add-on.
#pragma once

#include "host/core/controls/Control.h"
#include "host/core/controls/ControlActions.h"

#include <QListView>
#include <vector>

namespace corvane::gui {

class RowsModel;

class RowsView : public QListView {
public:
    RowsView(const host::List& list, host::ControlActions& actions, QWidget* parent);

    /// Rows or selection have changed; the view is updated before the next event is handled.
    void showLater();
    /// Selected rows of the view, from 1, ascending.
    std::vector<long> selectedPositions() const;

    QSize minimumSizeHint() const override { return {}; } ///< none, since it scrolls

protected:
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showNow();
    void reportSelection();

    const host::List& m_list;
    host::ControlActions& m_actions;
    RowsModel* m_model;
    bool m_isStale = false;
    bool m_isShowing = false;
};

} // namespace corvane::gui
