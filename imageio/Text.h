#pragma once

#include <QCoreApplication>

namespace imageio {

/// Text::tr() gives a sentence for the user in the language of the program.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(ImageFiles)
};

} // namespace imageio
