// Binds controls to style values of the active frame.
#pragma once

#include "host/core/page/StyleTree.h"
#include "host/gui/commands/Commands.h"

#include <QColor>
#include <QObject>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace corvane::gui {

class ColorButton;
class NumberEdit;
class ValueSlider;

/// A change by the user becomes a STYLE command; refresh() shows changes made elsewhere, and
/// performs none. Paths are appended to each of the prefixes: the values under the first prefix are
/// shown, and a change applies to all.
class StyleEditor : public QObject {
    Q_OBJECT

public:
    explicit StyleEditor(const Commands& commands, QObject* parent = nullptr);

    void setPrefixes(std::vector<std::string> prefixes);
    bool hasTarget() const { return !m_prefixes.empty(); }

    void bind(QCheckBox& box, const std::string& path);
    void bind(NumberEdit& edit, const std::string& path);
    void bind(ValueSlider& slider, const std::string& path);
    void bind(QLineEdit& edit, const std::string& path);
    /// The data of the items are the values as written in macros.
    void bind(QComboBox& box, const std::string& path);
    /// The values Red, Green and Blue below the path.
    void bind(ColorButton& button, const std::string& path);

    void refresh();

    std::optional<host::StyleInput> get(const std::string& path) const;
    bool isOn(const std::string& path) const;
    double number(const std::string& path) const;
    std::string text(const std::string& path) const;
    void set(const std::string& path, const std::string& value);
    void set(const std::string& path, double value);

private:
    /// Shows a value while a slider is dragged, without a command that would be recorded.
    void preview(const std::string& path, double value);
    void setColor(const std::string& path, const QColor& color);
    QColor color(const std::string& path) const;

    Commands m_commands;
    std::vector<std::string> m_prefixes{""};
    std::vector<std::function<void()>> m_refresh;
};

} // namespace corvane::gui
