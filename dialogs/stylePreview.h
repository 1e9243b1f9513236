#pragma once

class CWnd;
class KdDbMlineStyle;

// Shows a style in the style manager's preview, if that is what a dialog was opened from. The
// manager opens its dialogs without a parent, so mostly it isn't.
void paintPreviewOf(CWnd* parent, KdDbMlineStyle* style);
