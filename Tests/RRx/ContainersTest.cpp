#include "RRx/RRArray.h"
#include "RRx/RRList.h"
#include "RRx/RRSkipList.h"
#include "RRx/RRString.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <random>
#include <utility>
#include <vector>

using namespace RR;

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

/// Removes the element at `at` from both; the handle has to move to the following or the preceding one.
template <class Container, class Model>
void RemoveAt(Container& container, Model& model, int at, bool following)
{
    auto h = At(container, at);
    container.Remove(h, following);
    model.erase(std::next(model.begin(), at));
    EXPECT_EQ(h, At(container, following ? at : at > 0 ? at - 1 : container.GetCount()));
}

}

TEST(Array, CopiesDeeplyAndLosesNothingOnTheSameSize)
{
    Array<int> a(3);
    a.Fill(7);
    Array<int> b(a);
    a = *&a;
    b[2] = 1;
    b.SetSize(3);
    EXPECT_TRUE(a != b && a[2] == 7 && b[2] == 1);
    b.SetSize(5, b[2]);
    EXPECT_EQ(std::count(b.Adr(), b.Adr() + b.GetSize(), 1), 5);
    b.SetSize(-1);
    EXPECT_TRUE(b.Adr() == nullptr && b == Array<int>());
}

TEST(ContainersDeathTest, MisuseStopsTheProgram)
{
    EXPECT_DEATH(Array<int>(2)[2] = 1, "Assertion \"index >= 0 && index < size\" failed");
    EXPECT_DEATH(Map().Last().Entry() = 1, "e != __null");
    EXPECT_DEATH(String().Last() = 'x', "index < length");
}

TEST(List, KeepsUpWithAVectorThroughRandomChangesAndStableSorting)
{
    std::mt19937 random(11);
    List<Item> list;
    std::vector<Row> model;
    for (int step = 0; step < 6000; ++step) {
        const int size = static_cast<int>(model.size());
        const Item item{static_cast<int>(random() % 9), step};
        const Row row(item.rank, step);
        const int at = size > 0 ? static_cast<int>(random() % static_cast<unsigned>(size)) : 0;
        if (step % 64 == 0 && size > 0) {
            const auto handle = At(list, at);
            list.Sort();
            EXPECT_EQ(RowOf(handle), model[at]) << "the handle left its entry";
            std::stable_sort(model.begin(), model.end(), [](const Row& a, const Row& b) { return a.first < b.first; });
        }
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
            RemoveAt(list, model, at, action != 4);
        } else if (action == 5) {
            list.InsertBefore(At(list, at), item);
            model.insert(model.begin() + at, row);
        } else if (action == 6) {
            EXPECT_EQ(list.InsertAfter(At(list, at), item)(), item);
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
}

TEST(SkipList, KeepsUpWithAMultimapWithHintsAndWithout)
{
    std::mt19937 random(2);
    Map map;
    for (const int keys : {2, 25, 5000}) {
        map.SetEmpty();
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
                EXPECT_EQ(map.Insert(key, step, hint).Entry(), step);
                model.emplace(key.value, step);
            } else if (action == 4) {
                const bool isNew = model.count(key.value) == 0;
                EXPECT_EQ(map.InsertUnique(key, step, hint), isNew);
                if (isNew) {
                    model.emplace(key.value, step);
                }
            } else if (action == 5 && keys > 100) {
                EXPECT_EQ(map.RemoveAll(key), model.erase(key.value) > 0);
            } else if (!model.empty()) {
                RemoveAt(map, model, at, step % 2 == 0);
            }
            ASSERT_EQ(map.Contains(key), model.count(key.value) > 0);
            if (step % 16 == 0) {
                ASSERT_EQ(Content(map), std::vector<Row>(model.begin(), model.end())) << "step " << step;
            }
        }
    }
}

TEST(SkipList, SearchesInLogarithmicAndHintsInConstantTime)
{
    std::vector<int> values(1 << 15);
    std::generate(values.begin(), values.end(), [even = 0]() mutable { return even += 2; });
    const auto average = [&](auto action) {
        comparisons = 0;
        for (const int value : values) {
            action(CountedKey{value});
        }
        return comparisons / static_cast<int>(values.size());
    };
    Map sorted;
    EXPECT_LT(average([&](CountedKey key) { sorted.Insert(key, sorted.Last()); }), 10);
    // Two levels of towers to each doubling squared, two comparisons a step: about 60 in all, against 32768 in a chain.
    EXPECT_LT(average([&](CountedKey key) { EXPECT_TRUE(sorted.Contains(key)); }), 100);
    EXPECT_LT(average([&](CountedKey key) { EXPECT_FALSE(sorted.Contains(CountedKey{key.value + 1})); }), 100);

    // Half of the elements go by their handles; the towers must serve what is left.
    for (auto h = sorted.First(); !h.IsNil() && !h.IsLast(); h.Next()) {
        sorted.Remove(h);
    }
    EXPECT_LT(average([&](CountedKey key) { EXPECT_EQ(sorted.Contains(key), key.value % 4 == 0); }), 100);

    Map shuffled;
    std::shuffle(values.begin(), values.end(), std::mt19937(8));
    EXPECT_LT(average([&](CountedKey key) { shuffled.Insert(key); }), 100);
    EXPECT_LT(average([&](CountedKey key) { shuffled.Insert(key, shuffled.First()); }), 100) << "a hint far off";
}

TEST(SkipList, CopiesDeeplyAndTellsEquivalentKeysApart)
{
    using Texts = SkipList<String, String>;
    Texts map;
    map.Insert("\xC4", "umlaut");
    map.Insert("A", "plain");
    map.Insert("A", "second", map.First());
    EXPECT_TRUE(At(map, 0).Entry() == "umlaut" && At(map, 1).Entry() == "plain" && At(map, 2).Entry() == "second");
    Texts copy(map);
    EXPECT_TRUE(copy == map);
    copy.Last().Entry() = "changed";
    EXPECT_TRUE(copy != map && map.Last().Entry() == "second");
    map = copy;
    copy = Texts();
    EXPECT_TRUE(copy.IsEmpty() && copy.First().IsNil() && map != copy && map.Last().Entry() == "changed");
}
