#include "FreedMemory.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <new>
#include <pthread.h>

namespace {

constexpr unsigned char pattern = 0xff;
constexpr std::size_t maxBlocks = 65536;

// Plain data: it is used before any constructor has run.
thread_local bool isWatching = false;
std::size_t blockCount = 0;
void* blocks[maxBlocks];

bool isMainThread()
{
    static const pthread_t first = pthread_self();
    return pthread_equal(first, pthread_self());
}

// For a program that asks for it, the main thread's small objects lie one after the other, and nothing lies
// there again: only what has been made before decides where the next one is. In the C library's memory other
// threads do, too, and the length of each text, and Qt orders widgets by their addresses. The sanitizer knows
// its own memory only.
#if defined(UIC_FIXED_ADDRESSES) && !defined(__SANITIZE_ADDRESS__)
constexpr std::size_t poolSize = 1024 * 1024 * 1024; // of addresses
#else
constexpr std::size_t poolSize = 1;
#endif
constexpr std::size_t unit = alignof(std::max_align_t);
constexpr std::size_t largest = 4096;
alignas(unit) unsigned char pool[poolSize];
std::size_t used = 0;

bool isPooled(const void* block)
{
    return block >= pool && block < pool + poolSize;
}

/// The size of a block of the pool, which is kept before it.
std::size_t& pooledSize(void* block)
{
    return *reinterpret_cast<std::size_t*>(static_cast<unsigned char*>(block) - unit);
}

void* take(std::size_t size)
{
    const std::size_t whole = (size / unit + 1) * unit;
    if (size > largest || !isMainThread() || used + unit + whole > poolSize) {
        return std::malloc(size);
    }
    void* const block = pool + used + unit;
    used += unit + whole;
    pooledSize(block) = whole;
    return block;
}

void giveBack(void* block)
{
    if (!isPooled(block)) {
        std::free(block);
    }
}

std::size_t sizeOf(void* block)
{
    return isPooled(block) ? pooledSize(block) : malloc_usable_size(block);
}

bool isUntouched(void* block)
{
    const auto* bytes = static_cast<const unsigned char*>(block);
    return std::all_of(bytes, bytes + sizeOf(block), [](unsigned char byte) { return byte == pattern; });
}

void release(void* block) noexcept
{
    if (!block || !isWatching || blockCount == maxBlocks) {
        giveBack(block);
        return;
    }
    std::memset(block, pattern, sizeOf(block));
    blocks[blockCount++] = block;
}

} // namespace

void* operator new(std::size_t size)
{
    if (void* const block = take(size)) {
        return block;
    }
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return take(size);
}

void operator delete(void* block) noexcept
{
    release(block);
}

void operator delete(void* block, std::size_t size) noexcept
{
    static_cast<void>(size);
    release(block);
}

FreedMemoryWatch::FreedMemoryWatch()
{
    isWatching = true;
}

FreedMemoryWatch::~FreedMemoryWatch()
{
    isWatching = false;
    std::for_each(blocks, blocks + blockCount, giveBack);
    blockCount = 0;
}

std::size_t FreedMemoryWatch::deleted() const
{
    return blockCount;
}

std::size_t FreedMemoryWatch::writtenAfterwards() const
{
    return std::count_if(blocks, blocks + blockCount, [](void* block) { return !isUntouched(block); });
}
