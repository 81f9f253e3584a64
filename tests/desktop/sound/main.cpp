// SPDX-License-Identifier: MIT
#include "OwnNetwork.h"
#include "WatchedApplication.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    velto::OwnNetwork::enter();
    for (const char* name : {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"})
        qunsetenv(name);
    qputenv("GST_REGISTRY", VELTO_AUDIO_MATERIAL "/gst-registry.bin");
    const velto::WatchedApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
