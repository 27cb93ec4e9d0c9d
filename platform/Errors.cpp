#include "platform/Errors.h"

#include <new>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "headers/HeaderError.h"

namespace zg {

namespace {

constexpr int outOfMemory = 7;
constexpr int internalError = 51;

RunTimeError asRunTimeError(const std::exception_ptr& error) {
    try {
        std::rethrow_exception(error);
    } catch (const RunTimeError& known) {
        return known;
    } catch (const std::bad_alloc&) {
        return {outOfMemory, "Out of memory"};
    } catch (const std::exception& other) {
        return {internalError, std::string("Internal error: ") + other.what()};
    } catch (...) {
        return {internalError, "Internal error"};
    }
}

/// The file's name, and the line and what is wrong in it as far as known; "" if the file is not known.
std::string placeOf(const std::exception_ptr& error) {
    try {
        std::rethrow_exception(error);
    } catch (const HeaderError& known) {
        if (known.place.line == 0 && known.problem == known.description) return known.place.file;
        return known.place.file + ", " + messageOf(known);
    } catch (const RunTimeError& known) {
        if (known.file.empty()) return {};
        return FileNameOf(known.file) + (known.where.empty() ? "" : ", line " + known.where);
    } catch (...) {
        return {};
    }
}

}  // namespace

void showError(Host& host, const std::exception_ptr& error) {
    const RunTimeError known = asRunTimeError(error);
    MessageBox box;
    box.title = "Zephyrgraph";
    box.text = "Run-time error '" + std::to_string(known.number) + "':\n\n" + known.description;
    if (const std::string place = placeOf(error); !place.empty()) box.text += "\n\n" + place;
    box.icon = BoxIcon::Stop;
    host.showBox(box);
}

}  // namespace zg
