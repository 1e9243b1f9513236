#include "mlineEditOperation.h"

#include "CMlineEdit.h"
#include "toolTable.h"

void mlineEditOperation(int tool, HINSTANCE resources) {
    CMlineEdit edit;
    for (const ToolRow& row : toolTable()) {
        if (row.number == tool) {
            (edit.*row.tool)(resources);
            return;
        }
    }
}
