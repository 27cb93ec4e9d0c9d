#pragma once

#include <string>
#include <vector>

/// Valid file names that a shell, a command line or a file system may misinterpret. None has a line end or a
/// blank.
inline std::vector<std::string> oddNames() {
    const std::string readable =
        R"names(-dash --out -- --merge a"b " it's '' a%PATH%b %s%n%d a&touch${IFS}PWNED&b a^b !x a!!b!END! $(touch${IFS}PWNED)
`touch${IFS}PWNED` a;touch${IFS}PWNED a|b a>PWNED <a> * ? [a] ~ # (x) {0} .hidden back\slash \ \n a,b=c+d o.frq)names";
    std::vector<std::string> names = {"tab\there",
                                      "Montr\xE9"
                                      "al",
                                      "\xFF\xFE",
                                      "W\xC3\xA4sser",
                                      "\x7F\x1B[31m",
                                      std::string(200, 'x')};
    std::string name;
    for (const char character : readable + "\n") {
        if (character != ' ' && character != '\n') {
            name += character;
            continue;
        }
        names.push_back(name);
        name.clear();
    }
    return names;
}
