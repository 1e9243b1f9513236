#pragma once

#include "Failure.h"

namespace orvex {

// Why an edit can't be made; `text` is for the user.
inline Failure impossible(std::string text) {
    return {FailureCause::impossibleEdit, {}, 0, std::move(text)};
}

} // namespace orvex
