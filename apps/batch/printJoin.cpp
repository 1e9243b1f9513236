#include "printJoin.h"

#include "JoinRun.h"
#include "fileNameJson.h"
#include "handleText.h"
#include "printableText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstdio>

namespace orvex {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::array kResults{PlaceResult::joined, PlaceResult::already, PlaceResult::left,
                              PlaceResult::unasked};

void print(std::FILE* out, const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), out);
}

Json placeJson(const JoinPlace& place, const std::vector<JoinWall>& walls) {
    Json json;
    json["kind"] = placeKindWord(place.kind);
    json["at"] = {place.at.x, place.at.y, place.height};
    Json handles = Json::array();
    for (const unsigned wall : place.walls) {
        handles.push_back(handleText(walls[wall].handle()));
    }
    json["handles"] = std::move(handles);
    json["result"] = placeResultWord(place.result);
    if (place.result == PlaceResult::left) {
        json["reason"] = {{"code", joinReasonCode(place.reason)},
                          {"text", printableText(joinReasonText(place, walls))}};
    }
    return json;
}

// An object a line where there are several, else a place a line.
void printJson(std::FILE* out, const JoinRun& join, const DrawingTask& task) {
    const char* const separator = task.isOneOfMany ? "" : "\n";
    print(out, '{' + drawingMember(task) + "\"joints\":[");
    bool first = true;
    for (const JoinPlace& place : join.places()) {
        print(out, (first ? "" : ",") + std::string(separator));
        first = false;
        print(out, placeJson(place, join.walls()).dump());
    }
    Json counts;
    for (const auto& [word, count] : joinCounts(join)) {
        counts[word] = count;
    }
    print(out, separator + ("],\"counts\":" + counts.dump() + "}\n"));
}

} // namespace

// Every result and every reason has its number, also where that is 0.
Counts joinCounts(const JoinRun& join) {
    Counts counts;
    for (const PlaceResult result : kResults) {
        counts.emplace_back(placeResultWord(result),
                            std::ranges::count(join.places(), result, &JoinPlace::result));
    }
    for (const JoinReason reason : joinReasons()) {
        const auto isLeftForIt = [reason](const JoinPlace& place) {
            return place.result == PlaceResult::left && place.reason == reason;
        };
        counts.emplace_back(joinReasonCode(reason),
                            std::ranges::count_if(join.places(), isLeftForIt));
    }
    return counts;
}

void printJoin(const JoinRun& join, const DrawingTask& task, bool asJson, std::FILE* out) {
    if (asJson) {
        printJson(out, join, task);
        return;
    }
    for (const JoinPlace& place : join.places()) {
        print(out, printableText(joinPlaceText(place, join.walls())) + '\n');
    }
    std::string summary;
    const Counts counts = joinCounts(join);
    for (std::size_t i = 0; i < kResults.size(); ++i) {
        summary += (i == 0 ? "" : ", ") + std::to_string(counts[i].second) + ' ' + counts[i].first;
    }
    print(out, summary + '\n');
}

} // namespace orvex
