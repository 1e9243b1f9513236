#pragma once

#include "RvexDocContext.h"
#include "RvexView.h"

namespace orvex::testing {

// An active document with a plan view of the world; its chain to the view can be cut at each link.
class FakeDocument : public RvexDocContext,
                     private RvexDocDataContext,
                     private RvexGraphics,
                     private RvexView {
public:
    int links = 3;
    double unitsPerPixel = 0.1;
    double displayOffset = 0.0; // of the display's origin, both ways

    FakeDocument() : m_before(orvex::setActiveDocContext(this)) {}
    ~FakeDocument() override { orvex::setActiveDocContext(m_before); }
    FakeDocument(const FakeDocument&) = delete;
    FakeDocument& operator=(const FakeDocument&) = delete;

    RvexDocDataContext* rvexDocDataContext() override { return links > 0 ? this : nullptr; }

private:
    RvexGraphics* graphics() override { return links > 1 ? this : nullptr; }
    RvexView* activeView() override { return links > 2 ? this : nullptr; }
    void pixelsToDisplayUnits(double& length, void*, void*, int) const override {
        length *= unitsPerPixel;
    }
    void worldToDisplay(const double* world, double* display) const override {
        display[0] = world[0] + displayOffset;
        display[1] = world[1] + displayOffset;
    }

    RvexDocContext* m_before;
};

} // namespace orvex::testing
