#include "shell/qt/PlaceOnScreens.h"

#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QScreen>

namespace tintora {
namespace {

TEST(PlaceOnScreens, APlaceThatShowsStays) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect place(screen.x() + 20, screen.y() + 30, 400, 300);
    EXPECT_EQ(PlaceOnScreens(place), place);
}

TEST(PlaceOnScreens, APlaceBeyondAllScreensComesBack) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QRect stored : {QRect(20'000, 100, 400, 300), QRect(-20'000, -9000, 400, 300), QRect(0, 0, 20'000, 100)})
        EXPECT_TRUE(screen.contains(PlaceOnScreens(stored)));
    EXPECT_EQ(PlaceOnScreens({20'000, 10, 400, 300}), QRect(screen.right() + 1 - 400, 10, 400, 300));
}

}  // namespace
}  // namespace tintora
