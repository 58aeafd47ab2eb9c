#include "FreedMemory.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <new>

namespace {

constexpr unsigned char pattern = 0xff;
constexpr std::size_t mostBlocks = 65536;

// Plain data: it is used before any constructor has run.
thread_local bool isWatching = false;
std::size_t blockCount = 0;
void* blocks[mostBlocks];

bool isUntouched(const void* block)
{
    const auto* bytes = static_cast<const unsigned char*>(block);
    return std::all_of(bytes, bytes + malloc_usable_size(const_cast<void*>(block)),
                       [](unsigned char byte) { return byte == pattern; });
}

void release(void* block) noexcept
{
    if (!block || !isWatching || blockCount == mostBlocks) {
        std::free(block);
        return;
    }
    std::memset(block, pattern, malloc_usable_size(block));
    blocks[blockCount++] = block;
}

} // namespace

void* operator new(std::size_t size)
{
    if (void* const block = std::malloc(std::max<std::size_t>(size, 1))) {
        return block;
    }
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return std::malloc(std::max<std::size_t>(size, 1));
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
    std::for_each(blocks, blocks + blockCount, [](void* block) { std::free(block); });
    blockCount = 0;
}

std::size_t FreedMemoryWatch::deleted() const
{
    return blockCount;
}

std::size_t FreedMemoryWatch::writtenAfterwards() const
{
    return std::count_if(blocks, blocks + blockCount, [](const void* block) { return !isUntouched(block); });
}
