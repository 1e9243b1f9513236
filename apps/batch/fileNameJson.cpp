#include "fileNameJson.h"

#include "printableText.h"
#include "textCodec.h"

namespace orvex {

namespace {

std::string hexText(const std::string& bytes) {
    constexpr const char* kDigits = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += {kDigits[value >> 4U], kDigits[value & 0xFU]};
    }
    return text;
}

} // namespace

std::string jsonText(const std::string& bytes) {
    return printableText(narrow(widen(bytes)));
}

void addFileName(nlohmann::ordered_json& json, const char* key, const char* bytesKey,
                 const std::string& name) {
    const std::string text = jsonText(name);
    json[key] = text;
    if (text != name) {
        json[bytesKey] = hexText(name);
    }
}

std::string drawingMember(const DrawingTask& task) {
    if (!task.isOneOfMany) {
        return {};
    }
    nlohmann::ordered_json json;
    addFileName(json, "drawing", "input_bytes", task.drawing);
    const std::string object = json.dump();
    return object.substr(1, object.size() - 2) + ',';
}

} // namespace orvex
