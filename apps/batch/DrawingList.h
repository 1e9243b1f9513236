#pragma once

#include "KdCmColor.h"
#include "MlineContent.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

class KdDbDatabase;

namespace orvex {

// What `list` prints, as values. Texts in UTF-8, control characters as \U+XXXX, handles as the file
// has them.

struct ListedMline {
    std::string handle;
    std::string block; // "*Model_Space" for the drawing itself
    std::string layer;
    std::string style;
    int flags = 0; // as in the drawing file
    const MlineContent* content = nullptr;
};

struct ListedElement {
    double offset = 0.0; // drawing units at scale 1
    KdCmColor color;
    std::string linetype;
};

struct ListedStyle {
    std::string handle;
    std::string name;
    std::string description;
    int flags = 0;
    double startAngle = 0.0; // degrees
    double endAngle = 0.0;
    KdCmColor fill;
    std::vector<ListedElement> elements;
};

// Every multiline in drawing order. What is handed on is valid for the call alone.
void forEachMline(KdDbDatabase& database, const std::function<void(const ListedMline&)>& visitor);

// Every style in the order of their dictionary.
std::vector<ListedStyle> listStyles(KdDbDatabase& database);

// "ByLayer", a number, "#RRGGBB", a book's name.
std::string colorText(const KdCmColor& color);

} // namespace orvex
