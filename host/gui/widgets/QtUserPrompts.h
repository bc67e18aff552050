// Message boxes, file dialogs and help pages, in Qt.
#pragma once

#include "host/core/ports/Ports.h"

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>

namespace corvane::gui {

/// Dialogs block the input of all other windows, which are still painted.
class QtUserPrompts : public host::UserPrompts {
public:
    /// helpFolder holds the help pages; showStatus shows a sentence in the status line.
    QtUserPrompts(QWidget& mainWindow, QString helpFolder,
                  std::function<void(const std::string&)> showStatus)
        : m_mainWindow(&mainWindow),
          m_helpFolder(std::move(helpFolder)),
          m_showStatus(std::move(showStatus)) {}

    void showError(const std::string& message) override;
    void showNotice(const std::string& message) override;
    bool askYesNo(const std::string& question) override;
    std::optional<std::string> askFileName(bool forWriting, const std::string& fileType,
                                           const std::string& defaultName,
                                           const std::string& filter) override;
    bool showHelp(const std::string& page) override;

private:
    QWidget* parent() const;

    QPointer<QWidget> m_mainWindow;
    QString m_helpFolder;
    std::function<void(const std::string&)> m_showStatus;
};

} // namespace corvane::gui
