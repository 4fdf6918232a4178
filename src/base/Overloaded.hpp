#pragma once

namespace quorvane {

// Lambdas joined into one visitor for std::visit, one per alternative.
template <class... Ts>
struct Overloaded : Ts... {
    using Ts::operator()...;
};
template <class... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

}  // namespace quorvane
