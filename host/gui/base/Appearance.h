// Light and dark colours of the program's windows.
#pragma once

class QString;

namespace corvane::gui {

enum class Appearance { System, Light, Dark };

/// Changes all windows of the program at once. System is what the desktop says.
void applyAppearance(Appearance appearance);

/// "system", "light", "dark", for keeping; an unknown word is the system's.
QString nameOf(Appearance appearance);
Appearance appearanceNamed(const QString& name);

} // namespace corvane::gui
