// The program, its add-ons, and what it is built with.
#pragma once

#include <QDialog>

namespace corvane::host {
class Application;
}

namespace corvane::gui {

class AboutBox : public QDialog {
    Q_OBJECT

public:
    AboutBox(host::Application& application, QWidget* parent);
};

} // namespace corvane::gui
