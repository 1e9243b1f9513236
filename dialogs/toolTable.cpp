#include "toolTable.h"

#include "CMlineEdit.h"

#include <algorithm>
#include <cwchar>

namespace mledit {

// Deleting a vertex came before adding one when the controls were numbered.
const std::array<ToolRow, kToolCount> kTools{{
    {Tool::closedCross, L"CC", &CMlineEdit::cmd_mledit_ClosedCross, 5759, "closedCrossBtn",
     ":/ML_CLOSEDCROSS_UP.BMP", L"IDB_CLOSE_CROSS"},
    {Tool::openCross, L"OC", &CMlineEdit::cmd_mledit_OpenCross, 5760, "openCrossBtn",
     ":/ML_OPENCROSS_UP.BMP", L"IDB_OPEN_CROSS"},
    {Tool::mergedCross, L"MC", &CMlineEdit::cmd_mledit_MergedCross, 5761, "mergedCrossBtn",
     ":/ML_MERGEDCROSS_UP.BMP", L"IDB_MERGED_CROSS"},
    {Tool::closedTee, L"CT", &CMlineEdit::cmd_mledit_ClosedTree, 5762, "closedTeeBtn",
     ":/ML_CLOSEDTREE_UP.BMP", L"IDB_CLOSE_TREE"},
    {Tool::openTee, L"OT", &CMlineEdit::cmd_mledit_OpenTree, 5763, "openTeeBtn",
     ":/ML_OPENTREE_UP.BMP", L"IDB_OPEN_TREE"},
    {Tool::mergedTee, L"MT", &CMlineEdit::cmd_mledit_MergedTree, 5764, "mergedTeeBtn",
     ":/ML_MERGEDTREE_UP.BMP", L"IDB_MERGED_TREE"},
    {Tool::cornerJoint, L"CJ", &CMlineEdit::cmd_mledit_CornerJoint, 5765, "cornerJointBtn",
     ":/ML_CORNERJOINT_UP.BMP", L"IDB_CORNER_JOINT"},
    {Tool::addVertex, L"AV", &CMlineEdit::cmd_mledit_AddVertex, 5767, "addVertexBtn",
     ":/ML_ADDVERTEX_UP.BMP", L"IDB_ADD_VERTEX"},
    {Tool::deleteVertex, L"DV", &CMlineEdit::cmd_mledit_DeleteVertex, 5766, "deleteVertexBtn",
     ":/ML_DELETEVERTEX_UP.BMP", L"IDB_DELETE_VERTEX"},
    {Tool::cutSingle, L"CS", &CMlineEdit::cmd_mledit_CutSingle, 5768, "cutSingleBtn",
     ":/ML_CUTSINGLE_UP.BMP", L"IDB_CUT_SINGLE"},
    {Tool::cutAll, L"CA", &CMlineEdit::cmd_mledit_CutAll, 5769, "cutAllBtn", ":/ML_CUTALL_UP.BMP",
     L"IDB_CUT_ALL"},
    {Tool::weldAll, L"WA", &CMlineEdit::cmd_mledit_WeldAll, 5770, "weldAllBtn",
     ":/ML_WELDALL_UP.BMP", L"IDB_WELD_ALL"},
}};

const ToolRow* findTool(int number) {
    const auto* const row = std::ranges::find(kTools, static_cast<Tool>(number), &ToolRow::tool);
    return row != kTools.end() ? row : nullptr;
}

const ToolRow* findTool(const wchar_t* keyword) {
    const auto* const row = std::ranges::find_if(
        kTools, [keyword](const ToolRow& each) { return wcscasecmp(each.keyword, keyword) == 0; });
    return row != kTools.end() ? row : nullptr;
}

} // namespace mledit
