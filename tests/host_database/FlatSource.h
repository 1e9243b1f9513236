#pragma once

#include "KdDbEntity.h"
#include "KdDbMline.h"
#include "KdDbMlineImp.h"
#include "KdDbSystemInternals.h"
#include "MlineContent.h"
#include "ObjectTable.h"

#include <memory>

namespace orvex::testing {

// A multiline as a file gives it: straight along x, `vertices` of them, each of `elements` elements
// with the line values {vertex, element, 0.25} and the area value {7}.
inline std::shared_ptr<MlineContent> flatMline(unsigned vertices, unsigned elements) {
    auto content = std::make_shared<MlineContent>();
    std::vector<std::uint32_t> counts;
    std::vector<double> values;
    for (unsigned vertex = 0; vertex < vertices; ++vertex) {
        content->vertices.push_back({{10.0 * vertex, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}});
        for (unsigned element = 0; element < elements; ++element) {
            counts.insert(counts.end(), {3, 1});
            values.insert(values.end(),
                          {static_cast<double>(vertex), static_cast<double>(element), 0.25, 7.0});
        }
    }
    content->lists.assignFlat(elements, std::move(counts), std::move(values));
    return content;
}

// Stands for a drawing file: every multiline has three vertices and two elements; what has record
// kBroken can't be read.
class FlatSource final : public ObjectSource {
public:
    static constexpr std::uint32_t kBroken = 4711;

    [[nodiscard]] std::unique_ptr<KdDbObject> load(const KdDbStub& stub) override {
        ++loads;
        if (stub.record == kBroken) {
            return nullptr;
        }
        if (stub.kind == ObjectKind::mline) {
            auto mline = std::make_unique<KdDbMline>();
            mline->setContent(flatMline(3, 2));
            return mline;
        }
        return stub.kind == ObjectKind::entity ? std::make_unique<KdDbEntity>() : nullptr;
    }
    [[nodiscard]] EntityShape shapeOf(const KdDbStub& /*stub*/) const override { return {}; }

    int loads = 0;
};

} // namespace orvex::testing
