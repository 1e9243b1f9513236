#pragma once

#include <string>
#include <vector>

namespace orvex {

class DatabaseCore;

// The names of a drawing's styles and layers as a user finds them by, without repetitions, in the
// drawing's order.
std::vector<std::wstring> styleNames(DatabaseCore& core);
std::vector<std::wstring> layerNames(DatabaseCore& core);

// What is told after a wrong name, "; there are A, B": the first dozens.
std::wstring namesThereAre(const std::vector<std::wstring>& names);

// Goes with the next question, whose field completes what is typed to one of the names.
void offerNames(std::vector<std::wstring> names);

} // namespace orvex
