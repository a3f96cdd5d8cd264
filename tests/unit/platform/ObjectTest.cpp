#include "values/Object.h"
#include "Allocations.h"
#include "values/Integer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace zel::dataformats::data;
using Map = zel::common::types::PtrMap<std::string, Value>;

static_assert(std::forward_iterator<Map::const_iterator>);
// One lies on the stack for each level of nesting that is read.
static_assert(sizeof(Object) <= 32);

int number(void const* value)
{
    return static_cast<Integer const*>(value)->get();
}

/// Fills an object and a `std::map` with the keys, each with its place as value, and compares them.
void expectLikeStandardMap(std::vector<std::string> const& keys)
{
    Object object;
    std::map<std::string, int> expected;
    for (std::size_t place = 0; place < keys.size(); ++place) {
        object.setNew(keys[place].c_str(), new Integer{static_cast<int>(place)});
        expected[keys[place]] = static_cast<int>(place);
    }

    Map const& map = object.get();
    ASSERT_EQ(map.size(), expected.size());
    EXPECT_TRUE(std::equal(map.begin(), map.end(), expected.begin(), expected.end(),
                           [](auto const& entry, auto const& wanted) {
                               return entry.first == wanted.first &&
                                      number(entry.second) == wanted.second;
                           }));
    for (auto const& [key, place] : expected) {
        auto const found = map.find(key);
        ASSERT_NE(found, map.end()) << key;
        EXPECT_EQ(found->first, key);
        EXPECT_EQ(number(found->second), place);
        for (std::string const& other : {key + "x", key.substr(0, key.size() - 1), "x" + key}) {
            EXPECT_EQ(map.find(other) != map.end(), expected.contains(other)) << other;
        }
    }
}

std::vector<std::string> numbered(std::size_t count)
{
    std::vector<std::string> keys;
    for (std::size_t index = 0; index < count; ++index) {
        keys.push_back("key" + std::to_string(index * 7919));
    }
    return keys;
}

std::vector<std::string> shuffled(std::vector<std::string> keys)
{
    // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): every run is to see the same order.
    std::mt19937 random{1};
    std::shuffle(keys.begin(), keys.end(), random);
    return keys;
}

TEST(Object, KeepsKeysInOrderHoweverTheyArrive)
{
    // Around the sizes at which storage grows and changes its form.
    for (std::size_t const count : {1U, 2U, 8U, 9U, 24U, 25U, 30U, 120U, 121U, 376U, 377U, 2000U}) {
        std::vector<std::string> keys = numbered(count);
        std::sort(keys.begin(), keys.end());
        expectLikeStandardMap(keys);
        std::reverse(keys.begin(), keys.end());
        expectLikeStandardMap(keys);
        keys = shuffled(keys);
        expectLikeStandardMap(keys);
        keys.insert(keys.end(), keys.begin(), keys.begin() + static_cast<int>(count / 2));
        expectLikeStandardMap(keys);
    }
    expectLikeStandardMap(shuffled(numbered(30'000)));
}

TEST(Object, OrdersKeysAsStringsDo)
{
    std::string const longKey(200, 'k');
    expectLikeStandardMap({"b", "a", "aa", "B", "z\xff", "z", "\x80", "aaaaaaaaaaaaaaaaaaaaaaaa",
                           "aaaaaaaaaaaaaaaaaaaaaaab", longKey, longKey + "1", longKey + "0"});

    Object object;
    object.setNew("a", nullptr);
    object.setNew("", new Integer{1});
    EXPECT_EQ(object.get().begin()->first, "");
    EXPECT_EQ(number(object.get().find("")->second), 1);
}

TEST(Object, TellsKeysApartThatLookAlike)
{
    // Same length, same first, middle and last character.
    std::vector<std::string> keys;
    for (char one = 'a'; one <= 'z'; ++one) {
        for (char other = 'a'; other <= 'd'; ++other) {
            keys.push_back({'k', one, 'm', other, 'e'});
        }
    }
    expectLikeStandardMap(keys);
}

TEST(Object, FindsNothingInWhatItsMemoryHeldBefore)
{
    {
        // Leaves emptied keys behind.
        Object earlier;
        for (char const* key : {"9", "8", "7", "6", "5", "4", "3", "2", "1"}) {
            earlier.setNew(key, nullptr);
        }
    }
    Object object;
    object.setNew("id", nullptr);
    EXPECT_EQ(object.get().find(""), object.get().end());
    ASSERT_NE(object.get().find("id"), object.get().end());
    EXPECT_EQ(object.get().find("id")->second, nullptr);
}

TEST(Object, FreesTheValueThatItReplaces)
{
    std::size_t const before = allocations::alive();
    {
        Object object;
        auto* const kept = new Integer{1};
        object.setNew("id", kept);
        object.setNew("id", kept);
        std::size_t const withOne = allocations::alive();
        EXPECT_EQ(number(object.get().find("id")->second), 1);

        object.setNew("id", new Integer{2});
        EXPECT_EQ(allocations::alive(), withOne);
        EXPECT_EQ(number(object.get().find("id")->second), 2);

        object.setNew("id", nullptr);
        EXPECT_EQ(allocations::alive(), withOne - 1);
        EXPECT_EQ(object.get().size(), 1U);
    }
    EXPECT_EQ(allocations::alive(), before);
}

TEST(Object, AllocatesNothingWhileEmptyAndThenOncePerDoubling)
{
    std::vector<std::string> keys = numbered(30);
    std::sort(keys.begin(), keys.end());
    std::size_t const before = allocations::made();
    Object object;
    EXPECT_EQ(object.get().begin(), object.get().end());
    EXPECT_TRUE(object.get().empty());
    EXPECT_EQ(allocations::made(), before);
    for (std::string const& key : keys) {
        object.setNew(key.c_str(), nullptr);
    }
    EXPECT_EQ(allocations::made() - before, 3U);
}

} // namespace
