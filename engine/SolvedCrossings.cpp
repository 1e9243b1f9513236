#include "SolvedCrossings.h"

namespace mledit {

void SolvedCrossings::reset(int rows, int columns) {
    m_rows = rows;
    m_columns = columns;
    m_solved.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns), false);
}

void SolvedCrossings::markSolved(int row, int column) {
    m_solved[indexOf(row, column)] = true;
}

bool SolvedCrossings::contains(int row, int column) const {
    return row >= 0 && row < m_rows && column >= 0 && column < m_columns;
}

bool SolvedCrossings::isSolved(int row, int column) const {
    return contains(row, column) && m_solved[indexOf(row, column)];
}

std::size_t SolvedCrossings::indexOf(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
           static_cast<std::size_t>(column);
}

} // namespace mledit
