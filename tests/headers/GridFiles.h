#pragma once

// Small files of the two formats: headers and a little data.

#include <string>

namespace zg {

/// Two columns and rows, three levels, 48 hours from 2005-03-07 06:00 UTC.
inline std::string m3dText(const std::string& map = "LCC 40.5 -97.25 33 45") {
    return "3D.DAT          2.1             made for a test\n1\na comment\n1 1 0 0 0 0\n" + map +
           " -100.5 20 12 40 40 30\nNONE OF THE OPTIONS\n2005030706 48 2 2 3\n1 1 2 2 1 3 -98 -97 40 41\n"
           "0.995\n0.98\n0.95\n"
           "1 1 40.1 -97.9 250 7\n2 1 40.1 -97.7 251 7\n1 2 40.3 -97.9 252 7\n2 2 40.3 -97.7 253 7\n";
}

/// 2005-03-07 06:30:15 to 2005-12-31 23:00 in UTC-0500.
inline std::string ventosText(const std::string& map = "LCC NWS-84 NONE 0 100.5 -20 40.5 -97.25 33 45") {
    return "VENTOS.DAT 2.1 made for a test\r\n2\r\nfirst\r\nsecond\r\n"
           "2005 3 7 6 1815  2005 12 31 23 0 UTC-0500 3600\r\n" +
           map + "\r\n2 2 1 -100.5 20 12\r\n0 20\r\n";
}

/// The first lines of a text, with their line ends.
inline std::string firstLines(const std::string& text, int count) {
    std::size_t at = 0;
    for (int i = 0; i < count && at != std::string::npos; ++i) at = text.find('\n', at) + 1;
    return text.substr(0, at);
}

}  // namespace zg
