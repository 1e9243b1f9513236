#pragma once

#include "Failure.h"
#include "MlineContent.h"
#include "PlainEntity.h"
#include "SharedTraits.h"

#include <vector>

namespace orvex {

// Makes plain entities of multilines: lines, arcs and filled areas that look the same and lie in
// the same places, gaps kept. Remembers what multilines share, so it serves one edit at a time.
class MlineExploder {
public:
    explicit MlineExploder(DatabaseCore& core) : m_table(core) {}

    // In the order in which they are drawn, fill first. Areas of more than four corners come in
    // parts, a segment each. A multiline of which nothing is drawn, or that reaches beyond the
    // range of drawings, is a failure.
    [[nodiscard]] Result<std::vector<PlainContent>> explode(const MlineContent& mline);

private:
    SharedTraits m_table;
};

} // namespace orvex
