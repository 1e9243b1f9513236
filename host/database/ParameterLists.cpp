#include "MlineContent.h"
#include "sameBits.h"

#include <algorithm>

namespace orvex {

void ParameterLists::assignFlat(unsigned elements, std::vector<std::uint32_t> counts,
                                std::vector<double> values) {
    const std::size_t listsPerVertex = std::size_t{elements} * 2;
    m_vertices = elements == 0 ? 0 : static_cast<unsigned>(counts.size() / listsPerVertex);
    counts.resize(m_vertices * listsPerVertex);
    std::uint64_t end = 0;
    for (std::uint32_t& count : counts) {
        end = std::min<std::uint64_t>(end + count, values.size());
        count = static_cast<std::uint32_t>(end);
    }
    auto flat = std::make_shared<Flat>();
    flat->elements = elements;
    flat->ends = std::move(counts);
    flat->values = std::move(values);
    m_flat = std::move(flat);
    m_nested.clear();
}

const ParameterLists::Record* ParameterLists::nestedOrNull(unsigned vertex) const {
    return m_nested.empty() ? nullptr : m_nested[vertex].get();
}

std::span<const double> ParameterLists::flatList(std::size_t index) const {
    const std::size_t begin = index == 0 ? 0 : m_flat->ends[index - 1];
    return {m_flat->values.data() + begin, m_flat->ends[index] - begin};
}

unsigned ParameterLists::elementCount(unsigned vertex) const {
    if (vertex >= m_vertices) {
        return 0;
    }
    const Record* const record = nestedOrNull(vertex);
    return record != nullptr ? record->size() : m_flat->elements;
}

std::span<const double> ParameterLists::line(unsigned vertex, unsigned element) const {
    if (element >= elementCount(vertex)) {
        return {};
    }
    if (const Record* const record = nestedOrNull(vertex)) {
        const auto& list = record->at(static_cast<int>(element)).m_lineParams;
        return {list.data(), list.size()};
    }
    return flatList((std::size_t{vertex} * m_flat->elements + element) * 2);
}

std::span<const double> ParameterLists::area(unsigned vertex, unsigned element) const {
    if (element >= elementCount(vertex)) {
        return {};
    }
    if (const Record* const record = nestedOrNull(vertex)) {
        const auto& list = record->at(static_cast<int>(element)).m_areaParams;
        return {list.data(), list.size()};
    }
    return flatList((std::size_t{vertex} * m_flat->elements + element) * 2 + 1);
}

namespace {

VoVector<double> toVector(std::span<const double> values) {
    VoVector<double> result(static_cast<unsigned>(values.size()));
    if (!values.empty()) {
        std::copy(values.begin(), values.end(), result.data());
    }
    return result;
}

} // namespace

const VoVector<KdMLSegment>& ParameterLists::nested(unsigned vertex) const {
    if (vertex >= m_vertices) {
        static const Record none;
        return none;
    }
    if (m_nested.empty()) {
        m_nested.resize(m_vertices);
    }
    auto& entry = m_nested[vertex];
    if (entry == nullptr) {
        auto record = std::make_shared<Record>(m_flat->elements);
        KdMLSegment* const segments = record->data();
        const std::size_t first = std::size_t{vertex} * m_flat->elements * 2;
        for (std::size_t i = 0; i < m_flat->elements; ++i) {
            segments[i].m_lineParams = toVector(flatList(first + i * 2));
            segments[i].m_areaParams = toVector(flatList(first + i * 2 + 1));
        }
        entry = std::move(record);
    }
    return *entry;
}

void ParameterLists::setNested(unsigned vertex, const VoVector<KdMLSegment>& record) {
    if (vertex >= m_vertices) {
        return;
    }
    auto fresh = std::make_shared<Record>(record);
    m_nested.resize(m_vertices);
    m_nested[vertex] = std::move(fresh);
}

void ParameterLists::appendVertex() {
    auto record = std::make_shared<Record>(elementCount(0));
    m_nested.resize(m_vertices);
    m_nested.push_back(std::move(record));
    ++m_vertices;
}

void ParameterLists::dropLastVertex() {
    if (m_vertices == 0) {
        return;
    }
    --m_vertices;
    if (!m_nested.empty()) {
        m_nested.pop_back();
    }
}

std::size_t ParameterLists::memoryUse() const {
    std::size_t bytes = m_nested.capacity() * sizeof(m_nested[0]);
    if (m_flat != nullptr && m_flat.use_count() == 1) {
        bytes += m_flat->ends.capacity() * sizeof(std::uint32_t) +
                 m_flat->values.capacity() * sizeof(double);
    }
    for (const auto& record : m_nested) {
        if (record == nullptr || record.use_count() > 1) {
            continue;
        }
        for (const KdMLSegment& segment : *record) {
            bytes += sizeof(KdMLSegment) + sizeof(double) * (segment.m_lineParams.physicalLength() +
                                                             segment.m_areaParams.physicalLength());
        }
    }
    return bytes;
}

bool operator==(const ParameterLists& a, const ParameterLists& b) {
    if (a.m_vertices != b.m_vertices) {
        return false;
    }
    if (a.m_flat == b.m_flat && a.m_nested.empty() && b.m_nested.empty()) {
        return true;
    }
    for (unsigned vertex = 0; vertex < a.m_vertices; ++vertex) {
        const auto* const nestedA = a.nestedOrNull(vertex);
        const auto* const nestedB = b.nestedOrNull(vertex);
        if (nestedA == nestedB && (nestedA != nullptr || a.m_flat == b.m_flat)) {
            continue;
        }
        const unsigned elements = a.elementCount(vertex);
        if (elements != b.elementCount(vertex)) {
            return false;
        }
        for (unsigned element = 0; element < elements; ++element) {
            if (!sameBits(a.line(vertex, element), b.line(vertex, element)) ||
                !sameBits(a.area(vertex, element), b.area(vertex, element))) {
                return false;
            }
        }
    }
    return true;
}

} // namespace orvex
