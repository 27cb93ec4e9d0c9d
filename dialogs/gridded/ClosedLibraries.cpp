// The calling convention of the two libraries: every argument by reference, texts as buffers padded with
// blanks, their lengths as 32-bit values after all other arguments, in the same order.

#include "dialogs/gridded/ClosedLibraries.h"

#include <QFileInfo>
#include <QLibrary>
#include <array>
#include <memory>
#include <optional>

#include "base/Console.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "dialogs/gridded/DatumTable.h"
#include "headers/GridFileHeader.h"
#include "headers/InfoView.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr const char* librarySuffix = onWindows ? ".dll" : ".so";

using Int = std::int32_t;
constexpr Int ventosCode = 1;  // of the kinds of files; 2 is for files of concentrations
constexpr Int m3dCode = 3;
using InfoViewFunction = void (*)(const char*, Int*, Int*, Int*, Int*, Int*, Int*, Int*, Int*, Int*, Int*,
                                  Int*, Int*, Int*, Int*, Int*, Int*, Int*, float*, float*, float*, float*,
                                  float*, float*, char*, char*, char*, char*, char*, Int, Int, Int, Int, Int,
                                  Int);
using InitFunction = void (*)(Int*, Int*, Int*, char*, char*, char*, char*, char*, char*, char*, Int, Int,
                              Int, Int, Int, Int, Int);

/// A text argument that the library fills in.
template <std::size_t Width>
class OutText {
 public:
    OutText() { buffer_.fill(' '); }
    char* data() { return buffer_.data(); }
    static constexpr Int length() { return static_cast<Int>(Width); }
    /// Up to a NUL byte, if a library writes one.
    std::string text() const {
        const std::string all(buffer_.data(), buffer_.size());
        return trim(all.substr(0, all.find('\0')));
    }

 private:
    std::array<char, Width> buffer_;
};

/// The function of a library; compilers of its language decorate its name in several ways.
template <typename Function>
Function resolve(const std::string& path, const char* name) {
    auto library = std::make_unique<QLibrary>(fileName(path));
    library->setLoadHints(QLibrary::PreventUnloadHint);
    for (const std::string& symbol : {std::string(name), std::string(name) + "_", ucase(name)})
        if (const QFunctionPointer found = library->resolve(symbol.c_str()))
            return reinterpret_cast<Function>(found);
    throw RunTimeError(static_cast<int>(ErrorNumber::FileNotFound),
                       FileNameOf(path) + " has no function " + name);
}

std::string nameForLibrary(const std::string& path) {
    if (const std::optional<std::string> bytes = libraryText(path)) return *bytes;
    return libraryText(plainerName(path)).value_or(path);
}

void callInfoView(InfoViewFunction infoview, const std::string& path, InputKind gridKind, InfoViewResult& r) {
    Int kind = gridKind == InputKind::Ventos ? ventosCode : m3dCode;
    Int one = 1;
    Int two = 1;
    Int unused1 = 0;
    Int unused2 = 0;
    OutText<8> zone;
    OutText<8> pmap;
    OutText<4> utmhem;
    OutText<8> datum;
    OutText<256> error;
    const std::string name = nameForLibrary(path);
    infoview(name.data(), &kind, &one, &two, &r.IUTMZN, &r.first.year, &unused1, &r.first.month, &r.first.day,
             &r.first.hour, &r.first.seconds, &r.last.year, &unused2, &r.last.month, &r.last.day,
             &r.last.hour, &r.last.seconds, &r.errorFlag, &r.RLAT0, &r.RLON0, &r.XLAT1, &r.XLAT2, &r.FEAST,
             &r.FNORTH, zone.data(), pmap.data(), utmhem.data(), datum.data(), error.data(),
             static_cast<Int>(name.size()), zone.length(), pmap.length(), utmhem.length(), datum.length(),
             error.length());
    r.timeZone = zone.text();
    r.PMAP = pmap.text();
    r.UTMHEM = utmhem.text();
    r.DATUM = datum.text();
    r.errorText = error.text();
}

void callInit(InitFunction init, std::int32_t record, InitResult& r) {
    OutText<20> continent;
    OutText<52> ellipsoid;
    OutText<8> code;
    OutText<60> region1;
    OutText<60> region2;
    OutText<60> region3;
    OutText<10> stamp;
    init(&record, &r.DatumCount, &r.status, continent.data(), ellipsoid.data(), code.data(), region1.data(),
         region2.data(), region3.data(), stamp.data(), continent.length(), ellipsoid.length(), code.length(),
         region1.length(), region2.length(), region3.length(), stamp.length());
    r.continent = continent.text();
    r.ellipsoid = ellipsoid.text();
    r.code = code.text();
    r.region = {region1.text(), region2.text(), region3.text()};
    r.dateStamp = stamp.text();
}

}  // namespace

void useLibrariesBeside(const std::string& directory) {
    modInfoViewDLL.infoview = readGridFileHeader;
    modDatums.init = readDatumRecord;
    const std::string infoview = withSeparator(directory) + "infoview_dll" + librarySuffix;
    const std::string init = withSeparator(directory) + "init" + librarySuffix;
    if (fileExists(infoview))
        modInfoViewDLL.infoview = [infoview](const std::string& path, InputKind kind, InfoViewResult& r) {
            callInfoView(resolve<InfoViewFunction>(infoview, "infoview"), path, kind, r);
        };
    if (fileExists(init))
        modDatums.init = [init](std::int32_t record, InitResult& r) {
            callInit(resolve<InitFunction>(init, "init"), record, r);
        };
}

}  // namespace zg
