#include "platform/environment.h"

#include <cstdlib>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;

constexpr const char* name = "VELDRANA_TEST_VARIABLE";

// A variable that is gone with the test.
class Variable {
  public:
    explicit Variable(const char* value) { setenv(name, value, 1); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { unsetenv(name); }
};

TEST(EnvironmentVariable, IsEmptyIfItIsNotSet) {
    ASSERT_EQ(std::getenv(name), nullptr);
    EXPECT_EQ(environment_variable(name), "");
}

TEST(EnvironmentVariable, IsFoundByItsWholeName) {
    const Variable variable("/home/ja1zzz/ログ");
    EXPECT_EQ(environment_variable(name), "/home/ja1zzz/ログ");
    const std::string longer = std::string(name) + "_2";
    EXPECT_EQ(environment_variable(longer), "");
    // A view that does not end where its string does.
    EXPECT_EQ(environment_variable(std::string_view(longer).substr(0, longer.size() - 2)),
              "/home/ja1zzz/ログ");
}

TEST(EnvironmentVariable, IsWellFormedTextWhateverItHolds) {
    // The bytes of あ in code page 932: each is none of UTF-8's.
    const Variable variable("A\x82\xA0Z");
    EXPECT_EQ(environment_variable(name), "A??Z");
}

#ifdef __linux__
TEST(ExecutableFolder, IsWhereTheSystemSaysWhateverTheCommandLineSays) {
    const fs::path folder = fs::canonical("/proc/self/exe").parent_path();
    EXPECT_EQ(executable_folder("elsewhere/veldrana"), folder);
    EXPECT_EQ(executable_folder("/nowhere/veldrana"), folder);
    EXPECT_EQ(executable_folder(""), folder);
}
#endif

}  // namespace
}  // namespace veldrana
