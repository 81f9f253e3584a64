// SPDX-License-Identifier: MIT
#include "desktop/session/QtWorkspace.h"

#include "fixtures/Desktop.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace velto {

namespace {

/// Stands in for the desktop's handler of links.
class Handler {
public:
    Handler()
    {
        const fs::path program = Desktop::current().home() / "xdg-open";
        std::ofstream{program} << "#!/bin/sh\necho \"$1\" >>" << opened.string() << "\n";
        fs::permissions(program, fs::perms{0755});
        qputenv("PATH", QByteArray::fromStdString(Desktop::current().home().string() + ":") + qgetenv("PATH"));
    }

    [[nodiscard]] std::string content() const
    {
        std::ifstream file{opened};
        return {std::istreambuf_iterator<char>{file}, {}};
    }

    fs::path opened = Desktop::current().home() / "opened";
};

} // namespace

TEST(QtWorkspaceTest, LinksGoToTheDesktopAndWhatIsNoUrlDoesNothing)
{
    const Handler handler;
    QtWorkspace workspace;

    for (const char* text : {"", "no url", "relative/path", "http://[broken", "://", "%zz"})
        workspace.open(text);
    workspace.open("https://example.org/a?b=c&d=%20#e");
    ASSERT_TRUE(eventually([&] { return !handler.content().empty(); }));

    EXPECT_EQ(handler.content(), "https://example.org/a?b=c&d=%20#e\n");
}

TEST(QtWorkspaceTest, MailAddressesAreLinks)
{
    const Handler handler;
    QtWorkspace workspace;

    workspace.open("mailto:support@velto.example");

    ASSERT_TRUE(eventually([&] { return !handler.content().empty(); }));
    EXPECT_EQ(handler.content(), "mailto:support@velto.example\n");
}

} // namespace velto
