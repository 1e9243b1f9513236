#pragma once

#include "CMlineSegment.h"
#include "EditTool.h"
#include "HINSTANCE.h"
#include "promptStatus.h"

#include <vector>

class KdDbMline;
struct CrossCut;
struct CrossingAt;
struct TeeEnd;
enum class CrossKind;
enum class TeeKind;

// One run of an editing tool on the multilines of the open drawing. A tool repeats its cycle, picks
// and then its own step, until the user ends it; the keyword UNDO takes back the last cycle.
//
// Everything is public: the tools' steps, in files of their own, are members, and they share the
// two picked records and the work lists. Points are x, y, z in world coordinates, lengths and
// breaks in drawing units, angles in radians.
class CMlineEdit {
public:
    int m_status = kPromptNormal;              // of the last prompt; the tool's result
    wchar_t m_buffer[kPromptTextSize] = {};    // every prompt, keyword and message passes through
    double m_pickedPoint[3] = {0.0, 0.0, 0.0}; // last pick, current user coordinate system
    double m_pickRadius = 0.0;                 // pick aperture, display units; 0 matches nothing
    long m_pickedName[2] = {0, 0}; // entity of the last pick till a record has taken it over
    CMlineSegment m_first;         // the picked multilines of the cycle
    CMlineSegment m_second;
    std::vector<double> m_breaks; // the break list in hand
    int m_reserved = -1;
    KdDbMline* m_undoFirst = nullptr; // owned: the entities as they were before the cycle, or null
    KdDbMline* m_undoSecond = nullptr;
    PointTable m_crossing = nullptr; // owned: [element of first][element of second]
    int m_crossingSize = 0;          // rows of m_crossing
    // Beside the matrix: which of its entries are crossings. The others read as zeros and cut
    // nothing.
    int m_crossingColumns = 0;
    std::vector<bool> m_crossingSolved;

    CMlineEdit();
    ~CMlineEdit();
    CMlineEdit(const CMlineEdit&) = delete;
    CMlineEdit& operator=(const CMlineEdit&) = delete;

    // The tools; each returns the last prompt status. editTools.cpp, with the table of tools.
    int cmd_mledit_ClosedCross(HINSTANCE resources);
    int cmd_mledit_OpenCross(HINSTANCE resources);
    int cmd_mledit_MergedCross(HINSTANCE resources);
    int cmd_mledit_ClosedTree(HINSTANCE resources);
    int cmd_mledit_OpenTree(HINSTANCE resources);
    int cmd_mledit_MergedTree(HINSTANCE resources);
    int cmd_mledit_CornerJoint(HINSTANCE resources);
    int cmd_mledit_AddVertex(HINSTANCE resources);
    int cmd_mledit_DeleteVertex(HINSTANCE resources);
    int cmd_mledit_CutSingle(HINSTANCE resources);
    int cmd_mledit_CutAll(HINSTANCE resources);
    int cmd_mledit_WeldAll(HINSTANCE resources);

    // The work of one cycle, tool by tool. Both entities are open for write (one entity twice is
    // open once), their records filled, the undo copies made.
    StepOutcome stepClosedCross(); // crossTools.cpp
    StepOutcome stepOpenCross();
    StepOutcome stepMergedCross();
    StepOutcome stepCross(CrossKind kind); // what the three share
    StepOutcome stepClosedTree();          // teeTools.cpp
    StepOutcome stepOpenTree();
    StepOutcome stepMergedTree();
    StepOutcome stepTee(TeeKind kind); // what the three share
    StepOutcome stepCornerJoint();     // cornerJoint.cpp
    StepOutcome stepAddVertex();       // vertexTools.cpp
    StepOutcome stepDeleteVertex();
    StepOutcome stepCutSingle(); // cutTools.cpp
    StepOutcome stepCutAll();
    StepOutcome stepWeldAll(); // weldTool.cpp

    // The cycle that all tools share: editCycle.cpp.
    int runTool(const EditTool& tool, HINSTANCE resources);

    // Copies between entities and their undo copies; a null on either side does nothing. By name:
    // opens the entity, writes the copy back to it and closes it. CMlineEdit.cpp
    void MlineCopy(KdDbMline* target, KdDbMline* source);
    void MlineCopy(long* name, KdDbMline* source);

    // From a pick to a filled record: pickMatching.cpp. The entity is opened for read, or shared
    // with `other` when that record holds it already; `name` is emptied.
    void mlineEditInitialize(CMlineSegment* seg, long* name, CMlineSegment* other);
    // Makes the table of element positions anew. Rows and columns that the entity doesn't have are
    // zero.
    void ptListInitialize(KdDbMline* mline, int numVertices, int numElements, PointTable* list,
                          int* size);
    // The pick aperture in display units; without a view it stays as it was.
    void set_SpaceBetween(double* radius);
    // Its parts, for the weld tool too: name and open entity, then counts, table and aperture.
    void openPicked(CMlineSegment* seg, const long* name, const CMlineSegment* other);
    void fillTable(CMlineSegment* seg);

    // Where a pick lies on another element, square across: mapping.cpp. Element -1 is the vertex
    // chain; its place goes to `out`, which is written for it alone.
    void mappingToSpecifyMongline(CMlineSegment* seg, int element, double* out);
    // Finds the mapped segment again after the vertices have changed.
    void correctMapping(CMlineSegment* seg);
    // Compass direction in plan from a to b, equal within 1e-10: 0 same place, 1 east, 2
    // north-east, 3 north, 4 north-west, and the negative for the opposite direction. -5001 for a
    // NaN.
    static int PositionConnection(const double* a, const double* b);

    // Breaks of an element: gapCutting.cpp.
    void setRealVector(KdDbMline* mline, int vertex, int element); // fills m_breaks
    // Makes an element invisible between two points on it, given in any order with the segments
    // on which they lie. A point off its segment changes nothing.
    void Cut_Mongline(CMlineSegment* seg, int element, const double* startPoint, int startSegment,
                      const double* endPoint, int endSegment);

    // Where two multilines meet: crossing.cpp.
    struct xPtList {
        double point[3];
        int firstSegment;
        int secondSegment;
    };
    bool getSegmentNumbers(CMlineSegment* first, CMlineSegment* second, int* firstSegment,
                           int* secondSegment, double* point, bool crossMode);
    bool set_PTCrossing(const CMlineSegment* first, int firstSegment, const CMlineSegment* second,
                        int secondSegment, PointTable* crossing, int* crossingSize);
    // False when the axes don't cross; the result has no meaning to callers that drop it.
    bool getXPoint(KdDbMline* first, int firstSegment, KdDbMline* second, int secondSegment,
                   double* point);
    [[nodiscard]] bool isCrossingSolved(int i, int j) const; // false outside the matrix
    [[nodiscard]] std::size_t crossingIndex(int i, int j) const;
    void cutBetween(const CrossCut& cut, int segment); // crossTools.cpp
    // Whether the mapped pick lies before the crossing of the two elements 0: teeTools.cpp.
    [[nodiscard]] bool crossingLiesAhead(const CMlineSegment& seg) const;

    // Ends of elements and of the whole: trim.cpp.
    void change41GroupNumber(CMlineSegment* seg, int element, int vertex, const double* point,
                             bool keepStart);
    int change71GroupNumber(KdDbMline* mline, int endCaps, int startCaps, int closed,
                            int hasVertex);

    // Moving a vertex: vertexShift.cpp.
    void changePTPosition(KdDbMline* mline, int vertex, const double* newPosition,
                          PointTable ptList);
    void Distance_PointToPoint(const double* point, const double* origin, double* result,
                               const double* reference);
    void Distance_PointToLine(const double* point, const double* lineStart, const double* lineEnd,
                              const double* normal, double* distance, double* foot);

    // The corner of one element: cornerJoint.cpp.
    void getCornerPoint(int element, int count, int otherCount, double* point, bool oppositeEnds,
                        bool keepStart, bool isSecond);

    // The parts of a corner joint.
    void joinTwo(const double* corner, bool firstKeepsStart, bool secondKeepsStart);
    void removeBeyondCorner(CMlineSegment& seg, bool keepStart);
    void moveEnd(CMlineSegment& seg, int vertex, const double* place);
    void trimToCorner(CMlineSegment& seg, int otherElements, bool oppositeEnds, bool keepStart,
                      bool isSecond);
    StepOutcome joinWithItself(const double* corner, bool firstKeepsStart, bool secondKeepsStart);
    void cutLoopOut(CMlineSegment& seg, int laterSegment, const double* corner);
    void closeLoop(CMlineSegment& seg, int earlierSegment, const double* corner);

    // The parts of a tee: teeTools.cpp.
    bool removeBeyondBar(int stemSegment, int barSegment, bool keepStart);
    [[nodiscard]] bool isNearerToFirstLine(int element, int reference) const;
    void trimStemEach(const TeeEnd& end);
    void trimAt(const CrossingAt& at, const TeeEnd& end);

    // Changing the number of vertices: vertexTools.cpp.
    void add_OneVertex(CMlineSegment* seg);
    void delete_OneVertex(CMlineSegment* seg, int vertex);
    int getDeleteVertexNumver(CMlineSegment* seg);
    void splitLists(CMlineSegment* seg, const KdDbMline& copy, const double* from, const double* to,
                    const double* normal);

    // Taking back cuts: weldTool.cpp.
    void mlineEditInitializeForWeldAll(CMlineSegment* seg, long* name, CMlineSegment* other);
    void mappingToSpecifyMonglineForWeldAll(CMlineSegment* seg, int element, double* out);
    void Weld_Mongline(CMlineSegment* first, CMlineSegment* second);

    // Parts of the cycle: editCycle.cpp.
    enum class Prompted { leave, again, picked };
    Prompted askFirst(const EditTool& tool, HINSTANCE resources);
    Prompted askSecond(const EditTool& tool, HINSTANCE resources);
    bool isRefusedAsClosed(HINSTANCE resources);
    void takeBackLastCycle(const EditTool& tool);
    void workOnPicks(const EditTool& tool, HINSTANCE resources);
    void renewUndoCopies(const EditTool& tool);
    StepOutcome runStep(const EditTool& tool);
    void closeAtExit(const EditTool& tool);
};
