// Recording of movies.
#include "hostapi/CorExport.h"

#include "host/api/TracedCall.h"

using namespace corvane::host;

namespace {

/// Word by word: GCC 12 destroys the words of a braced list that is cut short for want of memory
/// after their end.
StylePath pathOf(const char* name) {
    StylePath path;
    path.emplace_back("ExportSetup");
    path.emplace_back(name);
    return path;
}

/// Integers, numbers and texts come in different arguments; the setting decides which one counts.
bool setSetting(Session& session, const StylePath& path, const char* text, long integer,
                double number) {
    StyleInput value;
    if (session.getStyle(path, value) != StyleGet_Ok) {
        return false;
    }
    if (std::holds_alternative<long>(value)) {
        value = integer;
    } else if (std::holds_alternative<double>(value)) {
        value = number;
    } else if (text) {
        value = std::string(text);
    } else {
        return false;
    }
    const StyleSetResult_e result = session.setStyle(path, value);
    return result == StyleSet_Ok || result == StyleSet_Unchanged;
}

/// An operation that needs a movie being recorded.
CorBool whileRecording(const char* operation, bool (Exporter::*step)()) {
    const TracedCall call(operation);
    return call.answer(false, [&](Session& session) {
        Exporter& exporter = session.exporter();
        return exporter.isRecording() ? (exporter.*step)() : call.misuse("nothing is recorded");
    });
}

} // namespace

CorBool CorUtilExportIsRecording(void) {
    return TracedCall("CorUtilExportIsRecording").answer(false, [](Session& session) {
        return session.exporter().isRecording();
    });
}

CorBool CorUtilExportStart(void) {
    const TracedCall call("CorUtilExportStart");
    return call.answer(false, [&](Session& session) {
        return session.exporter().isRecording() ? call.misuse("a movie is being recorded already")
                                                : session.exporter().start();
    });
}

CorBool CorUtilExportNextFrame(void) {
    return whileRecording("CorUtilExportNextFrame", &Exporter::nextFrame);
}

CorBool CorUtilExportFinish(void) {
    return whileRecording("CorUtilExportFinish", &Exporter::finish);
}

CorBool CorUtilExportCancel(void) {
    return whileRecording("CorUtilExportCancel", &Exporter::cancel);
}

CorBool CorUtilExportSetup(const char* name, const char* text, int integerValue,
                           double doubleValue) {
    const TracedCall call("CorUtilExportSetup", name, text, integerValue, doubleValue);
    return call.answer(false, [&](Session& session) {
        return name ? setSetting(session, pathOf(name), text, integerValue, doubleValue)
                    : call.misuse("name is NULL");
    });
}
