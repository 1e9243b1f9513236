#include "findingText.h"

#include "hostText.h"

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
        return hostText("its style is missing");
    case FindingCode::elements:
        return hostText("elements");
    case FindingCode::chain:
        return hostText("its chain can't be judged");
    case FindingCode::axis:
        return hostText("degrees between axis and segment");
    case FindingCode::miter:
        return hostText("degrees between axis and miter");
    case FindingCode::position:
        return hostText("distance from the chain");
    case FindingCode::order:
        return hostText("distance");
    case FindingCode::reach:
        return hostText("reach");
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
        return markedText("found");
    case FindingResult::repaired:
        return markedText("repaired");
    case FindingResult::left:
        return markedText("left");
    }
    return "";
}

std::string shownName(FindingResult result) {
    return hostText(nameOf(result));
}

std::string textOf(const Finding& finding) {
    std::string place;
    const bool isOfAll = finding.code == FindingCode::style ||
                         finding.code == FindingCode::elements ||
                         finding.code == FindingCode::chain;
    if (!isOfAll) {
        const std::string vertex = std::to_string(finding.vertex);
        place = finding.element
                    ? hostText("vertex %1, element %2", {vertex, std::to_string(*finding.element)})
                    : hostText("vertex %1", {vertex});
        place += ": ";
    }
    if (!finding.was || !finding.should) {
        return place + what(finding);
    }
    return place + hostText("%1 %2, should be %3",
                            {what(finding), numberText(*finding.was), numberText(*finding.should)});
}

} // namespace orvex
