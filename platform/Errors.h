#pragma once

#include <exception>
#include <type_traits>
#include <utility>

#include "base/Host.h"

namespace zg {

/// Shows the one box of an error that reached the boundary: title "Zephyrgraph", number and description.
void showError(Host& host, const std::exception_ptr& error);

/// A handler may take the values of its signal, or leave them alone.
template <typename Handler, typename... Values>
inline constexpr bool handles = std::is_invocable_v<Handler&, Values...> || std::is_invocable_v<Handler&>;

/// The boundary round an event handler: what is thrown inside is shown, and the program goes on with the
/// state as it stands.
template <typename Handler>
auto guarded(Host& host, Handler handler) {
    // Told in the signature, so that who tries it with other arguments is refused there and not in the body.
    return [&host, handler = std::move(handler)](
               auto&&... arguments) mutable -> std::enable_if_t<handles<Handler, decltype(arguments)...>> {
        try {
            if constexpr (std::is_invocable_v<Handler&, decltype(arguments)...>)
                handler(std::forward<decltype(arguments)>(arguments)...);
            else
                handler();
        } catch (...) {
            showError(host, std::current_exception());
        }
    };
}

}  // namespace zg
