#include "KdEdCommandStack.h"

#include <gmock/gmock.h>

namespace {

void first() {}
void second() {}

void add(KdEdCommandStack& stack, const wchar_t* group, const wchar_t* global, const wchar_t* local,
         void (*function)()) {
    stack.addCommand(group, global, local, 2, function, nullptr, -1, nullptr, nullptr);
}

TEST(CommandStack, findsCommandsByBothNamesInAnyCase) {
    KdEdCommandStack stack;
    add(stack, L"G", L"-EDIT", L"-\u00C4NDERN", first);
    ASSERT_NE(stack.lookUp(L"-edit"), nullptr);
    EXPECT_EQ(stack.lookUp(L"-edit"), stack.lookUp(L"-\u00E4ndern"));
    EXPECT_EQ(stack.lookUp(L"EDIT"), nullptr);
    EXPECT_EQ(stack.lookUp(nullptr), nullptr);
}

TEST(CommandStack, takesEmptyLocalNamesMoreThanOnceAndFindsNoneByThem) {
    KdEdCommandStack stack;
    add(stack, L"G", L"A", L"", first);
    add(stack, L"G", L"B", nullptr, second);
    EXPECT_EQ(stack.lookUp(L""), nullptr);
    EXPECT_EQ(stack.lookUp(L"b")->function, &second);
}

TEST(CommandStack, ownNamesGoBeforeTranslatedOnes) {
    KdEdCommandStack stack;
    add(stack, L"G", L"A", L"B", first);
    add(stack, L"G", L"B", L"A", second);
    EXPECT_EQ(stack.lookUp(L"B")->function, &second);
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

TEST(CommandStack, copiesTheNames) {
    KdEdCommandStack stack;
    {
        const std::wstring name = L"TEMPORARY";
        add(stack, L"G", name.c_str(), name.c_str(), first);
    }
    EXPECT_NE(stack.lookUp(L"TEMPORARY"), nullptr);
}

} // namespace
