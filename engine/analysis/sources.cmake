# Included by the engine's own list; paths from the engine's folder.
set(ORVANE_ANALYSIS_SOURCES
  analysis/Advice.h
  analysis/Analyse.cpp analysis/Analyse.h
  analysis/BlockSpectrum.cpp analysis/BlockSpectrum.h
  analysis/Blur.cpp analysis/Blur.h
  analysis/BlurFit.cpp analysis/BlurFit.h
  analysis/BlurKernel.cpp analysis/BlurKernel.h
  analysis/BlurShape.cpp analysis/BlurShape.h
  analysis/ChromaBlotches.cpp analysis/ChromaBlotches.h
  analysis/ClippedNoise.cpp analysis/ClippedNoise.h
  analysis/Compression.cpp analysis/Compression.h
  analysis/Drawings.cpp analysis/Drawings.h
  analysis/EdgeWidths.cpp analysis/EdgeWidths.h
  analysis/Findings.cpp
  analysis/ImageFacts.cpp analysis/ImageFacts.h
  analysis/ImageStatistics.cpp analysis/ImageStatistics.h
  analysis/Noise.cpp analysis/Noise.h
  analysis/NoiseAdvice.cpp
  analysis/NoiseVariance.cpp analysis/NoiseVariance.h
  analysis/ParameterAdvice.cpp
  analysis/Planes.cpp analysis/Planes.h
  analysis/PowerSpectrum.cpp analysis/PowerSpectrum.h
  analysis/Sampling.cpp analysis/Sampling.h
  analysis/SharpenAdvice.cpp
  analysis/SizeAdvice.cpp
  analysis/Smoothing.cpp analysis/Smoothing.h
  analysis/Thresholds.h
  analysis/ToneAdvice.cpp
  analysis/Tones.cpp analysis/Tones.h)
