#include "engine/analysis/ImageStatistics.h"

#include "engine/analysis/Blur.h"
#include "engine/analysis/BlurShape.h"
#include "engine/analysis/Compression.h"
#include "engine/analysis/Drawings.h"
#include "engine/analysis/Noise.h"
#include "engine/analysis/Sampling.h"
#include "engine/analysis/Smoothing.h"
#include "engine/analysis/Tones.h"

ImageStatistics measureImage(const ImageData &image, std::stop_token stop) {
    using namespace Analysis;
    constexpr int SmallSide = 320;

    ImageStatistics answer;
    if (image.isNull())
        return answer;
    const std::vector<Crop> spread = spreadTiles(image, stop);
    const NoiseLevels noise = measureNoise(spread, stop);
    const CompressionLevels compression = measureCompression(spread, stop);
    const std::vector<Crop> busy = busyTiles(image, stop);
    const BlurLevels blur = measureBlur(busy, noise.luma, stop);
    const BlurShape shape = findBlurShape(busy, noise.luma, stop);
    const float drawing = measureDrawing(busy, stop);
    if (stop.stop_requested())
        return answer;
    const Crop small = readSmall(image, SmallSide);
    const Tones tones = measureTones(small);
    // Light has no fine detail, and noise, which is grey, would make it look sure.
    const Light light = measureLight(halved(halved(small)));

    answer.width = image.width();
    answer.height = image.height();
    answer.noise = noise.rgb;
    answer.lumaNoise = noise.luma;
    answer.chromaNoise = noise.chroma;
    answer.chromaBlotches = noise.blotches;
    answer.grainSize = noise.grainSize;
    answer.blur = blur.sigma;
    answer.edgeShare = blur.edgeShare;
    answer.softness = shape.sigma;
    answer.blurKind = shape.kind;
    answer.defocusRadius = shape.radius;
    answer.motionLength = shape.length;
    answer.motionAngle = shape.angle;
    answer.drawing = drawing;
    answer.jpegQuality = compression.quality;
    answer.blockiness = compression.blockiness;
    answer.lumaLow = tones.low;
    answer.lumaMedian = tones.median;
    answer.lumaHigh = tones.high;
    answer.clippedLow = tones.clippedLow;
    answer.clippedHigh = tones.clippedHigh;
    answer.illuminant = light.colour;
    answer.castConfidence = light.confidence;
    return answer;
}
