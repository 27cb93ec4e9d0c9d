#include "platform/Errors.h"

#include <new>

#include "base/RunTimeError.h"

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

}  // namespace

void showError(Host& host, const std::exception_ptr& error) {
    const RunTimeError known = asRunTimeError(error);
    MessageBox box;
    box.title = "Zephyrgraph";
    box.text = "Run-time error '" + std::to_string(known.number) + "':\n\n" + known.description;
    box.icon = BoxIcon::Stop;
    host.showBox(box);
}

}  // namespace zg
