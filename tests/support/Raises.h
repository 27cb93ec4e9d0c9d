#pragma once

#include <gtest/gtest.h>

#include <string>

#include "base/RunTimeError.h"

/// The error of a statement as "13: Type mismatch", "" if there is none.
template <typename Statement>
std::string raisedBy(Statement statement) {
    try {
        statement();
    } catch (const zg::RunTimeError& error) {
        return std::to_string(error.number) + ": " + error.description;
    }
    return {};
}

/// Expects the expression to raise the run-time error of this number and description.
#define EXPECT_RAISES(number, description, expression) \
    EXPECT_EQ(raisedBy([&] { static_cast<void>(expression); }), std::to_string(number) + ": " + (description))
