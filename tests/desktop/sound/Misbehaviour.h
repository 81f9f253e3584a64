// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <vector>

namespace velto {

/// A stream that is not to be heard, but tried again and again.
struct Misbehaviour {
    const char* name;
    const char* path;
    const char* port = "plain";
    int connectionsForATry = 1; ///< None when nobody can tell.
};

inline const std::vector<Misbehaviour> allMisbehaviours{{"Refused", "tone.mp3", "refused", 0},
    {"NeverAnswering", "silent"}, {"Missing", "missing"}, {"Broken", "broken"}, {"Page", "page"},
    {"Garbage", "garbage"}, {"RedirectLoop", "loop/1", "plain", 11}, {"RedirectToPlain", "to-plain", "good"},
    {"RedirectToFile", "to-file"}, {"OneByteASecond", "trickle"}, {"EndlessHeader", "long-name"},
    {"WrongHost", "tone.mp3", "wrong-host"}, {"Expired", "tone.mp3", "expired"},
    {"UnknownAuthority", "tone.mp3", "unknown-authority"}, {"PlaylistOfFiles", "playlist.m3u"},
    {"OtherPlaylistOfFiles", "playlist.pls"}, {"SegmentsInFiles", "playlist.m3u8/tone"},
    {"SegmentsInPasswd", "playlist.m3u8/passwd"}};

inline std::ostream& operator<<(std::ostream& stream, const Misbehaviour& misbehaviour)
{
    return stream << misbehaviour.name;
}

} // namespace velto
