// Texts of add-ons, escaped so that Qt finds no mnemonics or markup in them.
#pragma once

#include <QString>
#include <string>

namespace corvane::gui {

/// For labels in which Qt would take '&' for a mnemonic.
QString withoutMnemonics(const std::string& text);
/// For tool tips, which Qt would render as HTML if they look like it.
QString plainToolTip(const std::string& text);
/// "Animate" of "&Animate"; "A & B" of "A && B".
QString withoutAmpersands(const QString& title);

} // namespace corvane::gui
