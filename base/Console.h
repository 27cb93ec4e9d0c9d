#pragma once

// The system's side of the console from which a program was started.

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zg {

/// The arguments after the program's name, as names in bytes (see Files.h).
std::vector<std::string> programWords(int argc, char** argv);

/// The directory of the running program, without a final separator; "" if it cannot be determined.
std::string programDirectory();

/// From now on the console shows UTF-8, and both outputs accept bytes unchanged. The console is restored at
/// the end.
void useUtf8Console();

/// From now on a request to end the program (Ctrl-C, a terminated or hung-up session unless that is ignored,
/// a closed console, logging off) only calls this function, from a signal handler or another thread; the
/// program must then end soon by itself. Writing to a closed pipe or beyond the file size limit fails without
/// ending the program.
void catchStops(void (*note)());

/// The bytes of that text in a batch file for the system's command shell; nothing if the shell cannot
/// represent it.
std::optional<std::string> batchText(std::string_view text);

/// The bytes of that text for a library that takes texts of 8 bits; nothing if the system cannot represent
/// it.
std::optional<std::string> libraryText(std::string_view text);

/// An alternative plain name of an existing file or directory, for programs that cannot handle the first; the
/// same name if there is none.
std::string plainerName(const std::string& path);

/// Whether the output goes to a terminal.
bool isTerminal(std::FILE* file);

}  // namespace zg
