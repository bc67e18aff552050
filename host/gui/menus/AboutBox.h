// Shows the program's version, its add-ons and the libraries it is built with.
#pragma once

#include <QDialog>

namespace corvane::host {
class Session;
}

namespace corvane::gui {

class AboutBox : public QDialog {
    Q_OBJECT

public:
    AboutBox(host::Session& session, QWidget* parent);
};

} // namespace corvane::gui
