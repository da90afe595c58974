#include "shell/VisiblePlace.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <random>

namespace tintora {

void PrintTo(const PixelRectangle& place, std::ostream* out) {
    *out << place.left << ',' << place.top << ' ' << place.width << 'x' << place.height;
}

namespace {

using Screens = std::vector<PixelRectangle>;

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

const Screens None = {};
const Screens Small = {{0, 0, 1280, 800}};
const Screens WithPanel = {{0, 30, 1280, 770}};
const Screens Two = {{0, 0, 1920, 1080}, {1920, 0, 1920, 1080}};
const Screens LeftOfMain = {{0, 0, 1920, 1080}, {-1280, 0, 1280, 1024}};
const Screens Stairs = {{0, 0, 1000, 1000}, {1000, 500, 1000, 1000}};
const Screens Mirrored = {{0, 0, 1280, 800}, {0, 0, 1280, 800}};
const Screens PartlyMirrored = {{0, 0, 800, 600}, {0, 0, 1280, 800}};
const Screens PartlyMirroredToo = {{0, 0, 1280, 800}, {0, 0, 800, 600}};

struct PlaceCase {
    const char* what;
    PixelRectangle stored;
    Screens screens;
    PixelRectangle place;
};

const std::vector<PlaceCase> PlaceCases = {
    {"well inside", {100, 100, 800, 600}, Small, {100, 100, 800, 600}},
    {"the whole screen", {0, 0, 1280, 800}, Small, {0, 0, 1280, 800}},
    {"no screens", {5000, 5000, 800, 600}, None, {5000, 5000, 800, 600}},
    {"empty screens only", {5000, 5000, 10, 10}, {{0, 0, 0, 800}, {0, 0, 100, -1}}, {5000, 5000, 10, 10}},
    {"an empty screen beside another", {100, 100, 800, 600}, {{0, 0, 0, 0}, {0, 0, 1280, 800}}, {100, 100, 800, 600}},

    {"half off at the right", {880, 100, 800, 600}, Small, {880, 100, 800, 600}},
    {"more than half off at the right", {881, 100, 800, 600}, Small, {480, 100, 800, 600}},
    {"half off at the left", {-400, 100, 800, 600}, Small, {-400, 100, 800, 600}},
    {"more than half off at the left", {-401, 100, 800, 600}, Small, {0, 100, 800, 600}},
    {"half off at the bottom", {100, 500, 800, 600}, Small, {100, 500, 800, 600}},
    {"more than half off at the bottom", {100, 501, 800, 600}, Small, {100, 200, 800, 600}},
    {"half of the title off", {100, -15, 800, 600}, Small, {100, -15, 800, 600}},
    {"more than half of the title off", {100, -16, 800, 600}, Small, {100, 0, 800, 600}},
    {"the title under a panel", {100, 0, 800, 600}, WithPanel, {100, 30, 800, 600}},
    {"off at a corner", {700, 450, 800, 600}, Small, {480, 200, 800, 600}},

    {"quite gone to the right", {2000, 100, 800, 600}, Small, {480, 100, 800, 600}},
    {"quite gone upwards", {100, -3000, 800, 600}, Small, {100, 0, 800, 600}},
    {"a screen that is gone", {2100, 200, 1500, 800}, {{0, 0, 1920, 1080}}, {420, 200, 1500, 800}},
    {"a left screen that is gone", {-1200, 50, 1000, 700}, {{0, 0, 1920, 1080}}, {0, 50, 1000, 700}},

    {"larger than the screen", {0, 0, 2560, 1440}, Small, {0, 0, 1280, 800}},
    {"wider than the screen", {-10, 50, 1300, 600}, Small, {0, 50, 1280, 600}},
    {"higher than the screen", {50, 0, 600, 801}, Small, {50, 0, 600, 800}},
    {"larger than what a panel leaves", {0, 0, 1280, 800}, WithPanel, {0, 30, 1280, 770}},
    {"larger, on a screen that is gone", {3000, 2000, 2000, 1500}, Small, {0, 0, 1280, 800}},

    {"on the second screen", {2000, 100, 800, 600}, Two, {2000, 100, 800, 600}},
    {"across two screens", {1000, 100, 1800, 800}, Two, {1000, 100, 1800, 800}},
    {"all over two screens", {0, 0, 3840, 1080}, Two, {0, 0, 3840, 1080}},
    {"wider than two screens", {0, 0, 3841, 900}, Two, {0, 0, 1920, 900}},
    {"beyond the second screen", {4000, 100, 800, 600}, Two, {3040, 100, 800, 600}},
    {"below the second screen", {2500, 2000, 800, 600}, Two, {2500, 480, 800, 600}},
    {"on a screen left of the main one", {-1200, 100, 800, 600}, LeftOfMain, {-1200, 100, 800, 600}},
    {"left of that screen", {-3000, 100, 800, 600}, LeftOfMain, {-1280, 100, 800, 600}},
    {"most of it on the second screen", {900, 300, 1000, 1800}, Stairs, {1000, 500, 1000, 1000}},
    {"a title that can just be grasped", {900, 400, 800, 600}, Stairs, {900, 400, 800, 600}},
    {"a title that can't quite be grasped", {901, 400, 800, 600}, Stairs, {1000, 500, 800, 600}},
    {"in the corner of two screens", {1200, 0, 400, 300}, Stairs, {600, 0, 400, 300}},
    {"as near to both screens, so to the first", {1920, 1200, 0, 0}, Two, {1720, 930, 200, 150}},

    {"less than half of it, shown twice", {780, 100, 1200, 600}, Mirrored, {80, 100, 1200, 600}},
    {"less than half of it, partly shown twice", {600, 400, 1000, 600}, PartlyMirrored, {280, 200, 1000, 600}},
    {"the same with the larger screen first", {600, 400, 1000, 600}, PartlyMirroredToo, {280, 200, 1000, 600}},
    {"shown on the larger of two that mirror", {700, 500, 500, 300}, PartlyMirrored, {700, 500, 500, 300}},

    {"no size", {100, 100, 0, 0}, Small, {100, 100, 200, 150}},
    {"a negative size", {100, 100, -5, -5000}, Small, {100, 100, 200, 150}},
    {"a small size beyond the screen", {5000, 5000, 10, 10}, Small, {1080, 650, 200, 150}},
    {"a screen smaller than any window", {10, 10, 300, 300}, {{0, 0, 90, 90}}, {0, 0, 90, 90}},
    {"the largest numbers", {Most, Most, Most, Most}, Small, {0, 0, 1280, 800}},
    {"the smallest numbers", {Least, Least, Least, Least}, Small, {0, 0, 200, 150}},
    {"from end to end", {Least, Least, Most, Most}, Small, {0, 0, 1280, 800}},
};

TEST(VisiblePlace, AWindowComesBackToWhatIsVisible) {
    for (const PlaceCase& row : PlaceCases)
        EXPECT_EQ(VisiblePlace(row.stored, row.screens), row.place) << row.what;
}

TEST(VisiblePlace, APlaceThatWasGivenStays) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> offset(-4000, 4000);
    std::uniform_int_distribution<int> size(-10, 4000);
    for (const Screens* screens :
         {&Small, &WithPanel, &Two, &LeftOfMain, &Stairs, &Mirrored, &PartlyMirrored, &PartlyMirroredToo}) {
        for (int round = 0; round < 2000; ++round) {
            const PixelRectangle stored{offset(random), offset(random), size(random), size(random)};
            const PixelRectangle place = VisiblePlace(stored, *screens);
            EXPECT_EQ(VisiblePlace(place, *screens), place) << testing::PrintToString(stored);
        }
    }
}

}  // namespace
}  // namespace tintora
