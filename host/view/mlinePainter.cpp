#include "mlinePainter.h"

#include "drawMline.h"

#include <array>

namespace orvex {

namespace {

class PaintingSink final : public MlineSink {
public:
    PaintingSink(const MlinePens& pens, PlacedSink& sink) : m_pens(pens), m_sink(sink) {}

    void fill(std::span<const KdGePoint3d> outline) override {
        m_sink.fill(outline, m_pens.fillRgb);
    }
    void elementLine(const KdGePoint3d& begin, const KdGePoint3d& end, unsigned element) override {
        const std::array<KdGePoint3d, 2> line{begin, end};
        m_sink.stroke(line, StrokeRole::line, m_pens.of(element));
    }
    void crossing(std::span<const KdGePoint3d> chain, StrokeRole role, unsigned first,
                  unsigned second) override {
        if (m_pens.of(first) == m_pens.of(second)) {
            m_sink.stroke(chain, role, m_pens.of(first));
            return;
        }
        const std::size_t middle = chain.size() / 2;
        m_sink.stroke(chain.first(middle + 1), role, m_pens.of(first));
        m_sink.stroke(chain.subspan(middle), role, m_pens.of(second));
    }

private:
    const MlinePens& m_pens;
    PlacedSink& m_sink;
};

} // namespace

void paintMline(const MlineContent& mline, const MlineStyleContent* style, const MlinePens& pens,
                PlacedSink& sink) {
    PaintingSink painting(pens, sink);
    drawMline(mline, style, painting);
    std::vector<KdGePoint3d> chain;
    chain.reserve(mline.vertices.size() + 1);
    for (const ChainVertex& vertex : mline.vertices) {
        chain.push_back(vertex.position);
    }
    if (mline.closed && chain.size() > 1) {
        chain.push_back(chain.front());
    }
    sink.chain(chain);
}

} // namespace orvex
