#include "imageio/Orientation.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace imageio {

namespace {

constexpr int Block = 32;

struct Turn {
    bool swap; ///< first exchange rows and columns
    bool mirrorX;
    bool mirrorY;
};

// Where a stored pixel goes: exchange, then mirror, in the upright picture.
constexpr std::array<Turn, 9> Turns = {{
    {false, false, false},
    {false, false, false},
    {false, true, false},
    {false, true, true},
    {false, false, true},
    {true, false, false},
    {true, true, false},
    {true, true, true},
    {true, false, true},
}};

template <std::size_t PixelBytes>
void turnPixels(const ImageData &from, ImageData &to, Turn turn) {
    // Blocks keep both the rows read and the rows written in the cache.
    for (int by = 0; by < from.height(); by += Block) {
        for (int bx = 0; bx < from.width(); bx += Block) {
            for (int y = by; y < std::min(by + Block, from.height()); ++y) {
                for (int x = bx; x < std::min(bx + Block, from.width()); ++x) {
                    int tx = turn.swap ? y : x;
                    int ty = turn.swap ? x : y;
                    if (turn.mirrorX)
                        tx = to.width() - 1 - tx;
                    if (turn.mirrorY)
                        ty = to.height() - 1 - ty;
                    std::memcpy(to.row(ty) + std::size_t(tx) * PixelBytes,
                                from.row(y) + std::size_t(x) * PixelBytes, PixelBytes);
                }
            }
        }
    }
}

} // namespace

std::shared_ptr<ImageData> upright(std::shared_ptr<ImageData> image, int orientation) {
    if (orientation < 2 || orientation > 8)
        return image;
    const Turn turn = Turns[std::size_t(orientation)];
    auto turned = std::make_shared<ImageData>(turn.swap ? image->height() : image->width(),
                                              turn.swap ? image->width() : image->height(), image->channels(),
                                              image->type());
    if (turned->isNull())
        return nullptr;
    turned->setIccProfile(image->iccProfile());
    switch (image->channels() * image->bitDepth() / 8) {
    case 3:
        turnPixels<3>(*image, *turned, turn);
        break;
    case 4:
        turnPixels<4>(*image, *turned, turn);
        break;
    case 6:
        turnPixels<6>(*image, *turned, turn);
        break;
    case 8:
        turnPixels<8>(*image, *turned, turn);
        break;
    }
    return turned;
}

} // namespace imageio
