#pragma once

/// Every number that turns a measurement into a recommendation, with its reason. Noise is a
/// standard deviation on the 8-bit scale, blur a Gaussian sigma in pixels.
///
/// "Photographs" below are 48 desktop photographs reduced to between a third and three fifths, which
/// takes compression away: they measure 0 to 3.1 in noise, nine tenths of them 2.1 and less, and 0.05 to
/// 0.8 in blur. `orvane-bench autopilot` prints these figures and what follows from the thresholds.
namespace Thresholds {

// Noise levels. Low starts where noise can be seen in a smooth sky at 100 %.
inline constexpr double NoiseLow = 2;
/// Above what clean photographs measure; taking noise of this strength away gains 1 dB and more. Cameras'
/// own pictures of ISO 800 measure 3.6 to 5.
inline constexpr double NoiseMedium = 3.4;
/// Noise hides fine texture: ISO 3200 and more on a small sensor.
inline constexpr double NoiseHigh = 12;
/// Noise hides edges of low contrast.
inline constexpr double NoiseSevere = 25;
/// The normal model's scale ends at 50; past this, its slider would have no room to go up.
inline constexpr double NoiseExtreme = 45;

// Blur levels. Below Low, edges are as narrow as a good lens and a sensor give them: blurred by one
// pixel, photographs measure 0.85 and more.
inline constexpr double BlurLow = 0.85;
/// Well above the softest clean photograph; nine tenths of those that were blurred by 1.6 pixels measure
/// more, and all that were blurred by 2.5.
inline constexpr double BlurMedium = 1.15;
/// Detail of five pixels and less is gone.
inline constexpr double BlurHigh = 2.5;
/// Noise of the luma beyond which fine detail can't be seen to be missing; edges alone count then.
inline constexpr double NoiseOverDetail = 2.5;
/// The spectrum of a dark or flat picture says nothing. It can take this much off what edges say.
inline constexpr double LeastSoftness = 0.4;
/// Fewer edge pixels than this share say nothing about sharpness: fog, sky, a blank wall.
inline constexpr double FewestEdges = 0.002;
/// A smear of this length in pixels is as wide as blur from which on Sharpen is proposed (times the
/// root of twelve), and turns it on though edges along the smear are sharp.
inline constexpr double MotionLength = 4.5;

// The scale that the view of a running analysis reads: these values there begin a level.
inline constexpr double ShownNoiseMedium = 0.09;
inline constexpr double ShownNoiseHigh = 0.33;
inline constexpr double ShownNoiseSevere = 0.5;
inline constexpr double ShownBlurMedium = 0.22;
inline constexpr double ShownBlurHigh = 0.37;

// The sliders of a filter that is off, so that switching it on shows an effect.
inline constexpr double RestingNoise = 3;
inline constexpr double RestingBlur = 0.8;

/// From this share of flat colour beside edges on, a picture is a drawing or a screenshot. The photographs
/// have none, others reduced by four 0.07 at most; drawings with edges and without dither 0.16 and more.
inline constexpr float DrawingShare = 0.13f;

// Compression: below this quality blocks and ringing are seen at 100 %.
inline constexpr int PoorQuality = 50;
/// From here on, compression leaves nothing to see.
inline constexpr int FineQuality = 90;

// Upscaling of small pictures: up to this many pixels, by at least and at most these factors.
inline constexpr double UpscaledPixels = 12'000'000;
inline constexpr double LeastUpscale = 1.5;
inline constexpr double MostUpscale = 4;
/// Icons and swatches are not photographs in need of pixels.
inline constexpr int SmallestSide = 32;
// Limits of the size controls.
inline constexpr double MinScale = 0.2;
inline constexpr double MaxScale = 6;
inline constexpr int MaxSide = 32'000;

// Exposure. A picture is dark when half of it lies below the first and nothing comes near white;
// bright the other way round. Night scenes with lamps and snow with shadows are left alone; blur takes as
// much as a quarter off the brightest values of a dim wood, so that white has to be two stops away.
inline constexpr double DarkMedian = 0.2;
inline constexpr double DarkHighest = 0.45;
inline constexpr double BrightMedian = 0.85;
inline constexpr double BrightLowest = 0.35;

// Colour cast: deviation of the light from white, as the largest natural logarithm of a channel
// over green, and how far the guesses of the light must agree. Evening light is below it.
inline constexpr double Cast = 0.25;
inline constexpr double CastConfidence = 0.8;

} // namespace Thresholds
