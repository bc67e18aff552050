// Light and dark color schemes of the program's windows.
#pragma once

class QString;

namespace corvane::gui {

enum class Appearance { System, Light, Dark };

/// Applies to all windows of the program. System follows the settings of the desktop.
void applyAppearance(Appearance appearance);

/// "system", "light" or "dark", for the settings file; an unknown name means System.
QString nameOf(Appearance appearance);
Appearance appearanceNamed(const QString& name);

} // namespace corvane::gui
