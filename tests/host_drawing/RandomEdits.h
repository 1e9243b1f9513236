#pragma once

#include "Chance.h"
#include "DrawingFile.h"
#include "KdDbStub.h"

#include <vector>

namespace orvex::testing {

// Edits a drawing, whatever is in it: one of many edits at a time, of which most can be made again
// and again.
class RandomEdits {
public:
    RandomEdits(DrawingFile& file, Chance& chance);

    void edit();

private:
    template <class Object>
    Object* anyOf(const std::vector<KdDbStub*>& stubs);
    void editMline(double number, const wchar_t* key);
    void editStyle(double number, const wchar_t* key);
    void editDictionary(const wchar_t* key);
    void editTables(const wchar_t* key);
    void editVariable(double number);
    void add(std::unique_ptr<KdDbObject> entity, ObjectKind kind);

    DrawingFile& m_file;
    Chance& m_chance;
    std::vector<KdDbStub*> m_mlines;
    std::vector<KdDbStub*> m_styles;
    std::vector<KdDbStub*> m_layers;
};

} // namespace orvex::testing
