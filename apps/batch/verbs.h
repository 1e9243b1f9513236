#pragma once

#include "Verb.h"

#include <memory>
#include <vector>

namespace orvex {

std::unique_ptr<Verb> makeRunVerb();
std::unique_ptr<Verb> makeShowVerb();
std::unique_ptr<Verb> makeListVerb();
std::unique_ptr<Verb> makeJoinVerb();
std::unique_ptr<Verb> makeAuditVerb();
std::unique_ptr<Verb> makeConvertVerb();
std::unique_ptr<Verb> makeExportVerb();

// All of them, as --help lists them.
std::vector<std::unique_ptr<Verb>> makeVerbs();

} // namespace orvex
