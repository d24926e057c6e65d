#include "Harness.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

namespace {

std::ostringstream written;

} // namespace

std::string cerrText() {
    return written.str();
}

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    std::streambuf *const before = std::cerr.rdbuf(written.rdbuf());
    const int failed = RUN_ALL_TESTS();
    std::cerr.rdbuf(before);
    std::cerr << cerrText();
    return failed;
}
