// SPDX-License-Identifier: MIT

#include <QApplication>

#include <gtest/gtest.h>

/// Qt itself is not built with the address sanitizer: what it still reads of an object that is no more is
/// noticed when that is not what it was.
extern "C" const char* __asan_default_options();  // NOLINT: the sanitizer's own name
extern "C" const char* __asan_default_options() { // NOLINT
    return "max_free_fill_size=65536:free_fill_byte=205";
}

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication aplicacion(argc, argv);
    return RUN_ALL_TESTS();
}
