// A user before a dialog of the add-on: knows what stands on it, and has a mouse and a keyboard.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QStringList>
#include <QWidget>

class QMenu;

namespace corvane::test {

/// All events go to the windows, as the window system's do: what a modal window or a shield keeps
/// away does not arrive. Whatever is not there throws std::logic_error.
class DialogUser {
public:
    /// Waits for the dialog to come up, and makes it the active window.
    explicit DialogUser(const QString& title);

    /// Also to be called when a message box was up meanwhile.
    void activate() const;

    static bool isUp(const QString& title);
    static void click(QWidget& widget, QPoint at, Qt::KeyboardModifiers keys = {});
    /// Opens a menu of the bar in this window by Alt and a letter, and chooses by another.
    static void chooseByKeys(QWidget& window, Qt::Key menu, Qt::Key entry);

    QWidget& window() const { return *m_window; }
    /// Push, radio and check buttons; without mnemonic and padding, line breaks as blanks.
    QAbstractButton& button(const QString& text) const;
    QLabel& label(const QString& text) const;
    /// What stands beside or below what has this text.
    QLineEdit& field(const QString& caption) const { return *nearest<QLineEdit>(caption); }
    QComboBox& options(const QString& caption) const { return *nearest<QComboBox>(caption); }
    QListView& list() const;
    QStringList rows() const;
    QList<int> selectedRows() const; ///< from 0, ascending
    QAction& entry(const QString& menu, const QString& text) const;

    void click(const QString& button) const;
    void clickRow(int row, Qt::KeyboardModifiers keys = {}) const; ///< from 0
    void choose(const QString& menu, const QString& entry) const;  ///< with the mouse
    void pick(const QString& caption, const QString& item) const;  ///< in an option menu
    /// Instead of what is there; without Return.
    void type(const QString& caption, const QString& text) const;
    void enter(const QString& caption, const QString& text) const; ///< with Return
    void press(Qt::Key key, Qt::KeyboardModifiers keys = {}) const;

private:
    template <class T>
    T* nearest(const QString& caption) const;
    QRect placeOf(const QWidget& widget) const;
    QRect placeOfCaption(const QString& caption) const;
    QMenu& openMenu(const QString& title) const;

    QPointer<QWidget> m_window;
};

} // namespace corvane::test
