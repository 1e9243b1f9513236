#include "findingText.h"

#include <charconv>

namespace orvex {

std::string numberText(double value) {
    char buffer[32];
    auto* const end = std::to_chars(buffer, buffer + sizeof(buffer), value).ptr;
    return {buffer, end};
}

namespace {

std::string what(const Finding& finding) {
    switch (finding.code) {
    case FindingCode::style:
        return "its style is missing";
    case FindingCode::elements:
        return "elements";
    case FindingCode::chain:
        return "its chain can't be judged";
    case FindingCode::axis:
        return "degrees between axis and segment";
    case FindingCode::miter:
        return "degrees between axis and miter";
    case FindingCode::position:
        return "distance from the chain";
    case FindingCode::order:
        return "distance";
    case FindingCode::reach:
        return "reach";
    }
    return {};
}

} // namespace

const char* nameOf(FindingCode code) {
    switch (code) {
    case FindingCode::style:
        return "style";
    case FindingCode::elements:
        return "elements";
    case FindingCode::chain:
        return "chain";
    case FindingCode::axis:
        return "axis";
    case FindingCode::miter:
        return "miter";
    case FindingCode::position:
        return "position";
    case FindingCode::order:
        return "order";
    case FindingCode::reach:
        return "reach";
    }
    return "";
}

const char* nameOf(FindingResult result) {
    switch (result) {
    case FindingResult::found:
        return "found";
    case FindingResult::repaired:
        return "repaired";
    case FindingResult::left:
        return "left";
    }
    return "";
}

std::string textOf(const Finding& finding) {
    std::string place;
    const bool isOfAll = finding.code == FindingCode::style ||
                         finding.code == FindingCode::elements ||
                         finding.code == FindingCode::chain;
    if (!isOfAll) {
        place = "vertex " + std::to_string(finding.vertex);
        if (finding.element) {
            place += ", element " + std::to_string(*finding.element);
        }
        place += ": ";
    }
    if (!finding.was || !finding.should) {
        return place + what(finding);
    }
    return place + what(finding) + " " + numberText(*finding.was) + ", should be " +
           numberText(*finding.should);
}

} // namespace orvex
