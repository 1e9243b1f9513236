#pragma once

#include "CMlineSegment.h"
#include "HINSTANCE.h"
#include "SolvedCrossings.h"
#include "promptStatus.h"

#include <vector>

class KdDbMline;

// One run of an editing tool on the multilines of the open drawing. A tool repeats its cycle, picks
// and then its own step, until the user ends it; the keyword UNDO takes back the last cycle.
//
// Everything here is fixed by the interface, except where noted, and public: the tools share the
// two picked records and the work lists. What is our own are free functions in the namespace
// mledit, in the files named below. Points are x, y, z in world coordinates, lengths and breaks in
// drawing units, angles in radians.
class CMlineEdit {
public:
    int m_status = kPromptNormal;              // of the last prompt; the tool's result
    wchar_t m_buffer[kPromptTextSize] = {};    // every prompt, keyword and message passes through
    double m_pickedPoint[3] = {0.0, 0.0, 0.0}; // last pick, current user coordinate system
    double m_pickRadius = 0.0;                 // pick aperture, display units; 0 matches nothing
    long m_pickedName[2] = {0, 0}; // entity of the last pick until a record has taken it over
    CMlineSegment m_first;         // the picked multilines of the cycle
    CMlineSegment m_second;
    std::vector<double> m_breaks; // the break list being edited
    int m_reserved = -1;
    KdDbMline* m_undoFirst = nullptr; // owned: the entities as they were before the cycle, or null
    KdDbMline* m_undoSecond = nullptr;
    mledit::PointTable m_crossing = nullptr;   // owned: [element of first][element of second]
    int m_crossingSize = 0;                    // rows of m_crossing
    mledit::SolvedCrossings m_solvedCrossings; // our own: which entries of m_crossing are crossings

    CMlineEdit();
    ~CMlineEdit();
    CMlineEdit(const CMlineEdit&) = delete;
    CMlineEdit& operator=(const CMlineEdit&) = delete;

    // The tools; each returns the last prompt status. EditTool.cpp; their steps are in crossTools,
    // teeTools, cornerJoint, vertexTools, cutTools and weldTool, the cycle they share in editCycle.
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

    // Copies between entities and their undo copies; a null on either side does nothing. By name:
    // opens the entity, writes the copy back to it and closes it. CMlineEdit.cpp
    void MlineCopy(KdDbMline* target, KdDbMline* source);
    void MlineCopy(long* name, KdDbMline* source);

    // From a pick to a filled record: pickMatching.cpp. The entity is opened for read, or shared
    // with `other` when that record holds it already; `name` is cleared.
    void mlineEditInitialize(CMlineSegment* seg, long* name, CMlineSegment* other);
    // Rebuilds the table of element positions. Rows and columns that the entity doesn't have are
    // zero.
    void ptListInitialize(KdDbMline* mline, int numVertices, int numElements,
                          mledit::PointTable* list, int* size);
    // The pick aperture in display units; unchanged without a view.
    void set_SpaceBetween(double* radius);

    // The point of another element that lies perpendicular to the segment from a pick: mapping.cpp.
    // Element -1 is the vertex chain; its point goes to `out`, which is written in this case only.
    void mappingToSpecifyMongline(CMlineSegment* seg, int element, double* out);
    // Finds the mapped segment again after the vertices have changed.
    void correctMapping(CMlineSegment* seg);
    // Compass direction in plan from a to b, coordinates being equal within 1e-10: 0 same point,
    // 1 east, 2 north-east, 3 north, 4 north-west, and the negative for the opposite direction.
    // -5001 for a NaN.
    static int PositionConnection(const double* a, const double* b);

    // Breaks of an element: cutTools.cpp.
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
    // Finds the segments that cross, wherever on the two multilines the picks lie, and makes them
    // the records' segments. False, with the outputs untouched, when there are none. `point` may be
    // null.
    bool getSegmentNumbers(CMlineSegment* first, CMlineSegment* second, int* firstSegment,
                           int* secondSegment, double* point, bool crossMode);
    // Fills the matrix of crossings of two segments. True when at least one pair of elements
    // crosses. Segments that run in the same direction are refused and leave the matrix as it was.
    bool set_PTCrossing(const CMlineSegment* first, int firstSegment, const CMlineSegment* second,
                        int secondSegment, mledit::PointTable* crossing, int* crossingSize);
    // The crossing of two axes. False when they don't cross or a segment doesn't exist; `point` is
    // then unchanged.
    bool getXPoint(KdDbMline* first, int firstSegment, KdDbMline* second, int secondSegment,
                   double* point);

    // Ends of elements and of the whole multiline: trim.cpp.
    void change41GroupNumber(CMlineSegment* seg, int element, int vertex, const double* point,
                             bool keepStart);
    int change71GroupNumber(KdDbMline* mline, int endCaps, int startCaps, int closed,
                            int hasVertex);

    // Moving a vertex: vertexShift.cpp.
    void changePTPosition(KdDbMline* mline, int vertex, const double* newPosition,
                          mledit::PointTable ptList);
    // With a reference the distance is positive to the left of the direction from the origin to it.
    void Distance_PointToPoint(const double* point, const double* origin, double* result,
                               const double* reference);
    // The distance is positive to the left of the line, or to the right when the normal points
    // down. Either output may be null; the normal is read for the distance only.
    void Distance_PointToLine(const double* point, const double* lineStart, const double* lineEnd,
                              const double* normal, double* distance, double* foot);

    // The corner of one element: cornerJoint.cpp.
    void getCornerPoint(int element, int count, int otherCount, double* point, bool oppositeEnds,
                        bool keepStart, bool isSecond);

    // Changing the number of vertices: vertexTools.cpp.
    void add_OneVertex(CMlineSegment* seg);
    void delete_OneVertex(CMlineSegment* seg, int vertex);
    int getDeleteVertexNumver(CMlineSegment* seg);

    // Taking back cuts: weldTool.cpp.
    void mlineEditInitializeForWeldAll(CMlineSegment* seg, long* name, CMlineSegment* other);
    void mappingToSpecifyMonglineForWeldAll(CMlineSegment* seg, int element, double* out);
    void Weld_Mongline(CMlineSegment* first, CMlineSegment* second);
};
