#include "host/movie/libav/LibavOptions.h"

namespace corvane::movie {

LibavDictionary::LibavDictionary(const LibavOptions& options, const LibavCheck& check) {
    for (const auto& [name, value] : options) {
        check(av_dict_set(&m_dictionary, name.c_str(), value.c_str(), 0), "setting an option");
    }
}

void LibavDictionary::requireAllUsed(const LibavCheck& check) const {
    if (const AVDictionaryEntry* left =
            av_dict_get(m_dictionary, "", nullptr, AV_DICT_IGNORE_SUFFIX)) {
        check.fail(std::string("this libav does not know the option \"") + left->key + "\"");
    }
}

} // namespace corvane::movie
