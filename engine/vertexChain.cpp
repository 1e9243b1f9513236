#include "vertexChain.h"

#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "mlineAccessors.h"

namespace mledit {

namespace {

// The accessors take plain rows of three.
double (*rows(std::vector<VertexChain::Xyz>& points))[3] {
    return reinterpret_cast<double(*)[3]>(points.data());
}
const double (*rows(const std::vector<VertexChain::Xyz>& points))[3] {
    return reinterpret_cast<const double(*)[3]>(points.data());
}
static_assert(sizeof(VertexChain::Xyz) == sizeof(double[3]));

} // namespace

VertexChain VertexChain::of(const KdDbMline* mline) {
    const auto count = static_cast<std::size_t>(mline->numVertices());
    VertexChain chain;
    chain.vertices.resize(count);
    chain.axes.resize(count);
    chain.miters.resize(count);
    GetVertices(mline, rows(chain.vertices));
    GetAxis(mline, rows(chain.axes));
    GetMilters(mline, rows(chain.miters));
    return chain;
}

void VertexChain::store(KdDbMline* mline) const {
    SetVertices(mline, rows(vertices));
    SetAxis(mline, rows(axes));
    SetMilters(mline, rows(miters));
}

OpenStyle::OpenStyle(const KdDbMline* mline) {
    GetMlStyle(mline, &m_style);
}

OpenStyle::~OpenStyle() {
    if (m_style != nullptr) {
        m_style->close();
    }
}

} // namespace mledit
