#include "headers/HeaderError.h"

namespace zg {

HeaderError::HeaderError(int errorNumber, std::string errorDescription, HeaderPlace errorPlace,
                         std::string errorProblem)
    : RunTimeError(errorNumber, std::move(errorDescription)),
      place(std::move(errorPlace)),
      problem(std::move(errorProblem)) {
    if (place.line > 0) where = std::to_string(place.line);
}

std::string messageOf(const HeaderError& error) {
    const HeaderPlace& place = error.place;
    if (place.line == 0) return error.problem;
    return "line " + std::to_string(place.line) + " (" + place.part +
           "): " + (place.field.empty() ? "" : place.field + " ") + error.problem;
}

}  // namespace zg
