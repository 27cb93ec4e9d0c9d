#pragma once

#include <zlib.h>

#include <string>
#include <string_view>

/// The bytes as a gzip file.
inline std::string gzipped(std::string_view text) {
    z_stream stream = {};
    deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY);
    std::string zipped(deflateBound(&stream, static_cast<uLong>(text.size())), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
    stream.avail_in = static_cast<uInt>(text.size());
    stream.next_out = reinterpret_cast<Bytef*>(zipped.data());
    stream.avail_out = static_cast<uInt>(zipped.size());
    deflate(&stream, Z_FINISH);
    zipped.resize(stream.total_out);
    deflateEnd(&stream);
    return zipped;
}
