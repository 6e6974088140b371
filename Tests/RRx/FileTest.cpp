#include "RRx/RRFile.h"

#include "Board/Board.h"

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace RR;
namespace fs = std::filesystem;

namespace {

std::string Names(const char* pathFilter, DirSelect select)
{
    List<FileInfo> list;
    list.Append();
    if (!DIR_List(pathFilter, list, select)) {
        return list.IsEmpty() ? "(failed)" : "(failed, not emptied)";
    }
    list.Sort();
    std::string names;
    for (auto h = list.First(); !h.IsNil(); h.Next()) {
        names += std::string(h().pathFile) + " ";
    }
    return names;
}

}

TEST(Path, PartsAreCutAtEitherSeparator)
{
    const struct { const char *path, *folder, *segment, *file, *pathOf; } rows[] = {
        {"/mnt/a.mea", "/mnt", "a.mea", "a.mea", "/mnt"}, {"/mnt/sub/", "/mnt", "sub", "", "/mnt/sub"},
        {"c:\\x\\y", "c:\\x", "y", "y", "c:\\x"}, {"/a", "/", "a", "a", "/"}, {"\\a", "\\", "a", "a", "\\"},
        {"/", "/", "", "", "/"}, {"", "", "", "", ""}, {"//", "/", "", "", "/"}, {"a//b", "a/", "b", "b", "a/"},
        {"name", "", "name", "name", ""}, {"name/", "", "name", "", "name"}, {".name", ".", "", "", "."},
        {"..", ".", "", "", "."}, {"./.name", ".", ".name", ".name", "."}};
    for (const auto& row : rows) {
        String folder;
        String segment = row.path;
        PATH_Split(segment, folder, segment);
        EXPECT_STREQ(folder, row.folder) << row.path;
        EXPECT_STREQ(segment, row.segment) << row.path;
        EXPECT_STREQ(PATH_GetFile(row.path), row.file) << row.path;
        EXPECT_STREQ(PATH_GetPath(row.path), row.pathOf) << row.path;
    }
}

TEST(Path, MergedPathsHaveOneSeparator)
{
    const struct { const char *left, *right, *merged; } rows[] = {
        {"/a/", "/b", "/a/b"}, {"/a", "b", "/a/b"}, {"/a/", "b", "/a/b"}, {"/a", "\\b", "/a\\b"}, {"", "b", "b"},
        {"a", "", "a"}, {"a/", "", "a/"}, {"", "/b", "/b"}, {"/", "b", "/b"}, {"", "", ""}};
    for (const auto& row : rows) {
        EXPECT_STREQ(PATH_Merge(row.left, row.right), row.merged);
    }
}

TEST(Path, AnExtensionStandsBehindANameOnly)
{
    const struct { const char *path, *ext, *cut, *added, *name; } rows[] = {
        {"/x/a.b.c", "c", "/x/a.b", "/x/a.b.c.csv", "a.b"}, {"/x/.h", "", "/x/.h", "/x/.h.csv", ".h"},
        {"x\\.y", "", "x\\.y", "x\\.y.csv", ".y"}, {".h", "", ".h", ".h.csv", ""}, {"a.", "", "a", "a..csv", "a"},
        {"plain", "", "plain", "plain.csv", "plain"}, {"", "", "", "", ""}, {"a/", "", "a/", "a/", ""}};
    for (const auto& row : rows) {
        EXPECT_STREQ(PATH_GetFileExt(row.path), row.ext) << row.path;
        EXPECT_STREQ(PATH_CutFileExt(row.path), row.cut) << row.path;
        EXPECT_STREQ(PATH_AddFileExt(row.path, ".csv"), row.added) << row.path;
        EXPECT_STREQ(PATH_GetFileName(row.path), row.name) << row.path;
    }
}

TEST(File, AbsolutePathsLieBelowTheBoard)
{
    ASSERT_TRUE(DIR_Create("/mnt/made/deep/er") && DIR_Create("/mnt/made/deep/er/"));
    ASSERT_TRUE(FILE_Write("/mnt/made/f", "text"));
    EXPECT_EQ(fs::file_size(Board::Root() + "/mnt/made/f"), 4u);
    EXPECT_FALSE(DIR_Create("/mnt/made/f/below"));
    EXPECT_FALSE(DIR_Delete("/mnt/made"));
    EXPECT_TRUE(DIR_Delete("/mnt/made/deep/er"));
    EXPECT_TRUE(FILE_Rename("/mnt/made/f", "/mnt/made/g"));
    EXPECT_TRUE(FILE_Delete("/mnt/made/g"));
    EXPECT_FALSE(FILE_IsPresent(nullptr));
}

TEST(File, InfoTellsKindSizeAndTimeOfWhatIsThere)
{
    ASSERT_TRUE(FILE_Write("/mnt/dated", "12345"));
    const timespec times[2] = {{951782400, 0}, {951782400, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, Board::Locate("/mnt/dated").c_str(), times, 0), 0);
    FileInfo info;
    ASSERT_TRUE(FILE_ReadInfo("/mnt/dated", info));
    EXPECT_STREQ(info.pathFile, "/mnt/dated");
    EXPECT_TRUE(info.type == FT_REGULAR && info.size == 5);
    EXPECT_EQ(info.modTime, DateTime(29, 2, 2000, 0, 0, 0));
    EXPECT_FALSE(FILE_ReadInfo("/mnt/absent", info));
    EXPECT_TRUE(info.type == FT_ERR && info.size == INVALID && !info.modTime.IsValid());

    ASSERT_EQ(mkfifo(Board::Locate("/mnt/pipe").c_str(), 0600), 0);
    fs::resize_file(Board::Locate("/mnt/dated"), 0x80000000u);
    for (const char* path : {"/mnt", "/mnt/pipe", "/mnt/absent", "/mnt/dated"}) {
        Array<UInt08> bytes(3);
        String text("old");
        EXPECT_EQ(FILE_ReadSize(path), INVALID) << path;
        EXPECT_FALSE(FILE_Read(path, bytes) || FILE_Read(path, text)) << path;
        EXPECT_TRUE(bytes.IsEmpty() && text.IsEmpty()) << path;
    }
    EXPECT_FALSE(FILE_IsPresent("/mnt/absent")) << "made by reading";
    FILE_Delete("/mnt/pipe");
}

TEST(File, ReadsAndWritesAnyBytesAndCopiesWholeBlocks)
{
    for (const SInt32 size : {0, 1, 16383, 16384, 16385, 40000}) {
        Array<UInt08> written(size);
        for (SInt32 i = 0; i < size; ++i) {
            written[i] = static_cast<UInt08>(i % 251);
        }
        Array<UInt08> read(7);
        ASSERT_TRUE(FILE_Write("/mnt/copy", std::string(50000, 'x').c_str())) << "the longer content to replace";
        ASSERT_TRUE(FILE_Write("/mnt/source", written));
        ASSERT_TRUE(FILE_Copy("/mnt/source", "/mnt/copy")) << size;
        ASSERT_TRUE(FILE_Read("/mnt/copy", read));
        EXPECT_EQ(read, written) << size;
        String text;
        ASSERT_TRUE(FILE_Read("/mnt/copy", text));
        EXPECT_EQ(text.GetLen(), size) << "with NUL bytes in it";
    }
}

TEST(File, AFullMediumIsToldFromOtherFailures)
{
    const fs::path fullDevice = Board::Root() + "/mnt/full";
    fs::create_symlink("/dev/full", fullDevice);
    bool full = false;
    EXPECT_FALSE(FILE_Write("/mnt/full", "text", full));
    EXPECT_TRUE(full);
    EXPECT_FALSE(FILE_Write("/mnt", "text", full));
    EXPECT_FALSE(full);
    EXPECT_TRUE(FILE_Write("/mnt/source", "text", full));
    EXPECT_FALSE(FILE_Copy("/mnt/source", "/mnt/full", full));
    EXPECT_TRUE(full);
    EXPECT_FALSE(fs::is_symlink(fullDevice)) << "the incomplete copy stays";
}

TEST(File, APartlyWrittenContentIsAFailure)
{
    rlimit before;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto ignoring = signal(SIGXFSZ, SIG_IGN);
    const rlimit tenBytes = {10, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tenBytes), 0);
    bool full = true;
    const bool written = FILE_Write("/mnt/short", "more than ten bytes", full);
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, ignoring);
    EXPECT_FALSE(written || full);
    EXPECT_EQ(FILE_ReadSize("/mnt/short"), 10);
}

TEST(Dir, ListsByPatternWhateverTheCaseAndByKind)
{
    ASSERT_TRUE(DIR_Create("/mnt/list/Folder.mea"));
    for (const char* file : {"/mnt/list/A.MEA", "/mnt/list/b.mea", "/mnt/list/c.csv", "/mnt/list/.h.mea"}) {
        ASSERT_TRUE(FILE_Write(file, ""));
    }
    fs::create_symlink("nowhere", Board::Root() + "/mnt/list/d.mea");
    EXPECT_EQ(Names("/mnt/list/*.mea", DIR_FILES), "/mnt/list/.h.mea /mnt/list/A.MEA /mnt/list/b.mea /mnt/list/d.mea ");
    EXPECT_EQ(Names("/mnt/list/*.mea", DIR_FOLDERS), "/mnt/list/Folder.mea ");
    EXPECT_EQ(Names("/mnt/list/?.*", DIR_ALL), "/mnt/list/A.MEA /mnt/list/b.mea /mnt/list/c.csv /mnt/list/d.mea ");
    EXPECT_EQ(Names("/mnt/list/nothing*", DIR_ALL), "");
    EXPECT_EQ(Names("/absent/*", DIR_ALL), "(failed)");
    fs::remove_all(Board::Root() + "/mnt/list");
}
