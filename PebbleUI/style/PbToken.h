#pragma once

// One value of the style, read by documents under its name. A constant and final one costs a binding nothing
// to watch, and a binding that reads such values only is compiled ahead; of a document's own properties
// neither holds.
#define PB_TOKEN(Type, name, value)                                                                          \
    Q_PROPERTY(Type name READ name CONSTANT FINAL)                                                           \
public:                                                                                                      \
    Type name() const {                                                                                      \
        return value;                                                                                        \
    }
