// A style value of the host, addressed by a root path and a sub path of keywords.
#pragma once

#include "hostapi/CorEnums.h"
#include "hostapi/CorStyle.h"
#include "hostapi/toolbox/ArgList.h"
#include "hostapi/toolbox/StringList.h"

#include <initializer_list>
#include <string>

namespace corvane::toolbox {

// Holds the root path alone, never a frame: every call reaches the frame that is active at that
// moment. Keywords compare without regard to letter case. A path ends at its first NULL keyword.
// Only the constructors allocate: what is read and written later never throws, so that destructors
// can put values back.
class StyleValue {
public:
    explicit StyleValue(const char* p1, const char* p2 = 0, const char* p3 = 0,
                        const char* p4 = 0) {
        for (const char* keyword : {p1, p2, p3, p4}) {
            if (!keyword)
                break;
            m_root.append(keyword);
        }
    }
    ~StyleValue() {}

    // Reads. Unless the result is StyleGet_Ok, out is untouched.
    StyleGetResult_e getDouble(double& out, const char* s1 = 0, const char* s2 = 0) const {
        ArgList args;
        setupSetValueArgList(args, s1, s2);
        double value = 0.0;
        args.appendDoublePtr("DValue", &value);
        const StyleGetResult_e result = styleGetLowLevel(args);
        if (result == StyleGet_Ok)
            out = value;
        return result;
    }
    StyleGetResult_e getInteger(long& out, const char* s1 = 0, const char* s2 = 0) const {
        ArgList args;
        setupSetValueArgList(args, s1, s2);
        int value = 0;
        args.appendIntPtr("IValue", &value);
        const StyleGetResult_e result = styleGetLowLevel(args);
        if (result == StyleGet_Ok)
            out = value;
        return result;
    }
    StyleGetResult_e getBoolean(bool& out, const char* s1 = 0, const char* s2 = 0) const {
        long value = 0;
        const StyleGetResult_e result = getInteger(value, s1, s2);
        if (result == StyleGet_Ok)
            out = value != 0;
        return result;
    }

    // Writes. Unless the result is StyleSet_Ok, the value in the host is what it was.
    StyleSetResult_e set(double v, const char* s1 = 0, const char* s2 = 0) {
        ArgList args;
        setupSetValueArgList(args, s1, s2);
        return setFinalValue(args, v);
    }
    StyleSetResult_e setBoolean(bool v, const char* s1 = 0, const char* s2 = 0) {
        ArgList args;
        setupSetValueArgList(args, s1, s2);
        args.appendInt("IValue", v ? 1 : 0);
        return setFinalValue(args, v ? 1.0 : 0.0);
    }

    // Appends the root path and s1, s2 to args, as "Path1", "Path2" and so on.
    void setupSetValueArgList(ArgList& args, const char* s1, const char* s2 = 0) const {
        static constexpr const char* names[] = {"Path1", "Path2", "Path3",
                                                "Path4", "Path5", "Path6"};
        int depth = 0;
        const auto appendKeyword = [&](const char* keyword) {
            args.appendString(names[depth++], keyword);
        };
        for (long n = 1; n <= m_root.count(); ++n)
            appendKeyword(m_root.string(n).c_str());
        for (const char* keyword : {s1, s2}) {
            if (!keyword)
                break;
            appendKeyword(keyword);
        }
    }

    // Appends "DValue" and applies args, which hold the path already.
    StyleSetResult_e setFinalValue(ArgList& args, double v) {
        args.appendDouble("DValue", v);
        return styleSetLowLevel(args);
    }

    // Applies args, which hold the path and the value.
    static StyleSetResult_e styleSetLowLevel(const ArgList& args) {
        if (!args.handle())
            return StyleSet_BadPath;
        return static_cast<StyleSetResult_e>(CorUtilStyleSet(args.handle()));
    }

private:
    static StyleGetResult_e styleGetLowLevel(const ArgList& args) {
        if (!args.handle())
            return StyleGet_BadPath;
        return static_cast<StyleGetResult_e>(CorUtilStyleGet(args.handle()));
    }

    StringList m_root;
};

} // namespace corvane::toolbox
