#include "MlineExploder.h"

#include "CStdStr.h"
#include "drawMline.h"
#include "geometry.h"
#include "hostText.h"
#include "impossible.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvex {

namespace {

using SharedEntityTraits = std::shared_ptr<const EntityTraits>;

// What the parts of a multiline are drawn with.
struct PartTraits {
    SharedEntityTraits own; // for elements that the style doesn't have
    std::vector<SharedEntityTraits> elements;
    SharedEntityTraits fill;

    [[nodiscard]] const SharedEntityTraits& of(unsigned element) const {
        return element < elements.size() ? elements[element] : own;
    }
};

// By block means by the multiline: it is to its elements what an insert is to a block.
SharedEntityTraits partTraits(const EntityTraits& own, const KdCmColor& color,
                              const std::wstring& linetype) {
    EntityTraits traits = own;
    if (color.colorMethod() != KdCmColor::byBlock) {
        traits.color = color;
    }
    if (linetype.empty()) {
        traits.linetype = L"ByLayer";
    } else if (StrCmpI(linetype.c_str(), L"ByBlock") != 0) {
        traits.linetype = linetype;
    }
    return shareTraits(traits);
}

PartTraits partTraitsOf(const MlineContent& mline, const MlineStyleContent* style,
                        SharedTraits& table) {
    PartTraits traits;
    traits.own = mline.traits != nullptr ? mline.traits : shareTraits({});
    if (style != nullptr) {
        for (const StyleElement& element : style->elements) {
            traits.elements.push_back(
                partTraits(*traits.own, element.color, table.linetypeName(element)));
        }
        traits.fill = partTraits(*traits.own, style->fillColor, {});
    }
    return traits;
}

KdGeVector3d unitNormal(const MlineContent& mline) {
    KdGeVector3d normal = mline.normal;
    const double length = normal.length();
    return length > 0.0 && std::isfinite(length) ? normal.normalize() : KdGeVector3d{0.0, 0.0, 1.0};
}

class ExplodingSink final : public MlineSink {
public:
    ExplodingSink(const PartTraits& traits, const KdGeVector3d& normal)
        : m_traits(traits), m_normal(normal) {}

    void fill(std::span<const KdGePoint3d> outline) override {
        // One side of the area, then the other one back.
        const std::size_t sides = outline.size() / 2;
        for (std::size_t i = 0; i + 1 < sides; ++i) {
            SolidShape cell{{outline[i], outline[i + 1], outline[outline.size() - 2 - i],
                             outline[outline.size() - 1 - i]}};
            checkRange(cell.corners);
            add(m_traits.fill, std::move(cell));
        }
    }
    void elementLine(const KdGePoint3d& begin, const KdGePoint3d& end, unsigned element) override {
        addLine(begin, end, m_traits.of(element));
    }
    void crossing(std::span<const KdGePoint3d> chain, StrokeRole /*role*/, unsigned first,
                  unsigned second) override {
        if (looksTheSame(first, second)) {
            addLine(chain.front(), chain.back(), m_traits.of(first));
            return;
        }
        const KdGePoint3d& middle = chain[chain.size() / 2];
        addLine(chain.front(), middle, m_traits.of(first));
        addLine(middle, chain.back(), m_traits.of(second));
    }
    void halfCircle(const KdGePoint3d& center, const KdGeVector3d& radius, const KdGeVector3d& top,
                    unsigned first, unsigned second) override {
        const Arc arc(center, radius, top, m_normal);
        if (looksTheSame(first, second)) {
            addArc(arc, 0.0, kPi, m_traits.of(first));
            return;
        }
        addArc(arc, 0.0, kPi / 2, m_traits.of(first));
        addArc(arc, kPi / 2, kPi, m_traits.of(second));
    }

    [[nodiscard]] bool isOutOfRange() const { return m_isOutOfRange; }
    [[nodiscard]] std::vector<PlainContent> take() { return std::move(m_parts); }

private:
    // The circle of a cap, with a normal to the same side as the multiline's.
    struct Arc {
        Arc(const KdGePoint3d& middle, const KdGeVector3d& radius, const KdGeVector3d& top,
            const KdGeVector3d& wanted)
            : center(middle), major(radius), minor(top), normal(cross(radius, top).normalize()),
              isReversed(dot(normal, wanted) < 0.0) {
            normal = isReversed ? -normal : normal;
            // What misses it by rounding lies in the multiline's own plane.
            constexpr double kSame = 1e-12;
            if ((normal - wanted).length() < kSame) {
                normal = wanted;
            }
        }
        KdGePoint3d center;
        KdGeVector3d major;
        KdGeVector3d minor;
        KdGeVector3d normal;
        bool isReversed; // it runs clockwise around the normal
    };

    void add(const SharedEntityTraits& traits, EntityShape shape) {
        add(traits, std::move(shape), m_normal);
    }
    void add(const SharedEntityTraits& traits, EntityShape shape, const KdGeVector3d& normal) {
        PlainContent& part = m_parts.emplace_back();
        part.traits = traits;
        part.shape = std::move(shape);
        part.normal = normal;
    }
    void addLine(const KdGePoint3d& begin, const KdGePoint3d& end,
                 const SharedEntityTraits& traits) {
        checkRange(std::array{begin, end});
        add(traits, LineShape{begin, end});
    }
    void addArc(const Arc& arc, double begin, double end, const SharedEntityTraits& traits) {
        checkRange(std::array{arc.center + arc.major, arc.center + arc.minor});
        const ConicShape conic = arc.isReversed
                                     ? ConicShape{arc.center, arc.major, -arc.minor, -end, -begin}
                                     : ConicShape{arc.center, arc.major, arc.minor, begin, end};
        add(traits, conic, arc.normal);
    }
    [[nodiscard]] bool looksTheSame(unsigned first, unsigned second) const {
        return sameTraits(*m_traits.of(first), *m_traits.of(second));
    }
    void checkRange(std::span<const KdGePoint3d> points) {
        constexpr double kFarthest = 1e100;
        const auto isWithin = [](double value) { return std::abs(value) <= kFarthest; };
        m_isOutOfRange = m_isOutOfRange || !std::ranges::all_of(points, [&](const auto& point) {
                             return isWithin(point.x) && isWithin(point.y) && isWithin(point.z);
                         });
    }

    const PartTraits& m_traits;
    KdGeVector3d m_normal;
    std::vector<PlainContent> m_parts;
    bool m_isOutOfRange = false;
};

} // namespace

Result<std::vector<PlainContent>> MlineExploder::explode(const MlineContent& mline) {
    const MlineStyleContent* const style = m_table.style(mline.style);
    const PartTraits traits = partTraitsOf(mline, style, m_table);
    ExplodingSink sink(traits, unitNormal(mline));
    drawMline(mline, style, sink);
    if (sink.isOutOfRange()) {
        return impossible(hostText("it reaches beyond the range of drawings"));
    }
    std::vector<PlainContent> parts = sink.take();
    if (parts.empty()) {
        return impossible(hostText("nothing of it is drawn"));
    }
    return parts;
}

} // namespace orvex
