#include "KdEdCommandStack.h"

#include <gmock/gmock.h>

namespace {

void first() {}
void second() {}

void add(KdEdCommandStack& stack, const wchar_t* group, const wchar_t* global, const wchar_t* local,
         void (*function)()) {
    stack.addCommand(group, global, local, 2, function, nullptr, -1, nullptr, nullptr);
}

TEST(CommandStack, findsCommandsByTheirOwnNamesFirstInAnyCase) {
    KdEdCommandStack stack;
    add(stack, L"G", L"-EDIT", L"-\u00C4NDERN", first);
    add(stack, L"G", std::wstring(L"A").c_str(), std::wstring(L"B").c_str(), first); // copied
    add(stack, L"G", L"B", L"A", second);
    // An empty local name may stand more than once, and finds nothing.
    add(stack, L"G", L"C", L"", first);
    add(stack, L"G", L"D", nullptr, second);
    ASSERT_NE(stack.lookUp(L"-edit"), nullptr);
    EXPECT_EQ(stack.lookUp(L"-edit"), stack.lookUp(L"-\u00E4ndern"));
    EXPECT_EQ(stack.lookUp(L"B")->function, &second);
    EXPECT_EQ(stack.lookUp(L"d")->function, &second);
    for (const wchar_t* const none : {L"EDIT", L"", static_cast<const wchar_t*>(nullptr)}) {
        EXPECT_EQ(stack.lookUp(none), nullptr);
    }
}

TEST(CommandStack, replacesACommandOfTheSameGroupAndRemovesWholeGroups) {
    KdEdCommandStack stack;
    add(stack, L"G", L"A", L"", first);
    add(stack, L"g", L"a", L"", second);
    add(stack, L"H", L"C", L"", first);
    ASSERT_EQ(stack.commands().size(), 2U);
    EXPECT_EQ(stack.lookUp(L"A")->function, &second);

    stack.removeGroup(L"G");
    stack.removeGroup(L"nowhere");
    EXPECT_EQ(stack.lookUp(L"A"), nullptr);
    EXPECT_NE(stack.lookUp(L"C"), nullptr);
}

} // namespace
