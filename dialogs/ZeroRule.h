#pragma once

#include "resbuf.h"

// Sets DIMZIN, which says what zeros numbers are written with, for as long as it lives: 0 keeps
// all, 8 drops those at the end.
class ZeroRule {
public:
    explicit ZeroRule(short rule);
    ~ZeroRule();
    ZeroRule(const ZeroRule&) = delete;
    ZeroRule& operator=(const ZeroRule&) = delete;

private:
    resbuf m_before;
    bool m_wasRead;
};
