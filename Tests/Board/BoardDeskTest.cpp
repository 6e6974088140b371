#include "Board/Board.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

TEST(BoardDesk, ANewBoardHasItsDevicesBelowTheRootFolder)
{
    EXPECT_EQ(Board::Locate("/dev/fb0"), Board::Root() + "/dev/fb0");
    EXPECT_EQ(Board::Locate("relative"), "relative");
    EXPECT_EQ(fs::file_size(Board::Locate("/dev/fb0")), 768000u);
    EXPECT_TRUE(fs::exists(Board::Locate("/dev/mmcblk0p1")));
    EXPECT_TRUE(fs::is_directory(Board::Locate("/mnt/sdcard-i/Measurements")));
}

TEST(BoardDesk, TheSticksContentShowsOnlyWhileItIsMounted)
{
    const fs::path root = Board::Root();
    EXPECT_FALSE(Board::Mount("/dev/sda1", "/mnt/usb-storage/"));
    EXPECT_EQ(errno, ENOENT);

    std::ofstream(root / "dev/sda1").close();
    std::ofstream(root / "usb-stick/note.txt") << "x";
    fs::create_directories(root / "mnt/usb-storage");
    ASSERT_TRUE(Board::Mount("/dev/sda1", "/mnt/usb-storage/"));
    EXPECT_TRUE(fs::exists(root / "mnt/usb-storage/note.txt"));
    EXPECT_FALSE(Board::Mount("/dev/sda1", "/mnt/usb-storage/")) << "mounted twice";

    Board::Unmount("/mnt/usb-storage/");
    EXPECT_FALSE(fs::exists(root / "mnt/usb-storage/note.txt"));
    EXPECT_TRUE(fs::is_directory(root / "mnt/usb-storage"));
    EXPECT_TRUE(fs::exists(root / "usb-stick/note.txt"));
    EXPECT_FALSE(fs::exists(fs::symlink_status(root / "dev/sda1.content")));
    fs::remove(root / "dev/sda1");
}

TEST(BoardDesk, TheStickIsPluggedAndPulledFromTheShell)
{
    // A copy of the command has its board beside it.
    const fs::path root = Board::Root();
    const fs::path tree = root / "tree";
    fs::create_directories(tree / "Tools");
    fs::create_directories(root / "folder");
    std::ofstream(root / "folder/note.txt") << "x";
    fs::copy_file(DESK_COMMAND, tree / "desk.sh");
    std::ofstream(tree / "Tools/machine.sh").close();
    fs::create_directory_symlink(root, tree / "desk");
    const auto stick = [&](const std::string& words) {
        return std::system(("cd '" + root.string() + "' && tree/desk.sh stick " + words).c_str());
    };

    for (const char* folder : {"folder", "usb-stick"}) {
        EXPECT_EQ(stick(std::string("in ") + folder), 0);
        EXPECT_TRUE(fs::exists(root / "usb-stick/note.txt")) << folder;
    }
    fs::create_directories(root / "mnt/usb-storage");
    ASSERT_TRUE(Board::Mount("/dev/sda1", "/mnt/usb-storage/"));
    EXPECT_EQ(stick("out"), 0);
    EXPECT_FALSE(fs::exists(root / "mnt/usb-storage/note.txt"));
    Board::Unmount("/mnt/usb-storage/");
    EXPECT_EQ(stick("in"), 0);
    EXPECT_TRUE(Board::Mount("/dev/sda1", "/mnt/usb-storage/") && fs::exists(root / "mnt/usb-storage/note.txt"));
    Board::Unmount("/mnt/usb-storage/");
    EXPECT_EQ(stick("out"), 0);
}
