#include "RRx/RRFile.h"
#include "RRx/RRKeyValue.h"

#include <gtest/gtest.h>
#include <string>

using namespace RR;

namespace {

const char* const path = "/mnt/sdcard-i/test.kv";

/// The store as one text, in the order in which it is walked.
std::string Entries(const KeyValue& store)
{
    std::string text;
    for (KeyValue::Entry entry = store.First(); entry.IsValid(); entry.Next()) {
        text += std::string(entry.GetKey()) + "=" + std::string(entry.GetValue()) + ";";
    }
    return text;
}

void WriteFile(const std::string& bytes)
{
    ASSERT_TRUE(FILE_Write(path, reinterpret_cast<const UInt08*>(bytes.data()), static_cast<SInt32>(bytes.size())));
}

std::string Saved(KeyValue& store)
{
    String text;
    EXPECT_TRUE(store.Save(path));
    EXPECT_TRUE(FILE_Read(path, text));
    return std::string(text);
}

}

TEST(KeyValue, TheReaderIsStrictAndCountsLines)
{
    const struct { std::string text; const char* entries; SInt32 sytaxErr = INVALID, dblEntry = INVALID; } rows[] = {
        {"", ""}, {"\r\n \t\r\r# any \377\"\r\n", ""}, {"KEY=\"v\"", "KEY=v;"}, {std::string("# \0", 3), ""},
        {"B \t=\t \"2\" # note\rA = \"1\"#\n", "A=1;B=2;"}, {"\"k\" = \"v\"", "\"k\"=v;"},
        {"A = \"1\r\n2\"\r\nB = \"\344\"\n", "A=1\r\n2;B=\344;"}, {"A = \"\"\nA = \"1\"\nA = \"\"", "A=1;"},
        {"A = \"1\r\n2\"\r\nA2 = \"\344\240\"", "", 2}, {"KEY = v", "", 1}, {"KEY \"v\"", "", 1}, {"K", "", 1},
        {"\r\n\r\rKE Y = \"v\"", "", 4}, {"A=\"1\"\nK? = \"v\"", "", 2}, {"K* = \"v\"", "", 1}, {" K = \"v\"", "", 1},
        {"= \"v\"", "", 1}, {"K =", "", 1}, {"K = \"v\" x", "", 1}, {"K = \"v\"\"", "", 1}, {"K = \"a\200b\"", "", 1},
        {"K = \"a\177b\"", "", 1}, {std::string("K = \"a\0b\"", 9), "", 1}, {std::string("\n\0", 2), "", 2},
        {"A = \"1\"\nB = \"2\n\nC = x\n", "", 2}, {"\344 = \"1\"", "", 1}, {"A = \"1\"\nA = \"2\" bad", "", 2},
        {"A = \"1\"\nB = \"2\"\n\nA = \"3\"\nbad", "A=3;", INVALID, 4}};
    for (const auto& row : rows) {
        WriteFile(row.text);
        KeyValue store;
        SInt32 sytaxErr = 0;
        SInt32 dblEntry = 0;
        EXPECT_EQ(store.Load(path, sytaxErr, dblEntry), row.sytaxErr == INVALID && row.dblEntry == INVALID) << row.text;
        EXPECT_EQ(Entries(store), row.entries) << row.text;
        EXPECT_EQ(sytaxErr, row.sytaxErr) << row.text;
        EXPECT_EQ(dblEntry, row.dblEntry) << row.text;
    }
}

TEST(KeyValue, OnlyWhatTheFileCanHoldIsStored)
{
    struct { const char *key, *value; bool result; const char* entries; } const steps[] = {
        {"k", "", false, ""}, {"k", "2", true, "k=2;"}, {"", "x", false, "k=2;"}, {"a b", "x", false, "k=2;"},
        {"k", "x\"y", false, "k=2;"}, {"k", "\200", false, "k=2;"}, {"k", "3", true, "k=3;"},
        {"K", "\t\r\n\241", true, "K=\t\r\n\241;k=3;"},
        {"a=", "", false, "K=\t\r\n\241;k=3;"}, {"K", "", true, "k=3;"}, {"K", "", false, "k=3;"}, {"k", "", true, ""}};
    KeyValue store;
    for (const auto& step : steps) {
        EXPECT_EQ(store(step.key, step.value), step.result) << step.key << '=' << step.value;
        EXPECT_EQ(Entries(store), step.entries);
        EXPECT_EQ(store(step.key).IsEmpty(), !store.Has(step.key));
    }
}

TEST(KeyValue, TheWritersBytesAreFixedAndReadBackEqual)
{
    KeyValue store;
    EXPECT_EQ(Saved(store), "");
    store.headline = "Top\n\n\344\177\tend\r\n";
    EXPECT_EQ(Saved(store), "# Top\r\n# \r\n# ...end.\r\n");
    store.headline = "#=\"";
    EXPECT_TRUE(store("z~", "\344 \r\n#= \a") && store("BCD", "yes") && store("A", "1"));
    EXPECT_EQ(Saved(store), "# #=\"\r\nA   = \"1\"\r\nBCD = \"yes\"\r\nz~  = \"\344 \r\n#= \a\"\r\n");

    KeyValue loaded;
    ASSERT_TRUE(loaded.Load(path));
    EXPECT_EQ(loaded, store);
    EXPECT_TRUE(store("A", "2"));
    EXPECT_NE(loaded, store);
    EXPECT_FALSE(store.Load("/mnt/absent"));
    EXPECT_EQ(store.GetCount(), 3) << "an unreadable file changed the store";
    EXPECT_FALSE(loaded.Load(path)) << "its own keys count as double";
    EXPECT_EQ(Entries(loaded), "A=1;");
    EXPECT_FALSE(store.Save("/absent/file"));
}

TEST(KeyValue, FilesOfAnySizeAreReadToTheirLastByte)
{
    for (const std::size_t size : {8190u, 8191u, 8192u, 8193u, 100000u}) {
        const std::string value(size - 5, 'v');
        KeyValue store;
        WriteFile("K=\"" + value + "\"\n");
        EXPECT_TRUE(store.Load(path)) << size;
        EXPECT_EQ(std::string(store("K")), value);
    }
}
