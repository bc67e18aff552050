// Texts of add-ons as Qt has to be given them, so that it takes nothing in them for mark-up.
#pragma once

#include <QString>
#include <string>

namespace corvane::gui {

/// For what would take '&' for a mnemonic.
QString withoutMnemonics(const std::string& text);
/// For what would take a text that looks like HTML for HTML.
QString plainToolTip(const std::string& text);
/// "Animate" of "&Animate"; "A & B" of "A && B".
QString withoutAmpersands(const QString& title);

} // namespace corvane::gui
