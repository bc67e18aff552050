#include "host/gui/panels/PlotListPanel.h"

#include "host/core/Host.h"
#include "host/gui/controls/ColorButton.h"

#include <QFormLayout>
#include <QListWidget>
#include <QSignalBlocker>
#include <algorithm>

namespace corvane::gui {

namespace {

constexpr int mostRows = 6;

} // namespace

PlotListPanel::PlotListPanel(const Commands& commands, std::string keyword)
    : StylePanel(commands), m_keyword(std::move(keyword)), m_list(new QListWidget) {
    m_list->setObjectName(QString::fromStdString(m_keyword));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setUniformItemSizes(true);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    form().addRow(m_list);
    editor().setPrefixes({});
    connect(m_list, &QListWidget::itemSelectionChanged, this, &PlotListPanel::choose);
    connect(m_list, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        const bool isOn = item->checkState() == Qt::Checked;
        this->commands().setStyle(prefixOf(m_list->row(item) + 1) + "Show",
                                  isOn ? "true" : "false");
        m_list->setCurrentItem(item);
        refresh();
    });
}

std::string PlotListPanel::prefixOf(int number) const {
    return m_keyword + "/" + std::to_string(number) + "/";
}

host::StyleInput PlotListPanel::valueOf(int number, const std::string& path) const {
    host::StyleInput value;
    commands().session().getStyle(host::stylePathFromString(prefixOf(number) + path), value);
    return value;
}

bool PlotListPanel::isShown(int number) const {
    const host::StyleInput value = valueOf(number, "Show");
    const long* const flag = std::get_if<long>(&value);
    return flag != nullptr && *flag != 0;
}

void PlotListPanel::refresh() {
    const bool isNew = m_list->count() != count();
    fillList();
    if (isNew || m_list->selectedItems().isEmpty()) {
        chooseFirstShown();
    }
    showChosen();
}

void PlotListPanel::fillList() {
    const QSignalBlocker quiet(m_list);
    while (m_list->count() > count()) {
        delete m_list->takeItem(m_list->count() - 1);
    }
    while (m_list->count() < count()) {
        auto* const item = new QListWidgetItem(m_list);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    }
    for (int i = 0; i < count(); ++i) {
        QListWidgetItem& item = *m_list->item(i);
        const QString title = titleOf(i + 1);
        if (item.text() != title) {
            item.setText(title);
            item.setToolTip(title);
        }
        item.setCheckState(isShown(i + 1) ? Qt::Checked : Qt::Unchecked);
    }
    const int rows = std::clamp(count(), 1, mostRows);
    const int rowHeight = count() > 0 ? m_list->sizeHintForRow(0) : fontMetrics().height();
    m_list->setFixedHeight(rows * rowHeight + 2 * m_list->frameWidth() + 2);
}

void PlotListPanel::chooseFirstShown() {
    if (count() == 0) {
        editor().setPrefixes({});
        return;
    }
    int first = 0;
    for (int i = count() - 1; i >= 0; --i) {
        first = isShown(i + 1) ? i : first;
    }
    m_list->setCurrentRow(first);
    choose();
}

void PlotListPanel::choose() {
    std::vector<std::string> prefixes;
    for (int i = 0; i < m_list->count(); ++i) {
        if (m_list->item(i)->isSelected()) {
            prefixes.push_back(prefixOf(i + 1));
        }
    }
    if (prefixes.empty()) {
        return; // the form keeps showing the former ones
    }
    editor().setPrefixes(std::move(prefixes));
    showChosen();
}

void PlotListPanel::showChosen() {
    StylePanel::refresh();
    if (m_color != nullptr) {
        m_color->setEnabled(!editor().isOn("UseContour"));
    }
    refreshForm();
}

void PlotListPanel::addAppearanceRows() {
    addFlag(tr("Colour by variable"), "UseContour");
    m_color = &addColor(tr("Colour"), "Color");
    addSlider(tr("Opacity"), "Opacity", 0.0, 1.0);
}

} // namespace corvane::gui
