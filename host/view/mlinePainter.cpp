#include "mlinePainter.h"

#include "mlineLook.h"

#include <array>

namespace orvex {

namespace {

class PaintedParts final : public MlineParts {
public:
    PaintedParts(const MlinePens& pens, Pencil& pencil) : m_pens(pens), m_pencil(pencil) {}

    void fill(std::span<const KdGePoint3d> outline) override {
        m_pencil.fill(outline, m_pens.fillRgb);
    }
    void stretch(const KdGePoint3d& begin, const KdGePoint3d& end, unsigned element) override {
        const std::array<KdGePoint3d, 2> line{begin, end};
        m_pencil.stroke(line, StrokeRole::line, m_pens.of(element));
    }
    void crossing(std::span<const KdGePoint3d> chain, StrokeRole role, unsigned first,
                  unsigned second) override {
        if (m_pens.of(first) == m_pens.of(second)) {
            m_pencil.stroke(chain, role, m_pens.of(first));
            return;
        }
        const std::size_t middle = chain.size() / 2;
        m_pencil.stroke(chain.first(middle + 1), role, m_pens.of(first));
        m_pencil.stroke(chain.subspan(middle), role, m_pens.of(second));
    }

private:
    const MlinePens& m_pens;
    Pencil& m_pencil;
};

} // namespace

void paintMline(const MlineContent& mline, const MlineStyleContent* style, const MlinePens& pens,
                Pencil& pencil) {
    PaintedParts parts(pens, pencil);
    drawMline(mline, style, parts);
}

} // namespace orvex
