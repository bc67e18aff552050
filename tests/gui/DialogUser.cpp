// A user before a dialog of the add-on: knows what stands on it, and has a mouse and a keyboard.
#include "tests/gui/DialogUser.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>
#include <QtTest>
#include <algorithm>
#include <limits>
#include <stdexcept>

namespace corvane::test {

namespace {

QString asRead(QString text) {
    return text.remove(QLatin1Char('&')).simplified();
}

std::logic_error missing(const char* what, const QString& name) {
    return std::logic_error(std::string("There is no ") + what + " \"" + name.toStdString() + '"');
}

QDialog* find(const QString& title) {
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        auto* const dialog = qobject_cast<QDialog*>(window);
        if (dialog != nullptr && dialog->isVisible() && dialog->windowTitle() == title) {
            return dialog;
        }
    }
    return nullptr;
}

QAction& actionIn(const QWidget& menu, const QString& text) {
    const auto actions = menu.actions();
    for (QAction* const action : actions) {
        if (asRead(action->text()) == text) {
            return *action;
        }
    }
    throw missing("menu or entry", text);
}

/// Pixels between two places: above and below count first, then left and right.
qint64 distance(const QRect& caption, const QRect& place) {
    const auto gap = [](int first, int last, int otherFirst, int otherLast) {
        return std::max({0, otherFirst - last, first - otherLast});
    };
    const qint64 down = gap(caption.top(), caption.bottom(), place.top(), place.bottom());
    const qint64 across = gap(caption.left(), caption.right(), place.left(), place.right());
    return 10000 * down + across;
}

} // namespace

bool DialogUser::isUp(const QString& title) {
    return find(title) != nullptr;
}

DialogUser::DialogUser(const QString& title) {
    if (!QTest::qWaitFor([&] { return isUp(title); })) {
        throw missing("dialog", title);
    }
    m_window = find(title);
    activate();
}

void DialogUser::activate() const {
    // There is no window manager that would give it the keys.
    m_window->activateWindow();
    if (!QTest::qWaitForWindowActive(m_window)) {
        throw std::runtime_error("The dialog does not become active.");
    }
}

void DialogUser::click(QWidget& widget, QPoint at, Qt::KeyboardModifiers keys) {
    QWidget& top = *widget.window();
    QTest::mouseClick(top.windowHandle(), Qt::LeftButton, keys, widget.mapTo(&top, at));
}

void DialogUser::chooseByKeys(QWidget& window, Qt::Key menu, Qt::Key entry) {
    // Again until it opens: where a dialog has just gone, the display may be about to take the keys
    // away from the window once more.
    const bool isOpen = QTest::qWaitFor([&] {
        if (QApplication::activePopupWidget() == nullptr) {
            window.activateWindow();
            QTest::keyClick(window.windowHandle(), menu, Qt::AltModifier);
        }
        return QApplication::activePopupWidget() != nullptr;
    });
    if (!isOpen) {
        throw std::logic_error("The keys open no menu.");
    }
    QTest::keyClick(QApplication::activePopupWidget(), entry);
}

QAbstractButton& DialogUser::button(const QString& text) const {
    const auto buttons = m_window->findChildren<QAbstractButton*>();
    for (QAbstractButton* const button : buttons) {
        if (asRead(button->text()) == text) {
            return *button;
        }
    }
    throw missing("button", text);
}

QLabel& DialogUser::label(const QString& text) const {
    const auto labels = m_window->findChildren<QLabel*>();
    for (QLabel* const label : labels) {
        if (label->text().startsWith(text)) {
            return *label;
        }
    }
    throw missing("label", text);
}

QListView& DialogUser::list() const {
    const auto lists = m_window->findChildren<QListView*>();
    for (QListView* const list : lists) {
        if (list->window() == m_window) { // option menus have lists in windows of their own
            return *list;
        }
    }
    throw missing("list in", m_window->windowTitle());
}

QStringList DialogUser::rows() const {
    const QAbstractItemModel& model = *list().model();
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, 0).data().toString());
    }
    return texts;
}

QList<int> DialogUser::selectedRows() const {
    QList<int> rows;
    const auto indexes = list().selectionModel()->selectedIndexes();
    for (const QModelIndex& index : indexes) {
        rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

QRect DialogUser::placeOf(const QWidget& widget) const {
    return {widget.mapTo(m_window, QPoint(0, 0)), widget.size()};
}

QRect DialogUser::placeOfCaption(const QString& caption) const {
    const auto labels = m_window->findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        if (label->text() == caption) {
            return placeOf(*label);
        }
    }
    return placeOf(button(caption));
}

template <class T>
T* DialogUser::nearest(const QString& caption) const {
    const QRect place = placeOfCaption(caption);
    T* found = nullptr;
    qint64 shortest = std::numeric_limits<qint64>::max();
    const auto candidates = m_window->findChildren<T*>();
    for (T* const candidate : candidates) {
        const qint64 length = distance(place, placeOf(*candidate));
        if (length < shortest) {
            shortest = length;
            found = candidate;
        }
    }
    if (found == nullptr) {
        throw missing("field for", caption);
    }
    return found;
}

template QLineEdit* DialogUser::nearest(const QString& caption) const;
template QComboBox* DialogUser::nearest(const QString& caption) const;

QAction& DialogUser::entry(const QString& menu, const QString& text) const {
    const auto* const bar = m_window->findChild<QMenuBar*>();
    if (bar == nullptr) {
        throw missing("menu bar in", m_window->windowTitle());
    }
    return actionIn(*actionIn(*bar, menu).menu(), text);
}

QMenu& DialogUser::openMenu(const QString& title) const {
    auto* const bar = m_window->findChild<QMenuBar*>();
    if (bar == nullptr) {
        throw missing("menu bar in", m_window->windowTitle());
    }
    QAction& action = actionIn(*bar, title);
    click(*bar, bar->actionGeometry(&action).center());
    if (!QTest::qWaitForWindowExposed(action.menu())) {
        throw std::runtime_error("The menu does not open.");
    }
    return *action.menu();
}

void DialogUser::click(const QString& text) const {
    QAbstractButton& clicked = button(text);
    // The left end: the area that answers a click in a check box is as wide as its text.
    click(clicked, QPoint(8, clicked.height() / 2));
}

void DialogUser::clickRow(int row, Qt::KeyboardModifiers keys) const {
    QListView& view = list();
    const QModelIndex index = view.model()->index(row, 0);
    view.scrollTo(index);
    click(*view.viewport(), view.visualRect(index).center(), keys);
}

void DialogUser::choose(const QString& menu, const QString& entry) const {
    QMenu& popup = openMenu(menu);
    click(popup, popup.actionGeometry(&actionIn(popup, entry)).center());
}

void DialogUser::pick(const QString& caption, const QString& item) const {
    QComboBox& box = options(caption);
    const int wanted = box.findText(item);
    if (wanted < 0) {
        throw missing("item", item);
    }
    click(box, box.rect().center());
    if (!QTest::qWaitForWindowExposed(box.view()->window())) {
        throw std::runtime_error("The option menu does not open.");
    }
    QTest::keyClick(box.view(), Qt::Key_Home);
    for (int step = 0; step < wanted; ++step) {
        QTest::keyClick(box.view(), Qt::Key_Down);
    }
    QTest::keyClick(box.view(), Qt::Key_Return);
}

void DialogUser::type(const QString& caption, const QString& text) const {
    QLineEdit& edit = field(caption);
    click(edit, edit.rect().center());
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    for (const QChar character : text) {
        QTest::keyClick(m_window->windowHandle(), character.toLatin1());
    }
}

void DialogUser::enter(const QString& caption, const QString& text) const {
    type(caption, text);
    press(Qt::Key_Return);
}

void DialogUser::press(Qt::Key key, Qt::KeyboardModifiers keys) const {
    QTest::keyClick(m_window->windowHandle(), key, keys);
}

} // namespace corvane::test
