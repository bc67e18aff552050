// The settings of plots of one kind: a list to show and select them, and a form for those selected.
#pragma once

#include "host/gui/panels/StylePanel.h"

class QListWidget;

namespace corvane::gui {

class PlotListPanel : public StylePanel {
    Q_OBJECT

public:
    /// keyword: the first one of the style paths, such as "Slice".
    PlotListPanel(const Commands& commands, std::string keyword);

    void refresh() override;

    QListWidget& list() const { return *m_list; }

protected:
    virtual int count() const = 0;
    virtual QString titleOf(int number) const = 0; ///< from 1
    /// Updates what the form depends on besides its style values, such as the range of a slider.
    virtual void refreshForm() {}

    /// Color by variable, color and opacity, which all kinds have.
    void addAppearanceRows();
    host::StyleInput valueOf(int number, const std::string& path) const;

private:
    void fillList();
    void choose();
    void chooseFirstShown();
    void showChosen();
    std::string prefixOf(int number) const;
    bool isShown(int number) const;

    std::string m_keyword;
    QListWidget* m_list;
    ColorButton* m_color = nullptr;
};

} // namespace corvane::gui
