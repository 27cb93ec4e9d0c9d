#pragma once

#include <gtest/gtest.h>

#include <string>

#include "base/RunTimeError.h"

/// What a statement raises as "13: Type mismatch", "" where it raises nothing.
template <typename Statement>
std::string raisedBy(Statement statement) {
    try {
        statement();
    } catch (const zg::RunTimeError& error) {
        return std::to_string(error.number) + ": " + error.description;
    }
    return {};
}

/// The expression raises the run-time error of this number and description.
#define EXPECT_RAISES(number, description, expression) \
    EXPECT_EQ(raisedBy([&] { static_cast<void>(expression); }), std::to_string(number) + ": " + (description))
