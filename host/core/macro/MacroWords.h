// The words behind a macro command as values.
#pragma once

#include "host/core/base/Limits.h"

#include <string>
#include <utility>
#include <vector>

namespace corvane::host {

/// The name of a file in a form that does not depend on the folder in which a macro is played.
std::string absoluteName(const std::string& fileName);

/// Throws HostError with the cause.
[[noreturn]] void reject(const std::string& cause);
/// Rejects with "Expected FORM." unless isSo.
void expect(bool isSo, const char* form);

/// All of these reject texts that are none.
double numberFrom(const std::string& text);
int integerFrom(const std::string& text);
long longFrom(const std::string& text);
bool booleanFrom(const std::string& text);
/// Rejects the value of the named setting when it is outside the range too.
int integerWithin(const Range<int>& range, const std::string& name, const std::string& text);

/// The value of the words "= VALUE". Rejects others with the form.
const std::string& valueOf(const std::vector<std::string>& words, const char* form);

/// The settings in the words "NAME = VALUE NAME = VALUE ...", from words[first] on. Rejects others
/// with the form.
std::vector<std::pair<std::string, std::string>> settingsOf(const std::vector<std::string>& words,
                                                            std::size_t first, const char* form);

} // namespace corvane::host
