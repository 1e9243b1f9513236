#pragma once

#include "CMlineEdit.h"
#include "EditTool.h"
#include "EngineWorld.h"
#include "KdDbMlineStyle.h"
#include "ObjectContent.h"
#include "editCycle.h"
#include "kddbObjects.h"
#include "mlineAccessors.h"
#include "parameterLists.h"
#include "styleAccessors.h"
#include "vectorMath.h"

#include <cmath>
#include <sstream>

namespace orvex::testing {

inline constexpr double kDegree = mledit::kPi / 180.0;

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
            std::vector<double> list = mledit::lineList(mline, vertex, static_cast<int>(k));
            list.resize(1);
            list.insert(list.end(), breaks[k].begin(), breaks[k].end());
            mledit::storeLineList(mline, vertex, static_cast<int>(k), list);
        }
    }

    // "0,0 10,0 : 1 -1": vertices and offsets; "closed" may follow.
    KdDbMline* add(const std::string& text) {
        std::istringstream in(text);
        std::vector<KdGePoint3d> points;
        std::vector<double> offsets;
        std::string word;
        while (in >> word && word != ":") {
            points.push_back(point(word));
        }
        while (in >> word && word != "closed") {
            offsets.push_back(std::stod(word));
        }
        return add(points, offsets, word == "closed");
    }
    static KdGePoint3d point(const std::string& text) {
        KdGePoint3d at;
        char comma = 0;
        std::istringstream(text) >> at.x >> comma >> at.y >> comma >> at.z;
        return at;
    }
    static PromptAnswer pickAt(const KdDbMline* mline, const std::string& place) {
        return pick(mline, point(place).x, point(place).y);
    }

    using enum mledit::Tool;
    using Tool = mledit::Tool;
    int play(Tool tool, std::initializer_list<PromptAnswer> answers) {
        answer(answers);
        CMlineEdit run;
        return mledit::runTool(run, mledit::editTool(tool), resources);
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
    static std::string lists(const KdDbMline* mline, int vertex, std::size_t from = 0) {
        int count = 0;
        GetSegmentsSize(mline, &count);
        std::string text;
        for (int k = 0; k < count; ++k) {
            text += k > 0 ? " |" : "";
            const std::vector<double> list = mledit::lineList(mline, vertex, k);
            for (std::size_t i = from; i < list.size(); ++i) {
                text += (text.empty() ? "" : " ") + number(list[i]);
            }
        }
        return text;
    }
    // "0 3 | 0": without the offsets
    static std::string breaksAt(const KdDbMline* mline, int vertex) {
        return lists(mline, vertex, 1);
    }
    // "0,0 (1 0 7 | -1 0 5) 6,0 +8": vertices, the lists of each segment, flags beyond "has vertex"
    static std::string drawn(const KdDbMline* mline) {
        std::string text;
        std::istringstream vertices(chain(mline));
        std::string vertex;
        const int segments =
            mline->numVertices() - ((flags(mline) & mledit::kFlagClosed) != 0 ? 0 : 1);
        for (int v = 0; vertices >> vertex; ++v) {
            text += (v > 0 ? " " : "") + vertex;
            text += v < segments ? " (" + lists(mline, v) + ")" : "";
        }
        const int caps = flags(mline) & (mledit::kFlagNoStartCaps | mledit::kFlagNoEndCaps);
        return caps == 0 ? text : text + " +" + std::to_string(caps);
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
