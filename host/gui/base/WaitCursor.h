// Shows the busy cursor for the lifetime of the object.
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace corvane::gui {

class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::BusyCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace corvane::gui
