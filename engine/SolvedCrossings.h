#pragma once

#include <cstddef>
#include <vector>

namespace mledit {

// Which entries of a matrix of points are crossings. Those of lines that don't cross read as zeros
// and cut nothing.
class SolvedCrossings {
public:
    // Of a matrix of so many rows and columns; no entry is solved yet.
    void reset(int rows, int columns);
    void markSolved(int row, int column); // of an entry inside the matrix
    [[nodiscard]] bool contains(int row, int column) const;
    [[nodiscard]] bool isSolved(int row, int column) const; // false outside the matrix

private:
    [[nodiscard]] std::size_t indexOf(int row, int column) const;

    int m_rows = 0;
    int m_columns = 0;
    std::vector<bool> m_solved; // row by row
};

} // namespace mledit
