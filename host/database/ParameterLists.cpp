#include "MlineContent.h"
#include "sameBits.h"

#include <algorithm>
#include <utility>

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
    m_own.clear();
}

ParameterLists::OwnLists ParameterLists::pack(const VoVector<KdMLSegment>& record) {
    std::size_t count = 0;
    for (const KdMLSegment& segment : record) {
        count += std::size_t{segment.m_lineParams.size()} + segment.m_areaParams.size();
    }
    const std::size_t lists = std::size_t{record.size()} * 2;
    const std::shared_ptr<double[]> packed = std::make_shared<double[]>(1 + lists + count);
    packed[0] = record.size();
    double* end = packed.get() + 1;
    double* const values = end + lists;
    double* value = values;
    for (const KdMLSegment& segment : record) {
        for (const VoVector<double>* const list : {&segment.m_lineParams, &segment.m_areaParams}) {
            value = std::copy(list->begin(), list->end(), value);
            *end++ = static_cast<double>(value - values);
        }
    }
    return packed;
}

const double* ParameterLists::ownOrNull(unsigned vertex) const {
    return m_own.empty() ? nullptr : m_own[vertex].get();
}

unsigned ParameterLists::elementCount(unsigned vertex) const {
    if (vertex >= m_vertices) {
        return 0;
    }
    const double* const own = ownOrNull(vertex);
    return own != nullptr ? static_cast<unsigned>(own[0]) : m_flat->elements;
}

// Lines and areas of the elements in turn. Both indices have to exist.
std::span<const double> ParameterLists::list(unsigned vertex, std::size_t index) const {
    if (const double* const own = ownOrNull(vertex)) {
        const double* const values = own + 1 + static_cast<std::size_t>(own[0]) * 2;
        const double* const begin =
            values + (index == 0 ? 0 : static_cast<std::size_t>(own[index]));
        return {begin, values + static_cast<std::size_t>(own[index + 1])};
    }
    const std::size_t at = std::size_t{vertex} * m_flat->elements * 2 + index;
    const std::size_t begin = at == 0 ? 0 : m_flat->ends[at - 1];
    return {m_flat->values.data() + begin, m_flat->ends[at] - begin};
}

std::span<const double> ParameterLists::line(unsigned vertex, unsigned element) const {
    return element < elementCount(vertex) ? list(vertex, std::size_t{element} * 2)
                                          : std::span<const double>();
}

std::span<const double> ParameterLists::area(unsigned vertex, unsigned element) const {
    return element < elementCount(vertex) ? list(vertex, std::size_t{element} * 2 + 1)
                                          : std::span<const double>();
}

namespace {

void assign(VoVector<double>& list, std::span<const double> values) {
    if (list.size() != values.size()) {
        list = VoVector<double>(static_cast<unsigned>(values.size()));
    }
    if (!values.empty()) {
        std::copy(values.begin(), values.end(), list.data());
    }
}

std::span<const double> toSpan(const VoVector<double>& values) {
    return {values.data(), values.size()};
}

} // namespace

VoVector<KdMLSegment> ParameterLists::nested(unsigned vertex) const {
    VoVector<KdMLSegment> record;
    readNested(vertex, record);
    return record;
}

void ParameterLists::readNested(unsigned vertex, VoVector<KdMLSegment>& record) const {
    const unsigned elements = elementCount(vertex);
    if (record.size() != elements) {
        record = VoVector<KdMLSegment>(elements);
    }
    KdMLSegment* const segments = record.data();
    for (unsigned i = 0; i < elements; ++i) {
        assign(segments[i].m_lineParams, line(vertex, i));
        assign(segments[i].m_areaParams, area(vertex, i));
    }
}

void ParameterLists::setNested(unsigned vertex, const VoVector<KdMLSegment>& record) {
    if (vertex >= m_vertices) {
        return;
    }
    bool isSame = record.size() == elementCount(vertex);
    for (unsigned i = 0; isSame && i < record.size(); ++i) {
        const KdMLSegment& segment = record.at(static_cast<int>(i));
        isSame = sameBits(toSpan(segment.m_lineParams), line(vertex, i)) &&
                 sameBits(toSpan(segment.m_areaParams), area(vertex, i));
    }
    if (!isSame) {
        OwnLists own = pack(record);
        m_own.resize(m_vertices);
        m_own[vertex] = std::move(own);
    }
}

void ParameterLists::appendVertex() {
    OwnLists own = pack(VoVector<KdMLSegment>(elementCount(0)));
    m_own.resize(m_vertices);
    m_own.push_back(std::move(own));
    ++m_vertices;
}

void ParameterLists::dropLastVertex() {
    if (m_vertices == 0) {
        return;
    }
    --m_vertices;
    if (!m_own.empty()) {
        m_own.pop_back();
    }
}

std::size_t ParameterLists::memoryUse() const {
    std::size_t bytes = m_own.capacity() * sizeof(m_own[0]);
    if (m_flat != nullptr && m_flat.use_count() == 1) {
        bytes += m_flat->ends.capacity() * sizeof(std::uint32_t) +
                 m_flat->values.capacity() * sizeof(double);
    }
    for (const OwnLists& own : m_own) {
        if (own != nullptr && own.use_count() == 1) {
            const auto lists = static_cast<std::size_t>(own[0]) * 2;
            const auto values = lists == 0 ? 0 : static_cast<std::size_t>(own[lists]);
            bytes += (1 + lists + values) * sizeof(double);
        }
    }
    return bytes;
}

bool operator==(const ParameterLists& a, const ParameterLists& b) {
    if (a.m_vertices != b.m_vertices) {
        return false;
    }
    if (a.m_flat == b.m_flat && a.m_own.empty() && b.m_own.empty()) {
        return true;
    }
    for (unsigned vertex = 0; vertex < a.m_vertices; ++vertex) {
        const double* const ownA = a.ownOrNull(vertex);
        const double* const ownB = b.ownOrNull(vertex);
        if (ownA == ownB && (ownA != nullptr || a.m_flat == b.m_flat)) {
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
