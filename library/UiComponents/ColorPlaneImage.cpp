#include "ColorPlaneImage.h"

#include <climits>
#include <cstdint>
#include <cstring>
#include <vector>

#if defined(__x86_64__) && defined(__GNUC__)
#include <cpuid.h>
#define HSV_PLANE_X86
#endif
#ifdef Q_OS_LINUX
#include <cstdlib>
#include <sys/mman.h>
#endif

// QColor keeps saturation, value, red, green and blue as integers from 0 to 65535, and rgb() gives each
// channel divided by 257, rounded. With V and S for value and saturation and w for the hue's place between
// two primaries (0 to 1), the three channels of a pixel are
//
//     V,    V (1 - S / 65535),    V (1 - w S / 65535),
//
// rounded, in an order that depends on the sixth of the hue circle. The first is the same in a whole row; the
// others are products of a term of the row and one of the column. They are made here in single precision:
//
//     sum = V * column + origin,    column = (1 - ...) / 257,    origin = 256 + 0.5 + margin
//
// lies between 256 and 512, so its bits hold the byte that rgb() would give (8) and the fraction behind it
// (15). The roundings of column, product and sum put it off by at most 2^-16, 2^-17 and 2^-16, which is less
// than 1.5 units of the last bit. Where the fraction is further than that from the next byte, the byte is
// right: QColor's own double arithmetic is a thousand times finer than the distance that is left. The other
// pixels, about one in 4,000, are computed with QColor. Among them are all whose exact value lies right
// between two bytes.

namespace {

constexpr double maxChannel = 65535.0;
constexpr int sixth = 6000; // of QColor's 36000 steps of hue

constexpr int fractionBits = 15;
constexpr float margin = 2.0F / (1 << fractionBits);
constexpr float origin = 256.5F + margin;
// Zero in those bits of the fraction: within the margin of a boundary.
constexpr std::uint32_t farBits = (1U << fractionBits) - 4;
// What the sum's sign and exponent leave above the byte, once that is moved to the lowest bits.
constexpr std::uint32_t exponentBits = 0x8700;

enum Position { Blue = 0, Green = 8, Red = 16 };

struct Sector
{
    Position value;   // the channel that is the row's value
    Position min;     // the one that saturation takes to 0
    Position between; // the one that depends on the hue
};

constexpr Sector sectors[] = {
    {Red, Blue, Green}, {Green, Blue, Red}, {Green, Red, Blue},
    {Blue, Red, Green}, {Blue, Green, Red}, {Red, Green, Blue},
};

// An image of this size does not fit into the caches. It is written past them, which spares reading what it
// replaces, and allocated in huge pages.
constexpr qint64 streamedPixels = 2 << 20;

qint64 pixelsOf(const QSize& size)
{
    return static_cast<qint64>(size.width()) * size.height();
}

struct Plane
{
    double hue;
    int width;
    int height;
    bool isStreamed;
    Sector sector;
    // The columns' terms of the two channels that have one, the lower position first.
    std::vector<float> low;
    std::vector<float> high;
    std::vector<int> values; // of the rows

    QRgb exact(int x, int y) const { return ColorPlaneImage::pixel(hue, {width, height}, {x, y}); }

    /// A row's pixels without the channels that differ in it.
    std::uint32_t rowBits(int y) const
    {
        return 0xFF000000U | static_cast<std::uint32_t>((values[std::size_t(y)] + 128) / 257) << sector.value;
    }
};

double saturationAt(int x, int width)
{
    return static_cast<double>(x) / (width - 1);
}

double valueAt(int y, int height)
{
    return 1.0 - static_cast<double>(y) / (height - 1);
}

/// The integer that QColor stores for a fraction. A QColor is made where the result depends on whether Qt was
/// compiled to fuse the multiplication and the addition of this rounding.
int sixteenBits(double fraction)
{
    const double sum = fraction * maxChannel + 0.5;
    const int below = static_cast<int>(sum);
    if (sum - below > 1e-6 && sum - below < 1.0 - 1e-6) {
        return below;
    }
    return qRound(QColor::fromHsvF(0.0, fraction, 1.0).hsvSaturationF() * maxChannel);
}

Plane planeOf(double hue, int width, int height)
{
    Plane plane{hue, width, height, pixelsOf({width, height}) >= streamedPixels, {}, {}, {}, {}};
    const int steps = qRound(QColor::fromHsvF(hue, 1.0, 1.0).hsvHueF() * (6 * sixth)) % (6 * sixth);
    const int sextant = steps / sixth;
    const int step = steps % sixth;
    const double weight = double(sextant % 2 == 1 ? step : sixth - step) / sixth;
    plane.sector = sectors[sextant];

    std::vector<float> min(static_cast<std::size_t>(width));
    std::vector<float> between(static_cast<std::size_t>(width));
    for (int x = 0; x < width; ++x) {
        const double saturation = sixteenBits(saturationAt(x, width)) / maxChannel;
        min[std::size_t(x)] = static_cast<float>((1.0 - saturation) / 257.0);
        between[std::size_t(x)] = static_cast<float>((1.0 - weight * saturation) / 257.0);
    }
    const bool minIsLow = plane.sector.min < plane.sector.between;
    plane.low = std::move(minIsLow ? min : between);
    plane.high = std::move(minIsLow ? between : min);
    plane.values.resize(static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        plane.values[std::size_t(y)] = sixteenBits(valueAt(y, height));
    }
    return plane;
}

std::uint32_t sumBits(float column, float row)
{
    const float sum = column * row + origin;
    std::uint32_t bits = 0;
    static_assert(sizeof bits == sizeof sum);
    std::memcpy(&bits, &sum, sizeof bits);
    return bits;
}

void renderPixels(const Plane& plane, int y, int begin, int end, QRgb* line)
{
    const Position lowAt = plane.sector.value == Blue ? Green : Blue;
    const Position highAt = plane.sector.value == Red ? Green : Red;
    const auto row = static_cast<float>(plane.values[std::size_t(y)]);
    const std::uint32_t rowBits = plane.rowBits(y);
    for (int x = begin; x < end; ++x) {
        const std::uint32_t low = sumBits(plane.low[std::size_t(x)], row);
        const std::uint32_t high = sumBits(plane.high[std::size_t(x)], row);
        if ((low & farBits) == 0 || (high & farBits) == 0) {
            line[x] = plane.exact(x, y);
        } else {
            line[x] =
                rowBits | (low >> fractionBits & 0xFF) << lowAt | (high >> fractionBits & 0xFF) << highAt;
        }
    }
}

void renderPlain(const Plane& plane, int y, QRgb* line)
{
    renderPixels(plane, y, 0, plane.width, line);
}

#ifdef HSV_PLANE_X86

struct Vectors128
{
    static constexpr bool canStream = false;
    static constexpr int lanes = 4;
    using Floats [[gnu::vector_size(16)]] = float;
    using Words [[gnu::vector_size(16)]] = std::uint32_t;
    using Shorts [[gnu::vector_size(16)]] = std::int16_t;
    using Longs [[gnu::vector_size(16)]] = std::uint64_t;

    template <bool isStreamed>
    [[gnu::always_inline]] static void store(const Words& pixels, QRgb* at)
    {
        std::memcpy(at, &pixels, sizeof pixels);
    }
};

struct Vectors256
{
    static constexpr bool canStream = true;
    static constexpr int lanes = 8;
    using Floats [[gnu::vector_size(32)]] = float;
    using Words [[gnu::vector_size(32)]] = std::uint32_t;
    using Shorts [[gnu::vector_size(32)]] = std::int16_t;
    using Longs [[gnu::vector_size(32)]] = std::uint64_t;

    /// The instruction itself, since GCC accepts the intrinsic only in a function for its processor.
    template <bool isStreamed>
    [[gnu::always_inline]] static void store(const Words& pixels, QRgb* at)
    {
        if constexpr (isStreamed) {
#ifdef __clang__
            __builtin_nontemporal_store(pixels, reinterpret_cast<Words*>(at));
#else
            asm("vmovntdq %1, %0" : "=m"(*reinterpret_cast<Words*>(at)) : "x"(pixels));
#endif
        } else {
            std::memcpy(at, &pixels, sizeof pixels);
        }
    }
};

/// The number of pixels before the first aligned vector of @p lanes.
int pixelsToAlignment(const QRgb* line, int lanes)
{
    const auto pixel = reinterpret_cast<std::uintptr_t>(line) / sizeof(QRgb);
    return static_cast<int>(-pixel % static_cast<std::uintptr_t>(lanes));
}

/// The byte of a sum at its position, with the exponent's bits above it and nothing below.
template <Position at, typename Words>
[[gnu::always_inline]] inline void moveByte(Words& sum)
{
    if constexpr (at == Blue) {
        sum >>= fractionBits;
    } else if constexpr (at == Green) {
        sum = sum >> (fractionBits - 8) & 0xFFFFFF00U;
    } else {
        sum = (sum + sum) & 0xFFFF0000U;
    }
}

/// One vector of pixels. Lowers @p nearest to how far their sums are from a boundary. Everything is inlined
/// into functions that are compiled for one processor each, and hands vectors over by reference only: how
/// they are passed depends on the processor too.
template <typename Vectors, Position lowAt, Position highAt>
[[gnu::always_inline]] inline void renderVector(const Plane& plane, int x, float row, std::uint32_t rowBits,
                                                typename Vectors::Words& pixels,
                                                typename Vectors::Shorts& nearest)
{
    using Words = typename Vectors::Words;
    using Shorts = typename Vectors::Shorts;

    typename Vectors::Floats low;
    typename Vectors::Floats high;
    std::memcpy(&low, plane.low.data() + x, sizeof low);
    std::memcpy(&high, plane.high.data() + x, sizeof high);
    auto lowSum = reinterpret_cast<Words>(low * row + origin);
    auto highSum = reinterpret_cast<Words>(high * row + origin);
    // Sixteen bits are enough for what the sums are tested for, and SSE2 has no other minimum.
    const auto lowFar = reinterpret_cast<Shorts>(lowSum & farBits);
    const auto highFar = reinterpret_cast<Shorts>(highSum & farBits);
    const Shorts both = lowFar < highFar ? lowFar : highFar;
    nearest = both < nearest ? both : nearest;
    moveByte<lowAt>(lowSum);
    moveByte<highAt>(highSum);
    pixels = lowSum ^ highSum ^ rowBits;
}

/// Whether a sum is near. The upper half of each word is zero throughout.
template <typename Vectors>
[[gnu::always_inline]] inline bool hasNear(const typename Vectors::Shorts& nearest)
{
    using Words = typename Vectors::Words;
    using Longs = typename Vectors::Longs;
    const auto near = reinterpret_cast<Longs>(reinterpret_cast<Words>(nearest) == 0U);
    std::uint64_t any = near[0];
    for (int i = 1; i < Vectors::lanes / 2; ++i) {
        any |= near[i];
    }
    return any != 0;
}

/// Corrects pixels before it writes them, since streamed ones would have to be fetched again.
template <typename Vectors, int vectors, Position lowAt, Position highAt, bool isStreamed = false>
[[gnu::always_inline]] inline void renderBlock(const Plane& plane, int x, int y, float row,
                                               std::uint32_t rowBits, QRgb* line)
{
    constexpr int lanes = Vectors::lanes;
    const auto far = reinterpret_cast<typename Vectors::Shorts>(typename Vectors::Words{} + farBits);
    typename Vectors::Words pixels[vectors];
    typename Vectors::Shorts nearest = far;
    for (int i = 0; i < vectors; ++i) {
        renderVector<Vectors, lowAt, highAt>(plane, x + i * lanes, row, rowBits, pixels[i], nearest);
    }
    if (__builtin_expect(static_cast<long>(hasNear<Vectors>(nearest)), 0) != 0) {
        for (int i = 0; i < vectors; ++i) {
            const int first = x + i * lanes;
            nearest = far;
            renderVector<Vectors, lowAt, highAt>(plane, first, row, rowBits, pixels[i], nearest);
            for (int lane = 0; lane < lanes; ++lane) {
                if (nearest[2 * lane] == 0) {
                    pixels[i][lane] = plane.exact(first + lane, y);
                }
            }
        }
    }
    for (int i = 0; i < vectors; ++i) {
        const int first = x + i * lanes;
        Vectors::template store<isStreamed>(pixels[i], line + first);
    }
}

template <typename Vectors, Position lowAt, Position highAt, bool isStreamed>
[[gnu::always_inline]] inline void renderRow(const Plane& plane, int y, QRgb* line)
{
    constexpr int lanes = Vectors::lanes;
    constexpr int vectors = 4;
    if (plane.width < lanes) {
        renderPixels(plane, y, 0, plane.width, line);
        return;
    }
    const auto row = static_cast<float>(plane.values[std::size_t(y)]);
    const std::uint32_t rowBits = plane.rowBits(y) ^ exponentBits << lowAt ^ exponentBits << highAt;
    int x = 0;
    if constexpr (isStreamed) {
        renderBlock<Vectors, 1, lowAt, highAt>(plane, x, y, row, rowBits, line);
        x = pixelsToAlignment(line, lanes);
    }
    for (; x + vectors * lanes <= plane.width; x += vectors * lanes) {
        renderBlock<Vectors, vectors, lowAt, highAt, isStreamed>(plane, x, y, row, rowBits, line);
    }
    for (; x + lanes <= plane.width; x += lanes) {
        renderBlock<Vectors, 1, lowAt, highAt, isStreamed>(plane, x, y, row, rowBits, line);
    }
    if (x < plane.width) {
        renderBlock<Vectors, 1, lowAt, highAt>(plane, plane.width - lanes, y, row, rowBits, line);
    }
}

template <typename Vectors, Position lowAt, Position highAt>
[[gnu::always_inline]] inline void renderRow(const Plane& plane, int y, QRgb* line)
{
    if (Vectors::canStream && plane.isStreamed) {
        renderRow<Vectors, lowAt, highAt, Vectors::canStream>(plane, y, line);
    } else {
        renderRow<Vectors, lowAt, highAt, false>(plane, y, line);
    }
}

template <typename Vectors>
[[gnu::always_inline]] inline void renderRow(const Plane& plane, int y, QRgb* line)
{
    switch (plane.sector.value) {
    case Red:
        renderRow<Vectors, Blue, Green>(plane, y, line);
        break;
    case Green:
        renderRow<Vectors, Blue, Red>(plane, y, line);
        break;
    case Blue:
        renderRow<Vectors, Green, Red>(plane, y, line);
        break;
    }
}

void renderSse2(const Plane& plane, int y, QRgb* line)
{
    renderRow<Vectors128>(plane, y, line);
}

[[gnu::target("avx2,fma")]] void renderAvx2(const Plane& plane, int y, QRgb* line)
{
    renderRow<Vectors256>(plane, y, line);
}

#endif

using RenderRow = void (*)(const Plane& plane, int y, QRgb* line);

RenderRow functionOf(ColorPlaneImage::Path path)
{
    switch (path) {
#ifdef HSV_PLANE_X86
    case ColorPlaneImage::Path::Sse2:
        return renderSse2;
    case ColorPlaneImage::Path::Avx2:
        return renderAvx2;
#endif
    default:
        return renderPlain;
    }
}

} // namespace

QRgb ColorPlaneImage::pixel(double hue, const QSize& size, const QPoint& at)
{
    return QColor::fromHsvF(hue, saturationAt(at.x(), size.width()), valueAt(at.y(), size.height()), 1.0)
        .rgb();
}

#ifdef HSV_PLANE_X86
namespace {

/// Those that the system keeps when it switches tasks.
unsigned keptRegisters()
{
    unsigned low = 0;
    unsigned high = 0;
    asm volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return low;
}

/// Not __builtin_cpu_supports(), which runs CPUID many times when the library is loaded: on a virtual machine
/// that takes longer than the rest of loading.
bool hasAvx2()
{
    constexpr unsigned wideRegisters = 0x06; // both halves of them
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
    const bool canKeep = __get_cpuid(1, &a, &b, &c, &d) && (c & bit_OSXSAVE) != 0 && (c & bit_FMA) != 0;
    return canKeep && (keptRegisters() & wideRegisters) == wideRegisters &&
           __get_cpuid_count(7, 0, &a, &b, &c, &d) && (b & bit_AVX2) != 0;
}

} // namespace
#endif

bool ColorPlaneImage::isSupported(Path path)
{
#ifdef HSV_PLANE_X86
    return path != Path::Avx2 || hasAvx2();
#else
    return path == Path::Plain;
#endif
}

ColorPlaneImage::Path ColorPlaneImage::fastestPath()
{
    static const Path fastest = isSupported(Path::Avx2)   ? Path::Avx2
                                : isSupported(Path::Sse2) ? Path::Sse2
                                                          : Path::Plain;
    return fastest;
}

QImage ColorPlaneImage::makeImage(const QSize& size)
{
#ifdef Q_OS_LINUX
    constexpr std::size_t largePage = 2 << 20;
    constexpr qint64 maxPixels = INT_MAX / qint64(sizeof(QRgb)); // of a QImage
    const qint64 pixels = pixelsOf(size);
    if (size.isValid() && pixels >= streamedPixels && pixels <= maxPixels) {
        const std::size_t bytes = std::size_t(pixels) * sizeof(QRgb);
        const std::size_t whole = (bytes + largePage - 1) / largePage * largePage;
        if (void* memory = std::aligned_alloc(largePage, whole)) {
            // Only advice: it works without huge pages too.
            madvise(memory, whole, MADV_HUGEPAGE);
            return {
                static_cast<uchar*>(memory), size.width(), size.height(), size.width() * int(sizeof(QRgb)),
                QImage::Format_RGB32,        std::free,    memory};
        }
    }
#endif
    return {size, QImage::Format_RGB32};
}

void ColorPlaneImage::render(QImage& image, double hue, Path path)
{
    Q_ASSERT(image.isNull() || image.format() == QImage::Format_RGB32);
    Q_ASSERT(isSupported(path));
    const int width = image.width();
    const int height = image.height();
    const bool fast = width > 1 && height > 1;
    const Plane plane = fast ? planeOf(hue, width, height) : Plane{hue, width, height, false, {}, {}, {}, {}};
    const RenderRow renderLine = functionOf(path);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        if (fast) {
            renderLine(plane, y, line);
            continue;
        }
        for (int x = 0; x < width; ++x) {
            line[x] = plane.exact(x, y);
        }
    }
#ifdef HSV_PLANE_X86
    if (plane.isStreamed) {
        // Makes what was streamed visible to other processors.
        asm volatile("sfence" ::: "memory");
    }
#endif
}
