#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <QCoreApplication>

/// Runs the tests of one program on a desk board in a new folder that goes with it.
int main(int argc, char** argv)
{
    std::string folder = (std::filesystem::temp_directory_path() / "zarn-test-XXXXXX").string();
    if (!mkdtemp(folder.data())) {
        return 1;
    }
    setenv("ZARN_BOARD", folder.c_str(), 1);
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return result;
}
