#pragma once

// (name, 1) shows an entity, (name, 2) hides it: of the view alone, never stored. (null, 4)
// refreshes the display and shows entities as they are now, closed or not. An unknown name does
// nothing.
int kdedRedraw(const long* name, int mode);
