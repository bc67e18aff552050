#include "host/gui/panels/StyleEditor.h"

#include "host/core/Host.h"
#include "host/core/base/Text.h"
#include "host/gui/base/QtText.h"
#include "host/gui/controls/ColorButton.h"
#include "host/gui/controls/NumberEdit.h"
#include "host/gui/controls/ValueSlider.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <cmath>

namespace corvane::gui {

namespace {

/// Three digits are enough to distinguish the 256 levels of a screen.
double colorPart(float part) {
    return std::round(static_cast<double>(part) * 1000.0) / 1000.0;
}

} // namespace

StyleEditor::StyleEditor(const Commands& commands, QObject* parent)
    : QObject(parent), m_commands(commands) {}

void StyleEditor::setPrefixes(std::vector<std::string> prefixes) {
    m_prefixes = std::move(prefixes);
}

void StyleEditor::bind(QCheckBox& box, const std::string& path) {
    connect(&box, &QCheckBox::clicked, this,
            [this, path](bool isOn) { set(path, isOn ? "true" : "false"); });
    m_refresh.emplace_back([this, &box, path] { box.setChecked(isOn(path)); });
}

void StyleEditor::bind(NumberEdit& edit, const std::string& path) {
    connect(&edit, &NumberEdit::committed, this, [this, path](double value) { set(path, value); });
    m_refresh.emplace_back([this, &edit, path] { edit.setValue(number(path)); });
}

void StyleEditor::bind(ValueSlider& slider, const std::string& path) {
    connect(&slider, &ValueSlider::committed, this,
            [this, path](double value) { set(path, value); });
    connect(&slider, &ValueSlider::dragged, this,
            [this, path](double value) { preview(path, value); });
    m_refresh.emplace_back([this, &slider, path] { slider.setValue(number(path)); });
}

void StyleEditor::bind(QLineEdit& edit, const std::string& path) {
    connect(&edit, &QLineEdit::editingFinished, this, [this, &edit, path] {
        if (edit.isModified()) {
            edit.setModified(false);
            set(path, fromQt(edit.text()));
        }
    });
    m_refresh.emplace_back([this, &edit, path] {
        if (!edit.isModified() && fromQt(edit.text()) != text(path)) {
            edit.setText(toQt(text(path)));
        }
    });
}

void StyleEditor::bind(QComboBox& box, const std::string& path) {
    connect(&box, &QComboBox::activated, this,
            [this, &box, path](int index) { set(path, fromQt(box.itemData(index).toString())); });
    m_refresh.emplace_back([this, &box, path] {
        const QSignalBlocker quiet(&box);
        box.setCurrentIndex(box.findData(toQt(text(path))));
    });
}

void StyleEditor::bind(ColorButton& button, const std::string& path) {
    connect(&button, &ColorButton::committed, this,
            [this, path](const QColor& color) { setColor(path, color); });
    m_refresh.emplace_back([this, &button, path] { button.setColor(color(path)); });
}

void StyleEditor::refresh() {
    if (!hasTarget()) {
        return;
    }
    for (const auto& refreshControl : m_refresh) {
        refreshControl();
    }
}

std::optional<host::StyleInput> StyleEditor::get(const std::string& path) const {
    host::StyleInput value;
    const bool isThere = hasTarget() && m_commands.session().getStyle(
                                            host::stylePathFromString(m_prefixes.front() + path),
                                            value) == StyleGet_Ok;
    return isThere ? std::optional(value) : std::nullopt;
}

bool StyleEditor::isOn(const std::string& path) const {
    const auto value = get(path);
    const long* const flag = value ? std::get_if<long>(&*value) : nullptr;
    return flag != nullptr && *flag != 0;
}

double StyleEditor::number(const std::string& path) const {
    const auto value = get(path);
    const double* const held = value ? std::get_if<double>(&*value) : nullptr;
    if (held != nullptr) {
        return *held;
    }
    const long* const whole = value ? std::get_if<long>(&*value) : nullptr;
    return whole != nullptr ? static_cast<double>(*whole) : 0.0;
}

std::string StyleEditor::text(const std::string& path) const {
    const auto value = get(path);
    if (!value) {
        return {};
    }
    if (const auto* const held = std::get_if<std::string>(&*value)) {
        return *held;
    }
    const long* const whole = std::get_if<long>(&*value);
    return whole != nullptr ? std::to_string(*whole) : host::exactText(std::get<double>(*value));
}

void StyleEditor::set(const std::string& path, const std::string& value) {
    for (const std::string& prefix : m_prefixes) {
        if (!m_commands.setStyle(prefix + path, value)) {
            break;
        }
    }
    refresh();
}

void StyleEditor::set(const std::string& path, double value) {
    set(path, host::exactText(value));
}

void StyleEditor::preview(const std::string& path, double value) {
    for (const std::string& prefix : m_prefixes) {
        m_commands.session().setStyle(host::stylePathFromString(prefix + path), value);
    }
}

void StyleEditor::setColor(const std::string& path, const QColor& chosen) {
    // A copy, since the refresh after the first component changes the color of the button.
    const QColor color = chosen;
    set(path + "/Red", colorPart(color.redF()));
    set(path + "/Green", colorPart(color.greenF()));
    set(path + "/Blue", colorPart(color.blueF()));
}

QColor StyleEditor::color(const std::string& path) const {
    const auto part = [&](const char* name) { return static_cast<float>(number(path + name)); };
    return QColor::fromRgbF(part("/Red"), part("/Green"), part("/Blue"));
}

} // namespace corvane::gui
