#include "shell/qt/Application.h"

#include "text/Narrowing.h"

#include <gtest/gtest.h>
#include <QTest>
#include <QTimer>

namespace tintora {
namespace {

class BoundaryTest : public testing::Test {
  protected:
    BoundaryTest() {
        Boundary().SetFailureHandlers([this](const OverflowFailure& failure) { overflow = failure.Value(); },
                                      [this](const QString& what) { fault = what; });
    }
    ~BoundaryTest() override { Boundary().SetFailureHandlers({}, {}); }

    static Application& Boundary() { return *qobject_cast<Application*>(QApplication::instance()); }

    long long overflow = 0;
    QString fault;
};

TEST_F(BoundaryTest, ATextBeyondTheLimitIsToldAndTheProgramGoesOn) {
    QTimer::singleShot(0, &Boundary(), [] { static_cast<void>(Narrow(32768)); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return overflow == 32768; }, 2000));
    EXPECT_TRUE(fault.isEmpty());
}

TEST_F(BoundaryTest, AnyOtherFailureIsAFault) {
    QTimer::singleShot(0, &Boundary(), [] { throw std::runtime_error("broken"); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return fault == QStringLiteral("broken"); }, 2000));
    EXPECT_EQ(overflow, 0);
}

}  // namespace
}  // namespace tintora
