#include "printJoin.h"

#include "JoinRun.h"
#include "handleText.h"

#include <nlohmann/json.hpp>

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
                          {"text", joinReasonText(place, walls)}};
    }
    return json;
}

// Every result and every reason has its number, also where that is 0.
Json countsJson(const std::vector<JoinPlace>& places) {
    Json counts;
    for (const PlaceResult result : kResults) {
        counts[placeResultWord(result)] = 0;
    }
    for (const JoinReason reason : joinReasons()) {
        counts[joinReasonCode(reason)] = 0;
    }
    const auto count = [&](std::string_view word) {
        Json& number = counts[word];
        number = number.get<int>() + 1;
    };
    for (const JoinPlace& place : places) {
        count(placeResultWord(place.result));
        if (place.result == PlaceResult::left) {
            count(joinReasonCode(place.reason));
        }
    }
    return counts;
}

void printJson(std::FILE* out, const JoinRun& join, const Json& counts) {
    print(out, "{\"joints\":[");
    bool first = true;
    for (const JoinPlace& place : join.places()) {
        print(out, first ? "\n" : ",\n");
        first = false;
        print(out, placeJson(place, join.walls()).dump());
    }
    print(out, "\n],\"counts\":" + counts.dump() + "}\n");
}

} // namespace

void printJoin(const JoinRun& join, bool asJson, std::FILE* out) {
    const Json counts = countsJson(join.places());
    if (asJson) {
        printJson(out, join, counts);
        return;
    }
    for (const JoinPlace& place : join.places()) {
        print(out, joinPlaceText(place, join.walls()) + '\n');
    }
    std::string summary;
    for (const PlaceResult result : kResults) {
        const std::string_view word = placeResultWord(result);
        summary += (summary.empty() ? "" : ", ") + counts[word].dump() + ' ' + std::string(word);
    }
    print(out, summary + '\n');
}

} // namespace orvex
