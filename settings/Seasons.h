#pragma once

// Which season each month belongs to: the rules of the seasons dialog without its window. The program applies
// them at its start as the dialog does.

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "settings/Settings.h"

namespace zg {

/// The entries in the list of each month.
constexpr std::array<std::string_view, 4> seasonChoices = {"Winter", "Spring", "Summer", "Fall"};

/// The entry that would select the text beside it. The list does not offer it.
constexpr std::string_view customSeason = "CUSTOM";

constexpr std::string_view missingCustomSeasonText = "Please enter a CUSTOM season name.";

/// The texts of the dialog's twelve rows.
struct SeasonFields {
    MonthTexts cboSeason;
    MonthTexts txtCustomSeason;
};

/// The texts that "Defaults" puts in the rows.
SeasonFields defaultSeasonFields();

/// The rows when the dialog opens: the configuration file is read, and a stored season that the list does not
/// offer leaves the default of its month. A row's custom box is enabled if its text is not empty.
SeasonFields loadSeasonFields();

/// The first month with a custom season but no name for it.
std::optional<std::size_t> firstMissingCustomSeason(const SeasonFields& fields);

/// Season names, count, numbers of the months and their joined text, from the rows.
void deriveSeasons(const SeasonFields& fields);

/// Accepts rows that have passed the check: derives the seasons, stores the rows unchanged and writes the
/// configuration file.
void acceptSeasons(const SeasonFields& fields);

}  // namespace zg
