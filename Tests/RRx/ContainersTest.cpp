#include "RRx/RRArray.h"
#include "RRx/RRList.h"
#include "RRx/RRSkipList.h"
#include "RRx/RRString.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <memory>
#include <random>
#include <utility>
#include <vector>

using namespace RR;
using testing::HasSubstr;

namespace {

using Row = std::pair<int, int>;

/// Sorts by the first number alone, so that the second tells equal ones apart.
struct Item {
    int rank = 0;
    int serial = 0;

    bool operator>(const Item& b) const { return rank > b.rank; }
    bool operator==(const Item& b) const = default;
};

int comparisons = 0;

/// Counts how often it is compared, the measure of a search.
struct CountedKey {
    int value = 0;

    bool operator==(const CountedKey& b) const { return ++comparisons, value == b.value; }
    bool operator<(const CountedKey& b) const { return ++comparisons, value < b.value; }
    bool operator>(const CountedKey& b) const { return ++comparisons, value > b.value; }
};

using Map = SkipList<CountedKey, int>;

Row RowOf(List<Item>::Handle h)
{
    return {h().rank, h().serial};
}

Row RowOf(Map::Handle h)
{
    return {h.GetKey().value, h.Entry()};
}

/// The rows, read forwards and then, as a check of the links, backwards.
template <class Container>
std::vector<Row> Content(const Container& container)
{
    std::vector<Row> there;
    std::vector<Row> back;
    for (auto h = container.First(); !h.IsNil(); h.Next()) {
        there.push_back(RowOf(h));
    }
    for (auto h = container.Last(); !h.IsNil(); h.Prev()) {
        back.push_back(RowOf(h));
    }
    std::reverse(back.begin(), back.end());
    EXPECT_EQ(there, back);
    EXPECT_EQ(container.GetCount(), SInt32(there.size()));
    return there;
}

/// The handle of the element at `index`, nil behind the end.
template <class Container>
auto At(const Container& container, SInt32 index)
{
    auto h = container.First();
    for (; index > 0 && !h.IsNil(); --index) {
        h.Next();
    }
    return h;
}

}

TEST(Array, CopiesDeeplyAndLosesNothingOnTheSameSize)
{
    Array<int> a(3);
    a.Fill(7);
    Array<int> b(a);
    a = *&a;
    EXPECT_TRUE(a == b);
    b[2] = 1;
    EXPECT_TRUE(a != b && a[2] == 7);
    b.SetSize(3);
    EXPECT_EQ(b[2], 1);
    b.SetSize(5, b[2]);
    EXPECT_EQ(std::count(b.Adr(), b.Adr() + b.GetSize(), 1), 5);
    a.SwapResources(b);
    EXPECT_TRUE(a.GetSize() == 5 && b.GetSize() == 3);
    b.SetSize(-1);
    EXPECT_TRUE(b.IsEmpty() && b.Adr() == nullptr && b != a && b == Array<int>());
}

TEST(ContainersDeathTest, MisuseStopsTheProgram)
{
    EXPECT_DEATH(Array<int>(2)[2] = 1, HasSubstr("Assertion \"index >= 0 && index < size\" failed"));
    EXPECT_DEATH(Array<int>()[0] = 1, HasSubstr("index < size"));
    EXPECT_DEATH(List<int>().First()() = 1, HasSubstr("Assertion \"e != __null\" failed"));
    EXPECT_DEATH(List<int>().InsertAfter(List<int>::Handle()), HasSubstr("e != __null"));
    EXPECT_DEATH(Map().Last().Entry() = 1, HasSubstr("e != __null"));
    EXPECT_DEATH(String("abc")[3] = 'x', HasSubstr("Assertion \"index >= 0 && index < length\" failed"));
    EXPECT_DEATH(String().Last() = 'x', HasSubstr("index < length"));
}

TEST(List, KeepsUpWithAVectorThroughRandomChanges)
{
    std::mt19937 random(11);
    List<Item> list;
    std::vector<Row> model;
    for (int step = 0; step < 6000; ++step) {
        const int size = static_cast<int>(model.size());
        const Item item{static_cast<int>(random() % 9), step};
        const Row row(item.rank, step);
        const int at = size > 0 ? static_cast<int>(random() % static_cast<unsigned>(size)) : 0;
        const unsigned action = size == 0 ? 7 : random() % (size > 40 ? 5 : 8);
        if (action == 0) {
            const int other = static_cast<int>(random() % static_cast<unsigned>(size));
            list.Swap(At(list, at), At(list, other));
            std::swap(model[at], model[other]);
        } else if (action == 1) {
            // The tail goes in front, at times with a number of elements that nobody has counted yet.
            List<Item> rest;
            list.Separate(At(list, at), rest);
            EXPECT_TRUE((step & 1) || list.GetCount() == at);
            EXPECT_TRUE((step & 2) || rest.GetCount() == size - at);
            rest.Append(item);
            rest.Concatenate(list);
            list.SwapResources(rest);
            model.push_back(row);
            std::rotate(model.begin(), model.begin() + at, model.end());
        } else if (action < 5) {
            auto h = At(list, at);
            const bool following = action != 4;
            list.Remove(h, following);
            model.erase(model.begin() + at);
            EXPECT_EQ(h, At(list, following ? at : at > 0 ? at - 1 : size));
        } else if (action == 5) {
            list.InsertBefore(At(list, at), item);
            model.insert(model.begin() + at, row);
        } else if (action == 6) {
            const auto h = list.InsertAfter(At(list, at), item);
            EXPECT_EQ(h, list.Find(item));
            model.insert(model.begin() + at + 1, row);
        } else {
            (step % 2 ? list.Append() : list.Prepend())() = item;
            model.insert(step % 2 ? model.end() : model.begin(), row);
        }
        ASSERT_EQ(Content(list), model) << "step " << step << " action " << action;
    }
    List<Item> copy(list);
    copy.Append();
    EXPECT_TRUE(copy != list && copy.RemoveLast() && copy == list && copy.RemoveFirst() && copy != list);
    copy.SetEmpty();
    EXPECT_FALSE(copy.RemoveFirst() || copy.RemoveLast() || copy.Contains(Item()));
}

TEST(List, SortIsStableAndHandlesStayWithTheirEntries)
{
    std::mt19937 random(4);
    for (const int size : {0, 1, 2, 3, 100}) {
        List<Item> list;
        std::vector<Row> model;
        std::vector<std::pair<List<Item>::Handle, int>> handles;
        for (int i = 0; i < size; ++i) {
            const Item item{static_cast<int>(random() % 10), i};
            handles.emplace_back(list.Append(item), i);
            model.emplace_back(item.rank, i);
        }
        std::stable_sort(model.begin(), model.end(), [](const Row& a, const Row& b) { return a.first < b.first; });
        list.Sort();
        EXPECT_EQ(Content(list), model);
        for (const auto& [handle, serial] : handles) {
            EXPECT_EQ(handle().serial, serial);
        }
    }
}

TEST(SkipList, KeepsUpWithAMultimapWithHintsAndWithout)
{
    std::mt19937 random(2);
    for (const int keys : {2, 25, 5000}) {
        Map map;
        std::multimap<int, int> model;
        for (int step = 0; step < 12000; ++step) {
            const CountedKey key{static_cast<int>(random() % static_cast<unsigned>(keys))};
            const int at = model.empty() ? 0 : static_cast<int>(random() % model.size());
            Map::Handle hint;
            if (step % 4 == 1) {
                hint = At(map, at);
            } else if (step % 4 > 1) {
                map.Find(CountedKey{key.value + step % 3 - 1}, hint);
            }
            // Grows for some time and shrinks for some time.
            const unsigned action = random() % 8 + (step / 1500 % 2 ? 2 : 0);
            if (action < 4) {
                const auto h = map.Insert(key, step, hint);
                model.emplace(key.value, step);
                EXPECT_EQ(h.Entry(), step);
            } else if (action == 4) {
                const bool isNew = model.count(key.value) == 0;
                EXPECT_EQ(map.InsertUnique(key, step, hint), isNew);
                if (isNew) {
                    model.emplace(key.value, step);
                }
            } else if (action == 5 && keys > 100) {
                EXPECT_EQ(map.RemoveAll(key), model.erase(key.value) > 0);
            } else if (!model.empty()) {
                auto h = At(map, at);
                const bool following = step % 2 == 0;
                map.Remove(h, following);
                model.erase(std::next(model.begin(), at));
                EXPECT_EQ(h, At(map, following ? at : at > 0 ? at - 1 : map.GetCount()));
            }
            ASSERT_EQ(map.Contains(key), model.count(key.value) > 0);
            if (step % 16 == 0) {
                ASSERT_EQ(Content(map), std::vector<Row>(model.begin(), model.end())) << "step " << step;
            }
        }
        while (map.GetCount() > 1) {
            EXPECT_TRUE(map.RemoveFirst() && map.RemoveLast());
        }
        map.SetEmpty();
        EXPECT_TRUE(Content(map).empty() && !map.RemoveFirst() && !map.Remove(CountedKey{1}));
        map.Insert(CountedKey{2}, 3);
        EXPECT_EQ(map.First().GetKey().value, 2);
    }
}

TEST(SkipList, SearchesInLogarithmicAndHintsInConstantTime)
{
    constexpr int SIZE = 1 << 15;
    std::mt19937 random(8);
    Map map;
    std::vector<int> values(SIZE);
    for (int i = 0; i < SIZE; ++i) {
        values[i] = 2 * i;
    }
    std::shuffle(values.begin(), values.end(), random);
    const auto average = [&](auto action) {
        comparisons = 0;
        for (const int value : values) {
            action(CountedKey{value});
        }
        return comparisons / SIZE;
    };
    // Two levels of towers to each doubling squared, two comparisons a step: about 60 in all, against 32768 in a chain.
    EXPECT_LT(average([&](CountedKey key) { map.Insert(key); }), 100);
    EXPECT_LT(average([&](CountedKey key) { EXPECT_TRUE(map.Contains(key)); }), 100);
    EXPECT_LT(average([&](CountedKey key) { EXPECT_FALSE(map.Contains(CountedKey{key.value + 1})); }), 100);

    EXPECT_LT(average([&](CountedKey key) { map.Insert(key, map.First()); }), 100) << "a hint far off costs a walk";

    Map sorted;
    std::sort(values.begin(), values.end());
    EXPECT_LT(average([&](CountedKey key) { sorted.Insert(key, sorted.Last()); }), 10);
    EXPECT_LT(average([&](CountedKey key) { EXPECT_TRUE(sorted.Contains(key)); }), 100) << "hinted elements are missing in the towers";

    // Half of the elements go by their handles; the towers must serve what is left.
    for (auto h = sorted.First(); !h.IsNil() && !h.IsLast(); h.Next()) {
        sorted.Remove(h);
    }
    EXPECT_LT(average([&](CountedKey key) { EXPECT_EQ(sorted.Contains(key), key.value % 4 == 2); }), 100);
}

TEST(SkipList, CopiesDeeplyAndTellsEquivalentKeysApart)
{
    SkipList<String, String> map;
    map.Insert("\xC4", "umlaut");
    map.Insert("A", "plain");
    map.Insert("A", "second", map.First());
    String found;
    EXPECT_TRUE(map.Find("A", found) && found != "umlaut") << found.Adr();
    EXPECT_TRUE(At(map, 0).Entry() == "umlaut" && At(map, 1).Entry() == "plain" && At(map, 2).Entry() == "second");
    EXPECT_FALSE(map.InsertUnique("A", "third"));
    SkipList<String, String>::Handle h;
    EXPECT_FALSE(map.InsertUnique("\xC4", h, map.Last()));
    EXPECT_EQ(h, map.First());
    EXPECT_TRUE(map.InsertUnique("B", h) && h == map.Last() && h.Entry().IsEmpty());

    SkipList<String, String> copy(map);
    copy = *&copy;
    EXPECT_TRUE(copy == map);
    copy.Last().Entry() = "changed";
    EXPECT_TRUE(copy != map && map.Last().Entry() == "");
    map = copy;
    EXPECT_TRUE(copy == map);
    map.SwapResources(*std::make_unique<SkipList<String, String>>());
    EXPECT_TRUE(map.IsEmpty() && map.First().IsNil() && map != copy && !map.Find("A", found));
}
