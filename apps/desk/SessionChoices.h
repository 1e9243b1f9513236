#pragma once

#include "DrawingChoices.h"

namespace orvex {

// The line types of the current document, whichever drawing that is, and the host's local names.
class SessionChoices final : public DrawingChoices {
public:
    SessionChoices() : m_before(setDrawingChoices(this)) {}
    ~SessionChoices() override { setDrawingChoices(m_before); }
    SessionChoices(const SessionChoices&) = delete;
    SessionChoices& operator=(const SessionChoices&) = delete;

    [[nodiscard]] std::wstring byLayerName() const override;
    [[nodiscard]] std::wstring byBlockName() const override;
    [[nodiscard]] std::wstring continuousName() const override;
    [[nodiscard]] std::vector<LinetypeChoice> linetypes() const override;

private:
    DrawingChoices* m_before;
};

} // namespace orvex
