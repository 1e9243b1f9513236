#pragma once

#include "DrawingFile.h"
#include "KdDbStub.h"

#include <random>
#include <vector>

namespace orvex::testing {

// Edits a drawing, whatever is in it: one of many edits at a time, of which most can be made again
// and again.
class RandomEdits {
public:
    RandomEdits(DrawingFile& file, std::mt19937& random);

    void edit();

private:
    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    template <class Object>
    Object* anyOf(const std::vector<KdDbStub*>& stubs);
    void editMline(double number, const wchar_t* key);
    void editStyle(double number, const wchar_t* key);
    void editDictionary(const wchar_t* key);
    void editLayer();
    void editVariable(double number);
    void add(std::unique_ptr<KdDbObject> entity, ObjectKind kind);

    DrawingFile& m_file;
    std::mt19937& m_random;
    std::vector<KdDbStub*> m_mlines;
    std::vector<KdDbStub*> m_styles;
    std::vector<KdDbStub*> m_layers;
};

} // namespace orvex::testing
