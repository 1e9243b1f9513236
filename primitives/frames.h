#pragma once

class RvexView;

// Conversions between world, current user and display coordinates. With `displacement` a
// direction is converted, not a point. `out` may be `point`.

// True when converted; `out` is unwritten otherwise.
bool wc2uc(const double* point, double* out, bool displacement);
bool uc2wc(const double* point, double* out, bool displacement);

namespace mledit {

// The view of the active document; null when there is none.
RvexView* activeView();

} // namespace mledit

// World to the display coordinates of the active view, z 0. 0 when done; -1 with `out` unwritten
// when there is no view.
int tkl_wcs2dcs(const double* point, double* out);

// Does nothing; 0.
int tkl_ucs2rp(const double* point, double* out);
