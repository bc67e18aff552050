// A user before file dialogs and message boxes that keep the test waiting.
#pragma once

#include <QStringList>
#include <QTimer>

namespace corvane::test {

/// A dialog that is asked for by a click returns to the test only when it has been answered, so the
/// answers must be known before. Names are pasted, whatever letters they have.
class FileDialogUser {
public:
    FileDialogUser();

    /// The next file dialog gets this name; more of them queue up.
    void answer(const std::string& fileName);
    bool hasAnsweredAll() const { return m_names.isEmpty(); }

    /// The texts of all message boxes so far; each is closed with Return.
    const QStringList& boxes() const { return m_boxes; }

private:
    void look();

    QTimer m_timer;
    QStringList m_names;
    QStringList m_boxes;
};

} // namespace corvane::test
