// Lists what the mouse and the keys do.
#pragma once

#include <QDialog>

namespace corvane::gui {

class KeyHelp : public QDialog {
    Q_OBJECT

public:
    explicit KeyHelp(QWidget* parent);
};

} // namespace corvane::gui
