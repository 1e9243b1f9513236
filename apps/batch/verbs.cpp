#include "verbs.h"

namespace orvex {

std::vector<std::unique_ptr<Verb>> makeVerbs() {
    std::vector<std::unique_ptr<Verb>> verbs;
    for (const auto make :
         {makeRunVerb, makeShowVerb, makeListVerb, makeJoinVerb, makeAuditVerb, makeConvertVerb}) {
        verbs.push_back(make());
    }
    return verbs;
}

} // namespace orvex
