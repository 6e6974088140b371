#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <QCoreApplication>
#ifdef QT_WIDGETS_LIB
#include <QApplication>
using Application = QApplication;
#else
using Application = QCoreApplication;
#endif

namespace {

/// Runs before the global objects of the program are built, which look for the board already.
__attribute__((constructor(101))) void PlugBoard()
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    if (std::getenv("ZARN_BOARD")) {
        return;
    }
    static char folder[] = "/tmp/zarn-test-XXXXXX";
    if (mkdtemp(folder)) {
        setenv("ZARN_BOARD", folder, 1);
    }
}

}

/// Runs the tests of one program on a desk board in a new folder that goes with it, unless one is given.
int main(int argc, char** argv)
{
    const std::string board = std::getenv("ZARN_BOARD");
    Application application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    if (board.starts_with("/tmp/zarn-test-")) {
        std::error_code ignored;
        std::filesystem::remove_all(board, ignored);
    }
    return result;
}
