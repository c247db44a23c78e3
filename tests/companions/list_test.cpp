// Lists with a cursor, and what they take from their heap.
#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <vector>

#include "tests/companions/ended_calls.h"
#include "ztshared.h"

namespace {

using zttest::EndOf;
using zttest::kCameBack;

class List : public testing::Test {
protected:
    ~List() override { SharedHeapDestroy(heap_); }

    void Fill(int count)
    {
        for (int i = 0; i < count; ++i)
            SharedListAppend(list_, &elements_[i]);
    }

    SharedHeap heap_ = SharedHeapCreate();
    SharedList list_ = SharedListCreate(heap_, 0);
    char elements_[1000] = {};
};

TEST_F(List, StartsBeforeTheFirstElement)
{
    EXPECT_EQ(SharedListCurrent(list_), nullptr);
    Fill(2);
    EXPECT_EQ(SharedListCurrent(list_), nullptr);
    EXPECT_EQ(SharedListNext(list_), &elements_[0]);
}

TEST_F(List, EmptyHasNoElements)
{
    EXPECT_EQ(SharedListFirst(list_), nullptr);
    EXPECT_EQ(SharedListLast(list_), nullptr);
    EXPECT_EQ(SharedListNext(list_), nullptr);
    EXPECT_EQ(SharedListPrev(list_), nullptr);
    EXPECT_EQ(SharedListCurrent(list_), nullptr);
}

TEST_F(List, WalksForwardsAndStaysPastTheEnd)
{
    Fill(3);
    EXPECT_EQ(SharedListFirst(list_), &elements_[0]);
    EXPECT_EQ(SharedListNext(list_), &elements_[1]);
    EXPECT_EQ(SharedListNext(list_), &elements_[2]);
    EXPECT_EQ(SharedListNext(list_), nullptr);
    EXPECT_EQ(SharedListNext(list_), nullptr);
    EXPECT_EQ(SharedListCurrent(list_), nullptr);
    EXPECT_EQ(SharedListPrev(list_), &elements_[2]);
}

TEST_F(List, WalksBackwardsAndStaysBeforeTheStart)
{
    Fill(3);
    EXPECT_EQ(SharedListLast(list_), &elements_[2]);
    EXPECT_EQ(SharedListPrev(list_), &elements_[1]);
    EXPECT_EQ(SharedListPrev(list_), &elements_[0]);
    EXPECT_EQ(SharedListPrev(list_), nullptr);
    EXPECT_EQ(SharedListPrev(list_), nullptr);
    EXPECT_EQ(SharedListCurrent(list_), nullptr);
    EXPECT_EQ(SharedListNext(list_), &elements_[0]);
}

TEST_F(List, AppendLeavesTheCursor)
{
    Fill(1);
    SharedListFirst(list_);
    SharedListAppend(list_, &elements_[1]);
    EXPECT_EQ(SharedListCurrent(list_), &elements_[0]);
    SharedListNext(list_);
    EXPECT_EQ(SharedListNext(list_), nullptr);
    SharedListAppend(list_, &elements_[2]);
    EXPECT_EQ(SharedListCurrent(list_), nullptr) << "past the end stays past the end";
    EXPECT_EQ(SharedListPrev(list_), &elements_[2]);
}

TEST_F(List, SeekGoesWhereTellWas)
{
    Fill(5);
    SharedListFirst(list_);
    SharedListNext(list_);
    const int32_t position = SharedListTell(list_);
    SharedListLast(list_);
    SharedListSeek(list_, position);
    EXPECT_EQ(SharedListCurrent(list_), &elements_[1]);
    EXPECT_EQ(SharedListTell(list_), position);
}

TEST_F(List, SeekRestoresThePlacesOutsideToo)
{
    Fill(2);
    const int32_t before = SharedListTell(list_);
    SharedListLast(list_);
    SharedListNext(list_);
    const int32_t past = SharedListTell(list_);
    SharedListSeek(list_, before);
    EXPECT_EQ(SharedListNext(list_), &elements_[0]);
    SharedListSeek(list_, past);
    EXPECT_EQ(SharedListPrev(list_), &elements_[1]);
}

TEST_F(List, SeekOutOfRangeStopsAtTheEnds)
{
    Fill(2);
    SharedListSeek(list_, INT_MAX);
    EXPECT_EQ(SharedListCurrent(list_), nullptr);
    EXPECT_EQ(SharedListPrev(list_), &elements_[1]);
    SharedListSeek(list_, INT_MIN);
    EXPECT_EQ(SharedListCurrent(list_), nullptr);
    EXPECT_EQ(SharedListNext(list_), &elements_[0]);
}

TEST_F(List, HoldsManyElementsInTheirOrder)
{
    constexpr int kCount = 1000;
    Fill(kCount);
    int seen = 0;
    for (void* element = SharedListFirst(list_); element; element = SharedListNext(list_))
        ASSERT_EQ(element, &elements_[seen++]);
    EXPECT_EQ(seen, kCount);
}

TEST_F(List, LivesInItsHeapAndLeavesNothingThere)
{
    EXPECT_GE(SharedHeapBlockCount(heap_), 1u);
    Fill(1000);
    SharedListDestroy(list_);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 0u);
}

TEST_F(List, DoesNotFreeItsElements)
{
    void* element = SharedHeapAlloc(heap_, 10, 0);
    SharedListAppend(list_, element);
    SharedListDestroy(list_);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 1u);
    SharedHeapFree(heap_, element);
}

TEST_F(List, SurvivesNull)
{
    EXPECT_EQ(EndOf([] { SharedListDestroy(nullptr); }), kCameBack);
    EXPECT_EQ(EndOf([] { SharedListAppend(nullptr, nullptr); }), kCameBack);
    EXPECT_EQ(EndOf([] { SharedListSeek(nullptr, 1); }), kCameBack);
    EXPECT_EQ(EndOf([] { SharedListTell(nullptr); }), kCameBack);
    EXPECT_EQ(SharedListFirst(nullptr), nullptr);
    EXPECT_EQ(SharedListLast(nullptr), nullptr);
    EXPECT_EQ(SharedListNext(nullptr), nullptr);
    EXPECT_EQ(SharedListPrev(nullptr), nullptr);
    EXPECT_EQ(SharedListCurrent(nullptr), nullptr);
}

// A vector and a position that may stand one before the first and one past the last.
TEST_F(List, AgreesWithAVectorOnRandomWalks)
{
    std::mt19937 random(11);
    std::vector<void*> expected;
    int cursor = -1;
    const auto move = [&](int position) {
        cursor = position < -1                                  ? -1
                 : position > static_cast<int>(expected.size()) ? static_cast<int>(expected.size())
                                                                : position;
    };
    const auto current = [&]() -> void* {
        const bool inside = cursor >= 0 && cursor < static_cast<int>(expected.size());
        return inside ? expected[static_cast<size_t>(cursor)] : nullptr;
    };
    SharedListAppend(list_, elements_);
    expected.push_back(elements_);
    for (int i = 0; i < 20000; ++i) {
        switch (random() % 8) {
        case 0: SharedListFirst(list_), move(0); break;
        case 1: SharedListLast(list_), move(static_cast<int>(expected.size()) - 1); break;
        case 2:
        case 3: SharedListNext(list_), move(cursor + 1); break;
        case 4:
        case 5: SharedListPrev(list_), move(cursor - 1); break;
        case 6: SharedListSeek(list_, SharedListTell(list_)); break;
        default:
            if (expected.size() < sizeof elements_) {
                const bool past = cursor == static_cast<int>(expected.size());
                SharedListAppend(list_, &elements_[expected.size()]);
                expected.push_back(&elements_[expected.size()]);
                cursor += past;
            }
        }
        ASSERT_EQ(SharedListCurrent(list_), current()) << "after step " << i;
    }
}

}  // namespace
