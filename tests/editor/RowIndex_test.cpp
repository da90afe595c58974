#include "editor/RowIndex.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace tintora {
namespace {

TEST(RowIndex, ATextOfNothingHasOneRow) {
    const RowIndex index;
    EXPECT_EQ(index.Rows(), 1);
    EXPECT_EQ(index.StartOf(0), 0);
    EXPECT_EQ(index.StartOf(1), 0);
    EXPECT_EQ(index.RowAt(0), 0);
    EXPECT_EQ(index.RowAt(5), 0);
}

TEST(RowIndex, RowsThatAreNotThereHaveTheEndsOfTheText) {
    RowIndex index;
    index.Reset({3, 1, 2});
    EXPECT_EQ(index.StartOf(-1), 0);
    EXPECT_EQ(index.StartOf(2), 4);
    EXPECT_EQ(index.StartOf(3), 6);
    EXPECT_EQ(index.StartOf(100), 6);
    EXPECT_EQ(index.LengthOf(-1), 0);
    EXPECT_EQ(index.LengthOf(3), 0);
    EXPECT_EQ(index.RowAt(-1), 0);
    EXPECT_EQ(index.RowAt(2), 0);
    EXPECT_EQ(index.RowAt(3), 1);
    EXPECT_EQ(index.RowAt(6), 2);
    EXPECT_EQ(index.RowAt(600), 2);
}

TEST(RowIndex, AfterAnyChangeItIsThatOfTheNewRows) {
    std::mt19937 random(5);
    const auto below = [&](std::size_t count) { return static_cast<int>(random() % count); };
    std::vector<int> lengths = {0};
    RowIndex index;
    for (int round = 0; round < 5000; ++round) {
        const int first = below(lengths.size());
        const int removed = below(lengths.size() - static_cast<std::size_t>(first));
        std::vector<int> added(static_cast<std::size_t>(below(3) + 1));
        for (int& length : added)
            length = below(6);
        const auto place = lengths.begin() + first;
        lengths.insert(lengths.erase(place, place + removed + 1), added.begin(), added.end());
        index.Replace(first, removed, added);
        ASSERT_EQ(index.Rows(), static_cast<int>(lengths.size()));
        const int row = below(lengths.size() + 1);
        ASSERT_EQ(index.StartOf(row), std::accumulate(lengths.begin(), lengths.begin() + row, 0));
        const int offset = below(40);
        int expected = 0;
        for (int start = 0, at = 0; at < static_cast<int>(lengths.size());
             start += lengths[static_cast<std::size_t>(at)], ++at)
            expected = start <= offset ? at : expected;
        ASSERT_EQ(index.RowAt(offset), expected);
    }
}

}  // namespace
}  // namespace tintora
