#pragma once

#include <exception>
#include <type_traits>
#include <utility>

#include "base/Host.h"

namespace zg {

/// Shows the one box of an error that reached the boundary: title "Zephyrgraph", number and description.
void showError(Host& host, const std::exception_ptr& error);

/// The boundary round an event handler: what is thrown inside is shown, and the program goes on with the
/// state as it stands.
template <typename Handler>
auto guarded(Host& host, Handler handler) {
    return [&host, handler = std::move(handler)](auto&&... arguments) mutable {
        try {
            if constexpr (std::is_invocable_v<Handler&, decltype(arguments)...>)
                handler(std::forward<decltype(arguments)>(arguments)...);
            else
                handler();  // a handler may leave the signal's values alone
        } catch (...) {
            showError(host, std::current_exception());
        }
    };
}

}  // namespace zg
