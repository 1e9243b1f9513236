#include "pointTable.h"

#include <algorithm>

namespace mledit {

PointTable newPointTable(int rows, int columns) {
    const int height = std::max(rows, 0);
    const int width = std::max(columns, 0);
    auto* const table = new PointRow[static_cast<std::size_t>(height)]();
    int made = 0;
    try {
        for (; made < height; ++made) {
            table[made] = new double[static_cast<std::size_t>(width)][3]();
        }
    } catch (...) {
        PointTable half = table;
        freePointTable(half, made);
        throw;
    }
    return table;
}

void freePointTable(PointTable& table, int& rows) {
    if (table != nullptr) {
        for (int i = 0; i < rows; ++i) {
            delete[] table[i];
        }
        delete[] table;
    }
    table = nullptr;
    rows = 0;
}

} // namespace mledit
