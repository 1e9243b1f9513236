#pragma once

#include "DrawingFile.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvex::testing {

// Text of a drawing from tags given one a line, code and value with a blank between.
std::string dxf(std::string_view tags);

// corpus/sample.dxf, a drawing that has some of everything: styles WALL (2F) and STANDARD (2E), in
// model space a line (50), multilines of three vertices (51) and two (52), a polyline (53) and an
// unknown record (56), in paper space a line (57), in a block a multiline (41).
std::string sampleDrawing();

// The same with the line ends of other systems.
std::string withReturns(const std::string& bytes);

// `text` with `from` replaced once; the test fails when it isn't there.
std::string replaced(std::string text, std::string_view from, std::string_view to);

std::unique_ptr<DrawingFile> openDrawing(const std::string& bytes);
Failure openFailing(const std::string& bytes);
// The texts of the warnings, one a line.
std::string warningsOf(const std::string& bytes);

// Says where two texts begin to differ.
::testing::AssertionResult sameText(const std::string& actual, const std::string& expected);

KdDbStub& stubOf(DrawingFile& file, std::uint64_t handle);

} // namespace orvex::testing
