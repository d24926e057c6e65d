#pragma once

#include <QByteArray>

/// How many numbers the convolution kernels of an ONNX file hold, however many bytes each takes there.
double convolutionWeights(const QByteArray &onnx);
