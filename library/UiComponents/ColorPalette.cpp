#include "ColorPalette.h"

#include <algorithm>

namespace {

constexpr QColor rgb(unsigned value)
{
    return {static_cast<int>(value >> 16U), static_cast<int>(value >> 8U & 0xffU),
            static_cast<int>(value & 0xffU)};
}

} // namespace

constexpr std::array<ColorPalette::Row, ColorPalette::rowCount> ColorPalette::rows = {{
    {rgb(0xffffff), rgb(0xe3e3e3), rgb(0xbfbfbf), rgb(0x9a9a9a), rgb(0x7d7d7d), rgb(0x6a6a6a), rgb(0x444444),
     rgb(0x2d2d2d), rgb(0x000000)},
    {rgb(0xff0000), rgb(0xff5d00), rgb(0xffc000), rgb(0xf3ff00), rgb(0x00ff00), rgb(0x00ceff), rgb(0x0027ff),
     rgb(0x7400ff), rgb(0xff009e)},
    {rgb(0xffb4b4), rgb(0xffccae), rgb(0xffe9a5), rgb(0xfbffa6), rgb(0xafffb0), rgb(0x9cecff), rgb(0x93a4ff),
     rgb(0xd5b2ff), rgb(0xffb4e2)},
    {rgb(0xff8484), rgb(0xffa774), rgb(0xffd85f), rgb(0xf8ff6d), rgb(0x6cff6e), rgb(0x7ae5ff), rgb(0x7388ff),
     rgb(0xbc84ff), rgb(0xff8cd3)},
    {rgb(0xff5454), rgb(0xff8a47), rgb(0xffce38), rgb(0xf6ff3d), rgb(0x46ff49), rgb(0x42dbff), rgb(0x5771ff),
     rgb(0x9842ff), rgb(0xe34ba9)},
    {rgb(0xc70000), rgb(0xca4a00), rgb(0xcf9c00), rgb(0xb7c000), rgb(0x03c705), rgb(0x0191b4), rgb(0x001cb7),
     rgb(0x5a00c5), rgb(0xa10064)},
    {rgb(0x760000), rgb(0x833000), rgb(0x8b6900), rgb(0x6f7400), rgb(0x007601), rgb(0x025b71), rgb(0x00106a),
     rgb(0x3c0085), rgb(0x62003d)},
    {rgb(0x380000), rgb(0x421800), rgb(0x493700), rgb(0x3e4100), rgb(0x003801), rgb(0x00303b), rgb(0x00093c),
     rgb(0x1e0043), rgb(0x390023)},
}};

bool ColorPalette::contains(const QColor& color)
{
    return std::any_of(rows.cbegin(), rows.cend(), [&color](const Row& row) {
        return std::find(row.cbegin(), row.cend(), color) != row.cend();
    });
}
