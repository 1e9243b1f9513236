#pragma once

#include "DrawSink.h"
#include "KdCmColor.h"
#include "KdDbObjectId.h"
#include "MlineStyleContent.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace orvex {

class DatabaseCore;

// What a layer gives its entities.
struct LayerTraits {
    Pen pen;
    bool seen = true;   // neither frozen nor off
    bool listed = true; // among the layers to be shown
};

// Looks up what entities share: layers, line types, styles. What was looked up is kept until
// `forget`; whoever owns the table asks `covers` whether a changed object was among it.
class SharedTraits {
public:
    explicit SharedTraits(DatabaseCore& core) : m_core(core) {}

    // Layers that the drawing doesn't have are seen and white.
    const LayerTraits& layer(const std::wstring& name);
    // Null for a null id and for a style that was erased.
    const MlineStyleContent* style(KdDbObjectId id);
    // A colour and a line type as they are meant on this layer and in this block. `scale` is the
    // entity's line type scale; the drawing's own comes on top.
    Pen pen(const KdCmColor& color, const std::wstring& linetype, double scale,
            const LayerTraits& layer, const Pen& byBlock);
    // The same for a line weight, in hundredths of a millimetre.
    [[nodiscard]] static std::int16_t weight(int lineweight, const LayerTraits& layer,
                                             const Pen& byBlock);
    // From now on these layers alone are listed; all when there are none.
    void showOnly(const std::vector<std::wstring>& layers);
    // The name of an element's line type.
    std::wstring linetypeName(const StyleElement& element);

    [[nodiscard]] bool covers(const KdDbStub& changed) const;
    // True when the drawing's line type scale isn't what was used any more.
    [[nodiscard]] bool isScaleStale() const;
    void forget();

private:
    struct Linetype {
        enum class Meaning { own, byLayer, byBlock } meaning = Meaning::own;
        std::vector<double> dashes;
    };
    const Linetype& linetype(const std::wstring& name);
    [[nodiscard]] double drawingScale() const;

    DatabaseCore& m_core;
    std::unordered_map<std::wstring, LayerTraits> m_layers;
    std::unordered_map<std::wstring, Linetype> m_linetypes;
    std::unordered_set<const KdDbStub*> m_covered;
    std::unordered_set<std::wstring> m_listed; // in one case; empty for all
    bool m_missedOne = false; // a name was asked for that a new object might now have
    double m_scale = 0.0;     // 0 until a line type is scaled
};

} // namespace orvex
