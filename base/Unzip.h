#pragma once

// Decompresses gzip files.

#include <cstddef>
#include <memory>
#include <string_view>

struct z_stream_s;

namespace zg {

class Unzipper {
 public:
    /// Whether a file that begins with these bytes is a gzip file. No text file begins so.
    static bool isZipped(std::string_view start) {
        return !start.empty() && start[0] == '\x1F' && (start.size() < 2 || start[1] == '\x8B');
    }

    /// The largest number of bytes that one compressed byte can produce.
    static constexpr std::size_t mostOfOneByte = 1032;

    Unzipper();

    /// Fills the buffer as far as the compressed bytes allow, and removes those that it has used. Several
    /// consecutive files are one. Raises 57 for damaged data.
    std::size_t unzip(std::string_view& zipped, char* place, std::size_t size);

    /// Whether everything so far was complete: the file may end here.
    bool isWhole() const { return whole_; }

    /// Raises 57, with the problem as the description.
    [[noreturn]] static void failDamaged();
    [[noreturn]] static void failCutOff();

 private:
    struct End {
        void operator()(z_stream_s* stream) const;
    };
    bool beginNext(std::string_view& zipped);

    std::unique_ptr<z_stream_s, End> stream_;
    bool whole_ = true;
};

}  // namespace zg
