#pragma once

#include <array>
#include <vector>

class KdDbMline;
class KdDbMlineStyle;

namespace mledit {

// A multiline's chain as working copies, world coordinates. Nothing reaches the entity before
// store.
struct VertexChain {
    using Xyz = std::array<double, 3>;

    std::vector<Xyz> vertices;
    std::vector<Xyz> axes;
    std::vector<Xyz> miters;

    static VertexChain of(const KdDbMline* mline);
    // The entity has to have as many vertices as the chain.
    void store(KdDbMline* mline) const;
};

// The style of a multiline, open for read as long as this lives; null when it has none.
class OpenStyle {
public:
    explicit OpenStyle(const KdDbMline* mline);
    ~OpenStyle();
    OpenStyle(const OpenStyle&) = delete;
    OpenStyle& operator=(const OpenStyle&) = delete;

    [[nodiscard]] KdDbMlineStyle* get() const { return m_style; }

private:
    KdDbMlineStyle* m_style = nullptr; // not owned
};

} // namespace mledit
