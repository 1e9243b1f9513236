#pragma once

#include "CMlineEdit.h"
#include "EngineWorld.h"
#include "KdDbMlineStyle.h"
#include "ObjectContent.h"
#include "kddbObjects.h"
#include "mlineRecord.h"
#include "parameterLists.h"
#include "styleRecord.h"

#include <cmath>
#include <sstream>

namespace orvex::testing {

inline constexpr double kDegree = 3.14159265358979323846 / 180.0;

// A drawing for whole tools, whose multilines read as texts. All of them have the drawing's style,
// zero justification and scale 1.
class ToolWorld : public EngineWorld {
protected:
    // Offsets and end angles, degrees, of the style.
    void setStyle(const std::vector<double>& offsets, double start = 90, double end = 90) {
        KdDbMlineStyle* style = nullptr;
        kddbOpenObject(style, database.cmlstyle(), kForWrite);
        SetNumElements(style, static_cast<int>(offsets.size()));
        SetElemOffset(style, offsets.data(), static_cast<int>(offsets.size()));
        style->setStartAngle(start * kDegree);
        style->setEndAngle(end * kDegree);
        style->close();
    }
    KdDbMline* add(const std::vector<KdGePoint3d>& chain, const std::vector<double>& offsets,
                   bool closed = false) {
        KdDbMline* const mline = addMline(chain, offsets, closed);
        mline->setJustification(1);
        return mline;
    }
    // The lists of a vertex, offsets kept.
    static void setBreaks(KdDbMline* mline, int vertex,
                          const std::vector<std::vector<double>>& breaks) {
        for (std::size_t k = 0; k < breaks.size(); ++k) {
            std::vector<double> list = lineList(mline, vertex, static_cast<int>(k));
            list.resize(1);
            list.insert(list.end(), breaks[k].begin(), breaks[k].end());
            storeLineList(mline, vertex, static_cast<int>(k), list);
        }
    }

    using ToolMember = int (CMlineEdit::*)(HINSTANCE);
    int play(ToolMember tool, std::initializer_list<PromptAnswer> answers) {
        answer(answers);
        CMlineEdit run;
        return (run.*tool)(resources);
    }

    // Rounded so that what is 4 on paper reads as 4.
    static std::string number(double value) {
        const double rounded = std::round(value * 1e9) / 1e9;
        std::ostringstream out;
        out.precision(11);
        out << (rounded == 0.0 ? 0.0 : rounded);
        return out.str();
    }
    // "0,0 10,0", with z where it isn't 0
    static std::string chain(const KdDbMline* mline) {
        std::string text;
        for (int v = 0; v < mline->numVertices(); ++v) {
            const KdGePoint3d at = mline->vertexAt(v);
            text += (v > 0 ? " " : "") + number(at.x) + "," + number(at.y) +
                    (at.z != 0.0 ? "," + number(at.z) : "");
        }
        return text;
    }
    // "1 0 3 | -1 0": each element's list at one vertex
    static std::string lists(const KdDbMline* mline, int vertex) {
        int count = 0;
        GetSegmentsSize(mline, &count);
        std::string text;
        for (int k = 0; k < count; ++k) {
            text += k > 0 ? " |" : "";
            for (const double value : lineList(mline, vertex, k)) {
                text += (text.empty() ? "" : " ") + number(value);
            }
        }
        return text;
    }
    // "1,0 / 0,1": axis and miter
    static std::string directions(const KdDbMline* mline, int vertex) {
        const KdGeVector3d axis = mline->axisAt(vertex);
        const KdGeVector3d miter = mline->miterAt(vertex);
        return number(axis.x) + "," + number(axis.y) + " / " + number(miter.x) + "," +
               number(miter.y);
    }
    static int flags(const KdDbMline* mline) {
        int word = 0;
        GetFlag(mline, &word);
        return word;
    }
    [[nodiscard]] bool isUndoOffered() const {
        return user.prompts.back().find(L"UNDO") != std::wstring::npos;
    }
};

} // namespace orvex::testing
