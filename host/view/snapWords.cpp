#include "snapWords.h"

#include "hostText.h"
#include "textCodec.h"

#include <array>

namespace orvex {

namespace {

constexpr std::size_t kShortest = 3; // letters that tell the words apart

struct ModeWords {
    SnapMode mode;
    const wchar_t* word;
    const wchar_t* full;
    const char* name;
};

constexpr std::array<ModeWords, kSnapModeCount> kModes{{
    {SnapMode::vertex, L"VER", L"VERTEX", markedText("Vertex")},
    {SnapMode::elementEnd, L"ELE", L"ELEMENT", markedText("Element end")},
    {SnapMode::end, L"END", L"ENDPOINT", markedText("End")},
    {SnapMode::axisCrossing, L"CRO", L"CROSSING", markedText("Axis crossing")},
    {SnapMode::intersection, L"INT", L"INTERSECTION", markedText("Intersection")},
    {SnapMode::middle, L"MID", L"MIDPOINT", markedText("Middle")},
    {SnapMode::perpendicular, L"PER", L"PERPENDICULAR", markedText("Perpendicular")},
    {SnapMode::nearest, L"NEA", L"NEAREST", markedText("Nearest")},
}};

const ModeWords& wordsOf(SnapMode mode) {
    return kModes[static_cast<std::size_t>(mode)];
}

bool isWord(std::wstring_view typed, std::wstring_view full) {
    return typed.size() >= kShortest && full.starts_with(typed);
}

std::optional<SnapMode> modeOf(std::wstring_view word) {
    for (const ModeWords& each : kModes) {
        if (isWord(word, each.full)) {
            return each.mode;
        }
    }
    return std::nullopt;
}

} // namespace

const wchar_t* snapWordOf(SnapMode mode) {
    return wordsOf(mode).word;
}

const char* snapName(SnapMode mode) {
    return wordsOf(mode).name;
}

std::optional<SnapModes> snapWord(std::wstring_view text) {
    const std::wstring word = foldCase(std::wstring(text));
    if (isWord(word, L"NONE")) {
        return SnapModes();
    }
    const std::optional<SnapMode> mode = modeOf(word);
    if (!mode) {
        return std::nullopt;
    }
    SnapModes modes{*mode};
    if (*mode == SnapMode::end) {
        modes.set(SnapMode::elementEnd, true);
    } else if (*mode == SnapMode::intersection) {
        modes.set(SnapMode::axisCrossing, true);
    }
    return modes;
}

std::optional<SnapModes> snapModesOf(std::wstring_view words) {
    constexpr std::wstring_view kSeparators = L" ,\t";
    const std::wstring folded = foldCase(std::wstring(words));
    SnapModes modes;
    for (std::size_t begin = folded.find_first_not_of(kSeparators); begin != std::wstring::npos;) {
        const std::size_t end = std::min(folded.find_first_of(kSeparators, begin), folded.size());
        const std::wstring_view word = std::wstring_view(folded).substr(begin, end - begin);
        const std::optional<SnapMode> mode = modeOf(word);
        if (word == L"ALL") {
            modes = SnapModes::all();
        } else if (mode) {
            modes.set(*mode, true);
        } else {
            return std::nullopt;
        }
        begin = folded.find_first_not_of(kSeparators, end);
    }
    return modes;
}

std::wstring snapWordsOf(SnapModes modes) {
    std::wstring words;
    for (const ModeWords& each : kModes) {
        if (modes.has(each.mode)) {
            words += (words.empty() ? L"" : L" ");
            words += each.word;
        }
    }
    return words;
}

} // namespace orvex
