#include "verbs.h"

#include <filesystem>

namespace orvex {

std::string Verb::outputEnding(const std::string& drawing) const {
    return std::filesystem::path(drawing).extension().string();
}

std::vector<std::unique_ptr<Verb>> makeVerbs() {
    std::vector<std::unique_ptr<Verb>> verbs;
    for (const auto make : {makeRunVerb, makeShowVerb, makeListVerb, makeJoinVerb, makeAuditVerb,
                            makeConvertVerb, makeExportVerb}) {
        verbs.push_back(make());
    }
    return verbs;
}

} // namespace orvex
