#include "toolTable.h"

#include <cwchar>

namespace {

constexpr ToolRow kTools[] = {
    {1, L"CC", &CMlineEdit::cmd_mledit_ClosedCross},
    {2, L"OC", &CMlineEdit::cmd_mledit_OpenCross},
    {3, L"MC", &CMlineEdit::cmd_mledit_MergedCross},
    {4, L"CT", &CMlineEdit::cmd_mledit_ClosedTree},
    {5, L"OT", &CMlineEdit::cmd_mledit_OpenTree},
    {6, L"MT", &CMlineEdit::cmd_mledit_MergedTree},
    {7, L"CJ", &CMlineEdit::cmd_mledit_CornerJoint},
    {8, L"AV", &CMlineEdit::cmd_mledit_AddVertex},
    {9, L"DV", &CMlineEdit::cmd_mledit_DeleteVertex},
    {10, L"CS", &CMlineEdit::cmd_mledit_CutSingle},
    {11, L"CA", &CMlineEdit::cmd_mledit_CutAll},
    {12, L"WA", &CMlineEdit::cmd_mledit_WeldAll},
};

} // namespace

std::span<const ToolRow> toolTable() {
    return kTools;
}

int toolOfKeyword(const wchar_t* keyword) {
    for (const ToolRow& row : kTools) {
        if (wcscasecmp(row.keyword, keyword) == 0) {
            return row.number;
        }
    }
    return 0;
}
