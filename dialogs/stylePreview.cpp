#include "stylePreview.h"

#include "CMlineStyleDialog.h"

void paintPreviewOf(CWnd* parent, KdDbMlineStyle* style) {
    if (auto* const manager = dynamic_cast<CMlineStyleDialog*>(parent)) {
        manager->PaintPreview(style);
    }
}
