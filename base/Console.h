#pragma once

// What a program asks of the system about the console that it was started from.

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zg {

/// The words of the command line after the program's name, in the bytes of names (see Files.h).
std::vector<std::string> programWords(int argc, char** argv);

/// The directory of the running program, without a final separator; "" if it cannot be told.
std::string programDirectory();

/// From here on the console shows UTF-8, and both outputs take bytes as they stand. The console is left as it
/// was found.
void useUtf8Console();

/// From here on the wish of the person or the system that the program end (Ctrl-C, a terminated or hung up
/// session unless that was turned off before, a closed console, logging off) only calls this, from a signal
/// or from another thread: the program is to end soon by itself. What writes to a closed pipe or beyond the
/// largest file fails, and does not end the program.
void catchStops(void (*note)());

/// The bytes by which a batch file gives that text to the system's command shell; nothing if it cannot hold
/// the text.
std::optional<std::string> batchText(std::string_view text);

/// A second, plainer name of a file or directory that exists, for programs that cannot take the first; the
/// same name if there is no other.
std::string plainerName(const std::string& path);

/// A person looks at what is written there.
bool isTerminal(std::FILE* file);

}  // namespace zg
