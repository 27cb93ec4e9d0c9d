#pragma once

#include <string>

#include "headers/HeaderSource.h"
#include "headers/InfoView.h"

namespace zg {

/// Reads the header of a file of the kind M3d or Ventos, all its lines up to the data. Raises a HeaderError
/// for a file of another format and for one truncated in its header; the result is then undefined.
/// Returns the length of a record in seconds.
std::int32_t readGridHeader(HeaderSource& source, InputKind kind, InfoViewResult& result);

/// The program's own infoview operation: the same, but an error sets the error flag and a text with line and
/// field. Raises nothing.
void readGridFileHeader(const std::string& path, InputKind kind, InfoViewResult& result);

}  // namespace zg
