#pragma once

// Reads lines of a table as winds.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "windtable/TableFields.h"
#include "windtable/TableLayout.h"
#include "windtable/TableTimes.h"

namespace zg {

struct TableRecord {
    TableTime time;
    double speed = 0;      ///< m/s; not-a-number if missing
    double direction = 0;  ///< degrees; the same
};

/// Why a line is not a record.
struct TableFault {
    std::size_t column = 0;  ///< from 1; 0 for the whole line
    std::string text;
};

enum class TableLine { Record, Empty, Fault };  ///< Empty: also one of another station

class TableRecords {
 public:
    explicit TableRecords(const TableLayout& layout) : layout_(layout), columns_(layout.columns()) {}

    /// The kind of the line; a record or a fault can then be taken.
    TableLine read(std::string_view line);

    const TableRecord& record() const { return record_; }
    const TableFault& fault() const { return fault_; }

 private:
    TableLine fail(std::size_t column, std::string text);

    TableLayout layout_;
    std::size_t columns_;
    TableFields fields_;
    TableRecord record_;
    TableFault fault_;
};

/// The columns of the time, for tableTime; views are valid as long as the fields.
class TimeValues {
 public:
    TimeValues(const TableFields& fields, const std::vector<std::size_t>& columns);
    std::span<const std::string_view> values() const { return {values_.data(), count_}; }

    /// As written in the line.
    std::string text() const;

 private:
    std::array<std::string_view, 5> values_;
    std::size_t count_ = 0;
};

/// "17" in quotes and in UTF-8, fit for a message.
std::string quotedValue(std::string_view text);

}  // namespace zg
