#pragma once

// The corner joint's pairing: which element of the other multiline an element joins.
//
// `count` elements in the multiline in hand, `otherCount` in the other. `oppositeEnds` says that
// one of the two keeps its start side and the other its end side, `keepStart` which side the one
// in hand keeps. The outer elements always join outer ones.
int cornerPartner(int element, int count, int otherCount, bool oppositeEnds, bool keepStart);
