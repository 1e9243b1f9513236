#pragma once

#include "KdCmColor.h"
#include "KdDbObject.h"

namespace orvex {
struct MlineStyleContent;
}

// How a multiline looks: its elements, fill, caps and joints. Elements keep the order in which
// they were set, offsets may repeat; nothing is sorted, merged or renumbered. Angles in radians,
// offsets in drawing units at scale 1. Its own name and its key in the dictionary of styles are
// two separate texts.
class KdDbMlineStyle : public KdDbObject {
public:
    KdDbMlineStyle();
    KdDbMlineStyle(const KdDbMlineStyle& other); // outside any database
    ~KdDbMlineStyle() override;

    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    // As a fresh STANDARD: two elements at 0.5 and -0.5 by layer, angles of 90 degrees.
    void initMlineStyle();
    // Takes over all but the name from `style`.
    Status set(const KdDbMlineStyle& style, bool checkIfReferenced);

    [[nodiscard]] const wchar_t* name() const;
    Status setName(const wchar_t* name);
    [[nodiscard]] const wchar_t* description() const;
    Status setDescription(const wchar_t* description);
    [[nodiscard]] const KdCmColor& fillColor() const;
    Status setFillColor(const KdCmColor& color);
    [[nodiscard]] double startAngle() const;
    Status setStartAngle(double radians);
    [[nodiscard]] double endAngle() const;
    Status setEndAngle(double radians);

    [[nodiscard]] bool filled() const;
    void setFilled(bool on);
    [[nodiscard]] bool showMiters() const;
    void setShowMiters(bool on);
    [[nodiscard]] bool startSquareCap() const;
    void setStartSquareCap(bool on);
    [[nodiscard]] bool startInnerArcs() const;
    void setStartInnerArcs(bool on);
    [[nodiscard]] bool startRoundCap() const;
    void setStartRoundCap(bool on);
    [[nodiscard]] bool endSquareCap() const;
    void setEndSquareCap(bool on);
    [[nodiscard]] bool endInnerArcs() const;
    void setEndInnerArcs(bool on);
    [[nodiscard]] bool endRoundCap() const;
    void setEndRoundCap(bool on);

    [[nodiscard]] int numElements() const;
    // Index outside: refused, outputs untouched.
    Status getElementAt(int index, double& offset, KdCmColor& color, KdDbObjectId& linetype) const;
    // `index` comes back as given; a null line type is allowed.
    Status setElement(int& index, double offset, const KdCmColor& color, KdDbObjectId linetype);
    // The element gets that index (0: in front of all). `check` refuses nothing.
    Status addElement(int& index, double offset, const KdCmColor& color, KdDbObjectId linetype,
                      bool check);
    Status removeElementAt(int index); // the others move up one

    [[nodiscard]] std::shared_ptr<const orvex::ObjectContent> content() const override;
    Status setContent(const std::shared_ptr<const orvex::ObjectContent>& content) override;

    [[nodiscard]] const orvex::MlineStyleContent& values() const { return *m_content; }

private:
    orvex::MlineStyleContent& change();
    std::shared_ptr<orvex::MlineStyleContent> m_content;
};
