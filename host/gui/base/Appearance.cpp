#include "host/gui/base/Appearance.h"

#include <QApplication>
#include <QPalette>
#include <QString>
#include <QStyle>
#include <QStyleFactory>

namespace corvane::gui {

namespace {

constexpr QRgb accent = 0xff2f7fd1;

struct Shades {
    QRgb window, base, alternate, button, text, faint, light, dark;
};

constexpr Shades lightShades{0xfff3f4f6, 0xffffffff, 0xfff6f7f9, 0xfff7f8fa,
                             0xff20242a, 0xff9aa0a8, 0xffffffff, 0xffb4b9c1};
constexpr Shades darkShades{0xff3b3e44, 0xff25282c, 0xff2b2e33, 0xff4a4e55,
                            0xffe8eaee, 0xff8f959e, 0xff5a5f67, 0xff1b1d20};

QPalette paletteOf(const Shades& shades) {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, QRgb color) {
        palette.setColor(role, QColor::fromRgba(color));
    };
    set(QPalette::Window, shades.window);
    set(QPalette::Base, shades.base);
    set(QPalette::AlternateBase, shades.alternate);
    set(QPalette::Button, shades.button);
    set(QPalette::ToolTipBase, shades.base);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        set(role, shades.text);
        palette.setColor(QPalette::Disabled, role, QColor::fromRgba(shades.faint));
    }
    set(QPalette::PlaceholderText, shades.faint);
    set(QPalette::BrightText, 0xffffffff);
    set(QPalette::Light, shades.light);
    set(QPalette::Midlight, shades.button);
    set(QPalette::Mid, shades.dark);
    set(QPalette::Dark, shades.dark);
    set(QPalette::Shadow, 0xff101214);
    set(QPalette::Highlight, accent);
    set(QPalette::HighlightedText, 0xffffffff);
    set(QPalette::Link, accent);
    return palette;
}

QString& systemStyle() {
    static QString name;
    return name;
}

void useStyle(const QString& name) {
    if (QApplication::style()->name().compare(name, Qt::CaseInsensitive) != 0) {
        QApplication::setStyle(QStyleFactory::create(name));
    }
}

} // namespace

void applyAppearance(Appearance appearance) {
    if (systemStyle().isEmpty()) {
        systemStyle() = QApplication::style()->name();
    }
    if (appearance == Appearance::System) {
        useStyle(systemStyle());
        QApplication::setPalette(QPalette());
        return;
    }
    useStyle(QStringLiteral("fusion")); // the style that follows any palette
    QApplication::setPalette(paletteOf(appearance == Appearance::Dark ? darkShades : lightShades));
}

QString nameOf(Appearance appearance) {
    switch (appearance) {
    case Appearance::Light:
        return QStringLiteral("light");
    case Appearance::Dark:
        return QStringLiteral("dark");
    case Appearance::System:
        break;
    }
    return QStringLiteral("system");
}

Appearance appearanceNamed(const QString& name) {
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        if (name == nameOf(appearance)) {
            return appearance;
        }
    }
    return Appearance::System;
}

} // namespace corvane::gui
