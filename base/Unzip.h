#pragma once

// Bytes of a gzip file, as they were before they were compressed.

#include <cstddef>
#include <memory>
#include <string_view>

struct z_stream_s;

namespace zg {

class Unzipper {
 public:
    /// Whether a file that begins with these bytes is a gzip file. No text begins so.
    static bool isZipped(std::string_view start) {
        return !start.empty() && start[0] == '\x1F' && (start.size() < 2 || start[1] == '\x8B');
    }

    /// The largest number of bytes that one compressed byte can stand for.
    static constexpr std::size_t mostOfOneByte = 1032;

    Unzipper();

    /// Fills the place as far as the compressed bytes go, and takes those away that it has used. Several
    /// files behind each other are one. Raises 57 for damaged data.
    std::size_t unzip(std::string_view& zipped, char* place, std::size_t size);

    /// All that was given so far was whole: the file may end here.
    bool isWhole() const { return whole_; }

    /// Raises 57, with what is wrong as description.
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
