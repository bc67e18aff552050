// Shows the files, times, extent, variables and blocks of a data set.
#pragma once

#include <QDialog>

namespace corvane::host {
class DataSet;
}

namespace corvane::gui {

class DataInformation : public QDialog {
    Q_OBJECT

public:
    DataInformation(const host::DataSet& described, QWidget* parent);
};

} // namespace corvane::gui
