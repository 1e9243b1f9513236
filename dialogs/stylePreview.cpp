#include "stylePreview.h"

// There is no style manager yet.
void paintPreviewOf(CWnd* /*parent*/, KdDbMlineStyle* /*style*/) {}
