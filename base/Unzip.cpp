#include "base/Unzip.h"

#include <zlib.h>

#include <algorithm>
#include <limits>
#include <new>

#include "base/RunTimeError.h"

namespace zg {

namespace {

constexpr int gzipOnly = 16;  // makes the library expect gzip format

uInt asCount(std::size_t size) {
    return static_cast<uInt>(std::min<std::size_t>(size, std::numeric_limits<uInt>::max()));
}

[[noreturn]] void failToUnzip(const char* text) {
    throw RunTimeError(static_cast<int>(ErrorNumber::DeviceIoError), text);
}

}  // namespace

void Unzipper::End::operator()(z_stream_s* stream) const {
    inflateEnd(stream);
    delete stream;
}

Unzipper::Unzipper() : stream_(new z_stream_s{}) {
    if (inflateInit2(stream_.get(), MAX_WBITS + gzipOnly) != Z_OK) throw std::bad_alloc();
}

void Unzipper::failDamaged() { failToUnzip("the compressed data are damaged"); }
void Unzipper::failCutOff() { failToUnzip("the compressed data are cut off"); }

/// Skips zeros that fill the last block of a tape; false if nothing else is left.
bool Unzipper::beginNext(std::string_view& zipped) {
    while (!zipped.empty() && zipped[0] == '\0') zipped.remove_prefix(1);
    if (zipped.empty()) return false;
    if (!isZipped(zipped) || inflateReset(stream_.get()) != Z_OK) failDamaged();
    whole_ = false;
    return true;
}

std::size_t Unzipper::unzip(std::string_view& zipped, char* place, std::size_t size) {
    std::size_t done = 0;
    while (done < size && !(whole_ && !beginNext(zipped))) {
        const uInt given = asCount(zipped.size());
        const uInt room = asCount(size - done);
        // The library's own byte type is not const; it does not change the bytes.
        stream_->next_in = reinterpret_cast<Bytef*>(const_cast<char*>(zipped.data()));
        stream_->avail_in = given;
        stream_->next_out = reinterpret_cast<Bytef*>(place + done);
        stream_->avail_out = room;
        const int outcome = inflate(stream_.get(), Z_NO_FLUSH);
        if (outcome == Z_MEM_ERROR) throw std::bad_alloc();
        if (outcome != Z_OK && outcome != Z_STREAM_END && outcome != Z_BUF_ERROR) failDamaged();
        const uInt used = given - stream_->avail_in;
        const uInt made = room - stream_->avail_out;
        zipped.remove_prefix(used);
        done += made;
        whole_ = outcome == Z_STREAM_END;
        if (used == 0 && made == 0 && !whole_) break;
    }
    return done;
}

}  // namespace zg
