#include "validation/ArgumentLimit.h"

#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <string>

namespace tintora {
namespace {

/// How many units of a text, and which; whether it is too long is what it comes to in UTF-8.
struct LengthCase {
    char16_t unit;
    /// The number of bytes that the unit has in UTF-8.
    std::size_t bytes;
};

constexpr auto LengthCases = std::to_array<LengthCase>({
    {u'a', 1},
    {u'\n', 1},
    {u'\x00E9', 2},
    {u'\x4E2D', 3},
    // Half of a pair travels as the replacement character.
    {u'\xD83D', 3},
});

TEST(ArgumentLimit, CountsTheBytesOfAText) {
    for (const LengthCase& row : LengthCases) {
        const std::size_t most = LongestArgument() / row.bytes;
        EXPECT_FALSE(IsTooLongForOneArgument(Text(most, row.unit))) << row.bytes;
        EXPECT_TRUE(IsTooLongForOneArgument(Text(most + 1, row.unit))) << row.bytes;
    }
    EXPECT_FALSE(IsTooLongForOneArgument({}));
}

/// Starts a program that does nothing with one argument; gives what the system says to it, 0 if it runs.
int StartWithArgument(std::string argument) {
    std::string program = "/bin/true";
    const std::array<char*, 3> arguments = {program.data(), argument.data(), nullptr};
    const std::array<char*, 1> environment = {nullptr};
    pid_t process = 0;
    const int failure =
        ::posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments.data(), environment.data());
    if (failure == 0)
        ::waitpid(process, nullptr, 0);
    return failure;
}

TEST(ArgumentLimit, IsTheOneThatTheSystemKeeps) {
    EXPECT_EQ(StartWithArgument(std::string(LongestArgument(), 'a')), 0);
    EXPECT_EQ(StartWithArgument(std::string(LongestArgument() + 1, 'a')), E2BIG);
}

}  // namespace
}  // namespace tintora
