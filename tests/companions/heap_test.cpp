// Heaps that count their blocks and never hand out null.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "ztshared.h"

namespace {

constexpr DWORD kNoMemory = 0xC0000017;
constexpr DWORD kCameBack = 1;

class Heap : public testing::Test {
protected:
    ~Heap() override { SharedHeapDestroy(heap_); }

    SharedHeap heap_ = SharedHeapCreate();
};

// Ends the thread in which the no-memory exception was raised, instead of the process.
LONG CALLBACK EndThreadAtNoMemory(EXCEPTION_POINTERS* exception)
{
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode == kNoMemory && (record.ExceptionFlags & EXCEPTION_NONCONTINUABLE) != 0)
        ExitThread(kNoMemory);
    return EXCEPTION_CONTINUE_SEARCH;
}

DWORD WINAPI RunCalls(void* calls)
{
    reinterpret_cast<void (*)()>(calls)();
    return kCameBack;
}

// Whether the calls end in the no-memory exception: they run on a thread of their own, which the exception ends.
bool RunsOutOfMemory(void (*calls)())
{
    void* const handler = AddVectoredExceptionHandler(1, EndThreadAtNoMemory);
    const HANDLE thread = CreateThread(nullptr, 0, RunCalls, reinterpret_cast<void*>(calls), 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    DWORD result = 0;
    GetExitCodeThread(thread, &result);
    CloseHandle(thread);
    RemoveVectoredExceptionHandler(handler);
    return result == kNoMemory;
}

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
    SharedHeapFree(nullptr, nullptr);
    SharedHeapDestroy(nullptr);
    EXPECT_EQ(SharedHeapBlockCount(nullptr), 0u);
}

TEST(HeapDestruction, DiscardsEveryBlock)
{
    constexpr uint32_t kSize = 10'000'000;
    for (int i = 0; i < 50; ++i) {
        const SharedHeap heap = SharedHeapCreate();
        for (int block = 0; block < 10; ++block)
            SharedHeapAlloc(heap, kSize, 0);
        SharedHeapDestroy(heap);  // 5 GB in all: more than a 32-bit process could keep
    }
}

#ifndef _WIN64  // a 64-bit process has room for every size that can be asked for
TEST(HeapExhaustion, EndsInTheNoMemoryException)
{
    EXPECT_TRUE(RunsOutOfMemory([] {
        const SharedHeap heap = SharedHeapCreate();
        for (;;)
            SharedHeapAlloc(heap, 0xFFFFFFFF, 0);
    }));
}

TEST(HeapExhaustion, EndsAResizeToo)
{
    EXPECT_TRUE(RunsOutOfMemory([] {
        const SharedHeap heap = SharedHeapCreate();
        for (;;)
            SharedHeapRealloc(heap, SharedHeapAlloc(heap, 10, 0), 0xFFFFFFFF, 0);
    }));
}
#endif

TEST(HeapExhaustion, IsWhatANullHeapCallsFor)
{
    EXPECT_TRUE(RunsOutOfMemory([] { SharedHeapAlloc(nullptr, 10, 0); }));
    EXPECT_TRUE(RunsOutOfMemory([] { SharedHeapStrDup(nullptr, "text", 0); }));
    EXPECT_TRUE(RunsOutOfMemory([] { SharedHeapRealloc(nullptr, nullptr, 10, 0); }));
    EXPECT_TRUE(RunsOutOfMemory([] { SharedListCreate(nullptr, 0); }));
    EXPECT_FALSE(RunsOutOfMemory([] { SharedHeapDestroy(SharedHeapCreate()); }));
}

}  // namespace
