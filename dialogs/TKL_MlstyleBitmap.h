#pragma once

class KdDbMlineStyle;

// Builds a sample multiline in a database of its own for a picture of a style, and draws none: the
// result is always null. Width and height in drawing units.
//
// It sets view and frame of the open drawing on the way (LTSCALE, EXTMIN, EXTMAX, VIEWCTR,
// VIEWTWIST, VIEWMODE, VIEWDIR, UCSXDIR, UCSYDIR, UCSORG) and leaves them so: nothing to call on a
// drawing that matters.
#pragma GCC visibility push(default)
void* TKL_MlstyleBitmap(int width, int height, KdDbMlineStyle* style);
#pragma GCC visibility pop
