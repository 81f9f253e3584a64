// SPDX-License-Identifier: MIT
#include "help_about/AboutTexts.h"
#include "support/FakeBundle.h"

#include <gtest/gtest.h>

namespace velto {

namespace {

struct VersionCase {
    std::map<std::string, std::string, std::less<>> bundle;
    std::string text;
};

class VersionStringTest : public testing::TestWithParam<VersionCase> { };

TEST_P(VersionStringTest, LeavesOutAMissingVersionOrBuild)
{
    FakeBundle bundle;
    bundle.values = GetParam().bundle;

    EXPECT_EQ(versionString(bundle), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Bundles, VersionStringTest,
    testing::Values(VersionCase{{{"CFBundleShortVersionString", "1.2"}, {"CFBundleVersion", "34"}}, "v1.2 (34)"},
        VersionCase{{{"CFBundleShortVersionString", "1.2"}}, "v1.2"},
        VersionCase{{{"CFBundleShortVersionString", "1.2"}, {"CFBundleVersion", ""}}, "v1.2"},
        VersionCase{{{"CFBundleShortVersionString", ""}, {"CFBundleVersion", "34"}}, "v (34)"},
        VersionCase{{{"CFBundleVersion", "34"}}, "v- (34)"}, VersionCase{{{"CFBundleVersion", ""}}, "v-"},
        VersionCase{{}, "v-"}));

} // namespace

} // namespace velto
