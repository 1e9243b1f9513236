#pragma once

#include "JoinPlace.h"
#include "KdGePoint3d.h"
#include "joinSteps.h"

#include <cstdint>
#include <span>
#include <string>

namespace orvex {

// Lines of a script, as one would type them. Points are given in the world and written in the
// current user coordinate system; numbers read back as the same doubles.
class JoinScript {
public:
    void comment(const std::string& text) { line("; " + text); }
    void line(const std::string& text);
    void endCommand() { m_text += '\n'; }

    void pick(const KdGePoint3d& point, std::uint64_t handle);
    void point(const KdGePoint3d& point);
    void number(double value);
    void handle(std::uint64_t handle);

    // Whole commands.
    void view(const KdGePoint3d& center, double height);
    void pickBox(int pixels);
    void moveEnd(const KdGePoint3d& at, std::uint64_t entity, const KdGePoint3d& to);
    void tool(std::string_view keyword, const KdGePoint3d& first, std::uint64_t firstHandle,
              const KdGePoint3d& second, std::uint64_t secondHandle);
    void layRight(std::uint64_t entity);
    void stops(std::uint64_t entity, unsigned segment, unsigned element,
               std::span<const double> distances);

    void append(const JoinScript& other) { m_text += other.m_text; }
    [[nodiscard]] const std::string& text() const { return m_text; }

private:
    std::string m_text;
};

// "tee at 10,20 of #2A #31".
std::string joinPlaceTitle(const JoinPlace& place, std::span<const JoinWall> walls);
// With what became of it, and why it was left.
std::string joinPlaceText(const JoinPlace& place, std::span<const JoinWall> walls);

} // namespace orvex
