#include "shell/qt/Application.h"

#include <gtest/gtest.h>

// All window tests share the one application object that a process can have.
#ifdef __SANITIZE_ADDRESS__
/// The toolkit and the system's libraries keep what they allocate once until the process ends. The engine of the
/// preview deletes some objects of its own as another type than they are.
extern "C" const char* __asan_default_options() { return "detect_leaks=0:new_delete_type_mismatch=0"; }
#endif

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const tintora::Application application(argc, argv);
    return RUN_ALL_TESTS();
}
