// The text of macros: lines, words and quotes.
#pragma once

#include "host/core/base/HostError.h"
#include "host/core/base/QuotedWords.h"

#include <istream>
#include <string>
#include <vector>

namespace corvane::host {

/// A macro that cannot be read or carried out. what() names file and line, shows the line and tells
/// the cause; none of them does harm in a terminal, however long or odd the file is.
class MacroError : public HostError {
public:
    MacroError(const std::string& file, unsigned long line, const std::string& text,
               const std::string& cause);
};

/// "$!STYLE Slice/1/Position = 0.5" has the name STYLE and the words "Slice/1/Position", "=",
/// "0.5".
struct MacroLine {
    std::string name;               ///< without "$!", in capitals
    std::vector<std::string> words; ///< unquoted
    unsigned long number = 0;       ///< from 1 on
    std::string text;               ///< as it stands in the file, without blanks around it
};

/// The line of a macro that splits into these words again: macroLine("VIEW", {"FIT"}) is
/// "$!VIEW FIT".
std::string macroLine(const std::string& name, const std::vector<std::string>& words);

/// Reads the next line that is neither empty nor a comment (#). False at the end. Throws MacroError
/// for a line that does not begin with "$!", cannot be split, holds a zero byte, or is longer than
/// 1 MiB. A byte order mark at the beginning of the file is skipped.
class MacroReader {
public:
    MacroReader(std::istream& stream, std::string fileName);
    bool next(MacroLine& line);

private:
    int nextByte();
    bool readLine(std::string& text);
    void parse(const std::string& text, MacroLine& line) const;
    [[noreturn]] void fail(const std::string& text, const std::string& cause) const;

    std::istream& m_stream;
    std::string m_fileName;
    unsigned long m_number = 0;
};

} // namespace corvane::host
