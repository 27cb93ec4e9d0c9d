#pragma once

#include <gtest/gtest.h>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "graph/control/PolarGraph.h"
#include "graph/frq/ModPolarGraph.h"
#include "tests/graph/control/FakeWindow.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

/// Fresh tables, a program directory for the test, and a control in a fake window.
class PolarGraphFixture : public ::testing::Test {
 protected:
    PolarGraphFixture() { zg::applicationDirectory = directory.path(); }
    ~PolarGraphFixture() override { zg::applicationDirectory.clear(); }

    /// The number of the run-time error that the action raises, 0 if none.
    template <typename Action>
    static int errorNumberOf(Action action) {
        try {
            action();
        } catch (const zg::RunTimeError& error) {
            return error.number;
        }
        return 0;
    }

    TempDirectory directory;
    TestHost host;
    FakeWindow window;
    zg::ModPolarGraph tables;
};
