#pragma once

// A view of the drawing: a plan view of the world, whatever the user coordinate system. Display
// units are drawing units, so that distances on the display equal distances in the plan.
class RvexView {
public:
    virtual ~RvexView() = default;

    // Replaces a length in pixels by one in display units, finite and above 0. The pointers and
    // the last argument (null, null, 1) are taken for the interface's sake.
    virtual void pixelsToDisplayUnits(double& length, void* unused1, void* unused2,
                                      int unused3) const = 0;
    // Writes x and y of a world point in display units.
    virtual void worldToDisplay(const double* world, double* display) const = 0;
};
