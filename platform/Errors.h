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
class Guarded {
 public:
    Guarded(Host& host, Handler handler) : host_(&host), handler_(std::move(handler)) {}

    /// Told in the signature, so that who tries it with other values is refused there and not in the body.
    template <typename... Values>
    auto operator()(Values&&... values) -> std::enable_if_t<handles<Handler, Values...>> {
        try {
            if constexpr (std::is_invocable_v<Handler&, Values...>)
                handler_(std::forward<Values>(values)...);
            else
                handler_();
        } catch (...) {
            showError(*host_, std::current_exception());
        }
    }

 private:
    Host* host_;
    Handler handler_;
};

template <typename Handler>
Guarded<Handler> guarded(Host& host, Handler handler) {
    return {host, std::move(handler)};
}

}  // namespace zg
