// Heaps that count their blocks and never hand out null.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "tests/companions/ended_calls.h"
#include "ztshared.h"

namespace {

using zttest::EndOf;
using zttest::kCameBack;
using zttest::kNoMemory;

class Heap : public testing::Test {
protected:
    ~Heap() override { SharedHeapDestroy(heap_); }

    SharedHeap heap_ = SharedHeapCreate();
};

TEST_F(Heap, CountsItsLiveBlocks)
{
    EXPECT_EQ(SharedHeapBlockCount(heap_), 0u);
    void* first = SharedHeapAlloc(heap_, 10, 0);
    void* second = SharedHeapAlloc(heap_, 20, 0);
    char* third = SharedHeapStrDup(heap_, "text", 0);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 3u);
    SharedHeapFree(heap_, first);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 2u);
    second = SharedHeapRealloc(heap_, second, 2000, 0);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 2u);
    void* fourth = SharedHeapRealloc(heap_, nullptr, 5, 0);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 3u);
    SharedHeapFree(heap_, second);
    SharedHeapFree(heap_, third);
    SharedHeapFree(heap_, fourth);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 0u);
}

TEST_F(Heap, CountsApartFromOtherHeaps)
{
    const SharedHeap other = SharedHeapCreate();
    SharedHeapAlloc(other, 10, 0);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 0u);
    EXPECT_EQ(SharedHeapBlockCount(other), 1u);
    SharedHeapDestroy(other);
}

TEST_F(Heap, GivesBlocksThatCanBeFilledAndDoNotOverlap)
{
    std::vector<std::pair<unsigned char*, size_t>> blocks;
    for (uint32_t size = 1; size < 500; size += 7) {
        auto* block = static_cast<unsigned char*>(SharedHeapAlloc(heap_, size, size));
        ASSERT_EQ(reinterpret_cast<uintptr_t>(block) % MEMORY_ALLOCATION_ALIGNMENT, 0u);
        std::memset(block, static_cast<int>(size & 0xFF), size);
        blocks.emplace_back(block, size);
    }
    for (const auto& [block, size] : blocks)
        for (size_t i = 0; i < size; ++i)
            ASSERT_EQ(block[i], size & 0xFF);
}

TEST_F(Heap, GivesAValidBlockOfNoBytes)
{
    void* block = SharedHeapAlloc(heap_, 0, 0);
    EXPECT_NE(block, nullptr);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 1u);
    block = SharedHeapRealloc(heap_, block, 0, 0);
    EXPECT_NE(block, nullptr);
    SharedHeapFree(heap_, block);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 0u);
}

TEST_F(Heap, KeepsTheContentsOfAResizedBlock)
{
    auto* block = static_cast<char*>(SharedHeapAlloc(heap_, 100, 0));
    for (int i = 0; i < 100; ++i)
        block[i] = static_cast<char>(i);
    for (const uint32_t size : {200u, 100000u, 101u, 50u, 5000u}) {
        block = static_cast<char*>(SharedHeapRealloc(heap_, block, size, 0));
        for (int i = 0; i < 50; ++i)
            ASSERT_EQ(block[i], i) << size;
    }
}

TEST_F(Heap, DuplicatesTexts)
{
    const std::string lengthy(100000, 'x');
    for (const std::string& text : {std::string(), std::string("text"), lengthy}) {
        const char* copy = SharedHeapStrDup(heap_, text.c_str(), 0);
        EXPECT_NE(copy, text.c_str());
        EXPECT_EQ(copy, text);
    }
}

TEST_F(Heap, TakesANullTextAsTheEmptyText)
{
    EXPECT_STREQ(SharedHeapStrDup(heap_, nullptr, 0), "");
}

TEST_F(Heap, IgnoresTheFlags)
{
    EXPECT_STREQ(SharedHeapStrDup(heap_, "text", 0xFFFFFFFF), "text");
    void* block = SharedHeapAlloc(heap_, 16, 0xFFFFFFFF);
    std::memset(block, 1, 16);
    block = SharedHeapRealloc(heap_, block, 32, 0xFFFFFFFF);
    EXPECT_NE(block, nullptr);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 2u);
}

TEST_F(Heap, IgnoresNullBlocksAndNullHeaps)
{
    SharedHeapFree(heap_, nullptr);
    EXPECT_EQ(SharedHeapBlockCount(heap_), 0u);
    EXPECT_EQ(SharedHeapBlockCount(nullptr), 0u);
    EXPECT_EQ(EndOf([] { SharedHeapFree(nullptr, nullptr); }), kCameBack);
    EXPECT_EQ(EndOf([] { SharedHeapDestroy(nullptr); }), kCameBack);
}

// MEM_COMMIT where there is memory, MEM_FREE where there is none.
DWORD StateOf(const void* address)
{
    MEMORY_BASIC_INFORMATION pages{};
    VirtualQuery(address, &pages, sizeof pages);
    return pages.State;
}

TEST(HeapDestruction, DiscardsEveryBlock)
{
    const SharedHeap heap = SharedHeapCreate();
    std::vector<void*> blocks;
    for (const uint32_t size : {10u, 1000u, 100'000u, 10'000'000u, 100'000'000u})
        blocks.push_back(SharedHeapAlloc(heap, size, 0));
    for (const void* block : blocks)
        EXPECT_EQ(StateOf(block), static_cast<DWORD>(MEM_COMMIT));
    SharedHeapDestroy(heap);
    for (const void* block : blocks)
        EXPECT_EQ(StateOf(block), static_cast<DWORD>(MEM_FREE));
}

TEST(HeapDestruction, LeavesOtherHeapsAlone)
{
    const SharedHeap heap = SharedHeapCreate();
    const SharedHeap other = SharedHeapCreate();
    const char* text = SharedHeapStrDup(other, "text", 0);
    SharedHeapDestroy(heap);
    EXPECT_STREQ(text, "text");
    EXPECT_EQ(SharedHeapBlockCount(other), 1u);
    SharedHeapDestroy(other);
}

#ifndef _WIN64  // a 64-bit process has room for every size that can be asked for
TEST(HeapExhaustion, EndsInTheNoMemoryException)
{
    EXPECT_EQ(EndOf([] {
                  const SharedHeap heap = SharedHeapCreate();
                  for (;;)
                      SharedHeapAlloc(heap, 0xFFFFFFFF, 0);
              }),
              kNoMemory);
}

TEST(HeapExhaustion, EndsAResizeToo)
{
    EXPECT_EQ(EndOf([] {
                  const SharedHeap heap = SharedHeapCreate();
                  for (;;)
                      SharedHeapRealloc(heap, SharedHeapAlloc(heap, 10, 0), 0xFFFFFFFF, 0);
              }),
              kNoMemory);
}
#endif

TEST(HeapExhaustion, IsWhatANullHeapCallsFor)
{
    EXPECT_EQ(EndOf([] { SharedHeapAlloc(nullptr, 10, 0); }), kNoMemory);
    EXPECT_EQ(EndOf([] { SharedHeapStrDup(nullptr, "text", 0); }), kNoMemory);
    EXPECT_EQ(EndOf([] { SharedHeapRealloc(nullptr, nullptr, 10, 0); }), kNoMemory);
    EXPECT_EQ(EndOf([] { SharedListCreate(nullptr, 0); }), kNoMemory);
    EXPECT_EQ(EndOf([] { SharedHeapDestroy(SharedHeapCreate()); }), kCameBack);
}

TEST(HeapLife, IsKnownOfEveryPointer)
{
    const SharedHeap first = SharedHeapCreate();
    const SharedHeap second = SharedHeapCreate();
    int no = 0;
    EXPECT_NE(SharedHeapIsAlive(first), 0);
    EXPECT_NE(SharedHeapIsAlive(second), 0);
    EXPECT_EQ(SharedHeapIsAlive(nullptr), 0);
    EXPECT_EQ(SharedHeapIsAlive(reinterpret_cast<SharedHeap>(&no)), 0);
    SharedHeapDestroy(first);
    EXPECT_EQ(SharedHeapIsAlive(first), 0);
    EXPECT_NE(SharedHeapIsAlive(second), 0);
    SharedHeapDestroy(second);
    EXPECT_EQ(SharedHeapIsAlive(second), 0);
}

TEST(HeapLife, EndsOnce)
{
    const SharedHeap heap = SharedHeapCreate();
    SharedHeapDestroy(heap);
    SharedHeapDestroy(heap);
    int no = 0;
    SharedHeapDestroy(reinterpret_cast<SharedHeap>(&no));
    SUCCEED();
}

// Hears of the end, and what the heap still holds then.
struct Watcher : SharedHeapWatcher {
    explicit Watcher(SharedHeap watched) : SharedHeapWatcher(), heap(watched) { ending = Hear; }
    static void WINAPI Hear(SharedHeapWatcher* watcher)
    {
        auto* self = static_cast<Watcher*>(watcher);
        ++self->heard;
        self->blocks = SharedHeapBlockCount(self->heap);
        SharedHeapDestroy(self->heap);  // has begun already
        if (self->other)
            SharedHeapUnwatch(self->heap, self->other);
        SharedHeapUnwatch(self->heap, self);  // has been told: watches no longer
    }

    SharedHeap heap;
    Watcher* other = nullptr;
    int heard = 0;
    uint32_t blocks = 0;
};

TEST(HeapWatching, TellsEachOnceWhileTheBlocksAreThere)
{
    const SharedHeap heap = SharedHeapCreate();
    Watcher first(heap);
    Watcher second(heap);
    SharedHeapAlloc(heap, 10, 0);
    SharedHeapWatch(heap, &first);
    SharedHeapWatch(heap, &second);
    SharedHeapDestroy(heap);
    EXPECT_EQ(first.heard, 1);
    EXPECT_EQ(second.heard, 1);
    EXPECT_EQ(first.blocks, 1u);
}

TEST(HeapWatching, EndsWhereItIsGivenUp)
{
    const SharedHeap heap = SharedHeapCreate();
    std::vector<Watcher> watchers(3, Watcher(heap));
    for (Watcher& watcher : watchers)
        SharedHeapWatch(heap, &watcher);
    SharedHeapUnwatch(heap, &watchers[1]);
    SharedHeapDestroy(heap);
    EXPECT_EQ(watchers[0].heard, 1);
    EXPECT_EQ(watchers[1].heard, 0);
    EXPECT_EQ(watchers[2].heard, 1);
}

TEST(HeapWatching, MayBeGivenUpByAnotherWhoHears)
{
    const SharedHeap heap = SharedHeapCreate();
    Watcher first(heap);
    Watcher second(heap);
    SharedHeapWatch(heap, &first);
    SharedHeapWatch(heap, &second);  // told first
    second.other = &first;
    SharedHeapDestroy(heap);
    EXPECT_EQ(second.heard, 1);
    EXPECT_EQ(first.heard, 0);
}

}  // namespace
