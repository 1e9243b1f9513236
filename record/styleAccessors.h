#pragma once

class KdDbDatabase;
class KdDbMlineStyle;

// A style's elements as parallel arrays, one attribute at a time; the others of each element stay.
// Names and results are fixed by the interface.
//
// The style is open, for write in the Set forms. The result is 1 for done and 0 for a null style; a
// null array changes nothing and counts as done. Offsets in drawing units at scale 1.
//
// Parts of a colour are set in the order SetElemColor, SetElemRgb, SetElemName: each starts from
// what the one before has stored.

namespace mledit {

// Bits of the flag word.
inline constexpr int kStyleFilled = 1;
inline constexpr int kStyleShowMiters = 2;
inline constexpr int kStyleStartSquareCap = 16;
inline constexpr int kStyleStartInnerArcs = 32;
inline constexpr int kStyleStartRoundCap = 64;
inline constexpr int kStyleEndSquareCap = 256;
inline constexpr int kStyleEndInnerArcs = 512;
inline constexpr int kStyleEndRoundCap = 1024;

} // namespace mledit

// Elements are removed and added at the front of the list, added ones at 0.5; the caller sets all
// attributes afterwards. A negative count is 0.
int SetNumElements(KdDbMlineStyle* style, int count);

// One name for each element of the style, whatever `count` is; null keeps the element's linetype.
// What the drawing lacks is loaded from the host's definitions, by the drawing's MEASUREMENT; what
// they lack too becomes Continuous.
int SetElemLtype(KdDbMlineStyle* style, wchar_t** names, int count, KdDbDatabase* db);

// Elements beyond the array get 0.0.
int SetElemOffset(KdDbMlineStyle* style, const double* offsets, int count);
// Writes `count` offsets, 0.0 where the style has no such element.
int GetElemOffset(const KdDbMlineStyle* style, double* offsets, int count);

// Colour indices; what is outside 0 to 256 is by layer, and is corrected in the caller's array too.
// Elements beyond the array are by layer.
int SetElemColor(KdDbMlineStyle* style, int* colors, int count);

// 0xRRGGBB; a value above means that the element has no true colour. The array needs an entry for
// each element of the style unless `count` is shorter.
int SetElemRgb(KdDbMlineStyle* style, const unsigned int* rgb, int count);

// "book$colour"; anything else clears an element's names. Without a first name nothing changes.
int SetElemName(KdDbMlineStyle* style, wchar_t** names, int count);

int SetFlag(KdDbMlineStyle* style, int flags);

// A book's name, one "$" and a colour's name; a name without any "$" is valid too.
bool IsColorBookNameValid(const wchar_t* name);

// Exported from the module.
#pragma GCC visibility push(default)
extern const wchar_t* const str_colorbookNoName;
extern const wchar_t* const str_quotequote; // empty
#pragma GCC visibility pop
