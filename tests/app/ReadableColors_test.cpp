#include "editor/qt/ReadableColors.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

TEST(ReadableColors, ContrastGoesFromNoneToBlackAndWhite) {
    EXPECT_DOUBLE_EQ(ContrastOf(Qt::white, Qt::white), 1);
    EXPECT_DOUBLE_EQ(ContrastOf(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(ContrastOf(Qt::white, Qt::black), 21);
    EXPECT_NEAR(ContrastOf(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(ReadableColors, WhatCanBeReadStaysAsItIs) {
    const QColor purple(128, 91, 168);
    EXPECT_EQ(ReadableOn(purple, Qt::white), purple);
    EXPECT_EQ(ReadableOn(Qt::black, Qt::red), QColor(Qt::black));
}

TEST(ReadableColors, WhatCouldHardlyBeReadIsShiftedAndKeepsItsHue) {
    const std::vector<QColor> texts = {
        QColor(192, 192, 192), QColor(118, 180, 209), QColor(0, 255, 0), Qt::black, Qt::white,
        QColor(255, 0, 0),     QColor(128, 91, 168)};
    for (const QColor& ground :
         {QColor(Qt::white), QColor(0x23, 0x26, 0x29), QColor(Qt::black), QColor(128, 128, 128)}) {
        for (const QColor& text : texts) {
            const QColor readable = ReadableOn(text, ground);
            EXPECT_GE(ContrastOf(readable, ground), 4.5) << qPrintable(text.name() + " on " + ground.name());
            if (text.hslSaturationF() > 0.1F && readable.hslSaturationF() > 0.1F) {
                EXPECT_NEAR(readable.hslHueF(), text.hslHueF(), 0.02);
            }
        }
    }
}

}  // namespace
}  // namespace tintora
