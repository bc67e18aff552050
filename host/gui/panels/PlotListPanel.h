// Several plots of one kind: a list to show and choose them, and a form for the chosen ones.
#pragma once

#include "host/gui/panels/StylePanel.h"

class QListWidget;

namespace corvane::gui {

class PlotListPanel : public StylePanel {
    Q_OBJECT

public:
    /// The first keyword of the paths: "Slice".
    PlotListPanel(const Commands& commands, std::string keyword);

    void refresh() override;

    QListWidget& list() const { return *m_list; }

protected:
    virtual int count() const = 0;
    virtual QString titleOf(int number) const = 0; ///< numbers count from 1
    /// Shows what the form depends on beside its own values.
    virtual void refreshForm() {}

    /// Colour by a variable or one colour, and opacity: what all kinds have.
    void addLook();
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
