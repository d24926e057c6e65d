"""Stores a network's convolution weights as 16-bit floats, each brought back to 32 bit by a Cast node.

The runtime folds the casts when it opens the file, so that only the file is smaller. Biases are few and stay.
"""
import numpy
import onnx
from onnx import TensorProto, helper, numpy_helper

SUFFIX = ".half"


def shorten(file):
    model = onnx.load(str(file))
    casts = []
    for tensor in model.graph.initializer:
        if tensor.data_type != TensorProto.FLOAT or len(tensor.dims) < 2:
            continue
        short = numpy_helper.to_array(tensor).astype(numpy.float16)
        if not numpy.isfinite(short).all():
            raise SystemExit(f"{file}: {tensor.name} has a weight that is too large for 16 bit")
        casts.append(helper.make_node("Cast", [tensor.name + SUFFIX], [tensor.name], to=TensorProto.FLOAT))
        tensor.CopyFrom(numpy_helper.from_array(short, tensor.name + SUFFIX))
    nodes = list(model.graph.node)
    del model.graph.node[:]
    model.graph.node.extend(casts + nodes)
    onnx.checker.check_model(model)
    onnx.save(model, str(file))
