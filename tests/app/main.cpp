#include "shell/qt/Application.h"

#include <gtest/gtest.h>

// All window tests share the one application object that a process can have.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const tintora::Application application(argc, argv);
    return RUN_ALL_TESTS();
}
