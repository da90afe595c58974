#include "properties/BoxSides.h"

#include "language/Declarations.h"
#include "language/Words.h"
#include "properties/ValueWords.h"

namespace tintora {

namespace {

constexpr int Top = 1;
constexpr int Left = 2;
constexpr int Bottom = 3;
constexpr int Right = 4;

}  // namespace

PropertyValues TakeSidesApart(int shorthand, TextView value) {
    const Texts words = SplitAtBlanks(StripImportant(value));
    if (words.size() == 1)
        return {{shorthand, words.front()}};
    PropertyValues values;
    const auto give = [&](std::size_t word, int side) {
        if (word < words.size())
            values.push_back({shorthand + side, words[word]});
    };
    give(0, Top);
    give(0, Bottom);
    give(1, Left);
    give(1, Right);
    give(2, Bottom);
    give(3, Right);
    return values;
}

Text JoinSides(int shorthand, const ShownValue& valueOf) {
    Texts values;
    for (int side = 1; side <= box::SideCount; ++side) {
        if (Text value = valueOf(shorthand + side); !value.empty())
            values.push_back(std::move(value));
    }
    return JoinItems(values, u" ");
}

}  // namespace tintora
