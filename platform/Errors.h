#pragma once

#include <exception>
#include <type_traits>
#include <utility>

#include "base/Host.h"

namespace zg {

/// Shows the one box for an error that reached the boundary: title "Zephyrgraph", number and
/// description, and below them the place in a file if it is known.
void showError(Host& host, const std::exception_ptr& error);

/// A handler may take the arguments of its signal, or ignore them.
template <typename Handler, typename... Values>
inline constexpr bool handles = std::is_invocable_v<Handler&, Values...> || std::is_invocable_v<Handler&>;

/// The boundary around an event handler: an exception inside it is shown, and the program continues with the
/// state as it is.
template <typename Handler>
class Guarded {
 public:
    Guarded(Host& host, Handler handler) : host_(&host), handler_(std::move(handler)) {}

    /// The condition is part of the signature, so that a call with other arguments fails to compile at the
    /// call and not in the body.
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
